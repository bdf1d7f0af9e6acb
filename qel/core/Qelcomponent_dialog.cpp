// TQELCustomDialog: the sound that a dialog makes.
#include <iterator>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

bool TQELCustomDialog::Execute() {
  static constexpr UINT Sounds[] = {
      0, MB_OK, MB_ICONASTERISK, MB_ICONEXCLAMATION, MB_ICONQUESTION, MB_ICONHAND};
  const auto sound = static_cast<std::size_t>(FSound);
  if (FSound != bNone && sound < std::size(Sounds)) ::MessageBeep(Sounds[sound]);
  return false;
}

const vcl::TClass& TQELCustomDialog::Class() {
  static const vcl::TClass info = vcl::Describe<TQELCustomDialog, TQELExecComponent>(
      "qel::TQELCustomDialog", "qel/core/Qelclasses.h",
      {vcl::Property<&TQELCustomDialog::Sound, &TQELCustomDialog::SetSound>("Sound").Default(
          bNone)});
  return info;
}

}  // namespace qel
