// TDBComboBox, TDBListBox and TDBRadioGroup: the item that is the field's value.
#include "vcl/dbctrls/dblists.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// TDBComboBox.

const TClass& TDBComboBox::Class() {
  using T = TDBComboBox;
  static const TClass info = Describe<T, TCustomComboBox>(
      "vcl::TDBComboBox", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("DropDownCount"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ItemHeight"),
          Inherit("Items"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("Sorted"),
          Inherit("Style"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnCloseUp"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit("OnDrawItem"),
          Inherit("OnDropDown"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

void TDBComboBox::ShowField() {
  const std::string text = Field() ? Field()->Text() : std::string();
  if (text != Text()) SetText(text);
}

void TDBComboBox::WriteField() { Field()->SetText(Text()); }

void TDBComboBox::PutBack() {
  const TWatch watch(this);
  TFieldEditor::PutBack();
  if (!watch.Gone()) SelectAll();
}

// The field's items may only now be there.
void TDBComboBox::Loaded() {
  TFieldEditor::Loaded();
  ShowNow();
}

/// A choice from the list is told here before Change is.
void TDBComboBox::Click() {
  const TWatch watch(this);
  const bool taken = TakeChange();
  if (watch.Gone()) return;
  FRefused = !taken;
  if (taken) TFieldEditor::Click();
}

void TDBComboBox::Change() {
  if (std::exchange(FRefused, false)) return;
  if (ShowingField() || TakeChange()) TFieldEditor::Change();
}

void TDBComboBox::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TFieldEditor::KeyDown(key, shift);
  if (watch.Gone() || !detail::ChangesText(key, shift)) return;
  if (!EditField()) key = 0;
}

void TDBComboBox::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TFieldEditor::KeyPress(key);
  if (!watch.Gone() && detail::ChangesText(key) && !EditField()) key = 0;
}

// TDBListBox.

const TClass& TDBListBox::Class() {
  using T = TDBListBox;
  static const TClass info = Describe<T, TCustomListBox>(
      "vcl::TDBListBox", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("IntegralHeight"),
          Inherit("ItemHeight"),
          Inherit("Items"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("Style"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit("OnDrawItem"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

void TDBListBox::ShowField() { SetItemIndex(Field() ? Items()->IndexOf(Field()->Text()) : -1); }

void TDBListBox::WriteField() {
  if (ItemIndex() >= 0) Field()->SetText(Items()->Strings(ItemIndex()));
}

// Items that have come behind the field are there now.
void TDBListBox::CreateWnd() {
  TFieldEditor::CreateWnd();
  ShowNow();
}

void TDBListBox::Loaded() {
  TFieldEditor::Loaded();
  ShowNow();
}

void TDBListBox::Click() {
  if (TakeChange()) TFieldEditor::Click();
}

// TDBRadioGroup.

const TClass& TDBRadioGroup::Class() {
  using T = TDBRadioGroup;
  static const TClass info = Describe<T, TCustomRadioGroup>(
      "vcl::TDBRadioGroup", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Inherit("Caption"),
          Inherit("Color"),
          Inherit("Columns"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("Items"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Property<&T::Values, &T::SetValues>("Values"),
          Inherit(ContainerProperties),
          Inherit(ContainerEvents),
      });
  return info;
}

TDBRadioGroup::TDBRadioGroup(TComponent* owner)
    : TFieldEditor(owner), FValues(std::make_unique<TStringList>()) {
  FValues->OnChange = [this](TObject*) { ShowNow(); };
}

TDBRadioGroup::~TDBRadioGroup() {
  AnnounceEnd();
  FValues->OnChange = nullptr;
}

std::string TDBRadioGroup::ValueOf(int item) const {
  const bool own = item < FValues->Count() && !FValues->Strings(item).empty();
  return own ? FValues->Strings(item) : Items()->Strings(item);
}

void TDBRadioGroup::ShowField() {
  if (Loading()) return;
  HearKeys();
  int found = -1;
  for (int i = Field() ? Items()->Count() - 1 : -1; i >= 0; --i) {
    if (ValueOf(i) == Field()->Text()) found = i;
  }
  SetItemIndex(found);
}

void TDBRadioGroup::WriteField() {
  if (ItemIndex() >= 0) Field()->SetText(ValueOf(ItemIndex()));
}

void TDBRadioGroup::CreateWnd() {
  TFieldEditor::CreateWnd();
  ShowNow();
}

void TDBRadioGroup::Loaded() {
  TFieldEditor::Loaded();
  ShowNow();
}

/// The focus is on one of the buttons.
void TDBRadioGroup::KeepFocus() {
  if (Items()->Count() > 0) Buttons(std::max(ItemIndex(), 0))->SetFocus();
}

void TDBRadioGroup::HearKeys() {
  for (int i = 0; i < Items()->Count(); ++i) {
    Buttons(i)->OnKeyPress = {this, &TDBRadioGroup::ButtonKey};
  }
}

/// The buttons have the keyboard.
void TDBRadioGroup::ButtonKey(TObject*, char32_t& key) { KeyPress(key); }

/// What the record brings with it is no click.
void TDBRadioGroup::Click() {
  if (ShowingField()) return;
  const TWatch watch(this);
  HearKeys();
  if (TakeChange()) TFieldEditor::Click();
}

}  // namespace vcl
