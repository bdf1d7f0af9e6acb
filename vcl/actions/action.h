// TContainedAction, TCustomAction and TAction: the actions of a list.
#pragma once

#include <string>

#include "vcl/actions/actionlink.h"
#include "vcl/actions/basicaction.h"

namespace vcl {

class TActionList;

/// An action that stands in a list, in one of its categories.
class VCL_API TContainedAction : public TBasicAction {
 public:
  explicit TContainedAction(TComponent* owner);
  ~TContainedAction() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TActionList* ActionList() const { return FActionList; }
  /// Moves the action to the end of the list; null takes it out.
  void SetActionList(TActionList* list);
  /// The place in the list, from 0; -1 without a list.
  int Index() const;
  /// Raises EListError for an index outside the list.
  void SetIndex(int index);
  const std::string& Category() const { return FCategory; }
  /// What the action is listed under in a designer.
  void SetCategory(const std::string& category);

  /// The list's OnExecute comes first, then the action's own, then its work with its target: the
  /// first that there is. False when there is none, and while the list is suspended or designed.
  bool Execute() override;
  /// The same with OnUpdate. An action without a target learns of that, unless OnExecute works.
  bool Update() override;

  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return true; }
  /// Raises EInvalidOperation for a parent that is no action list.
  void SetParentComponent(TComponent* parent) override;

 protected:
  /// The one component that the action is for, if it is for one. Null has it look for its target:
  /// the active form's active control, the form, its components, the first that it handles.
  virtual TComponent* FixedTarget() const { return nullptr; }
  /// The list is another one, or another state holds in it.
  virtual void ListChanged() {}
  /// Tells the list.
  void Changed();
  /// False while the list is suspended, and in a designer.
  bool Works() const;

 private:
  friend class TActionList;
  TComponent* FindTarget() const;

  TActionList* FActionList = nullptr;
  std::string FCategory;
};

/// An action with values that its clients show. A client follows each of them until it is given
/// another one, and again as soon as the two are equal.
class VCL_API TCustomAction : public TContainedAction {
 public:
  explicit TCustomAction(TComponent* owner);
  ~TCustomAction() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool AutoCheck() const { return FAutoCheck; }
  /// True checks and unchecks the action as it is executed; one of a group is only checked.
  void SetAutoCheck(bool autoCheck) { FAutoCheck = autoCheck; }
  const std::string& Caption() const { return FValues.Caption; }
  /// The text that the action's clients show.
  void SetCaption(const std::string& caption);
  bool Checked() const { return FValues.Checked; }
  /// Checking an action of a group unchecks the others of the group.
  void SetChecked(bool checked);
  bool Enabled() const { return FValues.Enabled; }
  /// False keeps the user from executing the action.
  void SetEnabled(bool enabled);
  int GroupIndex() const { return FValues.GroupIndex; }
  /// Of the actions of one list with the same GroupIndex, other than 0, one at a time is checked.
  void SetGroupIndex(int group);
  const std::string& Hint() const { return FValues.Hint; }
  /// The hint that the action's clients show.
  void SetHint(const std::string& hint);
  int ImageIndex() const { return FValues.ImageIndex; }
  /// The picture in the list's Images; -1 for none.
  void SetImageIndex(int index);
  TShortCut ShortCut() const { return FValues.ShortCut; }
  /// The keys that execute the action while a form with its list is active, behind the menus.
  void SetShortCut(TShortCut shortCut);
  bool Visible() const { return FValues.Visible; }
  /// False takes the action's clients out of sight.
  void SetVisible(bool visible);
  const TActionValues* Values() const override { return &FValues; }

  /// Updates the action first, checks it where AutoCheck says so, and does nothing when it is
  /// disabled.
  bool Execute() override;

 protected:
  void ListChanged() override;

 private:
  template <class T>
  void Change(T TActionValues::*value, const T& to);
  void ShowEnabled();
  void UncheckGroup();
  bool OwnEnabled() const { return FOwnEnabled; }

  TActionValues FValues;
  bool FAutoCheck = false;
  bool FOwnEnabled = true;  // Without what the list's state makes of it.
};

/// An action that applications give its work by OnExecute.
class VCL_API TAction : public TCustomAction {
 public:
  explicit TAction(TComponent* owner) : TCustomAction(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
