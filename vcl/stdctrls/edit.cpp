// TCustomEdit: its settings, the selection, the clipboard, and its height.
#include "vcl/stdctrls/edit.h"

#include <algorithm>

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

int Utf16Length(const std::string& text) { return static_cast<int>(ToUtf16(text).size()); }

}  // namespace

const TClass& TCustomEdit::Class() {
  using T = TCustomEdit;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCustomEdit", "vcl/stdctrls/stdctrls.h",
      {
          Property<&T::AutoSelect, &T::SetAutoSelect>("AutoSelect").Default(true).Unpublished(),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(true).Unpublished(),
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle)
              .Unpublished(),
          Property<&T::CharCase, &T::SetCharCase>("CharCase").Default(ecNormal).Unpublished(),
          Property<&T::HideSelection, &T::SetHideSelection>("HideSelection")
              .Default(true)
              .Unpublished(),
          Property<&T::MaxLength, &T::SetMaxLength>("MaxLength").Default(0).Unpublished(),
          Property<&T::PasswordChar, &T::SetPasswordChar>("PasswordChar")
              .Default(U'\0')
              .Unpublished(),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false).Unpublished(),
          Inherit("ParentColor").Default(false).Unpublished(),
          Event<&T::OnChange>("OnChange").Unpublished(),
          Inherit("TabStop").Default(true),
      });
  return info;
}

const TClass& TEdit::Class() {
  static const TClass info = Describe<TEdit, TCustomEdit>(
      "vcl::TEdit", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("AutoSelect"),   Inherit("AutoSize"),      Inherit("BorderStyle"),
          Inherit("CharCase"),     Inherit("Color"),         Inherit("Ctl3D"),
          Inherit("DragCursor"),   Inherit("DragMode"),      Inherit("Enabled"),
          Inherit("Font"),         Inherit("HideSelection"), Inherit("ImeMode"),
          Inherit("ImeName"),      Inherit("MaxLength"),     Inherit("ParentColor"),
          Inherit("ParentCtl3D"),  Inherit("ParentFont"),    Inherit("ParentShowHint"),
          Inherit("PasswordChar"), Inherit("PopupMenu"),     Inherit("ReadOnly"),
          Inherit("ShowHint"),     Inherit("TabOrder"),      Inherit("TabStop"),
          Inherit("Text"),         Inherit("Visible"),       Inherit("OnChange"),
          Inherit("OnClick"),      Inherit("OnDblClick"),    Inherit(DragEvents),
          Inherit(FocusEvents),    Inherit(KeyEvents),       Inherit(MouseEvents),
          Inherit(WheelEvents),    Inherit("OnStartDrag"),
      });
  return info;
}

TCustomEdit::TCustomEdit(TComponent* owner) : TWinControl(owner) {
  SetControlStyle({csClickEvents, csSetCaption, csDoubleClicks, csFixedHeight});
  SetBounds(0, 0, 121, 21);
  SetTabStop(true);
  SetParentColor(false);
}

void TCustomEdit::SetAutoSize(bool autoSize) {
  if (autoSize == FAutoSize) return;
  FAutoSize = autoSize;
  AdjustHeight();
}

void TCustomEdit::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  AdjustHeight();
  RecreateWnd();
}

void TCustomEdit::SetCharCase(TEditCharCase charCase) {
  if (charCase == FCharCase) return;
  FCharCase = charCase;
  RecreateWnd();
}

void TCustomEdit::SetHideSelection(bool hide) {
  if (hide == FHideSelection) return;
  FHideSelection = hide;
  RecreateWnd();
}

void TCustomEdit::SetMaxLength(int maxLength) {
  if (maxLength < 0) {
    throw EArgumentOutOfRangeException(
        Concat(std::to_string(maxLength), " is no length of a text"));
  }
  FMaxLength = maxLength;
  SendIfAllocated(*this, EM_LIMITTEXT, static_cast<WPARAM>(maxLength));
}

void TCustomEdit::SetPasswordChar(char32_t character) {
  if (character > 0xFFFF) {
    throw EArgumentOutOfRangeException(
        "A password cannot be shown as a character beyond the basic plane");
  }
  if (character == FPasswordChar) return;
  FPasswordChar = character;
  SendIfAllocated(*this, EM_SETPASSWORDCHAR, character);
  Invalidate();
}

void TCustomEdit::SetReadOnly(bool readOnly) {
  FReadOnly = readOnly;
  SendIfAllocated(*this, EM_SETREADONLY, readOnly);
}

bool TCustomEdit::Modified() const {
  return HandleAllocated() ? Send(*this, EM_GETMODIFY) != 0 : FModified;
}

void TCustomEdit::SetModified(bool modified) {
  FModified = modified;
  SendIfAllocated(*this, EM_SETMODIFY, modified);
}

TCustomEdit::TRange TCustomEdit::Selection() const {
  if (!HandleAllocated()) {
    const int end = Utf16Length(Text());
    return {std::min(FSelection.Start, end), std::min(FSelection.End, end)};
  }
  DWORD start = 0;
  DWORD end = 0;
  Send(*this, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end)};
}

void TCustomEdit::Select(TRange range) {
  FSelection = {std::max(range.Start, 0), std::max({range.Start, range.End, 0})};
  if (!HandleAllocated()) return;
  Send(*this, EM_SETSEL, static_cast<WPARAM>(FSelection.Start), FSelection.End);
  Send(*this, EM_SCROLLCARET);
}

int TCustomEdit::SelStart() const { return Selection().Start; }
void TCustomEdit::SetSelStart(int start) { Select({start, start}); }

int TCustomEdit::SelLength() const {
  const TRange range = Selection();
  return range.End - range.Start;
}

void TCustomEdit::SetSelLength(int length) {
  const int start = SelStart();
  const int most = Utf16Length(Text()) - start;
  Select({start, start + std::clamp(length, 0, most)});
}

std::string TCustomEdit::SelText() const {
  const std::wstring text = ToUtf16(Text());
  const TRange range = Selection();
  return ToUtf8(text.substr(static_cast<std::size_t>(range.Start),
                            static_cast<std::size_t>(range.End - range.Start)));
}

void TCustomEdit::SetSelText(const std::string& text) {
  const std::wstring wide = ToUtf16(text);
  if (HandleAllocated()) {
    Send(*this, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(wide.c_str()));
    return;
  }
  const TRange range = Selection();
  std::wstring whole = ToUtf16(Text());
  whole.replace(static_cast<std::size_t>(range.Start),
                static_cast<std::size_t>(range.End - range.Start), wide);
  SetText(ToUtf8(whole));
  SetSelStart(range.Start + static_cast<int>(wide.size()));
}

void TCustomEdit::SelectAll() { Select({0, Utf16Length(Text())}); }
void TCustomEdit::ClearSelection() { SetSelText({}); }
void TCustomEdit::DeleteSelection() { Send(*this, WM_CLEAR); }
void TCustomEdit::CopyToClipboard() { Send(*this, WM_COPY); }
void TCustomEdit::CutToClipboard() { Send(*this, WM_CUT); }
void TCustomEdit::PasteFromClipboard() { Send(*this, WM_PASTE); }
bool TCustomEdit::CanUndo() const { return HandleAllocated() && Send(*this, EM_CANUNDO) != 0; }
void TCustomEdit::Undo() { SendIfAllocated(*this, EM_UNDO); }
void TCustomEdit::ClearUndo() { SendIfAllocated(*this, EM_EMPTYUNDOBUFFER); }

void TCustomEdit::Change() {
  AccessibleChanged(acValue);
  OnChange(this);
}

void TCustomEdit::CreateParams(TCreateParams& params) {
  static constexpr DWORD cases[] = {0, ES_UPPERCASE, ES_LOWERCASE};
  TWinControl::CreateParams(params);
  params.SubClassOf = "EDIT";
  params.Style |= ES_AUTOHSCROLL | ES_AUTOVSCROLL | cases[FCharCase];
  if (FReadOnly) params.Style |= ES_READONLY;
  if (!FHideSelection) params.Style |= ES_NOHIDESEL;
  if (FPasswordChar) params.Style |= ES_PASSWORD;
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
}

void TCustomEdit::CreateWnd() {
  const TRange selection = Selection();
  const bool modified = FModified;
  TWinControl::CreateWnd();
  Send(*this, EM_LIMITTEXT, static_cast<WPARAM>(FMaxLength));
  if (FPasswordChar) Send(*this, EM_SETPASSWORDCHAR, FPasswordChar);
  Send(*this, EM_SETSEL, static_cast<WPARAM>(selection.Start), selection.End);
  Send(*this, EM_SETMODIFY, modified);
}

void TCustomEdit::DestroyWnd() {
  FSelection = Selection();
  FModified = Modified();
  TWinControl::DestroyWnd();
}

void TCustomEdit::AdjustHeight() {
  // Edge and inner margin take four pixels at each side, a plain line one less.
  const int frame = Ctl3D() ? 8 : 6;
  const bool fits = FAutoSize && FBorderStyle == bsSingle;
  const TControlStyle fixed{csFixedHeight};
  SetControlStyle(fits ? ControlStyle() + fixed : ControlStyle() - fixed);
  if (fits && !Loading()) SetHeight(FontHeight(*Font()) + frame);
}

void TCustomEdit::CommandFromWindow(TMessage& message) {
  if (HIWORD(message.WParam) == EN_CHANGE) Change();
}

void TCustomEdit::Entered() {
  // A click puts the caret where it is instead.
  if (FAutoSelect && !MultiLine() && !ControlState().Has(csLButtonDown)) SelectAll();
}

void TCustomEdit::Dispatch(TMessage& message) {
  if (message.Msg == CN_COMMAND) return CommandFromWindow(message);
  TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_ENTER) Entered();
  if (message.Msg == CM_FONTCHANGED || message.Msg == CM_CTL3DCHANGED) AdjustHeight();
  // The window itself tells of a new text only when it has but one line.
  if (message.Msg == CM_TEXTCHANGED && (!HandleAllocated() || MultiLine())) Change();
}

void TCustomEdit::Loaded() {
  TWinControl::Loaded();
  AdjustHeight();
}

void TCustomEdit::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arText;
  info.Value = Text();
  if (FReadOnly) info.State.Include(asReadOnly);
  if (FPasswordChar) info.State.Include(asProtected);
}

}  // namespace vcl
