// Records as JSON: an object with the fields, and then the records, which are arrays.
#include "vcl/db/private/recordvalues.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

struct TEscape {
  char Character, Letter;
};
constexpr TEscape Escapes[] = {{'"', '"'},  {'\\', '\\'}, {'\t', 't'}, {'\r', 'r'},
                               {'\n', 'n'}, {'\b', 'b'},  {'\f', 'f'}, {'/', '/'}};

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    char letter = '\0';
    for (const TEscape& escape : Escapes) {
      if (escape.Character == c && c != '/') letter = escape.Letter;
    }
    if (letter) {
      quoted += '\\';
      quoted += letter;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      quoted += Concat("\\u", IntToHex(static_cast<unsigned char>(c), 4));
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

std::string Json(const TFieldValue& value, const TSavedField& field) {
  if (IsNull(value)) return "null";
  const std::string text = SavedText(value, field);
  if (field.DataType == ftBoolean) return text == "True" ? "true" : "false";
  return SavedInQuotes(value, field) ? Quoted(text) : text;
}

/// Knows what the object consists of, so that nothing is nested deeper than that.
class TJsonReader : public TRecordReader {
 public:
  using TRecordReader::TRecordReader;

  TSavedRecords Read() {
    ReadObject([this](const std::string& name) {
      if (name == "fields" && FRead.Fields.empty()) return ReadFields();
      if (name != "records" || FRecordsRead) Fail(Concat("\"", Shown(name), "\" is unexpected"));
      if (FRead.Fields.empty()) Fail("the records come before their fields");
      FRecordsRead = true;
      ReadArray([this] { ReadRecord(); });
    });
    if (!FRecordsRead) Fail("there are no records");
    if (Next() != '\0') Fail("something follows the end");
    return std::move(FRead);
  }

 private:
  char Next();
  void Need(char c);
  bool TakeWord(std::string_view word);
  template <class Member>
  void ReadObject(const Member& member);
  template <class Item>
  void ReadArray(const Item& item);
  void ReadFields() {
    ReadArray([this] { ReadField(); });
    if (FRead.Fields.empty()) Fail("there are no fields");
  }
  void ReadField();
  void ReadRecord();
  TFieldValue ReadValue(const TSavedField& field);
  std::string ReadText();
  void ReadEscape(std::string& text);
  char32_t ReadUnit();
  std::string_view ReadNumber();

  bool FRecordsRead = false;
};

/// The next character that is no white space; NUL at the end.
char TJsonReader::Next() {
  while (!FText.empty() && std::string_view(" \t\r\n").find(FText[0]) != std::string_view::npos) {
    FLine += FText[0] == '\n';
    FText.remove_prefix(1);
  }
  return FText.empty() ? '\0' : FText[0];
}

void TJsonReader::Need(char c) {
  if (Next() != c || FText.empty()) {
    Fail(Concat("'", std::string(1, c), "' was expected",
                FText.empty() ? ", not the end" : Concat(", not '", FText.substr(0, 1), "'")));
  }
  FText.remove_prefix(1);
}

bool TJsonReader::TakeWord(std::string_view word) {
  Next();
  if (!FText.starts_with(word)) return false;
  FText.remove_prefix(word.size());
  return true;
}

template <class Member>
void TJsonReader::ReadObject(const Member& member) {
  Need('{');
  do {
    const std::string name = ReadText();
    Need(':');
    member(name);
  } while (TakeWord(","));
  Need('}');
}

template <class Item>
void TJsonReader::ReadArray(const Item& item) {
  Need('[');
  if (TakeWord("]")) return;
  do {
    item();
  } while (TakeWord(","));
  Need(']');
}

void TJsonReader::ReadField() {
  TSavedField field;
  ReadObject([&](const std::string& name) {
    if (name == "name") {
      field.Name = ReadText();
    } else if (name == "type") {
      field.DataType = TypeOf(ReadText());
    } else if (name == "size") {
      const std::string_view size = ReadNumber();
      if (!TryStrToInt(size, field.Size) || field.Size < 0) {
        Fail(Concat("'", Shown(size), "' is no size"));
      }
    } else if (name == "required") {
      field.Required = TakeWord("true");
      if (!field.Required && !TakeWord("false")) Fail("true or false was expected");
    } else {
      Fail(Concat("\"", Shown(name), "\" is unexpected"));
    }
  });
  if (field.DataType == ftUnknown) Fail("a field has no type");
  AddField(std::move(field));
}

void TJsonReader::ReadRecord() {
  TRecord record;
  ReadArray([&] {
    if (record.size() == FRead.Fields.size()) Fail("there are too many values");
    record.push_back(ReadValue(FRead.Fields[record.size()]));
  });
  if (record.size() < FRead.Fields.size()) Fail("there are too few values");
  FRead.Records.push_back(std::move(record));
}

TFieldValue TJsonReader::ReadValue(const TSavedField& field) {
  if (TakeWord("null")) return {};
  if (TakeWord("true")) return ValueOf("True", field);
  if (TakeWord("false")) return ValueOf("False", field);
  return Next() == '"' ? ValueOf(ReadText(), field) : ValueOf(ReadNumber(), field);
}

std::string_view TJsonReader::ReadNumber() {
  Next();
  const std::size_t length = std::min(FText.find_first_not_of("+-.eE0123456789"), FText.size());
  if (length == 0) Fail("a value was expected");
  const std::string_view number = FText.substr(0, length);
  FText.remove_prefix(length);
  return number;
}

std::string TJsonReader::ReadText() {
  Need('"');
  std::string text;
  for (;;) {
    if (FText.empty() || static_cast<unsigned char>(FText[0]) < 0x20) Fail("the text does not end");
    const char c = FText[0];
    FText.remove_prefix(1);
    if (c == '"') return text;
    if (c == '\\') {
      ReadEscape(text);
    } else {
      text += c;
    }
  }
}

void TJsonReader::ReadEscape(std::string& text) {
  const char letter = FText.empty() ? '\0' : FText[0];
  FText.remove_prefix(std::min<std::size_t>(1, FText.size()));
  for (const TEscape& escape : Escapes) {
    if (escape.Letter != letter) continue;
    text += escape.Character;
    return;
  }
  if (letter != 'u') Fail("the escape means nothing");
  char32_t unit = ReadUnit();
  if (unit >= 0xD800 && unit < 0xDC00 && FText.starts_with("\\u")) {
    FText.remove_prefix(2);
    const char32_t low = ReadUnit();
    if (low < 0xDC00 || low > 0xDFFF) Fail("half a character stands alone");
    unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }
  const std::string character = Utf8(unit);
  if (character.empty()) Fail("half a character stands alone");
  text += character;
}

char32_t TJsonReader::ReadUnit() {
  const std::string_view digits = FText.substr(0, 4);
  int unit = 0;
  if (digits.size() < 4 || digits.find_first_not_of("0123456789ABCDEFabcdef") != digits.npos) {
    Fail("the escape means nothing");
  }
  TryStrToInt(Concat("$", digits), unit);
  FText.remove_prefix(4);
  return static_cast<char32_t>(unit);
}

}  // namespace

std::string WriteRecordJson(const TSavedRecords& saved) {
  std::string text = "{\"fields\": [";
  for (const TSavedField& field : saved.Fields) {
    text += Concat(&field == saved.Fields.data() ? "\r\n" : ",\r\n",
                   "  {\"name\": ", Quoted(field.Name),
                   ", \"type\": ", Quoted(FieldTypeText(field.DataType)));
    if (field.Size > 0) text += Concat(", \"size\": ", IntToStr(field.Size));
    text += field.Required ? ", \"required\": true}" : "}";
  }
  text += "],\r\n\"records\": [";
  for (const TRecord& record : saved.Records) {
    text += &record == saved.Records.data() ? "\r\n  [" : ",\r\n  [";
    for (std::size_t i = 0; i < record.size(); ++i) {
      if (i > 0) text += ", ";
      text += Json(record[i], saved.Fields[i]);
    }
    text += "]";
  }
  return text + "]}\r\n";
}

TSavedRecords ReadRecordJson(std::string_view text) { return TJsonReader(text).Read(); }

}  // namespace vcl
