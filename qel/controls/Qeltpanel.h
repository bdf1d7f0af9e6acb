// TQELPanel: a container that the user may move, size and roll up.
#pragma once

#include <memory>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"
#include "vcl/stdctrls/label.h"

namespace qel {

/// Holds other controls on a background, inside a frame. The user may move it by its surface, size
/// it by its edges, and roll it up by a click on the strip with its caption, as far as it is
/// allowed; with the focus, Ctrl or Shift with the arrow keys and the space bar do the same. It is
/// kept inside its parent.
class QEL_API TQELPanel : public TQELCustomControl {
 public:
  explicit TQELPanel(vcl::TComponent* owner);
  ~TQELPanel() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;

  /// How the caption is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void Set3D(const TQELFont3D* font3D);
  /// The frame along the panel's edge.
  TQELFrame* Frame() const { return FFrame.get(); }
  /// Copies the settings.
  void SetFrame(const TQELFrame* frame);
  vcl::TAlignment Alignment() const { return FAlignment; }
  /// Where the caption stands across the panel.
  void SetAlignment(vcl::TAlignment alignment);
  vcl::TTextLayout Layout() const { return FLayout; }
  /// Whether the caption stands at the top, in the middle or at the bottom; with Collapsible it is
  /// in the strip at the top.
  void SetLayout(vcl::TTextLayout layout);
  bool Movable() const { return FMovable; }
  /// True lets the user move the panel.
  void SetMovable(bool movable) { FMovable = movable; }
  bool Sizeable() const { return FSizeable; }
  /// True lets the user size the panel by its edges.
  void SetSizeable(bool sizeable) { FSizeable = sizeable; }
  bool Collapsible() const { return FCollapsible; }
  /// True shows the strip that rolls the panel up.
  void SetCollapsible(bool collapsible);
  bool Collapsed() const { return FCollapsed; }
  /// True rolls the panel up to its strip; false gives it ExpandedHeight.
  void SetCollapsed(bool collapsed);
  int HeaderHeight() const { return FHeaderHeight; }
  /// The height of the strip in pixels at 96 dots per inch. Takes only values above 0.
  void SetHeaderHeight(int height);
  int ExpandedHeight() const { return FCollapsed ? FExpandedHeight : Height(); }
  /// The height that the panel has when it is not rolled up. Takes only values above 0.
  void SetExpandedHeight(int height);

  /// The panel has been rolled up, or down again.
  vcl::TNotifyEvent OnCollapse;
  /// The user has moved or sized the panel.
  vcl::TNotifyEvent OnMove;

 protected:
  void Paint() override;
  void AdjustClientRect(vcl::TRect& rect) const override;
  void ChangeScale(int m, int d) override;
  void Click() override;
  void DoEnter() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void Dispatch(vcl::TMessage& message) override;

 private:
  /// The edges that a drag moves; all of them move the panel.
  struct TEdges {
    bool Left = false, Top = false, Right = false, Bottom = false;
    bool Any() const { return Left || Top || Right || Bottom; }
    static TEdges All() { return {true, true, true, true}; }
  };
  int Border() const;
  int RolledHeight() const;
  vcl::TRect Header() const;
  void PaintHeader(const vcl::TRect& header);
  void PaintCaption(const vcl::TRect& area, vcl::TTextLayout layout);
  TEdges EdgesAt(int x, int y) const;
  vcl::TRect Dragged(vcl::TRect bounds, const TEdges& edges, int dx, int dy) const;
  void SetBoundsRect(const vcl::TRect& bounds);
  bool StepByKey(std::uint16_t key, vcl::TShiftState shift);
  void EndDrag(bool keep);
  bool ShowCursor(const vcl::TMessage& message);
  bool TakeOwn(vcl::TMessage& message);

  std::unique_ptr<TQELFont3D> FFont3D;
  std::unique_ptr<TQELFrame> FFrame;
  vcl::TAlignment FAlignment = vcl::taCenter;
  vcl::TTextLayout FLayout = vcl::tlCenter;
  bool FMovable = false;
  bool FSizeable = false;
  bool FCollapsible = false;
  bool FCollapsed = false;
  int FHeaderHeight = 20;
  int FExpandedHeight = 0;
  // While the mouse is down on the panel.
  bool FOnHeader = false;
  bool FMoved = false;
  TEdges FEdges;
  vcl::TPoint FStart;  // On the screen.
  vcl::TRect FStartBounds;
};

}  // namespace qel
