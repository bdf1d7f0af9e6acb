// TQELIEButton: a flat button without a window, which stands out under the mouse.
#pragma once

#include <memory>

#include "qel/controls/Qeltoolface.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelpress.h"

namespace qel {

/// A button as browsers have them: flat until the mouse is over it. The images of its glyph are for
/// the normal state, the disabled, the pressed and the hot one; for those that are missing the
/// first stands in. Buttons of one parent with the same GroupIndex, other than 0, are a group: they
/// stay down when they are clicked, one at a time.
class QEL_API TQELIEButton : public TQELGraphicControl, public TQELTool, private TQELPressed {
 public:
  explicit TQELIEButton(vcl::TComponent* owner);
  ~TQELIEButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  TQELToolFace& Face() override { return FFace; }

  /// How the caption is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void Set3D(const TQELFont3D* font3D) { FFont3D->Assign(font3D); }
  /// The images beside the caption.
  TQELGlyph* Glyph() const { return FGlyph.get(); }
  /// Copies the settings and the images.
  void SetQELGlyph(const TQELGlyph* glyph) { FGlyph->Assign(glyph); }
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
  bool Transparent() const { return !ControlStyle().Has(vcl::csOpaque); }
  /// True shows what is behind the button; false fills it with Color.
  void SetTransparent(bool transparent);
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
  /// The menu that a click shows below the button, behind OnClick; it is not owned.
  void SetDropDownMenu(vcl::TPopupMenu* menu) { FFace.SetDropDownMenu(menu); }
  /// True while the button is shown pressed.
  bool Pressed() const { return FPress.Down(); }
  /// True while the mouse is over the button.
  bool Hot() const { return FPress.Hot(); }

  /// The mouse has come over the button.
  vcl::TNotifyEvent OnMouseEnter;
  /// The mouse has left the button.
  vcl::TNotifyEvent OnMouseLeave;

 protected:
  void Paint() override;
  void Click() override;
  void ChangeScale(int m, int d) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Dispatch(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  bool HoldsMouse() const override { return MouseCapture(); }
  void ForgetClick() override { ExcludeState(vcl::csClicked); }
  void ShowPress() override;
  void ShowHot() override;
  void PressClicks(bool /*byKey*/) override { Click(); }
  bool TakesAccel(const vcl::TMessage& message) const;
  bool IsHotFontStored() const { return FFace.HasHotFont(); }

  std::unique_ptr<TQELGlyph> FGlyph;
  std::unique_ptr<TQELFont3D> FFont3D;
  TQELToolFace FFace;
  TQELPress FPress;
};

}  // namespace qel
