// Saving pictures of the program's forms.
#include "demos/notes/screenshots.h"

#include "demos/common/resolution.h"
#include "demos/notes/notesform.h"
#include "vcl/forms/application.h"
#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/text.h"

namespace notes {

using namespace vcl;

namespace {

constexpr const char* Sample =
    "Shopping\n"
    "========\n"
    "\n"
    "- Bread, cheese, a bag of apples\n"
    "- Grüner Tee, crème fraîche, żurek\n"
    "- Stamps for the letters to Αθήνα and Київ\n"
    "\n"
    "Notes keeps each file as it was: this one has the line ends of Unix, and what is typed here "
    "is "
    "safe before it is saved. Long lines go on in the next row while word wrap is on, and the "
    "status "
    "bar counts lines as the file has them.\n";

}  // namespace

std::vector<std::string> SaveScreenshots(TNotesForm& form, const std::string& folder) {
  const std::string sample = folder + "\\shopping.txt";
  ReplaceContents(sample, Sample);
  std::vector<std::string> names;
  const auto take = [&](TCustomForm& shown, const char* name) {
    shown.SetFormStyle(fsStayOnTop);
    shown.Show();
    demos::ScaleForPictures(shown);
    bool done = true;
    Application()->OnIdle(nullptr, done);  // The status bar is filled when nothing else is to do.
    TBitmap picture;
    vcl::TakePicture(shown, vcl::TFormPart::Whole, picture);
    names.push_back(Concat(folder, "/", name, ".png"));
    SavePng(picture, names.back());
  };
  form.Open(sample);
  take(form, "notes");
  TFindForm find(nullptr);
  find.Ask("Tea");
  take(find, "find");
  find.Hide();
  TPreviewForm preview(nullptr);
  preview.Show("Shopping", {&form, &TNotesForm::DrawPages});
  take(preview, "preview");
  preview.Hide();
  TOptionsForm options(nullptr);
  options.Show(TOptions());
  take(options, "options");
  options.Hide();
  TAboutForm about(nullptr);
  take(about, "about");
  return names;
}

}  // namespace notes
