// The actions of the children of a main form: what they do with its windows.
#include "vcl/stdactions/windowactions.h"

#include <utility>
#include <vector>

#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TWindowAction::Class() {
  static const TClass info = Describe<TWindowAction, TStandardAction>(
      "vcl::TWindowAction", "vcl/stdactions/stdactions.h", {});
  return info;
}

TComponent* TWindowAction::FixedTarget() const { return Application()->MainForm(); }

bool TWindowAction::HandlesTarget(const TComponent& target) const {
  const auto* form = dynamic_cast<const TCustomForm*>(&target);
  return form && form->FormStyle() == fsMDIForm;
}

void TWindowAction::UpdateTarget(TComponent* target) {
  SetEnabled(target && dynamic_cast<TCustomForm&>(*target).MDIChildCount() > 0);
}

void TWindowAction::ExecuteTarget(TComponent& target) { Do(dynamic_cast<TCustomForm&>(target)); }

const TClass& TWindowClose::Class() {
  static const TClass info =
      Describe<TWindowClose, TWindowAction>("vcl::TWindowClose", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowClose::TWindowClose(TComponent* owner)
    : TWindowAction(owner, "C&lose", "Closes the window in front") {}

void TWindowClose::Do(TCustomForm& form) {
  if (TCustomForm* child = form.ActiveMDIChild()) child->Close();
}

const TClass& TWindowCascade::Class() {
  static const TClass info = Describe<TWindowCascade, TWindowAction>(
      "vcl::TWindowCascade", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowCascade::TWindowCascade(TComponent* owner)
    : TWindowAction(owner, "&Cascade", "Lays the windows one behind the other") {}

void TWindowCascade::Do(TCustomForm& form) { form.Cascade(); }

const TClass& TWindowTileHorizontal::Class() {
  static const TClass info = Describe<TWindowTileHorizontal, TWindowAction>(
      "vcl::TWindowTileHorizontal", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowTileHorizontal::TWindowTileHorizontal(TComponent* owner)
    : TWindowAction(owner, "Tile &horizontally", "Lays the windows above each other") {}

void TWindowTileHorizontal::Do(TCustomForm& form) {
  form.SetTileMode(tbHorizontal);
  form.Tile();
}

const TClass& TWindowTileVertical::Class() {
  static const TClass info = Describe<TWindowTileVertical, TWindowAction>(
      "vcl::TWindowTileVertical", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowTileVertical::TWindowTileVertical(TComponent* owner)
    : TWindowAction(owner, "Tile &vertically", "Lays the windows side by side") {}

void TWindowTileVertical::Do(TCustomForm& form) {
  form.SetTileMode(tbVertical);
  form.Tile();
}

const TClass& TWindowArrange::Class() {
  static const TClass info = Describe<TWindowArrange, TWindowAction>(
      "vcl::TWindowArrange", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowArrange::TWindowArrange(TComponent* owner)
    : TWindowAction(owner, "&Arrange", "Arranges the minimised windows") {}

void TWindowArrange::Do(TCustomForm& form) { form.ArrangeIcons(); }

const TClass& TWindowMinimizeAll::Class() {
  static const TClass info = Describe<TWindowMinimizeAll, TWindowAction>(
      "vcl::TWindowMinimizeAll", "vcl/stdactions/stdactions.h", {});
  return info;
}

TWindowMinimizeAll::TWindowMinimizeAll(TComponent* owner)
    : TWindowAction(owner, "&Minimise all", "Minimises all windows") {}

void TWindowMinimizeAll::Do(TCustomForm& form) {
  // A window that is minimised may close, or bring others.
  std::vector<std::pair<TCustomForm*, TWatch>> children;
  for (int i = 0; i < form.MDIChildCount(); ++i) {
    children.emplace_back(form.MDIChildren(i), TWatch(form.MDIChildren(i)));
  }
  for (const auto& [child, watch] : children) {
    if (!watch.Gone()) child->SetWindowState(wsMinimized);
  }
}

}  // namespace vcl
