// The form in which a text of many lines is edited.
#include "vcl/designintf/textdialog.h"

#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/button.h"
#include "vcl/stdctrls/label.h"
#include "vcl/stdctrls/memo.h"

namespace vcl {
namespace {

class TLinesForm : public TForm {
 public:
  explicit TLinesForm(TComponent* owner) : TForm(owner) { LoadForm(ModuleOf(&Class())); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  void SetLines(const TStrings& lines) {
    Memo->Lines()->SetText(lines.Text());
    ShowCount(this);
  }

  TMemo* Memo = nullptr;
  TLabel* CountLabel = nullptr;

 private:
  void ShowCount(TObject*) {
    const int count = Memo->Lines()->Count();
    CountLabel->SetCaption(count == 1 ? "1 line" : IntToStr(count) + " lines");
  }
};

const TClass& TLinesForm::Class() {
  static const TClass info = Describe<TLinesForm, TForm>(
      "vcl::TLinesForm", "vcl/designintf/textdialog.h",
      {Field<&TLinesForm::Memo>("Memo"), Field<&TLinesForm::CountLabel>("CountLabel"),
       Method<&TLinesForm::ShowCount>("ShowCount")});
  return info;
}

}  // namespace

bool EditLines(const std::string& title, TStrings& lines) {
  TLinesForm form(nullptr);
  form.SetCaption(title);
  form.SetLines(lines);
  if (form.ShowModal() != mrOk) return false;
  lines.SetText(form.Memo->Lines()->Text());
  return true;
}

bool EditText(const std::string& title, std::string& text, const std::string& lineEnd) {
  TStringList lines;
  lines.SetText(text);
  if (!EditLines(title, lines)) return false;
  text.clear();
  for (int i = 0; i < lines.Count(); ++i) {
    text += Concat(i == 0 ? std::string() : lineEnd, lines.Strings(i));
  }
  return true;
}

}  // namespace vcl
