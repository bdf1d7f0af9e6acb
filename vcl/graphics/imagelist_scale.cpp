// TImageList: the pictures at the sizes for other dots per inch.
#include <algorithm>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/graphics/private/alphapicture.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// What the pictures' sizes are meant for.
constexpr int PlainPixelsPerInch = 96;

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
  const TAlphaPicture picture = AlphaPicture(
      from.FWidth, from.FHeight,
      [&](TBitmap& drawn, TColor background) { from.GetBitmap(index, &drawn, background); });
  AddPicture(Handle(), Resampled(picture, FWidth, FHeight));
}

}  // namespace vcl
