// TListWindow: a small window above the designer's own, with a list and a column of buttons.
#pragma once

#include <functional>

#include "vcl/forms/forms.h"
#include "vcl/stdctrls/stdctrls.h"

namespace ide {

class TListWindow : public vcl::TForm {
 public:
  /// It stays above the owner, when that is a form.
  explicit TListWindow(vcl::TComponent* owner);
  ~TListWindow() override;

  vcl::TListBox& List() const { return *FList; }

 protected:
  vcl::TButton* AddButton(const char* caption, const std::function<void()>& press);
  void CreateParams(vcl::TCreateParams& params) override;

 private:
  vcl::TListBox* FList;
  int FNextTop;  // Of the next button, in pixels.
};

}  // namespace ide
