// TGridPanel: a panel whose controls stand in the cells of rows and columns.
#pragma once

#include "vcl/rtl/collection.h"
#include "vcl/stdctrls/panel.h"

namespace vcl {

class TGridPanel;

/// How the size of a row or column is found: in pixels, as a share of what the others leave, or as
/// much as the largest control in it that covers no other needs.
enum TSizeStyle { ssAbsolute, ssPercent, ssAuto };
template <>
inline constexpr TEnumText EnumText<TSizeStyle>{"TSizeStyle", "ssAbsolute ssPercent ssAuto"};
/// What a grid gets when a control comes in and all cells are taken.
enum TExpandStyle { emAddRows, emAddColumns, emFixedSize };
template <>
inline constexpr TEnumText EnumText<TExpandStyle>{"TExpandStyle",
                                                  "emAddRows emAddColumns emFixedSize"};

/// A row or a column of a grid.
class VCL_API TCellItem : public TCollectionItem {
 public:
  explicit TCellItem(TCollection* collection) : TCollectionItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  TSizeStyle SizeStyle() const { return FSizeStyle; }
  /// Whether the size is so many pixels, a share of what is left, or what the controls need.
  void SetSizeStyle(TSizeStyle style);
  double Value() const { return FValue; }
  /// Pixels, or what this one's part of the shares is to the sum of all; without meaning for
  /// ssAuto. 50 at first. Raises EArgumentOutOfRangeException for a negative one and for one above
  /// a million.
  void SetValue(double value);
  /// The size that the last layout found, in pixels.
  int Size() const { return FSize; }

 private:
  friend class TGridPanel;
  TSizeStyle FSizeStyle = ssPercent;
  double FValue = 50;
  int FSize = 0;
};

/// A control's place in a grid.
class VCL_API TControlItem : public TCollectionItem {
 public:
  explicit TControlItem(TCollection* collection) : TCollectionItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  TControl* Control() const { return FControl; }
  /// The control that the place is of. It stands inside the grid.
  void SetControl(TControl* control);
  int Column() const { return FColumn; }
  /// The first column that the control covers, from 0; a control whose cells are not there is left
  /// where it is. Raises EArgumentOutOfRangeException for a negative one; the same of a row, and of
  /// spans below 1.
  void SetColumn(int column) { Set(FColumn, column, 0, "column"); }
  int Row() const { return FRow; }
  /// The first row that the control covers, from 0; see SetColumn.
  void SetRow(int row) { Set(FRow, row, 0, "row"); }
  int ColumnSpan() const { return FColumnSpan; }
  /// How many columns the control covers.
  void SetColumnSpan(int span) { Set(FColumnSpan, span, 1, "column span"); }
  int RowSpan() const { return FRowSpan; }
  /// How many rows the control covers.
  void SetRowSpan(int span) { Set(FRowSpan, span, 1, "row span"); }

 private:
  friend class TGridPanel;
  void Set(int& field, int value, int least, const char* what);

  TControl* FControl = nullptr;
  int FColumn = 0;
  int FRow = 0;
  int FColumnSpan = 1;
  int FRowSpan = 1;
};

/// Puts each control inside into a cell of rows and columns, or over several. In its cell a control
/// stands where its Align says (with alClient it fills the cell) or, with alNone, its Anchors: at
/// the edges that they name, in the middle with none of two. A control that comes in takes the
/// first free cell; in a designer the one that it is dropped on, if that is free.
class VCL_API TGridPanel : public TCustomPanel {
 public:
  /// Two rows and two columns of the same size.
  explicit TGridPanel(TComponent* owner);
  ~TGridPanel() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TCollection* ColumnCollection() const { return FColumns.get(); }
  /// The columns, from left to right; items of TCellItem.
  void SetColumnCollection(const TCollection* columns) { FColumns->Assign(columns); }
  TCollection* RowCollection() const { return FRows.get(); }
  /// The rows, from top to bottom; items of TCellItem.
  void SetRowCollection(const TCollection* rows) { FRows->Assign(rows); }
  TCollection* ControlCollection() const { return FPlaces.get(); }
  /// The places of the controls inside; items of TControlItem.
  void SetControlCollection(const TCollection* places) { FPlaces->Assign(places); }
  TExpandStyle ExpandStyle() const { return FExpandStyle; }
  /// emFixedSize leaves a control that finds no free cell where it is.
  void SetExpandStyle(TExpandStyle style) { FExpandStyle = style; }

  TCellItem* Columns(int index) const { return static_cast<TCellItem*>(FColumns->Items(index)); }
  TCellItem* Rows(int index) const { return static_cast<TCellItem*>(FRows->Items(index)); }
  TControlItem* Places(int index) const {
    return static_cast<TControlItem*>(FPlaces->Items(index));
  }
  /// The control's place; null for one that has none.
  TControlItem* PlaceOf(const TControl* control) const;
  /// The control in the cell; null when it is free.
  TControl* ControlIn(int column, int row) const;
  /// The rectangle of the cell, as the last layout found it. Raises EListError for one that is not
  /// there.
  TRect CellRect(int column, int row) const;

 protected:
  void AlignControls(TControl* control, TRect& rect) override;
  bool ArrangesFree() const override { return true; }
  void Dispatch(TMessage& message) override;
  void Paint() override;
  void Loaded() override;

 private:
  void Changed();
  void AddPlace(TControl* control);
  void TakeFreeCell(TControlItem& place);
  bool TakeCellAt(TControlItem& place, TPoint point);
  void Measure(const TCollection& cells, bool columns, int room) const;
  int NeedOf(int index, bool columns) const;
  void PutInCell(TControl& control, TRect cell) const;

  std::unique_ptr<TCollection> FColumns;
  std::unique_ptr<TCollection> FRows;
  std::unique_ptr<TCollection> FPlaces;
  TExpandStyle FExpandStyle = emAddRows;
  TPoint FOrigin;  // Of the cells, in the panel.
};

}  // namespace vcl
