// TMainForm: what the designer's parts tell each other, packages, keys, and the context menu.
#include "ide/mainform.h"

#include <algorithm>
#include <iterator>

#include "ide/standins.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

const TClass& TMainForm::Class() {
  using T = TMainForm;
  static const TClass info =
      Describe<T, TForm>("ide::TMainForm", "ide/mainform.h",
                         {
                             Field<&T::PalettePanel>("PalettePanel"),
                             Field<&T::SidePanel>("SidePanel"),
                             Field<&T::SideSplitter>("SideSplitter"),
                             Field<&T::Messages>("Messages"),
                             Field<&T::StatusBar>("StatusBar"),
                             Field<&T::MainMenuBar>("MainMenuBar"),
                             Field<&T::RecentItem>("RecentItem"),
                             Field<&T::UndoItem>("UndoItem"),
                             Field<&T::RedoItem>("RedoItem"),
                             Field<&T::CutItem>("CutItem"),
                             Field<&T::CopyItem>("CopyItem"),
                             Field<&T::PasteItem>("PasteItem"),
                             Field<&T::DeleteItem>("DeleteItem"),
                             Field<&T::FrontItem>("FrontItem"),
                             Field<&T::BackItem>("BackItem"),
                             Field<&T::TabOrderItem>("TabOrderItem"),
                             Field<&T::LockItem>("LockItem"),
                             Field<&T::GridItem>("GridItem"),
                             Field<&T::SnapItem>("SnapItem"),
                             Field<&T::OpenDialog>("OpenDialog"),
                             Field<&T::SaveDialog>("SaveDialog"),
                             Field<&T::AutosaveTimer>("AutosaveTimer"),
                             Field<&T::DesignMenu>("DesignMenu"),
                             Field<&T::WindowMenu>("WindowMenu"),
                             Method<&T::FormShow>("FormShow"),
                             Method<&T::FormCloseQuery>("FormCloseQuery"),
                             Method<&T::MenuClick>("MenuClick"),
                             Method<&T::AutosaveTimerTick>("AutosaveTimerTick"),
                             Method<&T::NewClick>("NewClick"),
                             Method<&T::NewInheritedClick>("NewInheritedClick"),
                             Method<&T::NewFrameClick>("NewFrameClick"),
                             Method<&T::NewModuleClick>("NewModuleClick"),
                             Method<&T::InsertFrameClick>("InsertFrameClick"),
                             Method<&T::OpenClick>("OpenClick"),
                             Method<&T::SaveClick>("SaveClick"),
                             Method<&T::SaveAsClick>("SaveAsClick"),
                             Method<&T::WriteUnitClick>("WriteUnitClick"),
                             Method<&T::ExitClick>("ExitClick"),
                             Method<&T::CloseFormClick>("CloseFormClick"),
                             Method<&T::NextFormClick>("NextFormClick"),
                             Method<&T::PreviousFormClick>("PreviousFormClick"),
                             Method<&T::WindowMenuClick>("WindowMenuClick"),
                             Method<&T::CommandClick>("CommandClick"),
                             Method<&T::TabOrderClick>("TabOrderClick"),
                             Method<&T::CreationClick>("CreationClick"),
                             Method<&T::ClearMessagesClick>("ClearMessagesClick"),
                             Method<&T::PackagesClick>("PackagesClick"),
                             Method<&T::PreviewClick>("PreviewClick"),
                             Method<&T::AboutClick>("AboutClick"),
                         });
  return info;
}

TMainForm::TMainForm(TComponent* owner)
    : TForm(owner),
      FInspector(new TObjectInspector(this)),
      FPalette(new TComponentPalette(this)),
      FStructure(new TStructureTree(this)),
      FItems(new TCollectionWindow(this)),
      FMenus(new TMenuWindow(this)),
      FActions(new TActionWindow(this)),
      FFields(new TFieldsWindow(this)),
      FParts{FInspector, FStructure, FItems, FMenus, FActions, FFields} {
  constexpr int structureHeight = 150;
  LoadForm();
  FStructure->SetHeight(structureHeight);
  FStructure->SetAccessibleName("Structure");
  FStructure->SetParent(SidePanel);
  FStructure->SetAlign(alTop);
  auto* below = new TSplitter(this);
  below->SetBounds(0, structureHeight, 0, SideSplitter->Width());
  below->SetCursor(crVSplit);
  below->SetAutoSnap(false);
  below->SetAlign(alTop);
  below->SetParent(SidePanel);
  FInspector->SetParent(SidePanel);
  FInspector->SetAlign(alClient);
  FPalette->SetParent(PalettePanel);
  FPalette->SetAlign(alClient);
  FPalette->OnSelect = TNotifyEvent([this](TObject*) { TakeTool(); });
  FPalette->OnAdd = [this](const TClass& aClass) { FDesigner->Add(aClass); };
  FForms = std::make_unique<TOpenForms>(*this);
  FForms->OnWanted = [this](TFormDesigner& designer) { WorkOn(designer); };
  FDesigner = &AddForm();
  Application()->OnHint = TNotifyEvent(
      [this](TObject*) { StatusBar->Panels()->Items(2)->SetText(Application()->Hint()); });
  Application()->OnActivate = TNotifyEvent([this](TObject*) { CheckFiles(); });
  Application()->OnMessage = TMessageEvent(this, &TMainForm::ApplicationMessage);
}

TMainForm::~TMainForm() {
  AnnounceEnd();
  Application()->OnActivate.Clear();
  Application()->OnHint.Clear();
  Application()->OnMessage.Clear();
  FExperts.clear();
  TakeDesigner(nullptr);
  FForms.reset();
}

void TMainForm::Begin(const TStart& start, TPackages& packages) {
  FPackages = &packages;
  FSettings = std::make_unique<TSettings>(start.SettingsFile.empty() ? TSettings::DefaultFileName()
                                                                     : start.SettingsFile);
  LoadPackages(start);
  ShowRecentFiles();
  FRecovery = std::make_unique<TRecovery>(*FSettings);
  constexpr int second = 1000;
  AutosaveTimer->SetInterval(FSettings->AutosaveSeconds() * second);
  if (start.FileName.empty() || !Open(start.FileName)) New(TForm::Class(), "Form1");
  OfferLost();
}

void TMainForm::LoadPackages(const TStart& start) {
  if (RegisteredComponents().empty()) RegisterStandardPages();
  for (const auto& name : start.Packages.empty() ? FSettings->Packages() : start.Packages) {
    const TPackageEntry& entry = FPackages->Load(name);
    if (!entry.Error.empty()) Tell(entry.Error);
  }
  TakePackages();
}

/// Shows the components of the packages, and makes the add-ins that are not there yet.
void TMainForm::TakePackages() {
  for (; FTriedExperts < RegisteredExperts().size(); ++FTriedExperts) {
    const TExpertClass& expert = RegisteredExperts()[FTriedExperts];
    FDesigner->Try([&] { FExperts.push_back(expert.Make(*this)); });
  }
  FPalette->SetPages(RegisteredComponents());
}

// What the parts tell.

/// The next press on the form makes a component of the palette's tool.
void TMainForm::TakeTool() { FDesigner->Surface().SetPlacing(FPalette->Tool().Class); }

void TMainForm::Tell(const std::string& message) {
  // What comes again and again, as from the timer, is told once.
  const int last = Messages->Items()->Count() - 1;
  if (last < 0 || Messages->Items()->Strings(last) != message) Messages->Items()->Add(message);
  Messages->SetTopIndex(Messages->Items()->Count() - 1);
}

void TMainForm::ShowTitle() {
  const TFormDocument& document = FDesigner->Document();
  const std::string name =
      document.FileName().empty() ? document.Root().Name() : document.FileName();
  SetCaption(Concat(name, document.Modified() ? " *" : "", " - Designer"));
  StatusBar->Panels()->Items(1)->SetText(document.Modified() ? "Modified" : "");
}

void TMainForm::FormChanged(TFormDesigner& designer) {
  FForms->ShowChanged(designer);
  FForms->ShowOthers(&designer);
  if (&designer != FDesigner) return;
  ShowTitle();
  for (TDesignerPart* each : FParts) each->Refresh();
  ShowSelected();
}

/// Has the parts show the designer's form; null for none.
void TMainForm::TakeDesigner(TFormDesigner* designer) {
  for (TDesignerPart* each : FParts) each->SetDesigner(designer);
}

/// The form will be made anew; the parts take it when something on it is selected.
void TMainForm::RootGoing() { TakeDesigner(nullptr); }

void TMainForm::SelectionChanged() {
  if (FInspector->Designer()) {
    for (TDesignerPart* each : FParts) each->SelectionChanged();
  } else {
    TakeDesigner(FDesigner);
  }
  ShowSelected();
}

/// Says in the status bar what is selected.
void TMainForm::ShowSelected() {
  const auto components = FDesigner->Selected().Components();
  std::string text;
  if (components.size() == 1) {
    text = Concat(components.front()->Name(), ": ", components.front()->FileClassName());
  } else if (!components.empty()) {
    text = IntToStr(static_cast<std::int64_t>(components.size())) + " components";
  }
  StatusBar->Panels()->Items(0)->SetText(text);
}

void TMainForm::FormShow(TObject*) { FForms->ShowWhole(); }

void TMainForm::FormCloseQuery(TObject*, bool& canClose) { canClose = MayEnd(); }

// The designer's own keys and menu.

namespace {

/// The keys that are about components on the form, and about the text in an edit.
bool IsEditingKey(WPARAM key) {
  constexpr WPARAM keys[] = {'A', 'C', 'V', 'X', 'Y', 'Z'};
  return ::GetKeyState(VK_CONTROL) < 0 && std::ranges::find(keys, key) != std::end(keys);
}

}  // namespace

/// Keys that the designed form gets do what the menu says; an edit's own come before the menu.
void TMainForm::ApplicationMessage(MSG& message, bool& handled) {
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return;
  const TWinControl* control = TWinControl::FromHandle(message.hwnd);
  if (control && control->Designing()) {
    handled = MainMenuBar->IsShortCut(message);
  } else if (dynamic_cast<const TCustomEdit*>(control) && IsEditingKey(message.wParam)) {
    handled = true;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

bool TMainForm::DesignKey(WPARAM key) {
  if (key == VK_DELETE) FDesigner->DeleteSelected();
  return key == VK_DELETE;
}

/// The commands of the selected component's editor.
void TMainForm::AddVerbs() {
  const auto components = FDesigner->Selected().Components();
  if (components.size() != 1 || IsStandIn(*components.front())) return;
  std::shared_ptr<TComponentEditor> editor = MakeComponentEditor(*FDesigner, *components.front());
  for (int i = 0; i < editor->GetVerbCount(); ++i) {
    auto* item = new TMenuItem(DesignMenu);
    item->SetCaption(editor->GetVerb(i));
    item->OnClick = TNotifyEvent(
        [this, editor, i](TObject*) { FDesigner->Try([&] { editor->ExecuteVerb(i); }); });
    DesignMenu->Items()->Add(item);
  }
}

void TMainForm::ShowDesignMenu(TPoint screen) {
  DesignMenu->Items()->Clear();
  FDesigner->Try([this] { AddVerbs(); });
  if (DesignMenu->Items()->Count() > 0) {
    auto* line = new TMenuItem(DesignMenu);
    line->SetCaption("-");
    DesignMenu->Items()->Add(line);
  }
  for (TMenuItem* original :
       {CutItem, CopyItem, PasteItem, DeleteItem, FrontItem, BackItem, TabOrderItem}) {
    auto* item = new TMenuItem(DesignMenu);
    item->SetCaption(original->Caption());
    item->SetHint(original->Hint());
    item->OnClick = TNotifyEvent([original](TObject*) { original->Click(); });
    DesignMenu->Items()->Add(item);
  }
  DesignMenu->Popup(screen.X, screen.Y);
}

}  // namespace ide
