// The texts of dates and times.
#include <algorithm>

#include "host/rtl/convert.h"
#include "host/rtl/datetime.h"
#include "host/rtl/text.h"

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

class TDatePrinter {
 public:
  TDatePrinter(TDateTime value, const TFormatSettings& settings)
      : FSettings(settings), FDayOfWeek(DayOfWeek(value)) {
    DecodeDate(value, FYear, FMonth, FDay);
    DecodeTime(value, FHour, FMinute, FSecond, FMillisecond);
  }

  std::string Print(std::string_view format, bool nested = false) {
    // A setting that asks for itself says nothing.
    if (nested && FNested) return {};
    FNested = nested;
    FHalfDays = AsksForHalfDay(format);
    FBehindHour = false;
    std::string text;
    while (!format.empty()) text += Take(format);
    return text;
  }

 private:
  std::string Take(std::string_view& format) {
    std::string_view part = HalfDay(format);
    if (!part.empty()) return format.remove_prefix(part.size()), HalfDayText(part);
    const char letter = Lower(format.front());
    part = IsQuote(letter) ? Quoted(format) : Run(format);
    format.remove_prefix(part.size());
    if (IsQuote(letter)) return Unquoted(part);
    return Specified(letter, part);
  }

  /// The same letter several times.
  static std::string_view Run(std::string_view format) {
    const auto end =
        std::ranges::find_if_not(format, [&](char c) { return Lower(c) == Lower(format.front()); });
    return format.substr(0, static_cast<std::size_t>(end - format.begin()));
  }

  static std::string Unquoted(std::string_view part) {
    const char quote = part.front();
    part.remove_prefix(1);
    if (part.ends_with(quote)) part.remove_suffix(1);
    return std::string(part);
  }

  std::string Specified(char letter, std::string_view run) {
    const int count = static_cast<int>(run.size());
    const bool minutes = FBehindHour && letter == 'm' && count <= 2;
    if (letter >= 'a' && letter <= 'z') FBehindHour = letter == 'h';
    switch (minutes ? 'n' : letter) {
      case 'd': return Day(count);
      case 'm': return Month(count);
      case 'y': return count > 2 ? Number(FYear, 4) : Number(FYear % 100, 2);
      case 'h': return Number(FHalfDays ? (FHour + 11) % 12 + 1 : FHour, std::min(count, 2));
      case 'n': return Number(FMinute, std::min(count, 2));
      case 's': return Number(FSecond, std::min(count, 2));
      case 'z': return Number(FMillisecond, count < 3 ? 1 : 3);
      case 't': return Setting(count == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat);
      case 'c': return DateAndTime();
      case '/': return Repeated(FSettings.DateSeparator, count);
      case ':': return Repeated(FSettings.TimeSeparator, count);
      default: return std::string(run);
    }
  }

  static std::string Number(int value, int digits) {
    std::string text = IntToStr(value);
    const auto missing = std::max(0, digits - static_cast<int>(text.size()));
    return std::string(static_cast<std::size_t>(missing), '0') + text;
  }

  static std::string Repeated(const std::string& piece, int count) {
    std::string text;
    while (count-- > 0) text += piece;
    return text;
  }

  template <class Names>
  static std::string Name(const Names& names, int number) {
    return names[static_cast<std::size_t>(number - 1)];
  }

  std::string Day(int count) {
    switch (count) {
      case 1:
      case 2: return Number(FDay, count);
      case 3: return Name(FSettings.ShortDayNames, FDayOfWeek);
      case 4: return Name(FSettings.LongDayNames, FDayOfWeek);
      case 5: return Setting(FSettings.ShortDateFormat);
      default: return Setting(FSettings.LongDateFormat);
    }
  }

  std::string Month(int count) const {
    if (count <= 2) return Number(FMonth, count);
    return Name(count == 3 ? FSettings.ShortMonthNames : FSettings.LongMonthNames, FMonth);
  }

  std::string HalfDayText(std::string_view specifier) const {
    const bool morning = FHour < 12;
    if (SameText(specifier, "ampm")) {
      return morning ? FSettings.TimeAMString : FSettings.TimePMString;
    }
    const std::size_t slash = specifier.find('/');
    return std::string(morning ? specifier.substr(0, slash) : specifier.substr(slash + 1));
  }

  std::string DateAndTime() {
    const std::string date = Setting(FSettings.ShortDateFormat);
    const bool midnight = FHour + FMinute + FSecond + FMillisecond == 0;
    return midnight ? date : Concat(date, " ", Setting(FSettings.LongTimeFormat));
  }

  std::string Setting(const std::string& format) {
    TDatePrinter other(*this);
    return other.Print(format, true);
  }

  const TFormatSettings& FSettings;
  int FDayOfWeek;
  int FYear = 0, FMonth = 0, FDay = 0;
  int FHour = 0, FMinute = 0, FSecond = 0, FMillisecond = 0;
  bool FNested = false;
  bool FHalfDays = false;
  bool FBehindHour = false;
};

}  // namespace

std::string FormatDateTime(std::string_view format, TDateTime value,
                           const TFormatSettings& settings) {
  return TDatePrinter(value, settings).Print(format.empty() ? "c" : format);
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
