// What the tests of hints share: a main form with a picture on it, a TQELHint, and the
// application's hints as they were, afterwards.
#pragma once

#include <gmock/gmock.h>

#include <stdexcept>

#include "qel/qel.h"
#include "tests/support/plainfill.h"
#include "tests/vcl/testinput.h"

namespace hintform {

/// A picture of many colours, all of which have 0x40 of green; or of one colour.
class TPattern : public vcl::TGraphicControl {
 public:
  using TGraphicControl::TGraphicControl;
  vcl::TColor Only = vcl::clNone;

 protected:
  void Paint() override {
    Canvas()->Brush()->SetColor(Only);
    if (Only != vcl::clNone) return Canvas()->FillRect(ClientRect());
    for (int y = 0; y < Height(); y += 3) {
      for (int x = 0; x < Width(); x += 5) {
        Canvas()->Brush()->SetColor(vcl::TColor((x * 7 & 0xFF) | 0x4000 | (y * 5 & 0xFF) << 16));
        Canvas()->FillRect({x, y, x + 5, y + 3});
      }
    }
  }
};

inline void RenewHintWindow() {
  vcl::Application()->SetShowHint(false);
  vcl::Application()->SetShowHint(true);
}

/// The application's hint window; null when it is not one of the TQELHint's.
inline qel::TQELNewHint* Window() {
  for (int i = 0; i < vcl::Application()->ComponentCount(); ++i) {
    auto* window = dynamic_cast<qel::TQELNewHint*>(vcl::Application()->Components(i));
    if (window) return window;
  }
  return nullptr;
}

/// What the screen shows in the rectangle.
inline std::unique_ptr<plain::TDib> ScreenShot(const vcl::TRect& rect) {
  auto shot = std::make_unique<plain::TDib>(rect.Width(), rect.Height());
  const vcl::TWindowDC screen(nullptr);
  ::BitBlt(shot->DC(), 0, 0, rect.Width(), rect.Height(), screen.Get(), rect.Left, rect.Top,
           SRCCOPY);
  return shot;
}

/// Waits until the screen shows the picture there: it gets what is painted when the system likes.
/// Says how they differ.
inline std::string ScreenDiffers(vcl::TPoint topLeft, const plain::TDib& expected) {
  const vcl::TRect place = vcl::Bounds(topLeft.X, topLeft.Y, expected.Width(), expected.Height());
  std::string difference;
  testinput::PumpUntil([&] {
    difference = ScreenShot(place)->Difference(expected);
    return difference.empty();
  });
  return difference;
}

/// What the control paints.
inline std::unique_ptr<plain::TDib> PictureOf(vcl::TWinControl* control) {
  auto picture = std::make_unique<plain::TDib>(control->Width(), control->Height());
  control->PaintTo(picture->DC(), 0, 0);
  return picture;
}

class HintTest : public testing::Test {
 protected:
  HintTest() {
    testinput::MoveMouse({5, 5});
    Form->SetBorderStyle(vcl::bsNone);
    Form->SetBounds(500, 400, 600, 400);
    Pattern->SetParent(Form);
    Pattern->SetBounds(0, 0, 600, 400);
    Pattern->SetShowHint(true);
    vcl::Application()->SetHintHidePause(60000);
  }
  ~HintTest() override {
    delete Form;
    vcl::SetHintWindowClass(vcl::THintWindow::Class());
    vcl::Application()->SetHintColor(vcl::clInfoBk);
    vcl::Application()->SetHintPause(500);
    vcl::Application()->SetHintHidePause(2500);
    RenewHintWindow();
    testinput::MoveMouse({5, 5});
  }
  void ShowForm() {
    Form->Show();
    testinput::PumpUntil([&] { return Form->Active() && vcl::Application()->Active(); });
    AwaitForm();
  }
  /// Waits until the screen shows the form, and nothing else where it is.
  void AwaitForm() { EXPECT_EQ(ScreenDiffers({Form->Left(), Form->Top()}, *PictureOf(Form)), ""); }
  /// Shows a hint with the mouse there, whatever is there; the application knows nothing of it.
  void ShowAt(vcl::TPoint mouse, const std::string& text = "A hint of several words") {
    ::SetCursorPos(mouse.X, mouse.Y);
    const vcl::TRect rect = Window()->CalcHintRect(vcl::Screen()->Width(), text);
    Window()->ActivateHint(rect, text);
  }
  /// Has the application show the form's hint, with the mouse in the form's middle.
  void ShowHint(const std::string& text = "A hint of several words") {
    Pattern->SetHint(text);
    ::SetCursorPos(Middle.X, Middle.Y);
    vcl::Application()->ActivateHint(Middle);
    if (vcl::Application()->Hints().Shown() != Pattern) throw std::logic_error("No hint is shown");
  }
  static constexpr vcl::TPoint Middle{800, 600};  // Every side has room.

  vcl::TForm* Form = vcl::Application()->CreateForm<vcl::TForm>();
  TPattern* Pattern = new TPattern(Form);
  qel::TQELHint* Hint = new qel::TQELHint(Form);
};

}  // namespace hintform
