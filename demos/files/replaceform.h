// TReplaceForm: texts replaced in files.
#pragma once

#include <string>
#include <vector>

#include "qel/shell/Qelttextreplace.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/stdctrls.h"

namespace files {

class TReplaceForm : public vcl::TForm {
 public:
  explicit TReplaceForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Replaces in these files as the user wants, until he closes the window.
  void Run(const std::vector<std::string>& files);

 private:
  // What the form file fills.
  qel::TQELTextReplace* Replacing = nullptr;
  vcl::TEdit* FindEdit = nullptr;
  vcl::TEdit* ByEdit = nullptr;
  vcl::TCheckBox* CaseCheck = nullptr;
  vcl::TCheckBox* WordCheck = nullptr;
  vcl::TCheckBox* PatternCheck = nullptr;
  vcl::TLabel* StatusLabel = nullptr;

  void CountClick(vcl::TObject*);
  void ReplaceClick(vcl::TObject*);
  void Go(bool preview);
};

}  // namespace files
