// TQELColorCombo: which colours there are, and their swatches.
#include "qel/controls/Qeltcolorcombo.h"

#include <algorithm>
#include <vector>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"

namespace qel {

using vcl::TColor;
using vcl::TRect;

/// The lines of colours with those that were not listed behind them.
class TQELColorLines : public vcl::TColorLines {
 public:
  explicit TQELColorLines(TQELColorCombo& combo)
      : TColorLines(combo, combo.OnGetColors), FCombo(combo) {}

  /// The "Custom..." line stands for no colour itself.
  TColor Selected() const override { return OnCustomLine() ? FLast : TColorLines::Selected(); }
  void KeepSelected() {
    FLast = Selected();
    if (Style().Has(vcl::cbCustomColor)) SetCustom(FLast);
  }

  void Draw(vcl::TCustomListControl& list, int index, const TRect& rect,
            vcl::TOwnerDrawState state) override {
    const bool custom = Style().Has(vcl::cbCustomColor) && index == 0;
    const int margin = list.ScaledPixels(2);
    const bool names = FCombo.ShowNames();
    TRect swatch{rect.Left + margin, rect.Top + margin, rect.Right - margin, rect.Bottom - margin};
    if (names) swatch.Right = swatch.Left + list.ScaledPixels(FCombo.SwatchWidth());
    if (!custom) DrawSwatch(index, swatch);
    if (!custom && !names) return;
    const int indentation = names ? swatch.Right - rect.Left + 2 * margin : margin;
    // In the closed field it says which colour is meant.
    const bool field = custom && state.Has(vcl::odComboBoxEdit);
    DrawLineText(list, rect, indentation,
                 field ? vcl::ColorToString(FLast) : list.Items()->Strings(index));
  }

 protected:
  void AddLines(vcl::TStrings& lines) const override {
    TColorLines::AddLines(lines);
    for (const TColor color : FAdded) lines.Add(LineOf(color));
  }
  void SelectUnlisted(TColor color) override {
    if (std::ranges::find(FAdded, color) == FAdded.end()) FAdded.push_back(color);
    const int index = List().Items()->Add(vcl::ColorToString(color));
    SetMark(List(), index, color);
    List().SetItemIndex(index);
  }
  void SelectPicked(TColor color) override {
    Select(color);
    KeepSelected();
  }

 private:
  static std::string LineOf(TColor color) {
    const std::string name = vcl::ColorToString(color);
    return name + "=" + name;
  }

  TQELColorCombo& FCombo;
  std::vector<TColor> FAdded;
  TColor FLast = vcl::clBlack;
};

const vcl::TClass& TQELColorCombo::Class() {
  using T = TQELColorCombo;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomColorBox>(
      "qel::TQELColorCombo", "qel/controls/Qeltcolorcombo.h",
      {
          ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Property<&T::Colors, &T::SetColors>("Colors").Default(
              TQELColorKinds{ccStandard, ccSystem, ccCustom}),
          Inherit("Selected"),
          Property<&T::ShowNames, &T::SetShowNames>("ShowNames").Default(true),
          Property<&T::SwatchWidth, &T::SetSwatchWidth>("SwatchWidth").Default(20),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("DropDownCount"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ItemHeight"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnCloseUp"),
          Inherit(DragEvents),
          Inherit("OnDropDown"),
          Inherit("OnGetColors"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELColorCombo::TQELColorCombo(vcl::TComponent* owner)
    : TCustomColorBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto lines = std::make_unique<TQELColorLines>(*this);
  FLines = lines.get();
  UseColors(std::move(lines));
  SetColors(FKinds);
  HearOnlyAsked<TQELColorCombo>();
}

TQELColorCombo::~TQELColorCombo() { AnnounceEnd(); }

// OnGetColors is asked whatever the kinds are: it may be all that there is.
void TQELColorCombo::SetColors(TQELColorKinds kinds) {
  vcl::TColorBoxStyle style{vcl::cbCustomColors};
  if (kinds.Has(ccStandard)) style.Include(vcl::cbStandardColors);
  if (kinds.Has(ccSystem)) style.Include(vcl::cbSystemColors);
  if (kinds.Has(ccCustom)) style.Include(vcl::cbCustomColor);
  FKinds = kinds;
  FLines->SetStyle(style);
}

void TQELColorCombo::SetShowNames(bool show) {
  FShowNames = show;
  Invalidate();
}

void TQELColorCombo::SetSwatchWidth(int width) {
  constexpr int most = 400;
  if (width < 1 || width > most) return;
  FSwatchWidth = width;
  Invalidate();
}

// What is selected now counts while the selection passes over the "Custom..." line.
void TQELColorCombo::DropDown() {
  FLines->KeepSelected();
  TCustomColorBox::DropDown();
}

void TQELColorCombo::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  FLines->KeepSelected();
  TCustomColorBox::KeyDown(key, shift);
}

void TQELColorCombo::Change() {
  FLines->KeepSelected();
  TCustomColorBox::Change();
}

}  // namespace qel
