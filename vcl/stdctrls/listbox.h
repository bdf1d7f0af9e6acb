// TCustomListBox and TListBox.
#pragma once

#include "vcl/stdctrls/listcontrol.h"

namespace vcl {

enum TListBoxStyle {
  lbStandard,          ///< Drawn by the system.
  lbOwnerDrawFixed,    ///< Drawn by OnDrawItem, all items ItemHeight high.
  lbOwnerDrawVariable  ///< Drawn by OnDrawItem, each item as high as OnMeasureItem says.
};
template <>
inline constexpr TEnumText EnumText<TListBoxStyle>{
    "TListBoxStyle", "lbStandard lbOwnerDrawFixed lbOwnerDrawVariable"};

/// A list box. OnClick tells that the user has selected.
class VCL_API TCustomListBox : public TCustomListControl {
 public:
  explicit TCustomListBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// bsSingle for a border, bsNone for none.
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);
  bool ExtendedSelect() const { return FExtendedSelect; }
  /// With MultiSelect: Shift and Ctrl extend the selection; else every click turns an item.
  void SetExtendedSelect(bool extended);
  bool IntegralHeight() const { return FIntegralHeight; }
  /// True: the height shrinks to whole items.
  void SetIntegralHeight(bool integral);
  bool MultiSelect() const { return FMultiSelect; }
  /// True: several items can be selected at once.
  void SetMultiSelect(bool multiSelect);
  TListBoxStyle Style() const { return FStyle; }
  /// Whether the system or OnDrawItem draws the items.
  void SetStyle(TListBoxStyle style);

  int ItemIndex() const override;
  void SetItemIndex(int index) override;
  /// Whether the item is selected. These raise EStringListError for an index that is not an item's.
  bool Selected(int index) const;
  void SetSelected(int index, bool selected);
  int SelCount() const;
  /// The first item that is seen.
  int TopIndex() const;
  void SetTopIndex(int index);
  /// The item at the position in the list box; -1 for none (`existing`), else the number of items.
  int ItemAtPos(TPoint position, bool existing) const;
  /// Where the item stands in the list box.
  TRect ItemRect(int index) const;

 protected:
  bool OwnerDraw() const override { return FStyle != lbStandard; }
  bool MeasuresItems() const override { return FStyle == lbOwnerDrawVariable; }
  void KeepSelection() override;
  void RestoreSelection() override;
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  /// The press selects before it drags. In a list with several selected items, one on a selected
  /// item drags them all, and one with Shift or Ctrl only selects.
  void BeginAutoDrag(TMessage& press) override;

 private:
  bool DragsSelection(const TMessage& press) const;
  template <class T>
  void ChangeStyle(T& field, T value);

  TBorderStyle FBorderStyle = bsSingle;
  TListBoxStyle FStyle = lbStandard;
  bool FExtendedSelect = true;
  bool FIntegralHeight = false;
  bool FMultiSelect = false;
  int FCaret = -1;  // While there is no window.
  int FTopIndex = 0;
};

/// A list box for forms.
class VCL_API TListBox : public TCustomListBox {
 public:
  explicit TListBox(TComponent* owner) : TCustomListBox(owner) { HearOnlyAsked<TListBox>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
