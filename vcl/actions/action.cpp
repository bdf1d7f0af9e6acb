// TContainedAction and TCustomAction: executing, updating, and the values that clients show.
#include "vcl/actions/action.h"

#include "vcl/actions/actionlist.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

// TContainedAction.

const TClass& TContainedAction::Class() {
  using T = TContainedAction;
  static const TClass info =
      Describe<T, TBasicAction>("vcl::TContainedAction", "vcl/actions/actions.h",
                                {
                                    Property<&T::Category, &T::SetCategory>("Category").Default(""),
                                });
  return info;
}

TContainedAction::TContainedAction(TComponent* owner) : TBasicAction(owner) {}

TContainedAction::~TContainedAction() {
  AnnounceEnd();
  if (FActionList) FActionList->Remove(*this);
}

void TContainedAction::SetActionList(TActionList* list) {
  if (list == FActionList) return;
  if (FActionList) FActionList->Remove(*this);
  if (list) list->Add(*this);
}

int TContainedAction::Index() const { return FActionList ? FActionList->IndexOf(this) : -1; }

void TContainedAction::SetIndex(int index) {
  if (FActionList) FActionList->Move(*this, index);
}

void TContainedAction::SetCategory(const std::string& category) {
  if (category == FCategory) return;
  FCategory = category;
  Changed();
}

void TContainedAction::Changed() {
  if (FActionList && !Loading()) FActionList->OnChange(FActionList);
}

bool TContainedAction::Works() const {
  return !Designing() && (!FActionList || FActionList->State() == asNormal);
}

TComponent* TContainedAction::FindTarget() const {
  if (TComponent* fixed = FixedTarget()) return HandlesTarget(*fixed) ? fixed : nullptr;
  TCustomForm* form = Screen()->ActiveForm();
  if (!form) form = Application()->MainForm();
  if (!form) return nullptr;
  TWinControl* control = form->ActiveControl();
  if (control && HandlesTarget(*control)) return control;
  if (HandlesTarget(*form)) return form;
  for (int i = 0; i < form->ComponentCount(); ++i) {
    if (HandlesTarget(*form->Components(i))) return form->Components(i);
  }
  return nullptr;
}

bool TContainedAction::Execute() {
  if (!Works()) return false;
  const TWatch watch(this);
  bool handled = false;
  if (FActionList) FActionList->OnExecute(this, handled);
  if (handled || watch.Gone() || TBasicAction::Execute()) return true;
  TComponent* target = FindTarget();
  if (target) ExecuteTarget(*target);
  return target != nullptr;
}

bool TContainedAction::Update() {
  if (!Works()) return false;
  const TWatch watch(this);
  bool handled = false;
  if (FActionList) FActionList->OnUpdate(this, handled);
  if (handled || watch.Gone() || TBasicAction::Update()) return true;
  TComponent* target = FindTarget();
  if (target || !OnExecute) UpdateTarget(target);
  return target != nullptr;
}

TComponent* TContainedAction::GetParentComponent() const { return FActionList; }

void TContainedAction::SetParentComponent(TComponent* parent) {
  auto* list = dynamic_cast<TActionList*>(parent);
  if (!list && parent) {
    throw EInvalidOperation(Concat("An action can't stand in a ", parent->ClassName()));
  }
  SetActionList(list);
}

// TCustomAction.

const TClass& TCustomAction::Class() {
  using T = TCustomAction;
  static const TClass info = Describe<T, TContainedAction>(
      "vcl::TCustomAction", "vcl/actions/actions.h",
      {
          Property<&T::AutoCheck, &T::SetAutoCheck>("AutoCheck").Default(false).Unpublished(),
          Property<&T::Caption, &T::SetCaption>("Caption")
              .Type("TCaption")
              .Default("")
              .Unpublished(),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0).Unpublished(),
          Property<&T::Checked, &T::SetChecked>("Checked").Default(false).Unpublished(),
          Property<&T::OwnEnabled, &T::SetEnabled>("Enabled").Default(true).Unpublished(),
          Property<&T::Hint, &T::SetHint>("Hint").Default("").Unpublished(),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1).Unpublished(),
          Property<&T::ShortCut, &T::SetShortCut>("ShortCut").Default(scNone).Unpublished(),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true).Unpublished(),
      });
  return info;
}

const TClass& TAction::Class() {
  static const TClass info =
      Describe<TAction, TCustomAction>("vcl::TAction", "vcl/actions/actions.h",
                                       {
                                           Inherit("AutoCheck"),
                                           Inherit("Caption"),
                                           Inherit("GroupIndex"),
                                           Inherit("Checked"),
                                           Inherit("Enabled"),
                                           Inherit("Hint"),
                                           Inherit("ImageIndex"),
                                           Inherit("ShortCut"),
                                           Inherit("Visible"),
                                       });
  return info;
}

TCustomAction::TCustomAction(TComponent* owner) : TContainedAction(owner) {}

TCustomAction::~TCustomAction() { AnnounceEnd(); }

template <class T>
void TCustomAction::Change(T TActionValues::*value, const T& to) {
  if (FValues.*value == to) return;
  const TWatch watch(this);
  const TActionValues before = FValues;
  FValues.*value = to;
  TellClients(before);
  if (!watch.Gone()) Changed();
}

using V = TActionValues;
void TCustomAction::SetCaption(const std::string& caption) { Change(&V::Caption, caption); }
void TCustomAction::SetHint(const std::string& hint) { Change(&V::Hint, hint); }
void TCustomAction::SetImageIndex(int index) { Change(&V::ImageIndex, index); }
void TCustomAction::SetShortCut(TShortCut shortCut) { Change(&V::ShortCut, shortCut); }
void TCustomAction::SetVisible(bool visible) { Change(&V::Visible, visible); }

void TCustomAction::SetEnabled(bool enabled) {
  FOwnEnabled = enabled;
  ShowEnabled();
}

void TCustomAction::ShowEnabled() {
  const bool lifted = ActionList() && ActionList()->State() == asSuspendedEnabled;
  Change(&V::Enabled, FOwnEnabled || lifted);
}

void TCustomAction::ListChanged() {
  const TWatch watch(this);
  Change(&V::Images, ActionList() ? ActionList()->Images() : nullptr);
  if (!watch.Gone()) ShowEnabled();
}

void TCustomAction::SetChecked(bool checked) {
  const TWatch watch(this);
  if (checked) UncheckGroup();
  if (!watch.Gone()) Change(&V::Checked, checked);
}

void TCustomAction::SetGroupIndex(int group) {
  const TWatch watch(this);
  Change(&V::GroupIndex, group);
  if (!watch.Gone() && Checked()) UncheckGroup();
}

void TCustomAction::UncheckGroup() {
  const TWatch watch(this);
  for (int i = 0;
       !watch.Gone() && GroupIndex() != 0 && ActionList() && i < ActionList()->ActionCount(); ++i) {
    auto* other = dynamic_cast<TCustomAction*>(ActionList()->Actions(i));
    if (other && other != this && other->GroupIndex() == GroupIndex()) other->SetChecked(false);
  }
}

bool TCustomAction::Execute() {
  const TWatch watch(this);
  Update();
  if (watch.Gone() || !Enabled() || !Works()) return false;
  if (FAutoCheck && (!Checked() || GroupIndex() == 0)) SetChecked(!Checked());
  return !watch.Gone() && TContainedAction::Execute();
}

}  // namespace vcl
