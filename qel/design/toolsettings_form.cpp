// The form of the tools' settings.
#include "qel/design/toolsettings.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/memo.h"

namespace qel {

using namespace vcl;

namespace {

class TQELToolSettingsForm : public TForm {
 public:
  TQELToolSettingsForm() : TForm(nullptr) { LoadForm(ModuleOf(&Class())); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TMemo* FilesMemo = nullptr;
  TMemo* LinksMemo = nullptr;
  TEdit* HomePageEdit = nullptr;
  TEdit* MailEdit = nullptr;
  TEdit* PagerEdit = nullptr;
};

const TClass& TQELToolSettingsForm::Class() {
  using T = TQELToolSettingsForm;
  static const TClass info =
      Describe<T, TForm>("qel::TQELToolSettingsForm", "qel/design/toolsettings.h",
                         {
                             Field<&T::FilesMemo>("FilesMemo"),
                             Field<&T::LinksMemo>("LinksMemo"),
                             Field<&T::HomePageEdit>("HomePageEdit"),
                             Field<&T::MailEdit>("MailEdit"),
                             Field<&T::PagerEdit>("PagerEdit"),
                         });
  return info;
}

/// One entry a line, "caption=target"; a line without "=" is both.
void Show(const std::vector<TQELToolLink>& links, TStrings& lines) {
  for (const TQELToolLink& link : links) lines.Add(Concat(link.Caption, "=", link.Target));
}

std::vector<TQELToolLink> Read(const TStrings& lines) {
  std::vector<TQELToolLink> links;
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line(Trim(lines.Strings(i)));
    const std::size_t equals = line.find('=');
    if (line.empty()) continue;
    links.push_back(equals == std::string::npos
                        ? TQELToolLink{line, line}
                        : TQELToolLink{line.substr(0, equals), line.substr(equals + 1)});
  }
  return links;
}

}  // namespace

bool EditToolSettings(TQELToolSettings& settings) {
  TQELToolSettingsForm form;
  Show(settings.Files, *form.FilesMemo->Lines());
  Show(settings.Links, *form.LinksMemo->Lines());
  form.HomePageEdit->SetText(settings.HomePage);
  form.MailEdit->SetText(settings.Mail);
  form.PagerEdit->SetText(settings.Pager);
  if (form.ShowModal() != mrOk) return false;
  settings = {Read(*form.FilesMemo->Lines()), Read(*form.LinksMemo->Lines()),
              form.HomePageEdit->Text(),      form.MailEdit->Text(),
              form.PagerEdit->Text(),         settings.AutoSave};
  return true;
}

}  // namespace qel
