// TMenuWindow: the items of a menu on a form, to be made, moved, deleted and selected.
#pragma once

#include <string>
#include <vector>

#include "ide/designerpart.h"
#include "ide/listwindow.h"
#include "vcl/menus/menus.h"

namespace ide {

/// The lines stand as deep as the items in the menu. The selected one is selected in the designer
/// too; a double click makes or shows its handler. When the form is made anew (undo), the window
/// finds its menu again by the name; when it is gone, the window closes.
///
/// Keys: Insert and Delete; Ctrl with the arrows moves the item, right into the submenu of the one
/// before it, left out of its own.
class TMenuWindow : public TListWindow, public TDesignerPart {
 public:
  explicit TMenuWindow(vcl::TComponent* owner);
  ~TMenuWindow() override;

  /// Shows a menu of the designer's form.
  void ShowMenu(vcl::TDesigner& designer, vcl::TMenu& menu);
  void SetDesigner(vcl::TDesigner* designer) override;
  void SelectionChanged() override;
  void Refresh() override;

  /// The menu that is shown; null for none.
  vcl::TMenu* EditedMenu() const { return FEdited; }

 private:
  using TCommand = void (TMenuWindow::*)();

  bool Find();
  void ListItems();
  void Append(vcl::TMenuItem& around, int depth, vcl::TStrings& lines);
  vcl::TMenuItem* Selected() const;
  void Place(vcl::TMenuItem& around, int index);
  void Move(vcl::TMenuItem& around, int index);
  void Changed(vcl::TMenuItem* selected);
  void Try(TCommand command);

  // What the buttons and keys do.
  void Add();
  void Insert();
  void AddInside();
  void DeleteItem();
  void MoveUp();
  void MoveDown();
  void MoveIn();
  void MoveOut();
  void EditHandler();

  void ListClicked(vcl::TObject* sender);
  void ListKey(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);

  vcl::TDesigner* FDesigner = nullptr;
  vcl::TMenu* FEdited = nullptr;
  std::string FName;
  std::vector<vcl::TMenuItem*> FItems;  // One for each line.
};

/// Gives menus a component editor that shows them in the designer's window of menus.
void RegisterMenuEditor();

}  // namespace ide
