// Files, a file manager of two sides.
//
// files [LEFT [RIGHT]]: shows these folders; without them the user's.
// files --screenshot DIR: saves a picture of the program in DIR, prints its name and ends.
#include <cstdio>
#include <exception>
#include <string>

#include "demos/common/resolution.h"
#include "demos/files/filesform.h"
#include "qel/core/Qelsystemfacts.h"
#include "vcl/forms/application.h"
#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"

namespace {

using files::TFilesForm;
using vcl::Application;

int TakeScreenshot(TFilesForm& form, const std::string& folder) {
  const std::string sample = folder + "\\sample\\";
  for (const char* name : {"Letters", "Pictures", "Plans"}) vcl::ForceDirectories(sample + name);
  for (const char* name :
       {"read me.txt", "prices.csv", "Übersicht.html", "logo.png", "setup.exe"}) {
    vcl::ReplaceWholeFile(sample + name, std::string(name));
  }
  form.Open(sample, sample + "Letters");
  form.SetFormStyle(vcl::fsStayOnTop);
  form.Show();
  demos::ScaleForPictures(form);
  vcl::TBitmap picture;
  vcl::TakePicture(form, vcl::TFormPart::Whole, picture);
  SavePng(picture, folder + "/files.png");
  std::printf("%s/files.png\n", folder.c_str());
  form.Free();
  return 0;
}

int RunFiles(int argc, char** argv, bool screenshot) {
  vcl::RegisterClass(files::TPane::Class());
  Application()->Initialize();
  Application()->SetTitle("Files");
  auto* form = Application()->CreateForm<TFilesForm>();
  if (screenshot) return TakeScreenshot(*form, argv[2]);
  const std::string home = qel::QELInformation(qel::iiHomeFolder);
  const std::string left = argc > 1 ? argv[1] : home;
  form->Open(left, argc > 2 ? argv[2] : left);
  return Application()->Run();
}

}  // namespace

int main(int argc, char** argv) {
  const bool screenshot = argc == 3 && std::string(argv[1]) == "--screenshot";
  if (argc > 3) {
    std::fprintf(stderr, "Usage: files [LEFT [RIGHT]] | --screenshot DIR\n");
    return 2;
  }
  try {
    return RunFiles(argc, argv, screenshot);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "files: %s\n", error.what());
    if (!screenshot) Application()->HandleException(nullptr, error);
    return 1;
  }
}
