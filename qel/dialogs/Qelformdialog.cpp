// TQELFormDialog: its table, and its link to a background.
#include "qel/dialogs/Qelformdialog.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELFormDialog::Class() {
  using T = TQELFormDialog;
  using namespace vcl;
  static const TClass info = Describe<T, TQELHelpDialog>(
      "qel::TQELFormDialog", "qel/dialogs/Qelformdialog.h",
      {
          Property<&T::Background, &T::SetBackground>("Background").Type("TQELBackground"),
          Property<&T::Title, &T::SetTitle>("Title").Default(""),
      });
  return info;
}

void TQELFormDialog::SetBackground(TQELCustomBackground* background) {
  FBackground = background;
  if (background) background->FreeNotification(this);
}

void TQELFormDialog::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELHelpDialog::Notification(component, operation);
  if (operation == vcl::opRemove && component == FBackground) FBackground = nullptr;
}

}  // namespace qel
