// TScrollBox: an area of a form that scrolls.
#pragma once

#include "vcl/controls/scrolling.h"

namespace vcl {

/// Holds controls, and scrolls when they need more room than it has.
class VCL_API TScrollBox : public TScrollingWinControl {
 public:
  explicit TScrollBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);

 protected:
  void CreateParams(TCreateParams& params) override;

 private:
  TBorderStyle FBorderStyle = bsSingle;
};

}  // namespace vcl
