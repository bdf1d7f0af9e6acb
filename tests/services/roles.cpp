// The roles: programs that hold what others want, and programs that end in all manners.
#include "tests/services/roles.h"

#include <fstream>
#include <functional>
#include <map>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace {

using TArguments = std::vector<std::string>;

void Report(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::app) << text << "\n";
}

constexpr int Long = 30000;  // Milliseconds.

/// Has the clipboard open.
int HoldClipboard(const TArguments& arguments) {
  vcl::Clipboard()->Open();
  Report(arguments.at(0), "open");
  testinput::PumpFor(Long);
  return 0;
}

/// Puts a text on the clipboard, and says what comes there later.
int WatchClipboard(const TArguments& arguments) {
  qel::TQELClipboard clipboard(nullptr);
  int changes = 0;
  clipboard.OnChange = [&](vcl::TObject*) {
    ++changes;
    Report(arguments.at(0), clipboard.AsText());
  };
  Report(arguments.at(0), "ready");
  testinput::PumpUntil([&] { return changes > 0; }, Long);
  return changes;
}

/// Has the keys Ctrl+Alt+F9.
int HoldKey(const TArguments& arguments) {
  ::RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, VK_F9);
  Report(arguments.at(0), "held");
  testinput::PumpFor(Long);
  return 0;
}

/// Never destroyed: the last word comes when the program's own objects have gone.
std::string& reportOfDesktop = *new std::string;
BOOL WINAPI SetDesktop(UINT action, UINT, PVOID value, UINT) {
  if (action == SPI_GETDESKWALLPAPER) std::wcscpy(static_cast<wchar_t*>(value), L"former.bmp");
  if (action == SPI_SETDESKWALLPAPER) {
    Report(reportOfDesktop, vcl::ExtractFileName(vcl::ToUtf8(static_cast<wchar_t*>(value))));
  }
  return TRUE;
}

/// Shows a picture on the desktop as a preview, and ends.
int Preview(const TArguments& arguments) {
  reportOfDesktop = arguments.at(0);
  const std::string end = arguments.at(2);
  // Called last: the process ends without a debugger's being asked for.
  ::SetUnhandledExceptionFilter([](EXCEPTION_POINTERS*) WINAPI -> LONG {
    return ::TerminateProcess(::GetCurrentProcess(), 4), EXCEPTION_CONTINUE_SEARCH;
  });
  // It stays to the end.
  new TImportPatch("qel.dll", "SystemParametersInfoW", &SetDesktop);
  auto* wallPaper = new qel::TQELWallPaper(nullptr);
  wallPaper->SetFilename(arguments.at(1));
  wallPaper->SetPreview(true);
  if (!wallPaper->Execute()) Report(reportOfDesktop, wallPaper->LastError());
  if (end == "halt") vcl::Halt(3);
  if (end == "fault") *reinterpret_cast<volatile int*>(8) = 1;
  if (end == "exit") ::ExitProcess(3);
  return 3;
}

}  // namespace

int PlayRole(const std::string& role, const TArguments& arguments) {
  static const std::map<std::string, std::function<int(const TArguments&)>> roles = {
      {"hold-clipboard", HoldClipboard},
      {"watch-clipboard", WatchClipboard},
      {"hold-key", HoldKey},
      {"preview", Preview},
  };
  return roles.at(role)(arguments);
}
