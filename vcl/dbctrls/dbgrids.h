// TDBGrid: records in rows.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/db/datasource.h"
#include "vcl/dbctrls/dbgridcolumns.h"
#include "vcl/grids/customgrid.h"

namespace vcl {

enum TDBGridOption {
  dgEditing,        ///< Fields are edited in place.
  dgTitles,         ///< The columns have titles.
  dgIndicator,      ///< A column at the left marks the current record.
  dgColumnResize,   ///< The user drags the titles' right edges, and columns by their titles.
  dgColLines,       ///< Lines between columns.
  dgRowLines,       ///< Lines between rows.
  dgTabs,           ///< Tab goes from field to field.
  dgRowSelect,      ///< The whole record is marked; nothing is edited.
  dgConfirmDelete,  ///< Ctrl+Del asks before it deletes.
  dgCancelOnExit    ///< A new record without a value is dropped when the focus leaves.
};
template <>
inline constexpr TEnumText EnumText<TDBGridOption>{
    "TDBGridOption",
    "dgEditing dgTitles dgIndicator dgColumnResize dgColLines dgRowLines dgTabs dgRowSelect "
    "dgConfirmDelete dgCancelOnExit",
    "TDBGridOptions"};
using TDBGridOptions = TSet<TDBGridOption>;

/// Sender, column.
using TDBGridClickEvent = TEvent<TObject*, TColumn*>;
template <>
inline constexpr TEventText EventText<TDBGridClickEvent>{
    "TDBGridClickEvent", "vcl::TObject* sender, vcl::TColumn* column"};
/// Sender, the cell's rectangle on the sender's Canvas, the number of the column, the column, the
/// cell's state. The fields hold the row's record meanwhile.
using TDrawColumnCellEvent = TEvent<TObject*, const TRect&, int, TColumn*, TGridDrawState>;
template <>
inline constexpr TEventText EventText<TDrawColumnCellEvent>{
    "TDrawColumnCellEvent",
    "vcl::TObject* sender, const vcl::TRect& rect, int dataCol, vcl::TColumn* column, "
    "vcl::TGridDrawState state"};

/// Shows records around the current one, which is marked; the keyboard, the wheel, the scroll bar
/// and clicks make others the current one. Of a unidirectional data set it shows the current record
/// only. With dgEditing, and without dgRowSelect, fields are edited in place: typing begins to edit
/// the record, another record posts it, Insert begins a new one, as Down does below the last,
/// Ctrl+Del deletes one, Escape cancels.
class VCL_API TDBGrid : public TCustomGrid {
 public:
  explicit TDBGrid(TComponent* owner);
  ~TDBGrid() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  std::vector<TAccessiblePart> AccessibleParts() override;

  TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set whose records are shown; null for none.
  void SetDataSource(TDataSource* dataSource);
  TDBGridColumns* Columns() const { return FColumns.get(); }
  /// The columns, from left to right; without any, each visible field has one.
  void SetColumns(const TCollection* columns) { FColumns->Assign(columns); }
  TDBGridOptions Options() const { return FOptions; }
  /// What the user may do, and what of the grid there is.
  void SetOptions(TDBGridOptions options);
  bool ReadOnly() const { return FReadOnly; }
  /// True: the user cannot change the records here.
  void SetReadOnly(bool readOnly);
  /// How many columns are shown, and one of them by its number from 0. Raises EListError outside.
  int ShownCount() const { return static_cast<int>(FShown.size()); }
  TColumn* Shown(int index) const;
  /// The column and the field of the current cell; null for none.
  TColumn* SelectedColumn() const;
  TField* SelectedField() const;
  /// The number of the current cell's column among those shown.
  int SelectedIndex() const;
  void SetSelectedIndex(int index);
  /// The width, in pixels, that the field's DisplayWidth asks for.
  int FieldWidth(const TField& field) const;
  using TCustomGrid::CellRect;
  using TCustomGrid::EditorMode;
  using TCustomGrid::SetEditorMode;
  TCanvas* Canvas() const { return TCustomGrid::Canvas(); }

  /// A cell of a record is to be drawn again, over what the grid draws.
  TDrawColumnCellEvent OnDrawColumnCell;
  /// The title of a column was clicked.
  TDBGridClickEvent OnTitleClick;
  /// The user has taken a column elsewhere.
  TDBGridClickEvent OnColumnMoved;
  /// The button beside the edit of a cell was pressed.
  TNotifyEvent OnEditButtonClick;

 protected:
  void CreateWnd() override;
  void ChangeScale(int m, int d) override;
  void Dispatch(TMessage& message) override;
  void DoExit() override;
  void Loaded() override;
  void Paint() override;
  void Resize() override;

  void DrawCell(int col, int row, const TRect& rect, TGridDrawState state) override;
  TColor LineColor(bool fixed) const override;
  bool ShowsFocus() const override { return !FOptions.Has(dgRowSelect); }
  std::string CellText(int col, int row) override;
  bool SelectCell(int col, int row) override;
  std::string GetEditText(int col, int row) override;
  std::string GetEditMask(int col, int row) override;
  void SetEditText(int col, int row, const std::string& text) override;
  TEditStyle GetEditStyle(int col, int row) override;
  void GetPickList(int col, int row, TStrings& items) override;
  bool CanModify(int col, int row) override;
  bool CanType(char32_t key) override;
  bool Checked(int col, int row) override;
  void ToggleChecked(int col, int row) override;
  void EditButtonClick(int /*col*/, int /*row*/) override { OnEditButtonClick(this); }
  void FixedCellClick(int col, int row) override;
  void ColWidthsChanged() override;
  bool KeepsSizes() const override { return false; }
  bool ChangesByClipboard() const override { return false; }
  void Scroll(bool vertical, int command) override;
  bool ScrollByWheel(bool vertical, int wheelDelta) override;
  void ColumnMoved(int from, int to) override;
  void ShowBar(bool vertical) override;
  bool DoKey(std::uint16_t key, TShiftState shift) override;
  bool WantsKey(WPARAM key) const override;

 private:
  /// Shows what has happened to the records.
  class TLink : public TDataLink {
   public:
    explicit TLink(TDBGrid& grid) : FGrid(grid) {}

   protected:
    void ActiveChanged() override { FGrid.DataChanged(); }
    void EditingChanged() override { FGrid.EditingChanged(); }
    void RecordChanged(TField*) override { FGrid.DataChanged(); }
    void UpdateData() override { FGrid.CommitEdit(); }

   private:
    TDBGrid& FGrid;
  };

  bool HasColumns() const { return FColumns->Count() > 0; }
  void ColumnsChanged();
  void DataChanged();
  void EditingChanged();
  void FindShown();
  void MakeFieldColumns();
  void FitGrid();
  void FitColumns();
  void UseOptions();
  int Pitch() const;
  int Margin() const;
  int LineWidth(TDBGridOption option) const { return FOptions.Has(option) ? 1 : 0; }
  int FirstCol() const { return FOptions.Has(dgIndicator) ? 1 : 0; }
  TColumn* ColumnAt(int col) const;
  /// Calls with the fields holding the row's record.
  template <class Call>
  void WithRecord(int row, const Call& call);
  static void WriteLookup(const TField& field, const std::string& text);
  void DrawFieldText(const TRect& rect, const std::string& text, TAlignment alignment);
  void DrawIndicator(int row, const TRect& rect);
  void DrawField(TGridCoord cell, TColumn& column, const TRect& rect, TGridDrawState state);
  void MoveBy(int distance);
  bool EditsRecords() const;
  bool RecordKey(std::uint16_t key, TShiftState shift);
  bool ChangeKey(std::uint16_t key, TShiftState shift);
  void DeleteRecord();
  /// Tells screen readers of another current record.
  void TellRecord();

  TLink FLink;
  std::unique_ptr<TDBGridColumns> FColumns;
  std::unique_ptr<TDBGridColumns> FFieldColumns;  // Of the fields, where Columns is empty.
  std::vector<TColumn*> FShown;
  TDBGridOptions FOptions;
  bool FReadOnly = false;
  bool FFitting = false;
  int FToldRecord = 0;  // Which one screen readers know as the current one.
};

}  // namespace vcl
