// The binary form of a form file, converted into the text form.
#include <algorithm>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/private/forminput.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"

namespace vcl {
namespace {

/// How many bytes of a string, and of binary data, stand on one line.
constexpr std::size_t StringWidth = 64;
constexpr std::size_t BinaryWidth = 32;

class TFormPrinter {
 public:
  explicit TFormPrinter(TStream& binary) : FInput(binary) {}

  /// All components of the stream as a text.
  std::string Print() {
    do {
      FInput.ReadSignature();
      PrintComponent();
    } while (!FInput.AtEnd());
    FInput.Finish();
    return std::move(FText);
  }

 private:
  void PrintComponent();
  void PrintProperties();
  void PrintValue();
  void PrintFloat();
  void PrintString();
  void PrintSet();
  void PrintList();
  void PrintCollection();
  void PrintBinary();

  /// Passes on a name that the text form can hold.
  std::string Checked(std::string name, bool dotted);
  void NewLine() { FText += '\n' + std::string(FIndent, ' '); }
  void Line(std::string_view text) { FText += Concat(std::string(FIndent, ' '), text, "\n"); }

  TFormInput FInput;
  std::string FText;
  std::size_t FIndent = 0;
};

std::string TFormPrinter::Checked(std::string name, bool dotted) {
  bool valid = !IsFormWord(name);
  for (std::string_view rest = name; valid;) {
    const auto dot = dotted ? rest.find('.') : std::string_view::npos;
    valid = IsValidIdent(rest.substr(0, dot));
    if (dot == std::string_view::npos) break;
    rest.remove_prefix(dot + 1);
  }
  if (!valid) FInput.Fail(Concat("'", Shown(name), "' is no name"));
  return name;
}

void TFormPrinter::PrintComponent() {
  const TFormInput::TLevel level(FInput);
  const TFormHeading heading = FInput.ReadHeading();
  std::string line = heading.Inherited ? "inherited " : heading.Inline ? "inline " : "object ";
  if (!heading.Name.empty()) line += Checked(heading.Name, false) + ": ";
  line += Checked(heading.ClassName, false);
  if (heading.Position) line += Concat(" [", IntToStr(*heading.Position), "]");
  Line(line);
  FIndent += 2;
  PrintProperties();
  while (!FInput.EndOfList()) PrintComponent();
  FInput.Take(TValueType::vaNull);
  FIndent -= 2;
  Line("end");
}

void TFormPrinter::PrintProperties() {
  while (!FInput.EndOfList()) {
    FText += Concat(std::string(FIndent, ' '), Checked(FInput.ReadName(), true), " = ");
    PrintValue();
    FText += '\n';
  }
  FInput.Take(TValueType::vaNull);
}

void TFormPrinter::PrintValue() {
  switch (FInput.NextValue()) {
    case TValueType::vaList: return PrintList();
    case TValueType::vaCollection: return PrintCollection();
    case TValueType::vaSet: return PrintSet();
    case TValueType::vaBinary: return PrintBinary();
    case TValueType::vaString:
    case TValueType::vaLString: return PrintString();
    case TValueType::vaDouble: return PrintFloat();
    case TValueType::vaIdent: return static_cast<void>(FText += Checked(FInput.ReadIdent(), true));
    case TValueType::vaFalse:
    case TValueType::vaTrue: return static_cast<void>(FText += BoolToStr(FInput.ReadBoolean()));
    case TValueType::vaNil: FInput.SkipValue(); return static_cast<void>(FText += "nil");
    case TValueType::vaNull:
    case TValueType::vaInt8:
    case TValueType::vaInt16:
    case TValueType::vaInt32:
    case TValueType::vaInt64:
    default: FText += IntToStr(FInput.ReadInteger());
  }
}

/// A float is told from an integer by its point or exponent.
void TFormPrinter::PrintFloat() {
  std::string text = FloatToStr(FInput.ReadFloat());
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  FText += text;
}

void TFormPrinter::PrintString() {
  const std::string text = FInput.ReadString();
  std::string_view rest = text;
  const bool several = rest.size() > StringWidth;
  FIndent += 2;
  if (several) NewLine();
  while (rest.size() > StringWidth) {
    std::size_t size = StringWidth;
    // A character of several bytes stays whole.
    while (size > 1 && (static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80) --size;
    FText += FormString(rest.substr(0, size));
    rest.remove_prefix(size);
    FText += " +";
    NewLine();
  }
  FText += FormString(rest);
  FIndent -= 2;
}

void TFormPrinter::PrintSet() {
  std::string_view separator;
  FText += '[';
  for (std::string& ident : FInput.ReadSet()) {
    FText += Concat(separator, Checked(std::move(ident), false));
    separator = ", ";
  }
  FText += ']';
}

void TFormPrinter::PrintList() {
  const TFormInput::TLevel level(FInput);
  FInput.Take(TValueType::vaList);
  FText += '(';
  FIndent += 2;
  while (!FInput.EndOfList()) {
    NewLine();
    PrintValue();
  }
  FIndent -= 2;
  FInput.Take(TValueType::vaNull);
  FText += ')';
}

void TFormPrinter::PrintCollection() {
  const TFormInput::TLevel level(FInput);
  FInput.Take(TValueType::vaCollection);
  FText += '<';
  FIndent += 2;
  while (!FInput.EndOfList()) {
    FInput.Take(TValueType::vaList);
    NewLine();
    FText += "item\n";
    FIndent += 2;
    PrintProperties();
    FIndent -= 2;
    FText += std::string(FIndent, ' ') + "end";
  }
  FIndent -= 2;
  FInput.Take(TValueType::vaNull);
  FText += '>';
}

void TFormPrinter::PrintBinary() {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  const std::string_view bytes = FInput.ReadBinary();
  FText += '{';
  FIndent += 2;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i % BinaryWidth == 0) NewLine();
    const auto byte = static_cast<unsigned char>(bytes[i]);
    FText += digits[byte >> 4];
    FText += digits[byte & 0xF];
  }
  FIndent -= 2;
  FText += '}';
}

}  // namespace

bool IsFormWord(std::string_view name) {
  static constexpr std::string_view words[] = {"object", "inherited", "inline", "end",
                                               "item",   "True",      "False",  "nil"};
  return std::ranges::any_of(words, [&](auto word) { return SameText(word, name); });
}

void ObjectBinaryToText(TStream& binary, TStream& text) {
  text.WriteText(TFormPrinter(binary).Print());
}

}  // namespace vcl
