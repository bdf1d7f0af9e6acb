// TCollectionWindow: the items of a collection, to be added, deleted, ordered and selected.
#pragma once

#include <string>
#include <vector>

#include "ide/designerpart.h"
#include "ide/listwindow.h"

namespace ide {

/// Selected items are selected in the designer too, so that the inspector shows their properties.
/// When the form is made anew (undo), the window finds its collection again by its place; when it
/// is gone, the window closes.
///
/// Who selects or changes objects of the form tells the window.
class TCollectionWindow : public TListWindow, public TDesignerPart {
 public:
  explicit TCollectionWindow(vcl::TComponent* owner);
  ~TCollectionWindow() override;

  /// Shows the items of a collection of the designer's form; nothing of a collection that is no
  /// property on it.
  void ShowItems(vcl::TDesigner& designer, vcl::TCollection& collection);
  /// Another form's designer is in front; null for none, and before a form is made anew.
  void SetDesigner(vcl::TDesigner* designer) override;
  void SelectionChanged() override;
  /// The form has changed: shows what has.
  void Refresh() override;

  /// The collection that is shown; null for none.
  vcl::TCollection* Collection() const { return FCollection; }
  void AddItem();
  void DeleteItems();
  /// Moves the selected item up (-1) or down (1).
  void MoveItem(int by);

 private:
  bool Find();
  void ListItems();
  void Enable();
  std::vector<vcl::TPersistent*> SelectedItems() const;
  void ListClicked(vcl::TObject* sender);
  void ListKey(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);

  vcl::TDesigner* FDesigner = nullptr;
  vcl::TPersistent* FOwner = nullptr;  // The object whose property the collection is.
  vcl::TCollection* FCollection = nullptr;
  std::string FPath;
  std::vector<vcl::TButton*> FButtons;
};

}  // namespace ide
