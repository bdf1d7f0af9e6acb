// The dialogs of the tab order and of the creation order.
#include "ide/orderdialog.h"

#include <algorithm>
#include <vector>

#include "ide/designsurface.h"
#include "ide/listwindow.h"
#include "vcl/rtl/text.h"
#include "vcl/vcl.h"

namespace ide {

using namespace vcl;

namespace {

/// A list whose lines are moved up and down.
class TOrderForm : public TListWindow {
 public:
  TOrderForm(const std::string& caption, const std::vector<TComponent*>& components)
      : TListWindow(nullptr), FOrder(components) {
    SetCaption(caption);
    SetPosition(poScreenCenter);
    SetClientWidth(320);
    SetClientHeight(300);
    for (const TComponent* each : components) {
      List().Items()->Add(Concat(each->Name(), ": ", each->FileClassName()));
    }
    List().SetItemIndex(0);
    AddButton("&Up", [this] { Move(-1); });
    AddButton("&Down", [this] { Move(1); });
    AddButton("OK", [this] { SetModalResult(mrOk); })->SetDefault(true);
    AddButton("Cancel", [this] { SetModalResult(mrCancel); })->SetCancel(true);
  }
  const std::vector<TComponent*>& Order() const { return FOrder; }

 private:
  void Move(int by) {
    const int from = List().ItemIndex();
    const int to = from + by;
    if (from < 0 || to < 0 || to >= List().Items()->Count()) return;
    std::swap(FOrder[static_cast<std::size_t>(from)], FOrder[static_cast<std::size_t>(to)]);
    List().Items()->Exchange(from, to);
    List().SetItemIndex(to);
  }

  std::vector<TComponent*> FOrder;
};

/// Lets the user order the components; empty when nothing is to change.
std::vector<TComponent*> Ordered(const std::string& caption,
                                 const std::vector<TComponent*>& components) {
  TOrderForm form(caption, components);
  const bool changed = form.ShowModal() == mrOk && form.Order() != components;
  return changed ? form.Order() : std::vector<TComponent*>();
}

}  // namespace

bool EditTabOrder(TWinControl& container) {
  std::vector<TComponent*> controls;
  for (int i = 0; i < container.ControlCount(); ++i) {
    if (dynamic_cast<TWinControl*>(container.Controls(i)))
      controls.push_back(container.Controls(i));
  }
  const auto tabOrder = [](const TComponent* each) {
    return dynamic_cast<const TWinControl&>(*each).TabOrder();
  };
  std::ranges::sort(controls, {}, tabOrder);
  const auto ordered = Ordered("Tab order", controls);
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    dynamic_cast<TWinControl&>(*ordered[i]).SetTabOrder(static_cast<int>(i));
  }
  return !ordered.empty();
}

bool EditCreationOrder(TComponent& root) {
  std::vector<TComponent*> icons;
  for (int i = 0; i < root.ComponentCount(); ++i) {
    if (TDesignSurface::IsIcon(*root.Components(i))) icons.push_back(root.Components(i));
  }
  const auto ordered = Ordered("Creation order", icons);
  for (TComponent* each : ordered) each->SetComponentIndex(root.ComponentCount() - 1);
  return !ordered.empty();
}

}  // namespace ide
