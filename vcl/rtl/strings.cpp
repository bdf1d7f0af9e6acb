// TStrings: what every list of texts can do with its lines: whole texts, comma texts, names and
// values, files.
#include "vcl/rtl/strings.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/reader.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/writer.h"

namespace vcl {
namespace {

bool IsBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

bool NeedsQuotes(const std::string& line) {
  return line.empty() ||
         std::ranges::any_of(line, [](char c) { return IsBlank(c) || c == ',' || c == '"'; });
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

/// Takes a quoted piece off the front of the rest, which begins with a quote.
std::string TakeQuoted(std::string_view& rest) {
  std::string piece;
  rest.remove_prefix(1);
  while (!rest.empty()) {
    const bool quote = rest.front() == '"';
    if (quote && !rest.starts_with("\"\"")) break;
    piece += rest.front();
    rest.remove_prefix(quote ? 2 : 1);
  }
  rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  return piece;
}

std::string TakePlain(std::string_view& rest) {
  const auto end = std::ranges::find_if(rest, [](char c) { return IsBlank(c) || c == ','; });
  std::string piece(rest.begin(), end);
  rest.remove_prefix(piece.size());
  return piece;
}

void SkipBlanks(std::string_view& rest) {
  while (!rest.empty() && IsBlank(rest.front())) rest.remove_prefix(1);
}

}  // namespace

const TClass& TStrings::Class() {
  static const TClass info =
      Describe<TStrings, TPersistent>("vcl::TStrings", "vcl/rtl/strings.h", {});
  return info;
}

void TStrings::CheckIndex(int index, int limit) const {
  if (index >= 0 && index < limit) return;
  throw EStringListError(Concat("List index ", std::to_string(index),
                                " is out of bounds: there are ", std::to_string(Count()),
                                " lines"));
}

int TStrings::AddObject(const std::string& text, TObject* object) {
  InsertObject(Count(), text, object);
  return Count() - 1;
}

void TStrings::AddStrings(const TStrings& other) {
  const TUpdating updating(*this);
  // Counted once, because a list may be added to itself.
  for (int i = 0, count = other.Count(); i < count; ++i)
    AddObject(other.Strings(i), other.Objects(i));
}

void TStrings::Exchange(int a, int b) {
  CheckIndex(a, Count());
  CheckIndex(b, Count());
  const TUpdating updating(*this);
  const std::string text = Strings(a);
  TObject* object = Objects(a);
  SetStrings(a, Strings(b));
  SetObjects(a, Objects(b));
  SetStrings(b, text);
  SetObjects(b, object);
}

void TStrings::Move(int from, int to) {
  CheckIndex(from, Count());
  CheckIndex(to, Count());
  const TUpdating updating(*this);
  const std::string text = Strings(from);
  TObject* object = Objects(from);
  Delete(from);
  InsertObject(to, text, object);
}

int TStrings::IndexOf(std::string_view text) const {
  for (int i = 0; i < Count(); ++i) {
    if (AnsiSameText(Strings(i), text)) return i;
  }
  return -1;
}

int TStrings::IndexOfObject(const TObject* object) const {
  for (int i = 0; i < Count(); ++i) {
    if (Objects(i) == object) return i;
  }
  return -1;
}

std::string TStrings::Text() const {
  std::string text;
  for (int i = 0; i < Count(); ++i) text.append(Strings(i)).append("\r\n");
  return text;
}

void TStrings::SetText(std::string_view text) {
  const std::string copy(text);  // The text may be one of the lines that are about to go.
  std::string_view rest = copy;
  const TUpdating updating(*this);
  Clear();
  while (!rest.empty()) {
    const auto end = std::min(rest.find_first_of("\r\n"), rest.size());
    Add(std::string(rest.substr(0, end)));
    rest.remove_prefix(end);
    const std::size_t ending = rest.starts_with("\r\n") ? 2 : 1;
    rest.remove_prefix(std::min(ending, rest.size()));
  }
}

std::string TStrings::CommaText() const {
  std::string text;
  for (int i = 0; i < Count(); ++i) {
    const std::string line = Strings(i);
    // An empty line is seen between commas, but not when it is the only one.
    const bool quotes = NeedsQuotes(line) && (!line.empty() || Count() == 1);
    if (i > 0) text += ',';
    text += quotes ? Quoted(line) : line;
  }
  return text;
}

void TStrings::SetCommaText(std::string_view text) {
  const std::string copy(text);
  std::string_view rest = copy;
  const TUpdating updating(*this);
  Clear();
  SkipBlanks(rest);
  bool another = !rest.empty();
  while (another) {
    Add(rest.starts_with('"') ? TakeQuoted(rest) : TakePlain(rest));
    SkipBlanks(rest);
    another = !rest.empty();
    if (rest.starts_with(',')) {
      rest.remove_prefix(1);
      SkipBlanks(rest);
    }
  }
}

std::string TStrings::Names(int index) const {
  const std::string line = Strings(index);
  const auto sign = line.find('=');
  return sign == std::string::npos ? std::string() : line.substr(0, sign);
}

int TStrings::IndexOfName(std::string_view name) const {
  for (int i = 0; i < Count(); ++i) {
    const std::string line = Strings(i);
    const auto sign = line.find('=');
    if (sign != std::string::npos && SameText(std::string_view(line).substr(0, sign), name))
      return i;
  }
  return -1;
}

std::string TStrings::Values(std::string_view name) const {
  const int index = IndexOfName(name);
  return index < 0 ? std::string() : Strings(index).substr(name.size() + 1);
}

void TStrings::SetValues(std::string_view name, const std::string& value) {
  const int index = IndexOfName(name);
  const std::string line = Concat(name, "=", value);
  if (index >= 0) return value.empty() ? Delete(index) : SetStrings(index, line);
  if (!value.empty()) Add(line);
}

void TStrings::LoadFromStream(TStream& stream) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  std::string text = stream.ReadRest();
  if (text.starts_with(byteOrderMark)) text.erase(0, byteOrderMark.size());
  SetText(text);
}

void TStrings::SaveToStream(TStream& stream) const { stream.WriteText(Text()); }

void TStrings::LoadFromFile(const std::string& fileName) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  LoadFromStream(file);
}

void TStrings::SaveToFile(const std::string& fileName) const {
  TFileStream file(fileName, fmCreate);
  SaveToStream(file);
}

void TStrings::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TStrings*>(source);
  if (!other) return TPersistent::Assign(source);
  if (other == this) return;
  const TUpdating updating(*this);
  Clear();
  AddStrings(*other);
}

bool TStrings::Equals(const TStrings& other) const {
  if (Count() != other.Count()) return false;
  for (int i = 0; i < Count(); ++i) {
    if (Strings(i) != other.Strings(i) || Objects(i) != other.Objects(i)) return false;
  }
  return true;
}

void TStrings::BeginUpdate() {
  if (FUpdateCount == 0) SetUpdateState(true);
  ++FUpdateCount;
}

void TStrings::EndUpdate() {
  if (FUpdateCount > 0 && --FUpdateCount == 0) SetUpdateState(false);
}

void TStrings::DefineProperties(TFiler& filer) {
  const auto read = [this](TReader& reader) {
    const TUpdating updating(*this);
    reader.ReadListBegin();
    Clear();
    while (!reader.EndOfList()) Add(reader.ReadString());
    reader.ReadListEnd();
  };
  const auto write = [this](TWriter& writer) {
    writer.WriteListBegin();
    for (int i = 0; i < Count(); ++i) writer.WriteString(Strings(i));
    writer.WriteListEnd();
  };
  filer.DefineProperty("Strings", read, write, Count() > 0);
}

}  // namespace vcl
