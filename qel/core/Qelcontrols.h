// The base classes of the controls, and what they need of a background to paint themselves on it.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "qel/core/api.h"
#include "vcl/controls/controls.h"

namespace qel {

/// A background as controls see it.
class QEL_API TQELCustomBackground : public TQELComponent {
 public:
  using TQELComponent::TQELComponent;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Appends a control to those that are painted again when the background changes.
  virtual void AddItem(vcl::TControl* client) = 0;
  virtual void RemoveItem(vcl::TControl* client) = 0;
  /// Paints the rectangle (0, 0, width, height).
  virtual void Draw(HDC dc, int width, int height, bool forward) = 0;
};

/// Moves a control from one background's clients to another's; either may be null. Both forms of a
/// link to the same background count once each.
QEL_API void QELMoveClient(vcl::TControl* client, TQELCustomBackground* from,
                           TQELCustomBackground* to);

/// Base of the controls with a window. They paint themselves by `Paint`, on a background when they
/// have one.
class QEL_API TQELCustomControl : public vcl::TWinControl {
 public:
  explicit TQELCustomControl(vcl::TComponent* owner);
  ~TQELCustomControl() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the control says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  TQELCustomBackground* Background() const { return FBackground; }
  /// Links the control to a background, which is not owned; null for none.
  void SetBack(TQELCustomBackground* background);

 protected:
  vcl::TCanvas* Canvas() const { return FCanvas.get(); }
  /// Paints the control with `Canvas`. The inherited method lays the background, or the colour of
  /// buttons.
  virtual void Paint();
  /// Paints now, whatever the system thinks, if there is a window.
  void PaintNow();
  void PaintWindow(HDC dc) override;
  void WMPaint(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  std::unique_ptr<vcl::TControlCanvas> FCanvas;
  TQELCustomBackground* FBackground = nullptr;
};

/// Base of the controls without a window.
class QEL_API TQELGraphicControl : public vcl::TGraphicControl {
 public:
  explicit TQELGraphicControl(vcl::TComponent* owner);
  ~TQELGraphicControl() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the control says about the package.
  TQELAbout* About() const { return FAbout.get(); }

 private:
  std::unique_ptr<TQELAbout> FAbout;
};

}  // namespace qel
