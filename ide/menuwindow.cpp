// TMenuWindow: listing a menu's items, and making, moving and deleting them.
#include "ide/menuwindow.h"

#include <algorithm>
#include <memory>

#include "ide/formdesigner.h"
#include "vcl/designintf/componenteditor.h"
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

TMenuWindow::TMenuWindow(TComponent* owner) : TPartsWindow(owner) {
  using T = TMenuWindow;
  constexpr std::pair<const char*, TCommand> commands[] = {
      {"&Add", &T::Add},           {"&Insert", &T::Insert}, {"Add &submenu", &T::AddInside},
      {"&Delete", &T::DeleteItem}, {"&Up", &T::MoveUp},     {"Do&wn", &T::MoveDown},
      {"I&n", &T::MoveIn},         {"&Out", &T::MoveOut},   {"&Handler", &T::ShowHandler}};
  SetBounds(240, 220, 320, 330);
  List().OnKeyDown = TKeyEvent(this, &T::ListKey);
  for (const auto& [caption, command] : commands) {
    AddButton(caption, [this, each = command] { Try(each); });
  }
}

TMenuWindow::~TMenuWindow() { AnnounceEnd(); }

bool TMenuWindow::Takes(const TComponent& component) const {
  return dynamic_cast<const TMenu*>(&component) != nullptr;
}

void TMenuWindow::Append(TMenuItem& around, int depth) {
  for (int i = 0; i < around.Count(); ++i) {
    TMenuItem& item = *around.Items(i);
    AddPart(LineOf(item, depth), &item);
    Append(item, depth + 1);
  }
}

// What the user does.

void TMenuWindow::Try(TCommand command) {
  const bool needsItem = command != &TMenuWindow::Add;
  if (!Edited() || (needsItem && !Selected())) return;
  (this->*command)();
}

void TMenuWindow::Place(TMenuItem& around, int index) {
  auto item = std::make_unique<TMenuItem>(&FormDesigner().Root());
  item->SetName(FormDesigner().UniqueName(item->ClassName()));
  item->SetCaption(item->Name());
  around.Insert(index, item.get());
  Changed(item.release());
}

void TMenuWindow::Add() {
  TMenuItem* selected = Selected();
  TMenuItem& around = selected ? *selected->Parent() : *EditedMenu()->Items();
  Place(around, selected ? selected->MenuIndex() + 1 : around.Count());
}

void TMenuWindow::Insert() { Place(*Selected()->Parent(), Selected()->MenuIndex()); }

void TMenuWindow::AddInside() { Place(*Selected(), Selected()->Count()); }

/// The one that takes its place is selected then, else the one before it, else the one around it.
void TMenuWindow::DeleteItem() {
  TMenuItem* item = Selected();
  TMenuItem* around = item->Parent();
  const int index = item->MenuIndex();
  FormDesigner().SetSelection({Edited()});
  delete item;
  TMenuItem* next = around == EditedMenu()->Items() ? nullptr : around;
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
  if (&around != EditedMenu()->Items()) Move(*around.Parent(), around.MenuIndex() + 1);
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
