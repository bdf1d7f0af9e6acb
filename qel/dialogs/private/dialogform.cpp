// TDialogForm: its parts, its size and place, and its keys.
#include "qel/dialogs/private/dialogform.h"

#include <algorithm>

#include "vcl/controls/accelerators.h"
#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/image.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/memo.h"
#include "vcl/transfer/clipboard.h"

namespace qel {

namespace {

// At 96 dots per inch.
constexpr int Margin = 14;
constexpr int Gap = 8;
constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 25;
constexpr int LeastWidth = 220;

constexpr UINT TextFlags = DT_NOPREFIX | DT_EXPANDTABS | DT_WORDBREAK;

/// The active form's place; without one, the primary monitor.
vcl::TRect PlaceOfActiveForm() {
  const vcl::TCustomForm* form = vcl::Screen()->ActiveForm();
  if (!form) form = vcl::Application()->MainForm();
  const bool seen = form && form->Visible() && form->WindowState() != vcl::wsMinimized;
  return seen ? form->BoundsRect() : vcl::Screen()->WorkAreaRect();
}

vcl::TSize SizeOfText(vcl::TFont* font, const std::string& text, int width) {
  const vcl::TWindowDC dc(nullptr);
  vcl::TCanvas canvas;
  vcl::TRect rect(0, 0, width, 0);
  canvas.SetHandle(dc.Get());
  canvas.SetFont(font);
  DrawTextOn(&canvas, text, rect, TextFlags | DT_CALCRECT);
  canvas.SetHandle(nullptr);
  return {rect.Width(), rect.Height()};
}

}  // namespace

TDialogForm::TDialogForm(TQELFormDialog& dialog)
    : TForm(nullptr),
      FDialog(&dialog),
      FOver(PlaceOfActiveForm()),
      FArea(vcl::Screen()->WorkAreaRect(FOver)) {
  SetBorderStyle(vcl::bsDialog);
  SetBorderIcons({vcl::biSystemMenu});
  SetColor(vcl::clBtnFace);
  SetKeyPreview(true);
  SetCaption(dialog.Title().empty() ? vcl::Application()->Title() : dialog.Title());
  dialog.FreeNotification(this);
  // On that monitor already, and larger than its border, which its size is reckoned with.
  SetBounds(FOver.Left + FOver.Width() / 2, FOver.Top + FOver.Height() / 2, 200, 200);
  // From here on the measures are those of the monitor.
  HandleNeeded();
  SetBack(dialog.Background());
}

TDialogForm::~TDialogForm() {
  AnnounceEnd();
  QELMoveClient(this, FBackground, nullptr);
}

void TDialogForm::SetBack(TQELCustomBackground* background) {
  QELMoveClient(this, FBackground, background);
  FBackground = background;
  if (background) background->FreeNotification(this);
}

void TDialogForm::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TForm::Notification(component, operation);
  if (operation != vcl::opRemove) return;
  if (component == FBackground) SetBack(nullptr);
  if (component != FDialog) return;
  FDialog = nullptr;
  Finish(0);
}

void TDialogForm::PaintWindow(HDC dc) {
  if (FBackground) FBackground->Draw(dc, ClientWidth(), ClientHeight(), true);
  TForm::PaintWindow(dc);
}

// What it holds.

void TDialogForm::Put(vcl::TControl& control, int width, int height) {
  control.SetParent(this);
  FRows.push_back({&control, {width, height}});
}

void TDialogForm::AddPicture(const vcl::TPicture& picture) {
  const int width = ScaledPixels(picture.Width());
  const int height = ScaledPixels(picture.Height());
  if (width <= 0 || height <= 0) return;
  const double fits = std::min({1.0, FArea.Width() / 4.0 / width, FArea.Height() / 4.0 / height});
  auto* image = new vcl::TImage(this);
  image->SetParent(this);
  image->SetPicture(&picture);
  image->SetStretch(true);
  image->SetBounds(0, 0, std::max(1, static_cast<int>(width * fits)),
                   std::max(1, static_cast<int>(height * fits)));
  FPicture = image;
}

void TDialogForm::AddText(const std::string& text) {
  if (text.empty()) return;
  FText += FText.empty() ? text : "\n" + text;
  const int bar = ::GetSystemMetrics(SM_CXVSCROLL) + ScaledPixels(Gap);
  const vcl::TSize size = SizeOfText(Font(), text, FArea.Width() / 2);
  const int highest = FArea.Height() / 2;
  if (size.cy > highest) {
    auto* memo = AddRow<vcl::TMemo>(FArea.Width() / 2 + bar, highest);
    memo->SetReadOnly(true);
    memo->SetWantReturns(false);
    memo->SetScrollBars(vcl::ssVertical);
    return memo->SetText(text);
  }
  // Letters may be drawn a little wider than they were measured.
  auto* label = AddRow<vcl::TLabel>(size.cx + ScaledPixels(6), size.cy);
  label->SetAutoSize(false);
  label->SetShowAccelChar(false);
  label->SetWordWrap(true);
  label->SetTransparent(true);
  label->SetCaption(text);
}

vcl::TSize TDialogForm::SizeOfChoice(const std::string& caption) const {
  const int width = TextWidth(*Font(), vcl::WithoutAccel(caption)) + ScaledPixels(28);
  return {std::min(width, FArea.Width() / 2), FontHeight(*Font()) + ScaledPixels(6)};
}

vcl::TBitBtn* TDialogForm::AddButton(const TQELButtonDetails& details, int result) {
  if (!details.Visible() || (details.Caption().empty() && details.Glyph()->Empty())) return nullptr;
  auto* button = new vcl::TBitBtn(this);
  button->SetParent(this);
  button->SetCaption(details.Caption());
  button->SetGlyph(details.Glyph());
  button->SetEnabled(details.Enabled());
  button->SetHint(details.Hint());
  button->SetShowHint(details.ShowHint());
  button->OnClick = [this, button](vcl::TObject*) { Press(*button); };
  std::string question;
  if (details.ConfirmOnPress()) {
    question = details.ConfirmMessage().empty() ? vcl::WithoutAccel(details.Caption()) + "?"
                                                : details.ConfirmMessage();
  }
  FButtons.push_back({button, result, std::move(question), {}});
  return button;
}

void TDialogForm::SetAct(const vcl::TBitBtn& button, std::function<void()> act) {
  std::ranges::find(FButtons, &button, &TChoice::Button)->Act = std::move(act);
}

vcl::TBitBtn* TDialogForm::ButtonWith(int result) const {
  const auto found = std::ranges::find(FButtons, result, &TChoice::Result);
  return found == FButtons.end() ? nullptr : found->Button;
}

// Its size and place.

int TDialogForm::WidthOfButton(const vcl::TBitBtn& button) const {
  int width = TextWidth(*Font(), vcl::WithoutAccel(button.Caption())) + ScaledPixels(24);
  if (!button.Glyph()->Empty()) width += button.Glyph()->Width() + ScaledPixels(4);
  const int count = ButtonCount();
  const int room = (FArea.Width() - 2 * ScaledPixels(Margin)) / count - ScaledPixels(Gap);
  return std::min(std::max(width, ScaledPixels(ButtonWidth)), room);
}

/// Returns the size of the rows, with the picture.
vcl::TSize TDialogForm::LayRows() {
  const int margin = ScaledPixels(Margin);
  const int left = FPicture ? margin + FPicture->Width() : 0;
  int width = ScaledPixels(LeastWidth) - left;
  for (const TRow& row : FRows) width = std::max(width, static_cast<int>(row.Size.cx));
  int buttons = -ScaledPixels(Gap);
  for (const TChoice& each : FButtons) buttons += WidthOfButton(*each.Button) + ScaledPixels(Gap);
  width = std::max(width, buttons - left);
  int top = margin;
  for (const TRow& row : FRows) {
    row.Control->SetBounds(margin + left, top, width, row.Size.cy);
    top += row.Size.cy + ScaledPixels(Gap);
  }
  if (FPicture) {
    FPicture->SetLeft(margin);
    FPicture->SetTop(margin);
    top = std::max(top, margin + FPicture->Height() + ScaledPixels(Gap));
  }
  return {left + width + 2 * margin, top};
}

void TDialogForm::LayButtons(int width, int top) {
  int row = -ScaledPixels(Gap);
  for (const TChoice& each : FButtons) row += WidthOfButton(*each.Button) + ScaledPixels(Gap);
  int left = (width - row) / 2;
  for (const TChoice& each : FButtons) {
    const int own = WidthOfButton(*each.Button);
    each.Button->SetBounds(left, top, own, ScaledPixels(ButtonHeight));
    left += own + ScaledPixels(Gap);
  }
}

void TDialogForm::Lay() {
  const vcl::TSize rows = LayRows();
  const int top = rows.cy + ScaledPixels(Margin - Gap);
  LayButtons(rows.cx, top);
  SetClientSize(rows.cx, top + ScaledPixels(ButtonHeight + Margin));
}

/// What is larger than the work area begins at its corner.
void TDialogForm::PlaceOverForm() {
  const auto place = [](int middle, int size, int begin, int end) {
    return std::max(begin, std::min(middle - size / 2, end - size));
  };
  SetBounds(place(FOver.Left + FOver.Width() / 2, Width(), FArea.Left, FArea.Right),
            place(FOver.Top + FOver.Height() / 2, Height(), FArea.Top, FArea.Bottom), Width(),
            Height());
}

int TDialogForm::Run() {
  if (!FDialog) return 0;
  Lay();
  PlaceOverForm();
  ShowModal();
  return FResult;
}

/// Without an owner of its own, the window would go behind that form at the first click there.
void TDialogForm::StayOpen() {
  vcl::TCustomForm* const form = vcl::Screen()->ActiveForm();
  if (form && form->HandleAllocated()) {
    ::SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(form->Handle()));
  }
  Lay();
  PlaceOverForm();
  Show();
}

void TDialogForm::DoClose(vcl::TCloseAction& action) {
  if (!Modal()) action = vcl::caFree;
  TForm::DoClose(action);
}

/// The system ends a window with the one that it stands in front of.
void TDialogForm::Dispatch(vcl::TMessage& message) {
  const vcl::TWatch watch(this);
  TForm::Dispatch(message);
  const bool ends = message.Msg == WM_DESTROY && !watch.Gone() && !Destroying();
  if (ends && !Modal() && !ControlState().Has(vcl::csDestroyingHandle)) Close();
}

// Its answer and its keys.

void TDialogForm::Finish(int result) {
  FResult = result;
  if (!Modal() && Visible()) return Close();
  SetModalResult(vcl::mrOk);
}

void TDialogForm::Press(const vcl::TBitBtn& button) {
  const auto found = std::ranges::find(FButtons, &button, &TChoice::Button);
  const TChoice& choice = *found;
  if (!choice.Question.empty() &&
      vcl::Application()->MessageBox(choice.Question, Caption(), MB_YESNO | MB_ICONQUESTION) !=
          IDYES) {
    return;
  }
  // Meanwhile the dialog may have been freed, or its time have run out.
  if (ModalResult() != vcl::mrNone) return;
  choice.Act ? choice.Act() : Finish(choice.Result);
}

bool TDialogForm::HasCancelButton() const {
  return std::ranges::any_of(FButtons, [](const TChoice& each) { return each.Button->Cancel(); });
}

bool TDialogForm::EditHasSelection() const {
  const auto* edit = dynamic_cast<const vcl::TCustomEdit*>(ActiveControl());
  return edit && (!edit->ReadOnly() || edit->SelLength() > 0);
}

/// As the system's message boxes put it.
void TDialogForm::CopyToClipboard() const {
  const std::string line = std::string(27, '-') + "\r\n";
  std::string buttons;
  for (const TChoice& each : FButtons) {
    buttons += vcl::WithoutAccel(each.Button->Caption()) + "   ";
  }
  vcl::Clipboard()->SetAsText(
      vcl::Concat(line, Caption(), "\r\n", line, FText, "\r\n", line, buttons, "\r\n", line));
}

void TDialogForm::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  TForm::KeyDown(key, shift);
  if (key == VK_F1 && shift.Empty() && FDialog && FDialog->HelpContext() != 0) {
    key = 0;
    FDialog->OnHelp(FDialog, FDialog->HelpContext());
  } else if (key == 'C' && shift == vcl::TShiftState{vcl::ssCtrl} && !EditHasSelection()) {
    key = 0;
    CopyToClipboard();
  } else if (key == VK_ESCAPE && shift.Empty() && !HasCancelButton()) {
    key = 0;
    Finish(0);
  }
}

}  // namespace qel
