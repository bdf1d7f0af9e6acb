// Driving the modal dialogs of the package: what a user does is done in the dialog's own loop.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/vcl/standardform.h"

namespace qel {

/// Does something with the next modal form when that is in front. A form that stays open then is a
/// failure, and is closed.
class TWhenShown {
 public:
  explicit TWhenShown(std::function<void(vcl::TCustomForm&)> act) : FAct(std::move(act)) {
    FTimer.SetInterval(20);
    FTimer.OnTimer = [this](vcl::TObject*) { Tick(); };
  }
  ~TWhenShown() { EXPECT_TRUE(FShown) << "no dialog was shown"; }
  TWhenShown(const TWhenShown&) = delete;
  TWhenShown& operator=(const TWhenShown&) = delete;

 private:
  void Tick() {
    vcl::TCustomForm* const form = vcl::Screen()->ActiveForm();
    if (!form || !form->Modal()) return;
    if (!std::exchange(FShown, true)) {
      ::SetForegroundWindow(form->Handle());
      testinput::Pump();
      return FAct(*form);
    }
    if (FTicks++ < 150 || form->ModalResult() != vcl::mrNone) return;
    ADD_FAILURE() << "the dialog stays open";
    form->Close();
  }

  std::function<void(vcl::TCustomForm&)> FAct;
  bool FShown = false;
  int FTicks = 0;
  vcl::TTimer FTimer{nullptr};
};

/// The form's controls of the class, in the order in which they were made.
template <class T>
std::vector<T*> ControlsOf(const vcl::TCustomForm& form) {
  std::vector<T*> found;
  for (int i = 0; i < form.ControlCount(); ++i) {
    if (auto* control = dynamic_cast<T*>(form.Controls(i))) found.push_back(control);
  }
  return found;
}

template <class T>
std::vector<std::string> CaptionsOf(const vcl::TCustomForm& form) {
  std::vector<std::string> captions;
  for (const T* each : ControlsOf<T>(form)) captions.push_back(each->Caption());
  return captions;
}

/// Executes the dialog and does so with it.
template <class Dialog>
bool Ask(Dialog& dialog, std::function<void(vcl::TCustomForm&)> act) {
  const TWhenShown shown(std::move(act));
  return dialog.Execute();
}

/// Presses keys one after another.
inline std::function<void(vcl::TCustomForm&)> Keys(std::vector<WORD> keys) {
  return [keys = std::move(keys)](vcl::TCustomForm&) {
    for (const WORD key : keys) testinput::TypeKey(key);
  };
}

}  // namespace qel
