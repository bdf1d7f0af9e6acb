// TFilesForm: the commands.
#include "demos/files/filesform.h"
#include "demos/files/replaceform.h"
#include "demos/files/searchform.h"
#include "demos/files/viewerform.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace files {

using namespace vcl;

void TFilesForm::OpenExecute(TObject*) { Active().View->OpenFocused(); }

/// With the program that the user has for such files.
void TFilesForm::OpenFile(const std::string& path) {
  Start->SetFilename(path);
  Start->SetFolder(ExtractFileDir(path));
  if (!Start->Execute()) throw EInOutError(Start->LastError());
}

void TFilesForm::ShowExecute(TObject*) {
  const std::string path = Active().FocusedPath();
  if (path.empty() || DirectoryExists(path)) return;
  auto viewer = std::make_unique<TViewerForm>(this);
  viewer->Open(path);
  viewer.release()->Show();
}

// ---- Files ----

void TFilesForm::Transfer(qel::TQELFileOperatorOperation operation) {
  const std::vector<std::string> paths = Active().View->SelectedPaths();
  if (paths.empty()) return;
  const std::string target = Other().View->Folder();
  const std::string what = paths.size() == 1
                               ? Concat("'", ExtractFileName(paths.front()), "'")
                               : Concat(std::to_string(paths.size()), " files and folders");
  const char* verb = operation == qel::foMove ? "Move " : "Copy ";
  if (MessageDlg(Concat(verb, what, " to '", target, "'?"), mtConfirmation, {mbYes, mbNo}) !=
      mrYes) {
    return;
  }
  Work->SetOperation(operation);
  Work->SetDestination(target);
  Work->Source()->Clear();
  for (const std::string& each : paths) Work->Source()->Add(each);
  const bool done = Work->Execute();
  Log->Add(done ? qel::llInfo : qel::llWarning,
           Concat(verb, what, " to ", target, done ? "" : ": not all of it was done"));
  Active().View->ReadNew();
  Other().View->ReadNew();
  if (!Work->LastError().empty()) throw EInOutError(Work->LastError());
}

void TFilesForm::CopyExecute(TObject*) { Transfer(qel::foCopy); }
void TFilesForm::MoveExecute(TObject*) { Transfer(qel::foMove); }
void TFilesForm::NewFolderExecute(TObject*) { Active().View->NewFolder(); }

void TFilesForm::DeleteExecute(TObject*) {
  const std::vector<std::string> paths = Active().View->SelectedPaths();
  if (!Active().View->DeleteSelected()) return;
  for (const std::string& each : paths) Log->Add(qel::llInfo, Concat("Deleted ", each));
}

void TFilesForm::RenameExecute(TObject*) {
  if (TListItem* item = Active().View->ItemFocused()) item->EditCaption();
}

/// The user decides, and the log knows.
void TFilesForm::WorkError(TObject*, const std::string& path, const std::string& error,
                           qel::TQELFileFailure& action) {
  Log->Add(qel::llError, Concat(path, ": ", error));
  const auto answer = MessageDlg(error, mtError, {mbAbort, mbRetry, mbIgnore});
  action = answer == mrRetry ? qel::ffRetry : answer == mrIgnore ? qel::ffSkip : qel::ffAbort;
}

void TFilesForm::PropertiesExecute(TObject*) {
  const std::string path = Active().FocusedPath();
  Sheet->SetFilename(path.empty() ? Active().View->Folder() : path);
  if (!Sheet->Execute()) throw EInOutError(Sheet->LastError());
}

// ---- The sides ----

void TFilesForm::SearchExecute(TObject*) {
  TSearchForm search(this);
  const std::string found = search.Run(Active().View->Folder());
  if (found.empty()) return;
  Active().View->GoTo(ExtractFilePath(found));
  Active().View->SelectName(ExtractFileName(found));
  Active().View->SetFocus();
}

/// In the files alone, not in those of folders.
void TFilesForm::ReplaceExecute(TObject*) {
  std::vector<std::string> files;
  for (const std::string& each : Active().View->SelectedPaths()) {
    if (FileExists(each)) files.push_back(each);
  }
  if (files.empty()) return;
  TReplaceForm(this).Run(files);
  Active().View->ReadNew();
}

void TFilesForm::SameFolderExecute(TObject*) { Other().View->GoTo(Active().View->Folder()); }

void TFilesForm::SwapExecute(TObject*) {
  const std::string left = LeftPane->View->Folder();
  Open(RightPane->View->Folder(), left);
}

void TFilesForm::RefreshExecute(TObject*) {
  LeftPane->View->ReadNew();
  RightPane->View->ReadNew();
}

void TFilesForm::HiddenExecute(TObject*) {
  HiddenAction->SetChecked(!HiddenAction->Checked());
  for (const TPane* pane : {LeftPane, RightPane}) {
    pane->View->SetShowHidden(HiddenAction->Checked());
  }
}

void TFilesForm::ExitExecute(TObject*) { Close(); }

// ---- The command line ----

void TFilesForm::CommandKeyDown(TObject*, std::uint16_t& key, TShiftState) {
  if (key == VK_ESCAPE) OutputMemo->SetVisible(false);
  if (key != VK_RETURN || CommandEdit->Text().empty()) return;
  key = 0;
  OutputMemo->Clear();
  OutputMemo->SetVisible(true);
  Command->Terminate();
  Command->SetFolder(Active().View->Folder());
  Command->SetRawParameters("/c " + CommandEdit->Text());
  Log->Add(qel::llInfo, Concat("Command in ", Active().View->Folder(), ": ", CommandEdit->Text()));
  if (!Command->Execute()) OutputMemo->Lines()->Add(Command->LastError());
}

void TFilesForm::CommandOutput(TObject*, const std::string& line) {
  OutputMemo->Lines()->Add(line);
}

void TFilesForm::CommandFinished(TObject*) {
  OutputMemo->Lines()->Add(Concat("[ended with ", std::to_string(Command->ExitCode()), "]"));
  CommandEdit->SelectAll();
}

}  // namespace files
