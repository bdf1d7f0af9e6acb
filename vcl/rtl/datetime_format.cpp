// The texts of dates and times.
#include <algorithm>
#include <charconv>
#include <iterator>

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }
bool IsQuote(char c) { return c == '\'' || c == '"'; }
bool BeginsWith(std::string_view text, std::string_view start) {
  return SameText(text.substr(0, start.size()), start);
}

/// The text in quotes at the beginning of a format, quotes included; one that does not end is all
/// the rest.
std::string_view Quoted(std::string_view format) {
  const std::size_t end = format.find(format.front(), 1);
  return format.substr(0, end == std::string_view::npos ? end : end + 1);
}

/// The ways in which a format asks for the half of the day, the longer ones first.
constexpr std::string_view HalfDays[] = {"am/pm", "ampm", "a/p"};

/// The one that the format begins with; empty when it does with none.
std::string_view HalfDay(std::string_view format) {
  // Asked at each place of a format, of which hardly one begins with their letter.
  if (Lower(format.front()) != 'a') return {};
  for (std::string_view each : HalfDays) {
    if (BeginsWith(format, each)) return format.substr(0, each.size());
  }
  return {};
}

bool AsksForHalfDay(std::string_view format) {
  while (!format.empty()) {
    if (!HalfDay(format).empty()) return true;
    format.remove_prefix(IsQuote(format.front()) ? Quoted(format).size() : 1);
  }
  return false;
}

/// Appends the parts of a date and time to one text.
class TDatePrinter {
 public:
  TDatePrinter(TDateTime value, const TFormatSettings& settings, std::string& text)
      : FSettings(settings), FText(text), FDayOfWeek(DayOfWeek(value)) {
    DecodeDate(value, FYear, FMonth, FDay);
    DecodeTime(value, FHour, FMinute, FSecond, FMillisecond);
  }

  void Print(std::string_view format) {
    FFormat = format;
    FBehindHour = false;
    while (!format.empty()) Take(format);
  }

 private:
  void Take(std::string_view& format) {
    const std::string_view halfDay = HalfDay(format);
    const char letter = Lower(format.front());
    const std::string_view part = !halfDay.empty()  ? halfDay
                                  : IsQuote(letter) ? Quoted(format)
                                                    : Run(format);
    format.remove_prefix(part.size());
    if (!halfDay.empty()) return HalfDayText(part);
    if (IsQuote(letter)) return Unquoted(part);
    Specified(letter, part);
  }

  /// The same letter several times.
  static std::string_view Run(std::string_view format) {
    const char letter = Lower(format.front());
    std::size_t length = 1;
    while (length < format.size() && Lower(format[length]) == letter) ++length;
    return format.substr(0, length);
  }

  void Unquoted(std::string_view part) {
    const char quote = part.front();
    part.remove_prefix(1);
    if (part.ends_with(quote)) part.remove_suffix(1);
    FText += part;
  }

  void Specified(char letter, std::string_view run) {
    const int count = static_cast<int>(run.size());
    const bool minutes = FBehindHour && letter == 'm' && count <= 2;
    if (letter >= 'a' && letter <= 'z') FBehindHour = letter == 'h';
    switch (minutes ? 'n' : letter) {
      case 'd': return Day(count);
      case 'm': return Month(count);
      case 'y': return count > 2 ? Number(FYear, 4) : Number(FYear % 100, 2);
      case 'h': return Number(HourOfFormat(), std::min(count, 2));
      case 'n': return Number(FMinute, std::min(count, 2));
      case 's': return Number(FSecond, std::min(count, 2));
      case 'z': return Number(FMillisecond, count < 3 ? 1 : 3);
      case 't': return Setting(count == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat);
      case 'c': return DateAndTime();
      case '/': return Repeated(FSettings.DateSeparator, count);
      case ':': return Repeated(FSettings.TimeSeparator, count);
      default: FText += run;
    }
  }

  /// Of twelve where the format asks for the half of the day too.
  int HourOfFormat() const { return AsksForHalfDay(FFormat) ? (FHour + 11) % 12 + 1 : FHour; }

  void Number(int value, int digits) {
    char text[16];
    const char* end = std::to_chars(std::begin(text), std::end(text), value).ptr;
    const auto size = static_cast<std::size_t>(end - text);
    FText.append(std::max(static_cast<std::size_t>(digits), size) - size, '0').append(text, size);
  }

  void Repeated(const std::string& piece, int count) {
    while (count-- > 0) FText += piece;
  }

  template <class Names>
  void Name(const Names& names, int number) {
    FText += names[static_cast<std::size_t>(number - 1)];
  }

  void Day(int count) {
    switch (count) {
      case 1:
      case 2: return Number(FDay, count);
      case 3: return Name(FSettings.ShortDayNames, FDayOfWeek);
      case 4: return Name(FSettings.LongDayNames, FDayOfWeek);
      case 5: return Setting(FSettings.ShortDateFormat);
      default: return Setting(FSettings.LongDateFormat);
    }
  }

  void Month(int count) {
    if (count <= 2) return Number(FMonth, count);
    Name(count == 3 ? FSettings.ShortMonthNames : FSettings.LongMonthNames, FMonth);
  }

  void HalfDayText(std::string_view specifier) {
    const bool morning = FHour < 12;
    if (SameText(specifier, "ampm")) {
      FText += morning ? FSettings.TimeAMString : FSettings.TimePMString;
    } else {
      const std::size_t slash = specifier.find('/');
      FText += morning ? specifier.substr(0, slash) : specifier.substr(slash + 1);
    }
  }

  void DateAndTime() {
    Setting(FSettings.ShortDateFormat);
    if (FHour + FMinute + FSecond + FMillisecond == 0) return;
    FText += ' ';
    Setting(FSettings.LongTimeFormat);
  }

  void Setting(const std::string& format) {
    // A setting that asks for another one says nothing: it might be itself.
    if (FNested) return;
    TDatePrinter other(*this);
    other.FNested = true;
    other.Print(format);
  }

  const TFormatSettings& FSettings;
  std::string& FText;
  std::string_view FFormat;
  int FDayOfWeek;
  int FYear = 0, FMonth = 0, FDay = 0;
  int FHour = 0, FMinute = 0, FSecond = 0, FMillisecond = 0;
  bool FNested = false;
  bool FBehindHour = false;
};

}  // namespace

std::string FormatDateTime(std::string_view format, TDateTime value,
                           const TFormatSettings& settings) {
  std::string text;
  TDatePrinter(value, settings, text).Print(format.empty() ? "c" : format);
  return text;
}

std::string DateToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime("ddddd", value, settings);
}

std::string TimeToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime("tt", value, settings);
}

std::string DateTimeToStr(TDateTime value, const TFormatSettings& settings) {
  return FormatDateTime("c", value, settings);
}

}  // namespace vcl
