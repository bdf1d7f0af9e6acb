// TQELFormComponent: finding the form, and following its window.
#include "qel/services/Qelformcomponent.h"

#include <utility>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

vcl::TCustomForm* FormAround(vcl::TComponent* owner) {
  for (; owner; owner = owner->Owner()) {
    if (auto* form = dynamic_cast<vcl::TCustomForm*>(owner)) return form;
  }
  return nullptr;
}

}  // namespace

const vcl::TClass& TQELFormComponent::Class() {
  using T = TQELFormComponent;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELFormComponent", "qel/services/Qelformcomponent.h",
                                 {
                                     Property<&T::Active, &T::SetActive>("Active").Default(true),
                                 });
  return info;
}

TQELFormComponent::TQELFormComponent(vcl::TComponent* owner)
    : TQELComponent(owner),
      FForm(FormAround(owner)),
      FHook([this](vcl::TMessage& message, bool& handled) { Hear(message, handled); },
            [this](vcl::TMessage& message) { HearAfter(message); }) {
  if (FForm) FForm->FreeNotification(this);
}

TQELFormComponent::~TQELFormComponent() { AnnounceEnd(); }

void TQELFormComponent::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  active ? Attach() : Detach();
}

void TQELFormComponent::Attach() {
  if (!FForm || !FActive || Designing()) return;
  FHook.SetControl(FForm);
  Start();
}

void TQELFormComponent::Detach() {
  FHook.SetControl(nullptr);
  Stop();
}

// While it is being read, its properties are not yet what they are to be.
void TQELFormComponent::Start() {
  if (Loading() || !FForm->HandleAllocated() || std::exchange(FBegun, true)) return;
  Begin();
}

void TQELFormComponent::Stop() {
  if (std::exchange(FBegun, false)) End();
}

void TQELFormComponent::Loaded() {
  TQELComponent::Loaded();
  Attach();
}

// While the form is whole: its own components go when it is hardly more than a window.
void TQELFormComponent::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation != vcl::opRemove || component != FForm || !FForm) return;
  Detach();
  FForm = nullptr;
}

void TQELFormComponent::Hear(vcl::TMessage& message, bool& handled) {
  const vcl::TWatch watch(this);
  BeforeMessage(message, handled);
  if (!watch.Gone() && message.Msg == WM_DESTROY) Stop();
}

void TQELFormComponent::HearAfter(vcl::TMessage& message) {
  if (message.Msg == WM_CREATE) Start();
  AfterMessage(message);
}

void TQELFormComponent::BeforeMessage(vcl::TMessage&, bool&) {}
void TQELFormComponent::AfterMessage(vcl::TMessage&) {}

}  // namespace qel
