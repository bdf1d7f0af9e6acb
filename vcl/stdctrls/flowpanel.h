// TFlowPanel: a panel whose controls follow one another in lines.
#pragma once

#include <vector>

#include "vcl/stdctrls/panel.h"

namespace vcl {

/// The way that the controls of a line follow one another, and then the way that the lines do.
enum TFlowStyle {
  fsLeftRightTopBottom,
  fsRightLeftTopBottom,
  fsLeftRightBottomTop,
  fsRightLeftBottomTop,
  fsTopBottomLeftRight,
  fsBottomTopLeftRight,
  fsTopBottomRightLeft,
  fsBottomTopRightLeft
};
template <>
inline constexpr TEnumText EnumText<TFlowStyle>{
    "TFlowStyle",
    "fsLeftRightTopBottom fsRightLeftTopBottom fsLeftRightBottomTop fsRightLeftBottomTop "
    "fsTopBottomLeftRight fsBottomTopLeftRight fsTopBottomRightLeft fsBottomTopRightLeft"};

/// Puts the controls inside one behind another, in the order in which they came, and begins a new
/// line where one is full. Their Margins are kept free with AlignWithMargins; their Align means
/// nothing here. Form files hold the controls in their order.
class VCL_API TFlowPanel : public TCustomPanel {
 public:
  explicit TFlowPanel(TComponent* owner);
  ~TFlowPanel() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool AutoWrap() const { return FAutoWrap; }
  /// False keeps all controls in one line.
  void SetAutoWrap(bool autoWrap);
  TFlowStyle FlowStyle() const { return FFlowStyle; }
  /// The direction in which the controls follow each other, and that of the lines.
  void SetFlowStyle(TFlowStyle style);
  /// The control's place in the order, from 0; -1 for one that does not stand inside.
  int ControlIndex(const TControl* control) const;
  /// Moves the control to the place. Raises EListError outside, or for one that is not inside.
  void SetControlIndex(TControl* control, int index);
  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;

 protected:
  void AlignControls(TControl* control, TRect& rect) override;
  bool ArrangesFree() const override { return true; }
  void Dispatch(TMessage& message) override;

 private:
  bool FAutoWrap = true;
  TFlowStyle FFlowStyle = fsLeftRightTopBottom;
  std::vector<TControl*> FOrder;
};

}  // namespace vcl
