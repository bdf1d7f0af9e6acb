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
                         });
  return info;
}

TFilesForm::TFilesForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  FActive = LeftPane;
  FFormerWidth = ClientWidth();
  FFormerPixels = PixelsPerInch();
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

/// Both sides stay in their relation.
void TFilesForm::FormResize(TObject*) {
  // With the dots per inch the panes grow by themselves.
  const bool scaled = std::exchange(FFormerPixels, PixelsPerInch()) != PixelsPerInch();
  if (FFormerWidth > 0 && !scaled) {
    LeftPane->SetWidth(
        static_cast<int>(std::int64_t{LeftPane->Width()} * ClientWidth() / FFormerWidth));
  }
  FFormerWidth = ClientWidth();
}

}  // namespace files
