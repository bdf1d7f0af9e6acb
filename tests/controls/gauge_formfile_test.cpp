// Gauges in form files: what is written, and what comes back.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "controls/Qeltgauge.h"
#include "host/rtl/classregistry.h"
#include "host/rtl/formfile.h"
#include "host/rtl/streams.h"
#include "host/vcl/forms.h"

namespace qel {
namespace {

/// A gauge that is written to a form file and read back.
class GaugeFormFile : public testing::Test {
 protected:
  GaugeFormFile() : Form(nullptr), Again(nullptr) {
    vcl::RegisterClass(TQELGauge::Class());
    It = new TQELGauge(&Form);
    It->SetName("Gauge1");
    It->SetParent(&Form);
  }
  TQELGauge* ReadBack() {
    vcl::TStringStream file;
    vcl::WriteComponentText(file, &Form);
    Text = file.DataString();
    file.SetPosition(0);
    vcl::ReadComponentFile(file, &Again);
    return dynamic_cast<TQELGauge*>(Again.FindComponent("Gauge1"));
  }
  bool Wrote(const std::string& line) const {
    return Text.find("    " + line) != std::string::npos;
  }

  vcl::TForm Form;
  vcl::TForm Again;
  TQELGauge* It;
  std::string Text;
};

TEST_F(GaugeFormFile, ASizeAsDeclaredComesBackAsTheConstructors) {
  It->SetBounds(8, 9, 100, 18);
  const TQELGauge* read = ReadBack();
  EXPECT_FALSE(Wrote("Width"));
  EXPECT_FALSE(Wrote("Height"));
  EXPECT_EQ(read->BoundsRect(), vcl::Bounds(8, 9, 140, 36));
}

TEST_F(GaugeFormFile, KeepsEverythingElse) {
  It->SetBounds(1, 2, 140, 36);
  It->SetKind(kVertical);
  It->SetPercentage(55);
  It->SetBorderwidth(3);
  It->SetPicturePosition(pBottom);
  It->BevelInner()->SetFrameStyle(frameRaised);
  It->BevelOuter()->SetFrameStyle(frameLowered);
  It->Font3D()->SetOffset(4);
  const TQELGauge* read = ReadBack();
  EXPECT_TRUE(Wrote("Width = 140"));
  EXPECT_EQ(read->BoundsRect(), vcl::Bounds(1, 2, 140, 36));
  EXPECT_EQ(read->Kind(), kVertical);
  EXPECT_EQ(read->Percentage(), 55);
  EXPECT_EQ(read->Borderwidth(), 3);
  EXPECT_EQ(read->PicturePosition(), pBottom);
  EXPECT_EQ(read->BevelInner()->FrameStyle(), frameRaised);
  EXPECT_EQ(read->BevelOuter()->FrameStyle(), frameLowered);
  EXPECT_EQ(read->Font3D()->Offset(), 4);
}

TEST_F(GaugeFormFile, WritesWhatHasNoDeclaredDefault) {
  ReadBack();
  for (const char* line : {"BevelInner.FrameStyle = frameLowered", "Borderwidth = 6",
                           "Kind = kHorizontal", "Width = 140", "Height = 36"})
    EXPECT_TRUE(Wrote(line)) << line;
  for (const char* name : {"SegmentGap", "SegmentWidth", "SegmentColor", "InsideBackColor",
                           "Percentage", "PicturePosition", "BevelOuter.FrameStyle"})
    EXPECT_FALSE(Wrote(name)) << name;
}

}  // namespace
}  // namespace qel
