// TStructureTree: showing the form's structure, following the selection, and dragging controls into
// others.
#include "ide/structure.h"

#include <algorithm>

#include "vcl/forms/drag.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/scope.h"

namespace ide {

using vcl::TTreeNode;

namespace {

bool SameShape(const TStructureLine& a, const TStructureLine& b) {
  return a.Depth == b.Depth && a.Object == b.Object && a.Collection == b.Collection;
}

}  // namespace

TStructureTree::TStructureTree(vcl::TComponent* owner) : TCustomTreeView(owner) {
  SetReadOnly(true);
  SetHideSelection(false);
  SetDragMode(vcl::dmAutomatic);
}

TStructureTree::~TStructureTree() { AnnounceEnd(); }

// What is shown.

void TStructureTree::SetDesigner(vcl::TDesigner* designer) {
  FDesigner = designer;
  Refresh();
}

void TStructureTree::Refresh() {
  auto lines = FDesigner ? StructureOf(FDesigner->Root()) : std::vector<TStructureLine>();
  const bool same = std::ranges::equal(lines, FLines, SameShape);
  FLines = std::move(lines);
  if (!same) Rebuild();
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    if (FNodes[i]->Text() != FLines[i].Text) FNodes[i]->SetText(FLines[i].Text);
  }
  ShowSelection();
}

void TStructureTree::Rebuild() {
  const vcl::TSetFor showing(FShowing, true, this);
  const vcl::TUpdating updating(*Items(), this);
  Items()->Clear();
  FNodes.clear();
  std::vector<TTreeNode*> parents;  // By depth.
  for (const TStructureLine& line : FLines) {
    parents.resize(static_cast<std::size_t>(line.Depth) + 1);
    TTreeNode* parent =
        line.Depth == 0 ? nullptr : parents[static_cast<std::size_t>(line.Depth) - 1];
    FNodes.push_back(parents.back() = Items()->AddChild(parent, line.Text));
  }
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    const bool turned = FTurned.contains(FLines[i].Path);
    if (FNodes[i]->Count() > 0) FNodes[i]->SetExpanded(turned == (FLines[i].Collection != nullptr));
  }
}

void TStructureTree::SelectionChanged() { ShowSelection(); }

void TStructureTree::ShowSelection() {
  const vcl::TSetFor showing(FShowing, true, this);
  const auto selected = FDesigner ? FDesigner->Selection() : std::vector<vcl::TPersistent*>();
  TTreeNode* shown = nullptr;
  for (std::size_t i = 0; !selected.empty() && !shown && i < FLines.size(); ++i) {
    if (FLines[i].Object == selected.front() && !FLines[i].Collection) shown = FNodes[i];
  }
  if (shown == Selected()) return;
  SetSelected(shown);
  if (shown) shown->MakeVisible();
}

TTreeNode* TStructureTree::NodeOf(const std::string& path) const {
  const auto found = std::ranges::find(FLines, path, &TStructureLine::Path);
  return found == FLines.end() ? nullptr : FNodes[static_cast<std::size_t>(found - FLines.begin())];
}

const TStructureLine* TStructureTree::LineOf(const TTreeNode* node) const {
  const auto found = std::ranges::find(FNodes, node);
  return !node || found == FNodes.end() ? nullptr
                                        : &FLines[static_cast<std::size_t>(found - FNodes.begin())];
}

/// The lines may be older than what the form has lost since.
bool TStructureTree::StillThere(const vcl::TPersistent* object) const {
  const auto lines = StructureOf(FDesigner->Root());
  return std::ranges::any_of(lines, [&](const auto& line) { return line.Object == object; });
}

// What the user does.

void TStructureTree::Change(TTreeNode* node) {
  TCustomTreeView::Change(node);
  const TStructureLine* line = LineOf(node);
  if (FShowing || !FDesigner || !line || line->Collection || !StillThere(line->Object)) return;
  FDesigner->SetSelection({line->Object});
}

void TStructureTree::Expand(TTreeNode* node) {
  TCustomTreeView::Expand(node);
  const TStructureLine* line = LineOf(node);
  if (FShowing || !line) return;
  line->Collection ? void(FTurned.insert(line->Path)) : void(FTurned.erase(line->Path));
}

void TStructureTree::Collapse(TTreeNode* node) {
  TCustomTreeView::Collapse(node);
  const TStructureLine* line = LineOf(node);
  if (FShowing || !line) return;
  line->Collection ? void(FTurned.erase(line->Path)) : void(FTurned.insert(line->Path));
}

void TStructureTree::DblClick() {
  TCustomTreeView::DblClick();
  const TStructureLine* line = LineOf(Selected());
  if (!line || !line->Collection || !StillThere(line->Object)) return;
  FDesigner->ShowCollection(*line->Object, *line->Collection, line->Property);
}

// Dragging.

vcl::TControl* TStructureTree::Dragged() const {
  const TStructureLine* line = LineOf(Selected());
  if (!FDesigner || !line || line->Collection || !StillThere(line->Object)) return nullptr;
  auto* control = dynamic_cast<vcl::TControl*>(line->Object);
  return control == &FDesigner->Root() ? nullptr : control;
}

vcl::TWinControl* TStructureTree::ContainerAt(int x, int y) const {
  const TStructureLine* line = LineOf(GetNodeAt(x, y));
  const vcl::TControl* dragged = Dragged();
  if (!line || !dragged || line->Collection || !StillThere(line->Object)) return nullptr;
  auto* container = dynamic_cast<vcl::TWinControl*>(line->Object);
  if (!container || container == dragged->Parent() || container == dragged) return nullptr;
  const auto* inside = dynamic_cast<const vcl::TWinControl*>(dragged);
  if (inside && inside->ContainsControl(container)) return nullptr;
  const bool form = container == &FDesigner->Root();
  return form || container->ControlStyle().Has(vcl::csAcceptsControls) ? container : nullptr;
}

void TStructureTree::DragOver(vcl::TObject* source, int x, int y, vcl::TDragState state,
                              bool& accept) {
  accept = source == this && ContainerAt(x, y) != nullptr;
  SetDropTarget(accept && state != vcl::dsDragLeave ? GetNodeAt(x, y) : nullptr);
}

void TStructureTree::DragDrop(vcl::TObject* source, int x, int y) {
  SetDropTarget(nullptr);
  vcl::TWinControl* container = source == this ? ContainerAt(x, y) : nullptr;
  if (!container) return;
  vcl::TControl* control = Dragged();
  control->SetParent(container);
  // In a smaller container it may not stand out of sight.
  const int left =
      std::min(control->Left(), std::max(container->ClientWidth() - control->Width(), 0));
  const int top =
      std::min(control->Top(), std::max(container->ClientHeight() - control->Height(), 0));
  control->SetBounds(left, top, control->Width(), control->Height());
  FDesigner->Modified();
}

void TStructureTree::DoEndDrag(vcl::TObject* target, int x, int y) {
  SetDropTarget(nullptr);
  TCustomTreeView::DoEndDrag(target, x, y);
}

}  // namespace ide
