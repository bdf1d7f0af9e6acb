// Labels in form files: a label's frame begins with another style than other frames do.
#include <gtest/gtest.h>

#include <functional>

#include "controls/Qeltlabel.h"
#include "host/rtl/classregistry.h"
#include "host/rtl/formfile.h"
#include "host/rtl/streams.h"
#include "host/vcl/forms.h"

namespace qel {
namespace {

/// The style of the frame of a label that is written to a form file and read back.
TQELFrameStyle ReadBack(const std::function<void(TQELLabel&)>& prepare) {
  vcl::RegisterClass(TQELLabel::Class());
  vcl::TForm form(nullptr);
  auto* label = new TQELLabel(&form);
  label->SetName("Label1");
  label->SetParent(&form);
  prepare(*label);
  vcl::TMemoryStream file;
  vcl::WriteComponentText(file, &form);
  file.SetPosition(0);
  vcl::TForm again(nullptr);
  vcl::ReadComponentFile(file, &again);
  return dynamic_cast<TQELLabel*>(again.FindComponent("Label1"))->Frame()->FrameStyle();
}

TEST(LabelFormFile, KeepsEveryFrame) {
  for (int style = frameSolid; style <= frameLightBordered; ++style) {
    const auto wanted = static_cast<TQELFrameStyle>(style);
    EXPECT_EQ(ReadBack([&](TQELLabel& label) { label.Frame()->SetFrameStyle(wanted); }), wanted);
  }
}

TEST(LabelFormFile, KeepsAFrameThatCameFromOutside) {
  EXPECT_EQ(ReadBack([](TQELLabel& label) { label.SetFrm(new TQELFrame); }), frameRaised);
}

}  // namespace
}  // namespace qel
