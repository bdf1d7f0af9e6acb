// TDBEdit: showing a field's value, and writing what was typed when the focus leaves.
#include "vcl/dbctrls/dbedit.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TDBEdit::Class() {
  using T = TDBEdit;
  static const TClass info = Describe<T, TCustomEdit>(
      "vcl::TDBEdit", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Inherit("BorderStyle"),
          Inherit("CharCase"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField"),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PasswordChar"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
      });
  return info;
}

TDBEdit::TDBEdit(TComponent* owner) : TCustomEdit(owner) {
  FLink.OnDataChange = [this](TObject*) { ShowValue(); };
  FLink.OnActiveChange = FLink.OnDataChange;
  FLink.OnEditingChange = [this](TObject*) { AllowTyping(); };
  FLink.OnUpdateData = [this](TObject*) { Field()->SetText(Text()); };
  AllowTyping();
}

TDBEdit::~TDBEdit() {
  AnnounceEnd();
  FLink.SetDataSource(nullptr);
}

void TDBEdit::SetDataSource(TDataSource* dataSource) {
  FLink.SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
}

bool TDBEdit::CanModify() const {
  const bool mayBegin = FLink.DataSource() && FLink.DataSource()->AutoEdit();
  return FLink.CanModify() && (FLink.Editing() || mayBegin);
}

void TDBEdit::AllowTyping() { TCustomEdit::SetReadOnly(!FLink.Editing()); }

void TDBEdit::ShowValue() {
  AllowTyping();
  if (Destroying()) return;
  const TField* field = Field();
  const std::string text = !field ? std::string() : FInside ? field->Text() : field->DisplayText();
  if (text == Text()) return;
  const TSetFor showing(FShowing, true, this);
  SetText(text);
}

void TDBEdit::Change() {
  if (!FShowing) FLink.Modified();
  TCustomEdit::Change();
}

void TDBEdit::KeyDown(std::uint16_t& key, TShiftState shift) {
  TCustomEdit::KeyDown(key, shift);
  if (key == VK_DELETE || (key == VK_INSERT && shift.Has(ssShift))) FLink.Edit();
}

void TDBEdit::KeyPress(char32_t& key) {
  TCustomEdit::KeyPress(key);
  if (key == VK_ESCAPE) {
    FLink.Reset();
    SelectAll();
    key = 0;
  } else if ((key >= ' ' || key == VK_BACK) && !FLink.Edit()) {
    ::MessageBeep(0);
    key = 0;
  }
}

void TDBEdit::Dispatch(TMessage& message) {
  // The menu of the system's edit sends these too.
  const bool changes = message.Msg == WM_CUT || message.Msg == WM_PASTE || message.Msg == WM_CLEAR;
  if (changes) FLink.Edit();
  TCustomEdit::Dispatch(message);
}

void TDBEdit::DoEnter() {
  FInside = true;
  if (FLink.CanModify() && !FLink.Editing()) ShowValue();
  TCustomEdit::DoEnter();
}

void TDBEdit::DoExit() {
  {
    const auto stay = [this] {
      SelectAll();
      SetFocus();
    };
    const TOnFailure refused(stay, this);
    FLink.UpdateRecord();
  }
  FInside = false;
  ShowValue();
  TCustomEdit::DoExit();
}

}  // namespace vcl
