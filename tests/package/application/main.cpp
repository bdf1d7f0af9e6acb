#include <iostream>

#include "host/rtl/properties.h"
#include "host/vcl/application.h"
#include "host/vcl/forms.h"

class TMainForm : public vcl::TForm {
 public:
  explicit TMainForm(vcl::TComponent* owner) : TForm(owner) { LoadForm(); }
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  void FormShow(vcl::TObject*) {
    std::cout << Name() << " shows \"" << Caption() << "\"\n";
    Close();
  }
};

const vcl::TClass& TMainForm::Class() {
  static const vcl::TClass info = vcl::Describe<TMainForm, vcl::TForm>(
      "TMainForm", "main", {vcl::Method<&TMainForm::FormShow>("FormShow")});
  return info;
}

int main() {
  vcl::Application()->Initialize();
  vcl::Application()->CreateForm<TMainForm>();
  return vcl::Application()->Run();
}
