// TCustomGrid: what all grids share: columns and rows of cells that scroll, are selected, sized,
// moved and edited in place.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/grids/gridtypes.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/scrollstyle.h"

namespace vcl {

class TGridAxis;
class TInplaceEdit;
class TPopupList;
struct TGridBand;

/// A grid of cells, some of which at the left and at the top are fixed: they do not scroll and are
/// not selected. Only the cells that are seen cost anything. A grid may have no other cells than
/// fixed ones; then there is no current cell.
///
/// Keys: the arrows, Page Up, Page Down, Home and End move the current cell, with Shift they extend
/// the selection (goRangeSelect); Ctrl with Home and End goes to the corners, with Left and Right
/// by pages, with Page Up and Page Down to the first and last row seen, with Up and Down it
/// scrolls. With goEditing typing, F2 and Enter begin to edit, Enter, F2, Tab and the arrows up and
/// down end it, Escape cancels; Alt+Down drops a list of values down; Space turns a check box.
/// Ctrl+C copies the selection as text with tabs, Ctrl+X, Ctrl+V and Del change it.
class VCL_API TCustomGrid : public TCustomControl {
 public:
  ~TCustomGrid() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

 protected:
  /// Five columns and rows, the first of each fixed.
  explicit TCustomGrid(TComponent* owner);

  // Columns and rows. Methods that take the number of one raise EArgumentOutOfRangeException for
  // one that is not there.
  int ColCount() const;
  /// How many columns there are, the fixed ones included; with fewer, fixed ones go, too. Raises
  /// EArgumentOutOfRangeException for less than 1.
  void SetColCount(int count);
  int RowCount() const;
  /// How many rows there are, the fixed ones included; with fewer, fixed ones go, too. Raises
  /// EArgumentOutOfRangeException for less than 1.
  void SetRowCount(int count);
  int FixedCols() const;
  /// How many columns at the left do not scroll. Raises EArgumentOutOfRangeException for a negative
  /// number and for more than there are columns.
  void SetFixedCols(int count);
  int FixedRows() const;
  /// How many rows at the top do not scroll. Raises EArgumentOutOfRangeException for a negative
  /// number and for more than there are rows.
  void SetFixedRows(int count);
  int DefaultColWidth() const;
  /// The width that all columns get, in pixels, without the lines between them. Raises
  /// EArgumentOutOfRangeException outside 1 to 32767.
  void SetDefaultColWidth(int width);
  int DefaultRowHeight() const;
  /// The height that all rows get, in pixels, without the lines between them. Raises
  /// EArgumentOutOfRangeException outside 1 to 32767.
  void SetDefaultRowHeight(int height);
  int ColWidths(int col) const;
  /// The width of one column, in pixels; 0 hides it. Raises EArgumentOutOfRangeException outside 0
  /// to 32767.
  void SetColWidths(int col, int width);
  int RowHeights(int row) const;
  /// The height of one row, in pixels; 0 hides it. Raises EArgumentOutOfRangeException outside 0 to
  /// 32767.
  void SetRowHeights(int row, int height);
  /// Takes a column elsewhere, with its width and what is in it; those between give way.
  void MoveColumn(int from, int to);
  void MoveRow(int from, int to);

  // What is seen.
  int LeftCol() const;
  /// The first column that is seen behind the fixed ones.
  void SetLeftCol(int col);
  int TopRow() const;
  /// The first row that is seen below the fixed ones.
  void SetTopRow(int row);
  /// How many columns resp. rows are wholly seen, without the fixed ones.
  int VisibleColCount() const;
  int VisibleRowCount() const;
  /// Where the cell stands in the grid, without its lines; empty when nothing of it is seen.
  TRect CellRect(int col, int row) const;
  /// The cell at the position; -1, -1 for none.
  TGridCoord MouseCoord(int x, int y) const;
  void MouseToCell(int x, int y, int& col, int& row) const;

  // The current cell and the selection.
  int Col() const { return FCurrent.X; }
  /// The current cell's column. Nothing happens when SelectCell refuses it.
  void SetCol(int col);
  int Row() const { return FCurrent.Y; }
  /// The current cell's row. Nothing happens when SelectCell refuses it.
  void SetRow(int row);
  TGridRect Selection() const;
  /// Selects a block, whose last cell becomes the current one; without goRangeSelect that cell
  /// only.
  void SetSelection(const TGridRect& selection);
  /// Makes the cell the current one and brings it into view; `extend` keeps the other corner of the
  /// selection. What is being edited holds before. False when it, or SelectCell, refuses.
  bool FocusCell(int col, int row, bool extend);
  /// True when there is a cell that is not fixed.
  bool HasCells() const;

  // Editing.
  bool EditorMode() const { return FEditing; }
  /// Whether the current cell is being edited; false makes what was typed hold.
  void SetEditorMode(bool editing);
  /// Makes what is typed hold, as SetEditText takes it, whose refusal it passes on; then the cell
  /// is still being edited.
  void CommitEdit();
  /// The selected cells as text: tabs between columns, an end of line behind each row; a cell with
  /// a tab, a quote or an end of line stands in double quotes, quotes in it doubled.
  std::string SelectionText();
  /// Writes such a text into the cells from the selection's first one on, as far as there are
  /// cells; one value alone into all selected ones. Raises EInvalidOperation, and changes nothing,
  /// when one of the cells is read-only; what SetEditText raises leaves all as it was.
  void PasteText(const std::string& text);
  void CopyToClipboard();
  void CutToClipboard();
  void PasteFromClipboard();

  // Look.
  TGridOptions Options() const { return FOptions; }
  /// What the user may do, and which lines there are.
  void SetOptions(TGridOptions options);
  bool DefaultDrawing() const { return FDefaultDrawing; }
  /// True: the grid draws the cells' background, and the text of those that have one, before
  /// OnDrawCell.
  void SetDefaultDrawing(bool drawing);
  int GridLineWidth() const { return FGridLineWidth; }
  /// The width of the lines between cells, in pixels. Raises EArgumentOutOfRangeException outside 0
  /// to 100.
  void SetGridLineWidth(int width);
  TColor FixedColor() const { return FFixedColor; }
  /// The colour of the fixed cells.
  void SetFixedColor(TColor color);
  TScrollStyle ScrollBars() const { return FScrollBars; }
  /// Which scroll bars there are when there is more than is seen.
  void SetScrollBars(TScrollStyle scrollBars);
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// bsSingle for a border, bsNone for none; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);
  void InvalidateCell(int col, int row) { InvalidateCells({col, row, col, row}); }
  void InvalidateCol(int col);
  void InvalidateRow(int row);

  // What descendants say of their cells.
  /// Draws a cell whose background is there (with DefaultDrawing), with the canvas's font and brush
  /// in the colours of the state.
  virtual void DrawCell(int col, int row, const TRect& rect, TGridDrawState state) = 0;
  /// The lines' colour behind fixed and other cells.
  virtual TColor LineColor(bool fixed) const;
  /// Whether the current cell has a dotted frame while the grid has the focus.
  virtual bool ShowsFocus() const { return true; }
  /// What screen readers are told of a cell.
  virtual std::string CellText(int col, int row);
  /// Whether the cell may become the current one.
  virtual bool SelectCell(int /*col*/, int /*row*/) { return true; }
  virtual std::string GetEditText(int /*col*/, int /*row*/) { return {}; }
  virtual void SetEditText(int /*col*/, int /*row*/, const std::string& /*text*/) {}
  /// The mask that the cell is edited with (see TMaskText); empty for none.
  virtual std::string GetEditMask(int /*col*/, int /*row*/) { return {}; }
  virtual TEditStyle GetEditStyle(int /*col*/, int /*row*/) { return esSimple; }
  virtual void GetPickList(int /*col*/, int /*row*/, TStrings& /*items*/) {}
  /// Whether the user may change the cell.
  virtual bool CanModify(int col, int row);
  /// Whether the character may begin to be typed into the current cell.
  virtual bool CanType(char32_t /*key*/) { return true; }
  virtual bool Checked(int /*col*/, int /*row*/) { return false; }
  /// Turns the check box of a cell.
  virtual void ToggleChecked(int /*col*/, int /*row*/) {}
  virtual void EditButtonClick(int /*col*/, int /*row*/) {}
  virtual void FixedCellClick(int /*col*/, int /*row*/) {}
  virtual void ColumnMoved(int /*from*/, int /*to*/) {}
  virtual void RowMoved(int /*from*/, int /*to*/) {}
  virtual void TopLeftChanged() {}
  /// There are more or fewer columns or rows than before.
  virtual void CountsChanged() {}
  virtual void ColWidthsChanged() {}
  virtual void RowHeightsChanged() {}
  /// Whether form files hold the sizes of single columns and rows.
  virtual bool KeepsSizes() const { return true; }
  /// Whether keys may cut, paste and delete.
  virtual bool ChangesByClipboard() const { return FOptions.Has(goEditing); }

  // Scrolling, which a grid of records does in its own way.
  /// Scrolls by a command of a scroll bar (SB_...).
  virtual void Scroll(bool vertical, int command);
  /// Scrolls by a turn of the wheel (120 a notch, positive away from the user); false when there is
  /// nowhere to scroll to.
  virtual bool ScrollByWheel(bool vertical, int wheelDelta);
  /// Shows in the window's scroll bars what is seen.
  void ShowScrollPosition();
  /// One of them; of both each twice, for one that comes leaves the other less room.
  virtual void ShowBar(bool vertical);
  /// What Page Up and Page Down go by.
  int PageRows() const;
  int PageCols() const;

  /// Sorts the rows below the fixed ones by what stands at each place of `order`, which names all
  /// rows; their heights go with them.
  void ReorderRows(const std::vector<int>& order);
  /// Makes the cell the current one without asking, telling or scrolling; it is brought to where
  /// there are cells.
  void PutCurrent(int col, int row);
  /// Does what a key stands for; false when it stands for nothing. Also of the keys that end
  /// editing.
  virtual bool DoKey(std::uint16_t key, TShiftState shift);
  /// Whether the key is the grid's, which the form would else take: Tab, Enter, Escape.
  virtual bool WantsKey(WPARAM key) const;
  /// Tells screen readers of another current cell.
  void TellCurrent() const;
  /// Makes what is typed hold, and takes the edit away unless it always stays.
  void EndEdit();
  /// Ends what the user is doing: editing, which is cancelled, and dragging.
  void CancelActions();
  /// What is seen is another.
  void LayoutChanged();
  void DrawCheckBox(const TRect& rect, bool checked);
  /// Reads the text anew that is being edited, unless the user has changed it.
  void RefreshEditor();

  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DefineProperties(TFiler& filer) override;
  void Dispatch(TMessage& message) override;
  bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) override;
  void DoExit() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DblClick() override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  void Paint() override;
  void Resize() override;

 private:
  enum class TMouse { None, Selecting, Pressing, Sizing, Moving };
  /// What the mouse is at: the right or lower edge of a column or row, or a cell.
  struct THit {
    bool Edge = false;
    bool Column = false;  ///< Of an edge, or of what is moved.
    int Index = -1;
    TGridCoord Cell;
  };
  /// What a mouse button that is down does.
  struct TPress {
    TMouse Kind = TMouse::None;
    THit Hit;
    TPoint At;
    int Former = 0;  ///< The size at the beginning.
    int Target = -1;
    bool Again = false;  ///< The press was on the current cell.
    bool Dragged = false;
  };

  /// True while the focus is in the grid or in the edit over a cell.
  bool HasFocus() const;
  TGridAxis& Axis(bool columns) const { return columns ? *FCols : *FRows; }
  int Room(bool columns) const;
  void SetCount(bool columns, int count);
  void SetFixed(bool columns, int fixed);
  void SetDefaultSize(bool columns, int size);
  void SetSize(bool columns, int index, int size);
  void MoveOne(bool columns, int from, int to);
  void SizesChanged(bool columns);
  void UpdateLines();
  void KeepCurrentInside();
  void DefineSizes(TFiler& filer, bool columns);
  void ReadSizes(TReader& reader, bool columns);
  void ScaleSizes(bool columns, int m, int d);

  // Selection.
  void InvalidateCells(const TGridRect& cells);
  void SetCurrent(TGridCoord cell, bool extend);
  TAccessiblePath PathOf(TGridCoord cell) const;
  TAccessiblePart DescribeCell(const TGridBand& col, const TGridBand& row);
  TAccessiblePart DescribeRow(const TGridBand& row, const std::vector<TGridBand>& cols);

  // Scrolling.
  void ScrollTo(int left, int top);
  void BringIntoView(TGridCoord cell);
  int Target(bool vertical, int command) const;
  bool HasBar(bool vertical) const;

  // Painting.
  TGridDrawState StateOf(int col, int row) const;
  void UseColors(TGridDrawState state);
  void PaintCell(const TGridBand& col, const TGridBand& row);
  void PaintLines(const TGridBand& col, const TGridBand& row);
  void PaintRest(int right, int bottom);
  void PaintFocus();
  void PaintMark();
  void PaintButton();

  // Keys.
  bool MoveKey(std::uint16_t key, TShiftState shift);
  bool ScrollKey(std::uint16_t key, bool ctrl);
  bool TabKey(bool back);
  bool TabLeads(bool back) const;
  TGridCoord TabTarget(bool back) const;
  TGridCoord KeyTarget(std::uint16_t key, bool ctrl) const;
  bool EditKey(std::uint16_t key, TShiftState shift);
  bool ChangeKey(std::uint16_t key, bool ctrl);
  bool ClipboardKey(std::uint16_t key, TShiftState shift);
  void SelectAllCells();

  // Editing.
  bool CanEdit();
  bool AlwaysEdits() const { return FOptions.Has(goEditing) && FOptions.Has(goAlwaysShowEditor); }
  void MakeEditor();
  void ShowEditor();
  void HideEditor();
  void CancelEdit();
  void PlaceEditor();
  void UpdateEditor();
  TRect ButtonRect() const;
  bool HasButton() const { return FEditing && FEditStyle != esSimple; }
  void PressButton();
  void DropDown();
  void EditKeyDown(TObject* sender, std::uint16_t& key, TShiftState shift);
  void EditKeyPress(TObject* sender, char32_t& key);
  bool LeavesEditor(std::uint16_t key, TShiftState shift) const;
  void EditLeft(TObject* sender);
  void ListChosen(TObject* sender);
  /// Turns the check box of the current cell, if it has one that the user may turn.
  bool Toggle();
  void ClearCells();
  void WriteCells(const std::vector<std::pair<TGridCoord, std::string>>& cells);

  // The mouse.
  THit HitAt(int x, int y) const;
  int EdgeAt(bool columns, int x, int y) const;
  void PressCell(const THit& hit, TShiftState shift, int x, int y);
  void PressFixed(const THit& hit);
  void DragSelection(TPoint mouse);
  void DragSize(TPoint mouse);
  void DragMove(TPoint mouse);
  void ScrollBySelecting();
  void EndPress(bool apply);
  void ReleaseFixed(const TPress& press);
  bool ShowSizingCursor();
  TRect MarkRect() const;

  void CheckIndex(bool columns, int index) const;

  std::unique_ptr<TGridAxis> FCols;
  std::unique_ptr<TGridAxis> FRows;
  TGridCoord FCurrent{1, 1};
  TGridCoord FAnchor{1, 1};
  TGridOptions FOptions;
  bool FDefaultDrawing = true;
  int FGridLineWidth = 1;
  TColor FFixedColor;
  TScrollStyle FScrollBars = ssBoth;
  TBorderStyle FBorderStyle = bsSingle;
  bool FShowingBars = false;
  int FWheelRest[2] = {0, 0};
  TPress FPress;
  TInplaceEdit* FEdit = nullptr;  // Made when a cell is first edited.
  TPopupList* FList = nullptr;
  TEditStyle FEditStyle = esSimple;
  bool FEditing = false;
  bool FHiding = false;  // The editor: the focus comes back to the grid.
};

}  // namespace vcl
