// TQELFormDivider: a strip between two areas, which the user moves.
#pragma once

#include <memory>
#include <string>

#include "qel/controls/Qeltfillbackground.h"
#include "qel/core/Qelclasses.h"
#include "qel/core/Qeltstoredata.h"

namespace qel {

/// Sender, and the size that the area is about to get, in pixels, which the handler may change.
using TQELDividerMoving = vcl::TEvent<vcl::TObject*, int&>;

/// Stands aligned beside a control that is aligned to the same edge, and sizes it as the user moves
/// it with the mouse. Escape takes the control back to its former size.
class QEL_API TQELFormDivider : public TQELCustomFillBackground {
 public:
  explicit TQELFormDivider(vcl::TComponent* owner);
  ~TQELFormDivider() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;
  void SetBounds(int left, int top, int width, int height) override;

  /// The frame along the strip's edge.
  TQELFrame* Frame() const { return FFrame.get(); }
  /// Copies the settings.
  void SetFrame(const TQELFrame* frame);
  int MinSize() const { return FMinSize; }
  /// The least size of the area, and of what is left between the aligned ones, in pixels at 96 dots
  /// per inch. Takes only values above 0.
  void SetMinSize(int minSize);
  bool Live() const { return FLive; }
  /// True sizes the area while the divider is moved; false shows a line until it is let go.
  void SetLive(bool live) { FLive = live; }
  bool Collapsible() const { return FCollapsible; }
  /// True has a double click take the area away, and bring it back.
  void SetCollapsible(bool collapsible) { FCollapsible = collapsible; }
  bool KeepRatio() const { return FKeepRatio; }
  /// True has the area keep its part of the parent when that is sized.
  void SetKeepRatio(bool keep);
  /// Where the area's size is kept between runs, under the form's name and the divider's. It is not
  /// until the store is enabled.
  TQELDataStore* PositionStore() const { return FPositionStore.get(); }
  /// The control that the divider sizes: the one that it lies beside; null when there is none.
  vcl::TControl* Pane() const;
  /// True while the area has been taken away.
  bool Collapsed() const;
  /// Takes the area away, or brings it back.
  void SetCollapsed(bool collapsed);

  /// The area is about to get a new size, which the handler may change.
  TQELDividerMoving OnMoving;
  /// The area has got its new size.
  vcl::TNotifyEvent OnMoved;

 protected:
  void Paint() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void DblClick() override;
  void Dispatch(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;
  void Loaded() override;

 private:
  int Fitting(int size) const;
  int Room() const;
  std::string StoreName() const;
  void Store();
  void Restore();
  bool SizeTo(vcl::TControl& pane, int size);
  void Moved();
  void KeepPart();
  void FitLater();
  void FitNow(vcl::TMessage& message);
  void ShowLine(bool shown);
  void Finish(bool apply);

  std::unique_ptr<TQELFrame> FFrame;
  std::unique_ptr<TQELDataStore> FPositionStore;
  int FMinSize = 30;
  bool FLive = true;
  bool FCollapsible = false;
  bool FKeepRatio = false;
  bool FLineShown = false;
  vcl::TControl* FPane = nullptr;  // While the divider is being moved.
  vcl::TPoint FStart;              // Where the mouse was pressed, in the parent.
  int FOldSize = 0;
  int FNewSize = 0;
  int FExpanded = 0;   // The size to come back to.
  double FPart = 0;    // Of the parent's room; 0 for none yet.
  int FKnownRoom = 0;  // The room that the part is of.
  HWND FFitter =
      nullptr;  // Hears, behind the parent's own arranging, that the area is to be fitted.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEventText EventText<qel::TQELDividerMoving>{"TQELDividerMoving",
                                                              "vcl::TObject* sender, int& newSize"};

}  // namespace vcl
