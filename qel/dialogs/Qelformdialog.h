// TQELFormDialog: what the dialogs have in common that the package shows itself.
#pragma once

#include <string>

#include "qel/core/Qelcontrols.h"

namespace qel {

/// Sender, and its HelpContext.
using TQELHelpEvent = vcl::TEvent<vcl::TObject*, int>;

/// Base of the dialogs that are forms of the package's own: a title, a ground and help. They come
/// up over the active form, inside its monitor's work area and in that monitor's dots per inch.
/// Ctrl+C copies title, text and buttons. Freed while it is shown, the dialog closes.
class QEL_API TQELFormDialog : public TQELCustomDialog {
 public:
  using TQELCustomDialog::TQELCustomDialog;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const std::string& Title() const { return FTitle; }
  /// The text of the title bar; empty for the application's title.
  void SetTitle(const std::string& title) { FTitle = title; }
  TQELCustomBackground* Background() const { return FBackground; }
  /// What the dialog is painted on, which is not owned; null for the colour of buttons.
  void SetBackground(TQELCustomBackground* background);
  int HelpContext() const { return FHelpContext; }
  /// The number of the dialog's help, which OnHelp is given; 0 for none.
  void SetHelpContext(int context) { FHelpContext = context; }

  /// F1 was pressed in the dialog, whose HelpContext is not 0.
  TQELHelpEvent OnHelp;

 protected:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  std::string FTitle;
  TQELCustomBackground* FBackground = nullptr;
  int FHelpContext = 0;
};

}  // namespace qel
