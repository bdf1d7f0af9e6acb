// The tool that replaces texts, and its form.
#include <algorithm>

#include "qel/design/textplaces.h"
#include "qel/design/tools.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

using namespace vcl;

namespace {

class TQELSearchForm : public TForm {
 public:
  explicit TQELSearchForm(TDesigner& designer) : TForm(nullptr), FDesigner(designer) {
    LoadForm(ModuleOf(&Class()));
    SearchChange(this);
  }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 private:
  TQELReplacement Replacement() const {
    return {SearchEdit->Text(), TextEdit->Text(), CaseBox->Checked()};
  }
  void SearchChange(TObject*);
  void ReplaceClick(TObject*);
  void PlaceClick(TObject*);

  TDesigner& FDesigner;
  std::vector<TQELTextPlace> FPlaces;
  TEdit* SearchEdit = nullptr;
  TEdit* TextEdit = nullptr;
  TCheckBox* CaseBox = nullptr;
  TListBox* PlaceList = nullptr;
  TLabel* CountLabel = nullptr;
  TButton* ReplaceButton = nullptr;
};

const TClass& TQELSearchForm::Class() {
  using T = TQELSearchForm;
  static const TClass info = Describe<T, TForm>("qel::TQELSearchForm", "searchform",
                                                {
                                                    Field<&T::SearchEdit>("SearchEdit"),
                                                    Field<&T::TextEdit>("TextEdit"),
                                                    Field<&T::CaseBox>("CaseBox"),
                                                    Field<&T::PlaceList>("PlaceList"),
                                                    Field<&T::CountLabel>("CountLabel"),
                                                    Field<&T::ReplaceButton>("ReplaceButton"),
                                                    Method<&T::SearchChange>("SearchChange"),
                                                    Method<&T::ReplaceClick>("ReplaceClick"),
                                                    Method<&T::PlaceClick>("PlaceClick"),
                                                });
  return info;
}

/// The text in one line.
std::string Flat(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

void TQELSearchForm::SearchChange(TObject*) {
  FPlaces = PlacesOf(FDesigner.Root(), Replacement());
  PlaceList->Items()->Clear();
  for (const TQELTextPlace& each : FPlaces) {
    PlaceList->Items()->Add(Concat(each.Path, ": ", Flat(each.Get())));
  }
  const auto count = static_cast<std::int64_t>(FPlaces.size());
  CountLabel->SetCaption(count == 1 ? "Found in 1 text"
                                    : Concat("Found in ", IntToStr(count), " texts"));
  ReplaceButton->SetEnabled(count > 0);
}

void TQELSearchForm::ReplaceClick(TObject*) {
  ReplaceIn(FPlaces, Replacement());
  FDesigner.Modified();
  SearchChange(this);
}

/// Shows which component it is.
void TQELSearchForm::PlaceClick(TObject*) {
  const int index = PlaceList->ItemIndex();
  if (index >= 0) FDesigner.SetSelection({FPlaces[static_cast<std::size_t>(index)].Component});
}

}  // namespace

void SearchAndReplace(TEnvironment& environment) {
  TQELSearchForm(DesignerInFront(environment)).ShowModal();
}

}  // namespace qel
