// TToolButton: a button of a tool bar.
#pragma once

#include "vcl/stdctrls/buttonface.h"
#include "vcl/stdctrls/pressable.h"

namespace vcl {

class TToolBar;

/// A button; one that stays down; one with a menu; room between buttons; the same with a line; a
/// button that always shows its caption.
enum TToolButtonStyle { tbsButton, tbsCheck, tbsDropDown, tbsSeparator, tbsDivider, tbsTextButton };
template <>
inline constexpr TEnumText EnumText<TToolButtonStyle>{
    "TToolButtonStyle", "tbsButton tbsCheck tbsDropDown tbsSeparator tbsDivider tbsTextButton"};

/// A button of a tool bar, which decides its place and size; a separator's width is its own. On any
/// other parent it has no picture.
class VCL_API TToolButton : public TPressable {
 public:
  explicit TToolButton(TComponent* owner);
  ~TToolButton() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  void DoAccessibleAction() override { Push(); }

  /// The bar that it stands on; null for none.
  TToolBar* ToolBar() const;
  /// Tells where it stands in the bar's order; -1 without one.
  int Index() const;
  /// What a click does: the button goes down or up where it is one that stays down, and is clicked;
  /// one that has only a menu drops it down.
  void Push();
  /// Drops the button's menu down; false when it has none, or is disabled.
  bool DropDown();
  /// Fires OnClick.
  void Click() override;

  bool AllowAllUp() const { return FAllowAllUp; }
  /// True lets a click take the button of a group that is down up again.
  void SetAllowAllUp(bool allow) { FAllowAllUp = allow; }
  bool AutoSize() const { return FAutoSize; }
  /// True makes the button as wide as it needs, false as wide as the widest of the bar.
  void SetAutoSize(bool autoSize);
  bool Down() const { return FDown; }
  /// Has a button stay down; one of a group takes up the others.
  void SetDown(bool down);
  TPopupMenu* DropdownMenu() const { return FDropdownMenu; }
  /// The menu of a button with the style tbsDropDown.
  void SetDropdownMenu(TPopupMenu* menu);
  bool Grouped() const { return FGrouped; }
  /// Buttons of the style tbsCheck that stand beside each other with Grouped are a group, of which
  /// one at a time is down.
  void SetGrouped(bool grouped) { FGrouped = grouped; }
  int ImageIndex() const { return FImageIndex; }
  /// The picture in the bar's Images; -1 for none. Less is taken as -1.
  void SetImageIndex(int index);
  bool Indeterminate() const { return FIndeterminate; }
  /// True looks neither up nor down, until the button is pressed; it takes the button up.
  void SetIndeterminate(bool indeterminate);
  bool Marked() const { return FMarked; }
  /// True highlights the button.
  void SetMarked(bool marked);
  TToolButtonStyle Style() const { return FStyle; }
  /// What the button is and does.
  void SetStyle(TToolButtonStyle style);
  bool Wrap() const { return FWrap; }
  /// True ends the row behind the button.
  void SetWrap(bool wrap);

 protected:
  bool TakesPress(TPoint position) const override;
  void Released() override { Push(); }
  void HotChanged() override { Invalidate(); }
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void Dispatch(TMessage& message) override;
  void FollowAction(const TActionChange& change) override;
  void Notification(TComponent* component, TOperation operation) override;
  void Paint() override;

 private:
  friend class TToolBar;
  bool IsDownStored() const;
  bool IsImageIndexStored() const;
  bool IsSpace() const { return FStyle == tbsSeparator || FStyle == tbsDivider; }
  bool InGroup() const { return FGrouped && FStyle == tbsCheck; }
  bool OnlyDrops() const;
  bool ShowsCaption() const;
  bool IsCurrent() const;
  template <class T>
  void Change(T& field, T value);
  TSize Need() const;
  TSize PictureSize() const;
  TFacePicture Picture() const;
  int ArrowWidth() const;
  TRect ArrowPart() const;
  void DrawArrow(bool down);
  void DrawSpace();
  void DrawFace();

  TPopupMenu* FDropdownMenu = nullptr;
  int FImageIndex = -1;
  TToolButtonStyle FStyle = tbsButton;
  bool FAllowAllUp = false;
  bool FAutoSize = false;
  bool FDown = false;
  bool FGrouped = false;
  bool FIndeterminate = false;
  bool FMarked = false;
  bool FWrap = false;
  bool FMenuUp = false;
};

}  // namespace vcl
