// The gallery. `gallery` shows it; `gallery --screenshot DIR` saves a picture of each page in DIR,
// prints their names and ends.
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <string>

#include "demos/gallery/galleryform.h"
#include "demos/gallery/screenshots.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"

namespace {

using namespace gallery;
using vcl::Application;

int TakeScreenshots(TGalleryForm& form, const char* folder) {
  // Nobody is there to answer a message box.
  const auto failure = std::make_shared<std::string>();
  Application()->OnException = [failure](vcl::TObject*, const std::exception& error) {
    *failure = error.what();
  };
  const auto names = SaveScreenshots(form, folder);
  form.Free();
  Application()->OnException.Clear();
  if (!failure->empty()) throw vcl::Exception(*failure);
  for (const auto& name : names) std::printf("%s\n", name.c_str());
  return 0;
}

int RunGallery(int argc, char** argv) {
  const bool screenshots = argc == 3 && std::strcmp(argv[1], "--screenshot") == 0;
  if (argc > 1 && !screenshots) {
    std::fprintf(stderr, "Usage: gallery [--screenshot DIR]\n");
    return 2;
  }
  Application()->Initialize();
  Application()->SetTitle("Gallery");
  auto* form = Application()->CreateForm<TGalleryForm>();
  return screenshots ? TakeScreenshots(*form, argv[2]) : Application()->Run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return RunGallery(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "gallery: %s\n", error.what());
    return 1;
  }
}
