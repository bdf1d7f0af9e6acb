// TMainForm: files.
#include "ide/mainform.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

void TMainForm::NewClick(TObject*) { New(TForm::Class()); }
void TMainForm::NewFrameClick(TObject*) { New(TFrame::Class()); }
void TMainForm::NewModuleClick(TObject*) { New(TDataModule::Class()); }

void TMainForm::NewInheritedClick(TObject*) {
  if (OpenDialog->Execute()) NewInherited(OpenDialog->FileName());
}

void TMainForm::InsertFrameClick(TObject*) {
  if (OpenDialog->Execute()) FDesigner->AddFrame(ExpandFileName(OpenDialog->FileName()));
}

void TMainForm::OpenClick(TObject*) {
  if (OpenDialog->Execute()) Open(OpenDialog->FileName());
}

bool TMainForm::Open(const std::string& name) {
  const std::string fileName = ExpandFileName(name);
  if (TFormDesigner* open = FForms->OfFile(fileName)) {
    WorkOn(*open);
    return true;
  }
  return OpenFile(fileName, WantsCopy(fileName));
}

/// Asks whether the changes are wanted that a killed program has left a copy of, if there is one.
bool TMainForm::WantsCopy(const std::string& fileName) {
  return TFormDocument::HasAutosave(fileName) &&
         Application()->MessageBox(Concat(fileName,
                                          " was changed and not saved when the program ended. "
                                          "Shall the changes be brought back?"),
                                   "Designer", MB_YESNO | MB_ICONQUESTION) == IDYES;
}

bool TMainForm::OpenFile(const std::string& fileName, bool copy) {
  bool opened = false;
  TFormDesigner& designer = FDesigner->Document().IsFresh() ? *FDesigner : AddForm();
  TFormDocument& document = designer.Document();
  designer.Try([&] {
    copy ? document.LoadAutosaved(fileName) : document.Load(fileName);
    opened = true;
    if (!document.FileName().empty()) Remember(fileName);
  });
  if (opened) {
    WorkOn(designer);
    FForms->ShowWhole();
  } else if (&designer != FDesigner) {
    FForms->Remove(designer);
  }
  return opened;
}

void TMainForm::SaveClick(TObject*) { Save(); }
void TMainForm::SaveAsClick(TObject*) { SaveAs(); }
void TMainForm::ExitClick(TObject*) { Close(); }

bool TMainForm::Save() {
  const std::string& fileName = FDesigner->Document().FileName();
  return fileName.empty() ? SaveAs() : SaveIn(fileName);
}

bool TMainForm::SaveAs() {
  const TFormDocument& document = FDesigner->Document();
  SaveDialog->SetFileName(document.FileName().empty() ? document.Root().Name() + ".dfm"
                                                      : document.FileName());
  return SaveDialog->Execute() && SaveIn(SaveDialog->FileName());
}

/// Asks before what another program has written is lost; what the user names anew the dialog asks.
bool TMainForm::MayReplace(const std::string& fileName) {
  const TFormDocument& document = FDesigner->Document();
  if (fileName != document.FileName() || !document.ChangedOnDisk()) return true;
  return Application()->MessageBox(
             Concat(fileName, " was changed by another program since it was read. Replace it?"),
             "Designer", MB_YESNO | MB_DEFBUTTON2 | MB_ICONWARNING) == IDYES;
}

/// Looks, when the user comes back from another program, whether it has changed files.
void TMainForm::CheckFiles() {
  // A dialog may be about a component of such a form.
  if (!::IsWindowEnabled(Handle())) return;
  for (TFormDesigner* each : FForms->All()) {
    if (!each->Document().ChangedOnDisk()) continue;
    // Whatever comes of it, it is asked once; the box itself makes the user go and come back.
    each->Document().StayApart();
    WorkOn(*each);
    each->Try([&] { OfferFile(each->Document()); });
  }
}

void TMainForm::OfferFile(TFormDocument& document) {
  const std::string name = document.FileName();
  if (!FileExists(name)) {
    Tell(Concat("The file ", name, " is no longer there; saving the form writes it again"));
  } else if (Application()->MessageBox(
                 Concat(name,
                        " was changed by another program. Shall it be read again? What was "
                        "changed here is lost then."),
                 "Designer", MB_YESNO | MB_ICONQUESTION) == IDYES) {
    document.Load(name);
    document.DiscardAutosave();
  }
}

// Copies for the case that the program is killed.

void TMainForm::AutosaveTimerTick(TObject*) {
  if (!FRecovery) return;
  for (TFormDesigner* each : FForms->All()) each->Try([each] { each->Document().Autosave(); });
  FDesigner->Try([this] { NoteCopies(); });
}

void TMainForm::NoteCopies() {
  std::vector<std::string> copied;
  for (TFormDesigner* each : FForms->All()) copied.push_back(each->Document().Copied());
  std::erase(copied, std::string());
  FRecovery->SetFiles(copied);
}

/// Offers what former runs lost. A form that has no file and is not wanted is gone then.
void TMainForm::OfferLost() {
  for (const std::string& file : FRecovery->TakeLost()) {
    if (WantsCopy(file)) {
      OpenFile(file, true);
    } else if (!FileExists(file)) {
      DeleteFile(TFormDocument::AutosaveName(file));
      ForgetOrigin(file);
    }
  }
  NoteCopies();
}

/// What fails is told in a box, too: the user would take the form for saved.
bool TMainForm::SaveIn(const std::string& fileName) {
  bool saved = false;
  if (!FInspector->Apply() || !MayReplace(fileName)) return false;
  FDesigner->Try([&] {
    try {
      FForms->Save(*FDesigner, fileName);
      saved = true;
    } catch (const std::exception& error) {
      Application()->MessageBox(error.what(), "Designer", MB_OK | MB_ICONERROR);
      throw;
    }
    Remember(fileName);
    const TFormDocument& document = FDesigner->Document();
    if (document.NeedsUnit() && !FileExists(ChangeFileExt(fileName, ".h"))) WriteUnit();
  });
  return saved;
}

/// What is being typed into the inspector is not the form's yet and stays where it is.
void TMainForm::SaveFiles() {
  for (TFormDesigner* each : FForms->All()) {
    TFormDocument& document = each->Document();
    if (document.FileName().empty() || !document.Modified()) continue;
    each->Try([&] { FForms->Save(*each, document.FileName()); });
  }
}

/// Asks what is to be done with changes; false when the user wants to go on with them.
bool TMainForm::MayLoseChanges() {
  if (!FDesigner->Document().Modified()) return true;
  const int answer = Application()->MessageBox(
      Concat("Save the changes of ", FDesigner->Document().Root().Name(), "?"), "Designer",
      MB_YESNOCANCEL | MB_ICONQUESTION);
  if (answer == IDYES) return Save();
  if (answer == IDNO) FDesigner->Document().DiscardAutosave();
  return answer == IDNO;
}

void TMainForm::Remember(const std::string& fileName) {
  FSettings->AddRecentFile(fileName);
  ShowRecentFiles();
}

std::vector<std::string> TMainForm::RememberedFiles() const {
  auto files = FSettings->RecentFiles();
  for (const std::string& each : FSettings->Packages()) files.push_back(each);
  return files;
}

void TMainForm::ForgetFile(const std::string& fileName) {
  FSettings->Forget(fileName);
  ShowRecentFiles();
}

void TMainForm::ShowRecentFiles() {
  RecentItem->Clear();
  for (const std::string& name : FSettings->RecentFiles()) {
    auto* item = new TMenuItem(RecentItem);
    item->SetCaption(name);
    item->OnClick = TNotifyEvent(this, &TMainForm::RecentFileClick);
    RecentItem->Add(item);
  }
  RecentItem->SetEnabled(RecentItem->Count() > 0);
}

void TMainForm::RecentFileClick(TObject* sender) {
  const std::string name = dynamic_cast<TMenuItem&>(*sender).Caption();
  Open(name);
}

}  // namespace ide
