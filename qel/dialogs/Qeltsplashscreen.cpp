// TQELSplashScreen: its table, when it comes and when it goes.
#include "qel/dialogs/Qeltsplashscreen.h"

#include <algorithm>
#include <utility>

#include "qel/core/Qelclock.h"
#include "qel/dialogs/private/splashwindow.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int TickTime = 20;  // Milliseconds.
constexpr int Opaque = 255;

/// The main form's window once it is to be seen; else null.
HWND MainWindow() {
  const vcl::TCustomForm* const form = vcl::Application()->MainForm();
  if (!form || !form->HandleAllocated()) return nullptr;
  const HWND window = const_cast<vcl::TCustomForm*>(form)->Handle();
  return ::IsWindowVisible(window) ? window : nullptr;
}

BOOL CALLBACK FindBox(HWND window, LPARAM found) {
  wchar_t name[8] = L"";
  ::GetClassNameW(window, name, 8);
  if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<bool*>(found) = true;
  return FALSE;
}

/// A box of the system's, or a modal form.
bool IsSomethingModal() {
  bool found = false;
  ::EnumThreadWindows(::GetCurrentThreadId(), &FindBox, reinterpret_cast<LPARAM>(&found));
  const vcl::TCustomForm* const form = vcl::Screen()->ActiveForm();
  const HWND main = MainWindow();
  return found || (form && form->Modal()) || (main && !::IsWindowEnabled(main));
}

}  // namespace

const vcl::TClass& TQELSplashScreen::Class() {
  using T = TQELSplashScreen;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomDialog>(
      "qel::TQELSplashScreen", "qel/dialogs/Qeltsplashscreen.h",
      {
          Property<&T::ClickCloses, &T::SetClickCloses>("ClickCloses").Default(true),
          Property<&T::FadeTime, &T::SetFadeTime>("FadeTime").Default(200),
          Property<&T::Font, &T::SetFont>("Font"),
          Property<&T::Message, &T::SetMessage>("Message").Default(""),
          Property<&T::MinTime, &T::SetMinTime>("MinTime").Default(1500),
          Property<&T::Percentage, &T::SetPercentage>("Percentage").Default(-1),
          Property<&T::Picture, &T::SetPicture>("Picture"),
      });
  return info;
}

TQELSplashScreen::TQELSplashScreen(vcl::TComponent* owner)
    : TQELCustomDialog(owner),
      FPicture(std::make_unique<vcl::TPicture>()),
      FFont(std::make_unique<vcl::TFont>()) {
  FPicture->OnChange = [this](vcl::TObject*) { Changed(); };
  FFont->OnChange = [this](vcl::TObject*) { Changed(); };
  FTimer.SetEnabled(false);
  FTimer.SetInterval(TickTime);
  FTimer.OnTimer = [this](vcl::TObject*) { Tick(); };
}

TQELSplashScreen::~TQELSplashScreen() { AnnounceEnd(); }

void TQELSplashScreen::Changed() {
  if (FWindow) FWindow->Draw();
}

void TQELSplashScreen::SetMinTime(int milliseconds) {
  if (milliseconds >= 0) FMinTime = milliseconds;
}

void TQELSplashScreen::SetFadeTime(int milliseconds) {
  if (milliseconds >= 0) FFadeTime = milliseconds;
}

void TQELSplashScreen::SetMessage(const std::string& message) {
  if (std::exchange(FMessage, message) != message) Changed();
}

void TQELSplashScreen::SetPercentage(int percentage) {
  if (percentage < -1 || percentage > 100) return;
  if (std::exchange(FPercentage, percentage) != percentage) Changed();
}

// Coming.

/// Later forms, made while the main form is there, show theirs when they are told to.
void TQELSplashScreen::Loaded() {
  TQELCustomDialog::Loaded();
  if (!Designing() && !MainWindow()) Execute();
}

bool TQELSplashScreen::Execute() {
  FLastError.clear();
  if (!FPicture->Graphic() && FMessage.empty() && FPercentage < 0) {
    FLastError = "There is nothing to show";
    return false;
  }
  TQELCustomDialog::Execute();
  auto window = std::make_unique<TWindow>(*this);
  window->Draw();
  FWindow = std::move(window);
  FSince = ::GetTickCount64();
  FGoing = 0;
  FTimer.SetEnabled(true);
  return true;
}

// Going.

void TQELSplashScreen::Close() {
  FTimer.SetEnabled(false);
  FWindow.reset();
}

/// What the system has still to paint has an area to be painted.
bool TQELSplashScreen::MayGo() const {
  const HWND main = MainWindow();
  const bool painted = Designing() || (main && !::GetUpdateRect(main, nullptr, FALSE));
  return painted && ::GetTickCount64() - FSince >= static_cast<ULONGLONG>(FMinTime);
}

void TQELSplashScreen::Tick() {
  if (!FWindow) return;
  if (!::IsWindowVisible(FWindow->Handle()) || IsSomethingModal()) return Close();
  if (MainWindow() && MainWindow() == ::GetForegroundWindow()) FWindow->ToFront();
  if (FGoing == 0) {
    if (!MayGo()) return;
    FGoing = ::GetTickCount64();
  }
  const auto gone = static_cast<int>(::GetTickCount64() - FGoing);
  if (gone >= FFadeTime || !QELAnimationWanted()) return Close();
  FWindow->SetOpacity(Opaque - Opaque * gone / FFadeTime);
}

}  // namespace qel
