// TSystemHelp: help in the system's dialogs.
#pragma once

#include "qel/dialogs/Qelhelpdialog.h"
#include "vcl/rtl/systemtypes.h"

namespace qel {

/// While it lives, F1 in a dialog of the system's on this thread asks the component for help, which
/// has a HelpContext. The component may be freed meanwhile; they nest as the dialogs do.
class TSystemHelp {
 public:
  explicit TSystemHelp(TQELHelpDialog& dialog);
  ~TSystemHelp();
  TSystemHelp(const TSystemHelp&) = delete;
  TSystemHelp& operator=(const TSystemHelp&) = delete;

 private:
  static LRESULT __stdcall Filter(int code, WPARAM wParam, LPARAM lParam);
  bool Asked();

  TQELHelpDialog& FDialog;
  vcl::TWatch FWatch;
  TSystemHelp* FOuter;
  void* FHook;
};

}  // namespace qel
