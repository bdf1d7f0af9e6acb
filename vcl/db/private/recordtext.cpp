// Records as lines: a mark, a line for each field, an empty one, and a line for each record, with
// tabs between its values.
#include "vcl/db/private/recordvalues.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr std::string_view Mark = "records 1";
constexpr std::string_view NullMark = "\\N";

struct TEscape {
  char Character, Letter;
};
constexpr TEscape Escapes[] = {{'\\', '\\'}, {'\t', 't'}, {'\r', 'r'}, {'\n', 'n'}, {'\0', '0'}};

void AppendEscaped(std::string& line, std::string_view text) {
  for (const char c : text) {
    char letter = '\0';
    for (const TEscape& escape : Escapes) {
      if (escape.Character == c) letter = escape.Letter;
    }
    if (letter) line += '\\';
    line += letter ? letter : c;
  }
}

class TTextReader : public TRecordReader {
 public:
  using TRecordReader::TRecordReader;

  TSavedRecords Read() {
    if (FText.empty() || TakeLine() != Mark) Fail("this is no file of records");
    for (std::string_view line = NeedLine(); !line.empty(); line = NeedLine()) ReadField(line);
    if (FRead.Fields.empty()) Fail("there are no fields");
    while (!FText.empty()) {
      ++FLine;
      ReadRecord(TakeLine());
    }
    return std::move(FRead);
  }

 private:
  std::string_view TakeLine() {
    const std::size_t end = FText.find('\n');
    if (end == FText.npos) Fail("the line is cut");
    std::string_view line = FText.substr(0, end);
    FText.remove_prefix(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
  }
  std::string_view NeedLine() {
    ++FLine;
    if (FText.empty()) Fail("the file ends within the fields");
    return TakeLine();
  }
  std::string Unescaped(std::string_view text) const;
  void ReadField(std::string_view line);
  void ReadRecord(std::string_view line);
};

std::string TTextReader::Unescaped(std::string_view text) const {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      plain += text[i];
      continue;
    }
    const char letter = ++i < text.size() ? text[i] : ' ';
    const TEscape* found = nullptr;
    for (const TEscape& escape : Escapes) {
      if (escape.Letter == letter) found = &escape;
    }
    if (!found) Fail(Concat("\"\\", std::string(1, letter), "\" means nothing"));
    plain += found->Character;
  }
  return plain;
}

/// "ftString(8)! Name": what must have a value has the "!".
void TTextReader::ReadField(std::string_view line) {
  const std::size_t blank = std::min(line.find(' '), line.size());
  std::string_view kind = line.substr(0, blank);
  TSavedField field;
  field.Name = Unescaped(line.substr(std::min(blank + 1, line.size())));
  field.Required = kind.ends_with('!');
  if (field.Required) kind.remove_suffix(1);
  const std::size_t open = kind.find('(');
  if (open != kind.npos) {
    const std::string_view size =
        kind.substr(open + 1, kind.size() - std::min(kind.size(), open + 2));
    if (!kind.ends_with(')') || !TryStrToInt(size, field.Size) || field.Size < 1) {
      Fail(Concat("'", Shown(kind.substr(open)), "' is no size"));
    }
    kind = kind.substr(0, open);
  }
  field.DataType = TypeOf(kind);
  AddField(std::move(field));
}

void TTextReader::ReadRecord(std::string_view line) {
  TRecord record;
  for (const TSavedField& field : FRead.Fields) {
    if (!record.empty() && !line.starts_with('\t')) Fail("there are too few values");
    if (!record.empty()) line.remove_prefix(1);
    const std::string_view value = line.substr(0, line.find('\t'));
    line.remove_prefix(value.size());
    record.push_back(value == NullMark ? TFieldValue() : ValueOf(Unescaped(value), field));
  }
  if (!line.empty()) Fail("there are too many values");
  FRead.Records.push_back(std::move(record));
}

}  // namespace

std::string WriteRecordText(const TSavedRecords& saved) {
  std::string text = Concat(Mark, "\r\n");
  for (const TSavedField& field : saved.Fields) {
    text += FieldTypeText(field.DataType);
    if (field.Size > 0) text += Concat("(", IntToStr(field.Size), ")");
    text += field.Required ? "! " : " ";
    AppendEscaped(text, field.Name);
    text += "\r\n";
  }
  text += "\r\n";
  for (const TRecord& record : saved.Records) {
    for (std::size_t i = 0; i < record.size(); ++i) {
      if (i > 0) text += '\t';
      if (IsNull(record[i])) {
        text += NullMark;
      } else {
        AppendEscaped(text, SavedText(record[i], saved.Fields[i]));
      }
    }
    text += "\r\n";
  }
  return text;
}

TSavedRecords ReadRecordText(std::string_view text) { return TTextReader(text).Read(); }

}  // namespace vcl
