// TActionWindow: listing the actions by category, and making, moving and deleting them.
#include "ide/actionwindow.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "ide/actionsdialog.h"
#include "ide/formdesigner.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// The command of an action list in the designer.
class TActionListEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int) const override { return "Action list editor..."; }
  void ExecuteVerb(int) override {
    auto* designer = dynamic_cast<TFormDesigner*>(&Designer());
    if (designer && designer->Events.ShowActions)
      designer->Events.ShowActions(dynamic_cast<TActionList&>(Component()));
  }
};

std::string LineOf(const TContainedAction& action) {
  const auto* values = action.Values();
  const std::string caption = values ? values->Caption : std::string();
  const std::string key = values ? ShortCutToText(values->ShortCut) : std::string();
  return Concat("    ", caption.empty() ? action.Name() : caption, key.empty() ? "" : "   ", key);
}

/// The categories of a list, in the order of their first actions.
std::vector<std::string> CategoriesOf(const TActionList& list) {
  std::vector<std::string> categories;
  for (int i = 0; i < list.ActionCount(); ++i) {
    const std::string& category = list.Actions(i)->Category();
    if (!std::ranges::count(categories, category)) categories.push_back(category);
  }
  return categories;
}

}  // namespace

void RegisterActionEditor() {
  RegisterComponentEditor(TActionList::Class(),
                          ComponentEditorClass<TActionListEditor>("TActionListEditor"));
}

TActionWindow::TActionWindow(TComponent* owner) : TPartsWindow(owner) {
  using T = TActionWindow;
  constexpr std::pair<const char*, TCommand> commands[] = {{"&Add", &T::Add},
                                                           {"&Standard...", &T::AddStandard},
                                                           {"&Delete", &T::DeleteAction},
                                                           {"&Up", &T::MoveUp},
                                                           {"Do&wn", &T::MoveDown}};
  SetBounds(260, 240, 320, 300);
  List().OnKeyDown = TKeyEvent(this, &T::ListKey);
  for (const auto& [caption, command] : commands) {
    AddButton(caption, [this, each = command] {
      if (Edited()) (this->*each)();
    });
  }
  AddButton("&Handler", [this] { EditHandler(); });
}

TActionWindow::~TActionWindow() { AnnounceEnd(); }

bool TActionWindow::Takes(const TComponent& component) const {
  return dynamic_cast<const TActionList*>(&component) != nullptr;
}

void TActionWindow::ListParts() {
  for (const std::string& category : CategoriesOf(*EditedList())) {
    AddPart(category.empty() ? "(No category)" : category, nullptr);
    for (int i = 0; i < EditedList()->ActionCount(); ++i) {
      TContainedAction* action = EditedList()->Actions(i);
      if (action->Category() == category) AddPart(LineOf(*action), action);
    }
  }
}

/// That of the selected action, or of those below the selected line.
std::string TActionWindow::SelectedCategory() const {
  const int line = List().ItemIndex();
  for (const int each : {line, line + 1}) {
    if (const auto* action = dynamic_cast<TContainedAction*>(PartAt(each)))
      return action->Category();
  }
  return {};
}

/// The action before or behind the selected one among those of its category; null for none.
TContainedAction* TActionWindow::Neighbour(int step) const {
  const TContainedAction* selected = Selected();
  if (!selected) return nullptr;
  for (int i = selected->Index() + step; i >= 0 && i < EditedList()->ActionCount(); i += step) {
    TContainedAction* each = EditedList()->Actions(i);
    if (each->Category() == selected->Category()) return each;
  }
  return nullptr;
}

// What the user does.

void TActionWindow::Place(const TClass& aClass, const std::string& category) {
  std::unique_ptr<TComponent> made(aClass.Maker().Component(&FormDesigner().Root()));
  auto& action = dynamic_cast<TContainedAction&>(*made);
  action.SetName(FormDesigner().UniqueName(action.ClassName()));
  action.SetCategory(category);
  if (auto* plain = dynamic_cast<TAction*>(&action)) plain->SetCaption(plain->Name());
  const TContainedAction* selected = Selected();
  const int place = selected ? selected->Index() + 1 : EditedList()->ActionCount();
  action.SetActionList(EditedList());
  action.SetIndex(place);
  Changed(made.release());
}

void TActionWindow::Add() { Place(TAction::Class(), SelectedCategory()); }

void TActionWindow::AddStandard() {
  if (const auto chosen = ChooseStandardAction()) Place(*chosen->Class, chosen->Category);
}

/// The one that takes its place in the category is selected then, else the one before it.
void TActionWindow::DeleteAction() {
  TContainedAction* action = Selected();
  if (!action) return;
  TContainedAction* behind = Neighbour(1);
  TContainedAction* next = behind ? behind : Neighbour(-1);
  FormDesigner().SetSelection({Edited()});
  delete action;
  Changed(next);
}

void TActionWindow::MoveTo(TContainedAction* place) {
  if (!place) return;
  TContainedAction* action = Selected();
  action->SetIndex(place->Index());
  Changed(action);
}

void TActionWindow::ListKey(TObject*, std::uint16_t& key, TShiftState shift) {
  using T = TActionWindow;
  static constexpr struct {
    std::uint16_t Key;
    bool Ctrl;
    TCommand Command;
  } commands[] = {{VK_INSERT, false, &T::Add},
                  {VK_DELETE, false, &T::DeleteAction},
                  {VK_UP, true, &T::MoveUp},
                  {VK_DOWN, true, &T::MoveDown}};
  for (const auto& each : commands) {
    if (!Edited() || each.Key != key || each.Ctrl != shift.Has(ssCtrl)) continue;
    key = 0;
    return (this->*each.Command)();
  }
}

}  // namespace ide
