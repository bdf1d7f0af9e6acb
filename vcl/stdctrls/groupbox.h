// TCustomGroupBox and TGroupBox: a frame with a caption around controls.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

/// A group box. The accelerator in its caption focuses the first control inside; radio buttons
/// inside are a group of their own.
class VCL_API TCustomGroupBox : public TCustomControl {
 public:
  explicit TCustomGroupBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

 protected:
  void Paint() override;
  void AdjustClientRect(TRect& rect) const override;
  void Dispatch(TMessage& message) override;
};

/// A frame with a caption around controls.
class VCL_API TGroupBox : public TCustomGroupBox {
 public:
  explicit TGroupBox(TComponent* owner) : TCustomGroupBox(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
