// TQELMsgBox: its table, and the system's flags for its settings.
#include "qel/dialogs/Qeltmsgbox.h"

#include "qel/dialogs/private/systemhelp.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int LastButton = 4;

// The system's flags in the order of our enumerations.
constexpr int IconFlags[] = {MB_ICONINFORMATION, MB_ICONWARNING, MB_ICONERROR, MB_ICONQUESTION, 0};
constexpr int ButtonFlags[] = {MB_OK,          MB_OKCANCEL, MB_ABORTRETRYIGNORE,
                               MB_YESNOCANCEL, MB_YESNO,    MB_RETRYCANCEL};
constexpr int DefaultFlags[] = {MB_DEFBUTTON1, MB_DEFBUTTON2, MB_DEFBUTTON3, MB_DEFBUTTON4};

}  // namespace

const vcl::TClass& TQELMsgBox::Class() {
  using T = TQELMsgBox;
  using namespace vcl;
  static const TClass info = Describe<T, TQELHelpDialog>(
      "qel::TQELMsgBox", "qel/dialogs/Qeltmsgbox.h",
      {
          Property<&T::Buttons, &T::SetButtons>("Buttons").Default(mbOk),
          Property<&T::Caption, &T::SetCaption>("Caption"),
          Property<&T::DefaultButton, &T::SetDefaultButton>("DefaultButton").Default(1),
          Property<&T::Icon, &T::SetIcon>("Icon").Default(miInformation),
          Property<&T::Text, &T::SetText>("Text"),
      });
  return info;
}

void TQELMsgBox::SetDefaultButton(int button) {
  if (button >= 1 && button <= LastButton) FDefaultButton = button;
}

bool TQELMsgBox::Execute() {
  TQELHelpDialog::Execute();
  const vcl::TWatch watch(this);
  const int flags = IconFlags[FIcon] | ButtonFlags[FButtons] | DefaultFlags[FDefaultButton - 1];
  const std::string caption = FCaption.empty() ? vcl::Application()->Title() : FCaption;
  const TSystemHelp help(*this);
  const int answer = vcl::Application()->MessageBox(FText, caption, flags);
  if (watch.Gone()) return false;
  if (!answer) throw vcl::EOutOfResources(vcl::Concat("The system cannot show \"", FText, "\""));
  FResult = static_cast<vcl::TModalResult>(answer);
  return answer == IDOK || answer == IDYES || answer == IDRETRY;
}

}  // namespace qel
