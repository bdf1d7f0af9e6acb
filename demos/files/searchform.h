// TSearchForm: files looked for by name and by what is in them.
#pragma once

#include <string>

#include "qel/shell/Qeltfilecollector.h"
#include "qel/shell/Qeltfilelookup.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/stdctrls.h"

namespace files {

class TSearchForm : public vcl::TForm {
 public:
  explicit TSearchForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Searches in that folder until the user closes the window. The file that he wants to go to;
  /// empty for none.
  std::string Run(const std::string& folder);

 private:
  // What the form file fills.
  qel::TQELFileCollector* Collector = nullptr;
  qel::TQELFileLookup* FolderEdit = nullptr;
  vcl::TEdit* MaskEdit = nullptr;
  vcl::TEdit* TextEdit = nullptr;
  vcl::TCheckBox* InnerCheck = nullptr;
  vcl::TButton* SearchButton = nullptr;
  vcl::TButton* GoButton = nullptr;
  vcl::TListBox* Found = nullptr;
  vcl::TLabel* StatusLabel = nullptr;

  void SearchClick(vcl::TObject*);
  void GoClick(vcl::TObject*);
  void CloseClick(vcl::TObject*);
  void FoundClick(vcl::TObject*);
  void CollectorFile(vcl::TObject*, const std::string& path, bool& take);
  void CollectorProgress(vcl::TObject*, const std::string& folder, int found, bool& abort);
  void FormCloseQuery(vcl::TObject*, bool& canClose);
};

}  // namespace files
