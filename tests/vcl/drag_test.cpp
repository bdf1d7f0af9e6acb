// Drag and drop with the real mouse.
#include "tests/vcl/standardform.h"

#include "vcl/rtl/win32.h"

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

class Drag : public TStandardForm {
 protected:
  Drag() : Source(new TPlate(&Form, 20)), Target(new TPlate(&Form, 120)) {
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
    ShowForm();
  }
  ~Drag() override { LeftUp(); }
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
  /// Drags from the source to the target and lets go.
  void DropOnTarget() {
    DragToTarget();
    LeftUp();
    EXPECT_TRUE(Ends());
  }
  TLog Log;
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

TEST_F(Drag, ARefusedDropAndEscapeEndItWithoutATarget) {
  for (const bool escape : {false, true}) {
    Log.clear();
    Accepts = escape;
    DragToTarget();
    escape ? TypeKey(VK_ESCAPE) : LeftUp();
    EXPECT_TRUE(Ends());
    EXPECT_EQ(Log, (TLog{"start", "enter", "move", "leave", "end"})) << "escape: " << escape;
    EXPECT_EQ(EndTarget, nullptr);
    LeftUp();
  }
  EXPECT_TRUE(Form.Visible());
}

TEST_F(Drag, TheProgramEndsItWithOrWithoutADrop) {
  for (const bool drop : {true, false}) {
    Log.clear();
    DragToTarget();
    Target->EndDrag(drop);
    EXPECT_TRUE(Source->Dragging()) << "it is not the target's";
    Source->EndDrag(drop);
    EXPECT_EQ(TDragSession::Current(), nullptr);
    TLog expected{"start", "enter", "move", "leave", "end"};
    if (drop) expected.insert(expected.end() - 1, "drop");
    EXPECT_EQ(Log, expected);
    LeftUp();
  }
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
  DropOnTarget();
  EXPECT_EQ(Log.back(), "drop");
  EXPECT_EQ(freed, 1);
}

TEST_F(Drag, SourceOrTargetMayBeFreedByAnyHandler) {
  Target->OnDragDrop = [&](TObject*, TObject*, int, int) {
    Log.push_back("drop");
    delete Target;
  };
  DropOnTarget();
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
  Target->OnDragDrop = [](TObject*, TObject*, int, int) { throw Exception("no room"); };
  DropOnTarget();
  EXPECT_EQ(std::exchange(Errors, {}), "no room");
  EXPECT_EQ(Log.back(), "end");
}

// A form with a list whose lines are dragged, some of them selected before.
class DragFromList : public TStandardForm {
 protected:
  DragFromList() : List(Make<TListBox>(10, 10)) {
    List->SetBounds(10, 10, 100, 100);
    List->SetDragMode(dmAutomatic);
    List->Items()->SetCommaText("a,b,c");
    List->OnStartDrag = [this](TObject*, TDragObject*&) { Log += "start" + Selected() + " "; };
    List->OnEndDrag = [this](TObject*, TObject*, int, int) { Log += "end"; };
    ShowForm();
  }
  ~DragFromList() override { LeftUp(); }
  std::string Selected() const {
    std::string selected;
    for (int i = 0; i < 3; ++i) {
      if (List->MultiSelect() ? List->Selected(i) : List->ItemIndex() == i)
        selected += List->Items()->Strings(i);
    }
    return selected;
  }
  void Press(int item) {
    const TRect line = List->ItemRect(item);
    MoveMouse(List->ClientToScreen({line.Left + 5, line.Top + 4}));
    LeftDown();
  }
  void DragAside() {
    MoveMouse(List->ClientToScreen({160, 50}));
    LeftUp();
    EXPECT_TRUE(PumpUntil([] { return TDragSession::Current() == nullptr; }));
  }
  TListBox* List;
  std::string Log;
};

TEST_F(DragFromList, ThePressSelectsTheLineThatIsDragged) {
  std::string heard;
  List->OnClick = [&](TObject*) { heard += Selected(); };
  Press(1);
  EXPECT_EQ(heard, "b");
  DragAside();
  EXPECT_EQ(Log, "startb end");
  ::Sleep(600);  // Not the second half of a double click.
  Press(2);
  LeftUp();
  EXPECT_TRUE(PumpUntil([] { return TDragSession::Current() == nullptr; }));
  EXPECT_EQ(heard, "bc");
  EXPECT_EQ(Log, "startb end");
}

TEST_F(DragFromList, APressOnOneOfSeveralSelectedLinesDragsThemAll) {
  List->SetMultiSelect(true);
  List->SetSelected(0, true);
  List->SetSelected(2, true);
  Press(2);
  DragAside();
  Press(1);
  DragAside();
  EXPECT_EQ(Log, "startac endstartb end");
}

TEST_F(DragFromList, ADialogOfTheClickKeepsTheDragFromBeginning) {
  List->OnClick = [&](TObject*) { LeftUp(); };
  Press(1);
  MoveMouse(List->ClientToScreen({160, 50}));
  EXPECT_EQ(TDragSession::Current(), nullptr);
  EXPECT_EQ(Log, "");
}

}  // namespace
}  // namespace vcl
