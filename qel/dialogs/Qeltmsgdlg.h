// TQELMsgDlg: a message or a question with buttons, texts and a picture of the developer's own.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "qel/core/Qelbuttondetails.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/dialogs/Qelformdialog.h"
#include "vcl/graphics/picture.h"

namespace qel {

class TKeptValues;

/// Asks a question and says which of up to five buttons was the answer. A button without caption
/// and glyph is not shown; when none is, the first is, as "OK".
///
/// With AnswerStore enabled the user may have the answer kept, by a box with CheckText: from then
/// on Execute gives it without asking, from the value "Form1.MsgDlg1_Answer" of the owner's and the
/// component's own name. The designer neither reads nor writes the store. What the store refuses
/// tells its OnError; the question is asked then.
class QEL_API TQELMsgDlg : public TQELFormDialog {
 public:
  explicit TQELMsgDlg(vcl::TComponent* owner);
  ~TQELMsgDlg() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Asks, unless the answer has been kept, and sets Result. False when the answer is the cancel
  /// button, and when the dialog was closed.
  bool Execute() override;
  /// The number of the button that was the answer, from 1; 0 when the dialog was closed.
  int Result() const { return FResult; }
  /// Text with its values filled in.
  std::string FilledText() const;
  /// Has the question asked again. Raises ERegistryException or EIniFileException for a store that
  /// refuses.
  void ForgetAnswer();

  const std::string& Text() const { return FText; }
  /// The message. Each "%s" in it stands for the next one of Values.
  void SetText(const std::string& text) { FText = text; }
  vcl::TStrings* Values() const { return FValues.get(); }
  /// What stands in Text for each "%s"; where there are too few, the rest stay as they are.
  void SetValues(const vcl::TStrings* values) { FValues->Assign(values); }
  vcl::TPicture* Picture() const { return FPicture.get(); }
  /// The picture beside the text; it is copied.
  void SetPicture(const vcl::TPicture* picture) { FPicture->Assign(picture); }
  /// The first button from the left.
  TQELButtonDetails* Button1() const { return FButtons[0].get(); }
  /// The second button from the left.
  TQELButtonDetails* Button2() const { return FButtons[1].get(); }
  /// The third button from the left.
  TQELButtonDetails* Button3() const { return FButtons[2].get(); }
  /// The fourth button from the left.
  TQELButtonDetails* Button4() const { return FButtons[3].get(); }
  /// The fifth button from the left.
  TQELButtonDetails* Button5() const { return FButtons[4].get(); }
  int DefaultButton() const { return FDefaultButton; }
  /// The number of the button that Enter presses, from 1; the first one that is shown takes the
  /// place of one that is not. Refuses, silently, what is no button's number.
  void SetDefaultButton(int number);
  int CancelButton() const { return FCancelButton; }
  /// The number of the button that Escape presses, from 1; 0 for none, Escape then closes the
  /// dialog. Refuses, silently, other numbers.
  void SetCancelButton(int number);
  const std::string& CheckText() const { return FCheckText; }
  /// The text of the box that keeps the answer, shown while AnswerStore is enabled; empty for no
  /// box.
  void SetCheckText(const std::string& text) { FCheckText = text; }
  /// Where the answer is kept; not enabled at first.
  TQELDataStore* AnswerStore() const { return FAnswerStore.get(); }
  int Timeout() const { return FTimeout; }
  /// After how many seconds the default button is the answer, which its caption counts down; 0 for
  /// never. Such an answer is not kept. Refuses, silently, less than 0.
  void SetTimeout(int seconds);

 private:
  static constexpr int ButtonCount = 5;
  class TShown;
  TKeptValues Kept();
  int KeptAnswer();
  bool IsAnswer(int number) const;
  bool Answered(int result);

  std::string FText;
  std::unique_ptr<vcl::TStringList> FValues;
  std::unique_ptr<vcl::TPicture> FPicture;
  std::array<std::unique_ptr<TQELButtonDetails>, ButtonCount> FButtons;
  int FDefaultButton = 1;
  int FCancelButton = 0;
  std::string FCheckText = "Do not ask again";
  std::unique_ptr<TQELDataStore> FAnswerStore;
  int FTimeout = 0;
  int FResult = 0;
};

}  // namespace qel
