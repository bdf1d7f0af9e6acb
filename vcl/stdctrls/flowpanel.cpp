// TFlowPanel: the order of its controls, and laying them out.
#include "vcl/stdctrls/flowpanel.h"

#include <algorithm>

#include "vcl/controls/private/margins.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TFlowPanel::Class() {
  using T = TFlowPanel;
  static const TClass info = Describe<T, TCustomPanel>(
      "vcl::TFlowPanel", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit("AutoSize"),
          Property<&T::AutoWrap, &T::SetAutoWrap>("AutoWrap").Default(true),
          Inherit(PanelLook),
          Property<&T::FlowStyle, &T::SetFlowStyle>("FlowStyle").Default(fsLeftRightTopBottom),
          Inherit(ContainerProperties),
          Inherit(ContainerEvents),
      });
  return info;
}

TFlowPanel::TFlowPanel(TComponent* owner) : TCustomPanel(owner) {}
TFlowPanel::~TFlowPanel() { AnnounceEnd(); }

void TFlowPanel::SetAutoWrap(bool autoWrap) {
  if (autoWrap == FAutoWrap) return;
  FAutoWrap = autoWrap;
  Realign();
}

void TFlowPanel::SetFlowStyle(TFlowStyle style) {
  if (style == FFlowStyle) return;
  FFlowStyle = style;
  Realign();
}

// The order.

int TFlowPanel::ControlIndex(const TControl* control) const {
  const auto found = std::ranges::find(FOrder, control);
  return found == FOrder.end() ? -1 : static_cast<int>(found - FOrder.begin());
}

void TFlowPanel::SetControlIndex(TControl* control, int index) {
  if (ControlIndex(control) < 0) throw EListError(Concat("The control is not inside ", Name()));
  if (index < 0 || index >= ControlCount()) {
    throw EListError(Concat("Control index ", std::to_string(index), " is out of bounds: ", Name(),
                            " holds ", std::to_string(ControlCount())));
  }
  std::erase(FOrder, control);
  FOrder.insert(FOrder.begin() + index, control);
  Realign();
}

void TFlowPanel::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  const std::vector<TControl*> controls = FOrder;
  for (TControl* control : controls) {
    if (control->Owner() == root) each(control);
  }
}

void TFlowPanel::Dispatch(TMessage& message) {
  if (message.Msg == CM_CONTROLLISTCHANGE) {
    auto* control = reinterpret_cast<TControl*>(message.LParam);
    std::erase(FOrder, control);
    if (message.WParam) FOrder.push_back(control);
  }
  TCustomPanel::Dispatch(message);
}

// Layout.

namespace {

/// Lines of controls in a rectangle. Counted along a line and across the lines, which the style
/// turns into places.
class TFlow {
 public:
  TFlow(TFlowStyle style, bool wrap, const TRect& room) : FStyle(style), FWrap(wrap), FRoom(room) {}

  /// Where what is of that size goes.
  TRect Next(TSize size) {
    const int length = Down() ? size.cy : size.cx;
    const int depth = Down() ? size.cx : size.cy;
    const int room = Down() ? FRoom.Height() : FRoom.Width();
    if (FWrap && FAlong > 0 && FAlong + length > room) {
      FAcross += FDepth;
      FAlong = FDepth = 0;
    }
    const TRect place = Down() ? At(FAcross, FAlong, size) : At(FAlong, FAcross, size);
    FAlong += length;
    FDepth = std::max(FDepth, depth);
    return place;
  }

 private:
  // The styles are numbered by these three.
  bool LineBack() const { return (FStyle & 1) != 0; }
  bool LinesBack() const { return (FStyle & 2) != 0; }
  bool Down() const { return (FStyle & 4) != 0; }

  TRect At(int x, int y, TSize size) const {
    const bool left = Down() ? LinesBack() : LineBack();
    const bool up = Down() ? LineBack() : LinesBack();
    const int atX = left ? FRoom.Right - x - size.cx : FRoom.Left + x;
    const int atY = up ? FRoom.Bottom - y - size.cy : FRoom.Top + y;
    return {atX, atY, atX + size.cx, atY + size.cy};
  }

  TFlowStyle FStyle;
  bool FWrap;
  TRect FRoom;
  int FAlong = 0;
  int FAcross = 0;
  int FDepth = 0;
};

}  // namespace

void TFlowPanel::AlignControls(TControl*, TRect& rect) {
  TFlow flow(FFlowStyle, FAutoWrap, rect);
  const TWatch watch(this);
  // What hears of its new place may free others.
  const std::vector<TControl*> order = FOrder;
  for (TControl* each : order) {
    if (watch.Gone()) return;
    if (ControlIndex(each) < 0 || !each->Seen()) continue;
    const TRect around = MarginsOf(*each);
    const TRect place = flow.Next(
        {around.Left + each->Width() + around.Right, around.Top + each->Height() + around.Bottom});
    each->SetBounds(place.Left + around.Left, place.Top + around.Top, each->Width(),
                    each->Height());
  }
}

}  // namespace vcl
