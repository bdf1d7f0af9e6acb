// TSplitter: a strip between two panes, which the user moves.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// What is seen while the user moves a splitter: nothing, a line, the panes as they will be, or a
/// line of points.
enum TResizeStyle { rsNone, rsLine, rsUpdate, rsPattern };
template <>
inline constexpr TEnumText EnumText<TResizeStyle>{"TResizeStyle",
                                                  "rsNone rsLine rsUpdate rsPattern"};
/// Sender, the size in pixels that the pane is about to get, which the handler may change, and
/// whether it may.
using TCanResizeEvent = TEvent<TObject*, int&, bool&>;
template <>
inline constexpr TEventText EventText<TCanResizeEvent>{
    "TCanResizeEvent", "vcl::TObject* sender, int& newSize, bool& accept"};

/// Stands aligned beside a pane that is aligned to the same edge, and sizes it as the user moves it
/// with the mouse. Escape takes the pane back to its former size.
class VCL_API TSplitter : public TGraphicControl {
 public:
  explicit TSplitter(TComponent* owner);
  ~TSplitter() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool AutoSnap() const { return FAutoSnap; }
  /// A pane that is moved to MinSize vanishes.
  void SetAutoSnap(bool autoSnap) { FAutoSnap = autoSnap; }
  bool Beveled() const { return FBeveled; }
  /// Draws the edges raised.
  void SetBeveled(bool beveled);
  int MinSize() const { return FMinSize; }
  /// The least size of the pane, and of what is left between the aligned ones, in pixels; 30 at
  /// first. Raises EArgumentOutOfRangeException for less than 1.
  void SetMinSize(int minSize);
  TResizeStyle ResizeStyle() const { return FResizeStyle; }
  /// What is seen while the user moves the splitter.
  void SetResizeStyle(TResizeStyle style) { FResizeStyle = style; }
  /// The control that the splitter sizes: the one that it lies beside; null when there is none.
  TControl* Pane() const;

  /// The pane is about to get a new size, which the handler may change or refuse.
  TCanResizeEvent OnCanResize;
  /// The pane has got its new size.
  TNotifyEvent OnMoved;

 protected:
  void Paint() override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void MouseMove(TShiftState shift, int x, int y) override;
  void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  bool Across() const { return Align() == alLeft || Align() == alRight; }
  int SizeOf(const TControl& control) const;
  TPoint InParent(int x, int y) const { return {Left() + x, Top() + y}; }
  int MostSize() const;
  int SizeAt(TPoint mouse) const;
  bool AskSize(int& size);
  void SizePane(int size);
  void ToggleLine();
  void HideLine();
  void Finish(bool apply);

  bool FAutoSnap = true;
  bool FBeveled = false;
  bool FLineShown = false;
  TResizeStyle FResizeStyle = rsPattern;
  int FMinSize = 30;
  TControl* FPane = nullptr;  // While the splitter is being moved.
  TPoint FStart;              // Where the mouse was pressed, in the parent.
  int FOldSize = 0;
  int FNewSize = 0;
};

}  // namespace vcl
