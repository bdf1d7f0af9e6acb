// TMainForm: the form of mainform.dfm.
#pragma once

#include "host/vcl/vcl.h"
#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qeltlabel.h"
#include "services/Qeltformsaver.h"

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
