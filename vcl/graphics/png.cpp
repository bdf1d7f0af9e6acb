// Writing bitmaps as PNG files.
#include "vcl/graphics/png.h"

#include "vcl/graphics/private/imagecodecs.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"

namespace vcl {

void SavePng(const TBitmap& bitmap, TStream& stream) {
  if (bitmap.Empty()) throw EInvalidGraphic("An empty bitmap cannot be saved as a PNG");
  const auto bytes = EncodeImage(bitmap, "image/png");
  stream.WriteBuffer(bytes.data(), static_cast<std::int64_t>(bytes.size()));
}

void SavePng(const TBitmap& bitmap, const std::string& fileName) {
  TMemoryStream encoded;
  SavePng(bitmap, encoded);
  encoded.SaveToFile(fileName);
}

}  // namespace vcl
