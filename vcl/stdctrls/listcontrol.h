// TCustomListControl: what list boxes and combo boxes have in common.
#pragma once

#include <memory>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/strings.h"

namespace vcl {

class TListLines;
struct TListMessages;

enum TOwnerDrawStateValue { odSelected, odGrayed, odDisabled, odChecked, odFocused };
using TOwnerDrawState = TSet<TOwnerDrawStateValue>;
/// Sender, index, the item's rectangle on the sender's Canvas, state. The canvas comes with the
/// colours of the state, the rectangle filled.
using TDrawItemEvent = TEvent<TObject*, int, const TRect&, TOwnerDrawState>;
template <>
inline constexpr TEventText EventText<TDrawItemEvent>{
    "TDrawItemEvent",
    "vcl::TObject* sender, int index, const vcl::TRect& rect, vcl::TOwnerDrawState state"};

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

 protected:
  TCustomListControl(TComponent* owner, const TListMessages& messages);
  TListLines& List() const { return *FItems; }
  /// True when OnDrawItem draws the items.
  virtual bool OwnerDraw() const = 0;
  virtual void DrawItem(int index, const TRect& rect, TOwnerDrawState state);
  /// Bring the selection from the window to the items resp. back.
  virtual void KeepSelection();
  virtual void RestoreSelection();
  void ChangeScale(int m, int d) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  void DrawFromWindow(const DRAWITEMSTRUCT& draw);

  const TListMessages& FMessages;
  std::unique_ptr<TListLines> FItems;
  std::unique_ptr<TCanvas> FCanvas;
  int FItemHeight = 16;
  int FLoadedIndex = -1;
};

}  // namespace vcl
