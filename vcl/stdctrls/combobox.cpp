// TCustomComboBox: its list, its text and selection, and the edit inside it.
#include "vcl/stdctrls/combobox.h"

#include <algorithm>
#include <cstring>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/controls/windowtext.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/private/listlines.h"

namespace vcl {

const TClass& TCustomComboBox::Class() {
  using T = TCustomComboBox;
  static const TClass info = Describe<T, TCustomListControl>(
      "vcl::TCustomComboBox", "vcl/stdctrls/stdctrls.h",
      {
          Property<&T::Style, &T::SetStyle>("Style").Default(csDropDown).Unpublished(),
          Property<&T::DropDownCount, &T::SetDropDownCount>("DropDownCount")
              .Default(8)
              .Unpublished(),
          Property<&T::MaxLength, &T::SetMaxLength>("MaxLength").Default(0).Unpublished(),
          Event<&T::OnChange>("OnChange").Unpublished(),
          Event<&T::OnCloseUp>("OnCloseUp").Unpublished(),
          Event<&T::OnDropDown>("OnDropDown").Unpublished(),
      });
  return info;
}

const TClass& TComboBox::Class() {
  static const TClass info = Describe<TComboBox, TCustomComboBox>(
      "vcl::TComboBox", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Style"),          Inherit("Color"),       Inherit("Ctl3D"),
          Inherit("DragCursor"),     Inherit("DragMode"),    Inherit("DropDownCount"),
          Inherit("Enabled"),        Inherit("Font"),        Inherit("ImeMode"),
          Inherit("ImeName"),        Inherit("ItemHeight"),  Inherit("MaxLength"),
          Inherit("ParentColor"),    Inherit("ParentCtl3D"), Inherit("ParentFont"),
          Inherit("ParentShowHint"), Inherit("PopupMenu"),   Inherit("ShowHint"),
          Inherit("Sorted"),         Inherit("TabOrder"),    Inherit("TabStop"),
          Inherit("Text"),           Inherit("Visible"),     Inherit("OnChange"),
          Inherit("OnClick"),        Inherit("OnCloseUp"),   Inherit("OnDblClick"),
          Inherit("OnDragDrop"),     Inherit("OnDragOver"),  Inherit("OnDrawItem"),
          Inherit("OnDropDown"),     Inherit("OnEndDrag"),   Inherit(FocusEvents),
          Inherit(KeyEvents),        Inherit(WheelEvents),   Inherit("OnMeasureItem"),
          Inherit("OnStartDrag"),    Inherit("Items"),       Inherit("ItemIndex"),
      });
  return info;
}

TCustomComboBox::TCustomComboBox(TComponent* owner) : TCustomListControl(owner, ComboBoxMessages) {
  SetControlStyle({csSetCaption, csDoubleClicks, csFixedHeight});
  SetBounds(0, 0, 145, 21);
}

TCustomComboBox::~TCustomComboBox() = default;

void TCustomComboBox::SetStyle(TComboBoxStyle style) {
  if (style == FStyle) return;
  const std::string text = Text();
  const bool shown = HandleAllocated();
  if (shown) DestroyHandle();
  FStyle = style;
  SetText(text);
  if (shown) UpdateControlState();
}

void TCustomComboBox::SetDropDownCount(int count) {
  if (count < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A list cannot drop down with ", std::to_string(count), " items"));
  }
  FDropDownCount = count;
  SendIfAllocated(*this, CB_SETMINVISIBLE, static_cast<WPARAM>(count));
}

void TCustomComboBox::SetMaxLength(int maxLength) {
  if (maxLength < 0) {
    throw EArgumentOutOfRangeException(
        Concat(std::to_string(maxLength), " is no length of a text"));
  }
  FMaxLength = maxLength;
  SendIfAllocated(*this, CB_LIMITTEXT, static_cast<WPARAM>(maxLength));
}

bool TCustomComboBox::DroppedDown() const {
  return HandleAllocated() && Send(*this, CB_GETDROPPEDSTATE) != 0;
}

void TCustomComboBox::SetDroppedDown(bool down) { Send(*this, CB_SHOWDROPDOWN, down); }

void TCustomComboBox::SetItemIndex(int index) {
  TCustomListControl::SetItemIndex(index);
  // A window shows the item in its edit by itself.
  if (!HandleAllocated() && HasEdit()) SetText(ItemText());
}

void TCustomComboBox::Clear() {
  TCustomListControl::Clear();
  SetText({});
}

int TCustomComboBox::SelStart() const {
  DWORD start = 0;
  if (FEdit) ::SendMessageW(FEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
  return static_cast<int>(start);
}

int TCustomComboBox::SelLength() const {
  DWORD start = 0;
  DWORD end = 0;
  if (FEdit) {
    ::SendMessageW(FEdit, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                   reinterpret_cast<LPARAM>(&end));
  }
  return static_cast<int>(end - start);
}

void TCustomComboBox::Select(int start, int length) {
  if (FEdit) ::SendMessageW(FEdit, EM_SETSEL, static_cast<WPARAM>(start), start + length);
}

void TCustomComboBox::SelectAll() {
  if (FEdit) ::SendMessageW(FEdit, EM_SETSEL, 0, -1);
}

bool TCustomComboBox::Editing() const { return FEdit && ::GetFocus() == FEdit; }

void TCustomComboBox::DeleteSelection() { TellEdit(WM_CLEAR); }
void TCustomComboBox::CopyToClipboard() { TellEdit(WM_COPY); }
void TCustomComboBox::CutToClipboard() { TellEdit(WM_CUT); }
void TCustomComboBox::PasteFromClipboard() { TellEdit(WM_PASTE); }
bool TCustomComboBox::CanUndo() const {
  return FEdit && ::SendMessageW(FEdit, EM_CANUNDO, 0, 0) != 0;
}
void TCustomComboBox::Undo() { TellEdit(EM_UNDO); }

void TCustomComboBox::TellEdit(unsigned message) {
  if (FEdit) ::SendMessageW(FEdit, message, 0, 0);
}

bool TCustomComboBox::Focused() const { return TCustomListControl::Focused() || Editing(); }

std::string TCustomComboBox::ItemText() const {
  const int index = ItemIndex();
  return index < 0 ? std::string() : Items()->Strings(index);
}

int TCustomComboBox::GetTextLen() const {
  return HasEdit() ? TCustomListControl::GetTextLen() : static_cast<int>(ItemText().size());
}

int TCustomComboBox::GetTextBuf(char* buffer, int size) const {
  if (HasEdit()) return TCustomListControl::GetTextBuf(buffer, size);
  if (size < 1) return 0;
  const std::string text = ItemText();
  const int count = std::min(size - 1, static_cast<int>(text.size()));
  std::memcpy(buffer, text.data(), static_cast<std::size_t>(count));
  buffer[count] = '\0';
  return count;
}

void TCustomComboBox::SetTextBuf(const char* text) {
  if (!HasEdit()) {
    const int index = Items()->IndexOf(text);
    if (index < 0 && Loading()) FLoadedText = text;
    return TCustomListControl::SetItemIndex(index);
  }
  // What is not the selected item's text is the user's own.
  if (!HandleAllocated() && ItemText() != text) List().SelectOnly(-1);
  TCustomListControl::SetTextBuf(text);
}

void TCustomComboBox::Loaded() {
  TCustomListControl::Loaded();
  if (!FLoadedText.empty() && ItemIndex() < 0) SetText(FLoadedText);
  FLoadedText.clear();
}

void TCustomComboBox::CreateParams(TCreateParams& params) {
  static constexpr DWORD styles[] = {CBS_DROPDOWN, CBS_SIMPLE, CBS_DROPDOWNLIST,
                                     CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED,
                                     CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE};
  TCustomListControl::CreateParams(params);
  params.SubClassOf = "COMBOBOX";
  params.Style |= WS_VSCROLL | CBS_HASSTRINGS | CBS_AUTOHSCROLL | styles[FStyle];
}

void TCustomComboBox::CreateWnd() {
  const std::string text = Text();
  const TWatch watch(this);
  TCustomListControl::CreateWnd();
  if (watch.Gone()) return;
  Send(*this, CB_SETMINVISIBLE, static_cast<WPARAM>(FDropDownCount));
  if (FMaxLength > 0) Send(*this, CB_LIMITTEXT, static_cast<WPARAM>(FMaxLength));
  FitField();
  if (!HasEdit()) return;
  SetWindowTextUtf8(Handle(), text);
  SubclassEdit();
}

void TCustomComboBox::DestroyWnd() {
  TCustomListControl::DestroyWnd();
  FEdit = nullptr;
}

/// What draws its items is as high as they are; the window fits its field to each font.
void TCustomComboBox::FitField() {
  if (!OwnerDraw()) return;
  SendIfAllocated(*this, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), ItemHeight());
}

/// The keyboard's messages go to the edit inside; they are to go through the control first.
void TCustomComboBox::SubclassEdit() {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  if (!::GetComboBoxInfo(Handle(), &info)) return;
  FEdit = info.hwndItem;
  ::SetWindowSubclass(FEdit, &TCustomComboBox::EditProc, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK TCustomComboBox::EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR, DWORD_PTR self) {
  const bool key = message >= WM_KEYFIRST && message <= WM_KEYLAST;
  if (message == WM_NCDESTROY) ::RemoveWindowSubclass(window, &TCustomComboBox::EditProc, 0);
  if (!key && message != WM_SETFOCUS && message != WM_CONTEXTMENU) {
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
  auto* combo = reinterpret_cast<TCustomComboBox*>(self);
  TMessage record{message, wParam, lParam, 0};
  TWatch watch(combo);
  try {
    combo->FEditMessage = &record;
    combo->WndProc(record);
  } catch (...) {
    Application()->HandleCurrentException(watch.Gone() ? nullptr : combo);
  }
  if (!watch.Gone()) combo->FEditMessage = nullptr;
  return record.Result;
}

void TCustomComboBox::DefaultHandler(TMessage& message) {
  if (&message != FEditMessage) return TCustomListControl::DefaultHandler(message);
  message.Result = ::DefSubclassProc(FEdit, message.Msg, message.WParam, message.LParam);
}

void TCustomComboBox::Change() {
  AccessibleChanged(acValue);
  OnChange(this);
}
void TCustomComboBox::DropDown() { OnDropDown(this); }
void TCustomComboBox::CloseUp() { OnCloseUp(this); }

void TCustomComboBox::ItemChosen() {
  // The edit still shows the former text.
  if (HasEdit()) SetText(ItemText());
  TWatch watch(this);
  Click();
  if (!watch.Gone()) Change();
}

void TCustomComboBox::CommandFromWindow(TMessage& message) {
  switch (HIWORD(message.WParam)) {
    case CBN_DBLCLK: return DblClick();
    case CBN_EDITCHANGE: return Change();
    case CBN_SELCHANGE: return ItemChosen();
    case CBN_CLOSEUP: return CloseUp();
    case CBN_DROPDOWN: return DropDown();
    default: return;
  }
}

void TCustomComboBox::Dispatch(TMessage& message) {
  if (message.Msg == CN_COMMAND) return CommandFromWindow(message);
  const bool closes = message.WParam == VK_RETURN || message.WParam == VK_ESCAPE;
  if (message.Msg == CM_WANTSPECIALKEY && closes && DroppedDown()) {
    message.Result = 1;
    return;
  }
  const TWatch watch(this);
  TCustomListControl::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_FONTCHANGED) FitField();
}

void TCustomComboBox::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomListControl::DescribeAccessible(info);
  info.Role = arComboBox;
  info.Value = Text();
  info.SystemItems = true;
  if (FStyle == csSimple) return;
  const bool down = DroppedDown();
  info.State.Include(down ? asExpanded : asCollapsed);
  info.DefaultAction = down ? "Close" : "Open";
}

}  // namespace vcl
