#include "core/Qelclasses2.h"

#include "host/vcl/imagelist.h"

namespace qel {

void QELDrawTransparentBitmap(vcl::TCanvas* canvas, vcl::TBitmap* bitmap, int x, int y,
                              vcl::TColor transparentColor) {
  if (bitmap->Empty()) return;
  vcl::TImageList images(nullptr, bitmap->Width(), bitmap->Height());
  images.AddMasked(bitmap, transparentColor);
  images.Draw(canvas, x, y, 0);
}

}  // namespace qel
