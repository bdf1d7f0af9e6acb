// Controls without and with windows: parents, text, alignment, following the parent, the mouse.
#include <array>

#include "tests/support/kepthandles.h"
#include "vcl/controls/windowtext.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

/// A control without a window that notes what happens to it and paints one colour.
class TProbe : public TGraphicControl {
 public:
  explicit TProbe(TComponent* owner) : TGraphicControl(owner) {}
  using TControl::MouseCapture;
  void WantNoDoubleClicks() { SetControlStyle(ControlStyle() - TControlStyle{csDoubleClicks}); }
  int Paints = 0;

 protected:
  void Paint() override {
    ++Paints;
    Canvas()->Brush()->SetColor(clRed);
    Canvas()->FillRect(ClientRect());
  }
};

class TBox : public TCustomControl {
 public:
  explicit TBox(TComponent* owner) : TCustomControl(owner) {
    SetControlStyle(ControlStyle() + TControlStyle{csAcceptsControls});
  }
  using TWinControl::RecreateWnd;

 protected:
  void Paint() override {
    Canvas()->Brush()->SetColor(clLime);
    Canvas()->FillRect(ClientRect());
  }
};

/// A control with a window that notes how often the system places and erases it.
class TPlaced : public TBox {
 public:
  using TBox::TBox;
  int Placed = 0;

  void WndProc(TMessage& message) override {
    if (message.Msg == WM_WINDOWPOSCHANGED) ++Placed;
    TBox::WndProc(message);
  }
};

class Controls : public ::testing::Test {
 protected:
  Controls() : Form(nullptr) {
    Form.SetBounds(50, 50, 400, 300);
    Form.SetBorderStyle(bsNone);
  }
  template <class T>
  T* Make(TWinControl* parent, int left, int top, int width, int height) {
    auto* control = new T(&Form);
    control->SetParent(parent);
    control->SetBounds(left, top, width, height);
    return control;
  }
  void Send(TWinControl& control, UINT message, int x, int y, WPARAM keys = 0) {
    ::SendMessageW(control.Handle(), message, keys, MAKELPARAM(x, y));
  }
  TForm Form;
};

TEST_F(Controls, AControlCannotStandInsideItself) {
  auto* outer = Make<TBox>(&Form, 0, 0, 100, 100);
  auto* inner = Make<TBox>(outer, 0, 0, 50, 50);
  EXPECT_THROW(outer->SetParent(inner), EInvalidOperation);
  EXPECT_EQ(outer->Parent(), &Form);
  EXPECT_EQ(inner->ParentForm(), &Form);
  EXPECT_TRUE(Form.ContainsControl(inner));
  TBox lost(nullptr);
  EXPECT_THROW(lost.Handle(), EInvalidOperation) << "a window needs a parent";
  EXPECT_THROW(TProbe(nullptr).ClientToScreen({0, 0}), EInvalidOperation);
}

TEST_F(Controls, WindowsLieAboveControlsWithoutWindows) {
  auto* window = Make<TBox>(&Form, 0, 0, 100, 100);
  auto* first = Make<TProbe>(&Form, 0, 0, 100, 100);
  auto* second = Make<TProbe>(&Form, 0, 0, 100, 100);
  EXPECT_EQ(Form.Controls(0), first);
  EXPECT_EQ(Form.Controls(2), window);
  EXPECT_EQ(Form.ControlAtPos({10, 10}, false), window);
  window->SetVisible(false);
  EXPECT_EQ(Form.ControlAtPos({10, 10}, false), second);
  first->BringToFront();
  EXPECT_EQ(Form.ControlAtPos({10, 10}, false), first);
  first->SetEnabled(false);
  EXPECT_EQ(Form.ControlAtPos({10, 10}, false), second);
  EXPECT_EQ(Form.ControlAtPos({10, 10}, true), first);
  EXPECT_THROW(Form.Controls(3), EListError);
}

TEST_F(Controls, WindowsAreMadeAndShownWhereTheyBelong) {
  std::vector<TPlaced*> boxes;
  for (int i = 0; i < 4; ++i) boxes.push_back(Make<TPlaced>(&Form, 10 * i, 0, 50, 50));
  const auto order = [&] {
    std::vector<TWinControl*> found;
    for (HWND each = ::GetWindow(Form.Handle(), GW_CHILD); each;
         each = ::GetWindow(each, GW_HWNDNEXT)) {
      found.push_back(TWinControl::FromHandle(each));
    }
    return found;
  };
  Form.Show();
  EXPECT_EQ(order(), (std::vector<TWinControl*>{boxes[3], boxes[2], boxes[1], boxes[0]}));
  for (const TPlaced* box : boxes) {
    EXPECT_TRUE(::IsWindowVisible(const_cast<TPlaced*>(box)->Handle()));
    EXPECT_EQ(box->Placed, 0) << "it has been placed again after it was made";
  }
  // One that is made later, and one that is made anew, come between the others.
  boxes[1]->RecreateWnd();
  EXPECT_EQ(order(), (std::vector<TWinControl*>{boxes[3], boxes[2], boxes[1], boxes[0]}));
  auto* late = Make<TPlaced>(&Form, 0, 0, 50, 50);
  EXPECT_EQ(order().front(), late);
  Form.Hide();
}

TEST_F(Controls, WindowsInsideEndWithTheOneAround) {
  auto* around = Make<TBox>(&Form, 0, 0, 100, 100);
  auto* inside = Make<TBox>(around, 0, 0, 50, 50);
  auto* edit = Make<TEdit>(inside, 0, 0, 40, 20);
  Form.Show();
  const HWND former[] = {inside->Handle(), edit->Handle()};
  edit->SetText("kept");
  Form.Hide();
  around->RecreateWnd();
  for (const HWND window : former) EXPECT_FALSE(::IsWindow(window));
  EXPECT_FALSE(inside->HandleAllocated());
  EXPECT_FALSE(edit->HandleAllocated());
  EXPECT_EQ(edit->Text(), "kept");
  Form.Show();
  EXPECT_TRUE(::IsWindowVisible(edit->Handle()));
  EXPECT_EQ(WindowText(edit->Handle()), "kept");
  EXPECT_FALSE(edit->ControlState().Has(csDestroyingHandle));
}

TEST_F(Controls, TextIsTheWindowsAndSurvivesItsEnd) {
  auto* box = Make<TBox>(&Form, 0, 0, 100, 100);
  box->SetCaption("Grüße 你好 😀");
  EXPECT_EQ(box->Caption(), "Grüße 你好 😀");
  box->HandleNeeded();
  EXPECT_EQ(box->Caption(), "Grüße 你好 😀");
  SetWindowTextUtf8(box->Handle(), "from outside");
  EXPECT_EQ(box->Text(), "from outside");
  char buffer[5];
  EXPECT_EQ(box->GetTextBuf(buffer, sizeof buffer), 4);
  EXPECT_STREQ(buffer, "from");
  box->RecreateWnd();
  EXPECT_EQ(box->Text(), "from outside");
}

TEST_F(Controls, CaptionFollowsTheNameWhileTheyAreEqual) {
  auto* box = Make<TBox>(&Form, 0, 0, 10, 10);
  for (const char* name : {"Box1", "Box2"}) {
    box->SetName(name);
    EXPECT_EQ(box->Caption(), name);
  }
  box->SetCaption("mine");
  box->SetName("Box3");
  EXPECT_EQ(box->Caption(), "mine");
}

TEST_F(Controls, FollowTheParentUntilTheyAreGivenTheirOwn) {
  auto* outer = Make<TBox>(&Form, 0, 0, 100, 100);
  auto* inner = Make<TProbe>(outer, 0, 0, 10, 10);
  Form.Font()->SetName("Courier New");
  Form.SetColor(clNavy);
  Form.SetShowHint(true);
  EXPECT_EQ(inner->Font()->Name(), "Courier New");
  EXPECT_EQ(inner->Color(), clNavy);
  EXPECT_TRUE(inner->ShowHint());
  inner->SetColor(clRed);
  inner->Font()->SetSize(20);
  inner->SetShowHint(false);
  Form.SetColor(clTeal);
  Form.Font()->SetName("Arial");
  EXPECT_EQ(inner->Color(), clRed);
  EXPECT_EQ(inner->Font()->Name(), "Courier New");
  EXPECT_FALSE(inner->ParentFont() || inner->ParentColor() || inner->ParentShowHint());
  inner->SetParentColor(true);
  inner->SetParentFont(true);
  inner->SetParentShowHint(true);
  EXPECT_EQ(inner->Color(), clTeal);
  EXPECT_EQ(inner->Font()->Name(), "Arial");
  EXPECT_TRUE(inner->ShowHint());
}

TEST_F(Controls, AlignKeepsControlsAlongTheEdges) {
  auto* box = Make<TBox>(&Form, 10, 10, 200, 100);
  auto* top = Make<TProbe>(box, 0, 0, 5, 20);
  auto* bottom = Make<TProbe>(box, 0, 50, 5, 10);
  auto* left = Make<TBox>(box, 0, 0, 30, 5);
  auto* right = Make<TProbe>(box, 100, 0, 40, 5);
  auto* rest = Make<TBox>(box, 0, 0, 5, 5);
  const std::vector<std::pair<TControl*, TAlign>> aligns = {
      {top, alTop}, {bottom, alBottom}, {left, alLeft}, {right, alRight}, {rest, alClient}};
  for (const auto& [control, align] : aligns) control->SetAlign(align);
  const auto expectAt = [&](int width, int height) {
    EXPECT_EQ(top->BoundsRect(), TRect(0, 0, width, 20));
    EXPECT_EQ(bottom->BoundsRect(), TRect(0, height - 10, width, height));
    EXPECT_EQ(left->BoundsRect(), TRect(0, 20, 30, height - 10));
    EXPECT_EQ(right->BoundsRect(), TRect(width - 40, 20, width, height - 10));
    EXPECT_EQ(rest->BoundsRect(), TRect(30, 20, width - 40, height - 10));
  };
  expectAt(200, 100);
  box->SetBounds(10, 10, 300, 150);
  expectAt(300, 150);
  Form.Show();
  box->SetBounds(10, 10, 250, 120);
  expectAt(250, 120);
  box->DisableAlign();
  box->SetBounds(10, 10, 350, 140);
  expectAt(250, 120);
  box->EnableAlign();
  expectAt(350, 140);
  left->SetVisible(false);
  EXPECT_EQ(rest->Left(), 0);
}

TEST_F(Controls, HandlersOfNewSizesMayRaiseOrFree) {
  auto* outer = Make<TBox>(&Form, 0, 0, 50, 50);
  auto* inner = Make<TBox>(outer, 0, 0, 10, 10);
  auto* second = Make<TBox>(outer, 0, 20, 10, 10);
  inner->OnResize = [](TObject*) { throw EInvalidOperation("no size"); };
  EXPECT_THROW(inner->SetAlign(alTop), EInvalidOperation);
  inner->OnResize = nullptr;
  outer->SetWidth(60);
  EXPECT_EQ(inner->Width(), 60);
  second->SetAlign(alBottom);
  inner->OnResize = [&](TObject*) {
    delete inner;
    delete second;
  };
  outer->SetWidth(70);
  EXPECT_EQ(outer->ControlCount(), 0);
  inner = Make<TBox>(outer, 0, 0, 10, 10);
  inner->SetAlign(alTop);
  inner->OnResize = [&](TObject*) { delete outer; };
  outer->SetWidth(80);
  EXPECT_EQ(Form.ControlCount(), 0);
}

TEST_F(Controls, TabOrderIsThePlaceAmongTheSiblings) {
  auto* a = Make<TBox>(&Form, 0, 0, 10, 10);
  auto* b = Make<TBox>(&Form, 0, 0, 10, 10);
  auto* c = Make<TBox>(&Form, 0, 0, 10, 10);
  const auto orders = [&] { return std::array{a->TabOrder(), b->TabOrder(), c->TabOrder()}; };
  c->SetTabOrder(0);
  EXPECT_EQ(orders(), (std::array{1, 2, 0}));
  c->SetTabOrder(99);
  EXPECT_EQ(orders(), (std::array{0, 1, 2}));
  Form.Show();
  for (TBox* box : {a, b, c}) box->SetTabStop(true);
  EXPECT_EQ(Form.FindNextControl(c, true, true, false), a);
  EXPECT_EQ(Form.FindNextControl(a, false, true, false), c);
  b->SetEnabled(false);
  EXPECT_EQ(Form.FindNextControl(a, true, true, false), c);
  EXPECT_THROW(b->SetFocus(), EInvalidOperation);
}

TEST_F(Controls, TheMouseReachesControlsWithoutWindows) {
  auto* probe = Make<TProbe>(&Form, 20, 30, 40, 50);
  Form.Show();
  std::string log;
  const auto notes = [&](const char* what) {
    return [&log, what](TObject*, TMouseButton, TShiftState shift, int x, int y) {
      log += what + std::to_string(x) + "," + std::to_string(y) + (shift.Has(ssCtrl) ? "c " : " ") +
             (shift.Has(ssDouble) ? "double " : "");
    };
  };
  probe->OnMouseDown = notes("down ");
  probe->OnMouseUp = notes("up ");
  probe->OnClick = [&](TObject*) { log += "click "; };
  probe->OnDblClick = [&](TObject*) { log += "dblclick "; };
  Send(Form, WM_LBUTTONDOWN, 25, 35, MK_LBUTTON | MK_CONTROL);
  EXPECT_TRUE(probe->MouseCapture());
  Send(Form, WM_LBUTTONUP, 25, 35);
  EXPECT_FALSE(probe->MouseCapture());
  EXPECT_EQ(log, "down 5,5c click up 5,5 ");
  log.clear();
  // Released outside, where the capture still brings it: no click.
  Send(Form, WM_LBUTTONDOWN, 25, 35, MK_LBUTTON);
  Send(Form, WM_LBUTTONUP, 300, 200);
  EXPECT_EQ(log, "down 5,5 up 280,170 ");
  // The system ends it, as a box comes up.
  log.clear();
  Send(Form, WM_LBUTTONDOWN, 25, 35, MK_LBUTTON);
  ::SendMessageW(Form.Handle(), WM_CANCELMODE, 0, 0);
  EXPECT_FALSE(probe->MouseCapture());
  Send(Form, WM_LBUTTONUP, 25, 35);
  EXPECT_EQ(log, "down 5,5 up 5,5 ");
  log.clear();
  Send(Form, WM_LBUTTONDBLCLK, 25, 35, MK_LBUTTON);
  EXPECT_EQ(log, "dblclick down 5,5 double ");
  log.clear();
  // For those that want no double clicks it is another press.
  probe->WantNoDoubleClicks();
  Send(Form, WM_LBUTTONDBLCLK, 25, 35, MK_LBUTTON);
  EXPECT_EQ(log, "down 5,5 ");
}

/// In memory of its own, so that nobody touches it unseen when it has gone.
template <class T>
struct TLonely : T {
  using T::T;
  static void* operator new(std::size_t size) {
    return ::VirtualAlloc(nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  }
  static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
};

TEST_F(Controls, AControlThatLostTheMouseIsForgottenAtItsEnd) {
  auto* box = Make<TBox>(&Form, 0, 0, 100, 100);
  auto* probe = Make<TLonely<TProbe>>(box, 0, 0, 50, 50);
  Form.Show();
  probe->Perform(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_TRUE(probe->MouseCapture());
  box->RecreateWnd();
  EXPECT_FALSE(probe->MouseCapture());
  delete probe;
  auto* next = Make<TProbe>(box, 0, 0, 50, 50);
  ::SetCapture(box->Handle());
  EXPECT_FALSE(next->MouseCapture());
  ::ReleaseCapture();
}

TEST_F(Controls, AHandlerOfShowingMayFreeTheForm) {
  auto* form = new TLonely<TForm>(nullptr);
  bool gone = false;
  form->OnShow = [&](TObject*) {
    gone = true;
    delete form;
  };
  form->SetVisible(true);
  EXPECT_TRUE(gone);
}

TEST_F(Controls, PaintingIsClippedToTheControl) {
  auto* box = Make<TBox>(&Form, 0, 0, 100, 100);
  Make<TProbe>(box, 90, 90, 40, 40);
  auto* hidden = Make<TProbe>(box, 0, 0, 10, 10);
  hidden->SetVisible(false);
  Form.Show();
  TBitmap picture(150, 150);
  box->PaintTo(picture.Canvas()->Handle(), 10, 10);
  const std::pair<int, TColor> colors[] = {{9, clWhite}, {10, clLime}, {99, clLime},
                                           {100, clRed}, {109, clRed}, {110, clWhite}};
  for (const auto& [at, color] : colors) EXPECT_EQ(picture.Canvas()->Pixels(at, at), color) << at;
  EXPECT_EQ(hidden->Paints, 0);

  box->SetDoubleBuffered(true);
  box->Repaint();
  const TWindowDC dc(box->Handle());
  EXPECT_EQ(::GetPixel(dc.Get(), 10, 10), static_cast<COLORREF>(clLime));
  EXPECT_EQ(::GetPixel(dc.Get(), 95, 95), static_cast<COLORREF>(clRed));
}

TEST_F(Controls, KeysGoToTheFormFirstWhenItAsksForThem) {
  auto* box = Make<TBox>(&Form, 0, 0, 40, 40);
  Form.Show();
  std::string log;
  const auto note = [&](const char* who, char32_t key) {
    log += who + std::to_string(static_cast<unsigned>(key)) + " ";
  };
  Form.OnKeyPress = [&](TObject*, char32_t& key) { note("form", key); };
  box->OnKeyPress = [&](TObject*, char32_t& key) { note("box", key); };
  ::SendMessageW(box->Handle(), WM_CHAR, 'a', 0);
  Form.SetKeyPreview(true);
  ::SendMessageW(box->Handle(), WM_CHAR, 'b', 0);
  Form.OnKeyPress = [&](TObject*, char32_t& key) { key = 0; };
  ::SendMessageW(box->Handle(), WM_CHAR, 'c', 0);
  EXPECT_EQ(log, "box97 form98 box98 ");
  // A character beyond 16 bits comes in two messages and is one key.
  log.clear();
  Form.SetKeyPreview(false);
  ::SendMessageW(box->Handle(), WM_CHAR, 0xD83D, 0);
  ::SendMessageW(box->Handle(), WM_CHAR, 0xDE00, 0);
  EXPECT_EQ(log, "box128512 ");
}

}  // namespace
}  // namespace vcl
