// TImageList: the pictures at the sizes for other dots per inch.
#include <algorithm>
#include <cmath>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/handles.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/graphics/private/resample.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// What the pictures' sizes are meant for.
constexpr int PlainPixelsPerInch = 96;

std::unique_ptr<TBitmap> DrawnOn(TColor background, const TImageList& list, int index) {
  auto drawn = std::make_unique<TBitmap>();
  list.GetBitmap(index, drawn.get(), background);
  drawn->SetPixelFormat(pf32bit);
  return drawn;
}

/// A picture of a list with its alpha channel: where it is see-through, black and white shine
/// through it.
TAlphaPicture AlphaPicture(const TImageList& list, int index) {
  const auto black = DrawnOn(clBlack, list, index);
  const auto white = DrawnOn(clWhite, list, index);
  TAlphaPicture picture(list.Width(), list.Height());
  for (int y = 0; y < picture.Height; ++y) {
    const auto* dark = static_cast<const RGBQUAD*>(black->ScanLine(y));
    const auto* light = static_cast<const RGBQUAD*>(white->ScanLine(y));
    for (int x = 0; x < picture.Width; ++x) {
      float* pixel = picture.Pixel(x, y);
      pixel[0] = dark[x].rgbBlue;
      pixel[1] = dark[x].rgbGreen;
      pixel[2] = dark[x].rgbRed;
      pixel[3] = static_cast<float>(255 - (light[x].rgbGreen - dark[x].rgbGreen));
    }
  }
  return picture;
}

BYTE Channel(float premultiplied, float alpha) {
  return static_cast<BYTE>(std::min(255.0F, std::round(premultiplied * 255 / alpha)));
}

/// Fills the pixels of 32 bits as image lists take them, and the mask with white where nothing is.
void ToBitmaps(const TAlphaPicture& picture, TBitmap& pixels, TBitmap& mask) {
  for (int y = 0; y < picture.Height; ++y) {
    auto* row = static_cast<RGBQUAD*>(pixels.ScanLine(y));
    auto* holes = static_cast<RGBQUAD*>(mask.ScanLine(y));
    for (int x = 0; x < picture.Width; ++x) {
      const float* from = picture.Pixel(x, y);
      const auto alpha = static_cast<BYTE>(std::round(from[3]));
      holes[x] = alpha == 0 ? RGBQUAD{255, 255, 255, 0} : RGBQUAD{};
      row[x] = RGBQUAD{};
      if (alpha == 0) continue;
      row[x] = {Channel(from[0], from[3]), Channel(from[1], from[3]), Channel(from[2], from[3]),
                alpha};
    }
  }
}

}  // namespace

void TImageList::SetLarger(TImageList* larger) {
  if (larger == FLarger) return;
  for (const TImageList* list = larger; list; list = list->FLarger) {
    if (list == this) throw EInvalidOperation("A list of images can't be a larger one of itself");
  }
  if (FLarger) {
    FLarger->UnRegisterChanges(&FLargerLink);
    FLarger->RemoveFreeNotification(this);
  }
  FLarger = larger;
  if (larger) {
    larger->RegisterChanges(&FLargerLink);
    larger->FreeNotification(this);
  }
  Changed();
}

void TImageList::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FLarger) SetLarger(nullptr);
}

TImageList* TImageList::ForPPI(int pixelsPerInch) {
  if (pixelsPerInch < 1) {
    throw EArgumentOutOfRangeException(
        Concat("There are no images for ", std::to_string(pixelsPerInch), " dots per inch"));
  }
  const auto scaled = [pixelsPerInch](int pixels) {
    return std::clamp(::MulDiv(pixels, pixelsPerInch, PlainPixelsPerInch), 1, MostPixels);
  };
  const int width = scaled(FWidth);
  const int height = scaled(FHeight);
  if (width == FWidth && height == FHeight) return this;
  std::unique_ptr<TImageList>& list = FScaled[pixelsPerInch];
  if (list) return list.get();
  auto made = std::make_unique<TImageList>(nullptr, width, height);
  made->SetBkColor(FBkColor);
  for (int i = 0; i < Count(); ++i) made->AddScaled(SourceFor(i, width), i);
  list = std::move(made);
  return list.get();
}

/// The first list, from this one to ever larger ones, whose picture is wide enough; the last one
/// that has the picture where none is.
const TImageList& TImageList::SourceFor(int index, int width) const {
  const TImageList* source = this;
  while (source->FWidth < width && source->FLarger && source->FLarger->Count() > index) {
    source = source->FLarger;
  }
  return *source;
}

void TImageList::AddScaled(const TImageList& from, int index) {
  const TAlphaPicture picture = Resampled(AlphaPicture(from, index), FWidth, FHeight);
  TBitmap pixels(FWidth, FHeight);
  pixels.SetPixelFormat(pf32bit);
  TBitmap mask(FWidth, FHeight);
  mask.SetPixelFormat(pf32bit);
  ToBitmaps(picture, pixels, mask);
  mask.SetPixelFormat(pf1bit);
  if (::ImageList_Add(Handle(), pixels.Handle(), mask.Handle()) < 0) {
    RaiseOutOfResources("to add an image to a list");
  }
}

}  // namespace vcl
