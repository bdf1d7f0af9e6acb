// THeaderItem: its settings. What a window shows of them is the control's.
#include "vcl/stdctrls/headeritem.h"

#include <algorithm>

#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& THeaderItem::Class() {
  using T = THeaderItem;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::THeaderItem", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment")
              .Default(taLeftJustify)
              .Unpublished(),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(false).Unpublished(),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1).Unpublished(),
          Property<&T::MaxWidth, &T::SetMaxWidth>("MaxWidth").Default(0).Unpublished(),
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0).Unpublished(),
          Property<&T::SortMark, &T::SetSortMark>("SortMark").Default(smNone).Unpublished(),
          Property<&T::Text, &T::SetText>("Text").Default("").Unpublished(),
          Property<&T::Width, &T::SetWidth>("Width").Default(50).Unpublished(),
      });
  return info;
}

int THeaderItem::Limited(int width) const {
  width = std::max(width, FMinWidth);
  return FMaxWidth > 0 ? std::min(width, FMaxWidth) : width;
}

void THeaderItem::SetText(const std::string& text) { Change(FText, text); }
void THeaderItem::SetAlignment(TAlignment alignment) { Change(FAlignment, alignment); }
void THeaderItem::SetAutoSize(bool autoSize) { Change(FAutoSize, autoSize); }
void THeaderItem::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1)); }
void THeaderItem::SetMaxWidth(int width) { Change(FMaxWidth, std::max(width, 0)); }
void THeaderItem::SetMinWidth(int width) { Change(FMinWidth, std::max(width, 0)); }
void THeaderItem::SetSortMark(TSortMark mark) { Change(FSortMark, mark); }
void THeaderItem::SetWidth(int width) { Change(FWidth, Limited(std::max(width, 0))); }

void THeaderItem::Assign(const TPersistent* source) {
  const auto* item = dynamic_cast<const THeaderItem*>(source);
  if (!item) return TCollectionItem::Assign(source);
  SetAlignment(item->FAlignment);
  SetAutoSize(item->FAutoSize);
  SetText(item->FText);
  SetImageIndex(item->FImageIndex);
  SetMaxWidth(item->FMaxWidth);
  SetMinWidth(item->FMinWidth);
  SetSortMark(item->FSortMark);
  SetWidth(item->FWidth);
}

std::string THeaderItem::DisplayName() const {
  return FText.empty() ? TCollectionItem::DisplayName() : FText;
}

}  // namespace vcl
