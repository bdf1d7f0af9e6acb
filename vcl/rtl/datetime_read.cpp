// Dates and times from texts.
#include <utility>

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// What has not been read yet of a text. Each part may stand behind blanks.
class TScanner {
 public:
  explicit TScanner(std::string_view text) : FRest(text) {}

  bool Number(int& value) {
    SkipBlanks();
    constexpr std::size_t MaxDigits = 4;
    std::size_t size = 0;
    for (value = 0; size < FRest.size() && size < MaxDigits && IsDigit(FRest[size]); ++size) {
      value = value * 10 + (FRest[size] - '0');
    }
    FRest.remove_prefix(size);
    return size > 0;
  }
  /// Compared without case; a text that is empty is nowhere.
  bool Word(std::string_view word) {
    SkipBlanks();
    if (word.empty() || !SameText(FRest.substr(0, word.size()), word)) return false;
    FRest.remove_prefix(word.size());
    return true;
  }
  bool AtEnd() {
    SkipBlanks();
    return FRest.empty();
  }
  bool AtBlank() const { return FRest.starts_with(' '); }

 private:
  void SkipBlanks() {
    while (AtBlank()) FRest.remove_prefix(1);
  }

  std::string_view FRest;
};

int ThisYear() {
  int year = 0, month = 0, day = 0;
  DecodeDate(Date(), year, month, day);
  return year;
}

int WithCentury(int year, int window) {
  if (year >= 100) return year;
  const int first = ThisYear() - window;
  year += first / 100 * 100;
  return window > 0 && year < first ? year + 100 : year;
}

bool ScanDate(TScanner& text, const TFormatSettings& settings, TDateTime& date) {
  const TDateOrder order = DateOrder(settings.ShortDateFormat);
  int parts[3] = {};
  if (!text.Number(parts[0]) || !text.Word(settings.DateSeparator)) return false;
  if (!text.Number(parts[1])) return false;
  if (!text.Word(settings.DateSeparator)) {
    const auto [month, day] =
        order == doDMY ? std::pair(parts[1], parts[0]) : std::pair(parts[0], parts[1]);
    return TryEncodeDate(ThisYear(), month, day, date);
  }
  if (!text.Number(parts[2])) return false;
  struct TPlaces {
    int Year, Month, Day;
  };
  static constexpr TPlaces places[] = {{2, 0, 1}, {2, 1, 0}, {0, 1, 2}};
  const TPlaces& place = places[order];
  return TryEncodeDate(WithCentury(parts[place.Year], settings.TwoDigitYearCenturyWindow),
                       parts[place.Month], parts[place.Day], date);
}

/// Hours of the half of the day that the text goes on with, if it does, become those of the day.
bool ScanHalfDay(TScanner& text, const TFormatSettings& settings, int& hour) {
  const bool morning = text.Word(settings.TimeAMString) || text.Word("am");
  if (!morning && !text.Word(settings.TimePMString) && !text.Word("pm")) return true;
  if (hour < 1 || hour > 12) return false;
  hour = hour % 12 + (morning ? 0 : 12);
  return true;
}

bool ScanTime(TScanner& text, const TFormatSettings& settings, TDateTime& time) {
  int hour = 0, minute = 0, second = 0, millisecond = 0;
  if (!text.Number(hour)) return false;
  if (text.Word(settings.TimeSeparator)) {
    if (!text.Number(minute)) return false;
    if (text.Word(settings.TimeSeparator)) {
      if (!text.Number(second)) return false;
      if (text.Word(".") && !text.Number(millisecond)) return false;
    }
  }
  return ScanHalfDay(text, settings, hour) &&
         TryEncodeTime(hour, minute, second, millisecond, time);
}

using TTryRead = bool (*)(std::string_view, TDateTime&, const TFormatSettings&);

TDateTime ReadOrRaise(TTryRead read, std::string_view text, const TFormatSettings& settings,
                      std::string_view kind) {
  TDateTime value = 0;
  if (read(text, value, settings)) return value;
  throw EConvertError(Concat("'", Shown(text), "' is not a valid ", kind));
}

}  // namespace

TDateOrder DateOrder(std::string_view format) {
  const std::size_t first = format.find_first_of("dDmMyY");
  if (first == std::string_view::npos) return doDMY;
  const char letter = static_cast<char>(format[first] | 0x20);
  return letter == 'd' ? doDMY : letter == 'm' ? doMDY : doYMD;
}

bool TryStrToDate(std::string_view text, TDateTime& date, const TFormatSettings& settings) {
  TScanner scanner(text);
  TDateTime read = 0;
  if (!ScanDate(scanner, settings, read) || !scanner.AtEnd()) return false;
  date = read;
  return true;
}

bool TryStrToTime(std::string_view text, TDateTime& time, const TFormatSettings& settings) {
  TScanner scanner(text);
  TDateTime read = 0;
  if (!ScanTime(scanner, settings, read) || !scanner.AtEnd()) return false;
  time = read;
  return true;
}

bool TryStrToDateTime(std::string_view text, TDateTime& value, const TFormatSettings& settings) {
  TScanner scanner(text);
  TDateTime date = 0, time = 0;
  if (!ScanDate(scanner, settings, date)) return false;
  const bool separated = scanner.AtBlank();
  if (!scanner.AtEnd()) {
    if (!separated || !ScanTime(scanner, settings, time) || !scanner.AtEnd()) return false;
  }
  value = date < 0 ? date - time : date + time;
  return true;
}

TDateTime StrToDate(std::string_view text, const TFormatSettings& settings) {
  return ReadOrRaise(&TryStrToDate, text, settings, "date");
}

TDateTime StrToTime(std::string_view text, const TFormatSettings& settings) {
  return ReadOrRaise(&TryStrToTime, text, settings, "time");
}

TDateTime StrToDateTime(std::string_view text, const TFormatSettings& settings) {
  return ReadOrRaise(&TryStrToDateTime, text, settings, "date and time");
}

}  // namespace vcl
