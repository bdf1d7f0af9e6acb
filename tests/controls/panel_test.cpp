// The panel that the user moves, sizes and rolls up, the background behind controls, and the
// divider between areas.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace qel {
namespace {

using testinput::PumpUntil;

/// Presses the left button at the point of the control, and moves it by so much.
void DragFrom(const vcl::TControl* control, vcl::TPoint from, int dx, int dy) {
  const vcl::TPoint start = control->ClientToScreen(from);
  testinput::MoveMouse(start);
  testinput::LeftDown();
  testinput::MoveMouse({start.X + dx / 2, start.Y + dy / 2});
  testinput::MoveMouse({start.X + dx, start.Y + dy});
}

class Panel : public vcl::TStandardForm {
 protected:
  Panel() {
    It = Make<TQELPanel>(100, 100);
    It->SetBounds(100, 100, 200, 120);
    It->SetCaption("&Panel");
    It->OnMove = [this](vcl::TObject*) { ++Moves; };
    It->OnCollapse = [this](vcl::TObject*) { ++Collapses; };
  }
  ~Panel() override { testinput::MoveMouse({0, 0}); }
  bool StandsAt(const vcl::TRect& bounds) {
    return PumpUntil([&] { return It->BoundsRect() == bounds; });
  }

  TQELPanel* It;
  int Moves = 0;
  int Collapses = 0;
};

TEST_F(Panel, IsMovedInsideItsParent) {
  ShowForm();
  DragFrom(It, {50, 50}, 30, 20);
  testinput::LeftUp();
  EXPECT_TRUE(StandsAt(vcl::Bounds(100, 100, 200, 120))) << "not allowed";
  It->SetMovable(true);
  DragFrom(It, {50, 50}, 30, 20);
  EXPECT_TRUE(StandsAt(vcl::Bounds(130, 120, 200, 120)));
  EXPECT_EQ(Moves, 0);
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return Moves == 1; }));
  DragFrom(It, {50, 50}, -400, -400);
  testinput::LeftUp();
  EXPECT_TRUE(StandsAt(vcl::Bounds(0, 0, 200, 120)));
  DragFrom(It, {50, 50}, 430, 60);
  EXPECT_TRUE(StandsAt(vcl::Bounds(300, 60, 200, 120)));
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(StandsAt(vcl::Bounds(0, 0, 200, 120))) << "Escape takes it back";
  testinput::LeftUp();
  EXPECT_EQ(Moves, 2);
  It->SetTabStop(true);
  It->SetFocus();
  testinput::TypeKey(VK_RIGHT, {VK_CONTROL});
  EXPECT_TRUE(StandsAt(vcl::Bounds(8, 0, 200, 120)));
}

TEST_F(Panel, IsSizedByItsEdges) {
  It->SetSizeable(true);
  ShowForm();
  DragFrom(It, {198, 118}, 30, 20);
  testinput::LeftUp();
  EXPECT_TRUE(StandsAt(vcl::Bounds(100, 100, 230, 140)));
  DragFrom(It, {2, 60}, 400, 0);
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return It->Width() < 30; })) << "it keeps a least width";
  EXPECT_EQ(It->Left() + It->Width(), 330);
  DragFrom(It, {10, 138}, 0, 400);
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return It->Top() + It->Height() == Form.ClientHeight(); }));
  EXPECT_EQ(Moves, 3);
}

TEST_F(Panel, RollsUpByClickSpaceAndMnemonic) {
  It->SetCollapsible(true);
  It->Frame()->SetFrameStyle(frameNone);
  auto* inside = Make<vcl::TEdit>(10, 60, It);
  ShowForm();
  inside->SetFocus();
  testinput::Click(It->ClientToScreen({100, 10}));
  EXPECT_TRUE(PumpUntil([&] { return It->Collapsed(); }));
  EXPECT_EQ(It->Height(), 20);
  EXPECT_EQ(It->ExpandedHeight(), 120);
  EXPECT_FALSE(inside->Focused()) << "nobody types into what is not seen";
  testinput::TypeKey(VK_SPACE);
  EXPECT_TRUE(StandsAt(vcl::Bounds(100, 100, 200, 120)));
  testinput::TypeKey('P', {VK_MENU});
  EXPECT_TRUE(PumpUntil([&] { return It->Collapsed(); }));
  EXPECT_EQ(Collapses, 3);
  It->SetHeaderHeight(30);
  EXPECT_EQ(It->Height(), 30);
  It->SetHeaderHeight(0);
  EXPECT_EQ(It->HeaderHeight(), 30) << "refused";
  Make<vcl::TEdit>(10, 10)->SetFocus();
  inside->SetFocus();
  EXPECT_TRUE(PumpUntil([&] { return !It->Collapsed(); })) << "the focus unrolls it";
  It->SetMovable(true);
  DragFrom(It, {100, 10}, 40, 40);
  testinput::LeftUp();
  EXPECT_TRUE(StandsAt(vcl::Bounds(140, 140, 200, 120)));
  EXPECT_FALSE(It->Collapsed()) << "a drag is no click";
}

TEST_F(Panel, ComesBackFromAFormFileAsItWasRolledUp) {
  RegisterAll();
  It->SetName("It");
  It->SetCollapsible(true);
  It->SetCollapsed(true);
  const int rolled = It->Height();
  vcl::TForm read(nullptr);
  ReadForm(FormText(&Form), &read);
  auto* panel = dynamic_cast<TQELPanel*>(read.FindComponent("It"));
  ASSERT_NE(panel, nullptr);
  EXPECT_TRUE(panel->Collapsed());
  EXPECT_EQ(panel->Height(), rolled);
  panel->SetCollapsed(false);
  EXPECT_EQ(panel->Height(), 120);
}

TEST_F(Panel, ArrangesItsControlsBelowItsStrip) {
  It->Frame()->SetFrameStyle(frameNone);
  auto* inside = Make<vcl::TPanel>(0, 0, It);
  inside->SetAlign(vcl::alClient);
  EXPECT_EQ(inside->BoundsRect(), vcl::Bounds(0, 0, 200, 120));
  It->SetCollapsible(true);
  EXPECT_EQ(inside->BoundsRect(), vcl::Bounds(0, 20, 200, 100));
}

class Fill : public vcl::TStandardForm {};

TEST_F(Fill, LiesBehindItsSiblingsAndLeavesThemTheMouse) {
  auto* label = Make<vcl::TLabel>(20, 20);
  label->SetBounds(20, 20, 100, 30);
  label->SetAutoSize(false);
  label->SetTransparent(false);
  label->SetColor(vcl::clLime);
  TQELBackground background(nullptr);
  background.SetBackgroundStyle(bSolidcolor);
  background.SetSolidColor(vcl::clRed);
  auto* fill = Make<TQELFillBackground>(0, 0);
  fill->SetBack(&background);
  int clicks = 0;
  Form.OnClick = [&](vcl::TObject*) { ++clicks; };
  ShowForm();
  EXPECT_EQ(Find(vcl::clRed), Form.ClientRect());
  EXPECT_EQ(Find(vcl::clLime), label->BoundsRect());
  fill->BringToFront();
  testinput::Pump();
  EXPECT_EQ(Find(vcl::clLime), label->BoundsRect());
  label->SendToBack();
  EXPECT_TRUE(PumpUntil([&] { return Find(vcl::clLime) == label->BoundsRect(); }));
  background.SetSolidColor(vcl::clBlue);
  EXPECT_TRUE(PumpUntil([&] { return Find(vcl::clBlue) == Form.ClientRect(); }));
  testinput::Click(Form.ClientToScreen({300, 300}));
  EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
}

class Divider : public vcl::TStandardForm {
 protected:
  Divider() {
    Left = Make<vcl::TPanel>(0, 0);
    Left->SetAlign(vcl::alLeft);
    Left->SetWidth(100);
    It = Make<TQELFormDivider>(150, 0);
    It->SetName("Divider");
    It->OnMoved = [this](vcl::TObject*) { ++Moves; };
  }
  ~Divider() override { testinput::MoveMouse({0, 0}); }
  void Drag(int dx) { DragFrom(It, {3, 100}, dx, 0); }
  bool IsWide(int width) {
    return PumpUntil([&] { return Left->Width() == width; });
  }

  vcl::TPanel* Left;
  TQELFormDivider* It;
  int Moves = 0;
};

TEST_F(Divider, SizesTheAreaWithinItsLimits) {
  ShowForm();
  Drag(60);
  EXPECT_TRUE(IsWide(160)) << "live";
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return Moves == 1; }));
  Drag(-300);
  testinput::LeftUp();
  EXPECT_TRUE(IsWide(30));
  Drag(600);
  testinput::LeftUp();
  EXPECT_TRUE(IsWide(Form.ClientWidth() - It->Width() - 30));
  Drag(-200);
  const int before = Left->Width() + 200;
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(IsWide(before)) << "Escape takes it back";
  testinput::LeftUp();
  EXPECT_EQ(Moves, 3);
  It->SetMinSize(0);
  EXPECT_EQ(It->MinSize(), 30) << "refused";
}

TEST_F(Divider, IsAskedForEachSizeAndWaitsUntilItIsLetGo) {
  It->SetLive(false);
  It->OnMoving = [](vcl::TObject*, int& size) { size = size / 50 * 50; };
  ShowForm();
  Drag(70);
  EXPECT_EQ(Left->Width(), 100);
  testinput::LeftUp();
  EXPECT_TRUE(IsWide(150));
  EXPECT_EQ(Moves, 1);
}

TEST_F(Divider, ADoubleClickTakesTheAreaAwayAndBringsItBack) {
  ShowForm();
  const auto doubleClick = [&] {
    testinput::Click(It);
    testinput::LeftDown();
    testinput::LeftUp();
  };
  doubleClick();
  testinput::PumpFor(50);
  EXPECT_EQ(Left->Width(), 100) << "not allowed";
  It->SetCollapsible(true);
  testinput::PumpFor(600);  // What comes sooner is part of the last double click.
  doubleClick();
  EXPECT_TRUE(IsWide(0));
  EXPECT_TRUE(It->Collapsed());
  It->SetCollapsed(false);
  EXPECT_TRUE(IsWide(100));
  EXPECT_EQ(Moves, 2);
}

TEST_F(Divider, KeepsItsPartOfTheParent) {
  It->SetKeepRatio(true);
  ShowForm();
  const int width = Form.ClientWidth();
  Form.SetClientWidth(width * 2);
  EXPECT_TRUE(IsWide(200));
  Form.SetClientWidth(width / 2);
  EXPECT_TRUE(IsWide(50));
  Form.SetClientWidth(width);
  EXPECT_TRUE(IsWide(100)) << "sizes on the way lose nothing";
}

TEST_F(Divider, KeepsItsPositionBetweenRuns) {
  RegisterAll();
  vcl::RegisterStandardClasses();
  const std::string file = "/tmp/qel_divider_test.ini";
  ::DeleteFileA(file.c_str());
  TQELDataStore* store = It->PositionStore();
  EXPECT_FALSE(store->Enabled());
  store->SetDatatype(sIniFile);
  store->Inifile()->SetFilename(file);
  Form.SetName("Form1");
  Left->SetName("Area");
  store->SetEnabled(true);
  const std::string text = FormText(&Form);
  EXPECT_NE(text.find("PositionStore.Enabled = True"), std::string::npos) << text;
  ShowForm();
  Drag(60);
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return Moves == 1; }));
  EXPECT_EQ(store->ReadInt("Form1.Divider"), 160);
  vcl::TForm later(nullptr);
  later.SetName("Form1");
  ReadForm(text, &later);
  EXPECT_EQ(dynamic_cast<vcl::TPanel*>(later.FindComponent("Area"))->Width(), 160);
  ::DeleteFileA(file.c_str());
}

}  // namespace
}  // namespace qel
