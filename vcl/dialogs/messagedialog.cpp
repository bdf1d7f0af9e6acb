// MessageDlg, InputQuery and InputBox: the form that shows a message or question, and its buttons.
#include "vcl/dialogs/messagedialog.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/image.h"
#include "vcl/stdctrls/label.h"

namespace vcl {

namespace {

constexpr int Margin = 14;
constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 25;
constexpr int ButtonGap = 8;

struct TKind {
  const char* Caption;
  LPCSTR Icon;
  UINT Sound;
};
const TKind Kinds[] = {
    {"Warning", IDI_WARNING, MB_ICONWARNING},
    {"Error", IDI_ERROR, MB_ICONERROR},
    {"Information", IDI_INFORMATION, MB_ICONINFORMATION},
    {"Confirm", IDI_QUESTION, MB_ICONQUESTION},
    {"", nullptr, MB_OK},
};

struct TChoice {
  const char* Caption;
  TModalResult Result;
};
constexpr TChoice Choices[] = {
    {"&Yes", mrYes},     {"&No", mrNo},       {"OK", mrOk},          {"Cancel", mrCancel},
    {"&Abort", mrAbort}, {"&Retry", mrRetry}, {"&Ignore", mrIgnore}, {"A&ll", mrAll},
};

/// The form of a message or a question; its parts are put in from the top to the bottom.
class TMessageForm : public TForm {
 public:
  explicit TMessageForm(const std::string& caption) : TForm(nullptr) {
    SetBorderStyle(bsDialog);
    SetBorderIcons({biSystemMenu});
    SetPosition(poScreenCenter);
    SetCaption(caption);
    SetColor(clBtnFace);
  }
  /// Adds a control in its place.
  template <class T>
  T* Put(int left, int top, int width, int height) {
    auto* control = new T(this);
    control->SetParent(this);
    control->SetBounds(left, top, width, height);
    return control;
  }
  void PutIcon(LPCSTR icon) {
    auto* image = Put<TImage>(Margin, Margin, 32, 32);
    const HICON shared = ::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(icon));
    image->Picture()->Icon()->SetHandle(::CopyIcon(shared));
  }
  /// Adds text and returns its rectangle.
  TRect PutText(int left, const std::string& text) {
    const TRect area = Screen()->WorkAreaRect();
    TRect rect{0, 0, (area.Right - area.Left) / 2, 0};
    constexpr UINT flags = DT_NOPREFIX | DT_EXPANDTABS | DT_WORDBREAK;
    {
      const TWindowDC dc(nullptr);
      TCanvas canvas;
      canvas.SetHandle(dc.Get());
      canvas.SetFont(Font());
      DrawTextOn(&canvas, text, rect, flags | DT_CALCRECT);
      canvas.SetHandle(nullptr);
    }
    const int height = std::min(rect.Bottom, (area.Bottom - area.Top) * 3 / 4);
    auto* label = Put<TLabel>(left, Margin, rect.Right, height);
    label->SetAutoSize(false);
    label->SetShowAccelChar(false);
    label->SetWordWrap(true);
    label->SetBounds(left, Margin, rect.Right, height);
    label->SetCaption(text);
    return label->BoundsRect();
  }
  /// Adds the buttons in the middle below the rest, and gives the form its size.
  void PutButtons(const std::vector<TChoice>& choices, int width, int top) {
    const int count = static_cast<int>(choices.size());
    const int row = count * (ButtonWidth + ButtonGap) - ButtonGap;
    width = std::max(width, row);
    SetClientWidth(width + 2 * Margin);
    SetClientHeight(top + ButtonHeight + Margin);
    int left = Margin + (width - row) / 2;
    for (const TChoice& choice : choices) {
      auto* button = Put<TButton>(left, top, ButtonWidth, ButtonHeight);
      button->SetCaption(choice.Caption);
      button->SetModalResult(choice.Result);
      if (&choice == &choices.front()) SetDefaultButton(*button);
      left += ButtonWidth + ButtonGap;
    }
  }
  /// Has Escape press the button with the result; false when there is none.
  bool SetCancelButton(TModalResult result) {
    TButton* button = ButtonWith(result);
    if (button) button->SetCancel(true);
    return button;
  }
  /// Has Enter press the button with the result, which there must be.
  void SetDefaultButton(TModalResult result) { SetDefaultButton(*ButtonWith(result)); }

 private:
  void SetDefaultButton(TButton& button) {
    if (FDefault) FDefault->SetDefault(false);
    FDefault = &button;
    button.SetDefault(true);
    SetActiveControl(&button);
  }
  TButton* ButtonWith(TModalResult result) const {
    for (int i = 0; i < ControlCount(); ++i) {
      auto* button = dynamic_cast<TButton*>(Controls(i));
      if (button && button->ModalResult() == result) return button;
    }
    return nullptr;
  }

  TButton* FDefault = nullptr;
};

std::vector<TChoice> ChoicesOf(TMsgDlgButtons buttons) {
  if (buttons.Empty()) buttons.Include(mbOK);
  std::vector<TChoice> choices;
  for (int i = 0; i < static_cast<int>(std::size(Choices)); ++i)
    if (buttons.Has(static_cast<TMsgDlgBtn>(i))) choices.push_back(Choices[i]);
  return choices;
}

TModalResult Ask(const std::string& text, TMsgDlgType type, TMsgDlgButtons buttons,
                 std::optional<TMsgDlgBtn> defaultButton) {
  const TKind& kind = Kinds[type];
  TMessageForm form(type == mtCustom ? Application()->Title() : kind.Caption);
  if (kind.Icon) form.PutIcon(kind.Icon);
  const TRect body = form.PutText(kind.Icon ? Margin + 32 + Margin : Margin, text);
  const int bottom = std::max(body.Bottom, kind.Icon ? Margin + 32 : 0);
  form.PutButtons(ChoicesOf(buttons), body.Right - Margin, bottom + Margin);
  form.SetCancelButton(mrCancel) || form.SetCancelButton(mrNo) || form.SetCancelButton(mrOk);
  if (defaultButton) form.SetDefaultButton(Choices[*defaultButton].Result);
  ::MessageBeep(kind.Sound);
  return static_cast<TModalResult>(form.ShowModal());
}

}  // namespace

TModalResult MessageDlg(const std::string& text, TMsgDlgType type, TMsgDlgButtons buttons) {
  return Ask(text, type, buttons, std::nullopt);
}

TModalResult MessageDlg(const std::string& text, TMsgDlgType type, TMsgDlgButtons buttons,
                        TMsgDlgBtn defaultButton) {
  if (!buttons.Has(defaultButton)) {
    throw EArgumentOutOfRangeException(Concat("The question \"", text, "\" has no button ",
                                              Choices[defaultButton].Caption,
                                              " that could be its default"));
  }
  return Ask(text, type, buttons, defaultButton);
}

bool InputQuery(const std::string& caption, const std::string& prompt, std::string& value) {
  TMessageForm form(caption);
  const TRect label = form.PutText(Margin, prompt);
  const int width = std::max(label.Right - Margin, 280);
  auto* edit = form.Put<TEdit>(Margin, label.Bottom + 6, width, 21);
  edit->SetText(value);
  form.PutButtons({Choices[mbOK], Choices[mbCancel]}, width, edit->Top() + edit->Height() + Margin);
  form.SetCancelButton(mrCancel);
  form.SetActiveControl(edit);
  if (form.ShowModal() != mrOk) return false;
  value = edit->Text();
  return true;
}

std::string InputBox(const std::string& caption, const std::string& prompt,
                     const std::string& offered) {
  std::string value = offered;
  InputQuery(caption, prompt, value);
  return value;
}

}  // namespace vcl
