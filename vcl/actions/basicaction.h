// TBasicAction: something that the user can do, whatever he does it by.
#pragma once

#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"

namespace vcl {

class TActionLink;
struct TActionValues;

/// The base of the actions. Handlers may free the action, its clients, and what it works on.
class VCL_API TBasicAction : public TComponent {
 public:
  explicit TBasicAction(TComponent* owner);
  /// Its clients are without an action from then on, and keep what they show.
  ~TBasicAction() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Does the action's work; true when that was done. The inherited method fires OnExecute.
  virtual bool Execute();
  /// Brings the action's values up to date; true when somebody did. The inherited method fires
  /// OnUpdate.
  virtual bool Update();

  /// True when the component is one that the action works on.
  virtual bool HandlesTarget(const TComponent& target) const;
  /// Sets the action's values by the state of its target, null when there is none.
  virtual void UpdateTarget(TComponent* /*target*/) {}
  /// Does the action's work with the target.
  virtual void ExecuteTarget(TComponent& /*target*/) {}

  /// What the clients show; null for an action without.
  virtual const TActionValues* Values() const { return nullptr; }
  int ClientCount() const { return static_cast<int>(FLinks.size()); }
  /// The control or menu item at the index from 0. Raises EListError outside.
  TComponent* Clients(int index) const;

  /// The action's work is to be done.
  TNotifyEvent OnExecute;
  /// What the action's clients show is to be brought up to date.
  TNotifyEvent OnUpdate;

 protected:
  /// Tells the clients that the values have changed. The action may be freed meanwhile.
  void TellClients(const TActionValues& before);

 private:
  friend class TActionLink;
  void AddLink(TActionLink& link) { FLinks.push_back(&link); }
  void RemoveLink(TActionLink& link) { std::erase(FLinks, &link); }

  std::vector<TActionLink*> FLinks;
};

}  // namespace vcl
