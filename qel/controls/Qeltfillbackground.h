// TQELFillBackground: a background under the controls of an area that are no clients of one.
#pragma once

#include "qel/controls/Qeltbackground.h"
#include "qel/core/Qelcontrols.h"

namespace qel {

/// A control without a window that shows a background.
class QEL_API TQELCustomFillBackground : public TQELGraphicControl {
 public:
  explicit TQELCustomFillBackground(vcl::TComponent* owner);
  ~TQELCustomFillBackground() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELBackground* Background() const { return FBackground; }
  /// The background that is shown, which is not owned; null for none.
  void SetBack(TQELBackground* background);

 protected:
  /// Lays the background; true when there is one.
  bool PaintBackground();
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  TQELBackground* FBackground = nullptr;
};

/// Lays a background under its area, so that controls without a window of their own (labels and
/// images) stand on it. It always lies behind its siblings, and leaves the mouse to its parent.
class QEL_API TQELFillBackground : public TQELCustomFillBackground {
 public:
  explicit TQELFillBackground(vcl::TComponent* owner);
  ~TQELFillBackground() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void SetParent(vcl::TWinControl* parent) override;
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

 protected:
  void Paint() override;
  void SetZOrder(bool topmost) override;
  void Dispatch(vcl::TMessage& message) override;
  void Loaded() override;

 private:
  bool IsBehind() const;
};

}  // namespace qel
