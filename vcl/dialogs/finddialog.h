// TFindDialog and TReplaceDialog: the system's dialogs for looking for a text, which stay while the
// user works.
#pragma once

#include <string>

#include "vcl/dialogs/commondialog.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// How is looked for, and how the dialog looks. frFindNext, frReplace and frReplaceAll say, in an
/// event, which button was pressed; the others are what the user has chosen (frDown, frMatchCase,
/// frWholeWord), or take a choice from him.
enum TFindOption {
  frDown,
  frMatchCase,
  frWholeWord,
  frHideUpDown,
  frHideMatchCase,
  frHideWholeWord,
  frDisableUpDown,
  frDisableMatchCase,
  frDisableWholeWord,
  frFindNext,
  frReplace,
  frReplaceAll
};
template <>
inline constexpr TEnumText EnumText<TFindOption>{
    "TFindOption",
    "frDown frMatchCase frWholeWord frHideUpDown frHideMatchCase frHideWholeWord frDisableUpDown "
    "frDisableMatchCase frDisableWholeWord frFindNext frReplace frReplaceAll",
    "TFindOptions"};
using TFindOptions = TSet<TFindOption>;

/// The dialog in which the user says what to look for (FindTextW). It is not modal: Execute
/// returns at once, and OnFind comes for each press of its button. It stands in front of the form
/// that was active, and goes with it; the application's message loop gives it its keys.
class VCL_API TFindDialog : public TCommonDialog {
 public:
  explicit TFindDialog(TComponent* owner);
  ~TFindDialog() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Shows the dialog, or brings it to the front; true. Raises EOutOfResources when the system
  /// refuses it.
  bool Execute() override;
  /// Takes the dialog off the screen, in its own events, too.
  void CloseDialog();

  const std::string& FindText() const { return FFindText; }
  /// What is offered and then what the user looks for. Raises EArgumentOutOfRangeException for more
  /// than 1023 UTF-16 units.
  void SetFindText(const std::string& text);
  TFindOptions Options() const { return FOptions; }
  /// What the user may choose, and what he has chosen.
  void SetOptions(TFindOptions options) { FOptions = options; }

  /// The user wants the next place of FindText.
  TNotifyEvent OnFind;

 protected:
  using TFunction = HWND(__stdcall*)(FINDREPLACEW*);
  bool Open(TFunction function);
  bool NeedsHook() const override { return true; }
  UINT_PTR HandleMessage(HWND window, UINT message, LPARAM lParam) override;
  /// A button was pressed; Options says which.
  virtual void Asked() { OnFind(this); }
  void CheckText(const std::string& text) const;

  std::string FFindText;
  std::string FReplaceText;

 private:
  struct TLink;
  void Take(const TLink& link);

  TFindOptions FOptions{frDown};
  TLink* FLink = nullptr;  // Of the dialog that is up; it ends with that.
};

/// The same with a text to put in the place of what is found (ReplaceTextW).
class VCL_API TReplaceDialog : public TFindDialog {
 public:
  explicit TReplaceDialog(TComponent* owner) : TFindDialog(owner) {}
  ~TReplaceDialog() override { AnnounceEnd(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;

  const std::string& ReplaceText() const { return FReplaceText; }
  /// What is offered as the new text, and then what the user wants. Raises
  /// EArgumentOutOfRangeException for more than 1023 UTF-16 units.
  void SetReplaceText(const std::string& text);

  /// The user wants the place that was found replaced (frReplace), or all places (frReplaceAll).
  TNotifyEvent OnReplace;

 protected:
  void Asked() override;
};

}  // namespace vcl
