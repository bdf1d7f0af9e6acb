// The base classes of controls: painting, and the link to a background.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/Qelclasses.h"
#include "core/Qelcontrols.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/properties.h"
#include "host/vcl/forms.h"
#include "tests/support/plainfill.h"

namespace {

using vcl::TColor;

struct TBackground : qel::TQELCustomBackground {
  using TQELCustomBackground::TQELCustomBackground;
  ~TBackground() override { AnnounceEnd(); }
  void AddItem(vcl::TControl* client) override { Clients.push_back(client); }
  void RemoveItem(vcl::TControl* client) override {
    const auto found = std::find(Clients.begin(), Clients.end(), client);
    if (found != Clients.end()) Clients.erase(found);
  }
  void Draw(HDC dc, int width, int height, bool forward) override {
    EXPECT_TRUE(forward);
    const vcl::TOwnedBrush brush(::CreateSolidBrush(0x123456));
    const RECT all{0, 0, width, height};
    ::FillRect(dc, &all, brush.Get());
  }
  std::vector<vcl::TControl*> Clients;
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
  static std::uint32_t ButtonFace() {
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    return std::uint32_t{GetRValue(face)} << 16 | GetGValue(face) << 8 | GetBValue(face);
  }

  vcl::TForm Form;
  TControl* Control;
};

TEST_F(QelControl, PaintsTheFaceOfButtonsOrItsBackground) {
  EXPECT_EQ(Painted(), ButtonFace());
  auto* background = new TBackground(&Form);
  Control->SetBack(background);
  EXPECT_EQ(Painted(), 0x563412u);
  delete background;
  EXPECT_EQ(Control->Background(), nullptr);
  EXPECT_EQ(Painted(), ButtonFace());
}

TEST_F(QelControl, IsAClientOfOneBackgroundAtATime) {
  TBackground first(nullptr), second(nullptr);
  Control->SetBack(&first);
  Control->SetBack(&first);
  EXPECT_THAT(first.Clients, testing::ElementsAre(Control));
  Control->SetBack(&second);
  EXPECT_THAT(first.Clients, testing::IsEmpty());
  EXPECT_THAT(second.Clients, testing::ElementsAre(Control));
  delete Control;
  EXPECT_THAT(second.Clients, testing::IsEmpty());
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

TEST_F(QelControl, HearsOfTheEndOfABackgroundOfAnotherForm) {
  {
    vcl::TForm other(nullptr);
    Control->SetBack(new TBackground(&other));
  }
  EXPECT_EQ(Control->Background(), nullptr);
}

TEST_F(QelControl, LetsGoOfTheCanvasWhenPaintingFails) {
  Control->Fails = true;
  const plain::TDib dib(60, 40);
  EXPECT_THROW(Control->PaintOn(dib.DC()), vcl::EInvalidOperation);
  EXPECT_FALSE(Control->Canvas()->HandleAllocated());
}

TEST_F(QelControl, PublishesWhatDescendantsTake) {
  const vcl::TPropInfo* background = TControl::Class().FindPublished("background");
  ASSERT_NE(background, nullptr);
  EXPECT_EQ(background->TypeName(), "TQELBackground");
  EXPECT_EQ(background->Kind(), vcl::TTypeKind::Component);
  EXPECT_EQ(qel::TQELCustomControl::Class().FindPublished("Background"), nullptr);
  EXPECT_EQ(TControl::Class().FindPublished("About")->TypeName(), "TQELAbout");
  vcl::TComponent stranger(nullptr);
  EXPECT_THROW(background->Set(*Control, static_cast<vcl::TObject*>(&stranger)),
               vcl::EPropertyError);
  EXPECT_EQ(Control->Background(), nullptr);
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
