// Drag and drop with the real mouse.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/rtl/exceptions.h"
#include "host/vcl/controlcanvas.h"
#include "host/vcl/drag.h"
#include "host/vcl/forms.h"
#include "tests/vcl/testinput.h"

namespace vcl {
namespace {

using namespace testinput;
using TLog = std::vector<std::string>;

class TPlate : public TGraphicControl {
 public:
  TPlate(TForm* form, int left) : TGraphicControl(form) {
    SetParent(form);
    SetBounds(left, 20, 60, 60);
  }
};

class Drag : public ::testing::Test {
 protected:
  Drag() : Form(nullptr), Source(new TPlate(&Form, 20)), Target(new TPlate(&Form, 120)) {
    Form.SetBorderStyle(bsNone);
    Form.SetBounds(300, 300, 240, 120);
    Source->SetDragMode(dmAutomatic);
    Source->OnStartDrag = [this](TObject*, TDragObject*&) { Log.push_back("start"); };
    Source->OnEndDrag = [this](TObject*, TObject* target, int x, int y) {
      Log.push_back("end");
      EndTarget = target;
      EndPlace = {x, y};
    };
    Target->OnDragOver = [this](TObject*, TObject* source, int, int, TDragState state,
                                bool& accept) {
      static const char* const names[] = {"enter", "leave", "move"};
      if (Log.empty() || Log.back() != names[state]) Log.push_back(names[state]);
      accept = Accepts && source == ExpectedSource;
    };
    Target->OnDragDrop = [this](TObject*, TObject* source, int x, int y) {
      Log.push_back("drop");
      EXPECT_EQ(source, ExpectedSource);
      DropPlace = {x, y};
    };
    ExpectedSource = Source;
    Form.Show();
    EXPECT_TRUE(PumpUntil([&] { return Form.Active(); }));
  }
  ~Drag() override {
    LeftUp();
    Form.Hide();
  }
  void PressOnSource() {
    MoveMouse(MiddleOf(Source));
    LeftDown();
  }
  void DragToTarget() {
    PressOnSource();
    MoveMouse(MiddleOf(Target));
    EXPECT_TRUE(PumpUntil([&] { return !Log.empty() && Log.back() == "move"; }));
  }
  bool Ends() {
    return PumpUntil([] { return TDragSession::Current() == nullptr; });
  }
  TLog Log;
  TForm Form;
  TPlate* Source;
  TPlate* Target;
  TObject* ExpectedSource = nullptr;
  TObject* EndTarget = nullptr;
  TPoint EndPlace, DropPlace;
  bool Accepts = true;
};

TEST_F(Drag, TellsSourceAndTargetInOrder) {
  DragToTarget();
  EXPECT_TRUE(Source->Dragging());
  LeftUp();
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Log, (TLog{"start", "enter", "move", "leave", "drop", "end"}));
  EXPECT_EQ(EndTarget, Target);
  EXPECT_EQ(DropPlace, Point(30, 30));
  EXPECT_EQ(EndPlace, DropPlace);
}

TEST_F(Drag, ARefusedDropEndsWithoutATarget) {
  Accepts = false;
  DragToTarget();
  LeftUp();
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Log, (TLog{"start", "enter", "move", "leave", "end"}));
  EXPECT_EQ(EndTarget, nullptr);
}

TEST_F(Drag, EscapeCancels) {
  DragToTarget();
  TypeKey(VK_ESCAPE);
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Log, (TLog{"start", "enter", "move", "leave", "end"}));
  EXPECT_EQ(EndTarget, nullptr);
  EXPECT_TRUE(Form.Visible());
}

TEST_F(Drag, LosingTheMouseCancels) {
  DragToTarget();
  ::SetCapture(Form.Handle());
  ::ReleaseCapture();
  EXPECT_EQ(TDragSession::Current(), nullptr);
  EXPECT_EQ(Log.back(), "end");
}

TEST_F(Drag, BelowTheThresholdNothingIsDragged) {
  Source->SetDragMode(dmManual);
  Source->OnMouseDown = [&](TObject*, TMouseButton, TShiftState, int, int) {
    Source->BeginDrag(false, 10);
  };
  PressOnSource();
  const TPoint middle = MiddleOf(Source);
  MoveMouse({middle.X + 9, middle.Y - 9});
  LeftUp();
  EXPECT_TRUE(Ends());
  EXPECT_TRUE(Log.empty());
  PressOnSource();
  MoveMouse({middle.X + 10, middle.Y});
  EXPECT_TRUE(PumpUntil([&] { return Log == TLog{"start"}; }));
}

class TParcel : public TDragObject {
 public:
  TParcel(TControl* control, int* freed) : TDragObject(control), FFreed(freed) {}
  ~TParcel() override { ++*FFreed; }

 private:
  int* FFreed;
};

TEST_F(Drag, AnObjectOfTheHandlersGoesInsteadAndIsFreedAtTheEnd) {
  int freed = 0;
  Source->OnStartDrag = [&](TObject*, TDragObject*& object) {
    object = new TParcel(Source, &freed);
    ExpectedSource = object;
  };
  Source->OnEndDrag = [&](TObject*, TObject*, int, int) { EXPECT_EQ(freed, 0); };
  DragToTarget();
  LeftUp();
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Log.back(), "drop");
  EXPECT_EQ(freed, 1);
}

TEST_F(Drag, SourceOrTargetMayBeFreedByAnyHandler) {
  Target->OnDragDrop = [&](TObject*, TObject*, int, int) {
    Log.push_back("drop");
    delete Target;
  };
  DragToTarget();
  LeftUp();
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Log.back(), "end");
  EXPECT_EQ(EndTarget, nullptr);

  Target = new TPlate(&Form, 120);
  Target->OnDragOver = [&](TObject*, TObject*, int, int, TDragState, bool&) { delete Source; };
  PressOnSource();
  MoveMouse(MiddleOf(Target));
  EXPECT_TRUE(Ends());
  EXPECT_EQ(Form.ControlCount(), 1);
}

TEST_F(Drag, AnErrorAtTheDropDoesNotKeepTheSourceFromItsEnd) {
  std::string error;
  Application()->OnException = [&](TObject*, const std::exception& e) { error = e.what(); };
  Target->OnDragDrop = [](TObject*, TObject*, int, int) { throw Exception("no room"); };
  DragToTarget();
  LeftUp();
  EXPECT_TRUE(Ends());
  Application()->OnException = nullptr;
  EXPECT_EQ(error, "no room");
  EXPECT_EQ(Log.back(), "end");
}

}  // namespace
}  // namespace vcl
