// TQELFormComponent: what works on the form that it stands on.
#pragma once

#include "qel/core/Qelcomponent.h"
#include "vcl/controls/windowhook.h"
#include "vcl/forms/forms.h"

namespace qel {

/// Base of the components that hear the messages of their form's window and do something with that
/// window. It is undone when the component is freed or made inactive, and done again when the
/// window is made anew. In the designer, and where no form owns them, they do nothing.
///
/// Descendants call `Attach` at the end of their constructor, and `Detach` behind AnnounceEnd in
/// their destructor.
class QEL_API TQELFormComponent : public TQELComponent {
 public:
  explicit TQELFormComponent(vcl::TComponent* owner);
  ~TQELFormComponent() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The form that owns the component, or what owns it, a frame for instance; null without one.
  vcl::TCustomForm* Form() const { return FForm; }
  bool Active() const { return FActive; }
  /// False: the component does nothing, as if it were not there.
  void SetActive(bool active);

 protected:
  /// A message before the form has it; `handled` set to true keeps it from the form.
  virtual void BeforeMessage(vcl::TMessage& message, bool& handled);
  /// The same message behind the form.
  virtual void AfterMessage(vcl::TMessage& message);
  /// Does to the form's window, which is there, what the component is for.
  virtual void Begin() {}
  /// Undoes that. The window is still there.
  virtual void End() {}
  /// Whether there is a window that it is done to.
  bool Begun() const { return FBegun; }
  void Attach();
  void Detach();
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  void Start();
  void Stop();
  void Hear(vcl::TMessage& message, bool& handled);
  void HearAfter(vcl::TMessage& message);

  vcl::TCustomForm* FForm = nullptr;
  bool FActive = true;
  bool FBegun = false;
  vcl::TWindowHook FHook;
};

}  // namespace qel
