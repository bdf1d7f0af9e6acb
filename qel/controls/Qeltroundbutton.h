// TQELRoundButton: a button in the shape of an ellipse.
#pragma once

#include "qel/controls/Qelcustombutton.h"
#include "qel/controls/Qeltoolface.h"
#include "vcl/forms/forms.h"

namespace qel {

/// A push button whose window is an ellipse: what lies beside that is not the button's, and presses
/// there are for what is behind. Its edge is smooth. The images of its glyph are for the normal
/// state, the disabled, the pressed and the hot one; for those that are missing the first stands
/// in.
class QEL_API TQELRoundButton : public TQELCustomButton {
 public:
  explicit TQELRoundButton(vcl::TComponent* owner);
  ~TQELRoundButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  bool TakesReturn() const override { return true; }

  TQELButtonType ButtonType() const { return FButtonType; }
  /// Whether the button stands out of the form by itself, or in a ground that is sunk into it.
  void SetButtonType(TQELButtonType type);
  TQELPosition Layout() const { return FLayout.Side; }
  /// The side of the caption on which the glyph stands.
  void SetLayout(TQELPosition layout);
  vcl::TModalResult ModalResult() const { return FModalResult; }
  /// What a click gives the form as its modal result, before OnClick.
  void SetModalResult(vcl::TModalResult result) { FModalResult = result; }

 protected:
  void CreateWnd() override;
  void Resize() override;
  void Paint() override;
  void Click() override;
  bool Contains(vcl::TPoint position) const override;

 private:
  void ShapeWindow();
  void PaintGround(vcl::TCanvas* canvas);
  void PaintFace(vcl::TBitmap& picture);
  void PaintContents(vcl::TCanvas* canvas);

  TQELButtonType FButtonType = btNormal;
  TQELFaceLayout FLayout;
  vcl::TModalResult FModalResult = vcl::mrNone;
};

}  // namespace qel
