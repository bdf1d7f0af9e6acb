// TQELLanguageLines: lines of languages, which a combo box or a list box shows.
#pragma once

#include <string>
#include <vector>

#include "qel/core/api.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/linelook.h"

namespace qel {

enum TQELLanguageDisplay {
  ldNative,    ///< In themselves: "Deutsch (Österreich)".
  ldEnglish,   ///< In English: "German (Austria)".
  ldLocalized  ///< In the user's language.
};
enum TQELLanguageWhich {
  lwInstalled,  ///< Those that the system can be used in.
  lwSupported   ///< All that the system knows.
};

/// A language as a country writes it.
struct TQELLanguage {
  std::string Locale;  ///< "de-AT".
  std::string Name;    ///< As it is shown.
};

/// The languages by the alphabet of their names.
QEL_API std::vector<TQELLanguage> QELLanguages(TQELLanguageWhich which,
                                               TQELLanguageDisplay display);
/// The name as the system spells it. Raises EConvertError for one that it does not know.
QEL_API std::string QELLocaleName(const std::string& locale);
/// "de-AT" for a user in Austria.
QEL_API std::string QELUserLocale();
/// The system's number of the language; 0 for a name that it does not know.
QEL_API int QELLanguageID(const std::string& locale);

/// Languages as lines, each with its short name behind it: what a list of them is, whichever face
/// of a list shows it.
class QEL_API TQELLanguageLines : public vcl::TLineLook {
 public:
  /// For the list that the look is given to.
  explicit TQELLanguageLines(vcl::TCustomListControl& list) : FList(list) {}

  const std::string& Locale() const { return FLocale; }
  /// Empty for the user's. Raises EConvertError for a name that the system does not know.
  void SetLocale(const std::string& locale);
  TQELLanguageDisplay Display() const { return FDisplay; }
  void SetDisplay(TQELLanguageDisplay display) { Change(FDisplay, display); }
  TQELLanguageWhich Which() const { return FWhich; }
  void SetWhich(TQELLanguageWhich which) { Change(FWhich, which); }
  /// Takes the selected line's language.
  void TakeSelected();
  /// Makes the lines anew from what the system has.
  void Fill();

  void Draw(vcl::TCustomListControl& list, int index, const vcl::TRect& rect,
            vcl::TOwnerDrawState state) override;

 private:
  template <class T>
  void Change(T& field, T value) {
    if (value == field) return;
    field = value;
    Fill();
  }
  void Select();

  vcl::TCustomListControl& FList;
  std::vector<TQELLanguage> FLanguages;  // One a line.
  std::string FLocale;
  TQELLanguageDisplay FDisplay = ldNative;
  TQELLanguageWhich FWhich = lwInstalled;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELLanguageDisplay>{"TQELLanguageDisplay",
                                                              "ldNative ldEnglish ldLocalized"};
template <>
inline constexpr TEnumText EnumText<qel::TQELLanguageWhich>{"TQELLanguageWhich",
                                                            "lwInstalled lwSupported"};

}  // namespace vcl
