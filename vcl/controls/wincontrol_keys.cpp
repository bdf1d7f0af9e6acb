// TWinControl: focus, tab order and the keyboard.
#include <algorithm>
#include <functional>

#include "vcl/actions/actionlist.h"
#include "vcl/controls/private/ime.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// Focus.

bool TWinControl::Focused() const { return FHandle && ::GetFocus() == FHandle; }

bool TWinControl::CanFocus() const {
  const TCustomForm* form = ParentForm();
  for (const TControl* each = this; each; each = each->Parent()) {
    if (!each->Visible() || !each->FEnabled) return false;
    if (each == form) return true;
  }
  return form != nullptr;
}

void TWinControl::SetFocus() {
  if (!CanFocus()) {
    throw EInvalidOperation(
        Concat("Cannot focus a disabled or invisible window: ", Name(), ": ", ClassName()));
  }
  TCustomForm* form = ParentForm();
  if (form && form != this) {
    form->FocusControl(this);
  } else {
    ::SetFocus(Handle());
  }
}

void TWinControl::DoEnter() { OnEnter(this); }
void TWinControl::DoExit() { OnExit(this); }

// Tab order.

int TWinControl::PlaceInTabList() const {
  const auto& list = Parent()->FTabList;
  return static_cast<int>(std::ranges::find(list, this) - list.begin());
}

int TWinControl::TabOrder() const { return Parent() ? PlaceInTabList() : -1; }

void TWinControl::SetTabOrder(int tabOrder) {
  FTabOrder = tabOrder;
  // While the parent is read, its other controls are not there yet; it puts all in order at its
  // end.
  if (Parent() && !Parent()->ControlState().Has(csReadingState)) MoveInTabList(tabOrder);
}

void TWinControl::MoveInTabList(int place) {
  auto& list = Parent()->FTabList;
  const int last = static_cast<int>(list.size()) - 1;
  std::erase(list, this);
  list.insert(list.begin() + (place < 0 ? last : std::min(place, last)), this);
}

/// Each control comes to the place that the file gives it; those without one, such as status bars,
/// fill what is left between them.
void TWinControl::FixupTabList() {
  const auto placed = [](const TWinControl* control) { return control->FTabOrder >= 0; };
  std::vector<TWinControl*> others = FTabList;
  std::erase_if(others, placed);
  std::erase_if(FTabList, std::not_fn(placed));
  std::ranges::stable_sort(FTabList, {}, &TWinControl::FTabOrder);
  std::size_t gap = 0;
  for (TWinControl* each : others) {
    while (gap < FTabList.size() && FTabList[gap]->FTabOrder <= static_cast<int>(gap)) ++gap;
    FTabList.insert(FTabList.begin() + static_cast<std::ptrdiff_t>(gap), each);
  }
}

void TWinControl::SetTabStop(bool tabStop) {
  if (tabStop == FTabStop) return;
  FTabStop = tabStop;
  if (!FHandle) return;
  const LONG style = ::GetWindowLongW(FHandle, GWL_STYLE);
  ::SetWindowLongW(FHandle, GWL_STYLE, tabStop ? style | WS_TABSTOP : style & ~WS_TABSTOP);
}

void TWinControl::GetTabOrderList(std::vector<TWinControl*>& list) const {
  for (TWinControl* control : FTabList) {
    list.push_back(control);
    control->GetTabOrderList(list);
  }
}

TWinControl* TWinControl::FindNextControl(TWinControl* current, bool goForward, bool checkTabStop,
                                          bool checkParent) const {
  std::vector<TWinControl*> list;
  GetTabOrderList(list);
  if (list.empty()) return nullptr;
  if (!goForward) std::ranges::reverse(list);
  // Round the list, starting behind the current one; without one, at its beginning.
  const auto start = std::ranges::find(list, current);
  if (start != list.end()) std::rotate(list.begin(), start + 1, list.end());
  for (TWinControl* each : list) {
    if (each->CanFocus() && (!checkTabStop || each->TabStop()) &&
        (!checkParent || each->Parent() == this)) {
      return each;
    }
  }
  return nullptr;
}

void TWinControl::SelectNext(TWinControl* current, bool goForward, bool checkTabStop) {
  TWinControl* next = FindNextControl(current, goForward, checkTabStop, !checkTabStop);
  if (next) next->SetFocus();
}

// Input methods.

void TWinControl::SetImeMode(TImeMode mode) {
  if (mode == FImeMode) return;
  if (FImeMode == imDisable && FHandle) EnableIme(FHandle);
  FImeMode = mode;
  if (Focused()) ApplyImeMode(FHandle, mode);
}

void TWinControl::SetImeName(const std::string& name) {
  if (name == FImeName) return;
  FImeName = name;
  if (!Focused()) return;
  LeaveIme();
  EnterIme(name);
}

void TWinControl::WMFocus(TMessage& message) {
  TCustomForm* form = ParentForm();
  TWatch watch(this);
  if (message.Msg == WM_SETFOCUS && form) form->SetFocusedControl(this);
  if (watch.Gone()) return;
  DefaultHandler(message);
  if (watch.Gone()) return;
  if (message.Msg == WM_KILLFOCUS) return LeaveIme();
  // A handler may have moved the focus on.
  if (!Focused()) return;
  EnterIme(FImeName);
  ApplyImeMode(FHandle, FImeMode);
}

// Keys.

void TWinControl::KeyDown(std::uint16_t& key, TShiftState shift) { OnKeyDown(this, key, shift); }
void TWinControl::KeyUp(std::uint16_t& key, TShiftState shift) { OnKeyUp(this, key, shift); }
void TWinControl::KeyPress(char32_t& key) { OnKeyPress(this, key); }

void TWinControl::DispatchKey(TMessage& message) {
  TWatch watch(this);
  TCustomForm* form = ParentForm();
  const auto handle = [&](TWinControl* control) {
    return message.Msg == WM_CHAR ? control->HandleChar(message) : control->HandleKey(message);
  };
  if (form && form != this && form->KeyPreview() && handle(form)) return;
  if (watch.Gone() || handle(this) || watch.Gone()) return;
  DefaultHandler(message);
}

bool TWinControl::HandleKey(TMessage& message) {
  const bool down = message.Msg == WM_KEYDOWN || message.Msg == WM_SYSKEYDOWN;
  auto key = static_cast<std::uint16_t>(message.WParam);
  const TShiftState shift = KeyDataToShiftState(message.LParam);
  down ? KeyDown(key, shift) : KeyUp(key, shift);
  message.WParam = key;
  return key == 0;
}

bool TWinControl::HandleChar(TMessage& message) {
  const auto unit = static_cast<wchar_t>(message.WParam);
  if (IS_HIGH_SURROGATE(unit)) {
    FHighSurrogate = unit;
    return false;
  }
  char32_t key = unit;
  if (IS_LOW_SURROGATE(unit)) {
    key = 0x10000 + (static_cast<char32_t>(FHighSurrogate - 0xD800) << 10) + (unit - 0xDC00);
  }
  const char32_t pressed = key;
  KeyPress(key);
  // A character beyond 16 bits can be taken away but not be replaced: its first half has gone.
  if (key != pressed && pressed < 0x10000) message.WParam = key;
  return key == 0;
}

namespace {

/// The form's action lists; true also when the form has gone.
bool OfferToActions(TCustomForm& form, const MSG& key) {
  const TWatch watch(&form);
  for (int i = 0; i < form.ComponentCount(); ++i) {
    auto* list = dynamic_cast<TActionList*>(form.Components(i));
    if ((list && list->IsShortCut(key)) || watch.Gone()) return true;
  }
  return false;
}

}  // namespace

bool TWinControl::PreprocessKey(MSG& message) {
  if (Designing()) return false;
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: break;
    case WM_CHAR:
    case WM_SYSCHAR: return OfferChar(message);
    default: return false;
  }
  for (TControl* each = this; each; each = each->Parent()) {
    if (each->PopupMenu() && each->PopupMenu()->IsShortCut(message)) return true;
  }
  TWatch watch(this);
  TCustomForm* form = ParentForm();
  if (form && form->Menu() && form->Menu()->IsShortCut(message)) return true;
  if (watch.Gone() || (form && OfferToActions(*form, message)) || watch.Gone()) return true;
  for (TControl* each = Parent(); each; each = watch.Gone() ? nullptr : each->Parent()) {
    if (each->Perform(CM_CHILDKEY, message.wParam, reinterpret_cast<LPARAM>(this))) return true;
  }
  return !watch.Gone() && OfferSpecialKey(message.wParam, message.lParam);
}

bool TWinControl::OfferSpecialKey(WPARAM key, LPARAM data) {
  UINT wanted = 0;
  switch (key) {
    case VK_TAB: wanted = DLGC_WANTTAB; break;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: wanted = DLGC_WANTARROWS; break;
    case VK_RETURN:
    case VK_EXECUTE:
    case VK_ESCAPE:
    case VK_CANCEL: wanted = DLGC_WANTALLKEYS; break;
    default: return false;
  }
  if (Perform(CM_WANTSPECIALKEY, key)) return false;
  // Each key by its own flag: a memo takes Enter (DLGC_WANTALLKEYS) and still leaves Tab to the
  // form.
  if (Perform(WM_GETDLGCODE) & wanted) return false;
  TCustomForm* form = ParentForm();
  return form && form->Perform(CM_DIALOGKEY, key, data) != 0;
}

bool TWinControl::OfferChar(const MSG& message) {
  const bool plain = message.message == WM_CHAR;
  if (plain && (Perform(WM_GETDLGCODE) & (DLGC_WANTCHARS | DLGC_WANTALLKEYS))) return false;
  TCustomForm* form = ParentForm();
  return form && form->Perform(CM_DIALOGCHAR, message.wParam, message.lParam) != 0;
}

}  // namespace vcl
