// TCustomGrid: the edit over the current cell, its button and its list of values.
#include <algorithm>

#include "vcl/forms/forms.h"
#include "vcl/grids/customgrid.h"
#include "vcl/grids/gridlook.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/stdctrls/popuplist.h"

namespace vcl {

bool TCustomGrid::CanModify(int col, int row) {
  return FOptions.Has(goEditing) && col >= FixedCols() && row >= FixedRows();
}

bool TCustomGrid::CanEdit() {
  const bool may = FOptions.Has(goEditing) && !FOptions.Has(goRowSelect) && Enabled();
  return may && !Designing() && HandleAllocated() && HasCells() && CanModify(Col(), Row());
}

void TCustomGrid::SetEditorMode(bool editing) { editing ? ShowEditor() : EndEdit(); }

void TCustomGrid::MakeEditor() {
  if (FEdit) return;
  using T = TCustomGrid;
  FEdit = new TInplaceEdit(this);
  FEdit->SetVisible(false);
  FEdit->SetParent(this);
  FEdit->OnKeyDown = TKeyEvent(this, &T::EditKeyDown);
  FEdit->OnKeyPress = TKeyPressEvent(this, &T::EditKeyPress);
  FEdit->OnLeave = TNotifyEvent(this, &T::EditLeft);
  FList = new TPopupList(this);
  FList->OnClick = TNotifyEvent(this, &T::ListChosen);
}

// Beginning and ending.

void TCustomGrid::ShowEditor() {
  const TWatch watch(this);
  if (FEditing || !CanEdit() || watch.Gone()) return;
  BringIntoView(FCurrent);
  const TEditStyle style = watch.Gone() ? esCheckBox : GetEditStyle(Col(), Row());
  if (style == esCheckBox) return;
  const std::string text = watch.Gone() ? std::string() : GetEditText(Col(), Row());
  const std::string mask = watch.Gone() ? std::string() : GetEditMask(Col(), Row());
  if (watch.Gone()) return;
  MakeEditor();
  FEdit->SetEditMask(mask);
  FEditStyle = style;
  FEditing = true;
  FEdit->SetColor(Color());
  FEdit->SetText(text);
  PlaceEditor();
  FEdit->SetVisible(true);
  InvalidateCell(Col(), Row());
  if (HasFocus()) FEdit->SetFocus();
  if (!watch.Gone() && FEditing) FEdit->SelectAll();
}

void TCustomGrid::CommitEdit() {
  if (!FEditing || !FEdit->Modified()) return;
  FEdit->ValidateEdit();
  const TWatch watch(this);
  SetEditText(Col(), Row(), FEdit->Text());
  if (watch.Gone()) return;
  FEdit->SetModified(false);
  InvalidateCell(Col(), Row());
  const TAccessiblePath cell = PathOf(FCurrent);
  if (!cell.empty()) AccessibleChanged(acValue, cell);
}

void TCustomGrid::HideEditor() {
  if (!FEditing) return;
  const TWatch watch(this);
  const TSetFor hiding(FHiding, true, this);
  FList->CloseUp();
  FEditing = false;
  InvalidateCell(Col(), Row());
  if (FEdit->Focused() && CanFocus()) SetFocus();
  if (!watch.Gone()) FEdit->SetVisible(false);
}

void TCustomGrid::EndEdit() {
  const TWatch watch(this);
  CommitEdit();
  if (!watch.Gone()) HideEditor();
}

void TCustomGrid::CancelEdit() {
  if (!FEditing) return;
  FEdit->Reset();
  FEdit->SetModified(false);
  const TWatch watch(this);
  HideEditor();
  if (!watch.Gone()) UpdateEditor();
}

void TCustomGrid::CancelActions() {
  const TWatch watch(this);
  EndPress(false);
  if (watch.Gone() || !FEditing) return;
  FEdit->Reset();
  FEdit->SetModified(false);
  HideEditor();
}

void TCustomGrid::UpdateEditor() {
  if (!AlwaysEdits() || FHiding || FPress.Kind == TMouse::Selecting) return;
  if (HasFocus()) ShowEditor();
}

void TCustomGrid::DoExit() {
  const TWatch watch(this);
  {
    // What is refused keeps the focus.
    const TOnFailure stay([this] { FEdit->SetFocus(); }, this);
    CommitEdit();
  }
  if (!watch.Gone()) HideEditor();
  if (!watch.Gone()) TCustomControl::DoExit();
}

void TCustomGrid::EditLeft(TObject* /*sender*/) { FList->CloseUp(); }

void TCustomGrid::RefreshEditor() {
  if (!FEditing || FEdit->Modified()) return;
  const TWatch watch(this);
  const std::string text = GetEditText(Col(), Row());
  if (!watch.Gone() && FEditing && text != FEdit->Text()) FEdit->SetText(text);
}

// Where it stands: where the cell's text does. What is scrolled away stays being edited.

void TCustomGrid::PlaceEditor() {
  if (!FEditing) return;
  FList->CloseUp();
  TRect cell = CellRect(Col(), Row());
  if (cell.Empty()) cell.Offset(-Width(), -Height());
  const int margin = ScaledPixels(CellMargin);
  if (HasButton() && !cell.Empty()) cell.Right = ButtonRect().Left;
  cell.Inflate(-margin, -margin);
  cell.Bottom += margin;
  FEdit->SetBounds(cell.Left, cell.Top, std::max(cell.Width(), 0), std::max(cell.Height(), 0));
}

// Its keys.

bool TCustomGrid::LeavesEditor(std::uint16_t key, TShiftState shift) const {
  switch (key) {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT: return true;
    default: break;
  }
  if (!AlwaysEdits() || !shift.Empty()) return false;
  const int length = static_cast<int>(ToUtf16(FEdit->Text()).size());
  const bool all = FEdit->SelLength() == length;
  if (key == VK_LEFT) return all || (FEdit->SelStart() == 0 && FEdit->SelLength() == 0);
  return key == VK_RIGHT && (all || FEdit->SelStart() == length);
}

void TCustomGrid::EditKeyDown(TObject* /*sender*/, std::uint16_t& key, TShiftState shift) {
  const std::uint16_t pressed = key;
  const TWatch watch(this);
  OnKeyDown(this, key, shift);
  if (watch.Gone() || key != pressed) return;
  if (FList->TakeKey(pressed)) {
    key = 0;
    return;
  }
  const bool drops = pressed == VK_F4 || (pressed == VK_DOWN && shift.Has(ssAlt));
  if (!drops && shift.Has(ssAlt)) return;
  const bool ends = pressed == VK_RETURN || pressed == VK_F2;
  const bool moves = LeavesEditor(pressed, shift);
  if (!drops && !ends && !moves && pressed != VK_TAB && pressed != VK_ESCAPE) return;
  key = 0;
  if (drops) return DropDown();
  if (pressed == VK_ESCAPE) return CancelEdit();
  TCustomForm* form = ParentForm();
  if (pressed == VK_TAB && shift.Has(ssCtrl) && form) {
    form->Perform(CM_DIALOGKEY, VK_TAB);
    return;
  }
  if (pressed == VK_TAB) return static_cast<void>(TabKey(shift.Has(ssShift)));
  if (moves) return static_cast<void>(DoKey(pressed, shift));
  EndEdit();
  if (!watch.Gone()) UpdateEditor();
}

// What has been handled as a key makes no sound and no text as a character.
void TCustomGrid::EditKeyPress(TObject* /*sender*/, char32_t& key) {
  const TWatch watch(this);
  OnKeyPress(this, key);
  if (watch.Gone()) return;
  const bool handled = key == U'\r' || key == U'\n' || key == U'\t' || key == VK_ESCAPE;
  if (handled || (key >= U' ' && !CanType(key))) key = 0;
}

// Its button and its list.

void TCustomGrid::PressButton() {
  if (FEditStyle == esEllipsis) return EditButtonClick(Col(), Row());
  FList->DroppedDown() ? FList->CloseUp() : DropDown();
}

void TCustomGrid::DropDown() {
  if (!FEditing || FEditStyle != esPickList) return;
  TStringList items;
  const TWatch watch(this);
  GetPickList(Col(), Row(), items);
  if (watch.Gone() || items.Count() == 0) return;
  std::vector<std::string> values;
  for (int i = 0; i < items.Count(); ++i) values.push_back(items.Strings(i));
  const TRect cell = CellRect(Col(), Row());
  const TPoint from = ClientToScreen(cell.TopLeft());
  const TPoint to = ClientToScreen(cell.BottomRight());
  FList->SetFont(Font());
  FList->DropDown({from.X, from.Y, to.X, to.Y}, values, FEdit->Text());
}

void TCustomGrid::ListChosen(TObject* /*sender*/) {
  const std::string value = FList->Chosen();
  FList->CloseUp();
  if (!FEditing || !CanModify(Col(), Row())) return;
  FEdit->SetText(value);
  FEdit->SetModified(true);
  const TWatch watch(this);
  CommitEdit();
  if (!watch.Gone() && FEditing) FEdit->SelectAll();
}

// Check boxes.

bool TCustomGrid::Toggle() {
  const TWatch watch(this);
  const bool can = CanEdit() && !watch.Gone() && GetEditStyle(Col(), Row()) == esCheckBox;
  if (watch.Gone() || !can) return watch.Gone();
  ToggleChecked(Col(), Row());
  if (watch.Gone()) return true;
  InvalidateCell(Col(), Row());
  return true;
}

}  // namespace vcl
