// The text form of a form file, converted into the binary form.
#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/private/formlexer.h"
#include "vcl/rtl/private/formoutput.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

class TFormParser {
 public:
  TFormParser(std::string_view text, TFormLines& lines) : FLexer(text), FLines(lines) {}

  /// All components of the text in the binary form.
  std::string Parse() {
    do {
      NoteLine();
      FOutput.WriteSignature();
      Deeper(&TFormParser::ParseComponent);
    } while (FLexer.Token() != TFormToken::End);
    return FOutput.Bytes();
  }

 private:
  using TParse = void (TFormParser::*)();

  void ParseComponent();
  TFormHeading ParseHeading();
  void ParseProperties();
  void ParseValue();
  void ParseWord();
  void ParseString();
  void ParseSymbol();
  void ParseList();
  void ParseCollection();
  void ParseSet();
  void ParseBinary();

  bool AtComponent() const {
    return FLexer.IsWord("object") || FLexer.IsWord("inherited") || FLexer.IsWord("inline");
  }
  void NoteLine() { FLines.Add(static_cast<std::int64_t>(FOutput.Bytes().size()), FLexer.Line()); }
  void TakeEnd() {
    if (!FLexer.IsWord("end")) FLexer.FailExpected("a property or 'end'");
    FLexer.Next();
  }
  /// Writes with what stands at the current word; what can't be kept is the text's fault.
  template <class Write>
  void Put(const Write& write) {
    try {
      write();
    } catch (const EWriteError& error) {
      FLexer.Fail(error.what());
    }
  }
  /// Calls `parse` one level deeper.
  void Deeper(TParse parse) {
    if (++FDepth > FormDepthLimit) FLexer.Fail("things are nested too deeply");
    (this->*parse)();
    --FDepth;
  }

  TFormLexer FLexer;
  TFormLines& FLines;
  TFormOutput FOutput;
  int FDepth = 0;
};

void TFormParser::ParseComponent() {
  NoteLine();
  if (!AtComponent()) FLexer.FailExpected("'object', 'inherited' or 'inline'");
  const TFormHeading heading = ParseHeading();
  Put([&] { FOutput.WriteHeading(heading); });
  ParseProperties();
  FOutput.WriteEnd();
  while (AtComponent()) Deeper(&TFormParser::ParseComponent);
  TakeEnd();
  FOutput.WriteEnd();
}

/// "object Name: TClass" (or "inherited", or "inline"), or "object TClass" for a component without
/// a name.
TFormHeading TFormParser::ParseHeading() {
  TFormHeading heading;
  heading.Inherited = FLexer.IsWord("inherited");
  heading.Inline = FLexer.IsWord("inline");
  FLexer.Next();
  heading.ClassName = FLexer.TakeIdent("a component's name");
  if (FLexer.IsSymbol(':')) {
    FLexer.Next();
    heading.Name = std::move(heading.ClassName);
    heading.ClassName = FLexer.TakeIdent("a class name");
  }
  if (!FLexer.IsSymbol('[')) return heading;
  FLexer.Next();
  if (FLexer.Token() != TFormToken::Integer) FLexer.FailExpected("a place among siblings");
  heading.Position = static_cast<int>(FLexer.Integer());
  FLexer.Next();
  FLexer.TakeSymbol(']');
  return heading;
}

void TFormParser::ParseProperties() {
  while (FLexer.Token() == TFormToken::Ident && !FLexer.IsWord("end") && !AtComponent()) {
    NoteLine();
    Put([&] { FOutput.WriteName(FLexer.Text()); });
    FLexer.Next();
    FLexer.TakeSymbol('=');
    ParseValue();
  }
}

void TFormParser::ParseValue() {
  NoteLine();
  switch (FLexer.Token()) {
    case TFormToken::Integer: FOutput.WriteInteger(FLexer.Integer()); return FLexer.Next();
    case TFormToken::Float: FOutput.WriteFloat(FLexer.Float()); return FLexer.Next();
    case TFormToken::Ident: return ParseWord();
    case TFormToken::String: return ParseString();
    case TFormToken::End:
    case TFormToken::Symbol:
    default: return ParseSymbol();
  }
}

void TFormParser::ParseWord() {
  if (FLexer.IsWord("True") || FLexer.IsWord("False")) {
    FOutput.WriteBoolean(FLexer.IsWord("True"));
  } else if (FLexer.IsWord("nil")) {
    FOutput.WriteSort(TValueType::vaNil);
  } else {
    Put([&] { FOutput.WriteIdent(FLexer.Text()); });
  }
  FLexer.Next();
}

void TFormParser::ParseString() {
  std::string text = FLexer.Text();
  for (FLexer.Next(); FLexer.IsSymbol('+'); FLexer.Next()) {
    FLexer.Next();
    if (FLexer.Token() != TFormToken::String) FLexer.FailExpected("the rest of a string");
    text += FLexer.Text();
  }
  FOutput.WriteString(text);
}

void TFormParser::ParseSymbol() {
  static constexpr struct {
    char Opening;
    TParse Parse;
  } values[] = {{'(', &TFormParser::ParseList},
                {'<', &TFormParser::ParseCollection},
                {'[', &TFormParser::ParseSet},
                {'{', &TFormParser::ParseBinary}};
  for (const auto& value : values) {
    if (FLexer.IsSymbol(value.Opening)) return Deeper(value.Parse);
  }
  FLexer.FailExpected("a value");
}

void TFormParser::ParseList() {
  FOutput.WriteSort(TValueType::vaList);
  for (FLexer.Next(); !FLexer.IsSymbol(')');) ParseValue();
  FLexer.Next();
  FOutput.WriteEnd();
}

void TFormParser::ParseCollection() {
  FOutput.WriteSort(TValueType::vaCollection);
  for (FLexer.Next(); FLexer.IsWord("item");) {
    NoteLine();
    FLexer.Next();
    FOutput.WriteSort(TValueType::vaList);
    ParseProperties();
    TakeEnd();
    FOutput.WriteEnd();
  }
  FLexer.TakeSymbol('>');
  FOutput.WriteEnd();
}

void TFormParser::ParseSet() {
  std::vector<std::string> idents;
  FLexer.Next();
  while (!FLexer.IsSymbol(']')) {
    if (!idents.empty()) FLexer.TakeSymbol(',');
    idents.push_back(FLexer.TakeIdent("an element of a set"));
  }
  Put([&] { FOutput.WriteSet(idents); });
  FLexer.Next();
}

void TFormParser::ParseBinary() { FOutput.WriteBinary(FLexer.TakeHex()); }

}  // namespace

int TFormLines::LineOf(std::int64_t offset) const {
  const auto behind =
      std::ranges::upper_bound(FLines, offset, {}, &std::pair<std::int64_t, int>::first);
  return behind == FLines.begin() ? 0 : std::prev(behind)->second;
}

void ObjectTextToBinary(TStream& text, TStream& binary, TFormLines* lines) {
  TFormLines unused;
  const std::string source = text.ReadRest();
  binary.WriteText(TFormParser(source, lines ? *lines : unused).Parse());
}

}  // namespace vcl
