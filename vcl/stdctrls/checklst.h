// TCheckListBox: a list box with a check box beside each item.
#pragma once

#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/listbox.h"

namespace vcl {

/// A list whose items are checked, by a click on their boxes, with the space bar or by code. An
/// item's state goes where the item goes, also when the list is sorted.
class VCL_API TCheckListBox : public TCustomListBox {
 public:
  explicit TCheckListBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  /// Checks the item, or takes its check back.
  void DoAccessiblePart(const TAccessiblePath& part) override;

  bool AllowGrayed() const { return FAllowGrayed; }
  /// True: the user goes through three states.
  void SetAllowGrayed(bool allow) { FAllowGrayed = allow; }
  /// All of these raise EStringListError for an index that is not an item's.
  bool Checked(int index) const { return State(index) == cbChecked; }
  void SetChecked(int index, bool checked) { SetState(index, checked ? cbChecked : cbUnchecked); }
  TCheckBoxState State(int index) const;
  void SetState(int index, TCheckBoxState state);
  /// False: the item is grey, and the user cannot check it.
  bool ItemEnabled(int index) const;
  void SetItemEnabled(int index, bool enabled);
  /// Gives all items the state; those that are greyed or not enabled only when wished.
  void CheckAll(TCheckBoxState state, bool allowGrayed = true, bool allowDisabled = true);

  /// The user has changed an item's state.
  TNotifyEvent OnClickCheck;

 protected:
  virtual void ClickCheck();
  /// The width and height of the marks.
  virtual int MarkSize() const { return ScaledPixels(13); }
  /// Draws the mark of a state on Canvas. The inherited method draws the system's check box.
  virtual void DrawMark(const TRect& rect, TCheckBoxState state, bool enabled);
  /// The marks have got another size.
  void FitItems();
  bool OwnerDraw() const override { return true; }
  void DrawItem(int index, const TRect& rect, TOwnerDrawState state) override;
  void KeyPress(char32_t& key) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  TRect BoxOf(const TRect& item) const;
  void Toggle(int index);
  void InvalidateItem(int index);

  bool FAllowGrayed = false;
};

}  // namespace vcl
