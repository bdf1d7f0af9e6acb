// The form in which a list of colours is put together.
#pragma once

#include "vcl/forms/forms.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

class TQELColorsForm : public vcl::TForm {
 public:
  explicit TQELColorsForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The colours, one name or number a line.
  vcl::TStrings* Colors() const { return ColorList->Items(); }

 private:
  void AddClick(vcl::TObject* sender);
  void ChangeClick(vcl::TObject* sender);
  void DeleteClick(vcl::TObject* sender);
  void UpClick(vcl::TObject* sender);
  void DownClick(vcl::TObject* sender);
  void ListClick(vcl::TObject* sender);
  void DrawColor(vcl::TObject* sender, int index, const vcl::TRect& rect,
                 vcl::TOwnerDrawState state);
  void Move(int by);
  void Select(int index);

  vcl::TListBox* ColorList = nullptr;
  vcl::TButton* ChangeButton = nullptr;
  vcl::TButton* DeleteButton = nullptr;
  vcl::TButton* UpButton = nullptr;
  vcl::TButton* DownButton = nullptr;
};

}  // namespace qel
