// TCustomApplication: the application as units without a window see it, its stand-in where there is
// none, and Halt.
#include "vcl/rtl/customapplication.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

TCustomApplication* Current = nullptr;

TCustomApplication& MakeStandIn() {
  static TCustomApplication standIn(nullptr);
  // A program that makes an application later gets that one.
  Current = nullptr;
  return standIn;
}

}  // namespace

const TClass& TCustomApplication::Class() {
  static const TClass info = Describe<TCustomApplication, TComponent>(
      "vcl::TCustomApplication", "vcl/rtl/customapplication.h", {});
  return info;
}

TCustomApplication::TCustomApplication(TComponent* owner) : TComponent(owner) {
  if (!Current) Current = this;
}

TCustomApplication::~TCustomApplication() {
  if (Current == this) Current = nullptr;
}

std::string TCustomApplication::Title() const {
  if (!FTitle.empty()) return FTitle;
  return ChangeFileExt(ExtractFileName(ExeName()), {});
}

std::string TCustomApplication::ExeName() const { return os::ExeName(); }

void TCustomApplication::HandleException(TObject*, const std::exception& error) {
  if (dynamic_cast<const EAbort*>(&error)) return;
  std::fprintf(stderr, "%s\n", error.what());
}

void TCustomApplication::HandleCurrentException(TObject* sender) {
  try {
    throw;
  } catch (const std::exception& error) {
    HandleException(sender, error);
  } catch (...) {
    HandleException(sender, Exception("An error of an unknown kind"));
  }
}

void TCustomApplication::HandleTimerException(TObject* sender) {
  try {
    throw;
  } catch (const Exception& error) {
    HandleException(sender, error);
  } catch (const std::exception& error) {
    if (IsNewTimerError(sender, error.what())) HandleException(sender, error);
  } catch (...) {
    if (IsNewTimerError(sender, {})) HandleCurrentException(sender);
  }
}

bool TCustomApplication::IsNewTimerError(const TObject* sender, const std::string& text) {
  constexpr std::size_t enough = 100;
  const std::pair error(sender, text);
  if (std::ranges::count(FTimerErrors, error) > 0) return false;
  if (FTimerErrors.size() == enough) FTimerErrors.erase(FTimerErrors.begin());
  FTimerErrors.push_back(error);
  return true;
}

int TCustomApplication::MessageBox(const std::string& text, const std::string& caption, int) {
  constexpr int okButton = 1;
  std::fprintf(stderr, "%s: %s\n", caption.c_str(), text.c_str());
  return okButton;
}

TCustomApplication& BaseApplication() {
  if (Current) return *Current;
  static TCustomApplication& standIn = MakeStandIn();
  return standIn;
}

void Halt(int exitCode) { std::exit(exitCode); }

}  // namespace vcl
