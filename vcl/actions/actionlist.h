// TActionList: the actions of a form, in one place.
#pragma once

#include <functional>
#include <vector>

#include "vcl/actions/action.h"

namespace vcl {

/// Suspended, the actions of a list neither work nor are updated; all of them look enabled in
/// asSuspendedEnabled.
enum TActionListState { asNormal, asSuspended, asSuspendedEnabled };
template <>
inline constexpr TEnumText EnumText<TActionListState>{"TActionListState",
                                                      "asNormal asSuspended asSuspendedEnabled"};

/// The action; `handled` keeps it from its own handler and its target.
using TActionEvent = TEvent<TBasicAction*, bool&>;
template <>
inline constexpr TEventText EventText<TActionEvent>{"TActionEvent",
                                                    "vcl::TBasicAction* action, bool& handled"};

/// Holds actions, as a menu holds its items: a form file shows them inside their list. While the
/// form that owns the list is active, the actions' shortcuts work.
class VCL_API TActionList : public TComponent {
 public:
  explicit TActionList(TComponent* owner);
  /// Frees its actions.
  ~TActionList() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  int ActionCount() const { return static_cast<int>(FActions.size()); }
  /// The action at the index from 0. Raises EListError outside.
  TContainedAction* Actions(int index) const;
  /// -1 for an action of another list.
  int IndexOf(const TContainedAction* action) const;
  TImageList* Images() const { return FImages; }
  /// What the actions' ImageIndex counts in.
  void SetImages(TImageList* images);
  TActionListState State() const { return FState; }
  /// Suspended, none of the list's actions is executed or updated; asSuspendedEnabled shows them
  /// enabled.
  void SetState(TActionListState state);
  /// The first action with that shortcut; null when there is none.
  TCustomAction* FindShortCut(TShortCut shortCut) const;
  /// Executes the action whose shortcut the key message says; false when there is none that is
  /// enabled.
  bool IsShortCut(const MSG& key);

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;

  /// The actions, their order or their values have changed.
  TNotifyEvent OnChange;
  /// An action of the list is about to be executed; the handler says whether it has done the work.
  TActionEvent OnExecute;
  /// The same for an action that is to be updated.
  TActionEvent OnUpdate;

 protected:
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TContainedAction;
  void Add(TContainedAction& action);
  void Remove(TContainedAction& action);
  void Move(TContainedAction& action, int index);
  void TellActions();

  std::vector<TContainedAction*> FActions;
  TImageList* FImages = nullptr;
  TActionListState FState = asNormal;
};

}  // namespace vcl
