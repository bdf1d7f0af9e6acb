// A form with a grid on it, for the tests of grids.
#pragma once

#include "tests/vcl/standardform.h"
#include "vcl/grids/grids.h"

namespace vcl {

class TGridForm : public TStandardForm {
 protected:
  /// Cells say where they are: "c1r2".
  TGridForm() : Grid(Make<TStringGrid>(10, 10)) {
    Grid->SetBounds(10, 10, 300, 200);
    Grid->SetColCount(8);
    Grid->SetRowCount(20);
    for (int row = 0; row < 20; ++row) {
      for (int col = 0; col < 8; ++col) Grid->SetCells(col, row, Name(col, row));
    }
  }
  static std::string Name(int col, int row) {
    return "c" + std::to_string(col) + "r" + std::to_string(row);
  }
  void Allow(std::initializer_list<TGridOption> options) {
    Grid->SetOptions(Grid->Options() + TGridOptions(options));
  }
  void ShowGrid() {
    ShowForm();
    Grid->SetFocus();
  }
  TPoint Middle(int col, int row) const {
    const TRect cell = Grid->CellRect(col, row);
    return Grid->ClientToScreen({(cell.Left + cell.Right) / 2, (cell.Top + cell.Bottom) / 2});
  }
  void ClickCell(int col, int row) { testinput::Click(Middle(col, row)); }
  void Drag(TPoint from, TPoint to) {
    testinput::MoveMouse(from);
    testinput::LeftDown();
    testinput::MoveMouse({(from.X + to.X) / 2, (from.Y + to.Y) / 2});
    testinput::MoveMouse(to);
    testinput::LeftUp();
  }
  /// "col,row", and behind it the other corner of a selection of several cells.
  std::string Current() const {
    const TGridRect all = Grid->Selection();
    std::string text = std::to_string(Grid->Col()) + "," + std::to_string(Grid->Row());
    if (all.Left == all.Right && all.Top == all.Bottom) return text;
    const int col = all.Left == Grid->Col() ? all.Right : all.Left;
    const int row = all.Top == Grid->Row() ? all.Bottom : all.Top;
    return text + " " + std::to_string(col) + "," + std::to_string(row);
  }

  TRecreatable<TStringGrid>* Grid;
};

}  // namespace vcl
