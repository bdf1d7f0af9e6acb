#include "design/Qelpropertyeditors.h"

#include "core/Qelcomponent.h"
#include "host/designintf/textdialog.h"
#include "host/vcl/dialogs.h"

namespace qel {
namespace {

/// Captions and hints break their lines as the system's multi-line texts do.
void EditInLines(vcl::TPropertyEditor& editor) {
  std::string text = editor.GetValue();
  if (vcl::EditText(editor.GetName(), text, "\r\n")) editor.SetValue(text);
}

}  // namespace

void TQELFilenameProperty::Edit() {
  vcl::TOpenDialog dialog(nullptr);
  dialog.SetFilter(GetFilter());
  dialog.SetFileName(GetValue());
  dialog.SetOptions({});
  if (dialog.Execute()) SetValue(dialog.FileName());
}

std::string TQELFilenameProperty::GetFilter() const { return "All Files (*.*)|*.*|"; }
std::string TQELWaveFilenameProperty::GetFilter() const { return "Wave Files (*.wav)|*.wav|"; }
std::string TQELBitmapFilenameProperty::GetFilter() const { return "Bitmaps (*.bmp)|*.bmp|"; }
std::string TQELINIFilenameProperty::GetFilter() const { return "INI Files (*.ini)|*.ini|"; }
std::string TQELAviFilenameProperty::GetFilter() const { return "Avi Files (*.avi)|*.avi|"; }
std::string TQELLogFilenameProperty::GetFilter() const { return "Log Files (*.log)|*.log|"; }

// The component runs when this very text is written to it.
void TQELShowMeNowProperty::Edit() { SetValue("(Busy...)"); }

void TQELAboutCompsProperty::Edit() {
  if (const auto* about = dynamic_cast<const TQELAbout*>(ObjectValue())) about->Showabout();
}

vcl::TPropertyAttributes TQELCaptionProperty::GetAttributes() const {
  return TCaptionProperty::GetAttributes() + vcl::TPropertyAttributes{vcl::paDialog};
}

void TQELCaptionProperty::Edit() { EditInLines(*this); }

vcl::TPropertyAttributes TQELHintProperty::GetAttributes() const {
  return TStringProperty::GetAttributes() + vcl::TPropertyAttributes{vcl::paDialog};
}

void TQELHintProperty::Edit() { EditInLines(*this); }

}  // namespace qel
