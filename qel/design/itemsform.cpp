// The form of a collection: its items, and the rows in which the selected one's properties are
// edited.
#include "qel/design/itemsform.h"

#include <algorithm>

#include "vcl/forms/module.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/label.h"

namespace qel {

using namespace vcl;

/// A property of the selected item: its name, its value, and a button where there is a dialog.
struct TQELItemsForm::TRow {
  TRow(std::unique_ptr<TPropertyEditor> editor, TWinControl& parent, int top);
  TRow(const TRow&) = delete;
  TRow& operator=(const TRow&) = delete;
  /// An edit that goes with the focus must not apply what is gone.
  ~TRow() { Edit.OnExit.Clear(); }
  void ShowValue() { Edit.SetText(Editor->GetValue()); }

  std::unique_ptr<TPropertyEditor> Editor;
  TLabel Label{nullptr};
  TEdit Edit{nullptr};
  TButton Button{nullptr};
};

TQELItemsForm::TRow::TRow(std::unique_ptr<TPropertyEditor> editor, TWinControl& parent, int top)
    : Editor(std::move(editor)) {
  constexpr int nameWidth = 100, buttonWidth = 24, height = 21;
  const bool hasDialog = Editor->Offers(paDialog);
  const int width = parent.Width() - nameWidth - (hasDialog ? buttonWidth + 4 : 0);
  Label.SetCaption(Editor->GetName());
  Label.SetBounds(0, top + 4, nameWidth, height);
  Label.SetParent(&parent);
  Edit.SetBounds(nameWidth, top, width, height);
  Edit.SetReadOnly(Editor->ReadOnly());
  Edit.SetParent(&parent);
  ShowValue();
  if (!hasDialog) return;
  Button.SetCaption("...");
  Button.SetBounds(parent.Width() - buttonWidth, top, buttonWidth, height);
  Button.SetParent(&parent);
}

const TClass& TQELItemsForm::Class() {
  using T = TQELItemsForm;
  static const TClass info = Describe<T, TForm>("qel::TQELItemsForm", "qel/design/itemsform.h",
                                                {
                                                    Field<&T::ItemList>("ItemList"),
                                                    Field<&T::DeleteButton>("DeleteButton"),
                                                    Field<&T::RowPanel>("RowPanel"),
                                                    Method<&T::AddClick>("AddClick"),
                                                    Method<&T::DeleteClick>("DeleteClick"),
                                                    Method<&T::ListClick>("ListClick"),
                                                    Method<&T::OkClick>("OkClick"),
                                                });
  return info;
}

TQELItemsForm::TQELItemsForm(TComponent* owner) : TForm(owner) { LoadForm(ModuleOf(&Class())); }

TQELItemsForm::~TQELItemsForm() = default;

bool TQELItemsForm::Edit(TDesigner& designer, TCollection& items, const std::string& title) {
  FDesigner = &designer;
  FItems = &items;
  FTitle = title;
  ListItems(0);
  const bool agreed = ShowModal() == mrOk;
  FRows.clear();
  return agreed;
}

// The list.

std::string TQELItemsForm::TitleOf(const TCollectionItem& item) const {
  const auto title = std::get<std::string>(item.ClassType().FindPublished(FTitle)->Get(item));
  return Concat(IntToStr(item.Index() + 1), "  ", title);
}

void TQELItemsForm::ListItems(int selected) {
  ItemList->Items()->Clear();
  for (int i = 0; i < FItems->Count(); ++i) ItemList->Items()->Add(TitleOf(*FItems->Items(i)));
  ItemList->SetItemIndex(std::min(selected, FItems->Count() - 1));
  ShowRows();
}

void TQELItemsForm::ListClick(TObject*) { ShowRows(); }

void TQELItemsForm::AddClick(TObject*) {
  if (const TCollectionItem* item = OnNewItem()) ListItems(item->Index());
}

void TQELItemsForm::DeleteClick(TObject*) {
  const int index = ItemList->ItemIndex();
  if (index < 0) return;
  FRows.clear();
  FItems->Delete(index);
  ListItems(index);
}

// The properties of the selected item.

void TQELItemsForm::ShowRows() {
  constexpr int rowHeight = 27;
  FRows.clear();
  const int index = ItemList->ItemIndex();
  DeleteButton->SetEnabled(index >= 0);
  if (index < 0) return;
  const auto isValue = [](const TPropInfo& property) {
    return property.Kind() != TTypeKind::Event;
  };
  for (auto& editor : PropertiesOf(*FDesigner, {FItems->Items(index)}, isValue)) {
    const int top = static_cast<int>(FRows.size()) * rowHeight;
    FRows.push_back(std::make_unique<TRow>(std::move(editor), *RowPanel, top));
    TRow* const row = FRows.back().get();
    row->Edit.OnExit = [this, row](TObject*) { Apply(*row); };
    // As in an inspector: the dialog, or the next one of the values to choose from.
    row->Edit.OnDblClick = row->Button.OnClick = [this, row](TObject*) {
      Apply(*row);
      row->Editor->Edit();
      row->ShowValue();
    };
  }
}

void TQELItemsForm::Apply(TRow& row) {
  if (row.Edit.ReadOnly() || row.Edit.Text() == row.Editor->GetValue()) return;
  row.Editor->SetValue(row.Edit.Text());
  row.ShowValue();
  const int index = ItemList->ItemIndex();
  ItemList->Items()->SetStrings(index, TitleOf(*FItems->Items(index)));
  ItemList->SetItemIndex(index);
}

// What is still being typed counts, too; what is refused keeps the form open.
void TQELItemsForm::OkClick(TObject*) {
  for (const auto& row : FRows) Apply(*row);
  SetModalResult(mrOk);
}

}  // namespace qel
