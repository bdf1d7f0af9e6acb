// TSecretEdit, and TSecretForm with its warnings and its waiting.
#include "qel/dialogs/private/secretform.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/accessible.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int EditWidth = 260;  // At 96 dots per inch.
constexpr int EditFrame = 8;    // In pixels: edge and inner margin, at any dots per inch.
constexpr int MessageLines = 2;
constexpr char32_t Dot = 0x25CF;
constexpr char32_t ControlC = 3;
constexpr char32_t ControlX = 24;
enum { OkResult = 1, CancelResult, PeekResult };

}  // namespace

// TSecretEdit.

TSecretEdit::TSecretEdit(vcl::TComponent* owner) : TCustomEdit(owner) {
  SetPasswordChar(Dot);
  SetAutoSize(false);
  // To select all, the text would be read.
  SetAutoSelect(false);
}

void TSecretEdit::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TCustomEdit::DescribeAccessible(info);
  QELWipe(info.Value);
  info.State.Include(vcl::asProtected);
  info.Description = FNote;
}

void TSecretEdit::Read(TQELSecret& secret) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(Handle())) + 1, L'\0');
  const int length = ::GetWindowTextW(Handle(), text.data(), static_cast<int>(text.size()));
  const auto convert = [&](char* to, int size) {
    return ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, to, size, nullptr, nullptr);
  };
  const int size = convert(nullptr, 0);
  convert(secret.Resize(static_cast<std::size_t>(size)), size);
  ::SecureZeroMemory(text.data(), text.size() * sizeof text[0]);
}

/// The window writes a text of the same length to where the former one was.
void TSecretEdit::Wipe() {
  if (!HandleAllocated()) return;
  const std::wstring over(static_cast<std::size_t>(::GetWindowTextLengthW(Handle())), L'*');
  ::SetWindowTextW(Handle(), over.c_str());
  ::SetWindowTextW(Handle(), L"");
  ClearUndo();
}

void TSecretEdit::SetPeeked(bool peeked) { SetPasswordChar(peeked ? 0 : Dot); }

/// The window's own menu copies without these messages, as its keys do; while the text is hidden it
/// copies nothing.
void TSecretEdit::Dispatch(vcl::TMessage& message) {
  if (message.Msg == WM_COPY || message.Msg == WM_CUT) return;
  if (message.Msg == WM_CONTEXTMENU && PasswordChar() == 0) return;
  TCustomEdit::Dispatch(message);
}

void TSecretEdit::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  TCustomEdit::KeyDown(key, shift);
  const bool copies = key == VK_INSERT && shift.Has(vcl::ssCtrl);
  const bool cuts = key == VK_DELETE && shift.Has(vcl::ssShift);
  if (copies || cuts) key = 0;
}

void TSecretEdit::KeyPress(char32_t& key) {
  TCustomEdit::KeyPress(key);
  if (key == ControlC || key == ControlX) key = 0;
}

std::string WithNumber(const std::string& text, int number) {
  const std::size_t at = text.find("%d");
  if (at == std::string::npos) return text;
  return vcl::Concat(text.substr(0, at), std::to_string(number), text.substr(at + 2));
}

// TSecretForm: what it holds.

TSecretForm::TSecretForm(TQELSecretDialog& dialog)
    : FDialog(dialog), FForm(dialog), FCapsLockText(dialog.CapsLockText()) {
  FForm.AddText(dialog.Text());
}

TSecretForm::~TSecretForm() {
  for (TSecretEdit* each : FSecrets) each->Wipe();
}

vcl::TLabel* TSecretForm::AddLabel(int lines) {
  const int height = lines * FontHeight(*FForm.Font());
  auto* label = FForm.AddRow<vcl::TLabel>(FForm.ScaledPixels(EditWidth), height);
  label->SetAutoSize(false);
  label->SetTransparent(true);
  label->SetWordWrap(true);
  label->SetHeight(height);
  return label;
}

template <class Edit>
Edit* TSecretForm::AddEdit(const std::string& caption) {
  vcl::TLabel* const label = AddLabel(1);
  label->SetCaption(caption);
  auto* edit =
      FForm.AddRow<Edit>(FForm.ScaledPixels(EditWidth), FontHeight(*FForm.Font()) + EditFrame);
  edit->SetAccessibleName(vcl::WithoutAccel(caption));
  label->SetFocusControl(edit);
  return edit;
}

vcl::TEdit* TSecretForm::AddName(const std::string& label, const std::string& text) {
  auto* edit = AddEdit<vcl::TEdit>(label);
  edit->SetAutoSize(false);
  edit->SetText(text);
  return edit;
}

TSecretEdit* TSecretForm::AddSecret(const std::string& label) {
  FSecrets.push_back(AddEdit<TSecretEdit>(label));
  return FSecrets.back();
}

void TSecretForm::AddButtons() {
  FOk = FForm.AddButton(*FDialog.OkButton(), OkResult);
  if (FOk) {
    FOk->SetDefault(true);
    FOkEnabled = FOk->Enabled();
    FForm.SetAct(*FOk, [this] { Attempt(); });
  }
  vcl::TBitBtn* const cancel = FForm.AddButton(*FDialog.CancelButton(), CancelResult);
  if (cancel) cancel->SetCancel(true);
  FPeek = FForm.AddButton(*FDialog.PeekButton(), PeekResult);
  if (FPeek) FForm.SetAct(*FPeek, [this] { SetPeeked(!FPeeked); });
}

bool TSecretForm::Run(vcl::TWinControl* first, std::function<void()> attempt) {
  if (Closing()) return false;
  FAttempt = std::move(attempt);
  FMessageLabel = AddLabel(MessageLines);
  FMessageLabel->SetShowAccelChar(false);
  FCapsLabel = AddLabel(1);
  FCapsLabel->SetShowAccelChar(false);
  AddButtons();
  FForm.SetActiveControl(first);
  FTimer.SetInterval(100);
  FTimer.OnTimer = [this](vcl::TObject*) { Tick(); };
  Tick();
  return FForm.Run() == OkResult;
}

// Trying, waiting and warning.

void TSecretForm::Accept() { FForm.Finish(OkResult); }
void TSecretForm::Close() { FForm.Finish(CancelResult); }
bool TSecretForm::Closing() const { return FForm.ModalResult() != vcl::mrNone; }
bool TSecretForm::Waiting() const { return ::GetTickCount64() < FWaitEnd; }

void TSecretForm::Attempt() {
  SetPeeked(false);
  if (!Waiting()) FAttempt();
}

void TSecretForm::SetPeeked(bool peeked) {
  FPeeked = peeked;
  for (TSecretEdit* each : FSecrets) each->SetPeeked(peeked);
}

void TSecretForm::Refuse(const std::string& message, TSecretEdit* next) {
  for (TSecretEdit* each : FSecrets) each->Wipe();
  FMessage = message;
  next->SetNote(message);
  ShowMessage();
  next->SetFocus();
}

void TSecretForm::WaitUntil(std::uint64_t end, const std::string& text) {
  FWaitEnd = end;
  FWaitText = text;
  if (FMessageLabel) Tick();
}

void TSecretForm::ShowMessage() {
  std::string text = FMessage;
  if (Waiting()) {
    const auto seconds = static_cast<int>((FWaitEnd - ::GetTickCount64() + 999) / 1000);
    text += (text.empty() ? "" : " ") + WithNumber(FWaitText, seconds);
  }
  if (text != FMessageLabel->Caption()) FMessageLabel->SetCaption(text);
}

void TSecretForm::Tick() {
  if (FOk) FOk->SetEnabled(FOkEnabled && !Waiting());
  ShowMessage();
  const bool locked = (::GetKeyState(VK_CAPITAL) & 1) != 0;
  const std::string warning = locked ? FCapsLockText : std::string();
  if (warning != FCapsLabel->Caption()) FCapsLabel->SetCaption(warning);
}

}  // namespace qel
