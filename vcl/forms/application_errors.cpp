// TApplication: errors and message boxes.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/forms/private/taskwindows.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

namespace {

// The error's text as a sentence.
std::string Sentence(std::string text) {
  if (text.empty() || std::string_view(".!?").find(text.back()) == std::string_view::npos) {
    text += '.';
  }
  return text;
}

}  // namespace

void TApplication::HandleException(TObject* sender, const std::exception& error) {
  try {
    if (const HWND capture = ::GetCapture()) ::SendMessageW(capture, WM_CANCELMODE, 0, 0);
    if (dynamic_cast<const EAbort*>(&error)) return;
    bool handled = static_cast<bool>(OnException);
    OnException(sender, error);
    TApplicationListener::TellAll(
        [&](TApplicationListener& each) { each.Error(sender, error, handled); });
    if (!handled) ShowException(error);
  } catch (const std::exception& another) {
    ShowException(another);
  } catch (...) {
    ShowException(Exception("An error of an unknown kind in the handler of errors"));
  }
}

// A timer may raise the same error again and again while its box is up: each text waits once.
void TApplication::ShowException(const std::exception& error) {
  try {
    // A box of the system's is as large as its text.
    constexpr std::size_t enough = 2000;
    const std::string_view told = error.what();
    const std::string text =
        told.size() <= enough ? Sentence(std::string(told)) : Concat(CutUtf8(told, enough), "...");
    if (std::find(FWaitingErrors.begin(), FWaitingErrors.end(), text) == FWaitingErrors.end()) {
      FWaitingErrors.push_back(text);
    }
    if (std::exchange(FShowingError, true)) return;
    while (!FWaitingErrors.empty()) {
      MessageBox(FWaitingErrors.front(), Title(), MB_OK | MB_ICONERROR);
      FWaitingErrors.erase(FWaitingErrors.begin());
    }
  } catch (...) {
    // Without memory for a text there is nothing to show.
    ::MessageBeep(MB_ICONERROR);
  }
  FShowingError = false;
}

int TApplication::MessageBox(const std::string& text, const std::string& caption, int flags) {
  const TSystemModal modal;
  return ::MessageBoxW(modal.Owner(), ToUtf16(text).c_str(), ToUtf16(caption).c_str(),
                       static_cast<UINT>(flags));
}

void ShowMessage(const std::string& text) {
  Application()->MessageBox(text, Application()->Title(), MB_OK);
}

// What has left `main` would end a program that has no console without a word.
void TApplication::EndByError() {
  const std::exception_ptr error = std::current_exception();
  if (!error) std::abort();
  try {
    std::rethrow_exception(error);
  } catch (const std::exception& known) {
    std::fprintf(stderr, "%s\n", known.what());
    Application()->HandleException(nullptr, known);
  } catch (...) {
    Application()->HandleCurrentException(nullptr);
  }
  ::ExitProcess(1);
}

}  // namespace vcl
