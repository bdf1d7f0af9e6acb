// TMenuWindow: the items of a menu on a form, to be made, moved, deleted and selected.
#pragma once

#include "ide/partswindow.h"
#include "vcl/menus/menus.h"

namespace ide {

/// The lines stand as deep as the items in the menu.
///
/// Keys: Insert and Delete; Ctrl with the arrows moves the item, right into the submenu of the one
/// before it, left out of its own.
class TMenuWindow : public TPartsWindow {
 public:
  explicit TMenuWindow(vcl::TComponent* owner);
  ~TMenuWindow() override;

  /// Shows a menu of the designer's form.
  void ShowMenu(vcl::TDesigner& designer, vcl::TMenu& menu) { ShowParts(designer, menu); }
  /// The menu that is shown; null for none.
  vcl::TMenu* EditedMenu() const { return dynamic_cast<vcl::TMenu*>(Edited()); }

 protected:
  bool Takes(const vcl::TComponent& component) const override;
  const char* Title() const override { return "Items of "; }
  void ListParts() override { Append(*EditedMenu()->Items(), 0); }

 private:
  using TCommand = void (TMenuWindow::*)();

  void Append(vcl::TMenuItem& around, int depth);
  vcl::TMenuItem* Selected() const { return dynamic_cast<vcl::TMenuItem*>(SelectedPart()); }
  void Place(vcl::TMenuItem& around, int index);
  void Move(vcl::TMenuItem& around, int index);
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
  void ShowHandler() { EditHandler(); }

  void ListKey(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
};

/// Gives menus a component editor that shows them in the designer's window of menus.
void RegisterMenuEditor();

}  // namespace ide
