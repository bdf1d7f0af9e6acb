// TCustomFrame: a control that is the root of a form file.
#include "vcl/forms/frames.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/forms/private/rootfile.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TCustomFrame::Class() {
  static const TClass info =
      Describe<TCustomFrame, TWinControl>("vcl::TCustomFrame", "vcl/forms/frames.h", {});
  return info;
}

const TClass& TFrame::Class() {
  static const TClass info = Describe<TFrame, TCustomFrame>("vcl::TFrame", "vcl/forms/frames.h",
                                                            {
                                                                Inherit("Align"),
                                                                Inherit("AutoSize"),
                                                                Inherit("Color"),
                                                                Inherit("DoubleBuffered"),
                                                                Inherit(ContainerProperties),
                                                                Inherit(ContainerEvents),
                                                            });
  return info;
}

TCustomFrame::TCustomFrame(TComponent* owner) : TWinControl(owner) {
  constexpr int width = 320;
  constexpr int height = 240;
  Include(csInline);
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks});
  SetBounds(0, 0, width, height);
}

void TCustomFrame::LoadFrame(HINSTANCE module) { LoadRootFile(*this, module); }

void TCustomFrame::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  TWinControl::GetChildren(each, root);
  if (root == this) EachWithoutParent(*this, each);
}

void TCustomFrame::SetChildOrder(TComponent* child, int order) {
  if (child->HasParent()) return TWinControl::SetChildOrder(child, order);
  int controls = 0;
  TWinControl::GetChildren([&](TComponent*) { ++controls; }, this);
  OrderWithoutParent(*this, *child, order - controls);
}

}  // namespace vcl
