// TQELSecretDialog: what the dialogs have in common that ask for something secret.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelbuttondetails.h"
#include "qel/dialogs/Qelformdialog.h"

namespace qel {

/// Base of the dialogs that ask for a password or a code. What is typed is shown as dots, until the
/// user has it shown; it is never copied to the clipboard, and it is wiped when the dialog closes.
class QEL_API TQELSecretDialog : public TQELFormDialog {
 public:
  explicit TQELSecretDialog(vcl::TComponent* owner);
  ~TQELSecretDialog() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Why the last Execute was in vain; empty when it was not, and when the user has cancelled.
  const std::string& LastError() const { return FLastError; }

  const std::string& Text() const { return FText; }
  /// What stands above the edits.
  void SetText(const std::string& text) { FText = text; }
  const std::string& CapsLockText() const { return FCapsLockText; }
  /// What warns of capital letters being locked; empty for no warning.
  void SetCapsLockText(const std::string& text) { FCapsLockText = text; }
  /// The button that has what was typed checked.
  TQELButtonDetails* OkButton() const { return FOkButton.get(); }
  /// The button that gives up.
  TQELButtonDetails* CancelButton() const { return FCancelButton.get(); }
  /// The button that shows what is being typed, and hides it again; without caption and glyph there
  /// is none.
  TQELButtonDetails* PeekButton() const { return FPeekButton.get(); }

 protected:
  void SetLastError(const std::string& error) { FLastError = error; }

 private:
  std::string FText;
  std::string FCapsLockText = "Caps Lock is on.";
  std::unique_ptr<TQELButtonDetails> FOkButton;
  std::unique_ptr<TQELButtonDetails> FCancelButton;
  std::unique_ptr<TQELButtonDetails> FPeekButton;
  std::string FLastError;
};

}  // namespace qel
