// A form on the screen with a spin edit and another edit, for tests by mouse and keyboard.
#pragma once

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/standardform.h"

namespace qel {

inline int beeps = 0;
inline int otherSounds = 0;

/// A spin edit whose inside a test sees.
class TOpenSpinEdit : public TQELSpinEdit {
 public:
  using TQELSpinEdit::AdjustSize;
  using TQELSpinEdit::GetMinHeight;
  using TQELSpinEdit::IsValidChar;
  using TQELSpinEdit::RecreateWnd;
  using TQELSpinEdit::TQELSpinEdit;
  /// The rectangle that the system was last told to keep the text in. What it makes of it (margins)
  /// is its own affair.
  vcl::TRect TextRect;
  int TextRectsRead = 0;
  void WndProc(vcl::TMessage& message) override {
    if (message.Msg == EM_SETRECTNP) {
      const RECT& rect = *reinterpret_cast<const RECT*>(message.LParam);
      TextRect = {int(rect.left), int(rect.top), int(rect.right), int(rect.bottom)};
    }
    TextRectsRead += message.Msg == EM_GETRECT;
    TQELSpinEdit::WndProc(message);
  }
  TWinControl* Holder() const { return dynamic_cast<TWinControl*>(Controls(0)); }
  TQELCustomSpinButton* Button() const {
    return dynamic_cast<TQELCustomSpinButton*>(Holder()->Controls(0));
  }
};

class TSpinForm : public vcl::TStandardForm {
 protected:
  TSpinForm() {
    Other = Make<vcl::TEdit>(10, 100);
    Spin = new TOpenSpinEdit(&Form);
    Spin->SetParent(&Form);
    Spin->SetBounds(10, 10, 120, 24);
    ShowForm();
    Spin->SetFocus();
    beeps = otherSounds = 0;
  }
  ~TSpinForm() override { testinput::MoveMouse({0, 0}); }

  vcl::TEdit* Other;
  TOpenSpinEdit* Spin;
  TImportPatch Beep{"qel.dll", "MessageBeep", +[](UINT sound) WINAPI -> BOOL {
                      ++(sound == 0 ? beeps : otherSounds);
                      return TRUE;
                    }};
};

}  // namespace qel
