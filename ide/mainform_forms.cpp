// TMainForm: which of the open forms is worked on.
#include "ide/mainform.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// The user has closed the form that is worked on; comes when its window no longer has the word.
constexpr UINT CloseFormMessage = WM_APP + 1;

}  // namespace

TFormDesigner& TMainForm::AddForm() {
  TFormDesigner& designer = FForms->Add();
  ListenTo(designer);
  return designer;
}

/// The parts hear of the form that is worked on only.
void TMainForm::ListenTo(TFormDesigner& designer) {
  auto* it = &designer;
  it->Events.Changed = [this, it] { FormChanged(*it); };
  it->Events.SelectionChanged = [this, it] {
    if (it == FDesigner) SelectionChanged();
  };
  it->Events.RootGoing = [this, it] {
    if (it == FDesigner) RootGoing();
  };
  it->Events.ChangeKey = [this] { return FInspector->ChangeKey(); };
  it->Events.ShowCollection = [this, it](TPersistent&, TCollection& items, const std::string&) {
    FItems->ShowItems(*it, items);
  };
  it->Events.ShowMenu = [this, it](TMenu& menu) { FMenus->ShowMenu(*it, menu); };
  it->Events.ShowActions = [this, it](TActionList& list) { FActions->ShowActions(*it, list); };
  it->Events.ShowFields = [this, it](TDataSet& data) { FFields->ShowFields(*it, data); };
  it->Events.Placed = [this] {
    FPalette->Placed();
    TakeTool();
  };
  it->Events.Problem = [this](const std::string& message) { Tell(message); };
  it->Events.ShowMethod = [this](const std::string& name) {
    Tell(Concat("The handler ", name, " is written into the form's unit (File, Write C++ unit)"));
  };
  TSurfaceEvents& surface = it->Surface().Events;
  surface.ContextMenu = [this](TPoint at) { ShowDesignMenu(at); };
  surface.Key = [this](WPARAM key) { return DesignKey(key); };
  surface.PlacingEnded = [this] { FPalette->SelectTool(nullptr); };
  surface.Close = [this] { ::PostMessageW(Handle(), CloseFormMessage, 0, 0); };
}

void TMainForm::Dispatch(TMessage& message) {
  if (message.Msg == CloseFormMessage) {
    CloseForm();
  } else {
    TForm::Dispatch(message);
  }
}

void TMainForm::WorkOn(TFormDesigner& designer) {
  // What is being typed is meant for the form that is left; what is wrong with it has been told.
  FInspector->Apply();
  DesignMenu->Items()->Clear();
  const bool other = &designer != FForms->Active();
  FDesigner = &designer;
  FForms->Activate(designer);
  if (!other) return;
  TakeDesigner(FDesigner);
  TakeTool();
  FormChanged(designer);
}

void TMainForm::New(const TClass& sort, const std::string& name) {
  TFormDesigner& designer = FDesigner->Document().HasRoot() ? AddForm() : *FDesigner;
  designer.Document().New(name.empty() ? FForms->UniqueName(sort.Name().substr(1)) : name, sort);
  WorkOnNew(designer);
}

void TMainForm::NewInherited(const std::string& ancestorFile) {
  TFormDesigner& designer = AddForm();
  bool made = false;
  designer.Try([&] {
    designer.Document().NewInherited(FForms->UniqueName("Form"), ExpandFileName(ancestorFile));
    made = true;
  });
  if (!made) return FForms->Remove(designer);
  WorkOnNew(designer);
}

void TMainForm::WorkOnNew(TFormDesigner& designer) {
  designer.Document().SetCopyName(FRecovery->NewName());
  WorkOn(designer);
  FForms->ShowWhole();
}

/// Asks what is to be done with changes; false when the user wants to go on with the form.
bool TMainForm::CloseForm() {
  FInspector->Apply();
  if (!MayLoseChanges()) return false;
  TFormDesigner& closed = *FDesigner;
  closed.Document().DiscardAutosave();
  if (FForms->All().size() == 1) {
    New(TForm::Class(), "Form1");
  } else {
    WorkOn(FForms->Next(false));
  }
  FForms->Remove(closed);
  return true;
}

/// Asks for every form that has changes, showing it.
bool TMainForm::MayEnd() {
  if (!FPackages) return true;
  FInspector->Apply();
  for (TFormDesigner* each : FForms->All()) {
    if (!each->Document().Modified()) continue;
    WorkOn(*each);
    if (!MayLoseChanges()) return false;
  }
  for (TFormDesigner* each : FForms->All()) each->Document().DiscardAutosave();
  NoteCopies();
  return true;
}

// The menu.

void TMainForm::CloseFormClick(TObject*) { CloseForm(); }
void TMainForm::NextFormClick(TObject*) { WorkOn(FForms->Next(true)); }
void TMainForm::PreviousFormClick(TObject*) { WorkOn(FForms->Next(false)); }

/// Lists the forms behind the commands.
void TMainForm::WindowMenuClick(TObject*) {
  constexpr int commands = 3;
  while (WindowMenu->Count() > commands) delete WindowMenu->Items(commands);
  for (TFormDesigner* each : FForms->All()) {
    auto* item = new TMenuItem(WindowMenu);
    const std::string number = IntToStr(WindowMenu->Count() - commands + 1);
    item->SetCaption(Concat("&", number, " ", ShortName(*each)));
    item->SetHint(each->Document().FileName());
    item->SetChecked(each == FDesigner);
    item->OnClick = TNotifyEvent([this, each](TObject*) { WorkOn(*each); });
    WindowMenu->Add(item);
  }
}

}  // namespace ide
