// TPartsWindow: finding its component, listing the parts, and the selection.
#include "ide/partswindow.h"

#include <algorithm>

#include "vcl/designintf/componenteditor.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

TPartsWindow::TPartsWindow(TComponent* owner) : TListWindow(owner) {
  List().OnClick = TNotifyEvent([this](TObject*) {
    if (TComponent* part = SelectedPart()) FDesigner->SetSelection({part});
  });
  List().OnDblClick = TNotifyEvent([this](TObject*) { EditHandler(); });
}

TPartsWindow::~TPartsWindow() { AnnounceEnd(); }

void TPartsWindow::ShowParts(TDesigner& designer, TComponent& component) {
  FDesigner = &designer;
  FEdited = &component;
  Refresh();
  Show();
}

void TPartsWindow::SetDesigner(TDesigner* designer) {
  FDesigner = designer;
  FEdited = nullptr;
  FParts.clear();
  if (designer) Refresh();
}

/// By its name, else, as when it has been given another one, by itself.
bool TPartsWindow::Find() {
  TComponent& root = FDesigner->Root();
  TComponent* named = FEdited ? nullptr : root.FindComponent(FName);
  for (int i = 0; i < root.ComponentCount() && FEdited; ++i) {
    if (root.Components(i) == FEdited) named = FEdited;
  }
  FEdited = named && Takes(*named) ? named : nullptr;
  FName = FEdited ? FEdited->Name() : std::string();
  return FEdited != nullptr;
}

void TPartsWindow::Refresh() {
  if (!FDesigner || (!FEdited && FName.empty())) return;
  FParts.clear();
  if (!Find()) return Hide();
  SetCaption(Concat(Title(), FName));
  FLines.Clear();
  ListParts();
  if (!FLines.Equals(*List().Items())) List().SetItems(&FLines);
  SelectionChanged();
}

void TPartsWindow::AddPart(const std::string& line, TComponent* part) {
  FLines.Add(line);
  FParts.push_back(part);
}

/// A line without a part stays as it is while the component itself is selected.
void TPartsWindow::SelectionChanged() {
  if (!FDesigner || !FEdited) return;
  const auto selection = FDesigner->Selection();
  const auto found = std::ranges::find_first_of(
      FParts, selection, [](TComponent* part, TPersistent* selected) { return part == selected; });
  const int line = found == FParts.end() ? -1 : static_cast<int>(found - FParts.begin());
  if (line < 0 && !SelectedPart() && selection == std::vector<TPersistent*>{FEdited}) return;
  if (List().ItemIndex() != line) List().SetItemIndex(line);
}

TComponent* TPartsWindow::PartAt(int line) const {
  const bool known = FEdited && line >= 0 && line < static_cast<int>(FParts.size());
  return known ? FParts[static_cast<std::size_t>(line)] : nullptr;
}

void TPartsWindow::Changed(TComponent* selected) {
  FDesigner->Modified();
  Refresh();
  FDesigner->SetSelection({selected ? selected : FEdited});
}

void TPartsWindow::EditHandler() {
  if (TComponent* part = SelectedPart()) MakeComponentEditor(*FDesigner, *part)->Edit();
}

}  // namespace ide
