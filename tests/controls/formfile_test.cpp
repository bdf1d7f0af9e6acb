// Components in form files, where these hold something else than the tables say.
#include <gmock/gmock.h>

#include "tests/support/registered.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

/// A component that is written to a form file and read back.
template <class T>
struct TReadBack {
  template <class Prepare>
  explicit TReadBack(Prepare prepare) {
    RegisterAll();
    vcl::TForm form(nullptr);
    auto* component = new T(&form);
    component->SetName("It");
    component->SetParent(&form);
    prepare(*component);
    Text = FormText(&form);
    ReadForm(Text, &Form);
    It = dynamic_cast<T*>(Form.FindComponent("It"));
  }
  std::string Text;
  vcl::TForm Form{nullptr};
  T* It;
};

TEST(FormFile, AGaugesSizeAsDeclaredComesBackAsTheConstructors) {
  const TReadBack<TQELGauge> read([](TQELGauge& gauge) { gauge.SetBounds(8, 9, 100, 18); });
  EXPECT_EQ(read.Text.find("Height = 18"), std::string::npos) << read.Text;
  EXPECT_EQ(read.It->BoundsRect(), vcl::Bounds(8, 9, 140, 36));
  const TReadBack<TQELGauge> plain([](TQELGauge&) {});
  EXPECT_EQ(plain.It->BoundsRect(), vcl::Bounds(0, 0, 140, 36));
  for (const char* line : {"BevelInner.FrameStyle = frameLowered", "Borderwidth = 6",
                           "Kind = kHorizontal", "Width = 140", "Height = 36"}) {
    EXPECT_NE(plain.Text.find(line), std::string::npos) << line;
  }
}

/// A label's frame begins with another style than other frames do.
TEST(FormFile, KeepsEveryFrameOfALabel) {
  for (int style = frameSolid; style <= frameLightBordered; ++style) {
    const auto wanted = static_cast<TQELFrameStyle>(style);
    const TReadBack<TQELLabel> read(
        [&](TQELLabel& label) { label.Frame()->SetFrameStyle(wanted); });
    EXPECT_EQ(read.It->Frame()->FrameStyle(), wanted);
  }
  const TReadBack<TQELLabel> read([](TQELLabel& label) { label.SetFrm(new TQELFrame); });
  EXPECT_EQ(read.It->Frame()->FrameStyle(), frameRaised) << "a frame from outside";
}

TEST(FormFile, ASpinEditTakesBothBoundsTogether) {
  const std::tuple<const char*, int, int, int> cases[] = {
      {"", 0, 100, 0},
      {"MaxValue = -5 MinValue = -10 Value = -7", -10, -5, -7},
      {"MaxValue = -5 MinValue = -10", -10, -5, -5},
      {"Value = 700 MinValue = 500 MaxValue = 900", 500, 900, 700},
      {"MaxValue = 900 MinValue = 500", 500, 900, 500},
      {"Value = 700", 0, 100, 100},
      // No bounds.
      {"MaxValue = 7 MinValue = 7 Value = 5000", 7, 7, 5000},
  };
  RegisterAll();
  for (const auto& [lines, minValue, maxValue, value] : cases) {
    vcl::TForm form(nullptr);
    ReadForm(
        std::string("object F: TForm object Spin: TQELSpinEdit Height = 30 AutoSize = False ") +
            lines + " end end",
        &form);
    const auto* spin = dynamic_cast<TQELSpinEdit*>(form.FindComponent("Spin"));
    EXPECT_EQ(spin->MinValue(), minValue) << lines;
    EXPECT_EQ(spin->MaxValue(), maxValue) << lines;
    EXPECT_EQ(spin->GetValue(), value) << lines;
    EXPECT_EQ(spin->Height(), 30);
    EXPECT_EQ(FormText(&form).find("object TWin"), std::string::npos) << "nothing of the button";
  }
}

TEST(FormFile, ASpinEditsMaximumBelowItsMinimumIsAnError) {
  RegisterAll();
  const std::pair<const char*, const char*> cases[] = {
      {"MaxValue = -5 MinValue = 10", "MaxValue -5 of Spin is less than its MinValue 10"},
      {"MinValue = 80 MaxValue = 50", "MaxValue 50 of Spin is less than its MinValue 80"},
      {"MaxValue = -1", "MaxValue -1 of Spin is less than its MinValue 0"}};
  for (const auto& [lines, message] : cases) {
    vcl::TForm form(nullptr);
    const std::string text =
        std::string("object F: TForm object Spin: TQELSpinEdit ") + lines + " end end";
    EXPECT_THAT([&] { ReadForm(text, &form); },
                testing::ThrowsMessage<vcl::EReadError>(testing::HasSubstr(message)));
    EXPECT_EQ(form.ComponentCount(), 0);
  }
}

TEST(FormFile, ASpinEditMayBeTheRoot) {
  TQELSpinEdit spin(nullptr);
  spin.SetName("Spin");
  spin.SetAutoSize(false);
  spin.SetMaxValue(500);
  spin.SetValue(432);
  const std::string text = FormText(&spin);
  TQELSpinEdit read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(read.GetValue(), 432) << text;
  EXPECT_EQ(read.MaxValue(), 500);
  EXPECT_EQ(FormText(&read), text);
}

}  // namespace
}  // namespace qel
