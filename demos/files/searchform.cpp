// TSearchForm: the search, and what it has found so far.
#include "demos/files/searchform.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace files {

using namespace vcl;

const TClass& TSearchForm::Class() {
  using T = TSearchForm;
  static const TClass info =
      Describe<T, TForm>("files::TSearchForm", "demos/files/searchform.h",
                         {
                             Field<&T::Collector>("Collector"),
                             Field<&T::FolderEdit>("FolderEdit"),
                             Field<&T::MaskEdit>("MaskEdit"),
                             Field<&T::TextEdit>("TextEdit"),
                             Field<&T::InnerCheck>("InnerCheck"),
                             Field<&T::SearchButton>("SearchButton"),
                             Field<&T::GoButton>("GoButton"),
                             Field<&T::Found>("Found"),
                             Field<&T::StatusLabel>("StatusLabel"),
                             Method<&T::SearchClick>("SearchClick"),
                             Method<&T::GoClick>("GoClick"),
                             Method<&T::CloseClick>("CloseClick"),
                             Method<&T::FoundClick>("FoundClick"),
                             Method<&T::CollectorFile>("CollectorFile"),
                             Method<&T::CollectorProgress>("CollectorProgress"),
                             Method<&T::FormCloseQuery>("FormCloseQuery"),
                         });
  return info;
}

TSearchForm::TSearchForm(TComponent* owner) : TForm(owner) { LoadForm(); }

std::string TSearchForm::Run(const std::string& folder) {
  FolderEdit->SetText(folder);
  return ShowModal() == mrOk ? Found->Items()->Strings(Found->ItemIndex()) : std::string();
}

void TSearchForm::SearchClick(TObject*) {
  if (Collector->Busy()) return Collector->Abort();
  Found->Items()->Clear();
  GoButton->SetEnabled(false);
  Collector->SetFolder(FolderEdit->Text());
  Collector->SetMasks(MaskEdit->Text());
  Collector->SetRecursive(InnerCheck->Checked());
  SearchButton->SetCaption("&Stop");
  const bool done = Collector->Execute();
  SearchButton->SetCaption("&Search");
  const std::string count = Concat(std::to_string(Found->Items()->Count()), " files found");
  const std::string& error = Collector->LastError();
  StatusLabel->SetCaption(error.empty() ? count + (done ? "" : " until it was stopped")
                                        : Concat(count, ". ", error));
}

/// A file that holds the text, which is compared byte by byte; one that cannot be read does not.
void TSearchForm::CollectorFile(TObject*, const std::string& path, bool& take) {
  const std::string text = TextEdit->Text();
  if (!text.empty()) {
    try {
      const auto contents = ReadWholeFile(path);
      take = contents && contents->find(text) != std::string::npos;
    } catch (const EInOutError&) {
      take = false;
    }
  }
  if (take) Found->Items()->Add(path);
}

void TSearchForm::CollectorProgress(TObject*, const std::string& folder, int, bool&) {
  StatusLabel->SetCaption(folder);
}

void TSearchForm::FoundClick(TObject*) { GoButton->SetEnabled(Found->ItemIndex() >= 0); }

void TSearchForm::GoClick(TObject*) {
  if (Found->ItemIndex() < 0) return;
  Collector->Abort();
  SetModalResult(mrOk);
}

void TSearchForm::CloseClick(TObject*) { SetModalResult(mrCancel); }

/// A search that is under way ends first.
void TSearchForm::FormCloseQuery(TObject*, bool& canClose) {
  Collector->Abort();
  canClose = true;
}

}  // namespace files
