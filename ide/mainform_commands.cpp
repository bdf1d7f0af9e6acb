// TMainForm: the menu's commands.
#include <algorithm>
#include <string_view>

#include "ide/formunit.h"
#include "ide/mainform.h"
#include "ide/orderdialog.h"
#include "ide/packagesdialog.h"
#include "ide/preview.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

using A = TArrangement;
using S = TSizing;

/// What a menu item does with the form, by the item's name.
struct TCommand {
  std::string_view Item;
  void (*Run)(TFormDesigner& designer);
};

constexpr TCommand Commands[] = {
    {"UndoItem", [](auto& d) { d.Undo(); }},
    {"RedoItem", [](auto& d) { d.Redo(); }},
    {"CutItem", [](auto& d) { d.Cut(); }},
    {"CopyItem", [](auto& d) { d.Copy(); }},
    {"PasteItem", [](auto& d) { d.Paste(); }},
    {"DeleteItem", [](auto& d) { d.DeleteSelected(); }},
    {"SelectAllItem", [](auto& d) { d.SelectAll(); }},
    {"FrontItem", [](auto& d) { d.BringToFront(); }},
    {"BackItem", [](auto& d) { d.SendToBack(); }},
    {"AlignLeftItem", [](auto& d) { d.Arrange(A::Low, A::None); }},
    {"AlignCenterItem", [](auto& d) { d.Arrange(A::Middle, A::None); }},
    {"AlignRightItem", [](auto& d) { d.Arrange(A::High, A::None); }},
    {"SpaceAcrossItem", [](auto& d) { d.Arrange(A::Spread, A::None); }},
    {"CenterAcrossItem", [](auto& d) { d.Arrange(A::Centre, A::None); }},
    {"AlignTopItem", [](auto& d) { d.Arrange(A::None, A::Low); }},
    {"AlignMiddleItem", [](auto& d) { d.Arrange(A::None, A::Middle); }},
    {"AlignBottomItem", [](auto& d) { d.Arrange(A::None, A::High); }},
    {"SpaceDownItem", [](auto& d) { d.Arrange(A::None, A::Spread); }},
    {"CenterDownItem", [](auto& d) { d.Arrange(A::None, A::Centre); }},
    {"NarrowSizeItem", [](auto& d) { d.Resize(S::Smallest, S::None); }},
    {"WideSizeItem", [](auto& d) { d.Resize(S::Largest, S::None); }},
    {"FirstWidthItem", [](auto& d) { d.Resize(S::First, S::None); }},
    {"LowSizeItem", [](auto& d) { d.Resize(S::None, S::Smallest); }},
    {"HighSizeItem", [](auto& d) { d.Resize(S::None, S::Largest); }},
    {"FirstHeightItem", [](auto& d) { d.Resize(S::None, S::First); }},
    {"LockItem", [](auto& d) { d.Surface().SetLocked(!d.Surface().Locked()); }},
    {"GridItem", [](auto& d) { d.Surface().SetShowGrid(!d.Surface().ShowGrid()); }},
    {"SnapItem", [](auto& d) { d.Surface().SetSnapToGrid(!d.Surface().SnapToGrid()); }},
    {"EditorsItem",
     [](auto& d) {
       const auto components = d.Selected().Components();
       if (!components.empty()) d.EditComponent(*components.front());
     }},
};

/// What an edit that has the focus does with a command instead of the form.
struct TTextCommand {
  std::string_view Item;
  UINT Message;
  WPARAM WParam;
  LPARAM LParam;
};
constexpr TTextCommand TextCommands[] = {
    {"UndoItem", WM_UNDO, 0, 0},    {"CutItem", WM_CUT, 0, 0},
    {"CopyItem", WM_COPY, 0, 0},    {"PasteItem", WM_PASTE, 0, 0},
    {"DeleteItem", WM_CLEAR, 0, 0}, {"SelectAllItem", EM_SETSEL, 0, -1},
};

bool GoesToText(const std::string& item) {
  const HWND focus = ::GetFocus();
  wchar_t name[64] = L"";
  ::GetClassNameW(focus, name, 64);
  const TWinControl* control = TWinControl::FromHandle(focus);
  const bool edit = std::wstring_view(name) == L"Edit" || dynamic_cast<const TCustomEdit*>(control);
  const auto* command = std::ranges::find(TextCommands, item, &TTextCommand::Item);
  if (!edit || command == std::end(TextCommands)) return false;
  ::SendMessageW(focus, command->Message, command->WParam, command->LParam);
  return true;
}

}  // namespace

void TMainForm::CommandClick(TObject* sender) {
  const std::string name = dynamic_cast<const TComponent&>(*sender).Name();
  if (GoesToText(name)) return;
  const auto* command = std::ranges::find(Commands, name, &TCommand::Item);
  FDesigner->Try([&] { command->Run(*FDesigner); });
}

void TMainForm::MenuClick(TObject*) {
  const TFormDocument& document = FDesigner->Document();
  const TDesignSurface& surface = FDesigner->Surface();
  UndoItem->SetEnabled(document.CanUndo());
  RedoItem->SetEnabled(document.CanRedo());
  LockItem->SetChecked(surface.Locked());
  GridItem->SetChecked(surface.ShowGrid());
  SnapItem->SetChecked(surface.SnapToGrid());
}

void TMainForm::ClearMessagesClick(TObject*) { Messages->Items()->Clear(); }

void TMainForm::TabOrderClick(TObject*) {
  TWinControl& container = FDesigner->Surface().Container();
  if (EditTabOrder(container)) FDesigner->Modified();
}

void TMainForm::CreationClick(TObject*) {
  if (EditCreationOrder(FDesigner->Root())) FDesigner->Modified();
}

void TMainForm::PackagesClick(TObject*) {
  ShowPackages(*FPackages, [this](const std::string& fileName) {
    const TPackageEntry& entry = FPackages->Load(fileName);
    TakePackages();
    return entry.Error;
  });
  FSettings->SetPackages(FPackages->Wanted());
}

void TMainForm::PreviewClick(TObject*) {
  FDesigner->Try([this] {
    const TFormDocument& document = FDesigner->Document();
    if (&document.Sort() != &TForm::Class()) {
      throw EInvalidOperation(
          Concat(document.Root().Name(), " is no form, which alone can be run"));
    }
    StartPreview(document.WholeText(), document.Folder(), *FPackages);
  });
}

void TMainForm::AboutClick(TObject*) {
  Application()->MessageBox("A designer of forms and their components.", "Designer",
                            MB_OK | MB_ICONINFORMATION);
}

void TMainForm::WriteUnitClick(TObject*) {
  if (Save()) WriteUnit();
}

namespace {

TUnitAncestor UnitAncestorOf(const TFormDocument& document) {
  const TClass& sort = document.Sort();
  const char* loader = &sort == &TFrame::Class()        ? "LoadFrame"
                       : &sort == &TDataModule::Class() ? "LoadModule"
                                                        : "LoadForm";
  const TAncestorFile* base = document.Base();
  if (!base) return {sort.CppName(), loader, {}, nullptr};
  return {base->ClassName, loader, HeaderBeside(base->FileName), document.Ancestor()};
}

}  // namespace

bool TMainForm::WriteUnit() {
  bool written = false;
  FDesigner->Try([&] {
    const TFormDocument& document = FDesigner->Document();
    const std::string& fileName = document.FileName();
    for (const std::string& note : WriteUnitFiles(document.Root(), FDesigner->Handlers(), fileName,
                                                  UnitAncestorOf(document))) {
      Tell(note);
    }
    Tell(Concat("The unit of ", fileName, " is written"));
    written = true;
  });
  return written;
}

}  // namespace ide
