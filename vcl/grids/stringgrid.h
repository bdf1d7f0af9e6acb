// TStringGrid: a grid of texts.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "vcl/grids/drawgrid.h"
#include "vcl/grids/gridcolumns.h"
#include "vcl/rtl/strings.h"

namespace vcl {

class TGridCells;
class TGridLine;

/// A grid that keeps a text, and a reference to an object that it does not own, for each cell;
/// cells without either cost nothing. Methods that take a column and a row raise
/// EArgumentOutOfRangeException for a cell that is not there. Form files hold no cells.
class VCL_API TStringGrid : public TDrawGrid {
 public:
  explicit TStringGrid(TComponent* owner);
  ~TStringGrid() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  std::string Cells(int col, int row) const;
  void SetCells(int col, int row, const std::string& text);
  TObject* Objects(int col, int row) const;
  void SetObjects(int col, int row, TObject* object);
  /// A column's resp. a row's cells as a list, fixed ones included, as long as the grid. Adding
  /// writes behind the last cell that has something; what does not fit, or would push a text out of
  /// the grid, raises EStringListError. Assigning a list that is too long takes what fits.
  TStrings* Cols(int col);
  TStrings* Rows(int row);
  /// Empties all cells.
  void Clear();

  TGridColumns* Columns() const { return FColumns.get(); }
  /// How the columns behind the fixed ones are shown and edited, from left to right; columns beyond
  /// the list are shown and edited plainly.
  void SetColumns(const TCollection* columns) { FColumns->Assign(columns); }
  /// The item of Columns for the grid's column; null for none.
  const TGridColumn* ColumnOf(int col) const;

  /// Sorts the rows below the fixed ones by their texts in the column, numbers by their values and
  /// before other texts, those by the user's language; equal ones keep their order. The last fixed
  /// row shows a mark in this column from then on.
  void SortRows(int column, bool descending = false);
  /// The column with the mark of sorting; -1 for none.
  int SortColumn() const { return FSortColumn; }
  bool SortDescending() const { return FSortDescending; }
  /// Takes the mark away.
  void ClearSortMark();

 protected:
  void DrawCell(int col, int row, const TRect& rect, TGridDrawState state) override;
  std::string CellText(int col, int row) override;
  std::string GetEditText(int col, int row) override;
  void SetEditText(int col, int row, const std::string& text) override;
  TEditStyle GetEditStyle(int col, int row) override;
  void GetPickList(int col, int row, TStrings& items) override;
  bool CanModify(int col, int row) override;
  bool Checked(int col, int row) override;
  void ToggleChecked(int col, int row) override;
  void ColumnMoved(int from, int to) override;
  void RowMoved(int from, int to) override;
  void CountsChanged() override;

 private:
  friend class TGridLine;
  using TLines = std::map<int, std::unique_ptr<TGridLine>>;
  void CheckCell(int col, int row) const;
  std::string ShownText(int col, int row) const;
  bool HasSortMark(int col, int row) const;
  void CellChanged(int col, int row);

  std::unique_ptr<TGridCells> FCells;
  std::unique_ptr<TGridColumns> FColumns;
  TLines FColLines, FRowLines;  // Made when asked for.
  int FSortColumn = -1;
  bool FSortDescending = false;
};

}  // namespace vcl
