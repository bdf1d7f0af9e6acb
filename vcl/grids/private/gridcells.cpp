// TGridCells: rows of cells, by their numbers.
#include "vcl/grids/private/gridcells.h"

#include <utility>

#include "vcl/grids/private/gridaxis.h"

namespace vcl {
namespace {

/// The map with what is at `from` at `to`, and the others out of its way.
template <class Map>
Map Moved(Map map, int from, int to) {
  Map moved;
  for (auto& [index, value] : map) {
    moved.emplace(TGridAxis::Moved(index, from, to), std::move(value));
  }
  return moved;
}

}  // namespace

const TGridCells::TCell* TGridCells::Find(int col, int row) const {
  const auto line = FRows.find(row);
  if (line == FRows.end()) return nullptr;
  const auto cell = line->second.find(col);
  return cell == line->second.end() ? nullptr : &cell->second;
}

template <class Change>
void TGridCells::Write(int col, int row, const Change& change) {
  TRow& line = FRows[row];
  TCell& cell = line[col];
  change(cell);
  if (!cell.Text.empty() || cell.Object) return;
  line.erase(col);
  if (line.empty()) FRows.erase(row);
}

const std::string& TGridCells::Text(int col, int row) const {
  static const std::string none;
  const TCell* cell = Find(col, row);
  return cell ? cell->Text : none;
}

void TGridCells::SetText(int col, int row, const std::string& text) {
  Write(col, row, [&text](TCell& cell) { cell.Text = text; });
}

TObject* TGridCells::Object(int col, int row) const {
  const TCell* cell = Find(col, row);
  return cell ? cell->Object : nullptr;
}

void TGridCells::SetObject(int col, int row, TObject* object) {
  Write(col, row, [object](TCell& cell) { cell.Object = object; });
}

void TGridCells::MoveColumn(int from, int to) {
  for (auto& [row, line] : FRows) line = Moved(std::move(line), from, to);
}

void TGridCells::MoveRow(int from, int to) { FRows = Moved(std::move(FRows), from, to); }

void TGridCells::ReorderRows(const std::vector<int>& order) {
  std::map<int, TRow> rows;
  for (int place = 0; place < static_cast<int>(order.size()); ++place) {
    const auto row = FRows.find(order[static_cast<std::size_t>(place)]);
    if (row != FRows.end()) rows.emplace_hint(rows.end(), place, std::move(row->second));
  }
  FRows = std::move(rows);
}

void TGridCells::Trim(int cols, int rows) {
  FRows.erase(FRows.lower_bound(rows), FRows.end());
  for (auto& [row, line] : FRows) line.erase(line.lower_bound(cols), line.end());
  std::erase_if(FRows, [](const auto& each) { return each.second.empty(); });
}

int TGridCells::LastInColumn(int col) const {
  for (auto row = FRows.rbegin(); row != FRows.rend(); ++row) {
    if (row->second.contains(col)) return row->first;
  }
  return -1;
}

int TGridCells::LastInRow(int row) const {
  const auto line = FRows.find(row);
  return line == FRows.end() ? -1 : line->second.rbegin()->first;
}

}  // namespace vcl
