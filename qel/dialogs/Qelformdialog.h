// TQELFormDialog: what the dialogs have in common that the package shows itself.
#pragma once

#include <string>

#include "qel/core/Qelcontrols.h"
#include "qel/dialogs/Qelhelpdialog.h"

namespace qel {

/// Base of the dialogs that are forms of the package's own: a title, a ground and help. They come
/// up over the active form, inside its monitor's work area and in that monitor's dots per inch.
/// Ctrl+C copies title, text and buttons. Freed while it is shown, the dialog closes.
class QEL_API TQELFormDialog : public TQELHelpDialog {
 public:
  using TQELHelpDialog::TQELHelpDialog;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const std::string& Title() const { return FTitle; }
  /// The text of the title bar; empty for the application's title.
  void SetTitle(const std::string& title) { FTitle = title; }
  TQELCustomBackground* Background() const { return FBackground; }
  /// What the dialog is painted on, which is not owned; null for the colour of buttons.
  void SetBackground(TQELCustomBackground* background);

 protected:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  std::string FTitle;
  TQELCustomBackground* FBackground = nullptr;
};

}  // namespace qel
