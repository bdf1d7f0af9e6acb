// TQELICQMarquee: lines of text that pass.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelclock.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelfont3d.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Where the lines of a marquee go.
enum TQELMarqueeDirection { mdLeft, mdRight, mdUp, mdDown };

/// A line of a marquee was clicked.
using TQELLineEvent = vcl::TEvent<vcl::TObject*, int>;

/// Lets lines of text pass: one behind the other from side to side, or one below the other from
/// bottom to top or back. A round begins with nothing seen and ends when the last line has gone.
/// While it is not active it shows the lines where they were, before the first round and for a user
/// who wants no animation from the first line on. Enter clicks the first line that is seen, the
/// space bar stops the lines and has them go on.
class QEL_API TQELICQMarquee : public TQELCustomControl {
 public:
  explicit TQELICQMarquee(vcl::TComponent* owner);
  ~TQELICQMarquee() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  vcl::TStrings* Lines() const { return FLines.get(); }
  /// The lines that pass.
  void SetLines(const vcl::TStrings* lines);
  TQELMarqueeDirection Direction() const { return FDirection; }
  /// Where the lines go.
  void SetDirection(TQELMarqueeDirection direction);
  int Speed() const { return FSpeed; }
  /// In pixels a second at 96 dots per inch. Takes only values above 0.
  void SetSpeed(int speed);
  int Delay() const { return FDelay; }
  /// The pause between two rounds, in milliseconds. Takes only values from 0.
  void SetDelay(int milliseconds);
  bool Active() const { return FActive; }
  /// True lets the lines pass.
  void SetActive(bool active);
  bool Loop() const { return FLoop; }
  /// False: it is active no more after one round.
  void SetLoop(bool loop) { FLoop = loop; }
  const std::string& Filename() const { return FFilename; }
  /// A wave file that is played at each round's start; a missing one is silent.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }
  /// How the lines are written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void SetFont3D(const TQELFont3D* font3D);
  bool StopOnHover() const { return FStopOnHover; }
  /// True: the lines stand while the mouse is over them.
  void SetStopOnHover(bool stop);

  /// The line at the point in the window; -1 for none.
  int LineAt(vcl::TPoint point);

  /// A round has ended.
  vcl::TNotifyEvent OnRound;
  /// A line was clicked, or chosen by Enter: its index from 0.
  TQELLineEvent OnLineClick;

 protected:
  void Paint() override;
  void WMEraseBkgnd(vcl::TMessage& message) override { message.Result = 1; }
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Click() override;

 private:
  void LinesChanged(vcl::TObject* sender);
  void UpdateMotion();
  void Tick(double milliseconds);
  void BeginRound();
  void EndRound();
  bool Upright() const { return FDirection == mdUp || FDirection == mdDown; }
  bool Resting() const;
  void Measure();
  int Length();
  int Start();
  vcl::TRect LineRect(int line);
  int FirstSeen();

  std::unique_ptr<vcl::TStringList> FLines;
  std::unique_ptr<TQELFont3D> FFont3D;
  TQELMarqueeDirection FDirection = mdLeft;
  int FSpeed = 60;
  int FDelay = 0;
  bool FActive = false;
  bool FLoop = true;
  std::string FFilename;
  bool FStopOnHover = true;
  bool FHovered = false;
  double FMoved = -1;  // Of this round, in pixels; below 0 before the first one.
  double FWait = 0;    // What is left of the pause.
  int FPressed = -1;   // The line under the mouse when its button was pressed.
  bool FMeasured = false;
  std::vector<int> FWidths;
  int FLineHeight = 0;
  TQELMotion FMotion;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELMarqueeDirection>{"TQELMarqueeDirection",
                                                               "mdLeft mdRight mdUp mdDown"};

}  // namespace vcl
