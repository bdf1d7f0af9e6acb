// TLookupRows and TCustomLookupList: the rows of a data set that a lookup control offers, and a
// list of them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "vcl/db/datasource.h"
#include "vcl/grids/customgrid.h"

namespace vcl {

/// The records of a list source: of each its key, and the texts that stand for it. They are read
/// where they are; only those that are asked for cost anything, and no current record changes.
class VCL_API TLookupRows : public TDataLink {
 public:
  /// `changed` is called when any of it may be another.
  explicit TLookupRows(std::function<void()> changed) : FChanged(std::move(changed)) {}

  const std::string& KeyField() const { return FKeyField; }
  void SetKeyField(const std::string& name);
  /// The fields whose texts stand for a record, with semicolons between them; the key field without
  /// any.
  const std::string& ListField() const { return FListField; }
  void SetListField(const std::string& names);
  /// Which of them is searched and stands for the record in one line.
  int ListFieldIndex() const { return FListFieldIndex; }
  void SetListFieldIndex(int index);

  int Count() const;
  std::vector<std::string> ListFields() const;
  /// The list field of that place; null while there is none.
  TField* ListFieldAt(int place) const;
  /// The text of a row in a list field; empty outside.
  std::string Text(int row, int place) const;
  std::string Text(int row) const { return Text(row, FListFieldIndex); }
  /// The key of a row; Null outside.
  TFieldValue Key(int row) const;
  /// The row with the key; -1 for none.
  int RowOf(const TFieldValue& key) const;
  /// The first row whose text begins so, but for case; -1 for none.
  int RowBeginning(const std::string& text) const;

 protected:
  void ActiveChanged() override { FChanged(); }
  void RecordChanged(TField* field) override;
  void DataSetChanged() override { FChanged(); }
  /// Another current record is none of the list's matters.
  void DataSetScrolled(int /*distance*/) override {}

 private:
  int Find(const std::string& field, const TFieldValue& value, TLocateOptions options) const;

  std::function<void()> FChanged;
  std::string FKeyField, FListField;
  int FListFieldIndex = 0;
};

/// A list of such rows, of which one may be chosen. Only those that are seen are read.
class VCL_API TCustomLookupList : public TCustomGrid {
 public:
  explicit TCustomLookupList(TComponent* owner);
  ~TCustomLookupList() override;
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TLookupRows& Rows() { return FRows; }
  const TLookupRows& Rows() const { return FRows; }
  /// The chosen row; -1 for none.
  int ChosenRow() const { return FChosen; }
  /// Chooses a row by code, and brings it into view.
  void ShowChosen(int row);
  /// What has been typed so far to find a row.
  const std::string& SearchText() const { return FSearch; }
  /// A character that was typed: goes to the row whose text begins with all that was typed at a
  /// time. False when there is none.
  bool SearchBy(char32_t character);
  /// A key that moves the choice; false when it does not.
  bool MoveBy(std::uint16_t key);
  /// The height of one row with its line.
  int RowPitch() const { return DefaultRowHeight() + GridLineWidth(); }

 protected:
  /// The user has chosen a row.
  virtual void RowChosen() {}
  /// The rows may be others.
  virtual void RowsChanged();
  void FitRows();
  int RowAt(int x, int y) const { return MouseCoord(x, y).Y; }
  void ChooseByUser(int row);

  void CreateWnd() override;
  void DrawCell(int col, int row, const TRect& rect, TGridDrawState state) override;
  std::string CellText(int col, int row) override;
  bool SelectCell(int col, int row) override;
  bool KeepsSizes() const override { return false; }
  bool DoKey(std::uint16_t key, TShiftState shift) override {
    return (shift.Empty() && MoveBy(key)) || TCustomGrid::DoKey(key, shift);
  }
  void Dispatch(TMessage& message) override;
  void KeyPress(char32_t& key) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void Resize() override;

 private:
  int ColumnWidth(int place, int places) const;

  TLookupRows FRows;
  int FChosen = -1;
  bool FShowingChosen = false;
  bool FFitting = false;
  std::string FSearch;
  std::uint32_t FSearchedAt = 0;
};

}  // namespace vcl
