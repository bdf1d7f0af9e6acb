// TMainForm: files.
#include <filesystem>

#include "host/rtl/exceptions.h"
#include "host/rtl/text.h"
#include "host/vcl/windowtext.h"
#include "ide/mainform.h"

namespace ide {

using namespace vcl;

void TMainForm::NewClick(TObject*) { NewForm(FForms->UniqueFormName()); }

void TMainForm::OpenClick(TObject*) {
  if (OpenDialog->Execute()) Open(OpenDialog->FileName());
}

namespace {

/// The same wherever the current folder is later.
std::string FullName(const std::string& fileName) {
  std::error_code error;
  const std::filesystem::path full = std::filesystem::absolute(ToUtf16(fileName), error);
  return error ? fileName : ToUtf8(full.wstring());
}

}  // namespace

bool TMainForm::Open(const std::string& name) {
  const std::string fileName = FullName(name);
  if (TFormDesigner* open = FForms->OfFile(fileName)) {
    WorkOn(*open);
    return true;
  }
  bool opened = false;
  TFormDesigner& designer = FDesigner->Document().IsFresh() ? *FDesigner : AddForm();
  TFormDocument& document = designer.Document();
  designer.Try([&] {
    const bool saved =
        TFormDocument::HasAutosave(fileName) &&
        Application()->MessageBox(Concat(fileName,
                                         " was changed and not saved when the program ended. "
                                         "Shall the changes be brought back?"),
                                  "Designer", MB_YESNO | MB_ICONQUESTION) == IDYES;
    saved ? document.LoadAutosaved(fileName) : document.Load(fileName);
    opened = true;
    Remember(fileName);
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

bool TMainForm::SaveIn(const std::string& fileName) {
  bool saved = false;
  if (!FInspector->Apply()) return false;
  FDesigner->Try([&] {
    const TFormDesigner* open = FForms->OfFile(fileName);
    if (open && open != FDesigner) {
      throw EInOutError(Concat("The file ", fileName, " is open as another form"));
    }
    FDesigner->Document().Save(fileName);
    saved = true;
    Remember(fileName);
  });
  return saved;
}

/// What is being typed into the inspector is not the form's yet and stays where it is.
void TMainForm::SaveFiles() {
  for (TFormDesigner* each : FForms->All()) {
    TFormDocument& document = each->Document();
    if (document.FileName().empty() || !document.Modified()) continue;
    each->Try([&] { document.Save(document.FileName()); });
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
