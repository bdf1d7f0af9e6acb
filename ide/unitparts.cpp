// Finding the class, its table and its methods in a unit's text.
#include "ide/unitparts.h"

#include <algorithm>

#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;
using TSort = TClassMember::TSort;

namespace {

bool IsClassKey(const TCppText& text, std::size_t at) {
  return text.Is(at, "class") || text.Is(at, "struct");
}

/// The token of the opening brace when the name at the token is that of a class being defined;
/// else 0. A macro may stand between `class` and the name.
std::size_t BodyOfClass(const TCppText& text, std::size_t name) {
  const bool named = (name >= 1 && IsClassKey(text, name - 1)) ||
                     (name >= 2 && IsClassKey(text, name - 2) && text.IsName(name - 1));
  if (!named) return 0;
  std::size_t at = name + 1;
  while (at < text.Count() && !text.Is(at, "{") && !text.Is(at, ";") && !text.Is(at, "(")) ++at;
  return text.Is(at, "{") ? at : 0;
}

std::vector<std::size_t> Bodies(const TCppText& text, std::string_view className) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < text.Count(); ++i) {
    if (!text.IsName(i) || !text.Is(i, className)) continue;
    if (const std::size_t body = BodyOfClass(text, i)) found.push_back(body);
  }
  return found;
}

bool IsOpening(const TCppText& text, std::size_t at) {
  return text.Is(at, "(") || text.Is(at, "[") || text.Is(at, "{");
}

/// The last token of the member that begins there.
std::size_t EndOfMember(const TCppText& text, std::size_t first, std::size_t close) {
  const bool type = IsClassKey(text, first) || text.Is(first, "enum") || text.Is(first, "union");
  for (std::size_t i = first; i < close; ++i) {
    if (text.Is(i, ";")) return i;
    const bool brace = text.Is(i, "{");
    if (IsOpening(text, i)) i = text[i].Mate;
    if (brace && text.Is(i + 1, ";")) return i + 1;
    if (brace && !type && !text.Is(i + 1, ",")) return i;
  }
  return close - 1;
}

/// Adds the method that is declared there, or the fields that are pointers.
void AddMember(const TCppText& text, std::size_t first, std::size_t last, TClassPart& part) {
  std::size_t star = 0;
  const std::size_t before = part.Members.size();
  for (std::size_t i = first; i <= last; ++i) {
    const bool named = i > first && text.IsName(i - 1);
    if (text.Is(i, "(")) {
      if (named && !star) part.Members.push_back({TSort::Method, text[i - 1].Text, first, last});
      break;
    }
    if (text.Is(i, "*") && text.IsName(i + 1) && !text.Is(i + 2, "(")) {
      star = i++;
      part.Members.push_back({TSort::Field, text[i].Text, first, last, star});
    }
  }
  const bool shared = part.Members.size() - before > 1;
  for (std::size_t i = before; i < part.Members.size(); ++i) part.Members[i].Shared = shared;
}

}  // namespace

// The class.

const TClassMember* TClassPart::Find(std::string_view name) const {
  const auto found = std::ranges::find_if(
      Members, [&](const TClassMember& member) { return SameText(member.Name, name); });
  return found == Members.end() ? nullptr : &*found;
}

bool HasClass(const TCppText& text, std::string_view className) {
  return !Bodies(text, className).empty();
}

TClassPart FindClass(const TCppText& text, const std::string& className) {
  const std::vector<std::size_t> bodies = Bodies(text, className);
  if (bodies.empty()) text.Refuse(text.Text().size(), Concat("there is no class ", className));
  if (bodies.size() > 1) {
    text.Refuse(text[bodies[1]].Begin, Concat("the class ", className, " is there twice"));
  }
  TClassPart part{bodies[0], text[bodies[0]].Mate, {}};
  for (std::size_t i = part.Open + 1; i < part.Close; ++i) {
    if (text[i].Sort == TCppToken::TSort::Directive) continue;
    if (text.Is(i + 1, ":")) {
      if (text.Is(i, "private") && !part.PrivateLabel) part.PrivateLabel = i + 1;
      ++i;
      continue;
    }
    const std::size_t last = EndOfMember(text, i, part.Close);
    AddMember(text, i, last, part);
    i = last;
  }
  return part;
}

// The table.

namespace {

/// The opening brace of the table when `Describe` at the token is that of the class; else 0.
std::size_t TableOf(const TCppText& text, std::size_t describe, const std::string& className) {
  std::size_t at = describe;
  while (at < text.Count() && !text.Is(at, "(") && !text.Is(at, ";") && !text.Is(at, "{")) ++at;
  if (!text.Is(at, "(") || text[at + 1].Text != Concat("\"", className, "\"")) return 0;
  const std::size_t end = text[at].Mate;
  while (at < end && !text.Is(at, "{")) ++at;
  return at < end ? at : 0;
}

void AddEntry(const TCppText& text, std::size_t first, std::size_t last, TTablePart& part) {
  const std::size_t sort = text.Is(first, "vcl") && text.Is(first + 1, "::") ? first + 2 : first;
  const bool field = text.Is(sort, "Field");
  if ((!field && !text.Is(sort, "Method")) || !text.Is(last, ")")) return;
  const TCppToken& name = text[last - 1];
  if (name.Sort != TCppToken::TSort::Text || name.Text.size() < 2) return;
  part.Entries.push_back({field ? TSort::Field : TSort::Method,
                          std::string(name.Text.substr(1, name.Text.size() - 2)), first, last});
}

}  // namespace

TTablePart FindTable(const TCppText& text, const std::string& className) {
  TTablePart part{};
  for (std::size_t i = 0; i < text.Count(); ++i) {
    const std::size_t open = text.Is(i, "Describe") ? TableOf(text, i, className) : 0;
    if (open && part.Open) {
      text.Refuse(text[i].Begin, Concat("the table of ", className, " is there twice"));
    }
    if (open) part.Open = open;
  }
  if (!part.Open) {
    text.Refuse(text.Text().size(), Concat("there is no table Describe<", className, ", …>(\"",
                                           className, "\", …, {…}) of the class"));
  }
  part.Close = text[part.Open].Mate;
  int angles = 0;
  std::size_t first = part.Open + 1;
  for (std::size_t i = first; i <= part.Close; ++i) {
    if (i < part.Close && IsOpening(text, i)) i = text[i].Mate;
    if (text.Is(i, "<")) ++angles;
    if (text.Is(i, ">")) --angles;
    if (i != part.Close && (angles > 0 || !text.Is(i, ","))) continue;
    if (first < i) AddEntry(text, first, i - 1, part);
    first = i + 1;
  }
  return part;
}

// Methods.

TMethodBody FindBody(const TCppText& text, std::string_view className, std::string_view method) {
  for (std::size_t i = 0; i + 3 < text.Count(); ++i) {
    const bool named = text.Is(i, className) && text.Is(i + 1, "::") && text.Is(i + 3, "(") &&
                       SameText(text[i + 2].Text, method);
    if (!named) continue;
    const std::size_t open = text[i + 3].Mate + 1;
    if (!text.Is(open, "{")) continue;
    while (i > 0 && (text.IsName(i - 1) || text.Is(i - 1, "::"))) --i;
    return {i, open, text[open].Mate};
  }
  return {};
}

std::vector<TMethod> FindMethods(const TCppText& text, std::string_view className) {
  std::vector<TMethod> methods;
  for (std::size_t i = 1; i + 3 < text.Count(); ++i) {
    const bool defined = text.Is(i - 1, "void") && text.Is(i, className) && text.Is(i + 1, "::") &&
                         text.Is(i + 3, "(") && text.Is(text[i + 3].Mate + 1, "{");
    if (!defined) continue;
    const std::size_t open = text[i + 3].Begin, close = text[text[i + 3].Mate].End;
    methods.push_back(
        {std::string(text[i + 2].Text), std::string(text.Text().substr(open, close - open))});
  }
  return methods;
}

std::size_t EndOfNamespace(const TCppText& text, std::size_t token) {
  std::size_t end = text.Count();
  for (std::size_t i = 0; i < token; ++i) {
    if (!text.Is(i, "{") || text[i].Mate < token) continue;
    std::size_t before = i;
    while (before > 0 && (text.IsName(before - 1) || text.Is(before - 1, "::"))) {
      if (text.Is(--before, "namespace")) end = text[i].Mate;
    }
  }
  return end;
}

}  // namespace ide
