// Notes, an editor of text files.
//
// notes [FILE] [--settings DIR]: edits the file; settings and unsaved text are kept in DIR.
// notes --screenshot DIR: saves pictures of the program in DIR, prints their names and ends.
#include <cstdio>
#include <exception>

#include "demos/common/commandline.h"
#include "demos/notes/notesform.h"
#include "demos/notes/screenshots.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/files.h"

namespace {

using namespace notes;
using vcl::Application;

int RunNotes() {
  const demos::TCommandLine& line = demos::CommandLine();
  vcl::ForceDirectories(line.SettingsFolder);
  Application()->Initialize();
  // The guard knows copies of the program by this title.
  Application()->SetTitle("Notes");
  auto* form = Application()->CreateForm<TNotesForm>();
  if (line.ScreenshotFolder.empty()) return Application()->Run();
  for (const auto& name : SaveScreenshots(*form, line.ScreenshotFolder))
    std::printf("%s\n", name.c_str());
  form->Free();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (!demos::ReadCommandLine(argc, argv, "Notes")) {
    std::fprintf(stderr, "Usage: notes [FILE] [--settings DIR] | --screenshot DIR\n");
    return 2;
  }
  try {
    return RunNotes();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "notes: %s\n", error.what());
    if (demos::CommandLine().ScreenshotFolder.empty())
      Application()->HandleException(nullptr, error);
    return 1;
  }
}
