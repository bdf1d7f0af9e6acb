// TMenuWindow: listing a menu's items, and making, moving and deleting them.
#include "ide/menuwindow.h"

#include <algorithm>
#include <memory>

#include "ide/formdesigner.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// The command of a menu in the designer.
class TMenuEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int) const override { return "Menu designer..."; }
  void ExecuteVerb(int) override {
    auto* designer = dynamic_cast<TFormDesigner*>(&Designer());
    if (designer && designer->Events.ShowMenu)
      designer->Events.ShowMenu(dynamic_cast<TMenu&>(Component()));
  }
};

std::string LineOf(const TMenuItem& item, int depth) {
  const std::string caption = item.Caption().empty() ? item.Name() : item.Caption();
  const std::string key = ShortCutToText(item.ShortCut());
  return Concat(std::string(static_cast<std::size_t>(4 * depth), ' '),
                item.IsLine() ? "--------" : caption, key.empty() ? "" : "   ", key);
}

}  // namespace

void RegisterMenuEditor() {
  RegisterComponentEditor(TMenu::Class(), ComponentEditorClass<TMenuEditor>("TMenuEditor"));
}

TMenuWindow::TMenuWindow(TComponent* owner) : TListWindow(owner) {
  using T = TMenuWindow;
  constexpr std::pair<const char*, TCommand> commands[] = {
      {"&Add", &T::Add},           {"&Insert", &T::Insert}, {"Add &submenu", &T::AddInside},
      {"&Delete", &T::DeleteItem}, {"&Up", &T::MoveUp},     {"Do&wn", &T::MoveDown},
      {"I&n", &T::MoveIn},         {"&Out", &T::MoveOut},   {"&Handler", &T::EditHandler}};
  SetBounds(240, 220, 320, 330);
  List().OnClick = TNotifyEvent(this, &T::ListClicked);
  List().OnDblClick = TNotifyEvent([this](TObject*) { Try(&T::EditHandler); });
  List().OnKeyDown = TKeyEvent(this, &T::ListKey);
  for (const auto& [caption, command] : commands) {
    AddButton(caption, [this, each = command] { Try(each); });
  }
}

TMenuWindow::~TMenuWindow() { AnnounceEnd(); }

// What is shown.

void TMenuWindow::ShowMenu(TDesigner& designer, TMenu& menu) {
  FDesigner = &designer;
  FEdited = &menu;
  Refresh();
  Show();
}

void TMenuWindow::SetDesigner(TDesigner* designer) {
  FDesigner = designer;
  FEdited = nullptr;
  FItems.clear();
  if (designer) Refresh();
}

/// By its name, else, as when it has been given another one, by itself.
bool TMenuWindow::Find() {
  TComponent& root = FDesigner->Root();
  auto* named = FEdited ? nullptr : dynamic_cast<TMenu*>(root.FindComponent(FName));
  for (int i = 0; i < root.ComponentCount() && FEdited; ++i) {
    if (root.Components(i) == FEdited) named = FEdited;
  }
  FEdited = named;
  FName = named ? named->Name() : std::string();
  return named != nullptr;
}

void TMenuWindow::Refresh() {
  if (!FDesigner || (!FEdited && FName.empty())) return;
  if (!Find()) {
    FItems.clear();
    return Hide();
  }
  SetCaption(Concat("Items of ", FName));
  ListItems();
  SelectionChanged();
}

void TMenuWindow::ListItems() {
  TStringList lines;
  FItems.clear();
  Append(*FEdited->Items(), 0, lines);
  if (!lines.Equals(*List().Items())) List().SetItems(&lines);
}

void TMenuWindow::Append(TMenuItem& around, int depth, TStrings& lines) {
  for (int i = 0; i < around.Count(); ++i) {
    TMenuItem& item = *around.Items(i);
    FItems.push_back(&item);
    lines.Add(LineOf(item, depth));
    Append(item, depth + 1, lines);
  }
}

void TMenuWindow::SelectionChanged() {
  if (!FDesigner || !FEdited) return;
  const auto selection = FDesigner->Selection();
  const auto found = std::ranges::find_first_of(
      FItems, selection, [](TMenuItem* item, TPersistent* selected) { return item == selected; });
  const int line = found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
  if (List().ItemIndex() != line) List().SetItemIndex(line);
}

// What the user does.

TMenuItem* TMenuWindow::Selected() const {
  const int line = List().ItemIndex();
  const bool known = FEdited && line >= 0 && line < static_cast<int>(FItems.size());
  return known ? FItems[static_cast<std::size_t>(line)] : nullptr;
}

void TMenuWindow::Try(TCommand command) {
  const bool needsItem = command != &TMenuWindow::Add;
  if (!FDesigner || !FEdited || (needsItem && !Selected())) return;
  (this->*command)();
}

void TMenuWindow::Changed(TMenuItem* selected) {
  FDesigner->Modified();
  Refresh();
  FDesigner->SetSelection({selected ? static_cast<TPersistent*>(selected) : FEdited});
}

void TMenuWindow::Place(TMenuItem& around, int index) {
  auto item = std::make_unique<TMenuItem>(&FDesigner->Root());
  item->SetName(FDesigner->UniqueName(item->ClassName()));
  item->SetCaption(item->Name());
  around.Insert(index, item.get());
  Changed(item.release());
}

void TMenuWindow::Add() {
  TMenuItem* selected = Selected();
  TMenuItem& around = selected ? *selected->Parent() : *FEdited->Items();
  Place(around, selected ? selected->MenuIndex() + 1 : around.Count());
}

void TMenuWindow::Insert() { Place(*Selected()->Parent(), Selected()->MenuIndex()); }

void TMenuWindow::AddInside() { Place(*Selected(), Selected()->Count()); }

/// The one that takes its place is selected then, else the one before it, else the one around it.
void TMenuWindow::DeleteItem() {
  TMenuItem* item = Selected();
  TMenuItem* around = item->Parent();
  const int index = item->MenuIndex();
  FDesigner->SetSelection({FEdited});
  delete item;
  TMenuItem* next = around == FEdited->Items() ? nullptr : around;
  if (around->Count() > 0) next = around->Items(std::min(index, around->Count() - 1));
  Changed(next);
}

void TMenuWindow::Move(TMenuItem& around, int index) {
  TMenuItem* item = Selected();
  item->Parent()->Remove(item);
  around.Insert(index, item);
  Changed(item);
}

void TMenuWindow::MoveUp() {
  const int index = Selected()->MenuIndex();
  if (index > 0) Move(*Selected()->Parent(), index - 1);
}

void TMenuWindow::MoveDown() {
  const int index = Selected()->MenuIndex();
  TMenuItem& around = *Selected()->Parent();
  if (index + 1 < around.Count()) Move(around, index + 1);
}

void TMenuWindow::MoveIn() {
  const int index = Selected()->MenuIndex();
  if (index == 0) return;
  TMenuItem& before = *Selected()->Parent()->Items(index - 1);
  Move(before, before.Count());
}

void TMenuWindow::MoveOut() {
  TMenuItem& around = *Selected()->Parent();
  if (&around != FEdited->Items()) Move(*around.Parent(), around.MenuIndex() + 1);
}

void TMenuWindow::EditHandler() { MakeComponentEditor(*FDesigner, *Selected())->Edit(); }

void TMenuWindow::ListClicked(TObject*) {
  if (TMenuItem* item = Selected()) FDesigner->SetSelection({item});
}

void TMenuWindow::ListKey(TObject*, std::uint16_t& key, TShiftState shift) {
  using T = TMenuWindow;
  static constexpr struct {
    std::uint16_t Key;
    bool Ctrl;
    TCommand Command;
  } commands[] = {{VK_INSERT, false, &T::Insert}, {VK_DELETE, false, &T::DeleteItem},
                  {VK_UP, true, &T::MoveUp},      {VK_DOWN, true, &T::MoveDown},
                  {VK_RIGHT, true, &T::MoveIn},   {VK_LEFT, true, &T::MoveOut}};
  for (const auto& each : commands) {
    if (each.Key != key || each.Ctrl != shift.Has(ssCtrl)) continue;
    key = 0;
    return Try(each.Command);
  }
}

}  // namespace ide
