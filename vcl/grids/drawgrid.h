// TDrawGrid: a grid whose cells are what its events draw and edit.
#pragma once

#include <string>

#include "vcl/grids/customgrid.h"

namespace vcl {

/// A grid for forms, that keeps no texts itself. With goEditing OnGetEditText and OnSetEditText
/// give and take them.
class VCL_API TDrawGrid : public TCustomGrid {
 public:
  explicit TDrawGrid(TComponent* owner) : TCustomGrid(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  using TCustomGrid::BorderStyle;
  using TCustomGrid::CellRect;
  using TCustomGrid::Col;
  using TCustomGrid::ColCount;
  using TCustomGrid::ColWidths;
  using TCustomGrid::CommitEdit;
  using TCustomGrid::CopyToClipboard;
  using TCustomGrid::CutToClipboard;
  using TCustomGrid::DefaultColWidth;
  using TCustomGrid::DefaultDrawing;
  using TCustomGrid::DefaultRowHeight;
  using TCustomGrid::EditorMode;
  using TCustomGrid::FixedColor;
  using TCustomGrid::FixedCols;
  using TCustomGrid::FixedRows;
  using TCustomGrid::FocusCell;
  using TCustomGrid::GridLineWidth;
  using TCustomGrid::InvalidateCell;
  using TCustomGrid::InvalidateCol;
  using TCustomGrid::InvalidateRow;
  using TCustomGrid::LeftCol;
  using TCustomGrid::MouseCoord;
  using TCustomGrid::MouseToCell;
  using TCustomGrid::MoveColumn;
  using TCustomGrid::MoveRow;
  using TCustomGrid::Options;
  using TCustomGrid::PasteFromClipboard;
  using TCustomGrid::PasteText;
  using TCustomGrid::Row;
  using TCustomGrid::RowCount;
  using TCustomGrid::RowHeights;
  using TCustomGrid::ScrollBars;
  using TCustomGrid::Selection;
  using TCustomGrid::SelectionText;
  using TCustomGrid::SetBorderStyle;
  using TCustomGrid::SetCol;
  using TCustomGrid::SetColCount;
  using TCustomGrid::SetColWidths;
  using TCustomGrid::SetDefaultColWidth;
  using TCustomGrid::SetDefaultDrawing;
  using TCustomGrid::SetDefaultRowHeight;
  using TCustomGrid::SetEditorMode;
  using TCustomGrid::SetFixedColor;
  using TCustomGrid::SetFixedCols;
  using TCustomGrid::SetFixedRows;
  using TCustomGrid::SetGridLineWidth;
  using TCustomGrid::SetLeftCol;
  using TCustomGrid::SetOptions;
  using TCustomGrid::SetRow;
  using TCustomGrid::SetRowCount;
  using TCustomGrid::SetRowHeights;
  using TCustomGrid::SetScrollBars;
  using TCustomGrid::SetSelection;
  using TCustomGrid::SetTopRow;
  using TCustomGrid::TopRow;
  using TCustomGrid::VisibleColCount;
  using TCustomGrid::VisibleRowCount;
  /// To draw on in OnDrawCell; (0, 0) is the grid's top left.
  TCanvas* Canvas() const { return TCustomGrid::Canvas(); }

  /// A column was moved, from one place to another.
  TMovedEvent OnColumnMoved;
  /// A cell is to be drawn on Canvas, which has the colours of its state.
  TDrawCellEvent OnDrawCell;
  /// The button beside the edit of a cell was pressed.
  TMovedEvent OnEditButtonClick;
  /// A fixed cell was clicked, where goFixedColClick or goFixedRowClick tell of it.
  TMovedEvent OnFixedCellClick;
  /// A cell is about to be edited: the handler says how.
  TGetEditStyleEvent OnGetEditStyle;
  /// A cell is about to be edited: the handler gives the mask of what may be typed (see TMaskText).
  TGetEditEvent OnGetEditMask;
  /// A cell's text is needed, to be edited or copied: the handler gives it.
  TGetEditEvent OnGetEditText;
  /// The list of values of a cell drops down: the handler fills it.
  TGetPickListEvent OnGetPickList;
  /// A row was moved, from one place to another.
  TMovedEvent OnRowMoved;
  /// A cell is about to become the current one: the handler may refuse it.
  TSelectCellEvent OnSelectCell;
  /// A cell was edited: the handler takes the text, or raises an exception to refuse it.
  TSetEditEvent OnSetEditText;
  /// The first column or row that is seen behind the fixed ones is another.
  TNotifyEvent OnTopLeftChanged;

 protected:
  void DrawCell(int col, int row, const TRect& rect, TGridDrawState state) override;
  bool SelectCell(int col, int row) override;
  std::string GetEditText(int col, int row) override;
  void SetEditText(int col, int row, const std::string& text) override;
  std::string GetEditMask(int col, int row) override;
  TEditStyle GetEditStyle(int col, int row) override;
  void GetPickList(int col, int row, TStrings& items) override;
  void ToggleChecked(int col, int row) override;
  void EditButtonClick(int col, int row) override { OnEditButtonClick(this, col, row); }
  void FixedCellClick(int col, int row) override { OnFixedCellClick(this, col, row); }
  void ColumnMoved(int from, int to) override { OnColumnMoved(this, from, to); }
  void RowMoved(int from, int to) override { OnRowMoved(this, from, to); }
  void TopLeftChanged() override { OnTopLeftChanged(this); }
};

}  // namespace vcl
