// TQELMsgDlg: its table, the dialog, and the answers that are kept.
#include "qel/dialogs/Qeltmsgdlg.h"

#include <charconv>

#include "qel/core/private/keptvalues.h"
#include "qel/dialogs/private/dialogform.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr const char* StoreSection = "Answers";
constexpr const char* AnswerValue = "Answer";

/// Counts seconds down in a button's caption, and answers with it in the end.
class TCountdown {
 public:
  TCountdown(TDialogForm& form, int result, int seconds)
      : FForm(form),
        FButton(*form.ButtonWith(result)),
        FResult(result),
        FCaption(FButton.Caption()),
        FEnd(::GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000) {
    ShowLeft(seconds);
    FTimer.SetInterval(100);
    FTimer.OnTimer = [this](vcl::TObject*) { Tick(); };
  }
  bool Over() const { return FOver; }

 private:
  void ShowLeft(int seconds) {
    const std::string caption = vcl::Concat(FCaption, " (", std::to_string(seconds), ")");
    if (caption != FButton.Caption()) FButton.SetCaption(caption);
  }
  void Tick() {
    const ULONGLONG now = ::GetTickCount64();
    if (now < FEnd) return ShowLeft(static_cast<int>((FEnd - now + 999) / 1000));
    FTimer.SetEnabled(false);
    if (FForm.ModalResult() != vcl::mrNone) return;
    FOver = true;
    FForm.Finish(FResult);
  }

  TDialogForm& FForm;
  vcl::TBitBtn& FButton;
  int FResult;
  std::string FCaption;
  ULONGLONG FEnd;
  bool FOver = false;
  vcl::TTimer FTimer{nullptr};
};

}  // namespace

/// The dialog as it is on the screen.
class TQELMsgDlg::TShown {
 public:
  explicit TShown(TQELMsgDlg& dialog) : FForm(dialog) {
    FForm.AddPicture(*dialog.FPicture);
    FForm.AddText(dialog.FilledText());
    if (dialog.Kept().Used() && !dialog.FCheckText.empty()) AddCheck(dialog.FCheckText);
    AddButtons(dialog);
  }
  int Run() { return FForm.Run(); }
  bool Keep() const { return FCheck && FCheck->Checked() && !(FCountdown && FCountdown->Over()); }

 private:
  void AddCheck(const std::string& text) {
    const vcl::TSize size = FForm.SizeOfChoice(text);
    FCheck = FForm.AddRow<vcl::TCheckBox>(size.cx, size.cy);
    FCheck->SetCaption(text);
  }
  void AddButtons(const TQELMsgDlg& dialog) {
    for (int i = 0; i < ButtonCount; ++i) {
      FForm.AddButton(*dialog.FButtons[static_cast<std::size_t>(i)], i + 1);
    }
    if (FForm.ButtonCount() == 0) AddOk();
    if (vcl::TBitBtn* cancel = FForm.ButtonWith(dialog.FCancelButton)) cancel->SetCancel(true);
    const bool shown = FForm.ButtonWith(dialog.FDefaultButton);
    const int result = shown ? dialog.FDefaultButton : FForm.ResultAt(0);
    vcl::TBitBtn* const button = FForm.ButtonWith(result);
    button->SetDefault(true);
    if (button->Enabled()) FForm.SetActiveControl(button);
    if (dialog.FTimeout > 0) {
      FCountdown = std::make_unique<TCountdown>(FForm, result, dialog.FTimeout);
    }
  }
  void AddOk() {
    TQELButtonDetails ok;
    ok.SetCaption("OK");
    FForm.AddButton(ok, 1);
  }

  TDialogForm FForm;
  vcl::TCheckBox* FCheck = nullptr;
  std::unique_ptr<TCountdown> FCountdown;
};

const vcl::TClass& TQELMsgDlg::Class() {
  using T = TQELMsgDlg;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormDialog>(
      "qel::TQELMsgDlg", "qel/dialogs/Qeltmsgdlg.h",
      {
          ReadOnly<&T::AnswerStore>("AnswerStore"),
          ReadOnly<&T::Button1>("Button1"),
          ReadOnly<&T::Button2>("Button2"),
          ReadOnly<&T::Button3>("Button3"),
          ReadOnly<&T::Button4>("Button4"),
          ReadOnly<&T::Button5>("Button5"),
          Property<&T::CancelButton, &T::SetCancelButton>("CancelButton").Default(0),
          Property<&T::CheckText, &T::SetCheckText>("CheckText").Default("Do not ask again"),
          Property<&T::DefaultButton, &T::SetDefaultButton>("DefaultButton").Default(1),
          Property<&T::Picture, &T::SetPicture>("Picture"),
          Property<&T::Text, &T::SetText>("Text").Default(""),
          Property<&T::Timeout, &T::SetTimeout>("Timeout").Default(0),
          Property<&T::Values, &T::SetValues>("Values"),
      });
  return info;
}

TQELMsgDlg::TQELMsgDlg(vcl::TComponent* owner)
    : TQELFormDialog(owner),
      FValues(std::make_unique<vcl::TStringList>()),
      FPicture(std::make_unique<vcl::TPicture>()),
      FAnswerStore(std::make_unique<TQELDataStore>()) {
  for (auto& button : FButtons) button = std::make_unique<TQELButtonDetails>();
  Button1()->SetCaption("OK");
  FAnswerStore->Registry()->SetSection(StoreSection);
  FAnswerStore->Inifile()->SetSection(StoreSection);
  FAnswerStore->SetInitialEnabled(false);
}

TQELMsgDlg::~TQELMsgDlg() { AnnounceEnd(); }

void TQELMsgDlg::SetDefaultButton(int number) {
  if (number >= 1 && number <= ButtonCount) FDefaultButton = number;
}

void TQELMsgDlg::SetCancelButton(int number) {
  if (number >= 0 && number <= ButtonCount) FCancelButton = number;
}

void TQELMsgDlg::SetTimeout(int seconds) {
  if (seconds >= 0) FTimeout = seconds;
}

/// A "%s" in a value is the value's own.
std::string TQELMsgDlg::FilledText() const {
  std::string filled;
  std::size_t from = 0;
  for (int i = 0; i < FValues->Count(); ++i) {
    const std::size_t at = FText.find("%s", from);
    if (at == std::string::npos) break;
    filled += vcl::Concat(FText.substr(from, at - from), FValues->Strings(i));
    from = at + 2;
  }
  return filled + FText.substr(from);
}

bool TQELMsgDlg::Execute() {
  const TWatch watch(this);
  const int kept = KeptAnswer();
  if (watch.Gone()) return false;
  if (kept > 0) return Answered(kept);
  TQELFormDialog::Execute();
  TShown shown(*this);
  const int result = shown.Run();
  if (watch.Gone()) return false;
  if (result > 0 && shown.Keep()) Kept().Write(AnswerValue, std::to_string(result));
  return !watch.Gone() && Answered(result);
}

bool TQELMsgDlg::Answered(int result) {
  FResult = result;
  return result != 0 && result != FCancelButton;
}

// The answers that are kept.

TKeptValues TQELMsgDlg::Kept() { return {*FAnswerStore, *this}; }

/// A button that could be pressed now.
bool TQELMsgDlg::IsAnswer(int number) const {
  if (number < 1 || number > ButtonCount) return false;
  const TQELButtonDetails& button = *FButtons[static_cast<std::size_t>(number - 1)];
  return button.Visible() && button.Enabled() &&
         (!button.Caption().empty() || !button.Glyph()->Empty());
}

/// 0 when there is none, or none that still is one.
int TQELMsgDlg::KeptAnswer() {
  const TWatch watch(this);
  const std::string text = Kept().Read(AnswerValue);
  if (watch.Gone()) return 0;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && IsAnswer(number) ? number : 0;
}

void TQELMsgDlg::ForgetAnswer() { Kept().Forget(AnswerValue); }

}  // namespace qel
