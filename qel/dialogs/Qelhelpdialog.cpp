// TQELHelpDialog: its table.
#include "qel/dialogs/Qelhelpdialog.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELHelpDialog::Class() {
  using T = TQELHelpDialog;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomDialog>(
      "qel::TQELHelpDialog", "qel/dialogs/Qelhelpdialog.h",
      {
          Property<&T::HelpContext, &T::SetHelpContext>("HelpContext").Default(0),
          Event<&T::OnHelp>("OnHelp").Type("TQELHelpEvent", "vcl::TObject* sender, int context"),
      });
  return info;
}

}  // namespace qel
