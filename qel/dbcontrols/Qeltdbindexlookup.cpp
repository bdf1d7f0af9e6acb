// TQELDBIndexLookup: finding the record as one types.
#include "qel/dbcontrols/Qeltdbindexlookup.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

bool IsText(const vcl::TField& field) {
  return field.DataType() == vcl::ftString || field.DataType() == vcl::ftMemo;
}

bool Begins(const std::string& text, const std::string& beginning) {
  const std::wstring whole = vcl::ToUtf16(text);
  const std::wstring wanted = vcl::ToUtf16(beginning);
  if (whole.size() < wanted.size()) return false;
  return vcl::AnsiSameText(vcl::ToUtf8(whole.substr(0, wanted.size())), beginning);
}

}  // namespace

const vcl::TClass& TQELDBIndexLookup::Class() {
  using T = TQELDBIndexLookup;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomEdit>(
      "qel::TQELDBIndexLookup", "qel/dbcontrols/Qeltdbindexlookup.h",
      {
          vcl::ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Property<&T::Beep, &T::SetBeep>("Beep").Default(false),
          Inherit("BorderStyle"),
          Inherit("CharCase"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("HideSelection"),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Text"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Event<&T::OnNotFound>("OnNotFound"),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELDBIndexLookup::TQELDBIndexLookup(vcl::TComponent* owner)
    : TCustomEdit(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  HearOnlyAsked<TQELDBIndexLookup>();
}

TQELDBIndexLookup::~TQELDBIndexLookup() { AnnounceEnd(); }

void TQELDBIndexLookup::SetDataSource(vcl::TDataSource* source) {
  FLink.SetDataSource(source);
  if (source) source->FreeNotification(this);
}

void TQELDBIndexLookup::SetTextBuf(const char* text) {
  const vcl::TSetFor byCode(FByCode, true, this);
  TCustomEdit::SetTextBuf(text);
}

void TQELDBIndexLookup::Change() {
  const vcl::TWatch watch(this);
  TCustomEdit::Change();
  if (watch.Gone() || FByCode || Designing()) return;
  const std::string text = Text();
  if (text.empty() || Find(text) || watch.Gone()) return;
  if (FBeep) ::MessageBeep(MB_OK);
  OnNotFound(this);
}

bool TQELDBIndexLookup::Find(const std::string& text) {
  vcl::TDataSet* const data = FLink.Active() ? FLink.DataSet() : nullptr;
  const vcl::TField* const field = data ? data->FindField(FDataField) : nullptr;
  if (!field || data->IsUniDirectional()) return false;
  if (!IsText(*field)) return FindShown(text);
  return data->Locate(FDataField, {text}, {vcl::loCaseInsensitive, vcl::loPartialKey});
}

/// Other values are no texts, and are ordered otherwise than what they are shown as.
bool TQELDBIndexLookup::FindShown(const std::string& text) {
  const vcl::TField* const field = FLink.DataSet()->FindField(FDataField);
  bool there = true;
  for (int row = 0; there; ++row) {
    bool found = false;
    there = false;
    FLink.WithRecord(row, [&] {
      there = true;
      found = !field->IsNull() && Begins(field->DisplayText(), text);
    });
    if (!found) continue;
    FLink.DataSet()->SetRecNo(row + 1);
    return true;
  }
  return false;
}

}  // namespace qel
