// The gallery's form file: what the library writes after reading it says the same.
#include <gtest/gtest.h>

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qelthint.h"
#include "controls/Qeltlabel.h"
#include "controls/Qeltspinedit.h"
#include "core/Qeltimer32.h"
#include "host/rtl/classregistry.h"
#include "host/rtl/formfile.h"
#include "host/rtl/resources.h"
#include "host/rtl/streams.h"
#include "host/vcl/forms.h"
#include "host/vcl/registration.h"
#include "shell/Qeltexplorertree.h"

namespace gallery_test {
namespace {

using namespace vcl;

std::string TextOf(TStream& stream) {
  std::string text(static_cast<std::size_t>(stream.Size()), '\0');
  stream.SetPosition(0);
  stream.ReadBuffer(text.data(), stream.Size());
  return text;
}

/// Reads the form as a designer does and gives what it would save.
std::string ReadAndWrite(const std::string& text) {
  TMemoryStream input, output;
  input.WriteText(text);
  input.SetPosition(0);
  TForm form(nullptr);
  form.SetDesigning(true);
  ReadComponentFile(input, &form);
  WriteComponentText(output, &form, "TGalleryForm");
  return TextOf(output);
}

TEST(GalleryFormFile, IsTheSameWhenItIsWrittenBack) {
  RegisterHostClasses();
  RegisterClasses({&qel::TQELExplorerTree::Class(), &qel::TQELBackground::Class(),
                   &qel::TQELButton::Class(), &qel::TQELLabel::Class(), &qel::TQELGauge::Class(),
                   &qel::TQELHint::Class(), &qel::TQELSpinEdit::Class(),
                   &qel::TQELTimer32::Class()});
  TResourceStream file(nullptr, "TGALLERYFORM", MAKEINTRESOURCEA(10));
  std::string text = TextOf(file);
  std::erase(text, '\r');
  const std::string written = ReadAndWrite(text);
  EXPECT_EQ(written, text);
  EXPECT_EQ(ReadAndWrite(written), written);
}

}  // namespace
}  // namespace gallery_test
