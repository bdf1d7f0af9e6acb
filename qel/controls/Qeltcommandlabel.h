// TQELCommandLabel: a label that runs its caption.
#pragma once

#include <string>

#include "qel/controls/Qeltlabel.h"

namespace qel {

/// When the text of a command label is underlined.
enum TQELCommandUnderline {
  uHot,  ///< While the mouse is over the label.
  uNever,
  uAlways
};

/// Before anything is opened: what is going to be. The handler may change it, or forbid it.
using TQELCommandEvent = vcl::TEvent<vcl::TObject*, std::string&, bool&>;
/// The number with which the shell refused to open something (as ShellExecute returns it).
using TQELCommandErrorEvent = vcl::TEvent<vcl::TObject*, int>;

/// A label that runs its caption: a press of the left button, its accelerator or a screen reader
/// opens the address that the caption is, or fires an event. In the designer it runs nothing.
class QEL_API TQELCommandLabel : public TQELCustomLabel {
 public:
  explicit TQELCommandLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;

  TQELCommand Command() const { return FCommand; }
  /// What the caption is: a mail address, a web, FTP or file address, the name of anything that the
  /// system can open (runNothing), or a text on which RunEvent is fired. A caption that begins with
  /// the kind's own prefix ("mailto:", "http://", ...) is taken without it. The system opens
  /// whatever it is given: with runNothing and runFILE a caption starts programs and scripts, those
  /// on other machines too, and every kind may start what is registered for its addresses. A
  /// caption that comes from a file, a network or another user is to be looked at in OnCommand
  /// first.
  void SetCommand(TQELCommand command);
  vcl::TColor HotColor() const { return FHotColor; }
  /// The colour of the text while the mouse is over the label; clNone for no other one.
  void SetHotColor(vcl::TColor color);
  vcl::TColor VisitedColor() const { return FVisitedColor; }
  /// The colour of the text once its caption has been opened; clNone for no other one.
  void SetVisitedColor(vcl::TColor color);
  TQELCommandUnderline Underline() const { return FUnderline; }
  /// When the text is underlined.
  void SetUnderline(TQELCommandUnderline underline);
  /// True once the caption has been opened; another caption makes it false.
  bool Visited() const { return FVisited; }

  /// What is opened: the prefix of Command and the caption without it; for runEVENT the caption
  /// alone.
  std::string Target() const;
  /// Runs the caption as a press of the mouse does, if the label is enabled.
  void Run();

  /// The caption is run and Command is runEVENT.
  vcl::TNotifyEvent RunEvent;
  /// Something is going to be opened: the handler may change what, or forbid it.
  TQELCommandEvent OnCommand;
  /// The shell has refused to open something, with its code.
  TQELCommandErrorEvent OnError;

 protected:
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void Dispatch(vcl::TMessage& message) override;
  const vcl::TFont* ShownFont() const override;

 private:
  void SetHot(bool hot);
  void Open();

  TQELCommand FCommand = runURL;
  vcl::TColor FHotColor = vcl::clHighlight;
  vcl::TColor FVisitedColor = vcl::clPurple;
  TQELCommandUnderline FUnderline = uHot;
  bool FHot = false;
  bool FVisited = false;
  mutable vcl::TFont FShownFont;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELCommandUnderline>{"TQELCommandUnderline",
                                                               "uHot uNever uAlways"};

}  // namespace vcl
