#include "demos/gallery/screenshots.h"

#include <cstring>
#include <filesystem>

#include "host/rtl/exceptions.h"
#include "host/rtl/text.h"
#include "host/vcl/application.h"
#include "host/vcl/png.h"
#include "host/vcl/windowtext.h"

namespace gallery {

using namespace vcl;

namespace {

void MakeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(ToUtf16(folder), error);
  if (error) {
    throw EInOutError(Concat("The folder ", folder, " cannot be made: ", error.message()));
  }
}

std::string FileName(const std::string& folder, const std::string& caption) {
  std::string name = caption;
  for (char& c : name) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c == ' ') c = '-';
  }
  return Concat(folder, "/", name, ".png");
}

/// Copies the form's inside from the screen: the system's controls draw their edges nowhere else.
void CopyFromScreen(const TGalleryForm& form, TBitmap& picture) {
  const TPoint corner = form.ClientToScreen({0, 0});
  const TWindowDC screen(nullptr);
  picture.SetSize(form.ClientWidth(), form.ClientHeight());
  ::BitBlt(picture.Canvas()->Handle(), 0, 0, picture.Width(), picture.Height(), screen.Get(),
           corner.X, corner.Y, SRCCOPY);
}

bool SamePixels(const TBitmap& a, const TBitmap& b) {
  if (a.Empty() || b.Empty() || a.Width() != b.Width() || a.Height() != b.Height()) return false;
  const auto size = static_cast<std::size_t>(a.Width()) * sizeof(COLORREF);
  for (int row = 0; row < a.Height(); ++row)
    if (std::memcmp(a.ScanLine(row), b.ScanLine(row), size) != 0) return false;
  return true;
}

/// Takes a picture once the screen has come to rest, which it does some time after the painting.
void TakePicture(TGalleryForm& form, TBitmap& picture) {
  constexpr int attempts = 50;
  constexpr DWORD pause = 50;  // Milliseconds.
  picture.SetPixelFormat(pf32bit);
  TBitmap former;
  for (int i = 0; i < attempts; ++i) {
    Application()->ProcessMessages();
    form.Update();
    CopyFromScreen(form, picture);
    if (SamePixels(picture, former)) return;
    former.Assign(&picture);
    ::Sleep(pause);
  }
}

}  // namespace

std::vector<std::string> SaveScreenshots(TGalleryForm& form, const std::string& folder) {
  MakeFolder(folder);
  form.SetFormStyle(fsStayOnTop);
  form.Show();
  std::vector<std::string> names;
  for (int i = 0; i < form.Pages->PageCount(); ++i) {
    TTabSheet* page = form.Pages->Pages(i);
    form.Pages->SetActivePage(page);
    TBitmap picture;
    TakePicture(form, picture);
    if (page == form.HintsPage) {  // At rest, as a hint copies the screen under it.
      form.ShowSampleHint();
      TakePicture(form, picture);
    }
    names.push_back(FileName(folder, page->Caption()));
    SavePng(picture, names.back());
  }
  return names;
}

}  // namespace gallery
