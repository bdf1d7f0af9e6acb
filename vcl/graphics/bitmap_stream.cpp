// TBitmap in streams, form files and resources.
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/private/dib.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/resources.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

void TBitmap::LoadFromStream(TStream& stream) { Load(ReadBmp(stream)); }

void TBitmap::SaveToStream(TStream& stream) const {
  if (!Empty()) WriteBmp(ToDib(), stream);
}

void TBitmap::LoadFromResourceName(HINSTANCE instance, const std::string& name) {
  TResourceStream stream(instance, name, reinterpret_cast<const char*>(RT_BITMAP));
  Load(ReadBmpResource(stream));
}

// A form file holds the length of the BMP file in 32 bits in front of it; 0 for an empty bitmap.
void TBitmap::ReadData(TStream& stream) {
  std::uint32_t length = 0;
  if (stream.Read(&length, sizeof length) != sizeof length) {
    throw EInvalidGraphic("The bitmap's data has less than the 4 bytes of its length");
  }
  if (length == 0) return SetHandle(nullptr);
  const std::int64_t left = stream.Size() - stream.Position();
  if (length > left) {
    throw EInvalidGraphic(Concat("The bitmap is cut off: it takes ", std::to_string(length),
                                 " bytes, of which ", std::to_string(left), " are there"));
  }
  TMemoryStream file;
  file.CopyFrom(stream, length);
  file.SetPosition(0);
  LoadFromStream(file);
}

void TBitmap::WriteData(TStream& stream) const {
  TMemoryStream file;
  SaveToStream(file);
  const auto length = static_cast<std::uint32_t>(file.Size());
  stream.WriteBuffer(&length, sizeof length);
  file.SaveToStream(stream);
}

}  // namespace vcl
