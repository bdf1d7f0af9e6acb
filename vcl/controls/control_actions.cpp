// TControl: the action that a click executes and whose values the control shows.
#include "vcl/actions/actionlink.h"
#include "vcl/actions/basicaction.h"
#include "vcl/controls/control.h"

namespace vcl {

using V = TActionValues;

TBasicAction* TControl::Action() const { return FActionLink ? FActionLink->Action() : nullptr; }

void TControl::SetAction(TBasicAction* action) {
  if (action == Action()) return;
  if (!FActionLink) {
    FActionLink = std::make_unique<TActionLink>(
        *this, [this](const TActionChange& change) { FollowAction(change); });
  }
  FActionLink->SetAction(action);
}

const TActionValues* TControl::ActionValues() const {
  return FActionLink ? FActionLink->Values() : nullptr;
}

void TControl::FollowAction(const TActionChange& change) {
  using T = TControl;
  change.Pass(*this, &V::Caption, &T::Caption, &T::SetCaption);
  change.Pass(*this, &V::Enabled, &T::Enabled, &T::SetEnabled);
  change.Pass(*this, &V::Hint, &T::Hint, &T::SetHint);
  change.Pass(*this, &V::Visible, &T::Visible, &T::SetVisible);
}

void TControl::Click() {
  if (OnClick || !Action()) {
    OnClick(this);
  } else {
    Action()->Execute();
  }
}

// A value that follows the action's is not written.

bool TControl::IsCaptionStored() const {
  return !ActionValues() || Caption() != ActionValues()->Caption;
}

bool TControl::IsEnabledStored() const {
  return !ActionValues() || FEnabled != ActionValues()->Enabled;
}

bool TControl::IsHintStored() const { return !ActionValues() || FHint != ActionValues()->Hint; }

bool TControl::IsVisibleStored() const {
  return !ActionValues() || FVisible != ActionValues()->Visible;
}

}  // namespace vcl
