// The form in which the nodes of a tree view are edited.
#include "vcl/designintf/treeitemsdialog.h"

#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/groupbox.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/updown.h"

namespace vcl {
namespace {

class TTreeItemsForm : public TForm {
 public:
  explicit TTreeItemsForm(const TCustomTreeView& tree);
  ~TTreeItemsForm() override { AnnounceEnd(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TTreeView* View = nullptr;
  TGroupBox* NodeGroup = nullptr;
  TEdit* TextEdit = nullptr;
  TUpDown *ImageUpDown = nullptr, *SelectedUpDown = nullptr, *StateUpDown = nullptr;
  TButton *SubItemButton = nullptr, *DeleteButton = nullptr, *UpButton = nullptr,
          *DownButton = nullptr;

 private:
  void NewItemClick(TObject*);
  void SubItemClick(TObject*);
  void DeleteClick(TObject*);
  void UpClick(TObject*);
  void DownClick(TObject*);
  void ViewChange(TObject*, TTreeNode*) { ShowNode(); }
  void ViewEdited(TObject*, TTreeNode*, std::string& text) { TextEdit->SetText(text); }
  void ViewKey(TObject*, std::uint16_t& key, TShiftState shift);
  void ViewDragOver(TObject*, TObject* source, int x, int y, TDragState state, bool& accept);
  void ViewDragDrop(TObject*, TObject* source, int x, int y);
  void ValueChange(TObject*);
  void Begin(TTreeNode* made);
  void ShowNode();

  bool FShowing = false;  // The edits are being given the node's values.
};

const TClass& TTreeItemsForm::Class() {
  using T = TTreeItemsForm;
  static const TClass info =
      Describe<T, TForm>("vcl::TTreeItemsForm", "vcl/designintf/treeitemsdialog.h",
                         {Field<&T::View>("View"),
                          Field<&T::NodeGroup>("NodeGroup"),
                          Field<&T::TextEdit>("TextEdit"),
                          Field<&T::ImageUpDown>("ImageUpDown"),
                          Field<&T::SelectedUpDown>("SelectedUpDown"),
                          Field<&T::StateUpDown>("StateUpDown"),
                          Field<&T::SubItemButton>("SubItemButton"),
                          Field<&T::DeleteButton>("DeleteButton"),
                          Field<&T::UpButton>("UpButton"),
                          Field<&T::DownButton>("DownButton"),
                          Method<&T::NewItemClick>("NewItemClick"),
                          Method<&T::SubItemClick>("SubItemClick"),
                          Method<&T::DeleteClick>("DeleteClick"),
                          Method<&T::UpClick>("UpClick"),
                          Method<&T::DownClick>("DownClick"),
                          Method<&T::ViewChange>("ViewChange"),
                          Method<&T::ViewEdited>("ViewEdited"),
                          Method<&T::ViewKey>("ViewKey"),
                          Method<&T::ViewDragOver>("ViewDragOver"),
                          Method<&T::ViewDragDrop>("ViewDragDrop"),
                          Method<&T::ValueChange>("ValueChange")});
  return info;
}

TTreeItemsForm::TTreeItemsForm(const TCustomTreeView& tree) : TForm(nullptr) {
  LoadForm(ModuleOf(&Class()));
  View->SetImages(tree.Images());
  View->SetStateImages(tree.StateImages());
  View->SetItems(tree.Items());
  View->FullExpand();
  View->SetSelected(View->Items()->GetFirstNode());
  ShowNode();
}

/// A new node: its text is typed at once.
void TTreeItemsForm::Begin(TTreeNode* made) {
  View->SetSelected(made);
  ShowNode();
  TextEdit->SetFocus();
  TextEdit->SelectAll();
}

void TTreeItemsForm::NewItemClick(TObject*) { Begin(View->Items()->Add(View->Selected(), "")); }

void TTreeItemsForm::SubItemClick(TObject*) {
  if (TTreeNode* const parent = View->Selected()) {
    TTreeNode* const made = View->Items()->AddChild(parent, "");
    parent->Expand(false);
    Begin(made);
  }
}

void TTreeItemsForm::DeleteClick(TObject*) {
  if (TTreeNode* const node = View->Selected()) node->Delete();
  ShowNode();
}

void TTreeItemsForm::UpClick(TObject*) {
  TTreeNode* const node = View->Selected();
  TTreeNode* const before = node ? node->GetPrevSibling() : nullptr;
  if (before) node->MoveTo(before, naInsert);
  ShowNode();
}

void TTreeItemsForm::DownClick(TObject*) {
  TTreeNode* const node = View->Selected();
  TTreeNode* const behind = node ? node->GetNextSibling() : nullptr;
  if (behind) behind->MoveTo(node, naInsert);
  ShowNode();
}

void TTreeItemsForm::ViewKey(TObject*, std::uint16_t& key, TShiftState) {
  constexpr std::uint16_t deleteKey = 0x2E;  // VK_DELETE
  if (key == deleteKey && !View->IsEditing()) DeleteClick(nullptr);
}

/// Nodes are dragged into others, and beside the nodes to the top level.
void TTreeItemsForm::ViewDragOver(TObject*, TObject* source, int x, int y, TDragState,
                                  bool& accept) {
  const TTreeNode* const over = View->GetNodeAt(x, y);
  const TTreeNode* const node = View->Selected();
  accept = source == View && node && over != node && (!over || !over->HasAsParent(node));
}

void TTreeItemsForm::ViewDragDrop(TObject*, TObject*, int x, int y) {
  TTreeNode* const over = View->GetNodeAt(x, y);
  TTreeNode* const node = View->Selected();
  node->MoveTo(over, over ? naAddChild : naAdd);
  if (over) over->Expand(false);
  View->SetSelected(node);
  ShowNode();
}

void TTreeItemsForm::ShowNode() {
  const TSetFor showing(FShowing, true, this);
  const TTreeNode* const node = View->Selected();
  TextEdit->SetText(node ? node->Text() : std::string());
  ImageUpDown->SetPosition(node ? node->ImageIndex() : -1);
  SelectedUpDown->SetPosition(node ? node->SelectedIndex() : -1);
  StateUpDown->SetPosition(node ? node->StateIndex() : -1);
  NodeGroup->SetEnabled(node);
  SubItemButton->SetEnabled(node);
  DeleteButton->SetEnabled(node);
  UpButton->SetEnabled(node && node->GetPrevSibling());
  DownButton->SetEnabled(node && node->GetNextSibling());
}

void TTreeItemsForm::ValueChange(TObject*) {
  TTreeNode* const node = View->Selected();
  if (FShowing || !node) return;
  node->SetText(TextEdit->Text());
  node->SetImageIndex(ImageUpDown->Position());
  node->SetSelectedIndex(SelectedUpDown->Position());
  node->SetStateIndex(StateUpDown->Position());
}

/// The nodes in the inspector.
class TTreeNodesProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override { return {paDialog, paReadOnly}; }
  void Edit() override {
    auto& tree = dynamic_cast<TCustomTreeView&>(*Edited().front().Object);
    if (EditTreeItems(Concat("Items of ", tree.Name()), tree)) Designer().Modified();
  }
  bool IsDefault() const override {
    const auto* tree = dynamic_cast<const TCustomTreeView*>(Edited().front().Object);
    return !tree || tree->Items()->Count() == 0;
  }
  bool CanRevert() const override { return false; }
};

/// The command of a tree view in the designer.
class TTreeViewEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int index) const override {
    return index == 0 ? "Edit items..." : TDefaultEditor::GetVerb(index);
  }
  void ExecuteVerb(int index) override {
    if (index != 0) return TDefaultEditor::ExecuteVerb(index);
    auto& tree = dynamic_cast<TCustomTreeView&>(Component());
    if (EditTreeItems(Concat("Items of ", tree.Name()), tree)) Designer().Modified();
  }
};

}  // namespace

bool EditTreeItems(const std::string& title, TCustomTreeView& tree) {
  TTreeItemsForm form(tree);
  form.SetCaption(title);
  if (form.ShowModal() != mrOk) return false;
  tree.SetItems(form.View->Items());
  return true;
}

void RegisterTreeItemsEditor() {
  RegisterPropertyEditor("TTreeNodes", nullptr, "",
                         PropertyEditorClass<TTreeNodesProperty>("TTreeNodesProperty"));
  RegisterComponentEditor(TTreeView::Class(),
                          ComponentEditorClass<TTreeViewEditor>("TTreeViewEditor"));
}

}  // namespace vcl
