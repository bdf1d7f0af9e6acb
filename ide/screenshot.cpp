#include "ide/screenshot.h"

#include "host/rtl/text.h"
#include "host/vcl/formpicture.h"
#include "host/vcl/png.h"

namespace ide {

using namespace vcl;

std::string SaveScreenshot(TMainForm& form, const std::string& folder) {
  MakeFolder(folder);
  form.SetFormStyle(fsStayOnTop);
  form.Show();
  TBitmap picture;
  TakePicture(form, TFormPart::Whole, picture);
  const std::string name = Concat(folder, "/designer.png");
  SavePng(picture, name);
  return name;
}

}  // namespace ide
