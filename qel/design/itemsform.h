// The form in which a collection is put together: a list of its items, and the properties of the
// selected one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/designintf/propertyeditor.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/collection.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/listbox.h"
#include "vcl/stdctrls/panel.h"

namespace qel {

class TQELItemsForm : public vcl::TForm {
 public:
  explicit TQELItemsForm(vcl::TComponent* owner);
  ~TQELItemsForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Lets the user change the collection, whose items are listed by the property of that name, in
  /// place; true when he agrees with what he has made of it.
  bool Edit(vcl::TDesigner& designer, vcl::TCollection& items, const std::string& title);

  /// Makes a new item; null when the user gives up.
  std::function<vcl::TCollectionItem*()> OnNewItem;

 private:
  struct TRow;
  void AddClick(vcl::TObject* sender);
  void DeleteClick(vcl::TObject* sender);
  void ListClick(vcl::TObject* sender);
  void OkClick(vcl::TObject* sender);
  void ListItems(int selected);
  void ShowRows();
  void Apply(TRow& row);
  std::string TitleOf(const vcl::TCollectionItem& item) const;

  vcl::TListBox* ItemList = nullptr;
  vcl::TButton* DeleteButton = nullptr;
  vcl::TPanel* RowPanel = nullptr;

  vcl::TDesigner* FDesigner = nullptr;
  vcl::TCollection* FItems = nullptr;
  std::string FTitle;
  std::vector<std::unique_ptr<TRow>> FRows;
};

/// Shows the property's collection in the form and, when the user agrees, changes it to what he has
/// made. `newItem` adds an item to the collection that it is given, or returns null.
template <class T>
void EditItems(vcl::TPropertyEditor& editor, T& items, const std::string& title,
               vcl::TCollectionItem* (*newItem)(T&)) {
  T copy(nullptr);
  copy.Assign(&items);
  TQELItemsForm form(nullptr);
  form.SetCaption(editor.GetName());
  form.OnNewItem = [&] { return newItem(copy); };
  if (!form.Edit(editor.Designer(), copy, title)) return;
  items.Assign(&copy);
  editor.Designer().Modified();
}

}  // namespace qel
