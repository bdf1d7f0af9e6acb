// TCustomListControl: what list boxes and combo boxes have in common.
#pragma once

#include <memory>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/strings.h"

namespace vcl {

class TLineLook;
class TListLines;
struct TListMessages;

enum TOwnerDrawStateValue {
  odSelected,
  odGrayed,
  odDisabled,
  odChecked,
  odFocused,
  odComboBoxEdit  ///< It is the field of a combo box, not a line of its list.
};
using TOwnerDrawState = TSet<TOwnerDrawStateValue>;
/// Sender, index, the item's rectangle on the sender's Canvas, state. The canvas comes with the
/// colours of the state, the rectangle filled.
using TDrawItemEvent = TEvent<TObject*, int, const TRect&, TOwnerDrawState>;
template <>
inline constexpr TEventText EventText<TDrawItemEvent>{
    "TDrawItemEvent",
    "vcl::TObject* sender, int index, const vcl::TRect& rect, vcl::TOwnerDrawState state"};
/// Sender, index, the item's height in pixels, which comes as ItemHeight and is for the handler to
/// change; less than 1 or more than 255 is taken as the nearest that is not.
using TMeasureItemEvent = TEvent<TObject*, int, int&>;
template <>
inline constexpr TEventText EventText<TMeasureItemEvent>{
    "TMeasureItemEvent", "vcl::TObject* sender, int index, int& height"};

/// A control with a list of items. Items, objects and selection outlive its window.
class VCL_API TCustomListControl : public TWinControl {
 public:
  ~TCustomListControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TStrings* Items() const;
  /// The texts of the list, with an object beside each.
  void SetItems(const TStrings* items);
  /// The selected item, of several the one with the focus; -1 for none.
  virtual int ItemIndex() const;
  /// Raises EListError for an index that is neither an item's nor -1. While a form is being read,
  /// the index waits for the items.
  virtual void SetItemIndex(int index);
  int ItemHeight() const;
  /// In pixels, for lists that draw their items themselves. Raises EArgumentOutOfRangeException for
  /// less than 1 or more than 255.
  void SetItemHeight(int height);
  bool Sorted() const;
  /// True: the items stand by the alphabet of the user's language, and go on to.
  void SetSorted(bool sorted);
  /// Deletes all items.
  virtual void Clear();
  /// The canvas to draw an item on, in OnDrawItem.
  TCanvas* Canvas() const;

  /// An item is to be drawn, in lists that draw their items themselves.
  TDrawItemEvent OnDrawItem;
  /// An item's height is asked for, in lists whose items have heights of their own.
  TMeasureItemEvent OnMeasureItem;

 protected:
  TCustomListControl(TComponent* owner, const TListMessages& messages);
  TListLines& List() const { return *FItems; }
  /// What the lines look like where no OnDrawItem draws them; for constructors. The list needs a
  /// style that draws its items itself.
  void SetLook(std::unique_ptr<TLineLook> look);
  /// How many lines the window has; a list that has its lines from elsewhere says so.
  virtual int LineCount() const { return Items()->Count(); }
  /// True when the list draws the items itself.
  virtual bool OwnerDraw() const = 0;
  /// True when the items have heights of their own, too.
  virtual bool MeasuresItems() const { return false; }
  /// Draws an item on Canvas. The inherited method has OnDrawItem do it, else the list's look; else
  /// it draws the text.
  virtual void DrawItem(int index, const TRect& rect, TOwnerDrawState state);
  /// Tells an item's height, which comes as ItemHeight. The inherited method asks OnMeasureItem,
  /// else the list's look.
  virtual void MeasureItem(int index, int& height);
  /// Bring the selection from the window to the items resp. back.
  virtual void KeepSelection();
  virtual void RestoreSelection();
  void ChangeScale(int m, int d) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  friend class TLineLook;
  friend class TListLines;
  void DrawFromWindow(const DRAWITEMSTRUCT& draw);
  /// The window has got the item.
  void ItemInserted(int index);
  void MeasureItems();

  const TListMessages& FMessages;
  std::unique_ptr<TListLines> FItems;
  std::unique_ptr<TCanvas> FCanvas;
  std::unique_ptr<TLineLook> FLook;
  int FItemHeight = 16;
  int FLoadedIndex = -1;
};

}  // namespace vcl
