// TQELMsgSelect: a question with one of several options as its answer.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelbuttondetails.h"
#include "qel/dialogs/Qelformdialog.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Has the user choose one of some options: radio buttons, or a list when there are more than
/// eight.
class QEL_API TQELMsgSelect : public TQELFormDialog {
 public:
  explicit TQELMsgSelect(vcl::TComponent* owner);
  ~TQELMsgSelect() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Asks. True when an option was chosen, which ItemIndex then says; else that stays. Without
  /// options nothing is shown, and LastError says so.
  bool Execute() override;
  /// Why the last Execute has shown nothing; empty when it has.
  const std::string& LastError() const { return FLastError; }

  const std::string& Text() const { return FText; }
  /// What stands above the options.
  void SetText(const std::string& text) { FText = text; }
  vcl::TStrings* Options() const { return FOptions.get(); }
  /// The options, one a line. In a radio button "&" marks a letter that chooses it.
  void SetOptions(const vcl::TStrings* options) { FOptions->Assign(options); }
  int ItemIndex() const { return FItemIndex; }
  /// The option that is chosen first, from 0; -1, and what is no option's index, for none: OK then
  /// waits for a choice. Refuses, silently, less than -1.
  void SetItemIndex(int index);
  /// The button that takes the choice.
  TQELButtonDetails* OkButton() const { return FOkButton.get(); }
  /// The button that leaves ItemIndex as it was.
  TQELButtonDetails* CancelButton() const { return FCancelButton.get(); }

 private:
  class TShown;

  std::string FText;
  std::unique_ptr<vcl::TStringList> FOptions;
  int FItemIndex = 0;
  std::unique_ptr<TQELButtonDetails> FOkButton;
  std::unique_ptr<TQELButtonDetails> FCancelButton;
  std::string FLastError;
};

}  // namespace qel
