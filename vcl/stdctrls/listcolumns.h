// The columns of list views in vsReport: TListColumn and TListColumns.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"
#include "vcl/rtl/collection.h"

namespace vcl {

/// The mark in a column's header that says how the items are sorted by it.
enum TSortMark { smNone, smUp, smDown };
template <>
inline constexpr TEnumText EnumText<TSortMark>{"TSortMark", "smNone smUp smDown"};

/// A column of a list view. Widths are in pixels.
class VCL_API TListColumn : public TCollectionItem {
 public:
  explicit TListColumn(TCollection* collection) : TCollectionItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  const std::string& Caption() const { return FCaption; }
  /// The text in the header.
  void SetCaption(const std::string& caption);
  TAlignment Alignment() const { return FAlignment; }
  /// Where the texts stand in the column. The system keeps the first one's to the left.
  void SetAlignment(TAlignment alignment);
  bool AutoSize() const { return FAutoSize; }
  /// True: the column takes what the others leave of the list view's width, in equal parts with
  /// other such columns.
  void SetAutoSize(bool autoSize);
  int ImageIndex() const { return FImageIndex; }
  /// The picture in the header, in SmallImages; -1 for none.
  void SetImageIndex(int index);
  int MaxWidth() const { return FMaxWidth; }
  /// The greatest width; 0 for none. Less is taken as 0.
  void SetMaxWidth(int width);
  int MinWidth() const { return FMinWidth; }
  /// The least width. Less than 0 is taken as 0; MaxWidth goes first.
  void SetMinWidth(int width);
  TSortMark SortMark() const { return FSortMark; }
  /// The arrow in the header: up for rising, down for falling, or none.
  void SetSortMark(TSortMark mark);
  int Width() const { return FWidth; }
  /// The width, which is kept between MinWidth and MaxWidth.
  void SetWidth(int width);

 private:
  friend class TCustomListView;
  template <class T>
  void Change(T& field, const T& value);
  int Limited(int width) const;

  std::string FCaption;
  TAlignment FAlignment = taLeftJustify;
  TSortMark FSortMark = smNone;
  int FImageIndex = -1;
  int FWidth = 50;
  int FMinWidth = 0;
  int FMaxWidth = 0;
  bool FAutoSize = false;
};

/// The columns of a list view: the first one shows captions, the others the items' SubItems.
class VCL_API TListColumns : public TCollection {
 public:
  TListColumns() : TCollection(TListColumn::Class()) {}
  /// The column at the index from 0. Raises EListError outside.
  TListColumn* Items(int index) const {
    return static_cast<TListColumn*>(TCollection::Items(index));
  }
  TListColumn* operator[](int index) const { return Items(index); }
  TListColumn* Add() { return static_cast<TListColumn*>(TCollection::Add()); }
};

}  // namespace vcl
