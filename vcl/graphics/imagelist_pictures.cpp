// TImageList: adding pictures of any kind.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/graphics/private/alphapicture.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

void DrawOn(TBitmap& drawn, TColor background, TGraphic& graphic) {
  drawn.Canvas()->Brush()->SetColor(background);
  drawn.SetSize(graphic.Width(), graphic.Height());
  graphic.Draw(drawn.Canvas(), {0, 0, graphic.Width(), graphic.Height()});
}

TAlphaPicture Whole(TGraphic& graphic) {
  return AlphaPicture(graphic.Width(), graphic.Height(), [&](TBitmap& drawn, TColor background) {
    DrawOn(drawn, background, graphic);
  });
}

/// As it covers what is behind it; a bitmap as a button's glyph does.
TAlphaPicture PictureOf(const TGraphic& graphic) {
  if (const auto* bitmap = dynamic_cast<const TBitmap*>(&graphic)) {
    TBitmap seeThrough;
    seeThrough.Assign(bitmap);
    seeThrough.SetTransparent(true);
    return Whole(seeThrough);
  }
  // Drawing changes nothing but what a canvas keeps.
  return Whole(const_cast<TGraphic&>(graphic));
}

/// As large as fits into the size, in the middle of it.
TAlphaPicture Fitted(const TAlphaPicture& picture, int width, int height) {
  const double scale = std::min(1.0 * width / picture.Width, 1.0 * height / picture.Height);
  const auto scaled = [scale](int pixels) { return std::max(1, static_cast<int>(pixels * scale)); };
  const TAlphaPicture small = Resampled(picture, std::min(width, scaled(picture.Width)),
                                        std::min(height, scaled(picture.Height)));
  TAlphaPicture fitted(width, height);
  const int left = (width - small.Width) / 2;
  const int top = (height - small.Height) / 2;
  for (int row = 0; row < small.Height; ++row) {
    std::copy_n(small.Pixel(0, row), std::size_t{4} * small.Width, fitted.Pixel(left, top + row));
  }
  return fitted;
}

}  // namespace

int TImageList::AddGraphic(const TGraphic& graphic) {
  if (graphic.Empty()) throw EInvalidOperation("There is no picture to add to the list");
  const TAlphaPicture picture = PictureOf(graphic);
  const int first = Count();
  TOnFailure none([this, first] {
    while (Count() > first) ::ImageList_Remove(Handle(), Count() - 1);
  });
  if (picture.Height == FHeight && picture.Width % FWidth == 0) {
    for (int x = 0; x < picture.Width; x += FWidth) {
      AddPicture(Handle(), PartOf(picture, x, 0, FWidth, FHeight));
    }
  } else {
    AddPicture(Handle(), Fitted(picture, FWidth, FHeight));
  }
  Changed();
  return first;
}

}  // namespace vcl
