// The package's editors of single properties: file names, running a component, the about box.
#include "qel/design/Qelpropertyeditors.h"

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qellanguagelines.h"
#include "qel/dialogs/Qeltpassworddlg.h"
#include "vcl/designintf/textdialog.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

namespace {

constexpr const char* CodeIsSet = "(set)";

}  // namespace

void TQELFilenameProperty::Edit() {
  vcl::TOpenDialog dialog(nullptr);
  dialog.SetFilter(GetFilter());
  dialog.SetFileName(GetValue());
  dialog.SetOptions({});
  if (dialog.Execute()) SetValue(dialog.FileName());
}

std::string TQELFilenameProperty::GetFilter() const { return "All Files (*.*)|*.*|"; }

void TQELLocaleProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  for (const TQELLanguage& language : QELLanguages(lwSupported, ldNative)) each(language.Locale);
}

// The component runs when this very text is written to it.
void TQELShowMeNowProperty::Edit() { SetValue("(Busy...)"); }

void TQELAboutCompsProperty::Edit() {
  if (const auto* about = dynamic_cast<const TQELAbout*>(ObjectValue())) about->Showabout();
}

std::string TQELCodeProperty::GetValue() const {
  return TStringProperty::GetValue().empty() ? "" : CodeIsSet;
}

void TQELCodeProperty::SetValue(const std::string& text) {
  if (text.empty()) return TStringProperty::SetValue(text);
  if (text != GetValue()) throw vcl::EPropertyError("A code is set by its button, not typed here");
}

void TQELCodeProperty::Edit() {
  TQELPasswordDlg dialog(nullptr);
  dialog.SetKind(pkChange);
  dialog.SetTitle(GetName());
  dialog.SetOldPasswordLabel("");
  dialog.SetNewPasswordLabel("&New code:");
  dialog.SetRepeatLabel("&Repeat the new code:");
  dialog.SetMismatchText("The new code and its repetition are not the same.");
  dialog.SetShortText("A code needs at least %d character.");
  dialog.SetMinLength(1);
  if (dialog.Execute()) TStringProperty::SetValue(QELHashedCode(dialog.NewPassword()));
}

void EditInLines(vcl::TPropertyEditor& editor) {
  std::string text = editor.GetValue();
  if (vcl::EditText(editor.GetName(), text, "\r\n")) editor.SetValue(text);
}

}  // namespace qel
