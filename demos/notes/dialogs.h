// The forms beside the main one: options, search, about.
#pragma once

#include <string>

#include "demos/notes/options.h"
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qeltlabel.h"
#include "qel/controls/Qeltspinedit.h"
#include "vcl/forms/forms.h"
#include "vcl/printing/printpreview.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace notes {

/// The form of options.dfm.
class TOptionsForm : public vcl::TForm {
 public:
  explicit TOptionsForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the form shows.
  void Show(const TOptions& options);
  /// Takes over what the user has changed.
  void Take(TOptions& options) const;
  using TForm::Show;

 private:
  qel::TQELSpinEdit* KeepEdit = nullptr;
  vcl::TComboBox* EndsCombo = nullptr;
  vcl::TCheckBox* CloseToTrayBox = nullptr;
};

/// The form of find.dfm, which stays while the user edits.
class TFindForm : public vcl::TForm {
 public:
  explicit TFindForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  std::string What() const { return WhatEdit->Text(); }
  bool MatchCase() const { return MatchCaseBox->Checked(); }
  /// Shows the form, with that text when it is one line's.
  void Ask(const std::string& what);

  /// The user wants the next place.
  vcl::TNotifyEvent OnNext;

 private:
  void WhatEditChange(vcl::TObject* sender);
  void NextButtonClick(vcl::TObject* sender);
  void CloseButtonClick(vcl::TObject* sender);

  vcl::TEdit* WhatEdit = nullptr;
  vcl::TCheckBox* MatchCaseBox = nullptr;
  vcl::TButton* NextButton = nullptr;
};

/// The form of preview.dfm.
class TPreviewForm : public vcl::TForm {
 public:
  explicit TPreviewForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows what the handler draws, under that name.
  void Show(const std::string& name, const vcl::TPrintPagesEvent& draw);
  using TForm::Show;

 private:
  void PrintButtonClick(vcl::TObject* sender);
  void PriorButtonClick(vcl::TObject* sender);
  void NextButtonClick(vcl::TObject* sender);
  void SizeComboChange(vcl::TObject* sender);

  vcl::TPrintPreview* Preview = nullptr;
  vcl::TComboBox* SizeCombo = nullptr;
};

/// The form of about.dfm.
class TAboutForm : public vcl::TForm {
 public:
  explicit TAboutForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  vcl::TImage* PictureImage = nullptr;
  qel::TQELLabel* TitleLabel = nullptr;
  qel::TQELBackground* TitleBackground = nullptr;
};

}  // namespace notes
