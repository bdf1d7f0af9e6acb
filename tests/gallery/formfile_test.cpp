// The gallery's form file: what the library writes after reading it says the same.
#include <gmock/gmock.h>

#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/win32.h"

namespace gallery_test {
namespace {

/// Reads the form as a designer does and gives what it would save.
std::string ReadAndWrite(const std::string& text) {
  vcl::TForm form(nullptr);
  form.SetDesigning(true);
  ReadForm(text, &form);
  return FormText(&form, "TGalleryForm");
}

TEST(GalleryFormFile, IsTheSameWhenItIsWrittenBack) {
  vcl::RegisterStandardClasses();
  RegisterAll();
  std::string text = vcl::TResourceStream(nullptr, "TGALLERYFORM", MAKEINTRESOURCEA(10)).ReadRest();
  std::erase(text, '\r');
  const std::string written = ReadAndWrite(text);
  EXPECT_EQ(written, text);
  EXPECT_EQ(ReadAndWrite(written), written);
}

}  // namespace
}  // namespace gallery_test
