// Saving the designer's picture.
#include "ide/screenshot.h"

#include <cstdlib>

#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// The window has come to a monitor of as many dots per inch as QEL_DPI says.
void ScaleForPictures(TMainForm& form) {
  const char* wanted = std::getenv("QEL_DPI");
  const int pixels = wanted ? std::atoi(wanted) : 0;
  if (pixels > 0) form.ScaleForPPI(pixels);
  Application()->ProcessMessages();
}

}  // namespace

std::string SaveScreenshot(TMainForm& form, const std::string& folder) {
  ForceDirectories(folder);
  form.SetFormStyle(fsStayOnTop);
  form.Show();
  ScaleForPictures(form);
  TBitmap picture;
  TakePicture(form, TFormPart::Whole, picture);
  std::string name = Concat(folder, "/designer.png");
  SavePng(picture, name);
  return name;
}

}  // namespace ide
