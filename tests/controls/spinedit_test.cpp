// The spin edit: its value and bounds, its size and window.
#include "tests/controls/spinedit_form.h"

namespace qel {
namespace {

using vcl::TRect;

class SpinEditValue : public TSpinForm {};

TEST_F(SpinEditValue, ReadsWhatTheTextSays) {
  Spin->SetMinValue(-3);
  const std::pair<const char*, int> cases[] = {
      {"7", 7},   {"-2", -2}, {"+9", 9},   {"4000", 4000}, {"1x", -3},
      {"1-", -3}, {"e", -3},  {"0x5", -3}, {"1\r\n2", -3}, {"2147483648", -3}};
  for (const auto& [text, value] : cases) {
    Spin->SetText(text);
    EXPECT_EQ(Spin->GetValue(), value) << text;
    EXPECT_EQ(Spin->Text(), text);
  }
}

TEST_F(SpinEditValue, AnEmptyTextBecomesTheLeastValueWhenItIsRead) {
  Spin->SetMinValue(5);
  Spin->SetText("");
  int changes = 0;
  Spin->OnChange = [&](vcl::TObject*) { ++changes; };
  EXPECT_EQ(Spin->GetValue(), 5);
  EXPECT_EQ(Spin->Text(), "5");
  EXPECT_EQ(changes, 1);
}

TEST_F(SpinEditValue, BoundsRefuseEachOtherAndTakeTheValueAlong) {
  Spin->SetValue(60);
  Spin->SetMaxValue(0);
  Spin->SetMaxValue(-5);
  EXPECT_EQ(Spin->MaxValue(), 100);
  Spin->SetMinValue(100);
  Spin->SetMinValue(200);
  EXPECT_EQ(Spin->MinValue(), 0);
  EXPECT_EQ(Spin->GetValue(), 60);
  Spin->SetMaxValue(50);
  EXPECT_EQ(Spin->Text(), "50");
  Spin->SetMaxValue(90);
  Spin->SetMinValue(70);
  EXPECT_EQ(Spin->Text(), "70");
  Spin->SetValue(500);
  EXPECT_EQ(Spin->GetValue(), 90);
  Spin->SetValue(-500);
  EXPECT_EQ(Spin->GetValue(), 70);
}

class SpinEditWindow : public TSpinForm {
 protected:
  TRect Holder() const { return Spin->Holder()->BoundsRect(); }
  TRect TextBesideButton() const {
    return {0, 0, Spin->ClientWidth() - Spin->Button()->Width() - 2, Spin->ClientHeight() + 1};
  }
};

TEST_F(SpinEditWindow, PutsTheButtonAtItsRightEdge) {
  Spin->SetAutoSize(false);
  for (const int height : {24, 40}) {
    Spin->SetHeight(height);
    Spin->SetWidth(140);
    for (const bool deep : {true, false}) {
      Spin->SetCtl3D(deep);
      const int side = deep ? height - 4 : height;
      EXPECT_EQ(Holder(), (TRect{140 - height, 0, 140 - height + side, side}));
      EXPECT_EQ(Spin->Button()->BoundsRect(), (TRect{0, 0, side, side}));
      EXPECT_EQ(Spin->TextRect, TextBesideButton());
      EXPECT_GT(Spin->TextRectsRead, 0);
    }
  }
  EXPECT_EQ(::GetWindowLongW(Spin->Handle(), GWL_STYLE) & (ES_MULTILINE | WS_CLIPCHILDREN),
            ES_MULTILINE | WS_CLIPCHILDREN);
}

TEST_F(SpinEditWindow, TheTextStaysOffTheButtonWithEveryFont) {
  Spin->SetAutoSize(false);
  Spin->SetHeight(60);
  Spin->Font()->SetSize(12);
  RECT rect{};
  ::SendMessageW(Spin->Handle(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
  EXPECT_EQ(Holder().Width(), 56);
  EXPECT_LE(rect.right, Holder().Left - 2);
  EXPECT_GT(rect.right, Holder().Left - 12);
}

TEST_F(SpinEditWindow, IsNeverLowerThanItsFontNeeds) {
  const auto heights = [](HFONT font) {
    TEXTMETRICW metrics{};
    const HDC dc = ::GetDC(nullptr);
    const HGDIOBJ former = font ? ::SelectObject(dc, font) : nullptr;
    ::GetTextMetricsW(dc, &metrics);
    if (font) ::SelectObject(dc, former);
    ::ReleaseDC(nullptr, dc);
    return static_cast<int>(metrics.tmHeight);
  };
  Spin->SetAutoSize(false);
  for (const int size : {8, 30}) {
    Spin->Font()->SetSize(size);
    const int own = heights(Spin->Font()->Handle());
    const int border = ::GetSystemMetrics(SM_CYBORDER);
    const int least = own + std::min(own, heights(nullptr)) / 4 + 4 * border;
    EXPECT_EQ(Spin->GetMinHeight(), least);
    Spin->SetHeight(least - 5);
    EXPECT_EQ(Spin->Height(), least);
    Spin->SetHeight(least + 5);
    EXPECT_EQ(Spin->Height(), least + 5);
  }
}

TEST_F(SpinEditWindow, ANewWindowShowsTheSame) {
  Spin->SetValue(42);
  Spin->SetReadonly(true);
  Spin->RecreateWnd();
  EXPECT_EQ(Spin->Text(), "42");
  EXPECT_TRUE(Spin->Focused());
  EXPECT_TRUE(::IsWindowVisible(Spin->Holder()->Handle()));
  EXPECT_EQ(Spin->TextRect, TextBesideButton());
  Type("7");
  EXPECT_EQ(Spin->Text(), "42");
}

TEST_F(SpinEditWindow, ColoursGoToTheButton) {
  Spin->SetButtonColor(vcl::clAqua);
  Spin->SetArrowColor(vcl::clRed);
  EXPECT_EQ(Spin->Button()->Color(), vcl::clAqua);
  EXPECT_EQ(Spin->Button()->ArrowColor(), vcl::clRed);
  EXPECT_EQ(Spin->Color(), vcl::clWindow);
}

}  // namespace
}  // namespace qel
