// TActionWindow: the actions of a list on a form by category, to be made, moved and deleted.
#pragma once

#include <string>

#include "ide/partswindow.h"
#include "vcl/actions/actions.h"

namespace ide {

/// Each category is a line, with its actions below it. A new action stands in the category of the
/// line that is selected. Keys: Insert and Delete; Ctrl with the arrows moves the action among
/// those of its category.
class TActionWindow : public TPartsWindow {
 public:
  explicit TActionWindow(vcl::TComponent* owner);
  ~TActionWindow() override;

  /// Shows an action list of the designer's form.
  void ShowActions(vcl::TDesigner& designer, vcl::TActionList& list) { ShowParts(designer, list); }
  /// The list that is shown; null for none.
  vcl::TActionList* EditedList() const { return dynamic_cast<vcl::TActionList*>(Edited()); }

 protected:
  bool Takes(const vcl::TComponent& component) const override;
  const char* Title() const override { return "Actions of "; }
  void ListParts() override;

 private:
  using TCommand = void (TActionWindow::*)();

  vcl::TContainedAction* Selected() const {
    return dynamic_cast<vcl::TContainedAction*>(SelectedPart());
  }
  std::string SelectedCategory() const;
  vcl::TContainedAction* Neighbour(int step) const;
  void Place(const vcl::TClass& aClass, const std::string& category);
  void MoveTo(vcl::TContainedAction* place);

  // What the buttons and keys do.
  void Add();
  void AddStandard();
  void DeleteAction();
  void MoveUp() { MoveTo(Neighbour(-1)); }
  void MoveDown() { MoveTo(Neighbour(1)); }

  void ListKey(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
};

/// Gives action lists a component editor that shows them in the designer's window of actions.
void RegisterActionEditor();

}  // namespace ide
