// TQELMsgBox: the system's message box as a component.
#pragma once

#include <string>

#include "qel/dialogs/Qelhelpdialog.h"
#include "vcl/controls/controltypes.h"

namespace qel {

/// The picture of a TQELMsgBox.
enum TQELMsgBoxIcon { miInformation, miWarning, miError, miQuestion, miNone };

/// The system's sets of buttons.
enum TQELMsgBoxButtons {
  mbOk,
  mbOkCancel,
  mbAbortRetryIgnore,
  mbYesNoCancel,
  mbYesNo,
  mbRetryCancel
};

/// Shows the system's message box in front of the active form, and keeps which button the user
/// has pressed.
class QEL_API TQELMsgBox : public TQELHelpDialog {
 public:
  explicit TQELMsgBox(vcl::TComponent* owner) : TQELHelpDialog(owner) {}
  ~TQELMsgBox() override { AnnounceEnd(); }
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and shows the box; true when the user has pressed "OK", "Yes" or "Retry". Raises
  /// EOutOfResources when the system refuses the box. The component may be freed meanwhile: the
  /// box stays, and false comes of it.
  bool Execute() override;
  /// The button that closed the last box, mrNone before the first one. A box closed by Escape
  /// answers mrCancel, or mrOk when "OK" is its only button.
  vcl::TModalResult Result() const { return FResult; }

  const std::string& Caption() const { return FCaption; }
  /// The box's caption; the application's title when empty.
  void SetCaption(const std::string& caption) { FCaption = caption; }
  const std::string& Text() const { return FText; }
  /// What the box says.
  void SetText(const std::string& text) { FText = text; }
  TQELMsgBoxIcon Icon() const { return FIcon; }
  /// The picture beside the text.
  void SetIcon(TQELMsgBoxIcon icon) { FIcon = icon; }
  TQELMsgBoxButtons Buttons() const { return FButtons; }
  /// The buttons below the text.
  void SetButtons(TQELMsgBoxButtons buttons) { FButtons = buttons; }
  int DefaultButton() const { return FDefaultButton; }
  /// The place of the button that Enter presses, from 1; beyond the last button it is the first
  /// one. Takes only values from 1 to 4.
  void SetDefaultButton(int button);

 private:
  std::string FCaption;
  std::string FText;
  TQELMsgBoxIcon FIcon = miInformation;
  TQELMsgBoxButtons FButtons = mbOk;
  int FDefaultButton = 1;
  vcl::TModalResult FResult = vcl::mrNone;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMsgBoxIcon>{
    "TQELMsgBoxIcon", "miInformation miWarning miError miQuestion miNone"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMsgBoxButtons>{
    "TQELMsgBoxButtons", "mbOk mbOkCancel mbAbortRetryIgnore mbYesNoCancel mbYesNo mbRetryCancel"};
