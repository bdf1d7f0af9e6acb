// TWorkspace: where the forms that are designed stand; it scrolls when it is smaller than they are.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace ide {

class TWorkspace : public vcl::TCustomControl {
 public:
  explicit TWorkspace(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The window in which a form stands; it moves as a whole.
  vcl::TWinControl& Desktop() { return *FDesktop; }
  /// What has to be within reach, in the desktop's coordinates.
  void SetExtent(vcl::TSize extent);
  /// Scrolls so that the position is at the top left, as far as there is something to scroll.
  void ScrollTo(int x, int y);

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void Dispatch(vcl::TMessage& message) override;
  void Resize() override;

 private:
  void Place();
  void UpdateBar(int bar, int position, int inside, int extent);
  void Scroll(int bar, int code);

  vcl::TCustomControl* FDesktop;  // A component of this one.
  vcl::TSize FExtent;
  int FX = 0;
  int FY = 0;
};

}  // namespace ide
