// TDBMemo: the text, which waits to be asked for without AutoDisplay.
#include "vcl/dbctrls/dbmemo.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TDBMemo::Class() {
  using T = TDBMemo;
  static const TClass info = Describe<T, TCustomMemo>(
      "vcl::TDBMemo", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Inherit("Alignment"),
          Property<&T::AutoDisplay, &T::SetAutoDisplay>("AutoDisplay").Default(true),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ScrollBars"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("WantReturns"),
          Inherit("WantTabs"),
          Inherit("WordWrap"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

void TDBMemo::SetAutoDisplay(bool autoDisplay) {
  if (autoDisplay == FAutoDisplay) return;
  FAutoDisplay = autoDisplay;
  ShowNow();
}

void TDBMemo::LoadMemo() {
  if (FLoaded || !Field()) return;
  FLoaded = true;
  const TSetFor automatic(FAutoDisplay, true, this);
  ShowNow();
}

void TDBMemo::AllowTyping() {
  TFieldTextEditor::AllowTyping();
  if (!FLoaded) TCustomMemo::SetReadOnly(true);
}

// What has been asked for stays while the record is edited.
void TDBMemo::ShowField() {
  FLoaded = FAutoDisplay || !Field() || (FLoaded && Link().Editing());
  if (FLoaded) return TFieldTextEditor::ShowField();
  AllowTyping();
  ShowTheText(Concat("(", Field()->DisplayLabel(), ")"));
}

void TDBMemo::KeyDown(std::uint16_t& key, TShiftState shift) {
  if (FLoaded) return TFieldTextEditor::KeyDown(key, shift);
  // What stands for the text is no field's, so its editor hears of no key.
  TCustomMemo::KeyDown(key, shift);  // NOLINT(bugprone-parent-virtual-call)
}

void TDBMemo::KeyPress(char32_t& key) {
  if (FLoaded) return TFieldTextEditor::KeyPress(key);
  const TWatch watch(this);
  TCustomMemo::KeyPress(key);  // NOLINT(bugprone-parent-virtual-call): as above.
  if (watch.Gone()) return;
  if (key == detail::EnterCharacter) LoadMemo();
  key = 0;
}

void TDBMemo::DblClick() {
  const TWatch watch(this);
  TFieldTextEditor::DblClick();
  if (!watch.Gone()) LoadMemo();
}

void TDBMemo::Dispatch(TMessage& message) {
  if (FLoaded || !detail::ChangesText(message)) TFieldTextEditor::Dispatch(message);
}

}  // namespace vcl
