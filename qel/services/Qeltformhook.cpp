// TQELFormHook: which messages are wanted, and their events.
#include "qel/services/Qeltformhook.h"

#include <optional>

#include "qel/services/private/messagenames.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELFormHook::Class() {
  using T = TQELFormHook;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELFormHook", "qel/services/Qeltformhook.h",
      {
          Property<&T::Messages, &T::SetMessages>("Messages"),
          Event<&T::OnMessage>("OnMessage")
              .Type("TQELHookMessage",
                    "vcl::TObject* sender, vcl::TMessage& message, bool& handled"),
          Event<&T::OnAfterMessage>("OnAfterMessage")
              .Type("TQELHookAfterMessage", "vcl::TObject* sender, vcl::TMessage& message"),
      });
  return info;
}

TQELFormHook::TQELFormHook(vcl::TComponent* owner)
    : TQELFormComponent(owner), FMessages(std::make_unique<vcl::TStringList>()) {
  FMessages->OnChange = {this, &TQELFormHook::MessagesChanged};
  Attach();
}

TQELFormHook::~TQELFormHook() {
  AnnounceEnd();
  Detach();
}

void TQELFormHook::MessagesChanged(vcl::TObject*) {
  FNumbers.clear();
  for (int i = 0; i < FMessages->Count(); ++i) {
    const std::optional<UINT> number = MessageNumber(FMessages->Strings(i));
    if (number) FNumbers.insert(*number);
  }
}

bool TQELFormHook::Wants(UINT message) const {
  return FMessages->Count() == 0 || FNumbers.contains(message);
}

void TQELFormHook::BeforeMessage(vcl::TMessage& message, bool& handled) {
  if (Wants(message.Msg)) OnMessage(this, message, handled);
}

void TQELFormHook::AfterMessage(vcl::TMessage& message) {
  if (Wants(message.Msg)) OnAfterMessage(this, message);
}

}  // namespace qel
