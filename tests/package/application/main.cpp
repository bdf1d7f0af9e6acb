#include <iostream>

#include "core/api.h"
#include "data/strings.h"
#include "qel/qel.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

bool NamesAreOurs();  // behindwindows.cpp

class TMainForm : public vcl::TForm {
 public:
  explicit TMainForm(vcl::TComponent* owner) : TForm(owner) { LoadForm(); }
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  void FormShow(vcl::TObject* /*sender*/) {
    std::cout << Name() << " shows \"" << Caption() << "\"\n";
    Hello->Perform(WM_LBUTTONDOWN);
    Hello->Perform(WM_LBUTTONUP);
  }
  void HelloClick(vcl::TObject* /*sender*/) {
    std::cout << "The button says \"" << Hello->getcaption() << "\"\n"
              << "core/api.h is " << OwnApi << ", data/strings.h " << OwnStrings << "\n"
              << (NamesAreOurs() ? "Names are ours\n" : "Names are the system's\n");
    Close();
  }

  qel::TQELButton* Hello = nullptr;
};

const vcl::TClass& TMainForm::Class() {
  static const vcl::TClass info =
      vcl::Describe<TMainForm, vcl::TForm>("TMainForm", "main",
                                           {
                                               vcl::Field<&TMainForm::Hello>("Hello"),
                                               vcl::Method<&TMainForm::FormShow>("FormShow"),
                                               vcl::Method<&TMainForm::HelloClick>("HelloClick"),
                                           });
  return info;
}

int main() {
  vcl::RegisterClass(qel::TQELBackground::Class());  // No field of the form is of this class.
  vcl::Application()->Initialize();
  vcl::Application()->CreateForm<TMainForm>();
  return vcl::Application()->Run();
}
