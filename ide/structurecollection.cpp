// TCollectionWindow: listing a collection's items, and adding, deleting and moving them.
#include "ide/structurecollection.h"

#include <algorithm>

#include "ide/structurelines.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace ide {

namespace {

enum TButtons { buAdd, buDelete, buUp, buDown };

}  // namespace

TCollectionWindow::TCollectionWindow(vcl::TComponent* owner) : TListWindow(owner) {
  using T = TCollectionWindow;
  SetBounds(200, 200, 280, 260);
  List().SetMultiSelect(true);
  List().OnClick = vcl::TNotifyEvent(this, &T::ListClicked);
  List().OnKeyDown = vcl::TKeyEvent(this, &T::ListKey);
  FButtons = {
      AddButton("&Add", [this] { AddItem(); }), AddButton("&Delete", [this] { DeleteItems(); }),
      AddButton("&Up", [this] { MoveItem(-1); }), AddButton("Do&wn", [this] { MoveItem(1); })};
  Enable();
}

TCollectionWindow::~TCollectionWindow() { AnnounceEnd(); }

// What is shown.

void TCollectionWindow::ShowItems(vcl::TDesigner& designer, vcl::TCollection& collection) {
  FDesigner = &designer;
  FCollection = &collection;
  FPath.clear();
  Refresh();
  if (FCollection) Show();
}

void TCollectionWindow::SetDesigner(vcl::TDesigner* designer) {
  FDesigner = designer;
  FOwner = nullptr;
  FCollection = nullptr;
  if (designer) Refresh();
}

/// By its place, else, as when the component has another name, by itself.
bool TCollectionWindow::Find() {
  const auto lines = StructureOf(FDesigner->Root());
  auto found = std::ranges::find_if(
      lines, [&](const auto& line) { return line.Collection && line.Path == FPath; });
  if (found == lines.end()) {
    found = std::ranges::find_if(
        lines, [&](const auto& line) { return line.Collection && line.Collection == FCollection; });
  }
  if (found == lines.end()) return false;
  FOwner = found->Object;
  FCollection = found->Collection;
  FPath = found->Path;
  return true;
}

void TCollectionWindow::Refresh() {
  if (!FDesigner || (FPath.empty() && !FCollection)) return;
  if (!Find()) {
    FOwner = nullptr;
    FCollection = nullptr;
    FPath.clear();
    return Hide();
  }
  SetCaption("Items of " + FPath);
  ListItems();
  SelectionChanged();
}

void TCollectionWindow::ListItems() {
  vcl::TStringList lines;
  for (int i = 0; i < FCollection->Count(); ++i) {
    lines.Add(vcl::Concat(vcl::IntToStr(i), " - ", FCollection->Items(i)->DisplayName()));
  }
  if (!lines.Equals(*List().Items())) List().SetItems(&lines);
}

void TCollectionWindow::SelectionChanged() {
  // What is deleted is selected no longer, before the form is told to have changed.
  if (!FDesigner || !FCollection || !Find()) return;
  const auto selected = FDesigner->Selection();
  const int count = std::min(List().Items()->Count(), FCollection->Count());
  for (int i = 0; i < count; ++i) {
    const auto* item = static_cast<const vcl::TPersistent*>(FCollection->Items(i));
    const bool isSelected = std::ranges::find(selected, item) != selected.end();
    if (List().Selected(i) != isSelected) List().SetSelected(i, isSelected);
  }
  Enable();
}

void TCollectionWindow::Enable() {
  const int selected = List().SelCount();
  FButtons[buAdd]->SetEnabled(FCollection != nullptr);
  FButtons[buDelete]->SetEnabled(selected > 0);
  for (TButtons each : {buUp, buDown}) FButtons[each]->SetEnabled(selected == 1);
}

// What the user does.

std::vector<vcl::TPersistent*> TCollectionWindow::SelectedItems() const {
  std::vector<vcl::TPersistent*> items;
  const int count = FCollection ? std::min(List().Items()->Count(), FCollection->Count()) : 0;
  for (int i = 0; i < count; ++i) {
    if (List().Selected(i)) items.push_back(FCollection->Items(i));
  }
  return items;
}

void TCollectionWindow::ListClicked(vcl::TObject* /*sender*/) {
  if (FDesigner && FCollection) FDesigner->SetSelection(SelectedItems());
  Enable();
}

void TCollectionWindow::ListKey(vcl::TObject* /*sender*/, std::uint16_t& key,
                                vcl::TShiftState /*shift*/) {
  if (key == VK_INSERT) AddItem();
  if (key == VK_DELETE) DeleteItems();
}

void TCollectionWindow::AddItem() {
  if (!FCollection) return;
  vcl::TCollectionItem* item = FCollection->Add();
  FDesigner->Modified();
  FDesigner->SetSelection({item});
  Refresh();
}

// Nobody may still show the items when they are freed.
void TCollectionWindow::DeleteItems() {
  const auto items = SelectedItems();
  if (items.empty()) return;
  const int place = static_cast<vcl::TCollectionItem*>(items.front())->Index();
  FDesigner->SetSelection({});
  for (vcl::TPersistent* each : items) delete each;
  FDesigner->Modified();
  Refresh();
  if (!FCollection || FCollection->Count() == 0) return;
  FDesigner->SetSelection({FCollection->Items(std::min(place, FCollection->Count() - 1))});
  SelectionChanged();
}

void TCollectionWindow::MoveItem(int by) {
  const auto items = SelectedItems();
  if (items.size() != 1) return;
  auto* item = static_cast<vcl::TCollectionItem*>(items.front());
  const int index = item->Index() + by;
  if (index < 0 || index >= FCollection->Count()) return;
  item->SetIndex(index);
  FDesigner->Modified();
  Refresh();
}

}  // namespace ide
