// TStructureTree: the components of a form as a tree.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "ide/designerpart.h"
#include "ide/structurelines.h"
#include "vcl/stdctrls/treeview.h"

namespace ide {

/// Shows what stands in what, with the items of collections. Selecting a node selects its object in
/// the designer, and the other way round; a double click on a collection shows its items there. A
/// control that is dragged to a container goes into it.
///
/// Who selects or changes objects of the form tells the tree.
class TStructureTree : public vcl::TCustomTreeView, public TDesignerPart {
 public:
  explicit TStructureTree(vcl::TComponent* owner);
  ~TStructureTree() override;

  /// Shows another form's designer; null for none.
  void SetDesigner(vcl::TDesigner* designer) override;
  void SelectionChanged() override;
  /// The form has changed: shows what has.
  void Refresh() override;
  /// The node of that line (TStructureLine::Path); null when there is none.
  vcl::TTreeNode* NodeOf(const std::string& path) const;

  void DragOver(vcl::TObject* source, int x, int y, vcl::TDragState state, bool& accept) override;
  void DragDrop(vcl::TObject* source, int x, int y) override;

 protected:
  void Change(vcl::TTreeNode* node) override;
  void Expand(vcl::TTreeNode* node) override;
  void Collapse(vcl::TTreeNode* node) override;
  void DblClick() override;
  void DoEndDrag(vcl::TObject* target, int x, int y) override;

 private:
  void Rebuild();
  void ShowSelection();
  const TStructureLine* LineOf(const vcl::TTreeNode* node) const;
  bool StillThere(const vcl::TPersistent* object) const;
  /// The control that is dragged, and the container below the mouse that may take it.
  vcl::TControl* Dragged() const;
  vcl::TWinControl* ContainerAt(int x, int y) const;

  vcl::TDesigner* FDesigner = nullptr;
  std::vector<TStructureLine> FLines;
  std::vector<vcl::TTreeNode*> FNodes;  // One for each line.
  /// Nodes that don't stand as they do at first: components unfolded, collections folded.
  std::set<std::string> FTurned;
  bool FShowing = false;  // The tree itself is selecting and folding.
};

}  // namespace ide
