// TQELHeaderList: rows of columns under a header.
#pragma once

#include <memory>
#include <string>

#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qeltheader.h"
#include "vcl/grids/customgrid.h"

namespace qel {

class TRowSet;

/// Sender, column, and whether the order is falling.
using TQELSortEvent = vcl::TEvent<vcl::TObject*, int, bool>;
/// Sender, two rows, the column, and the order: negative, zero or positive.
using TQELCompareRowsEvent = vcl::TEvent<vcl::TObject*, int, int, int, int&>;
/// Sender, row, the index of its picture; -1 for none.
using TQELRowImageEvent = vcl::TEvent<vcl::TObject*, int, int&>;

/// A list of rows under a TQELHeader. The rows are the lines of Items or, with a RowCount, virtual
/// ones whose texts OnGetText gives: then only those that are seen cost anything. Rows count from
/// 0. Columns are counted as they were before the user moved any section.
///
/// A click on a section sorts (AutoSort). Typing goes to the next row that begins so, in the
/// sorted column or else the first one. F2 edits the current cell unless ReadOnly, Left and Right
/// choose it; Space turns the check box; Ctrl+C copies the selected rows as text with tabs, Ctrl+A
/// selects all. With MultiSelect Shift extends the selection and Ctrl changes single rows: Ctrl
/// with Up and Down goes on without selecting, Ctrl+Space selects. Ctrl and plus fits all columns.
class QEL_API TQELHeaderList : public vcl::TCustomGrid {
 public:
  explicit TQELHeaderList(vcl::TComponent* owner);
  ~TQELHeaderList() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  /// What the control says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  TQELHeader* Header() const { return FHeader; }
  TQELHeaderSections* Sections() const { return FHeader->Sections(); }
  /// The columns: their titles, widths and alignments.
  void SetSections(const TQELHeaderSections* sections) { FHeader->SetSections(sections); }
  TQELCustomBackground* HeaderBackground() const { return FHeader->Background(); }
  /// The background of the header, which is not owned; null for none.
  void SetHeaderBackground(TQELCustomBackground* background) { FHeader->SetBack(background); }
  vcl::TStrings* Items() const;
  /// The rows, a line each, with Separator between the columns.
  void SetItems(const vcl::TStrings* items) { Items()->Assign(items); }
  char32_t Separator() const { return FSeparator; }
  /// The character between the columns of a line. Takes any but 0.
  void SetSeparator(char32_t separator);
  int RowCount() const { return FRowCount; }
  /// How many virtual rows there are; 0 for the lines of Items. Takes only values from 0.
  void SetRowCount(int count);
  /// How many rows there are.
  int Count() const;
  vcl::TImageList* Images() const { return FImages.List; }
  /// The pictures of the rows, which are not owned; OnGetImage says which. Null for none.
  void SetImages(vcl::TImageList* images);
  bool CheckBoxes() const { return FCheckBoxes; }
  /// True: each row has a check box.
  void SetCheckBoxes(bool checkBoxes);
  bool AutoSort() const { return FAutoSort; }
  /// True: a click on a section sorts the rows by it, a second one the other way round.
  void SetAutoSort(bool autoSort) { FAutoSort = autoSort; }
  bool MultiSelect() const { return FMultiSelect; }
  /// True: several rows may be selected.
  void SetMultiSelect(bool multiSelect);
  int ItemIndex() const { return FItemIndex; }
  /// The current row, which is then the selected one; -1 for none. Takes only rows that are there.
  void SetItemIndex(int row);
  vcl::TColor AlternateColor() const { return FAlternateColor; }
  /// The colour behind every second row; clNone for none.
  void SetAlternateColor(vcl::TColor color);
  bool GridLines() const { return FGridLines; }
  /// True: there are lines between the cells.
  void SetGridLines(bool lines);
  bool ReadOnly() const { return FReadOnly; }
  /// False: F2 edits the current cell.
  void SetReadOnly(bool readOnly);

  /// The text of a cell; empty where there is none.
  std::string TextOf(int row, int column);
  bool Selected(int row) const;
  /// Selects a row beside those that are, or no longer; without MultiSelect it becomes the only
  /// one. Nothing happens for one that is not there.
  void SetSelected(int row, bool selected);
  int SelCount() const;
  void SelectAll();
  void ClearSelection();
  bool Checked(int row) const;
  void SetChecked(int row, bool checked);
  /// The selected rows as text: tabs between columns, an end of line behind each row.
  std::string SelectionText();
  void CopyToClipboard();
  /// Sorts by a section and marks it: Items as numbers, dates or texts, whatever the column holds,
  /// or by OnCompare; rows that are equal keep their order. Virtual rows sort themselves, in
  /// OnSort. Nothing happens for a section that is not there.
  void SortBy(int section, bool descending);
  /// Edits a cell of the current row; false when that may not be.
  bool EditCell(int section);
  /// The first row from `from` on, round the end, whose text in the column begins so, without
  /// regard to case; -1 for none.
  int FindRow(const std::string& text, int column, int from);
  /// The row at the position; -1 for none.
  int RowAt(int x, int y) const;
  /// To draw on in OnDrawCell.
  vcl::TCanvas* Canvas() const { return TCustomGrid::Canvas(); }

  /// The user has turned the check box of the current row.
  vcl::TNotifyEvent OnClickCheck;
  /// Two rows of Items are compared, to sort by a column: the handler says which comes first.
  TQELCompareRowsEvent OnCompare;
  /// A cell is to be drawn, by column and row: its background is there, and the canvas has the
  /// colours of its state.
  vcl::TDrawCellEvent OnDrawCell;
  /// A row's picture is asked for; it has none unless the handler gives one.
  TQELRowImageEvent OnGetImage;
  /// A virtual row's text is asked for, by column and row.
  vcl::TGetEditEvent OnGetText;
  /// A section was clicked; the rows have not been sorted yet.
  TQELSectionEvent OnSectionClick;
  /// The user has sized a section.
  TQELSectionEvent OnSectionResize;
  /// The user has selected another row, or more or fewer.
  vcl::TNotifyEvent OnSelect;
  /// The user has edited a virtual row's text, by column and row. Raising refuses it.
  vcl::TSetEditEvent OnSetText;
  /// Virtual rows are to be sorted.
  TQELSortEvent OnSort;

 protected:
  void DrawCell(int col, int row, const vcl::TRect& rect, vcl::TGridDrawState state) override;
  std::string CellText(int col, int row) override;
  bool SelectCell(int col, int row) override;
  std::string GetEditText(int col, int row) override { return CellText(col, row); }
  void SetEditText(int col, int row, const std::string& text) override;
  bool CanModify(int col, int row) override;
  bool KeepsSizes() const override { return false; }
  bool ShowsFocus() const override { return false; }
  bool ChangesByClipboard() const override { return false; }
  bool WantsKey(WPARAM key) const override;
  bool DoKey(std::uint16_t key, vcl::TShiftState shift) override;
  void TopLeftChanged() override { PlaceHeader(); }
  void ChangeScale(int m, int d) override;
  void Loaded() override;
  void Dispatch(vcl::TMessage& message) override;
  void KeyPress(char32_t& key) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;
  void Paint() override;
  void Resize() override;

 private:
  class TLines;
  class TListHeader;
  // At 96 dots per inch.
  static constexpr int CheckSize = 13;
  static constexpr int TextInset = 4;  // So that texts stand below the titles.

  // Columns.
  void ColumnsChanged();
  void PlaceHeader();
  void FitRows();
  int ColumnOf(int col) const;
  int LeadWidth() const;
  int ContentWidth(int section);
  void FitColumns();
  void HeaderClicked(TQELHeaderSection* section);

  // Rows.
  bool Virtual() const { return FRowCount > 0; }
  void RowsChanged();
  void RowInserted(int row);
  void RowDeleted(int row);
  void RowsCleared();
  void SortItems(int column, bool descending);
  std::vector<int> OrderBy(int column, bool descending);
  void ReorderItems(const std::vector<int>& order);

  // Selection.
  template <class Move>
  void ByUser(bool extend, Move move);
  void TakeRow(int row, bool extend);
  void SelectOnly(int row);
  void ToggleRow(int row);
  void PressRow(int row, vcl::TShiftState shift, bool box);
  void GoToRow(int row, bool extend);
  void ToggleCheck(int row);
  bool ListKey(std::uint16_t key, vcl::TShiftState shift);
  bool CtrlKey(std::uint16_t key);
  void Search();
  void PaintLead(int row, vcl::TRect& inside);
  vcl::TRect CheckRect(const vcl::TRect& cell) const;

  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<TLines> FLines;
  std::unique_ptr<TRowSet> FSelected;
  std::unique_ptr<TRowSet> FChecked;
  vcl::TLinkedImages FImages;
  TQELHeader* FHeader;
  char32_t FSeparator = U'\t';
  int FRowCount = 0;
  int FItemIndex = -1;
  int FSelectFrom = 0;  // The row that Shift extends from.
  vcl::TColor FAlternateColor = vcl::clNone;
  bool FCheckBoxes = false;
  bool FAutoSort = true;
  bool FMultiSelect = false;
  bool FGridLines = false;
  bool FReadOnly = true;
  bool FMayEdit = false;  // While a cell begins to be edited.
  bool FMoved = false;    // To another row, by somebody who asked.
  bool FPlacing = false;
  std::string FTyped;
  std::uint64_t FTypedAt = 0;  // In the system's milliseconds.
};

}  // namespace qel
