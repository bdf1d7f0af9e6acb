// Saving a picture of each page.
#include "demos/gallery/screenshots.h"

#include "demos/common/resolution.h"
#include "vcl/forms/application.h"
#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace vcl;

namespace {

std::string FileName(const std::string& folder, const std::string& caption) {
  std::string name = caption;
  for (char& c : name) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c == ' ') c = '-';
  }
  return Concat(folder, "/", name, ".png");
}

}  // namespace

std::vector<std::string> SaveScreenshots(TGalleryForm& form, const std::string& folder) {
  vcl::ForceDirectories(folder);
  form.SetFormStyle(fsStayOnTop);
  form.Show();
  demos::ScaleForPictures(form);
  std::vector<std::string> names;
  for (int i = 0; i < form.Pages->PageCount(); ++i) {
    TTabSheet* page = form.Pages->Pages(i);
    form.Pages->SetActivePage(page);
    TBitmap picture;
    vcl::TakePicture(form, vcl::TFormPart::Inside, picture);
    if (page == form.HintsPage) {  // At rest, as a hint copies the screen under it.
      form.ShowSampleHint();
      vcl::TakePicture(form, vcl::TFormPart::Inside, picture);
      Application()->CancelHint();
    }
    names.push_back(FileName(folder, page->Caption()));
    SavePng(picture, names.back());
  }
  return names;
}

}  // namespace gallery
