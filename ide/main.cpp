// The designer.
//
//     designer [--settings INI] [--package DLL]... [FILE]
//     designer --screenshot FOLDER ...    saves a picture of the window and ends
//     designer --preview FILE ...         shows a form as it runs
//     designer --unit FILE ...            writes the form's C++ unit and ends
#include <cstdio>
#include <exception>
#include <string>

#include "ide/mainform.h"
#include "ide/preview.h"
#include "ide/screenshot.h"
#include "vcl/forms/application.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/files.h"

namespace {

using namespace ide;
using vcl::Application;

struct TOptions {
  TStart Start;
  std::string Screenshots;
  std::string Preview;
  std::string Frames;  // Where the files of the preview's frames are.
  bool WriteUnit = false;
  bool Remove = false;
};

/// False for arguments that say nothing.
bool Parse(int argc, char** argv, TOptions& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string name = argv[i];
    if (name == "--remove") {
      options.Remove = true;
      continue;
    }
    if (!name.starts_with("--")) {
      options.Start.FileName = name;
      continue;
    }
    if (++i == argc) return false;
    const std::string value = argv[i];
    if (name == "--package") {
      options.Start.Packages.push_back(value);
    } else if (name == "--settings") {
      options.Start.SettingsFile = value;
    } else if (name == "--screenshot") {
      options.Screenshots = value;
    } else if (name == "--unit") {
      options.WriteUnit = true;
      options.Start.FileName = value;
    } else if (name == "--preview") {
      options.Preview = value;
    } else if (name == "--frames") {
      options.Frames = value;
    } else {
      return false;
    }
  }
  return true;
}

int Preview(const TOptions& options) {
  const int code = RunPreview(options.Preview, options.Frames, options.Start.Packages);
  if (options.Remove) vcl::DeleteFile(options.Preview);
  return code;
}

int WriteUnit(TMainForm& form) {
  const bool written = form.WriteUnit();
  vcl::TStrings& messages = *form.MessageList().Items();
  for (int i = 0; i < messages.Count(); ++i) std::printf("%s\n", messages.Strings(i).c_str());
  return written ? 0 : 1;
}

int RunDesigner(const TOptions& options) {
  TPackages packages;
  auto* form = Application()->CreateForm<TMainForm>();
  form->Begin(options.Start, packages);
  if (options.WriteUnit) {
    const int code = WriteUnit(*form);
    form->Free();
    return code;
  }
  if (options.Screenshots.empty()) return Application()->Run();
  std::printf("%s\n", SaveScreenshot(*form, options.Screenshots).c_str());
  form->Free();
  return 0;
}

int Run(int argc, char** argv) {
  TOptions options;
  if (!Parse(argc, argv, options)) {
    std::fprintf(stderr,
                 "Usage: designer [--settings INI] [--package DLL]... "
                 "[--screenshot FOLDER] [--preview | --unit] [FILE]\n");
    return 2;
  }
  Application()->Initialize();
  vcl::RegisterStandardClasses();
  if (!options.Preview.empty()) return Preview(options);
  Application()->SetTitle("Designer");
  return RunDesigner(options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "designer: %s\n", error.what());
    return 1;
  }
}
