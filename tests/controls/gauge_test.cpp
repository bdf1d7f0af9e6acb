// The gauge: its picture against the steps of its drawing done one line at a time, and what a
// change of the percentage does to the screen.
#include <climits>
#include <random>

#include "qel/controls/Qeltgauge.h"
#include "tests/support/kepthandles.h"
#include "tests/support/plainfill.h"
#include "tests/vcl/testinput.h"

namespace {

using namespace qel;

constexpr COLORREF Ground = RGB(0xFE, 0x01, 0xFD);
constexpr std::uint32_t GroundPixel = 0xFE01FD, Navy = 0x000080, White = 0xFFFFFF;

struct TGauge : TQELGauge {
  using TQELGauge::TQELGauge;
  void PaintOn(HDC dc) {
    Canvas()->SetHandle(dc);
    Paint();
    Canvas()->SetHandle(nullptr);
  }
  void SetPercentageOn(HDC dc, int percentage) {
    Canvas()->SetHandle(dc);
    SetPercentage(percentage);
    Canvas()->SetHandle(nullptr);
  }
};

/// The picture of a gauge, line by line.
class TPlainGauge {
 public:
  TPlainGauge(HDC dc, TQELGauge& gauge) : FDC(dc), It(gauge) {
    const int border = It.Borderwidth();
    Left = Top = Right = Bottom = border;
    const int more = border + It.Glyph()->GetWidth();
    if (It.PicturePosition() == pLeft) Left = more;
    if (It.PicturePosition() == pRight) Right = more;
    if (It.PicturePosition() == pTop) Top = more;
    if (It.PicturePosition() == pBottom) Bottom = more;
    I = It.BevelInner()->BorderWidth();
    O = It.BevelOuter()->BorderWidth();
    W = It.Width();
    H = It.Height();
  }

  void Paint() {
    if (It.Background()) It.Background()->Draw(FDC, W, H, true);
    PaintGlyph();
    vcl::TRect r(0, 0, W, H);
    It.BevelOuter()->Draw(FDC, r);
    r = {r.Left + Left - 1, r.Top + Top - 1, r.Right - Right, r.Bottom - Bottom};
    It.BevelInner()->Draw(FDC, r);
    Fill(r);
    Update();
  }

  void Update() {
    const vcl::TRect r(Left + I + O - 1, Top + I + O - 1, W - Right - I - O, H - Bottom - I - O);
    It.Kind() == kHorizontal ? Columns(r) : Rows(r);
    It.Font3D()->Write(It.Font(), FDC, r, std::to_string(It.Percentage()) + " %", 37, It.Enabled());
  }

 private:
  void PaintGlyph() {
    const int b = plain::Rounded(It.Borderwidth() / 2.0);
    const double gw = It.Glyph()->GetWidth(), gh = It.Glyph()->GetHeight();
    int x = plain::Rounded(W / 2.0 - gw / 2.0), y = plain::Rounded(H / 2.0 - gh / 2.0);
    if (It.PicturePosition() == pLeft) x = b + O + 1;
    if (It.PicturePosition() == pRight) x = b + (W - O - Right) + 1;
    if (It.PicturePosition() == pTop) y = b + O + 1;
    if (It.PicturePosition() == pBottom) {
      x += 1;
      y = b + (H - O - Bottom);
    }
    vcl::TCanvas canvas;
    canvas.SetHandle(FDC);
    It.Glyph()->Draw(&canvas, x, y, It.Enabled(), false, false);
    canvas.SetHandle(nullptr);
  }
  void Fill(const vcl::TRect& r) {
    const RECT rect = r;
    const plain::TTools tools(FDC, vcl::ColorToRGB(It.InsideBackColor()));
    ::FillRect(FDC, &rect, static_cast<HBRUSH>(::GetCurrentObject(FDC, OBJ_BRUSH)));
  }
  void Line(int place, int x1, int y1, int x2, int y2) {
    const bool segment = place % (It.SegmentWidth() + It.SegmentGap()) <= It.SegmentWidth();
    const plain::TTools tools(FDC,
                              vcl::ColorToRGB(segment ? It.SegmentColor() : It.InsideBackColor()));
    plain::Line(FDC, x1, y1, x2, y2);
  }
  void Columns(vcl::TRect r) {
    const int span = r.Right - r.Left - 1;
    const int end = plain::Rounded(span * It.Percentage() / 100.0) + r.Left;
    if (It.Percentage() > 0)
      for (int x = r.Left; x <= end; ++x) Line(x, x, r.Top, x, r.Bottom);
    if (end < span) {
      r.Left = end;
      Fill(r);
    }
  }
  void Rows(vcl::TRect r) {
    const int bottom = r.Bottom - 1, span = bottom - r.Top;
    const int start = bottom - plain::Rounded(span * It.Percentage() / 100.0);
    if (It.Percentage() > 0)
      for (int y = start; y <= bottom; ++y) Line(y, r.Left, y, r.Right, y);
    r.Bottom = It.Percentage() == 0 ? start + 1 : start;
    Fill(r);
  }

  HDC FDC;
  TQELGauge& It;
  int Left, Top, Right, Bottom, I, O, W, H;
};

void GiveGlyph(TQELGauge& gauge, int width, int height, int count = 1) {
  vcl::TBitmap strip(width * count, height);
  strip.Canvas()->Brush()->SetColor(vcl::clRed);
  strip.Canvas()->FillRect({0, 0, width * count, height});
  gauge.Glyph()->SetTransparentColor(vcl::clFuchsia);
  gauge.Glyph()->SetBitmap(&strip);
  gauge.Glyph()->SetNumGlyphs(TQELNumGlyphs(count));
}

/// Numbers that are the same in every run.
class TChoice {
 public:
  int From(int low, int high) { return std::uniform_int_distribution(low, high)(FRandom); }
  bool OneIn(int count) { return From(1, count) == 1; }

 private:
  std::mt19937 FRandom{20};
};

/// Settings of all kinds, also of gauges too small for what they have to show.
std::string Dress(TGauge& gauge, TChoice& choice) {
  gauge.SetBounds(0, 0, choice.From(0, 190), choice.From(0, 110));
  gauge.SetKind(choice.OneIn(2) ? kVertical : kHorizontal);
  gauge.SetBorderwidth(choice.From(1, choice.OneIn(4) ? 40 : 9));
  gauge.SetSegmentWidth(choice.From(1, 12));
  gauge.SetSegmentGap(choice.From(0, 6));
  gauge.SetPercentage(choice.OneIn(4) ? 100 * choice.From(0, 1) : choice.From(0, 100));
  gauge.SetPicturePosition(TQELPosition(choice.From(pLeft, pBottom)));
  if (choice.OneIn(2)) GiveGlyph(gauge, choice.From(1, 30), choice.From(1, 30), choice.From(1, 4));
  for (TQELFrame* bevel : {gauge.BevelInner(), gauge.BevelOuter()}) {
    bevel->SetFrameStyle(TQELFrameStyle(choice.From(frameSolid, frameLightBordered)));
    bevel->SetFrameWidth(choice.From(1, 3));
    bevel->SetOffset(choice.From(0, 2));
  }
  gauge.SetEnabled(!choice.OneIn(4));
  gauge.Font3D()->SetStyle3D(TQELStyle3D(choice.From(fontRaised, fontOutLineShadow)));
  gauge.SetSegmentColor(vcl::TColor(choice.From(0, 0xFFFFFF)));
  gauge.SetInsideBackColor(vcl::TColor(choice.From(0, 0xFFFFFF)));
  return std::to_string(gauge.Width()) + "x" + std::to_string(gauge.Height()) + " " +
         std::to_string(gauge.Percentage()) + " % kind " + std::to_string(gauge.Kind()) +
         " border " + std::to_string(gauge.Borderwidth()) + " side " +
         std::to_string(gauge.PicturePosition());
}

TEST(GaugePicture, IsWhatItsStepsDraw) {
  TChoice choice;
  plain::TDib dib(200, 120), expected(200, 120);
  TQELBackground background(nullptr);
  for (int i = 0; i < 1500; ++i) {
    TGauge gauge(nullptr);
    const std::string what = Dress(gauge, choice);
    if (choice.OneIn(3)) gauge.SetBackground(&background);
    for (const plain::TDib* each : {&dib, &expected}) each->Fill(Ground);
    gauge.PaintOn(dib.DC());
    TPlainGauge(expected.DC(), gauge).Paint();
    ASSERT_EQ(dib.Difference(expected), "") << what;
    // From here on only the bar and the number are drawn, over the picture that is there.
    gauge.SetPercentageOn(dib.DC(), choice.From(0, 100));
    TPlainGauge(expected.DC(), gauge).Update();
    ASSERT_EQ(dib.Difference(expected), "") << what << ", then " << gauge.Percentage();
  }
}

class Gauge : public testing::Test {
 protected:
  Gauge() { Dib.Fill(Ground); }
  /// The row below the bar's top edge, above the number, and a column beside the bar on each side;
  /// a letter for each column's colour.
  std::string Row() {
    std::string row;
    for (int x = 6; x <= 132; ++x) {
      const std::uint32_t pixel = Dib.Pixel(x, 8);
      row += pixel == Navy ? 'n' : pixel == White ? 'w' : '.';
    }
    return row;
  }

  plain::TDib Dib{150, 150};
  TGauge It{nullptr};
};

TEST_F(Gauge, HasSegmentsCountedFromItsCorner) {
  It.BevelOuter()->SetHighlight(vcl::clGray);
  It.BevelInner()->SetHighlight(vcl::clGray);
  It.SetPercentage(25);  // 31 of 124 columns, from column 7.
  It.PaintOn(Dib.DC());
  EXPECT_EQ(Row().substr(0, 32), ".nnwnnnnnnnnnwnnnnnnnnnwnnnnnnnn");
  EXPECT_EQ(Row().substr(32), std::string(94, 'w') + '.');
  It.SetSegmentGap(0);
  It.SetPercentageOn(Dib.DC(), 100);
  EXPECT_EQ(Row().find('w'), std::string::npos);
  It.SetPercentageOn(Dib.DC(), 0);
  EXPECT_EQ(Row().find('n'), std::string::npos);
}

TEST_F(Gauge, HugeNumbersAreDrawnAtOnce) {
  It.SetSegmentWidth(INT_MAX);
  It.SetSegmentGap(INT_MAX);
  It.SetPercentage(40);
  It.PaintOn(Dib.DC());
  EXPECT_EQ(Dib.Pixel(20, 8), Navy);
  It.SetSegmentWidth(1);
  It.SetSegmentGap(2);
  It.SetBounds(0, 0, INT_MAX, 36);
  It.PaintOn(Dib.DC());
  EXPECT_EQ(Dib.Pixel(149, 8), White);
  EXPECT_EQ(Dib.Pixel(148, 8), Navy);
  It.SetBorderwidth(INT_MAX);
  for (const TQELKind kind : {kHorizontal, kVertical}) {
    It.SetKind(kind);
    It.PaintOn(Dib.DC());
  }
}

TEST_F(Gauge, RefusesWhatItCannotShow) {
  It.SetPercentage(150);
  EXPECT_EQ(It.Percentage(), 100);
  It.SetPercentage(-5);
  EXPECT_EQ(It.Percentage(), 0);
  It.SetSegmentWidth(0);
  It.SetSegmentGap(-1);
  It.SetBorderwidth(0);
  EXPECT_EQ(It.SegmentWidth(), 8);
  EXPECT_EQ(It.SegmentGap(), 2);
  EXPECT_EQ(It.Borderwidth(), 6);
  It.SetSegmentGap(0);
  EXPECT_EQ(It.SegmentGap(), 0);
}

TEST_F(Gauge, OneObjectIsNeverBothBevels) {
  It.BevelInner()->SetFrameWidth(3);
  It.SetBevelOuter(It.BevelInner());
  EXPECT_NE(It.BevelOuter(), It.BevelInner());
  EXPECT_EQ(It.BevelOuter()->FrameWidth(), 3);
}

// On the screen.

struct TCountingForm : vcl::TForm {
  TCountingForm() : TForm(nullptr) {}
  void WndProc(vcl::TMessage& message) override {
    Paints += message.Msg == WM_PAINT;
    TForm::WndProc(message);
  }
  int Paints = 0;
};

class GaugeOnScreen : public testing::Test {
 protected:
  GaugeOnScreen() {
    Form.SetBorderStyle(vcl::bsNone);
    Form.SetBounds(40, 40, 300, 100);
    It = new TGauge(&Form);
    It->SetParent(&Form);
    It->SetBounds(20, 10, 140, 36);
  }
  void Show() {
    Form.Show();
    testinput::Pump();
    Mark();
  }
  /// Fills the window behind the library's back.
  void Mark() {
    testinput::PumpUntil([&] { return !Pending(); });
    Form.Paints = 0;
    const HDC dc = ::GetDC(Form.Handle());
    const HBRUSH brush = ::CreateSolidBrush(Ground);
    const RECT all{0, 0, 300, 100};
    ::FillRect(dc, &all, brush);
    ::DeleteObject(brush);
    ::ReleaseDC(Form.Handle(), dc);
  }
  void Look() {
    const HDC dc = ::GetDC(Form.Handle());
    ::BitBlt(Seen.DC(), 0, 0, 300, 100, dc, 0, 0, SRCCOPY);
    ::ReleaseDC(Form.Handle(), dc);
  }
  bool Pending() { return ::GetUpdateRect(Form.Handle(), nullptr, FALSE); }
  /// How many pixels outside the rectangle are no longer as they were marked.
  int TouchedOutside(const vcl::TRect& rect) {
    int touched = 0;
    for (int y = 0; y < 100; ++y)
      for (int x = 0; x < 300; ++x)
        touched += !rect.Contains({x, y}) && Seen.Pixel(x, y) != GroundPixel;
    return touched;
  }

  TCountingForm Form;
  TGauge* It;
  plain::TDib Seen{300, 100};
};

TEST_F(GaugeOnScreen, AChangeDrawsOnlyBarAndNumberAndInvalidatesNothing) {
  Show();
  for (const TQELKind kind : {kHorizontal, kVertical}) {
    It->SetKind(kind);
    testinput::Pump();
    Mark();
    for (int percentage = 0; percentage <= 100; ++percentage) {
      It->SetPercentage(percentage);
      ASSERT_FALSE(Pending());
    }
    It->SetPercentage(60);
    testinput::Pump();
    EXPECT_EQ(Form.Paints, 0);
    Look();
    EXPECT_EQ(TouchedOutside({27, 17, 152, 38}), 0);
    // In the upper left corner of the bar: column 7 resp. row 8 of the gauge.
    EXPECT_EQ(Seen.Pixel(27, 18), kind == kHorizontal ? Navy : White);
    EXPECT_EQ(Seen.Pixel(151, 18), White);
    EXPECT_EQ(Seen.Pixel(27, 36), Navy);
  }
}

TEST_F(GaugeOnScreen, EverythingElseIsPaintedWhenItIsAskedFor) {
  Show();
  const std::vector<std::function<void()>> changes = {[&] { It->SetSegmentWidth(3); },
                                                      [&] { It->SetSegmentGap(1); },
                                                      [&] { It->SetBorderwidth(4); },
                                                      [&] { It->SetSegmentColor(vcl::clRed); },
                                                      [&] { It->SetKind(kVertical); },
                                                      [&] { It->SetInsideBackColor(vcl::clRed); },
                                                      [&] { It->SetPicturePosition(pTop); },
                                                      [&] { It->SetFont3D(new TQELFont3D); },
                                                      [&] { It->SetBevelInner(new TQELFrame); },
                                                      [&] { It->SetBevelOuter(new TQELFrame); },
                                                      [&] { It->BevelOuter()->SetFrameWidth(2); },
                                                      [&] { It->SetBackground(nullptr); },
                                                      [&] { GiveGlyph(*It, 4, 4); }};
  for (std::size_t i = 0; i < changes.size(); ++i) {
    changes[i]();
    EXPECT_TRUE(Pending()) << i;
    ::ValidateRect(Form.Handle(), nullptr);
  }
  It->SetSegmentWidth(0);
  It->SetBorderwidth(-1);
  EXPECT_FALSE(Pending());
  Form.SetDesigning(true);  // Paints it anew, where at run time the bar is drawn.
  It->SetPercentage(50);
  EXPECT_TRUE(Pending());
}

TEST_F(GaugeOnScreen, IsDrawnWhereItIsNow) {
  Show();
  It->SetPercentage(10);
  It->SetLeft(120);
  ::ValidateRect(Form.Handle(), nullptr);
  Mark();
  It->SetPercentage(100);
  Look();
  EXPECT_EQ(TouchedOutside({127, 17, 252, 38}), 0);
  EXPECT_EQ(Seen.Pixel(251, 18), Navy);
}

TEST_F(GaugeOnScreen, DrawsNothingWhileItIsNotToBeSeen) {
  It->SetPercentage(20);
  EXPECT_FALSE(Form.HandleAllocated());
  Show();
  It->SetVisible(false);
  testinput::Pump();
  Mark();
  It->SetPercentage(30);
  Look();
  EXPECT_EQ(TouchedOutside({}), 0);
  It->SetParent(nullptr);
  It->SetPercentage(40);
  EXPECT_EQ(It->Percentage(), 40);
}

TEST_F(GaugeOnScreen, KeepsNoHandles) {
  GiveGlyph(*It, 8, 8);
  Show();
  handles::ExpectNoneKept(10000, 200, [&](int i) { It->SetPercentage(i % 101); });
}

}  // namespace
