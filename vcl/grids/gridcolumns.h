// TGridColumn: how one column of a grid is shown and edited.
#pragma once

#include <memory>
#include <string>

#include "vcl/grids/gridtypes.h"
#include "vcl/rtl/collection.h"

namespace vcl {

/// How the cells of a column are edited: by a list where there is one, else plainly; with a button;
/// plainly; by a check box.
enum TColumnButtonStyle { cbsAuto, cbsEllipsis, cbsNone, cbsCheckBox };
template <>
inline constexpr TEnumText EnumText<TColumnButtonStyle>{"TColumnButtonStyle",
                                                        "cbsAuto cbsEllipsis cbsNone cbsCheckBox"};

/// A column's title, alignment and way of editing.
class VCL_API TGridColumn : public TCollectionItem {
 public:
  explicit TGridColumn(TCollection* collection);
  ~TGridColumn() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  TAlignment Alignment() const { return FAlignment; }
  /// Where the texts stand between left and right.
  void SetAlignment(TAlignment alignment);
  TColumnButtonStyle ButtonStyle() const { return FButtonStyle; }
  /// How the cells are edited.
  void SetButtonStyle(TColumnButtonStyle style);
  TStrings* PickList() const;
  /// The values that a cell's list offers; others may be typed.
  void SetPickList(const TStrings* values);
  bool ReadOnly() const { return FReadOnly; }
  /// True: the user cannot change the cells.
  void SetReadOnly(bool readOnly);
  const std::string& Title() const { return FTitle; }
  /// What stands above the column, in the last fixed row, where the cell there has no text.
  void SetTitle(const std::string& title);
  const std::string& ValueChecked() const { return FValueChecked; }
  /// The text of a cell whose box is checked.
  void SetValueChecked(const std::string& value);
  const std::string& ValueUnchecked() const { return FValueUnchecked; }
  /// The text that a cell gets when its box is no longer checked.
  void SetValueUnchecked(const std::string& value);

  TEditStyle EditStyle() const;

 protected:
  /// Takes another value, and tells the grid when it differs.
  template <class T>
  void Change(T& field, const T& value) {
    if (value == field) return;
    field = value;
    Changed(false);
  }

 private:
  TAlignment FAlignment = taLeftJustify;
  TColumnButtonStyle FButtonStyle = cbsAuto;
  std::unique_ptr<TStrings> FPickList;
  bool FReadOnly = false;
  std::string FTitle;
  std::string FValueChecked = "True";
  std::string FValueUnchecked = "False";
};

/// The columns of a grid, from left to right.
class VCL_API TGridColumns : public TCollection {
 public:
  TGridColumns() : TCollection(TGridColumn::Class()) {}
  /// The column at the index from 0. Raises EListError outside.
  TGridColumn* Items(int index) const {
    return static_cast<TGridColumn*>(TCollection::Items(index));
  }
  TGridColumn* Add() { return static_cast<TGridColumn*>(TCollection::Add()); }
};

}  // namespace vcl
