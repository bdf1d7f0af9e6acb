// TGridLine: reading and writing the grid's cells.
#include "vcl/grids/private/gridlines.h"

#include <algorithm>

#include "vcl/grids/private/gridcells.h"
#include "vcl/grids/stringgrid.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {

int TGridLine::Count() const { return FColumn ? FGrid.RowCount() : FGrid.ColCount(); }

int TGridLine::Last() const {
  return FColumn ? FGrid.FCells->LastInColumn(FIndex) : FGrid.FCells->LastInRow(FIndex);
}

void TGridLine::Put(int index, const std::string& text, TObject* object) {
  FGrid.SetCells(ColOf(index), RowOf(index), text);
  FGrid.SetObjects(ColOf(index), RowOf(index), object);
}

std::string TGridLine::Strings(int index) const {
  CheckIndex(index, Count());
  return FGrid.Cells(ColOf(index), RowOf(index));
}

void TGridLine::SetStrings(int index, const std::string& text) {
  CheckIndex(index, Count());
  FGrid.SetCells(ColOf(index), RowOf(index), text);
}

TObject* TGridLine::Objects(int index) const {
  CheckIndex(index, Count());
  return FGrid.Objects(ColOf(index), RowOf(index));
}

void TGridLine::SetObjects(int index, TObject* object) {
  CheckIndex(index, Count());
  FGrid.SetObjects(ColOf(index), RowOf(index), object);
}

int TGridLine::AddObject(const std::string& text, TObject* object) {
  const int index = std::max(Last() + 1, FAdded);
  if (index >= Count()) {
    throw EStringListError(Concat("The grid has no cell for \"", Shown(text), "\": its ",
                                  FColumn ? "column has " : "row has ", std::to_string(Count())));
  }
  Put(index, text, object);
  FAdded = index + 1;
  return index;
}

void TGridLine::InsertObject(int index, const std::string& text, TObject* object) {
  CheckIndex(index, Count());
  const int last = Last();
  if (last == Count() - 1) {
    throw EStringListError(Concat("The grid has no room for \"", Shown(text),
                                  "\": it would push \"", Shown(Strings(last)), "\" out"));
  }
  for (int i = last; i >= index; --i) Put(i + 1, Strings(i), Objects(i));
  Put(index, text, object);
}

void TGridLine::Delete(int index) {
  CheckIndex(index, Count());
  const int last = Last();
  for (int i = index; i < last; ++i) Put(i, Strings(i + 1), Objects(i + 1));
  if (last >= index) Put(last, {}, nullptr);
  FAdded = 0;
}

void TGridLine::Clear() {
  for (int last = Last(); last >= 0; last = Last()) Put(last, {}, nullptr);
  FAdded = 0;
}

void TGridLine::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TStrings*>(source);
  if (!other) return TStrings::Assign(source);
  if (other == this) return;
  Clear();
  const int count = std::min(other->Count(), Count());
  for (int i = 0; i < count; ++i) Put(i, other->Strings(i), other->Objects(i));
}

}  // namespace vcl
