// TColumn and TDBGridColumns: the columns of a grid of records.
#pragma once

#include <optional>
#include <string>

#include "vcl/grids/gridcolumns.h"

namespace vcl {

class TDBGrid;
class TField;

/// A column of a grid of records. What it does not say itself is as its field has it.
class VCL_API TColumn : public TGridColumn {
 public:
  explicit TColumn(TCollection* collection) : TGridColumn(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  const std::string& FieldName() const { return FFieldName; }
  /// The name of the field that the column shows.
  void SetFieldName(const std::string& fieldName);
  /// The field; null while there is none of that name.
  TField* Field() const;
  TAlignment Alignment() const;
  /// Where the texts stand between left and right; numbers stand at the right unless it is set.
  void SetAlignment(TAlignment alignment);
  std::string Title() const;
  /// What stands above the column: the field's label unless it is set.
  void SetTitle(const std::string& title) { TGridColumn::SetTitle(title); }
  int Width() const;
  /// The width in pixels, at least 1: as the field says unless it is set. Raises
  /// EArgumentOutOfRangeException outside 1 to 32767.
  void SetWidth(int width);
  bool Visible() const { return FVisible; }
  /// False: the grid does not show the column.
  void SetVisible(bool visible) { Change(FVisible, visible); }
  /// True when the user may change the field by this column.
  bool CanModify() const;

 private:
  friend class TDBGrid;
  TDBGrid* Grid() const;
  bool IsAlignmentStored() const { return FOwnAlignment.has_value(); }
  bool IsWidthStored() const { return FWidth.has_value(); }
  bool IsTitleStored() const { return !TGridColumn::Title().empty(); }

  std::string FFieldName;
  std::optional<TAlignment> FOwnAlignment;
  std::optional<int> FWidth;
  bool FVisible = true;
};

/// The columns of a grid of records, from left to right.
class VCL_API TDBGridColumns : public TCollection {
 public:
  explicit TDBGridColumns(TDBGrid* grid) : TCollection(TColumn::Class()), FGrid(grid) {}
  /// The column at the index from 0. Raises EListError outside.
  TColumn* Items(int index) const { return static_cast<TColumn*>(TCollection::Items(index)); }
  TColumn* Add() { return static_cast<TColumn*>(TCollection::Add()); }
  TDBGrid* Grid() const { return FGrid; }

 private:
  TDBGrid* FGrid;
};

}  // namespace vcl
