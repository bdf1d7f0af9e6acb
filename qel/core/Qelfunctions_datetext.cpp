// The texts of dates.
#include "qel/core/Qelfunctions.h"
#include "qel/core/private/invaliddate.h"
#include "vcl/rtl/text.h"

namespace qel {

using vcl::TDateTime;

namespace {

/// The default formats and masks, by the order of the parts.
struct TDefaultTexts {
  const char* Format;
  const char* Mask;
};
constexpr TDefaultTexts FourDigits[] = {{"MM/DD/YYYY", "!99/99/9999;1;"},
                                        {"DD/MM/YYYY", "!99/99/9999;1;"},
                                        {"YYYY/MM/DD", "!9999/99/99;1;"}};
constexpr TDefaultTexts TwoDigits[] = {
    {"MM/DD/YY", "!99/99/99;1;"}, {"DD/MM/YY", "!99/99/99;1;"}, {"YY/MM/DD", "!99/99/99;1;"}};

const TDefaultTexts& DefaultTexts() {
  const TQELDateLayout layout = QELGetDateOrder(vcl::FormatSettings().ShortDateFormat);
  return (FourDigitYear ? FourDigits : TwoDigits)[layout];
}

bool TryRead(std::string_view format, std::string_view text, TDateTime& date) {
  vcl::TFormatSettings settings = vcl::FormatSettings();
  settings.ShortDateFormat = format;
  settings.TwoDigitYearCenturyWindow = 0;  // The present century.
  return vcl::TryStrToDate(text, date, settings);
}

}  // namespace

bool FourDigitYear = true;

TQELDateLayout QELGetDateOrder(std::string_view format) {
  return static_cast<TQELDateLayout>(vcl::DateOrder(format));
}

TDateTime QELStrToDateFmt(std::string_view format, std::string_view text) {
  TDateTime date = 0;
  if (!TryRead(format, text, date)) RaiseInvalidDate();
  return date;
}

TDateTime QELStrToDateFmtDef(std::string_view format, std::string_view text, TDateTime otherwise) {
  TryRead(format, text, otherwise);
  return otherwise;
}

TDateTime QELStrToDateDef(std::string_view text, TDateTime otherwise) {
  return QELStrToDateFmtDef(vcl::FormatSettings().ShortDateFormat, text, otherwise);
}

std::string QELDefDateFormat() { return DefaultTexts().Format; }

std::string QELDefDateMask(char blank) { return std::string(DefaultTexts().Mask) + blank; }

}  // namespace qel
