// Saving the designer's picture.
#include "ide/screenshot.h"

#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

std::string SaveScreenshot(TMainForm& form, const std::string& folder) {
  ForceDirectories(folder);
  form.SetFormStyle(fsStayOnTop);
  form.Show();
  TBitmap picture;
  TakePicture(form, TFormPart::Whole, picture);
  std::string name = Concat(folder, "/designer.png");
  SavePng(picture, name);
  return name;
}

}  // namespace ide
