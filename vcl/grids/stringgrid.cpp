// TStringGrid: its cells, and its columns' ways.
#include "vcl/grids/stringgrid.h"

#include <algorithm>

#include "vcl/graphics/canvas.h"
#include "vcl/grids/gridlook.h"
#include "vcl/grids/private/gridcells.h"
#include "vcl/grids/private/gridlines.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TStringGrid::Class() {
  using T = TStringGrid;
  static const TClass info =
      Describe<T, TDrawGrid>("vcl::TStringGrid", "vcl/grids/grids.h",
                             {
                                 Property<&T::Columns, &T::SetColumns>("Columns"),
                             });
  return info;
}

TStringGrid::TStringGrid(TComponent* owner)
    : TDrawGrid(owner),
      FCells(std::make_unique<TGridCells>()),
      FColumns(std::make_unique<TGridColumns>()) {
  FColumns->OnUpdate = [this](TCollectionItem*) { Invalidate(); };
}

TStringGrid::~TStringGrid() {
  AnnounceEnd();
  FColumns->OnUpdate = nullptr;
}

// Cells.

void TStringGrid::CheckCell(int col, int row) const {
  if (col >= 0 && col < ColCount() && row >= 0 && row < RowCount()) return;
  throw EArgumentOutOfRangeException(Concat("The grid has no cell in column ", std::to_string(col),
                                            " and row ", std::to_string(row)));
}

std::string TStringGrid::Cells(int col, int row) const {
  CheckCell(col, row);
  return FCells->Text(col, row);
}

void TStringGrid::SetCells(int col, int row, const std::string& text) {
  CheckCell(col, row);
  if (text == FCells->Text(col, row)) return;
  FCells->SetText(col, row, text);
  CellChanged(col, row);
}

void TStringGrid::CellChanged(int col, int row) {
  InvalidateCell(col, row);
  if (col == Col() && row == Row()) RefreshEditor();
}

TObject* TStringGrid::Objects(int col, int row) const {
  CheckCell(col, row);
  return FCells->Object(col, row);
}

void TStringGrid::SetObjects(int col, int row, TObject* object) {
  CheckCell(col, row);
  if (object != FCells->Object(col, row)) FCells->SetObject(col, row, object);
}

TStrings* TStringGrid::Cols(int col) {
  CheckCell(col, 0);
  std::unique_ptr<TGridLine>& line = FColLines[col];
  if (!line) line = std::make_unique<TGridLine>(*this, true, col);
  return line.get();
}

TStrings* TStringGrid::Rows(int row) {
  CheckCell(0, row);
  std::unique_ptr<TGridLine>& line = FRowLines[row];
  if (!line) line = std::make_unique<TGridLine>(*this, false, row);
  return line.get();
}

void TStringGrid::Clear() {
  *FCells = {};
  RefreshEditor();
  Invalidate();
}

void TStringGrid::CountsChanged() {
  FCells->Trim(ColCount(), RowCount());
  FColLines.erase(FColLines.lower_bound(ColCount()), FColLines.end());
  FRowLines.erase(FRowLines.lower_bound(RowCount()), FRowLines.end());
  if (FSortColumn >= ColCount()) FSortColumn = -1;
}

void TStringGrid::ColumnMoved(int from, int to) {
  FCells->MoveColumn(from, to);
  const int fixed = FixedCols();
  const bool listed = std::max(from, to) - fixed < FColumns->Count();
  if (listed && std::min(from, to) >= fixed) FColumns->Items(from - fixed)->SetIndex(to - fixed);
  FSortColumn = -1;
  TDrawGrid::ColumnMoved(from, to);
}

void TStringGrid::RowMoved(int from, int to) {
  FCells->MoveRow(from, to);
  FSortColumn = -1;
  TDrawGrid::RowMoved(from, to);
}

// What is seen.

const TGridColumn* TStringGrid::ColumnOf(int col) const {
  const int index = col - FixedCols();
  return index >= 0 && index < FColumns->Count() ? FColumns->Items(index) : nullptr;
}

std::string TStringGrid::ShownText(int col, int row) const {
  const std::string& text = FCells->Text(col, row);
  const TGridColumn* column = ColumnOf(col);
  return text.empty() && column && row == FixedRows() - 1 ? column->Title() : text;
}

std::string TStringGrid::CellText(int col, int row) { return ShownText(col, row); }

bool TStringGrid::HasSortMark(int col, int row) const {
  return col == FSortColumn && row == FixedRows() - 1;
}

void TStringGrid::DrawCell(int col, int row, const TRect& rect, TGridDrawState state) {
  const TWatch watch(this);
  const bool box = DefaultDrawing() && !state.Has(gdFixed) && GetEditStyle(col, row) == esCheckBox;
  if (watch.Gone()) return;
  if (box) {
    DrawCheckBox(rect, Checked(col, row));
  } else if (DefaultDrawing()) {
    TRect text = rect;
    const int mark = ScaledPixels(4);
    if (HasSortMark(col, row)) {
      DrawSortMark(*Canvas(), rect, FSortDescending, mark);
      text.Right -= 3 * mark;
    }
    const TGridColumn* column = ColumnOf(col);
    DrawCellText(*Canvas(), text, ShownText(col, row), column ? column->Alignment() : taLeftJustify,
                 ScaledPixels(CellMargin));
  }
  TDrawGrid::DrawCell(col, row, rect, state);
}

// Editing.

std::string TStringGrid::GetEditText(int col, int row) {
  std::string text = Cells(col, row);
  OnGetEditText(this, col, row, text);
  return text;
}

void TStringGrid::SetEditText(int col, int row, const std::string& text) {
  const TWatch watch(this);
  TDrawGrid::SetEditText(col, row, text);
  if (!watch.Gone()) SetCells(col, row, text);
}

TEditStyle TStringGrid::GetEditStyle(int col, int row) {
  const TGridColumn* column = ColumnOf(col);
  TEditStyle style = column ? column->EditStyle() : esSimple;
  OnGetEditStyle(this, col, row, style);
  return style;
}

void TStringGrid::GetPickList(int col, int row, TStrings& items) {
  if (const TGridColumn* column = ColumnOf(col)) items.Assign(column->PickList());
  TDrawGrid::GetPickList(col, row, items);
}

bool TStringGrid::CanModify(int col, int row) {
  const TGridColumn* column = ColumnOf(col);
  return TDrawGrid::CanModify(col, row) && !(column && column->ReadOnly());
}

bool TStringGrid::Checked(int col, int row) {
  const TGridColumn* column = ColumnOf(col);
  return SameText(FCells->Text(col, row), column ? column->ValueChecked() : BoolToStr(true));
}

void TStringGrid::ToggleChecked(int col, int row) {
  const TGridColumn* column = ColumnOf(col);
  const bool check = !Checked(col, row);
  SetEditText(col, row,
              !column ? BoolToStr(check)
              : check ? column->ValueChecked()
                      : column->ValueUnchecked());
}

// Sorting.

namespace {

/// What a row is sorted by.
struct TSortKey {
  TSortKey(int row, std::string text) : Row(row), Text(std::move(text)) {
    IsNumber = TryStrToFloat(Text, Number);
  }
  /// Negative, zero or positive.
  int Compare(const TSortKey& other) const {
    if (IsNumber != other.IsNumber) return IsNumber ? -1 : 1;
    if (!IsNumber) return AnsiCompareText(Text, other.Text);
    return Number < other.Number ? -1 : Number > other.Number ? 1 : 0;
  }
  int Row;
  bool IsNumber;
  double Number = 0;
  std::string Text;
};

}  // namespace

void TStringGrid::SortRows(int column, bool descending) {
  CheckCell(column, 0);
  const TWatch watch(this);
  CommitEdit();
  if (watch.Gone()) return;
  std::vector<TSortKey> keys;
  for (int row = FixedRows(); row < RowCount(); ++row) keys.emplace_back(row, Cells(column, row));
  std::ranges::stable_sort(keys, [descending](const TSortKey& a, const TSortKey& b) {
    return descending ? b.Compare(a) < 0 : a.Compare(b) < 0;
  });
  std::vector<int> order;
  for (int row = 0; row < FixedRows(); ++row) order.push_back(row);
  for (const TSortKey& key : keys) order.push_back(key.Row);
  FCells->ReorderRows(order);
  FSortColumn = column;
  FSortDescending = descending;
  ReorderRows(order);
  if (!watch.Gone()) RefreshEditor();
}

void TStringGrid::ClearSortMark() {
  FSortColumn = -1;
  Invalidate();
}

}  // namespace vcl
