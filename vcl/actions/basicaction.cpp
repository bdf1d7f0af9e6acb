// TBasicAction: its events and its clients.
#include "vcl/actions/basicaction.h"

#include <algorithm>

#include "vcl/actions/actionlink.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TBasicAction::Class() {
  static const TClass info =
      Describe<TBasicAction, TComponent>("vcl::TBasicAction", "vcl/actions/actions.h",
                                         {
                                             Event<&TBasicAction::OnExecute>("OnExecute"),
                                             Event<&TBasicAction::OnUpdate>("OnUpdate"),
                                         });
  return info;
}

TBasicAction::TBasicAction(TComponent* owner) : TComponent(owner) {}

TBasicAction::~TBasicAction() {
  AnnounceEnd();
  for (TActionLink* link : FLinks) link->FAction = nullptr;
}

bool TBasicAction::Execute() {
  if (!OnExecute) return false;
  OnExecute(this);
  return true;
}

bool TBasicAction::Update() {
  if (!OnUpdate) return false;
  OnUpdate(this);
  return true;
}

bool TBasicAction::HandlesTarget(const TComponent& /*target*/) const { return false; }

TComponent* TBasicAction::Clients(int index) const {
  if (index < 0 || index >= ClientCount()) {
    throw EListError(Concat("An action with ", std::to_string(ClientCount()),
                            " clients has none at index ", std::to_string(index)));
  }
  return &FLinks[static_cast<std::size_t>(index)]->Client();
}

void TBasicAction::TellClients(const TActionValues& before) {
  const TWatch watch(this);
  // A client that hears of the change may free others, or join new ones, which know it already.
  const std::vector<TActionLink*> links = FLinks;
  for (TActionLink* link : links) {
    if (watch.Gone()) return;
    if (std::ranges::count(FLinks, link)) link->Follow(&before);
  }
}

}  // namespace vcl
