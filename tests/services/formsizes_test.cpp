// TQELFormSizes and TQELFormAspect: the messages of sizing and moving, and one real drag.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/vcl/testinput.h"

namespace qel {
namespace {

using vcl::TRect;

class TSizedForm : public vcl::TForm {
 public:
  TSizedForm() : TForm(nullptr) {
    SetScaled(false);
    SetBounds(100, 100, 400, 300);
    Show();
  }
  void Remake() { RecreateWnd(); }
  MINMAXINFO Limits() {
    MINMAXINFO info{};
    info.ptMaxTrackSize = {5000, 5000};
    info.ptMaxSize = {1000, 700};
    ::SendMessageW(Handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info;
  }
  /// What becomes of the rectangle that the user drags to.
  TRect Dragged(UINT message, WPARAM edge, TRect to) {
    RECT bounds{to.Left, to.Top, to.Right, to.Bottom};
    ::SendMessageW(Handle(), message, edge, reinterpret_cast<LPARAM>(&bounds));
    return bounds;
  }
};

TEST(FormSizes, LimitsWhatCodeAndUserDo) {
  TSizedForm form;
  TQELFormSizes sizes(&form);
  sizes.SetMinWidth(450);
  EXPECT_EQ(form.Width(), 450);
  sizes.SetMaxHeight(250);
  EXPECT_EQ(form.BoundsRect(), TRect(100, 100, 550, 350));
  sizes.SetMinLeft(120);
  sizes.SetMaxTop(90);
  EXPECT_EQ(form.BoundsRect(), TRect(120, 90, 570, 340));
  form.SetBounds(0, 0, 10, 1000);
  EXPECT_EQ(form.BoundsRect(), TRect(120, 0, 570, 250));
  EXPECT_EQ(form.Limits().ptMinTrackSize.x, 450);
  EXPECT_EQ(form.Limits().ptMaxTrackSize.y, 250);
  EXPECT_EQ(form.Dragged(WM_MOVING, 0, {10, 200, 460, 450}), TRect(120, 90, 570, 340));
  EXPECT_EQ(form.Dragged(WM_SIZING, WMSZ_TOPLEFT, {10, 200, 600, 450}), TRect(120, 90, 600, 450));
  EXPECT_EQ(form.Dragged(WM_SIZING, WMSZ_RIGHT, {10, 200, 600, 450}), TRect(10, 200, 600, 450));
  form.SetBorderStyle(vcl::bsDialog);  // Whose window is not asked for its limits.
  form.SetWidth(10);
  EXPECT_EQ(form.Width(), 450);
}

TEST(FormSizes, LeastHoldsAgainstLargestAndWrongValuesAreRefused) {
  TSizedForm form;
  TQELFormSizes sizes(&form);
  sizes.SetMaxWidth(300);
  sizes.SetMinWidth(350);
  EXPECT_EQ(form.Width(), 350);
  EXPECT_EQ(form.Limits().ptMaxTrackSize.x, 350);
  sizes.SetMinWidth(-1);
  EXPECT_EQ(sizes.MinWidth(), 350);
}

TEST(FormSizes, MaximizesToSizeAndPlace) {
  TSizedForm form;
  TQELFormSizes sizes(&form);
  sizes.SetMaximizedWidth(640);
  sizes.SetMaximizedHeight(480);
  sizes.SetMaximizedLeft(30);
  sizes.SetMaximizedTop(40);
  sizes.SetMinLeft(200);
  form.SetWindowState(vcl::wsMaximized);
  EXPECT_EQ(form.BoundsRect(), TRect(30, 40, 670, 520));
  form.SetWindowState(vcl::wsNormal);
  EXPECT_EQ(form.BoundsRect(), TRect(200, 100, 600, 400));
}

TEST(FormSizes, FollowsNewWindowsDotsPerInchAndActive) {
  TSizedForm form;
  TQELFormSizes sizes(&form), other(&form);
  sizes.SetMinWidth(500);
  form.Remake();
  EXPECT_EQ(form.Limits().ptMinTrackSize.x, 500);
  form.ScaleForPPI(192);
  EXPECT_EQ(sizes.MinWidth(), 1000);
  EXPECT_EQ(form.Limits().ptMinTrackSize.x, 1000);
  other.SetMinWidth(700);
  sizes.SetActive(false);
  EXPECT_EQ(form.Limits().ptMinTrackSize.x, 700);
  sizes.SetMinWidth(2000);
  EXPECT_LT(form.Width(), 2000);
  sizes.SetActive(true);
  EXPECT_EQ(form.Width(), 2000);
}

/// The form's bounds when the user drags an edge or a corner to what the test asks for.
class FormAspect : public testing::Test {
 protected:
  FormAspect() { Aspect.SetClientArea(false); }
  TRect Sized(WPARAM edge, TRect to) { return Form.Dragged(WM_SIZING, edge, to); }
  TSizedForm Form;
  TQELFormAspect Aspect{&Form};
};

TEST_F(FormAspect, IsKeptFromEveryEdge) {
  EXPECT_EQ(Sized(WMSZ_RIGHT, {100, 100, 580, 400}), TRect(100, 100, 580, 460));
  EXPECT_EQ(Sized(WMSZ_LEFT, {20, 100, 500, 400}), TRect(20, 100, 500, 460));
  EXPECT_EQ(Sized(WMSZ_BOTTOM, {100, 100, 500, 460}), TRect(100, 100, 580, 460));
  EXPECT_EQ(Sized(WMSZ_TOP, {100, 40, 500, 400}), TRect(100, 40, 580, 400));
  EXPECT_EQ(Sized(WMSZ_BOTTOMRIGHT, {100, 100, 580, 410}), TRect(100, 100, 580, 460));
  EXPECT_EQ(Sized(WMSZ_BOTTOMLEFT, {90, 100, 500, 460}), TRect(20, 100, 500, 460));
  EXPECT_EQ(Sized(WMSZ_TOPRIGHT, {100, 90, 580, 400}), TRect(100, 40, 580, 400));
  EXPECT_EQ(Sized(WMSZ_TOPLEFT, {90, 40, 500, 400}), TRect(20, 40, 500, 400));
}

TEST_F(FormAspect, StaysInsideTheLimits) {
  Form.Constraints()->SetMaxHeight(360);
  EXPECT_EQ(Sized(WMSZ_RIGHT, {100, 100, 900, 400}), TRect(100, 100, 580, 460));
  Form.Constraints()->SetMaxHeight(0);
  TQELFormSizes sizes(&Form);
  sizes.SetMinHeight(240);
  EXPECT_EQ(Sized(WMSZ_LEFT, {400, 100, 500, 400}), TRect(180, 100, 500, 340));
}

TEST_F(FormAspect, RefusesNothingnessAndEndsWhenInactive) {
  Aspect.SetAspectWidth(0);
  Aspect.SetAspectHeight(-3);
  EXPECT_EQ(Aspect.AspectWidth(), 4);
  EXPECT_EQ(Aspect.AspectHeight(), 3);
  Form.Remake();
  EXPECT_EQ(Sized(WMSZ_RIGHT, {100, 100, 580, 400}), TRect(100, 100, 580, 460));
  Aspect.SetActive(false);
  EXPECT_EQ(Sized(WMSZ_RIGHT, {100, 100, 580, 400}), TRect(100, 100, 580, 400));
}

// The system's loop of sizing takes the mouse until the button is released, so another thread moves
// it.
TEST_F(FormAspect, IsKeptInsideWhileTheMouseDragsTheBorder) {
  Aspect.SetClientArea(true);
  ASSERT_TRUE(testinput::PumpUntil([this] { return Form.Active(); }));
  const vcl::TRect bounds = Form.BoundsRect();
  std::thread mouse([bounds] {
    const int y = (bounds.Top + bounds.Bottom) / 2;
    ::SetCursorPos(bounds.Right - 2, y);
    const auto send = [](DWORD flags) {
      INPUT input{};
      input.type = INPUT_MOUSE;
      input.mi.dwFlags = flags;
      ::SendInput(1, &input, sizeof input);
      ::Sleep(100);
    };
    ::Sleep(100);
    send(MOUSEEVENTF_LEFTDOWN);
    for (int i = 1; i <= 8; ++i) {
      ::SetCursorPos(bounds.Right - 2 + 10 * i, y);
      ::Sleep(20);
    }
    send(MOUSEEVENTF_LEFTUP);
  });
  testinput::PumpUntil([&] { return Form.Width() >= bounds.Width() + 80; });
  mouse.join();
  testinput::Pump();
  EXPECT_EQ(Form.Width(), bounds.Width() + 80);
  EXPECT_EQ(Form.ClientHeight(), ::MulDiv(Form.ClientWidth(), 3, 4));
}

}  // namespace
}  // namespace qel
