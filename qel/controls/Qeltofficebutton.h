// TQELOfficeButton: a flat button with a window, which is tinted under the mouse.
#pragma once

#include "qel/controls/Qelcustombutton.h"
#include "qel/controls/Qeltoolface.h"
#include "vcl/forms/forms.h"

namespace qel {

/// A button of a tool bar that takes the focus, and that may be the one that Enter or Escape
/// presses on its form. The images of its glyph are for the normal state, the disabled, the pressed
/// and the hot one; for those that are missing the first stands in. It stays down in groups as
/// TQELIEButton does.
class QEL_API TQELOfficeButton : public TQELCustomButton, public TQELTool {
 public:
  explicit TQELOfficeButton(vcl::TComponent* owner);
  ~TQELOfficeButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  TQELToolFace& Face() override { return FFace; }
  bool TakesReturn() const override { return true; }

  TQELPosition Layout() const { return FFace.Layout(); }
  /// The side of the caption on which the glyph stands.
  void SetLayout(TQELPosition layout) { FFace.SetLayout(layout); }
  int Spacing() const { return FFace.Spacing(); }
  /// The pixels between glyph and caption at 96 dots per inch. Takes only values from 0.
  void SetSpacing(int spacing) { FFace.SetSpacing(spacing); }
  int Margin() const { return FFace.Margin(); }
  /// The pixels from the edge to the first of glyph and caption at 96 dots per inch; -1 puts the
  /// two into the middle. Takes only values from -1.
  void SetMargin(int margin) { FFace.SetMargin(margin); }
  /// The caption's font while the mouse is over the button; until it is changed, it is Font.
  vcl::TFont* HotFont() const { return FFace.HotFont(); }
  /// Copies the font.
  void SetHotFont(const vcl::TFont* font) { FFace.SetHotFont(font); }
  int GroupIndex() const { return FFace.GroupIndex(); }
  /// Buttons of one group, in one parent, take each other up; 0 is no group.
  void SetGroupIndex(int group) { FFace.SetGroupIndex(group); }
  bool AllowAllUp() const { return FFace.AllowAllUp(); }
  /// True lets a click take the group's button that is down up again; holds for the whole group.
  void SetAllowAllUp(bool allow) { FFace.SetAllowAllUp(allow); }
  bool Down() const { return FFace.Down(); }
  /// The button of a group stays down. What is down goes up only where AllowAllUp is true.
  void SetDown(bool down) { FFace.SetDown(down); }
  vcl::TPopupMenu* DropDownMenu() const { return FFace.DropDownMenu(); }
  /// The menu that a click shows below the button, behind OnClick; it is not owned. Alt+Down shows
  /// it, too.
  void SetDropDownMenu(vcl::TPopupMenu* menu) { FFace.SetDropDownMenu(menu); }
  bool SplitDropDown() const { return FSplitDropDown; }
  /// True: the menu's arrow is a part of its own, and what is left of the button only clicks.
  void SetSplitDropDown(bool split);
  vcl::TColor HotColor() const { return FHotColor; }
  /// The colour that tints the ground while the mouse is over the button, three parts in ten.
  void SetHotColor(vcl::TColor color);
  bool FrameOnHot() const { return FFrameOnHot; }
  /// True draws a line of HotColor around the button while the mouse is over it.
  void SetFrameOnHot(bool frame);
  vcl::TModalResult ModalResult() const { return FModalResult; }
  /// What a click gives the form as its modal result, before OnClick.
  void SetModalResult(vcl::TModalResult result) { FModalResult = result; }
  bool Default() const { return FDefault; }
  /// Enter clicks the button unless another one has the focus.
  void SetDefault(bool isDefault);
  bool Cancel() const { return FCancel; }
  /// Escape clicks the button, wherever the focus is.
  void SetCancel(bool cancel) { FCancel = cancel; }
  /// True while the button is shown pressed.
  bool Pressed() const { return TQELCustomButton::Down(); }

  /// The mouse has come over the button.
  vcl::TNotifyEvent OnMouseEnter;
  /// The mouse has left the button.
  vcl::TNotifyEvent OnMouseLeave;

 protected:
  bool TakesMouse() const override { return !FDropping && TQELCustomButton::TakesMouse(); }
  void Paint() override;
  void Click() override;
  void ShowHot() override;
  void ChangeScale(int m, int d) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Dispatch(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  bool Active() const;
  bool TakesDialogKey(const vcl::TMessage& message) const;
  bool ShowsMenuBy(const vcl::TMessage& message) const;
  void Tint(int percent);
  void PaintFrame();
  bool IsHotFontStored() const { return FFace.HasHotFont(); }

  TQELToolFace FFace;
  vcl::TColor FHotColor = vcl::clHighlight;
  bool FFrameOnHot = true;
  bool FSplitDropDown = false;
  bool FDefault = false;
  bool FCancel = false;
  bool FDropping = false;  // The mouse is down on the menu's arrow.
  vcl::TModalResult FModalResult = vcl::mrNone;
};

}  // namespace qel
