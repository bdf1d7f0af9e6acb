// TSettingBinder: showing properties in controls, applying what the user enters, and marking what
// is refused.
#include "demos/gallery/settingbinder.h"

#include "demos/gallery/propertytext.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace gallery {
namespace {

using namespace vcl;

constexpr TColor MarkColor = TColor(0xC0C0FF);

/// What the user has entered, as a text.
std::string ControlText(const TWinControl& control) {
  if (auto* check = dynamic_cast<const TCheckBox*>(&control)) return BoolToStr(check->Checked());
  return control.Text();
}

void SetControlText(TWinControl& control, const std::string& text) {
  if (auto* check = dynamic_cast<TCheckBox*>(&control)) return check->SetChecked(StrToBool(text));
  if (control.Text() != text) control.SetText(text);
}

class TFlag {
 public:
  explicit TFlag(bool& flag) : FFlag(flag), FFormer(flag) { FFlag = true; }
  ~TFlag() { FFlag = FFormer; }
  TFlag(const TFlag&) = delete;
  TFlag& operator=(const TFlag&) = delete;

 private:
  bool& FFlag;
  bool FFormer;
};

}  // namespace

TSettingBinder::TSettingBinder(TComponent& form, const std::vector<TSetting>& settings, TTell tell)
    : FForm(form), FTell(std::move(tell)) {
  FBindings.reserve(settings.size());  // The events refer to the bindings.
  for (const TSetting& setting : settings) {
    auto* control = dynamic_cast<TWinControl*>(form.FindComponent(setting.Control));
    if (!control) {
      throw EComponentError(Concat(form.Name(), " has no control ", setting.Control));
    }
    Connect(FBindings.emplace_back(TBinding{setting, control}));
  }
}

TSettingBinder::~TSettingBinder() {
  for (const TBinding& binding : FBindings) {
    SetChangeEvent(*binding.Control, nullptr);
    binding.Control->OnExit.Clear();
  }
}

void TSettingBinder::Connect(TBinding& binding) {
  SetChangeEvent(*binding.Control, [this, bound = &binding](TObject*) { Changed(*bound); });
  binding.Control->OnExit = [this, bound = &binding](TObject*) {
    if (!bound->Marked) return;
    Show(*bound);
    FTell({});
  };
}

void TSettingBinder::SetChangeEvent(TWinControl& control, const TNotifyEvent& event) {
  if (auto* check = dynamic_cast<TCheckBox*>(&control)) check->OnClick = event;
  if (auto* combo = dynamic_cast<TComboBox*>(&control)) combo->OnChange = event;
  if (auto* edit = dynamic_cast<TCustomEdit*>(&control)) edit->OnChange = event;
}

void TSettingBinder::SetTargets(std::vector<TComponent*> targets) {
  for (TComponent* target : targets)
    for (const TBinding& binding : FBindings) FindProperty(*target, binding.Setting.Path);
  FTargets = std::move(targets);
  if (FTargets.empty()) return;
  for (TBinding& binding : FBindings) FillChoices(binding);
  Refresh();
}

void TSettingBinder::FillChoices(TBinding& binding) {
  auto* combo = dynamic_cast<TComboBox*>(binding.Control);
  if (!combo || combo->Items()->Count() > 0) return;
  const TFlag showing(FShowing);
  for (const auto& text : PropertyChoices(FindProperty(*FTargets[0], binding.Setting.Path), FForm))
    combo->Items()->Add(text);
}

void TSettingBinder::Refresh() {
  for (TBinding& binding : FBindings) Show(binding);
}

void TSettingBinder::Show(TBinding& binding) {
  if (FTargets.empty()) return;
  const TFlag showing(FShowing);
  SetControlText(*binding.Control, PropertyText(FindProperty(*FTargets[0], binding.Setting.Path)));
  Mark(binding, {});
}

void TSettingBinder::Changed(TBinding& binding) {
  if (FShowing || FTargets.empty()) return;
  std::string reason;
  try {
    Apply(binding);
  } catch (const Exception& error) {
    reason = error.Message();
  }
  Mark(binding, reason);
  FTell(reason);
}

void TSettingBinder::Apply(const TBinding& binding) const {
  const std::string text = ControlText(*binding.Control);
  if (binding.Setting.Check) binding.Setting.Check(text);
  for (TComponent* target : FTargets)
    SetPropertyText(FindProperty(*target, binding.Setting.Path), text, FForm);
}

void TSettingBinder::Mark(TBinding& binding, const std::string& reason) {
  const bool marked = !reason.empty();
  if (marked == binding.Marked) return;
  binding.Marked = marked;
  binding.Control->SetColor(marked ? MarkColor : clWindow);
}

}  // namespace gallery
