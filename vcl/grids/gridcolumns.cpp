// TGridColumn: its settings.
#include "vcl/grids/gridcolumns.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/strings.h"

namespace vcl {

const TClass& TGridColumn::Class() {
  using T = TGridColumn;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TGridColumn", "vcl/grids/grids.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Property<&T::ButtonStyle, &T::SetButtonStyle>("ButtonStyle").Default(cbsAuto),
          Property<&T::PickList, &T::SetPickList>("PickList"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Property<&T::Title, &T::SetTitle>("Title").Default(""),
          Property<&T::ValueChecked, &T::SetValueChecked>("ValueChecked").Default("True"),
          Property<&T::ValueUnchecked, &T::SetValueUnchecked>("ValueUnchecked").Default("False"),
      });
  return info;
}

TGridColumn::TGridColumn(TCollection* collection)
    : TCollectionItem(collection), FPickList(std::make_unique<TStringList>()) {}

TGridColumn::~TGridColumn() = default;

void TGridColumn::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TGridColumn*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FAlignment = other->FAlignment;
  FButtonStyle = other->FButtonStyle;
  FPickList->Assign(other->FPickList.get());
  FReadOnly = other->FReadOnly;
  FTitle = other->FTitle;
  FValueChecked = other->FValueChecked;
  FValueUnchecked = other->FValueUnchecked;
  Changed(false);
}

std::string TGridColumn::DisplayName() const {
  return FTitle.empty() ? TCollectionItem::DisplayName() : FTitle;
}

void TGridColumn::SetAlignment(TAlignment alignment) { Change(FAlignment, alignment); }
void TGridColumn::SetButtonStyle(TColumnButtonStyle style) { Change(FButtonStyle, style); }
TStrings* TGridColumn::PickList() const { return FPickList.get(); }
void TGridColumn::SetPickList(const TStrings* values) { FPickList->Assign(values); }
void TGridColumn::SetReadOnly(bool readOnly) { Change(FReadOnly, readOnly); }
void TGridColumn::SetTitle(const std::string& title) { Change(FTitle, title); }
void TGridColumn::SetValueChecked(const std::string& value) { Change(FValueChecked, value); }
void TGridColumn::SetValueUnchecked(const std::string& value) { Change(FValueUnchecked, value); }

TEditStyle TGridColumn::EditStyle() const {
  switch (FButtonStyle) {
    case cbsAuto: return FPickList->Count() > 0 ? esPickList : esSimple;
    case cbsEllipsis: return esEllipsis;
    case cbsNone: return esSimple;
    case cbsCheckBox: return esCheckBox;
  }
  return esSimple;
}

}  // namespace vcl
