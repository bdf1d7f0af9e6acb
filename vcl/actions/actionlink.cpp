// TActionLink: joining a client to its action.
#include "vcl/actions/actionlink.h"

#include <utility>

#include "vcl/actions/basicaction.h"

namespace vcl {

TActionLink::TActionLink(TComponent& client, TFollow follow)
    : FClient(client), FFollow(std::move(follow)) {}

TActionLink::~TActionLink() {
  if (FAction) FAction->RemoveLink(*this);
}

void TActionLink::SetAction(TBasicAction* action) {
  if (action == FAction) return;
  // What a form file that is read leaves out stands at its default, or at what the action of the
  // form that it descends from says.
  const TActionValues shown = Values() ? *Values() : TActionValues();
  if (FAction) FAction->RemoveLink(*this);
  FAction = action;
  if (!action) return;
  action->AddLink(*this);
  Follow(FClient.Loading() ? &shown : nullptr);
}

const TActionValues* TActionLink::Values() const { return FAction ? FAction->Values() : nullptr; }

void TActionLink::Follow(const TActionValues* before) {
  if (!Values()) return;
  // The client may end, and the link with it.
  const TFollow follow = FFollow;
  follow(TActionChange(FClient, before, *Values()));
}

}  // namespace vcl
