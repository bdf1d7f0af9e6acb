// TQELSecretDialog: its table, and the captions of its buttons.
#include "qel/dialogs/Qelsecretdialog.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELSecretDialog::Class() {
  using T = TQELSecretDialog;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormDialog>(
      "qel::TQELSecretDialog", "qel/dialogs/Qelsecretdialog.h",
      {
          ReadOnly<&T::CancelButton>("CancelButton"),
          Property<&T::CapsLockText, &T::SetCapsLockText>("CapsLockText")
              .Default("Caps Lock is on."),
          ReadOnly<&T::OkButton>("OkButton"),
          ReadOnly<&T::PeekButton>("PeekButton"),
          Property<&T::Text, &T::SetText>("Text").Default(""),
      });
  return info;
}

TQELSecretDialog::TQELSecretDialog(vcl::TComponent* owner)
    : TQELFormDialog(owner),
      FOkButton(std::make_unique<TQELButtonDetails>()),
      FCancelButton(std::make_unique<TQELButtonDetails>()),
      FPeekButton(std::make_unique<TQELButtonDetails>()) {
  FOkButton->SetCaption("OK");
  FCancelButton->SetCaption("Cancel");
  FPeekButton->SetCaption("&Show");
}

TQELSecretDialog::~TQELSecretDialog() { AnnounceEnd(); }

}  // namespace qel
