// TCustomGrid: the current cell, the selection, and what screen readers are told of the cells.
#include <algorithm>

#include "vcl/grids/customgrid.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// The current cell.

void TCustomGrid::SetCol(int col) { CheckIndex(true, col), FocusCell(col, Row(), false); }
void TCustomGrid::SetRow(int row) { CheckIndex(false, row), FocusCell(Col(), row, false); }

void TCustomGrid::KeepCurrentInside() {
  PutCurrent(FCurrent.X, FCurrent.Y);
  FAnchor.X = FCols->Nearest(FAnchor.X, 1);
  FAnchor.Y = FRows->Nearest(FAnchor.Y, 1);
}

void TCustomGrid::PutCurrent(int col, int row) {
  const TGridCoord cell{FCols->Nearest(col, 1), FRows->Nearest(row, 1)};
  if (cell == FCurrent) return;
  InvalidateCells(Selection());
  FCurrent = FAnchor = cell;
  InvalidateCells(Selection());
  TellCurrent();
}

bool TCustomGrid::FocusCell(int col, int row, bool extend) {
  if (!HasCells()) return false;
  const TGridCoord cell{FCols->Nearest(col, col < FCurrent.X ? -1 : 1),
                        FRows->Nearest(row, row < FCurrent.Y ? -1 : 1)};
  extend = extend && FOptions.Has(goRangeSelect);
  const TWatch watch(this);
  if (cell != FCurrent) {
    EndEdit();
    if (watch.Gone() || !SelectCell(cell.X, cell.Y) || watch.Gone()) return false;
    // The handler may have taken columns or rows away.
    if (!FCols->Has(cell.X) || !FRows->Has(cell.Y)) return false;
  }
  SetCurrent(cell, extend);
  BringIntoView(cell);
  if (watch.Gone()) return false;
  UpdateEditor();
  return !watch.Gone();
}

void TCustomGrid::SetCurrent(TGridCoord cell, bool extend) {
  const TGridRect former = Selection();
  const TGridCoord anchor = extend ? FAnchor : cell;
  if (cell == FCurrent && anchor == FAnchor) return;
  const TGridCoord old = FCurrent;
  FCurrent = cell;
  FAnchor = anchor;
  if (former != Selection()) InvalidateCells(former), InvalidateCells(Selection());
  // Of a row that stays selected the frame does not move; another block's corner does.
  InvalidateCells({old.X, old.Y, old.X, old.Y});
  InvalidateCells({cell.X, cell.Y, cell.X, cell.Y});
  if (old != cell) TellCurrent();
}

TGridRect TCustomGrid::Selection() const {
  if (!HasCells()) return {};
  const TGridCoord anchor = FOptions.Has(goRangeSelect) ? FAnchor : FCurrent;
  TGridRect rect{std::min(FCurrent.X, anchor.X), std::min(FCurrent.Y, anchor.Y),
                 std::max(FCurrent.X, anchor.X), std::max(FCurrent.Y, anchor.Y)};
  if (FOptions.Has(goRowSelect)) {
    rect.Left = FixedCols();
    rect.Right = ColCount() - 1;
  }
  return rect;
}

void TCustomGrid::SetSelection(const TGridRect& selection) {
  CheckIndex(true, selection.Left), CheckIndex(true, selection.Right);
  CheckIndex(false, selection.Top), CheckIndex(false, selection.Bottom);
  const TWatch watch(this);
  if (!FocusCell(selection.Right, selection.Bottom, false) || watch.Gone()) return;
  if (!FOptions.Has(goRangeSelect)) return;
  InvalidateCells(Selection());
  FAnchor = {FCols->Nearest(selection.Left, 1), FRows->Nearest(selection.Top, 1)};
  InvalidateCells(Selection());
}

void TCustomGrid::SelectAllCells() {
  if (!HasCells() || !FOptions.Has(goRangeSelect)) return;
  const TWatch watch(this);
  EndEdit();
  if (watch.Gone()) return;
  InvalidateCells(Selection());
  FAnchor = {FixedCols(), FixedRows()};
  FCurrent = {ColCount() - 1, RowCount() - 1};
  KeepCurrentInside();
  InvalidateCells(Selection());
  TellCurrent();
}

// Painting again.

void TCustomGrid::InvalidateCol(int col) { InvalidateCells({col, 0, col, RowCount() - 1}); }
void TCustomGrid::InvalidateRow(int row) { InvalidateCells({0, row, ColCount() - 1, row}); }

namespace {

struct TStretch {
  int Begin = 0;
  int End = 0;
};

/// What is seen of the cells from `first` to `last`, with their lines.
TStretch SeenOf(const TGridAxis& axis, int first, int last, int room) {
  TStretch stretch;
  for (const TGridBand& each : axis.Seen(room)) {
    if (each.Index < first || each.Index > last) continue;
    if (stretch.End == 0) stretch.Begin = each.Begin;
    stretch.End = each.Next();
  }
  return stretch;
}

}  // namespace

void TCustomGrid::InvalidateCells(const TGridRect& cells) {
  if (!HandleAllocated() || cells.Empty()) return;
  const TStretch x = SeenOf(*FCols, cells.Left, cells.Right, Room(true));
  const TStretch y = SeenOf(*FRows, cells.Top, cells.Bottom, Room(false));
  const RECT rect{x.Begin, y.Begin, x.End, y.End};
  if (x.End > x.Begin && y.End > y.Begin) ::InvalidateRect(Handle(), &rect, FALSE);
}

// Screen readers: the rows that are seen, with their cells. A cell is called by its column's title.

void TCustomGrid::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arTable;
  if (!FOptions.Has(goEditing)) info.State.Include(asReadOnly);
}

std::string TCustomGrid::CellText(int /*col*/, int /*row*/) { return {}; }

TAccessiblePart TCustomGrid::DescribeCell(const TGridBand& col, const TGridBand& row) {
  TAccessiblePart cell;
  cell.Bounds = {col.Begin, row.Begin, col.End, row.End};
  const bool title = row.Index < FixedRows();
  cell.Role = title ? arColumnHeader : arCell;
  if (FixedRows() > 0) cell.Name = CellText(col.Index, title ? row.Index : FixedRows() - 1);
  // A cell under no title is named by its place.
  if (cell.Name.empty() && !title) cell.Name = "Column " + std::to_string(col.Index + 1);
  if (!CanModify(col.Index, row.Index)) cell.State.Include(asReadOnly);
  if (title) return cell;
  cell.Value = CellText(col.Index, row.Index);
  if (col.Index < FixedCols() || FOptions.Has(goRowSelect)) return cell;
  cell.State += TAccessibleState{asFocusable, asSelectable};
  cell.DefaultAction = "Select";
  if (Selection().Contains(col.Index, row.Index)) cell.State.Include(asSelected);
  const bool current = FCurrent == TGridCoord{col.Index, row.Index};
  if (current && Focused()) cell.State.Include(asFocused);
  return cell;
}

TAccessiblePart TCustomGrid::DescribeRow(const TGridBand& row, const std::vector<TGridBand>& cols) {
  TAccessiblePart part;
  part.Role = arRow;
  part.Bounds = {0, row.Begin, cols.empty() ? 0 : cols.back().Next(), row.Next()};
  const bool title = row.Index < FixedRows();
  for (const TGridBand& col : cols) {
    const TAccessiblePart& cell = part.Parts.emplace_back(DescribeCell(col, row));
    if (!title) part.Name += (part.Name.empty() ? "" : "; ") + cell.Value;
  }
  if (title) return part;
  const bool current = HasCells() && row.Index == Row();
  if (FOptions.Has(goRowSelect)) {
    part.State = {asFocusable, asSelectable};
    part.DefaultAction = "Select";
    const TGridRect selection = Selection();
    if (selection.Contains(selection.Left, row.Index)) part.State.Include(asSelected);
  }
  // The way to the cell that has the focus leads through its row.
  if (current && Focused()) part.State.Include(asFocused);
  return part;
}

std::vector<TAccessiblePart> TCustomGrid::AccessibleParts() {
  std::vector<TAccessiblePart> rows;
  if (!HandleAllocated()) return rows;
  const std::vector<TGridBand> cols = FCols->Seen(Room(true));
  for (const TGridBand& row : FRows->Seen(Room(false))) rows.push_back(DescribeRow(row, cols));
  return rows;
}

void TCustomGrid::DoAccessiblePart(const TAccessiblePath& part) {
  const auto place = [&](std::size_t depth, bool columns, int otherwise) {
    const std::vector<TGridBand> seen = Axis(columns).Seen(Room(columns));
    const int index = depth < part.size() ? part[depth] : -1;
    const bool there = index >= 0 && index < static_cast<int>(seen.size());
    return there ? seen[static_cast<std::size_t>(index)].Index : otherwise;
  };
  const TGridCoord cell{place(1, true, Col()), place(0, false, Row())};
  if (cell.X >= FixedCols() && cell.Y >= FixedRows()) FocusCell(cell.X, cell.Y, false);
}

TAccessiblePath TCustomGrid::PathOf(TGridCoord cell) const {
  TAccessiblePath path;
  for (const bool columns : {false, true}) {
    const std::vector<TGridBand> seen = Axis(columns).Seen(Room(columns));
    const auto found = std::ranges::find(seen, columns ? cell.X : cell.Y, &TGridBand::Index);
    if (found == seen.end()) return {};
    path.push_back(static_cast<int>(found - seen.begin()));
  }
  return path;
}

void TCustomGrid::TellCurrent() const {
  if (!HandleAllocated() || !HasCells()) return;
  const TAccessiblePath cell = PathOf(FCurrent);
  if (cell.empty()) return;
  AccessibleChanged(acSelection, cell);
  if (Focused()) AccessibleChanged(acFocus, cell);
}

}  // namespace vcl
