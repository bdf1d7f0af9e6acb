// Records, which shows the records of an SQLite file.
//
// records [FILE]: FILE is made when it is not there; without one it is records.db.
// records --screenshot DIR: saves a picture of the program in DIR, prints its name and ends.
#include <cstdio>
#include <exception>
#include <string>

#include "demos/common/resolution.h"
#include "demos/records/recordsform.h"
#include "vcl/dbctrls/registration.h"
#include "vcl/forms/application.h"
#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/files.h"

namespace {

using records::TRecordsForm;
using vcl::Application;

int TakeScreenshot(TRecordsForm& form, const std::string& folder) {
  vcl::ForceDirectories(folder);
  const std::string text = folder + "\\people.csv";
  form.Open(folder + "\\people.db");
  form.Export(text);
  // All of them are there already: each is refused.
  form.Import(text);
  form.SetFormStyle(vcl::fsStayOnTop);
  form.Show();
  demos::ScaleForPictures(form);
  vcl::TBitmap picture;
  vcl::TakePicture(form, vcl::TFormPart::Whole, picture);
  SavePng(picture, folder + "/records.png");
  std::printf("%s/records.png\n", folder.c_str());
  form.Free();
  return 0;
}

int RunRecords(int argc, char** argv, bool screenshot) {
  vcl::RegisterDataControls();
  Application()->Initialize();
  Application()->SetTitle("Records");
  auto* form = Application()->CreateForm<TRecordsForm>();
  if (screenshot) return TakeScreenshot(*form, argv[2]);
  form->Open(argc > 1 ? argv[1] : "records.db");
  return form->LogIn() ? Application()->Run() : 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool screenshot = argc == 3 && std::string(argv[1]) == "--screenshot";
  if (argc > 2 && !screenshot) {
    std::fprintf(stderr, "Usage: records [FILE] | --screenshot DIR\n");
    return 2;
  }
  try {
    return RunRecords(argc, argv, screenshot);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "records: %s\n", error.what());
    // Such as that the database's driver is missing.
    if (!screenshot) Application()->HandleException(nullptr, error);
    return 1;
  }
}
