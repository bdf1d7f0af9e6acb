// TGridCells: the texts and objects of a grid, kept for the cells alone that have one.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace vcl {

class TObject;

class TGridCells {
 public:
  /// Empty for a cell without a text.
  const std::string& Text(int col, int row) const;
  void SetText(int col, int row, const std::string& text);
  TObject* Object(int col, int row) const;
  void SetObject(int col, int row, TObject* object);

  void MoveColumn(int from, int to);
  void MoveRow(int from, int to);
  /// Puts at each place the row that `order` has there.
  void ReorderRows(const std::vector<int>& order);
  /// Forgets what lies beyond.
  void Trim(int cols, int rows);
  /// The last cell of the column or row that has something; -1 for none.
  int LastInColumn(int col) const;
  int LastInRow(int row) const;

 private:
  struct TCell {
    std::string Text;
    TObject* Object = nullptr;
  };
  using TRow = std::map<int, TCell>;
  const TCell* Find(int col, int row) const;
  template <class Change>
  void Write(int col, int row, const Change& change);

  std::map<int, TRow> FRows;
};

}  // namespace vcl
