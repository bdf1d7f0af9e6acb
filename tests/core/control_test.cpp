// The base classes of controls: painting, and the link to a background.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/plainfill.h"
#include "vcl/rtl/properties.h"

namespace {

using vcl::TColor;

struct TBackground : qel::TQELCustomBackground {
  using TQELCustomBackground::TQELCustomBackground;
  ~TBackground() override { AnnounceEnd(); }
  void AddItem(vcl::TControl*) override {}
  void RemoveItem(vcl::TControl*) override {}
  void Draw(HDC dc, int width, int height, bool forward) override {
    EXPECT_TRUE(forward);
    const vcl::TOwnedBrush brush(::CreateSolidBrush(0x123456));
    const RECT all{0, 0, width, height};
    ::FillRect(dc, &all, brush.Get());
  }
};

struct TControl : qel::TQELCustomControl {
  using TQELCustomControl::TQELCustomControl;
  static const vcl::TClass& Class() {
    static const vcl::TClass info = vcl::Describe<TControl, TQELCustomControl>(
        "TControl", "test", {vcl::Inherit("About"), vcl::Inherit("Background")});
    return info;
  }
  const vcl::TClass& ClassType() const override { return Class(); }
  using TQELCustomControl::Canvas;
  void Paint() override {
    if (Fails) throw vcl::EInvalidOperation("no paint");
    TQELCustomControl::Paint();
    HadHandle = Canvas()->HandleAllocated();
  }
  void PaintOn(HDC dc) { PaintWindow(dc); }
  bool Fails = false;
  bool HadHandle = false;
};

class QelControl : public testing::Test {
 protected:
  QelControl() : Form(nullptr) {
    Form.SetBounds(0, 0, 200, 100);
    Control = new TControl(&Form);
    Control->SetParent(&Form);
    Control->SetBounds(10, 10, 50, 30);
  }
  /// The colour of the control's middle.
  std::uint32_t Painted() {
    const plain::TDib dib(60, 40);
    Control->PaintOn(dib.DC());
    EXPECT_FALSE(Control->Canvas()->HandleAllocated());
    EXPECT_EQ(dib.Pixel(49, 29), dib.Pixel(0, 0));
    EXPECT_EQ(dib.Pixel(50, 29), 0u);
    return dib.Pixel(25, 15);
  }
  vcl::TForm Form;
  TControl* Control;
};

TEST_F(QelControl, PaintsTheFaceOfButtonsOrItsBackground) {
  const std::uint32_t face = plain::PixelOf(::GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(Painted(), face);
  vcl::TForm other(nullptr);
  auto* background = new TBackground(&other);
  Control->SetBack(background);
  EXPECT_EQ(Painted(), 0x563412u);
  delete background;
  EXPECT_EQ(Control->Background(), nullptr);
  EXPECT_EQ(Painted(), face);
  vcl::TComponent stranger(nullptr);
  EXPECT_THROW(TControl::Class().FindPublished("background")->Set(*Control, &stranger),
               vcl::EPropertyError);
}

TEST_F(QelControl, IsPaintedAgainForEveryBackground) {
  Form.Show();
  TBackground background(nullptr);
  for (TBackground* each : {&background, &background, static_cast<TBackground*>(nullptr)}) {
    ::ValidateRect(Control->Handle(), nullptr);
    Control->SetBack(each);
    EXPECT_TRUE(::GetUpdateRect(Control->Handle(), nullptr, FALSE));
  }
}

TEST_F(QelControl, LetsGoOfTheCanvasWhenPaintingFails) {
  Control->Fails = true;
  const plain::TDib dib(60, 40);
  EXPECT_THROW(Control->PaintOn(dib.DC()), vcl::EInvalidOperation);
  EXPECT_FALSE(Control->Canvas()->HandleAllocated());
}

TEST_F(QelControl, SettingsHaveTheirOwnerPaintedAgain) {
  struct TCounter : qel::TQELGraphicControl {
    using TQELGraphicControl::TQELGraphicControl;
    void Invalidate() override { ++Count; }
    int Count = 0;
  };
  TCounter counter(nullptr);
  qel::TQELFont3D font(&counter);
  qel::TQELFrame frame(&counter);
  qel::TQELGlyph glyph(&counter);
  font.SetOffset(-1);
  frame.SetOffset(1);
  glyph.SetVisible(false);
  EXPECT_EQ(counter.Count, 3);
  vcl::TComponent plain(nullptr);
  font.SetOwner(&plain);
  font.SetOffset(2);
  EXPECT_EQ(counter.Count, 3);
}

}  // namespace
