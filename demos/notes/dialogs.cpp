// The forms of options, search and about.
#include "demos/notes/dialogs.h"

#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"

namespace notes {

using namespace vcl;

// Options.

const TClass& TOptionsForm::Class() {
  using T = TOptionsForm;
  static const TClass info = Describe<T, TForm>("notes::TOptionsForm", "demos/notes/dialogs.h",
                                                {
                                                    Field<&T::KeepEdit>("KeepEdit"),
                                                    Field<&T::EndsCombo>("EndsCombo"),
                                                    Field<&T::CloseToTrayBox>("CloseToTrayBox"),
                                                });
  return info;
}

TOptionsForm::TOptionsForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TOptionsForm::Show(const TOptions& options) {
  KeepEdit->SetValue(options.KeepSeconds);
  EndsCombo->SetItemIndex(options.NewLineEnds == TLineEnds::Lf ? 1 : 0);
  CloseToTrayBox->SetChecked(options.CloseToTray);
}

void TOptionsForm::Take(TOptions& options) const {
  options.KeepSeconds = KeepEdit->GetValue();
  options.NewLineEnds = EndsCombo->ItemIndex() == 1 ? TLineEnds::Lf : TLineEnds::CrLf;
  options.CloseToTray = CloseToTrayBox->Checked();
}

// Search.

const TClass& TFindForm::Class() {
  using T = TFindForm;
  static const TClass info =
      Describe<T, TForm>("notes::TFindForm", "demos/notes/dialogs.h",
                         {
                             Field<&T::WhatEdit>("WhatEdit"),
                             Field<&T::MatchCaseBox>("MatchCaseBox"),
                             Field<&T::NextButton>("NextButton"),
                             Method<&T::WhatEditChange>("WhatEditChange"),
                             Method<&T::NextButtonClick>("NextButtonClick"),
                             Method<&T::CloseButtonClick>("CloseButtonClick"),
                         });
  return info;
}

TFindForm::TFindForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TFindForm::Ask(const std::string& what) {
  if (!what.empty() && what.find('\r') == std::string::npos) WhatEdit->SetText(what);
  Show();
  FocusControl(WhatEdit);
  WhatEdit->SelectAll();
}

void TFindForm::WhatEditChange(TObject*) { NextButton->SetEnabled(!What().empty()); }
void TFindForm::NextButtonClick(TObject*) { OnNext(this); }
void TFindForm::CloseButtonClick(TObject*) { Close(); }

// About.

const TClass& TPreviewForm::Class() {
  using T = TPreviewForm;
  static const TClass info =
      Describe<T, TForm>("notes::TPreviewForm", "demos/notes/dialogs.h",
                         {
                             Field<&T::Preview>("Preview"),
                             Field<&T::SizeCombo>("SizeCombo"),
                             Method<&T::PrintButtonClick>("PrintButtonClick"),
                             Method<&T::PriorButtonClick>("PriorButtonClick"),
                             Method<&T::NextButtonClick>("NextButtonClick"),
                             Method<&T::SizeComboChange>("SizeComboChange"),
                         });
  return info;
}

TPreviewForm::TPreviewForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  SizeCombo->SetItemIndex(0);
}

void TPreviewForm::Show(const std::string& name, const TPrintPagesEvent& draw) {
  Preview->SetTitle(name);
  Preview->OnPrint = draw;
  Preview->UpdatePages();
}

void TPreviewForm::PrintButtonClick(TObject*) { Preview->Print(); }
void TPreviewForm::PriorButtonClick(TObject*) { Preview->PriorPage(); }
void TPreviewForm::NextButtonClick(TObject*) { Preview->NextPage(); }

void TPreviewForm::SizeComboChange(TObject*) {
  static constexpr int zooms[] = {50, 100, 200};
  constexpr int twoPages = 1;
  constexpr int pageWidth = 2;
  const int chosen = SizeCombo->ItemIndex();
  Preview->SetPagesAcross(chosen == twoPages ? 2 : 1);
  if (chosen > pageWidth) return Preview->SetZoom(zooms[chosen - pageWidth - 1]);
  Preview->SetSize(chosen == pageWidth ? psPageWidth : psWholePage);
}

const TClass& TAboutForm::Class() {
  using T = TAboutForm;
  static const TClass info = Describe<T, TForm>("notes::TAboutForm", "demos/notes/dialogs.h",
                                                {
                                                    Field<&T::PictureImage>("PictureImage"),
                                                    Field<&T::TitleLabel>("TitleLabel"),
                                                    Field<&T::TitleBackground>("TitleBackground"),
                                                });
  return info;
}

TAboutForm::TAboutForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  PictureImage->Picture()->SetGraphic(Application()->Icon());
}

}  // namespace notes
