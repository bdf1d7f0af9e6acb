// Splitters between panes, and the panels that lay out what stands inside: flow and grid.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class Panes : public ::testing::Test {
 protected:
  Panes() : Form(nullptr) {
    RegisterStandardClasses();
    Form.SetBounds(20, 20, 320, 240);
    Form.SetClientWidth(300);
    Form.SetClientHeight(200);
  }
  template <class T>
  T* Make(TWinControl* parent, int width, int height, TAlign align = alNone) {
    auto* control = new T(&Form);
    control->SetParent(parent);
    control->SetBounds(0, 0, width, height);
    control->SetAlign(align);
    return control;
  }
  TForm Form;
};

class Splitter : public Panes {
 protected:
  Splitter() {
    Pane = Make<TPanel>(&Form, 100, 50, alLeft);
    Strip = new TSplitter(&Form);
    Strip->SetParent(&Form);
    Strip->SetLeft(100);
    Rest = Make<TPanel>(&Form, 10, 10, alClient);
    Strip->OnMoved = [this](TObject*) { ++Moved; };
    Form.Show();
  }
  void Press() {
    testinput::PumpUntil([&] { return ::GetForegroundWindow() == Form.Handle(); });
    Start = testinput::MiddleOf(Strip);
    testinput::MoveMouse(Start);
    testinput::LeftDown();
  }
  void Drag(int dx, int dy = 0) { testinput::MoveMouse({Start.X + dx, Start.Y + dy}); }
  void Move(int dx, int dy = 0) {
    Press();
    Drag(dx, dy);
    testinput::LeftUp();
  }
  TPanel* Pane;
  TSplitter* Strip;
  TPanel* Rest;
  TPoint Start;
  int Moved = 0;
};

TEST_F(Splitter, TheMouseSizesThePane) {
  EXPECT_EQ(Strip->Pane(), Pane);
  Move(40);
  EXPECT_EQ(Pane->Width(), 140);
  EXPECT_EQ(Rest->BoundsRect(), Rect(143, 0, 300, 200));
  EXPECT_EQ(Moved, 1);
  Move(500);
  EXPECT_EQ(Pane->Width(), 300 - 3 - 30) << "the least size is left to the others";
  Strip->SetAutoSnap(false);
  Move(-500);
  EXPECT_EQ(Pane->Width(), 30);
  Strip->SetAutoSnap(true);
  Move(50);
  Move(-500);
  EXPECT_EQ(Pane->Width(), 0);
  Move(60);
  EXPECT_EQ(Pane->Width(), 60) << "a pane that has vanished comes back";
  EXPECT_EQ(Moved, 6);
  // Along the other edges.
  const std::tuple<TAlign, int, int, int> cases[] = {
      {alRight, -20, 0, 80}, {alTop, 0, 15, 75}, {alBottom, 0, -15, 75}};
  for (const auto& [align, dx, dy, size] : cases) {
    const bool across = align == alRight;
    Pane->SetAlign(alNone);
    Strip->SetAlign(alNone);
    Pane->SetBounds(200, align == alBottom ? 100 : 0, 60, 60);
    Strip->SetBounds(150, align == alBottom ? 50 : 65, 3, 3);
    Pane->SetAlign(align);
    Strip->SetAlign(align);
    ASSERT_EQ(Strip->Pane(), Pane) << align;
    Move(dx, dy);
    EXPECT_EQ(across ? Pane->Width() : Pane->Height(), size) << align;
  }
  EXPECT_THROW(Strip->SetMinSize(0), EArgumentOutOfRangeException);
}

TEST_F(Splitter, EscapeTakesThePaneBack) {
  for (const TResizeStyle style : {rsNone, rsLine, rsUpdate, rsPattern}) {
    Strip->SetResizeStyle(style);
    Press();
    Drag(25);
    EXPECT_EQ(Pane->Width(), style == rsUpdate ? 125 : 100) << style;
    testinput::TypeKey(VK_ESCAPE);
    testinput::PumpUntil([&] { return Pane->Width() == 100; }, 500);
    EXPECT_EQ(Pane->Width(), 100) << style;
    Drag(50);
    testinput::LeftUp();
    EXPECT_EQ(Pane->Width(), 100) << style;
  }
  EXPECT_EQ(Moved, 0);
}

TEST_F(Splitter, TheLineIsSeenAndGoes) {
  Strip->SetResizeStyle(rsLine);
  Form.Update();
  const TPoint at = Form.ClientToScreen({131, 20});
  const auto pixel = [&] {
    const HDC screen = ::GetDC(nullptr);
    const COLORREF color = ::GetPixel(screen, at.X, at.Y);
    ::ReleaseDC(nullptr, screen);
    return color;
  };
  testinput::Pump();
  const COLORREF before = pixel();
  Press();
  Drag(30);
  EXPECT_EQ(pixel(), before ^ 0xFFFFFF);
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(testinput::PumpUntil([&] { return pixel() == before; }));
  testinput::LeftUp();
}

TEST_F(Splitter, AHandlerDecidesAndMayFree) {
  int asked = 0;
  Strip->OnCanResize = [&](TObject*, int& size, bool& accept) {
    ++asked;
    accept = size < 200;
    if (size > 150) size = 150;
  };
  Move(80);
  EXPECT_EQ(Pane->Width(), 150);
  Move(80);
  EXPECT_EQ(Pane->Width(), 150);
  EXPECT_GT(asked, 0);
  Strip->OnCanResize = [this](TObject*, int&, bool&) { delete Pane; };
  Move(-20);
  EXPECT_EQ(Strip->Pane(), nullptr);
  Pane = Make<TPanel>(&Form, 100, 50, alLeft);
  Pane->SetLeft(-1);
  Strip->OnCanResize = nullptr;
  const TWatch watch(Strip);
  Strip->OnMoved = [](TObject* sender) { delete dynamic_cast<TSplitter*>(sender); };
  Move(10);
  EXPECT_TRUE(watch.Gone());
}

class Flow : public Panes {
 protected:
  Flow() {
    Panel = Make<TFlowPanel>(&Form, 100, 80);
    Panel->SetName("Flow");
    Panel->SetCaption("");
    Panel->SetBevelOuter(bvNone);
    for (auto*& each : Inside) each = Make<TPanel>(Panel, 40, 20);
  }
  TFlowPanel* Panel;
  TPanel* Inside[3];
};

TEST_F(Flow, TheStylesOrderTheControls) {
  const std::pair<TFlowStyle, std::vector<TPoint>> cases[] = {
      {fsLeftRightTopBottom, {{0, 0}, {40, 0}, {0, 20}}},
      {fsRightLeftTopBottom, {{60, 0}, {20, 0}, {60, 20}}},
      {fsLeftRightBottomTop, {{0, 60}, {40, 60}, {0, 40}}},
      {fsRightLeftBottomTop, {{60, 60}, {20, 60}, {60, 40}}},
      {fsTopBottomLeftRight, {{0, 0}, {0, 20}, {0, 40}}},
      {fsBottomTopLeftRight, {{0, 60}, {0, 40}, {0, 20}}},
      {fsTopBottomRightLeft, {{60, 0}, {60, 20}, {60, 40}}},
      {fsBottomTopRightLeft, {{60, 60}, {60, 40}, {60, 20}}},
  };
  for (const auto& [style, places] : cases) {
    Panel->SetFlowStyle(style);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(Inside[i]->BoundsRect().TopLeft(), places[static_cast<std::size_t>(i)])
          << style << " " << i;
    }
  }
  Panel->SetHeight(50);
  EXPECT_EQ(Inside[2]->BoundsRect().TopLeft(), TPoint(20, 30)) << "a new column";
  Panel->SetFlowStyle(fsLeftRightTopBottom);
  Panel->SetAutoWrap(false);
  EXPECT_EQ(Inside[2]->Left(), 80);
  Inside[0]->SetAlignWithMargins(true);
  EXPECT_EQ(Inside[0]->BoundsRect(), Rect(3, 3, 43, 23));
  EXPECT_EQ(Inside[1]->Left(), 46);
  Inside[0]->Hide();
  EXPECT_EQ(Inside[1]->Left(), 0);
  Panel->SetControlIndex(Inside[2], 0);
  EXPECT_EQ(Inside[1]->Left(), 40);
  EXPECT_EQ(Panel->ControlIndex(Inside[0]), 1);
  EXPECT_THROW(Panel->SetControlIndex(Inside[0], 3), EListError);
  delete Inside[2];
  EXPECT_EQ(Inside[1]->Left(), 0);
}

TEST_F(Flow, AFormFileKeepsTheOrderAlsoOfControlsWithoutWindows) {
  auto* label = new TBevel(&Form);
  label->SetParent(Panel);
  label->SetName("Line");
  for (int i = 0; i < 3; ++i) Inside[i]->SetName(Concat("P", std::to_string(i)));
  Panel->SetControlIndex(label, 1);
  Panel->SetControlIndex(Inside[2], 0);
  Form.SetName("Form");
  const std::string text = FormText(&Form);
  TForm other(nullptr);
  ReadForm(text, &other);
  auto* read = dynamic_cast<TFlowPanel*>(other.FindComponent("Flow"));
  const char* names[] = {"P2", "P0", "Line", "P1"};
  for (int i = 0; i < 4; ++i) {
    auto* control = dynamic_cast<TControl*>(other.FindComponent(names[i]));
    EXPECT_EQ(read->ControlIndex(control), i) << names[i];
    EXPECT_EQ(control->BoundsRect(),
              dynamic_cast<TControl*>(Form.FindComponent(names[i]))->BoundsRect());
  }
  EXPECT_EQ(FormText(&other), text);
}

class Grid : public Panes {
 protected:
  Grid() {
    Panel = Make<TGridPanel>(&Form, 200, 100);
    Panel->SetName("Grid");
    Panel->SetBevelOuter(bvNone);
  }
  TGridPanel* Panel;
};

TEST_F(Grid, ControlsTakeFreeCellsAndStandInThem) {
  TPanel* inside[5];
  for (auto*& each : inside) each = Make<TPanel>(Panel, 20, 10);
  EXPECT_EQ(Panel->RowCollection()->Count(), 3) << "the fifth needs one more";
  EXPECT_EQ(Panel->ControlIn(1, 1), inside[3]);
  EXPECT_EQ(Panel->PlaceOf(inside[4])->Row(), 2);
  Panel->RowCollection()->Delete(2);
  EXPECT_EQ(inside[3]->BoundsRect(), Rect(100, 50, 120, 60));
  inside[3]->SetAnchors({});
  EXPECT_EQ(inside[3]->BoundsRect(), Rect(140, 70, 160, 80));
  inside[3]->SetAnchors({akRight, akBottom});
  EXPECT_EQ(inside[3]->BoundsRect(), Rect(180, 90, 200, 100));
  inside[3]->SetAlign(alClient);
  inside[3]->SetAlignWithMargins(true);
  EXPECT_EQ(inside[3]->BoundsRect(), Rect(103, 53, 197, 97));
  delete inside[2];
  EXPECT_EQ(Panel->ControlCollection()->Count(), 4);
  Panel->PlaceOf(inside[3])->SetColumn(0);
  Panel->PlaceOf(inside[3])->SetColumnSpan(2);
  EXPECT_EQ(inside[3]->BoundsRect(), Rect(3, 53, 197, 97));
  Panel->SetExpandStyle(emFixedSize);
  TPanel* late = Make<TPanel>(Panel, 20, 10);
  EXPECT_EQ(Panel->RowCollection()->Count(), 2);
  EXPECT_EQ(late->BoundsRect(), Rect(0, 0, 20, 10)) << "no cell is free";
  EXPECT_THROW(Panel->PlaceOf(late)->SetRow(-1), EArgumentOutOfRangeException);
  EXPECT_THROW(Panel->PlaceOf(late)->SetRowSpan(0), EArgumentOutOfRangeException);
}

TEST_F(Grid, RowsAndColumnsHaveSizesOfTheirKinds) {
  Panel->Columns(0)->SetSizeStyle(ssAbsolute);
  Panel->Columns(0)->SetValue(30);
  auto* third = static_cast<TCellItem*>(Panel->ColumnCollection()->Add());
  third->SetValue(25);
  Make<TPanel>(Panel, 20, 37);
  Panel->Rows(0)->SetSizeStyle(ssAuto);
  EXPECT_EQ(Panel->Columns(0)->Size(), 30);
  EXPECT_EQ(Panel->Columns(1)->Size(), 113) << "two thirds of 170";
  EXPECT_EQ(third->Size(), 57);
  EXPECT_EQ(Panel->Rows(0)->Size(), 37);
  EXPECT_EQ(Panel->CellRect(1, 1), Rect(30, 37, 143, 100));
  EXPECT_THROW(third->SetValue(-1), EArgumentOutOfRangeException);
}

TEST_F(Grid, AFormFileKeepsThePlaces) {
  Form.SetName("Form");
  TPanel* a = Make<TPanel>(Panel, 20, 10);
  a->SetName("A");
  TPanel* b = Make<TPanel>(Panel, 20, 10);
  b->SetName("B");
  Panel->PlaceOf(b)->SetRow(1);
  Panel->PlaceOf(a)->SetColumn(1);
  Panel->PlaceOf(a)->SetRowSpan(2);
  Panel->Columns(0)->SetSizeStyle(ssAuto);
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, ::testing::HasSubstr("        Control = A\n"));
  TForm other(nullptr);
  ReadForm(text, &other);
  auto* read = dynamic_cast<TGridPanel*>(other.FindComponent("Grid"));
  EXPECT_EQ(read->ControlCollection()->Count(), 2);
  EXPECT_EQ(read->ControlIn(1, 0), other.FindComponent("A"));
  EXPECT_EQ(dynamic_cast<TControl*>(other.FindComponent("A"))->BoundsRect(), a->BoundsRect());
  EXPECT_EQ(FormText(&other), text);
}

TEST_F(Grid, AHandlerMayFreeWhatStandsInside) {
  TPanel* first = Make<TPanel>(Panel, 20, 10, alClient);
  TPanel* second = Make<TPanel>(Panel, 20, 10, alClient);
  const TWatch watch(second);
  first->OnResize = [&](TObject*) { delete std::exchange(second, nullptr); };
  Panel->SetWidth(150);
  EXPECT_TRUE(watch.Gone());
  EXPECT_EQ(Panel->ControlCollection()->Count(), 1);
  const TWatch panel(Panel);
  first->OnResize = [this](TObject*) { delete Panel; };
  Panel->SetWidth(120);
  EXPECT_TRUE(panel.Gone());
}

}  // namespace
}  // namespace vcl
