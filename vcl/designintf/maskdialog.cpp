// The form in which a mask is chosen, changed and tried out.
#include "vcl/designintf/maskdialog.h"

#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/listbox.h"
#include "vcl/stdctrls/maskedit.h"

namespace vcl {
namespace {

struct TSample {
  const char* Name;
  const char* Mask;
};
constexpr TSample Samples[] = {{"Date", "99/99/0000;1;_"},
                               {"Short date", "99/99/00;1;_"},
                               {"Time", "00:00;1;_"},
                               {"Time with seconds", "00:00:00;1;_"},
                               {"Telephone", "!\\(999\\)000-0000;1;_"},
                               {"Postal code", "00000;1;_"},
                               {"Amount", "#99999;0; "},
                               {"Licence plate", ">LL\\-AA\\-9999;1;_"},
                               {"Name", ">L<cccccccccccccccc;0; "}};

class TMaskForm : public TForm {
 public:
  explicit TMaskForm(TComponent* owner) : TForm(owner) {
    LoadForm(ModuleOf(&Class()));
    for (const TSample& each : Samples) SampleList->Items()->Add(each.Name);
  }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TEdit* MaskEdit = nullptr;
  TListBox* SampleList = nullptr;
  TMaskEdit* TryEdit = nullptr;
  TLabel* ErrorLabel = nullptr;
  TButton* OkButton = nullptr;

 private:
  void TakeSample(TObject*) { MaskEdit->SetText(Samples[SampleList->ItemIndex()].Mask); }

  /// A mask that cannot be read says why, and cannot be taken.
  void TryMask(TObject*) {
    std::string wrong;
    try {
      TryEdit->SetEditMask(MaskEdit->Text());
    } catch (const EMaskError& error) {
      wrong = error.Message();
    }
    ErrorLabel->SetCaption(wrong);
    OkButton->SetEnabled(wrong.empty());
    TryEdit->SetEnabled(wrong.empty());
  }
};

const TClass& TMaskForm::Class() {
  using T = TMaskForm;
  static const TClass info =
      Describe<T, TForm>("vcl::TMaskForm", "vcl/designintf/maskdialog.h",
                         {Field<&T::MaskEdit>("MaskEdit"), Field<&T::SampleList>("SampleList"),
                          Field<&T::TryEdit>("TryEdit"), Field<&T::ErrorLabel>("ErrorLabel"),
                          Field<&T::OkButton>("OkButton"), Method<&T::TakeSample>("TakeSample"),
                          Method<&T::TryMask>("TryMask")});
  return info;
}

}  // namespace

bool EditMask(const std::string& title, std::string& mask) {
  TMaskForm form(nullptr);
  form.SetCaption(title);
  form.MaskEdit->SetText(mask);
  if (form.ShowModal() != mrOk || form.MaskEdit->Text() == mask) return false;
  mask = form.MaskEdit->Text();
  return true;
}

}  // namespace vcl
