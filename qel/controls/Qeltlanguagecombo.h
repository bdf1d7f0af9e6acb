// TQELLanguageCombo: a language is chosen from a list.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qellanguagelines.h"
#include "vcl/stdctrls/combobox.h"

namespace qel {

/// A combo box of the languages that the system has.
class QEL_API TQELLanguageCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELLanguageCombo(vcl::TComponent* owner);
  ~TQELLanguageCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Locale() const { return FLanguages->Locale(); }
  /// The language that is chosen, by its short name, such as "de-AT"; empty for the user's. Raises
  /// EConvertError for one that the system does not know.
  void SetLocale(const std::string& locale) { FLanguages->SetLocale(locale); }
  TQELLanguageDisplay Display() const { return FLanguages->Display(); }
  /// In which language the names are written.
  void SetDisplay(TQELLanguageDisplay display) { FLanguages->SetDisplay(display); }
  TQELLanguageWhich Which() const { return FLanguages->Which(); }
  /// Which languages are listed.
  void SetWhich(TQELLanguageWhich which) { FLanguages->SetWhich(which); }
  /// The system's number of the language that is chosen.
  int LanguageID() const;

 protected:
  void Click() override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELLanguageLines* FLanguages;  // The list's look.
};

}  // namespace qel
