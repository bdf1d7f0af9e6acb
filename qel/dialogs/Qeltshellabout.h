// TQELShellAbout: the system's about box as a component.
#pragma once

#include <memory>
#include <string>

#include "qel/dialogs/Qelhelpdialog.h"
#include "vcl/graphics/graphics.h"

namespace qel {

/// Shows the system's about box for the program, in front of the active form.
class QEL_API TQELShellAbout : public TQELHelpDialog {
 public:
  explicit TQELShellAbout(vcl::TComponent* owner);
  ~TQELShellAbout() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and shows the box; true when it was shown. Raises EInvalidOperation when the
  /// component's box is up already.
  bool Execute() override;

  const std::string& Title() const { return FTitle; }
  /// The program's name; the application's title when empty. What follows a "#" is the first line
  /// in the box rather than part of its caption.
  void SetTitle(const std::string& title) { FTitle = title; }
  const std::string& Text() const { return FText; }
  /// What stands below the system's own lines, such as who made the program.
  void SetText(const std::string& text) { FText = text; }
  vcl::TIcon* Icon() const { return FIcon.get(); }
  /// The box's picture; the application's icon when empty.
  void SetIcon(vcl::TIcon* icon) { FIcon->Assign(icon); }

 private:
  class TBox;
  HICON ShownIcon() const;

  std::string FTitle;
  std::string FText;
  std::unique_ptr<vcl::TIcon> FIcon;
  std::unique_ptr<TBox> FBox;
};

}  // namespace qel
