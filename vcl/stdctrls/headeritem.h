// THeaderItem: what a column of a list view and a section of a header control have in common.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"
#include "vcl/rtl/collection.h"

namespace vcl {

/// The mark in a header that says how things are sorted by it.
enum TSortMark { smNone, smUp, smDown };
template <>
inline constexpr TEnumText EnumText<TSortMark>{"TSortMark", "smNone smUp smDown"};

/// A part of a header. Widths are in pixels.
class VCL_API THeaderItem : public TCollectionItem {
 public:
  explicit THeaderItem(TCollection* collection) : TCollectionItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  const std::string& Text() const { return FText; }
  /// The text in the header.
  void SetText(const std::string& text);
  TAlignment Alignment() const { return FAlignment; }
  /// Where the texts stand.
  void SetAlignment(TAlignment alignment);
  bool AutoSize() const { return FAutoSize; }
  /// True: takes what the others leave of the control's width, in equal parts with other such ones.
  void SetAutoSize(bool autoSize);
  int ImageIndex() const { return FImageIndex; }
  /// The picture in the header; -1 for none.
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
  /// A width as the limits let it be.
  int Limited(int width) const;

 protected:
  template <class T>
  void Change(T& field, const T& value) {
    if (value == field) return;
    field = value;
    FWidth = Limited(FWidth);
    Changed(false);
  }

 private:
  friend class THeaderFit;
  std::string FText;
  TAlignment FAlignment = taLeftJustify;
  TSortMark FSortMark = smNone;
  int FImageIndex = -1;
  int FWidth = 50;
  int FMinWidth = 0;
  int FMaxWidth = 0;
  bool FAutoSize = false;
};

}  // namespace vcl
