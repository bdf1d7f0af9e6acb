// TCoolBand and TCoolBands: their settings. What the window shows of them is the cool bar's.
#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/coolbar.h"

namespace vcl {

const TClass& TCoolBand::Class() {
  using T = TCoolBand;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TCoolBand", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::Break, &T::SetBreak>("Break").Default(true),
          Property<&T::Control, &T::SetControl>("Control"),
          Property<&T::FixedSize, &T::SetFixedSize>("FixedSize").Default(false),
          Property<&T::HorizontalOnly, &T::SetHorizontalOnly>("HorizontalOnly").Default(false),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1),
          Property<&T::MinHeight, &T::SetMinHeight>("MinHeight").Default(25),
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0),
          Property<&T::Text, &T::SetText>("Text").Default(""),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
          Property<&T::Width, &T::SetWidth>("Width").Default(180),
      });
  return info;
}

TCoolBand::~TCoolBand() = default;

TCoolBar* TCoolBand::Bar() const {
  const auto* bands = dynamic_cast<const TCoolBands*>(Collection());
  return bands ? bands->FBar : nullptr;
}

template <class T>
void TCoolBand::Change(T& field, const T& value) {
  if (value == field) return;
  field = value;
  Changed(false);
}

void TCoolBand::SetBreak(bool breaks) { Change(FBreak, breaks); }
void TCoolBand::SetFixedSize(bool fixed) { Change(FFixedSize, fixed); }
void TCoolBand::SetHorizontalOnly(bool only) { Change(FHorizontalOnly, only); }
void TCoolBand::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1)); }
void TCoolBand::SetMinHeight(int height) { Change(FMinHeight, std::max(height, 0)); }
void TCoolBand::SetMinWidth(int width) { Change(FMinWidth, std::max(width, 0)); }
void TCoolBand::SetText(const std::string& text) { Change(FText, text); }
void TCoolBand::SetVisible(bool visible) { Change(FVisible, visible); }
void TCoolBand::SetWidth(int width) { Change(FWidth, std::max(width, 0)); }

void TCoolBand::SetControl(TWinControl* control) {
  if (control == FControl) return;
  TCoolBar* bar = Bar();
  if (control && bar && control->ContainsControl(bar)) {
    throw EInvalidOperation(
        Concat("The cool bar '", bar->Name(), "' stands in '", control->Name(), "' itself"));
  }
  TCoolBand* former = bar && control ? bar->Bands()->FindBand(control) : nullptr;
  if (former) former->FControl = nullptr;
  FControl = control;
  // One that comes onto the bar finds its band here.
  if (control && bar && control->Parent() != bar) control->SetParent(bar);
  Changed(true);
}

void TCoolBand::Assign(const TPersistent* source) {
  const auto* band = dynamic_cast<const TCoolBand*>(source);
  if (!band) return TCollectionItem::Assign(source);
  SetBreak(band->FBreak);
  SetControl(band->FControl);
  SetFixedSize(band->FFixedSize);
  SetHorizontalOnly(band->FHorizontalOnly);
  SetImageIndex(band->FImageIndex);
  SetMinHeight(band->FMinHeight);
  SetMinWidth(band->FMinWidth);
  SetText(band->FText);
  SetVisible(band->FVisible);
  SetWidth(band->FWidth);
}

std::string TCoolBand::DisplayName() const {
  if (!FText.empty()) return FText;
  return FControl && !FControl->Name().empty() ? FControl->Name() : TCollectionItem::DisplayName();
}

TCoolBand* TCoolBands::FindBand(const TControl* control) const {
  for (int i = 0; control && i < Count(); ++i) {
    if (Items(i)->FControl == control) return Items(i);
  }
  return nullptr;
}

}  // namespace vcl
