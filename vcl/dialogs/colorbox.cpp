// TColorBox and TColorListBox: when the dialog for colours opens.
#include "vcl/dialogs/colorbox.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TCustomColorBox::Class() {
  using T = TCustomColorBox;
  static const TClass info = Describe<T, TCustomComboBox>(
      "vcl::TCustomColorBox", "vcl/dialogs/dialogs.h",
      {
          Property<&T::Selected, &T::SetSelected>("Selected").Default(clBlack).Unpublished(),
          Event<&T::OnGetColors>("OnGetColors").Unpublished(),
      });
  return info;
}

const TClass& TColorBox::Class() {
  using T = TColorBox;
  static const TClass info = Describe<T, TCustomColorBox>(
      "vcl::TColorBox", "vcl/dialogs/dialogs.h",
      {
          Inherit("Align"),
          Property<&T::Style, &T::SetStyle>("Style").Default(DefaultColorBoxStyle),
          Property<&T::DefaultColorColor, &T::SetDefaultColorColor>("DefaultColorColor")
              .Default(clBlack),
          Property<&T::NoneColorColor, &T::SetNoneColorColor>("NoneColorColor").Default(clBlack),
          Inherit("Selected"),
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

TCustomColorBox::TCustomColorBox(TComponent* owner) : TCustomComboBox(owner) {
  TCustomComboBox::SetStyle(csOwnerDrawFixed);
}

void TCustomColorBox::UseColors(std::unique_ptr<TColorLines> colors) {
  FColors = colors.get();
  SetLook(std::move(colors));
  FColors->Fill();
}

TColorBox::TColorBox(TComponent* owner) : TCustomColorBox(owner) {
  UseColors(std::make_unique<TColorLines>(*this, OnGetColors));
  HearOnlyAsked<TColorBox>();
}

void TCustomColorBox::DropDown() {
  FBefore = Selected();
  FFromList = false;
  TCustomComboBox::DropDown();
}

/// The window tells of its list's end first, and then of what a click has chosen there; what keys
/// have chosen it has told before.
void TCustomColorBox::CloseUp() {
  const bool moved = FFromList;
  FFromList = true;
  const TWatch watch(this);
  TCustomComboBox::CloseUp();
  if (watch.Gone() || !moved || !FColors->OnCustomLine()) return;
  if (!Pick() || watch.Gone()) return;
  TCustomComboBox::Click();
  if (!watch.Gone()) Change();
}

void TCustomColorBox::KeyDown(std::uint16_t& key, TShiftState shift) {
  if (!DroppedDown()) FFromList = false;
  TCustomComboBox::KeyDown(key, shift);
}

void TCustomColorBox::Click() {
  const TWatch watch(this);
  if (DroppedDown()) {
    FFromList = true;
  } else if (FFromList && FColors->OnCustomLine()) {
    FFromList = false;
    Pick();
  }
  if (!watch.Gone()) TCustomComboBox::Click();
}

bool TCustomColorBox::Pick() {
  const TWatch watch(this);
  const bool picked = FColors->PickCustom();
  if (!picked && !watch.Gone()) SetSelected(FBefore);
  return picked;
}

void TCustomColorBox::Loaded() {
  TCustomComboBox::Loaded();
  FColors->Fill();
}

const TClass& TColorListBox::Class() {
  using T = TColorListBox;
  static const TClass info = Describe<T, TCustomListBox>(
      "vcl::TColorListBox", "vcl/dialogs/dialogs.h",
      {
          Inherit("Align"),
          Inherit("BorderStyle"),
          Property<&T::Style, &T::SetStyle>("Style").Default(DefaultColorBoxStyle),
          Property<&T::DefaultColorColor, &T::SetDefaultColorColor>("DefaultColorColor")
              .Default(clBlack),
          Property<&T::NoneColorColor, &T::SetNoneColorColor>("NoneColorColor").Default(clBlack),
          Property<&T::Selected, &T::SetSelected>("Selected").Default(clBlack),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("IntegralHeight"),
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
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Event<&T::OnGetColors>("OnGetColors"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TColorListBox::TColorListBox(TComponent* owner) : TCustomListBox(owner) {
  auto look = std::make_unique<TColorLines>(*this, OnGetColors);
  FColors = look.get();
  SetLook(std::move(look));
  TCustomListBox::SetStyle(lbOwnerDrawFixed);
  FColors->Fill();
  HearOnlyAsked<TColorListBox>();
}

void TColorListBox::DblClick() {
  const TWatch watch(this);
  TCustomListBox::DblClick();
  if (!watch.Gone() && FColors->OnCustomLine()) Pick();
}

void TColorListBox::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomListBox::KeyPress(key);
  if (watch.Gone() || key != U'\r' || !FColors->OnCustomLine()) return;
  key = 0;
  Pick();
}

/// Enter is the list's own there, before it is a default button's.
void TColorListBox::Dispatch(TMessage& message) {
  if (message.Msg == CM_WANTSPECIALKEY && message.WParam == U'\r' && FColors->OnCustomLine()) {
    message.Result = 1;
    return;
  }
  TCustomListBox::Dispatch(message);
}

void TColorListBox::Pick() {
  const TWatch watch(this);
  if (FColors->PickCustom() && !watch.Gone()) Click();
}

void TColorListBox::Loaded() {
  TCustomListBox::Loaded();
  FColors->Fill();
}

}  // namespace vcl
