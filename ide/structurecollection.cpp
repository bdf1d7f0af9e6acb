#include "ide/structurecollection.h"

#include <algorithm>

#include "host/rtl/convert.h"
#include "host/rtl/strings.h"
#include "host/rtl/text.h"
#include "ide/structurelines.h"

namespace ide {

namespace {

constexpr int ButtonWidth = 70;
constexpr int ButtonHeight = 25;
constexpr int Gap = 6;

enum TButtons { buAdd, buDelete, buUp, buDown };

}  // namespace

TCollectionWindow::TCollectionWindow(vcl::TComponent* owner)
    : TForm(owner), FList(new vcl::TListBox(this)) {
  using T = TCollectionWindow;
  SetBorderStyle(vcl::bsSizeToolWin);
  SetBounds(200, 200, 280, 260);
  FList->SetMultiSelect(true);
  FList->SetParent(this);
  FList->OnClick = vcl::TNotifyEvent(this, &T::ListClicked);
  FList->OnKeyDown = vcl::TKeyEvent(this, &T::ListKey);
  FButtons = {MakeButton("&Add", &T::AddPressed), MakeButton("&Delete", &T::DeletePressed),
              MakeButton("&Up", &T::UpPressed), MakeButton("Do&wn", &T::DownPressed)};
  Enable();
}

TCollectionWindow::~TCollectionWindow() { AnnounceEnd(); }

vcl::TButton* TCollectionWindow::MakeButton(const char* caption,
                                            void (TCollectionWindow::*press)()) {
  auto* button = new vcl::TButton(this);
  button->SetCaption(caption);
  button->SetParent(this);
  button->OnClick = [this, press](vcl::TObject*) { (this->*press)(); };
  return button;
}

void TCollectionWindow::Resize() {
  TForm::Resize();
  const int left = ClientWidth() - ButtonWidth - Gap;
  FList->SetBounds(Gap, Gap, std::max(left - 2 * Gap, 0), std::max(ClientHeight() - 2 * Gap, 0));
  int top = Gap;
  for (vcl::TButton* button : FButtons) {
    button->SetBounds(left, top, ButtonWidth, ButtonHeight);
    top += ButtonHeight + Gap;
  }
}

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
  if (!lines.Equals(*FList->Items())) FList->SetItems(&lines);
}

void TCollectionWindow::SelectionChanged() {
  if (!FDesigner || !FCollection) return;
  const auto selected = FDesigner->Selection();
  const int count = std::min(FList->Items()->Count(), FCollection->Count());
  for (int i = 0; i < count; ++i) {
    const auto* item = static_cast<const vcl::TPersistent*>(FCollection->Items(i));
    const bool isSelected = std::ranges::find(selected, item) != selected.end();
    if (FList->Selected(i) != isSelected) FList->SetSelected(i, isSelected);
  }
  Enable();
}

void TCollectionWindow::Enable() {
  const int selected = FList->SelCount();
  FButtons[buAdd]->SetEnabled(FCollection != nullptr);
  FButtons[buDelete]->SetEnabled(selected > 0);
  for (TButtons each : {buUp, buDown}) FButtons[each]->SetEnabled(selected == 1);
}

// What the user does.

std::vector<vcl::TPersistent*> TCollectionWindow::SelectedItems() const {
  std::vector<vcl::TPersistent*> items;
  const int count = FCollection ? std::min(FList->Items()->Count(), FCollection->Count()) : 0;
  for (int i = 0; i < count; ++i) {
    if (FList->Selected(i)) items.push_back(FCollection->Items(i));
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
