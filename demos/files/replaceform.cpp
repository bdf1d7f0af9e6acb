// TReplaceForm: what is replaced, and how often it was.
#include "demos/files/replaceform.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace files {

using namespace vcl;

const TClass& TReplaceForm::Class() {
  using T = TReplaceForm;
  static const TClass info = Describe<T, TForm>("files::TReplaceForm", "demos/files/replaceform.h",
                                                {
                                                    Field<&T::Replacing>("Replacing"),
                                                    Field<&T::FindEdit>("FindEdit"),
                                                    Field<&T::ByEdit>("ByEdit"),
                                                    Field<&T::CaseCheck>("CaseCheck"),
                                                    Field<&T::WordCheck>("WordCheck"),
                                                    Field<&T::PatternCheck>("PatternCheck"),
                                                    Field<&T::StatusLabel>("StatusLabel"),
                                                    Method<&T::CountClick>("CountClick"),
                                                    Method<&T::ReplaceClick>("ReplaceClick"),
                                                });
  return info;
}

TReplaceForm::TReplaceForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TReplaceForm::Run(const std::vector<std::string>& files) {
  Replacing->Files()->Clear();
  for (const std::string& each : files) Replacing->Files()->Add(each);
  ShowModal();
}

void TReplaceForm::CountClick(TObject*) { Go(true); }
void TReplaceForm::ReplaceClick(TObject*) { Go(false); }

void TReplaceForm::Go(bool preview) {
  qel::TQELTextReplaceOptions options;
  if (CaseCheck->Checked()) options = options + qel::TQELTextReplaceOptions{qel::roMatchCase};
  if (WordCheck->Checked()) options = options + qel::TQELTextReplaceOptions{qel::roWholeWords};
  if (PatternCheck->Checked()) {
    options = options + qel::TQELTextReplaceOptions{qel::roRegularExpression};
  }
  Replacing->SetOptions(options);
  Replacing->SetFind(FindEdit->Text());
  Replacing->SetReplaceBy(ByEdit->Text());
  Replacing->SetPreview(preview);
  Replacing->Execute();
  const std::string count = Concat(std::to_string(Replacing->Hits()), " times in ",
                                   std::to_string(Replacing->ChangedFiles()), " files");
  const std::string& error = Replacing->LastError();
  StatusLabel->SetCaption(
      Concat(preview ? "Found " : "Replaced ", count, error.empty() ? "" : ". " + error));
}

}  // namespace files
