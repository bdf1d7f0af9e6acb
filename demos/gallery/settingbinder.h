// Binds controls of a form to published properties: each shows its property, and changes it as soon
// as the user changes the control.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/stdctrls/stdctrls.h"

namespace gallery {

/// One line of a page's table.
struct TSetting {
  /// The name of a TCheckBox, TComboBox, TEdit or TMemo on the form.
  const char* Control;
  /// The property's path, "Gradient.FillStyle".
  const char* Path;
  /// Raises an exception for a text that the property would take but that makes no sense; optional.
  void (*Check)(const std::string& text) = nullptr;
};

/// A text that says no value leaves the property alone: the control is marked, the reason told, and
/// the control shows the value again when the focus leaves it.
class TSettingBinder {
 public:
  /// Told the reason when a text is refused, and an empty text when all is well.
  using TTell = std::function<void(const std::string& message)>;

  /// Binds the controls of `form`, whose events it takes; `form` and its controls outlive the
  /// binder. Raises EComponentError for a control that is not there.
  TSettingBinder(vcl::TComponent& form, const std::vector<TSetting>& settings, TTell tell);
  /// Gives the controls their events back, empty.
  ~TSettingBinder();
  TSettingBinder(const TSettingBinder&) = delete;
  TSettingBinder& operator=(const TSettingBinder&) = delete;

  /// The objects whose properties the controls set, all at once; they show the first one's. The
  /// objects must outlive the binder's use of them. Raises EPropertyError for an object without one
  /// of the properties.
  void SetTargets(std::vector<vcl::TComponent*> targets);
  /// Shows the values as they are now.
  void Refresh();

 private:
  struct TBinding {
    TSetting Setting;
    vcl::TWinControl* Control;
    bool Marked = false;
  };
  void Connect(TBinding& binding);
  static void SetChangeEvent(vcl::TWinControl& control, const vcl::TNotifyEvent& event);
  void FillChoices(TBinding& binding);
  void Show(TBinding& binding);
  void Changed(TBinding& binding);
  void Apply(const TBinding& binding) const;
  void Mark(TBinding& binding, const std::string& reason);

  vcl::TComponent& FForm;
  TTell FTell;
  std::vector<TBinding> FBindings;
  std::vector<vcl::TComponent*> FTargets;
  bool FShowing = false;  // What changes now is not the user's doing.
};

}  // namespace gallery
