// TInspectorGrid: mouse and keyboard.
#include <algorithm>
#include <cstdlib>

#include "ide/inspectorgrid.h"
#include "ide/inspectorlayout.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/stdctrls/popuplist.h"

namespace ide {

using vcl::TShiftState;

// The mouse.

void TInspectorGrid::MouseDown(vcl::TMouseButton button, TShiftState shift, int x, int y) {
  TCustomControl::MouseDown(button, shift, x, y);
  if (button == vcl::mbLeft && std::abs(x - Splitter()) <= ScaledPixels(layout::SplitterReach)) {
    FDragsSplitter = true;
    return;
  }
  const int row = RowAt(y);
  const bool wasDown = FList->DroppedDown() && row == FSelected;
  if (row < 0 || !SelectRow(row)) return;
  if (button != vcl::mbLeft) return;
  if (Row(FSelected).Expandable && SignRect(Row(FSelected), RowRect(FSelected)).Contains({x, y})) {
    return SetExpanded(FSelected, !Row(FSelected).Expanded);
  }
  FocusEdit();
  if (ButtonKind() != bkNone && ButtonRect().Contains({x, y})) {
    if (!wasDown) PressButton();
  } else if (x > Splitter()) {
    // The second press of a double click comes to the edit, which now lies under the mouse.
    FPressTime = static_cast<DWORD>(::GetMessageTime());
  }
}

void TInspectorGrid::MouseMove(TShiftState shift, int x, int y) {
  TCustomControl::MouseMove(shift, x, y);
  const bool near =
      FDragsSplitter || std::abs(x - Splitter()) <= ScaledPixels(layout::SplitterReach);
  SetCursor(near ? vcl::crHSplit : vcl::crDefault);
  if (!FDragsSplitter) return;
  SetSplitter(x);
  OnSplitter(this);
}

void TInspectorGrid::MouseUp(vcl::TMouseButton button, TShiftState shift, int x, int y) {
  TCustomControl::MouseUp(button, shift, x, y);
  FDragsSplitter = false;
}

// A double click on a name unfolds the property or folds it.
void TInspectorGrid::DblClick() {
  TCustomControl::DblClick();
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const vcl::TPoint at = ScreenToClient(mouse);
  const int row = RowAt(at.Y);
  if (row >= 0 && at.X < Splitter() - ScaledPixels(layout::SplitterReach))
    SetExpanded(row, !Row(row).Expanded);
}

void TInspectorGrid::EditMouseDown(vcl::TObject* /*sender*/, vcl::TMouseButton button,
                                   TShiftState shift, int /*x*/, int /*y*/) {
  const DWORD since = static_cast<DWORD>(::GetMessageTime()) - FPressTime;
  const bool second = FPressTime != 0 && since <= ::GetDoubleClickTime();
  FPressTime = 0;
  if (button != vcl::mbLeft || !(second || shift.Has(vcl::ssDouble))) return;
  ::ReleaseCapture();
  ::PostMessageW(Handle(), layout::MessageEditValue, 0, 0);
}

// The keyboard, while it is at the value.

void TInspectorGrid::EditKeyDown(vcl::TObject* /*sender*/, std::uint16_t& key, TShiftState shift) {
  if (FList->TakeKey(key) || MoveKey(key, shift) || ValueKey(key, shift)) key = 0;
}

// What has been handled as a key makes no sound and no text as a character.
void TInspectorGrid::EditKeyPress(vcl::TObject* /*sender*/, char32_t& key) {
  if (key == U'\r' || key == U'\n' || key == U'\t' || key == VK_ESCAPE) key = 0;
  FCompletes = key >= U' ';
}

bool TInspectorGrid::ValueKey(std::uint16_t key, TShiftState shift) {
  switch (key) {
    case VK_F4: return DropDown(), true;
    case VK_DOWN:
      if (shift.Has(vcl::ssAlt)) DropDown();
      return shift.Has(vcl::ssAlt);
    case VK_RETURN:
      shift.Has(vcl::ssCtrl) ? EditValue() : void(Apply());
      return FEdit->SelectAll(), true;
    case VK_ESCAPE: return TakeBack(), FEdit->SelectAll(), true;
    case VK_TAB: return SetFocus(), true;
    default: return false;
  }
}

bool TInspectorGrid::MoveKey(std::uint16_t key, TShiftState shift) {
  if (shift.Has(vcl::ssAlt)) return false;
  int row = FSelected;
  switch (key) {
    case VK_UP: row -= 1; break;
    case VK_DOWN: row += 1; break;
    case VK_PRIOR: row -= VisibleRows(); break;
    case VK_NEXT: row += VisibleRows(); break;
    case VK_HOME: row = 0; break;
    case VK_END: row = RowCount() - 1; break;
    default: return false;
  }
  // In a text these two go to its ends.
  if ((key == VK_HOME || key == VK_END) && FEdit->Focused() && !shift.Has(vcl::ssCtrl))
    return false;
  FSearch.clear();
  if (RowCount() == 0) return true;
  SelectRow(std::clamp(row, 0, RowCount() - 1));
  FEdit->SelectAll();
  return true;
}

// The keyboard, while it is at the names.

void TInspectorGrid::KeyDown(std::uint16_t& key, TShiftState shift) {
  TCustomControl::KeyDown(key, shift);
  if (FList->TakeKey(key) || FoldKey(key) || MoveKey(key, shift)) return;
  if (key == VK_TAB || (key == VK_RETURN && !shift.Has(vcl::ssCtrl))) return FocusEdit();
  ValueKey(key, shift);
}

bool TInspectorGrid::FoldKey(std::uint16_t key) {
  const bool open = key == VK_RIGHT || key == VK_ADD;
  if (FSelected < 0 || !(open || key == VK_LEFT || key == VK_SUBTRACT)) return false;
  SetExpanded(FSelected, open);
  return true;
}

void TInspectorGrid::KeyPress(char32_t& key) {
  TCustomControl::KeyPress(key);
  if (vcl::IsValidIdent("_" + vcl::Utf8(key))) Search(key);
}

// Letters that follow each other soon make one word.
void TInspectorGrid::Search(char32_t key) {
  constexpr DWORD pause = 1000;  // Milliseconds.
  const DWORD now = ::GetTickCount();
  if (now - FSearchTime > pause) FSearch.clear();
  FSearchTime = now;
  const std::string text = FSearch + vcl::Utf8(key);
  const int row = FRows.Find(text, FSelected);
  if (row < 0) return static_cast<void>(::MessageBeep(0));
  if (SelectRow(row)) FSearch = text;
}

}  // namespace ide
