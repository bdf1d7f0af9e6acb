// TViewerForm: a file as a text.
#pragma once

#include <string>

#include "qel/shell/Qelttextfileview.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/stdctrls.h"

namespace files {

/// Shows a file until it is closed, and frees itself then.
class TViewerForm : public vcl::TForm {
 public:
  explicit TViewerForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Raises EInOutError for a file that cannot be read.
  void Open(const std::string& fileName);

 private:
  // What the form file fills.
  qel::TQELTextFileView* View = nullptr;
  vcl::TEdit* FindEdit = nullptr;
  vcl::TCheckBox* WrapCheck = nullptr;
  vcl::TCheckBox* FollowCheck = nullptr;

  void FindKeyDown(vcl::TObject*, std::uint16_t& key, vcl::TShiftState shift);
  void CheckClick(vcl::TObject*);
  void FormKeyDown(vcl::TObject*, std::uint16_t& key, vcl::TShiftState shift);
  void FormClose(vcl::TObject*, vcl::TCloseAction& action);
};

}  // namespace files
