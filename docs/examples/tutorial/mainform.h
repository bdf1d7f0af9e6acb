// TMainForm: the form of mainform.dfm.
#pragma once

#include "vcl/vcl.h"
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qeltbutton.h"
#include "qel/controls/Qeltgauge.h"
#include "qel/controls/Qeltlabel.h"
#include "qel/services/Qeltformsaver.h"

class TMainForm : public vcl::TForm {
 public:
  explicit TMainForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  qel::TQELBackground* Sky = nullptr;
  qel::TQELLabel* Title = nullptr;
  qel::TQELGauge* Progress = nullptr;
  qel::TQELButton* More = nullptr;
  qel::TQELFormSaver* WindowSaver = nullptr;

  void MoreClick(vcl::TObject* sender);
};
