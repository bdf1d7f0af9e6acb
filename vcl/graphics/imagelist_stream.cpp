// TImageList in form files: the number of pictures in 32 bits, and each as an ICO file, which holds
// colours, see-through parts and alpha channel alike.
#include "vcl/graphics/icon.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

void TImageList::DefineProperties(TFiler& filer) {
  TComponent::DefineProperties(filer);
  filer.DefineBinaryProperty(
      "Bitmap", [this](TStream& stream) { ReadData(stream); },
      [this](TStream& stream) { WriteData(stream); }, Count() > 0);
}

void TImageList::ReadData(TStream& stream) {
  std::int32_t count = 0;
  if (stream.Read(&count, sizeof count) != sizeof count || count < 0) {
    throw EInvalidGraphic("The list of images is damaged: it has no number of images");
  }
  TImageList read(nullptr, FWidth, FHeight);
  for (int i = 0; i < count; ++i) {
    TIcon icon;
    icon.LoadFromStream(stream);
    if (icon.Size() != TSize{FWidth, FHeight}) {
      throw EInvalidGraphic(Concat("The list of images is damaged: image ", std::to_string(i),
                                   " is ", std::to_string(icon.Width()), " by ",
                                   std::to_string(icon.Height()), " pixels large"));
    }
    read.AddIcon(&icon);
  }
  read.FBkColor = FBkColor;
  Assign(&read);
}

void TImageList::WriteData(TStream& stream) const {
  const std::int32_t count = Count();
  stream.WriteBuffer(&count, sizeof count);
  for (int i = 0; i < count; ++i) {
    TIcon icon;
    GetIcon(i, &icon);
    icon.SaveToStream(stream);
  }
}

}  // namespace vcl
