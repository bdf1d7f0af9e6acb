// TQELHelpDialog: a dialog that can be asked for help.
#pragma once

#include "qel/core/Qelclasses.h"

namespace qel {

/// Sender, and its HelpContext.
using TQELHelpEvent = vcl::TEvent<vcl::TObject*, int>;

/// Base of the dialogs in which F1 asks for help, be they the package's own or the system's.
class QEL_API TQELHelpDialog : public TQELCustomDialog {
 public:
  using TQELCustomDialog::TQELCustomDialog;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int HelpContext() const { return FHelpContext; }
  /// The number of the dialog's help, which OnHelp is given; 0 for none.
  void SetHelpContext(int context) { FHelpContext = context; }

  /// F1 was pressed in the dialog, whose HelpContext is not 0.
  TQELHelpEvent OnHelp;

 private:
  int FHelpContext = 0;
};

}  // namespace qel
