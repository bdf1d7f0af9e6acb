// TCustomGrid: the keyboard while no cell is being edited, and the clipboard.
#include <algorithm>

#include "vcl/forms/forms.h"
#include "vcl/grids/customgrid.h"
#include "vcl/grids/gridtext.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {
namespace {

constexpr char32_t Delete = 127;  // The character of Ctrl+Backspace.

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

}  // namespace

bool TCustomGrid::WantsKey(WPARAM key) const {
  switch (key) {
    case VK_TAB: return !IsDown(VK_CONTROL) && TabLeads(IsDown(VK_SHIFT));
    case VK_RETURN: return FOptions.Has(goEditing) && !FOptions.Has(goRowSelect) && HasCells();
    case VK_ESCAPE: return FPress.Kind != TMouse::None;
    default: return false;
  }
}

void TCustomGrid::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TCustomControl::KeyDown(key, shift);
  if (!watch.Gone() && key != 0 && DoKey(key, shift)) key = 0;
}

bool TCustomGrid::DoKey(std::uint16_t key, TShiftState shift) {
  if (!HasCells()) return false;
  if (EditKey(key, shift)) return true;
  if (shift.Has(ssAlt)) return false;
  return ClipboardKey(key, shift) || ScrollKey(key, shift.Has(ssCtrl)) || MoveKey(key, shift);
}

void TCustomGrid::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomControl::KeyPress(key);
  const bool types = key >= U' ' && key != Delete;
  if (watch.Gone() || !(types || key == VK_BACK) || !CanEdit() || watch.Gone()) return;
  if (types && (!CanType(key) || watch.Gone())) return;
  ShowEditor();
  if (watch.Gone() || !FEditing) return;
  FEdit->SelectAll();
  FEdit->SetSelText(types ? Utf8(key) : std::string());
  key = 0;
}

// Moving.

TGridCoord TCustomGrid::KeyTarget(std::uint16_t key, bool ctrl) const {
  const bool rows = FOptions.Has(goRowSelect);
  TGridCoord to = FCurrent;
  switch (key) {
    case VK_LEFT: to.X = ctrl ? to.X - PageCols() : FCols->Step(to.X, -1); break;
    case VK_RIGHT: to.X = ctrl ? to.X + PageCols() : FCols->Step(to.X, 1); break;
    case VK_UP: to.Y = FRows->Step(to.Y, -1); break;
    case VK_DOWN: to.Y = FRows->Step(to.Y, 1); break;
    case VK_PRIOR: to.Y = ctrl ? TopRow() : to.Y - PageRows(); break;
    case VK_NEXT: to.Y = ctrl ? TopRow() + PageRows() - 1 : to.Y + PageRows(); break;
    case VK_HOME:
      if (!rows) to.X = FixedCols();
      if (rows || ctrl) to.Y = FixedRows();
      break;
    case VK_END:
      if (!rows) to.X = ColCount() - 1;
      if (rows || ctrl) to.Y = RowCount() - 1;
      break;
    default: return {};
  }
  return {std::clamp(to.X, FixedCols(), ColCount() - 1),
          std::clamp(to.Y, FixedRows(), RowCount() - 1)};
}

bool TCustomGrid::MoveKey(std::uint16_t key, TShiftState shift) {
  const bool ctrl = shift.Has(ssCtrl);
  if (key == VK_TAB && !ctrl) return TabLeads(shift.Has(ssShift)) && TabKey(shift.Has(ssShift));
  const TGridCoord to = KeyTarget(key, ctrl);
  if (to.X < 0) return false;
  const TWatch watch(this);
  EndEdit();
  // By pages the current cell keeps its place in the window.
  const bool page = !ctrl && (key == VK_PRIOR || key == VK_NEXT);
  if (!watch.Gone() && page) Scroll(true, key == VK_NEXT ? SB_PAGEDOWN : SB_PAGEUP);
  if (!watch.Gone()) FocusCell(to.X, to.Y, shift.Has(ssShift));
  return true;
}

/// Keys that move what is seen and leave the current cell where it is.
bool TCustomGrid::ScrollKey(std::uint16_t key, bool ctrl) {
  const bool sideways = key == VK_LEFT || key == VK_RIGHT;
  const bool forward = key == VK_RIGHT || key == VK_DOWN;
  const bool scrolls =
      sideways ? FOptions.Has(goRowSelect) : ctrl && (key == VK_UP || key == VK_DOWN);
  if (scrolls) Scroll(!sideways, forward ? SB_LINEDOWN : SB_LINEUP);
  return scrolls;
}

// Tab.

/// The next cell in reading order; none behind the last one.
TGridCoord TCustomGrid::TabTarget(bool back) const {
  const int way = back ? -1 : 1;
  const int col = FCols->Step(FCurrent.X, way);
  if (col != FCurrent.X && !FOptions.Has(goRowSelect)) return {col, FCurrent.Y};
  const int row = FRows->Step(FCurrent.Y, way);
  if (row == FCurrent.Y) return {};
  if (FOptions.Has(goRowSelect)) return {FCurrent.X, row};
  return {FCols->Nearest(back ? ColCount() - 1 : FixedCols(), way), row};
}

bool TCustomGrid::TabLeads(bool back) const {
  return FOptions.Has(goTabs) && HasCells() && TabTarget(back).X >= 0;
}

/// Goes to the next cell, or the next control.
bool TCustomGrid::TabKey(bool back) {
  const TWatch watch(this);
  const bool leads = TabLeads(back);
  const TGridCoord to = leads ? TabTarget(back) : TGridCoord();
  EndEdit();
  if (watch.Gone()) return true;
  if (leads) return FocusCell(to.X, to.Y, false), true;
  if (TCustomForm* form = ParentForm()) form->SelectNext(this, !back, true);
  return true;
}

// Beginning to edit.

bool TCustomGrid::EditKey(std::uint16_t key, TShiftState shift) {
  const bool drops = key == VK_F4 || (key == VK_DOWN && shift.Has(ssAlt));
  if (!drops && shift.Has(ssAlt)) return false;
  if (key == VK_SPACE && shift.Empty()) return Toggle();
  if (!drops && key != VK_F2 && key != VK_RETURN) return false;
  const TWatch watch(this);
  const bool can = CanEdit();
  if (watch.Gone() || !can) return watch.Gone();
  if (key == VK_RETURN && Toggle()) return true;
  if (watch.Gone()) return true;
  ShowEditor();
  if (watch.Gone() || !FEditing) return true;
  if (drops) DropDown();
  if (!watch.Gone() && key == VK_F2) FEdit->SetSelStart(static_cast<int>(FEdit->Text().size()));
  return true;
}

// The clipboard.

bool TCustomGrid::ClipboardKey(std::uint16_t key, TShiftState shift) {
  const bool ctrl = shift.Has(ssCtrl);
  if (ctrl && (key == 'C' || key == VK_INSERT)) return CopyToClipboard(), true;
  if (ctrl && key == 'A' && FOptions.Has(goRangeSelect)) return SelectAllCells(), true;
  if (!ChangesByClipboard()) return false;
  if (key == VK_INSERT && shift.Has(ssShift)) return PasteFromClipboard(), true;
  if (key == VK_DELETE && shift.Has(ssShift)) return CutToClipboard(), true;
  return ChangeKey(key, ctrl);
}

bool TCustomGrid::ChangeKey(std::uint16_t key, bool ctrl) {
  if (ctrl && key == 'V') return PasteFromClipboard(), true;
  if (ctrl && key == 'X') return CutToClipboard(), true;
  if (!ctrl && key == VK_DELETE) return ClearCells(), true;
  return false;
}

std::string TCustomGrid::SelectionText() {
  const TGridRect cells = Selection();
  TTextBlock block;
  const TWatch watch(this);
  for (int row = cells.Top; row <= cells.Bottom; ++row) {
    std::vector<std::string>& line = block.emplace_back();
    for (int col = cells.Left; col <= cells.Right; ++col) {
      line.push_back(GetEditText(col, row));
      if (watch.Gone()) return {};
    }
  }
  return BlockToText(block);
}

void TCustomGrid::CopyToClipboard() {
  const TWatch watch(this);
  const std::string text = SelectionText();
  if (!watch.Gone()) Clipboard()->SetAsText(text);
}

void TCustomGrid::CutToClipboard() {
  const TWatch watch(this);
  CopyToClipboard();
  if (!watch.Gone()) ClearCells();
}

void TCustomGrid::PasteFromClipboard() { PasteText(Clipboard()->AsText()); }

namespace {

/// Writes texts into cells one after the other.
class TCellWriter {
 public:
  using TGet = std::function<std::string(TGridCoord)>;
  using TSet = std::function<void(TGridCoord, const std::string&)>;
  TCellWriter(const TWatched& grid, TGet get, TSet set)
      : FWatch(&grid), FGet(std::move(get)), FSet(std::move(set)) {}

  /// All of them, or none when one is refused.
  void Write(const std::vector<std::pair<TGridCoord, std::string>>& cells) {
    std::vector<std::pair<TGridCoord, std::string>> former;
    const TOnFailure restore([&] {
      for (auto each = former.rbegin(); each != former.rend() && !FWatch.Gone(); ++each) {
        FSet(each->first, each->second);
      }
    });
    for (const auto& [cell, text] : cells) {
      std::string old = FGet(cell);
      if (FWatch.Gone()) return;
      if (old == text) continue;
      former.emplace_back(cell, std::move(old));
      FSet(cell, text);
      if (FWatch.Gone()) return;
    }
  }

 private:
  TWatch FWatch;
  TGet FGet;
  TSet FSet;
};

}  // namespace

void TCustomGrid::WriteCells(const std::vector<std::pair<TGridCoord, std::string>>& cells) {
  const TWatch watch(this);
  for (const auto& [cell, text] : cells) {
    if (!CanModify(cell.X, cell.Y)) {
      throw EInvalidOperation(Concat("The cell in column ", std::to_string(cell.X), " and row ",
                                     std::to_string(cell.Y), " is read-only"));
    }
    if (watch.Gone()) return;
  }
  TCellWriter writer(
      *this, [this](TGridCoord cell) { return GetEditText(cell.X, cell.Y); },
      [this](TGridCoord cell, const std::string& text) { SetEditText(cell.X, cell.Y, text); });
  writer.Write(cells);
  if (!watch.Gone()) Invalidate();
}

void TCustomGrid::ClearCells() {
  const TGridRect cells = Selection();
  std::vector<std::pair<TGridCoord, std::string>> empty;
  const TWatch watch(this);
  for (int row = cells.Top; row <= cells.Bottom; ++row) {
    for (int col = cells.Left; col <= cells.Right; ++col) {
      if (!GetEditText(col, row).empty()) empty.push_back({{col, row}, {}});
      if (watch.Gone()) return;
    }
  }
  WriteCells(empty);
}

void TCustomGrid::PasteText(const std::string& text) {
  const TTextBlock block = TextToBlock(text);
  const TWatch watch(this);
  EndEdit();
  if (watch.Gone() || block.empty() || !HasCells()) return;
  const TGridRect selected = Selection();
  const bool one = block.size() == 1 && block[0].size() == 1;
  const int rows = one ? selected.Bottom - selected.Top + 1 : static_cast<int>(block.size());
  std::vector<std::pair<TGridCoord, std::string>> cells;
  for (int y = 0; y < std::min(rows, RowCount() - selected.Top); ++y) {
    const std::vector<std::string>& line = block[one ? 0 : static_cast<std::size_t>(y)];
    const int cols = one ? selected.Right - selected.Left + 1 : static_cast<int>(line.size());
    for (int x = 0; x < std::min(cols, ColCount() - selected.Left); ++x) {
      cells.push_back(
          {{selected.Left + x, selected.Top + y}, line[one ? 0 : static_cast<std::size_t>(x)]});
    }
  }
  WriteCells(cells);
}

}  // namespace vcl
