#include "mainform.h"

const vcl::TClass& TMainForm::Class() {
  static const vcl::TClass info = vcl::Describe<TMainForm, vcl::TForm>(
      "TMainForm", "mainform",
      {
          vcl::Field<&TMainForm::Sky>("Sky"),
          vcl::Field<&TMainForm::Title>("Title"),
          vcl::Field<&TMainForm::Progress>("Progress"),
          vcl::Field<&TMainForm::More>("More"),
          vcl::Field<&TMainForm::WindowSaver>("WindowSaver"),
          vcl::Method<&TMainForm::MoreClick>("MoreClick"),
      });
  return info;
}

TMainForm::TMainForm(vcl::TComponent* owner) : TForm(owner) { LoadForm(); }

void TMainForm::MoreClick(vcl::TObject* sender) {
  Progress->SetPercentage(Progress->Percentage() + 10);
}
