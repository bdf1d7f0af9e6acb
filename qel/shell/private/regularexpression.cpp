// TRegularExpression: reading patterns, and walking through texts.
#include "qel/shell/private/regularexpression.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr std::size_t None = std::numeric_limits<std::size_t>::max();
constexpr std::size_t MostSteps = 20000;  // Of a pattern.
constexpr int MostRepetitions = 1000;

std::string Shown(std::u32string_view pattern) {
  std::string text;
  for (const char32_t each : pattern) text += vcl::Utf8(each);
  return vcl::Shown(text);
}

bool IsBlank(char32_t c) { return c == ' ' || (c >= 9 && c <= 13) || c == 0xA0; }
bool IsDigit(char32_t c) { return c >= '0' && c <= '9'; }

bool InClass(char32_t name, char32_t c) {
  switch (name) {
    case 'd': return IsDigit(c);
    case 'D': return !IsDigit(c);
    case 'w': return IsWordCharacter(c);
    case 'W': return !IsWordCharacter(c);
    case 's': return IsBlank(c);
    default: return !IsBlank(c);
  }
}

bool IsClass(char32_t c) {
  return std::u32string_view(U"dDwWsS").find(c) != std::u32string_view::npos;
}

}  // namespace

bool IsWordCharacter(char32_t c) {
  if (c < 0x80) return IsDigit(c) || c == '_' || (c | 0x20) - 'a' < 26;
  return c <= 0xFFFF && ::IsCharAlphaW(static_cast<wchar_t>(c));
}

char32_t SmallCharacter(char32_t c) {
  if (c < 0x80) return c >= 'A' && c <= 'Z' ? c + 32 : c;
  if (c > 0xFFFF) return c;
  // A character instead of a text, as the system takes it, too.
  const auto small = ::CharLowerW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(c)));
  return static_cast<char32_t>(reinterpret_cast<UINT_PTR>(small) & 0xFFFF);
}

// ---- Reading a pattern ----

/// Makes the steps of a pattern. What is repeated is written out as often as it has to be there.
class TRegularCompiler {
 public:
  TRegularCompiler(TRegularExpression& owner, std::u32string_view pattern)
      : FOwner(owner), FPattern(pattern) {}

  void Run() {
    Add({TOp::Save, 0, 0});
    Alternatives();
    if (!AtEnd()) Fail("a bracket is closed that is not open");
    Add({TOp::Save, 0, 1});
    Add({TOp::Match});
  }

 private:
  using TOp = TRegularExpression::TOperation;
  using TStep = TRegularExpression::TStep;

  [[noreturn]] void Fail(const char* why) const {
    throw vcl::EConvertError(vcl::Concat("'", Shown(FPattern), "' is no pattern: ", why));
  }
  bool AtEnd() const { return FAt == FPattern.size(); }
  bool Next(char32_t c) { return !AtEnd() && FPattern[FAt] == c && ++FAt; }
  char32_t Take(const char* missing) {
    if (AtEnd()) Fail(missing);
    return FPattern[FAt++];
  }
  std::vector<TStep>& Steps() { return FOwner.FSteps; }
  std::size_t Here() { return Steps().size(); }
  std::size_t Add(TStep step) {
    if (Here() == MostSteps) Fail("it is too long");
    Steps().push_back(step);
    return Here() - 1;
  }
  /// Makes room for a step before those from there on.
  void Insert(std::size_t at, TStep step) {
    if (Here() == MostSteps) Fail("it is too long");
    // What leads there from before leads to the new step; what is behind it moves.
    for (std::size_t i = at; i < Here(); ++i) {
      TStep& each = Steps()[i];
      const bool goes = each.Operation == TOp::Split || each.Operation == TOp::SplitLazily ||
                        each.Operation == TOp::Jump;
      if (goes && each.Where >= at) ++each.Where;
    }
    Steps().insert(Steps().begin() + static_cast<std::ptrdiff_t>(at), step);
  }

  void Alternatives() {
    std::vector<std::size_t> ends;
    std::size_t begin = Here();
    Sequence();
    while (Next('|')) {
      Insert(begin, {TOp::Split});
      ends.push_back(Add({TOp::Jump}));
      Steps()[begin].Where = Here();
      begin = Here();
      Sequence();
    }
    for (const std::size_t each : ends) Steps()[each].Where = Here();
  }

  void Sequence() {
    while (!AtEnd() && FPattern[FAt] != '|' && FPattern[FAt] != ')') {
      const std::size_t begin = Here(), from = FAt, groups = FOwner.FGroups;
      Atom();
      Repeat(begin, from, groups);
    }
  }

  void Atom() {
    const char32_t c = Take("");
    switch (c) {
      case '.': Add({TOp::Any}); return;
      case '^': Add({TOp::LineBegin}); return;
      case '$': Add({TOp::LineEnd}); return;
      case '[': return Set();
      case '(': return Group();
      case '*':
      case '+':
      case '?': Fail("there is nothing before a repetition");
      case '\\': return Escape();
      default: Literal(c);
    }
  }

  void Literal(char32_t c) { Add({TOp::Character, FOwner.FMatchCase ? c : SmallCharacter(c)}); }

  static std::optional<char32_t> Control(char32_t c) {
    switch (c) {
      case 'n': return U'\n';
      case 'r': return U'\r';
      case 't': return U'\t';
      default: return {};
    }
  }

  void Escape() {
    const char32_t c = Take("a backslash ends it");
    if (c == 'b' || c == 'B') {
      Add({c == 'b' ? TOp::WordEdge : TOp::NoWordEdge});
    } else if (IsClass(c)) {
      FOwner.FSets.push_back({{}, std::u32string(1, c), false});
      Add({TOp::Set, 0, FOwner.FSets.size() - 1});
    } else {
      Literal(Control(c).value_or(c));
    }
  }

  void Group() {
    if (++FDepth > 200) Fail("its brackets are too deep");
    const bool plain = FPattern.substr(FAt).starts_with(U"?:");
    if (plain) FAt += 2;
    const std::size_t group = plain ? 0 : FOwner.FGroups++;
    if (!plain) Add({TOp::Save, 0, 2 * group});
    Alternatives();
    if (!Next(')')) Fail("a bracket is not closed");
    if (!plain) Add({TOp::Save, 0, 2 * group + 1});
    --FDepth;
  }

  void Set() {
    TRegularExpression::TSet set;
    set.Negated = Next('^');
    bool first = true;
    for (char32_t c; (c = Take("a set is not closed")) != ']' || first; first = false) {
      if (c == '\\') {
        c = Take("a set is not closed");
        if (IsClass(c)) {
          set.Classes += c;
          continue;
        }
        c = Control(c).value_or(c);
      }
      char32_t to = c;
      const bool range = FPattern.substr(FAt).starts_with(U"-") && FAt + 1 < FPattern.size() &&
                         FPattern[FAt + 1] != ']';
      if (range) {
        ++FAt;
        to = Take("a set is not closed");
        if (to == '\\') to = Take("a set is not closed");
        if (to < c) Fail("a range ends before it begins");
      }
      set.Ranges.push_back({c, to});
    }
    FOwner.FSets.push_back(std::move(set));
    Add({TOp::Set, 0, FOwner.FSets.size() - 1});
  }

  std::optional<int> Number() {
    if (AtEnd() || !IsDigit(FPattern[FAt])) return {};
    int number = 0;
    while (!AtEnd() && IsDigit(FPattern[FAt])) {
      number = number * 10 + static_cast<int>(FPattern[FAt++] - '0');
      if (number > MostRepetitions) Fail("it repeats too often");
    }
    return number;
  }

  /// How often at least and at most, -1 for any number; nothing when nothing is said.
  std::optional<std::pair<int, int>> Count() {
    if (Next('*')) return std::pair(0, -1);
    if (Next('+')) return std::pair(1, -1);
    if (Next('?')) return std::pair(0, 1);
    const std::size_t brace = FAt;
    if (!Next('{')) return {};
    const std::optional<int> least = Number();
    std::optional<int> most = least;
    const bool comma = Next(',');
    if (comma) most = Number();
    if (!least || !Next('}')) {
      FAt = brace;  // A mere brace.
      Literal(FPattern[FAt++]);
      return {};
    }
    if (most && *most < *least) Fail("a repetition ends before it begins");
    return std::pair(*least, most ? *most : -1);
  }

  /// Repeats the steps from `begin` on, whose pattern begins at `from`.
  void Repeat(std::size_t begin, std::size_t from, std::size_t groups) {
    const auto count = Count();
    if (!count) return;
    const auto [least, most] = *count;
    const TOp split = Next('?') ? TOp::SplitLazily : TOp::Split;
    const std::size_t behind = FAt;
    Steps().resize(begin);
    // The same pattern once more, whose groups are the same ones.
    const auto once = [&] {
      FOwner.FGroups = groups;
      FAt = from;
      Atom();
    };
    for (int i = 0; i < least; ++i) once();
    if (most < 0) {
      const std::size_t mark = FOwner.FMarks++;
      const std::size_t loop = Add({split});
      Add({TOp::Mark, 0, mark});
      once();
      Add({TOp::Moved, 0, mark});
      Add({TOp::Jump, 0, loop});
      Steps()[loop].Where = Here();
    }
    std::vector<std::size_t> ways;
    for (int i = least; i < most; ++i) {
      ways.push_back(Add({split}));
      once();
    }
    for (const std::size_t each : ways) Steps()[each].Where = Here();
    if (least == 0 && most == 0) {
      once();  // For its groups alone.
      Steps().resize(begin);
    }
    FAt = behind;
  }

  TRegularExpression& FOwner;
  std::u32string_view FPattern;
  std::size_t FAt = 0;
  int FDepth = 0;
};

TRegularExpression::TRegularExpression(std::u32string_view pattern, bool matchCase)
    : FMatchCase(matchCase) {
  TRegularCompiler(*this, pattern).Run();
}

// ---- Walking through a text ----

bool TRegularExpression::Has(const TSet& set, char32_t c) const {
  const auto in = [&](char32_t each) {
    return std::ranges::any_of(set.Ranges, [each](const TSet::TRange& range) {
      return each >= range.From && each <= range.To;
    });
  };
  bool has =
      in(c) || std::ranges::any_of(set.Classes, [c](char32_t name) { return InClass(name, c); });
  if (!has && !FMatchCase) {
    const char32_t small = SmallCharacter(c);
    has = in(small) ||
          (small != c ? false : std::ranges::any_of(set.Ranges, [&](const TSet::TRange& r) {
            return r.To - r.From < 256 && [&] {
              for (char32_t each = r.From; each <= r.To; ++each) {
                if (SmallCharacter(each) == small) return true;
              }
              return false;
            }();
          }));
  }
  return has != set.Negated;
}

namespace {

/// A way back: to another step at a place, or a slot to what it was.
struct TBack {
  std::size_t Step;  ///< None for a slot.
  std::size_t Place;
  std::size_t Slot;
};

bool IsWordEdge(std::u32string_view text, std::size_t at) {
  const bool before = at > 0 && IsWordCharacter(text[at - 1]);
  const bool behind = at < text.size() && IsWordCharacter(text[at]);
  return before != behind;
}

bool IsLineEnd(std::u32string_view text, std::size_t at) {
  if (at == text.size() || text[at] == '\n')
    return !(at > 0 && at < text.size() && text[at - 1] == '\r');
  return text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
}

}  // namespace

/// Whether the pattern matches at that place; `slots` are where its groups begin and end, and
/// behind them where the loops' rounds began.
bool TRegularExpression::Run(std::u32string_view text, std::size_t at,
                             std::vector<std::size_t>& slots, std::size_t& steps) const {
  std::vector<TBack> back;
  std::size_t step = 0;
  const auto set = [&](std::size_t slot, std::size_t place) {
    back.push_back({None, slots[slot], slot});
    slots[slot] = place;
  };
  const auto otherWay = [&] {
    while (!back.empty()) {
      const TBack last = back.back();
      back.pop_back();
      if (last.Step == None) {
        slots[last.Slot] = last.Place;
      } else {
        step = last.Step;
        at = last.Place;
        return true;
      }
    }
    return false;
  };
  for (;;) {
    if (steps-- == 0) throw vcl::EInvalidOperation("The pattern takes too many steps");
    const TStep& now = FSteps[step];
    bool goesOn = true;
    switch (now.Operation) {
      case TOperation::Match: return true;
      case TOperation::Character:
        goesOn =
            at < text.size() && (FMatchCase ? text[at] : SmallCharacter(text[at])) == now.Character;
        if (goesOn) ++at;
        break;
      case TOperation::Any:
        goesOn = at < text.size() && text[at] != '\n' && text[at] != '\r';
        if (goesOn) ++at;
        break;
      case TOperation::Set:
        goesOn = at < text.size() && Has(FSets[now.Where], text[at]);
        if (goesOn) ++at;
        break;
      case TOperation::Split: back.push_back({now.Where, at, 0}); break;
      case TOperation::SplitLazily:
        back.push_back({step + 1, at, 0});
        step = now.Where;
        continue;
      case TOperation::Jump: step = now.Where; continue;
      case TOperation::Save: set(now.Where, at); break;
      case TOperation::Mark: set(2 * FGroups + now.Where, at); break;
      case TOperation::Moved: goesOn = slots[2 * FGroups + now.Where] != at; break;
      case TOperation::LineBegin: goesOn = at == 0 || text[at - 1] == '\n'; break;
      case TOperation::LineEnd: goesOn = IsLineEnd(text, at); break;
      case TOperation::WordEdge: goesOn = IsWordEdge(text, at); break;
      case TOperation::NoWordEdge: goesOn = !IsWordEdge(text, at); break;
    }
    if (goesOn) {
      ++step;
    } else if (!otherWay()) {
      return false;
    }
  }
}

std::optional<TRegularMatch> TRegularExpression::Find(std::u32string_view text, std::size_t from,
                                                      std::size_t& steps) const {
  for (std::size_t at = from; at <= text.size(); ++at) {
    std::vector<std::size_t> slots(2 * FGroups + FMarks, None);
    if (!Run(text, at, slots, steps)) continue;
    TRegularMatch match;
    for (std::size_t i = 0; i < FGroups; ++i) {
      const bool there = slots[2 * i] != None && slots[2 * i + 1] != None;
      match.Groups.push_back(
          there ? std::optional(TRegularMatch::TSpan{slots[2 * i], slots[2 * i + 1]})
                : std::nullopt);
    }
    return match;
  }
  return {};
}

}  // namespace qel
