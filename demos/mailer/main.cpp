// Mailer, a small mail program.
//
// mailer [--settings DIR]: sends and fetches mails; the account is kept in DIR.
// mailer --screenshot DIR: saves pictures of the program in DIR, prints their names and ends. With
//   servers of this machine it sends a mail to itself first (see roundtrip.h).
#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "demos/common/commandline.h"
#include "demos/mailer/mailerform.h"
#include "demos/mailer/roundtrip.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"

namespace {

using namespace mailer;
using vcl::Application;

// Nobody is there to answer a message box.
int RunUnseen(TMailerForm& form, const std::string& folder) {
  const auto failure = std::make_shared<std::string>();
  Application()->OnException = [failure](vcl::TObject*, const std::exception& error) {
    *failure = error.what();
  };
  std::vector<std::string> names;
  try {
    names = SaveScreenshots(form, folder);
  } catch (const vcl::EAbort& error) {
    if (failure->empty()) *failure = error.what();
  }
  form.Free();
  Application()->OnException.Clear();
  if (!failure->empty()) throw vcl::Exception(*failure);
  for (const auto& name : names) std::printf("%s\n", name.c_str());
  return 0;
}

int RunMailer() {
  const demos::TCommandLine& line = demos::CommandLine();
  vcl::ForceDirectories(line.SettingsFolder);
  Application()->Initialize();
  Application()->SetTitle("Mailer");
  auto* form = Application()->CreateForm<TMailerForm>();
  return line.ScreenshotFolder.empty() ? Application()->Run()
                                       : RunUnseen(*form, line.ScreenshotFolder);
}

}  // namespace

int main(int argc, char** argv) {
  if (!demos::ReadCommandLine(argc, argv, "Mailer") || !demos::CommandLine().FileName.empty()) {
    std::fprintf(stderr, "Usage: mailer [--settings DIR] | --screenshot DIR\n");
    return 2;
  }
  try {
    return RunMailer();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mailer: %s\n", error.what());
    if (demos::CommandLine().ScreenshotFolder.empty()) {
      Application()->HandleException(nullptr, error);
    }
    return 1;
  }
}
