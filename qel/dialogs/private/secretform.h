// TSecretForm: a dialog's form with edits for what is secret.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "qel/core/Qelsecret.h"
#include "qel/dialogs/Qelsecretdialog.h"
#include "qel/dialogs/private/dialogform.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

/// An edit whose text is read without copies that stay in memory, and never copied or cut. It tells
/// assistive programs that it is protected, and nothing of the text.
class TSecretEdit : public vcl::TCustomEdit {
 public:
  explicit TSecretEdit(vcl::TComponent* owner);
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  void Read(TQELSecret& secret);
  /// Empties the edit and overwrites what its window had.
  void Wipe();
  /// Shows the text as it is.
  void SetPeeked(bool peeked);
  /// What assistive programs tell beside the name.
  void SetNote(const std::string& note) { FNote = note; }

 protected:
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void KeyPress(char32_t& key) override;

 private:
  std::string FNote;
};

/// The text with the number in place of its first "%d".
std::string WithNumber(const std::string& text, int number);

/// A form that asks for secrets: edits, a line that says what was wrong, one that warns of locked
/// capitals, and buttons. While it waits, OK is disabled, and a text counts the seconds.
class TSecretForm {
 public:
  explicit TSecretForm(TQELSecretDialog& dialog);
  ~TSecretForm();
  TSecretForm(const TSecretForm&) = delete;
  TSecretForm& operator=(const TSecretForm&) = delete;

  vcl::TEdit* AddName(const std::string& label, const std::string& text);
  TSecretEdit* AddSecret(const std::string& label);
  /// Shows the form, from which on the dialog may be freed, with the focus on that edit; `attempt`
  /// is called for OK, unless the form waits. True when it was closed by Accept.
  bool Run(vcl::TWinControl* first, std::function<void()> attempt);
  void Accept();
  void Close();
  /// True when it is closing, or its dialog has been freed.
  bool Closing() const;
  /// Says what was wrong, empties the edits for secrets and goes to one.
  void Refuse(const std::string& message, TSecretEdit* next);
  /// Waits until that time of GetTickCount64; a "%d" in the text stands for the seconds left.
  void WaitUntil(std::uint64_t end, const std::string& text);

 private:
  vcl::TLabel* AddLabel(int lines);
  void AddButtons();
  template <class Edit>
  Edit* AddEdit(const std::string& label);
  bool Waiting() const;
  void Attempt();
  void SetPeeked(bool peeked);
  void ShowMessage();
  void Tick();

  const TQELSecretDialog& FDialog;
  TDialogForm FForm;
  std::string FCapsLockText;
  std::vector<TSecretEdit*> FSecrets;
  vcl::TLabel* FMessageLabel = nullptr;
  vcl::TLabel* FCapsLabel = nullptr;
  vcl::TBitBtn* FOk = nullptr;
  vcl::TBitBtn* FPeek = nullptr;
  bool FOkEnabled = false;
  bool FPeeked = false;
  std::function<void()> FAttempt;
  std::string FMessage;
  std::string FWaitText;
  std::uint64_t FWaitEnd = 0;
  vcl::TTimer FTimer{nullptr};
};

}  // namespace qel
