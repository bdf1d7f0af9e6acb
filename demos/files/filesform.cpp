// TFilesForm: its fields, and the two sides.
#include "demos/files/filesform.h"

#include <utility>

#include "qel/core/Qelsystemfacts.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"

namespace files {

using namespace vcl;

const TClass& TFilesForm::Class() {
  using T = TFilesForm;
  static const TClass info =
      Describe<T, TForm>("files::TFilesForm", "demos/files/filesform.h",
                         {
                             Field<&T::LeftPane>("LeftPane"),
                             Field<&T::RightPane>("RightPane"),
                             Field<&T::HiddenAction>("HiddenAction"),
                             Field<&T::Work>("Work"),
                             Field<&T::Start>("Start"),
                             Field<&T::Command>("Command"),
                             Field<&T::Sheet>("Sheet"),
                             Field<&T::Log>("Log"),
                             Field<&T::CommandEdit>("CommandEdit"),
                             Field<&T::OutputMemo>("OutputMemo"),
                             Method<&T::OpenExecute>("OpenExecute"),
                             Method<&T::ShowExecute>("ShowExecute"),
                             Method<&T::CopyExecute>("CopyExecute"),
                             Method<&T::MoveExecute>("MoveExecute"),
                             Method<&T::NewFolderExecute>("NewFolderExecute"),
                             Method<&T::DeleteExecute>("DeleteExecute"),
                             Method<&T::RenameExecute>("RenameExecute"),
                             Method<&T::PropertiesExecute>("PropertiesExecute"),
                             Method<&T::ExitExecute>("ExitExecute"),
                             Method<&T::SearchExecute>("SearchExecute"),
                             Method<&T::ReplaceExecute>("ReplaceExecute"),
                             Method<&T::SameFolderExecute>("SameFolderExecute"),
                             Method<&T::SwapExecute>("SwapExecute"),
                             Method<&T::RefreshExecute>("RefreshExecute"),
                             Method<&T::HiddenExecute>("HiddenExecute"),
                             Method<&T::CommandKeyDown>("CommandKeyDown"),
                             Method<&T::CommandOutput>("CommandOutput"),
                             Method<&T::CommandFinished>("CommandFinished"),
                             Method<&T::WorkError>("WorkError"),
                             Method<&T::FormResize>("FormResize"),
                             Method<&T::FormShow>("FormShow"),
                             Method<&T::MiddleMoved>("MiddleMoved"),
                         });
  return info;
}

TFilesForm::TFilesForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  FActive = LeftPane;
  MiddleMoved(this);
  for (TPane* pane : {LeftPane, RightPane}) {
    pane->OnActive = [this](TPane& active) { FActive = &active; };
    pane->OnOpen = [this](const std::string& path) { OpenFile(path); };
  }
  Log->SetLogFile(IncludeTrailingPathDelimiter(qel::QELInformation(qel::iiLocalFolder)) +
                  "Files\\files.log");
}

void TFilesForm::Open(const std::string& left, const std::string& right) {
  LeftPane->View->GoTo(left);
  RightPane->View->GoTo(right);
}

void TFilesForm::FormShow(TObject*) { LeftPane->View->SetFocus(); }

/// Both sides stay in the relation that the user gave them.
void TFilesForm::FormResize(TObject*) {
  if (FLeftShare > 0) LeftPane->SetWidth(static_cast<int>(FLeftShare * ClientWidth()));
}

void TFilesForm::MiddleMoved(TObject*) {
  if (ClientWidth() > 0) FLeftShare = static_cast<double>(LeftPane->Width()) / ClientWidth();
}

}  // namespace files
