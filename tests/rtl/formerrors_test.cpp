// Form files that are wrong: what is raised, and that nothing is left behind.
#include <gmock/gmock.h>

#include <cstring>
#include <random>
#include <typeinfo>

#include "tests/rtl/samples.h"

using namespace vcl;
using namespace samples;
using testing::HasSubstr;

namespace {

class FormErrors : public testing::Test, TSampleTest {};

constexpr const char* Good = R"(object Form1: TSampleForm
  Caption = 'A form'
  Style.Data = {00010203}
  Lines.Strings = ('one' 'two')
  Items = <
    item
      Title = 'first'
      Link = Part2
    end>
  OnKey = PartKey
  object Part1: TPart
    Count = 1000
    Ratio = 0.5
    Shapes = [shRound, shStar]
    Link = Part2
    object Part2: TPart
      Color = clRed
      OnClick = PartClick
    end
  end
  object Other1: TOther
  end
end
)";

/// Reads into a form that has something already, and checks that exactly that is left.
template <class Error>
std::string LoadError(const std::string& text) {
  TSampleForm form(nullptr);
  form.SetName("Before");
  TPart owned(&form);
  std::string message;
  try {
    ReadForm(text, &form);
    ADD_FAILURE() << "was read: " << text;
  } catch (const Error& error) {
    message = error.what();
  } catch (const std::exception& error) {
    ADD_FAILURE() << typeid(error).name() << ": " << error.what();
  }
  EXPECT_EQ(form.ComponentCount(), 1) << text;
  EXPECT_EQ(form.Name(), "Before") << text;
  EXPECT_EQ(form.Part1, nullptr) << text;
  EXPECT_FALSE(form.Loading()) << text;
  EXPECT_FALSE(form.ComponentState().Has(csReading)) << text;
  EXPECT_EQ(TPart::Alive, 2) << text;
  return message;
}

struct TErrorCase {
  const char* Line;
  const char* Message;
};

TEST_F(FormErrors, NameLineComponentAndProperty) {
  const TErrorCase cases[] = {
      {"Colour = 1", "Line 3: Part1.Colour: property does not exist"},
      {"Style.Colour = 1", "Line 3: Part1.Style.Colour: property does not exist"},
      {"Stile.Color = 1", "Line 3: Part1.Stile.Color: property Stile does not exist"},
      {"Count.Color = 1", "property Count has no properties of its own"},
      {"OnClick.Color = 1", "property OnClick has no properties of its own"},
      {"Link.Count = 1", "property Link is nil"},
      {"Items = <item end item Titel = '' end>", "Line 3: Part1.Items[1].Titel: property does not"},
      {"Shape = shOval", "Line 3: Part1.Shape: shOval is not a value of Shape: TShape"},
      {"Shapes = [shStar, shOval]", "shOval is not a value of Shapes: TShapes"},
      {"Shape = 1", "an identifier is expected, not an integer"},
      {"Color = clPlaid", "clPlaid is not a value of Color: TColor"},
      {"Color = 4294967296", "4294967296 is not a value of Color: TColor"},
      {"Code = coLast", "coLast is not a value of Code: TCode"},
      {"Count = 2147483648", "2147483648 is not a value of Count: Integer"},
      {"Count = 'x'", "an integer is expected, not a string"},
      {"Count = 1.5", "an integer is expected, not a floating point number"},
      {"Count = -5", "Line 3: Part1.Count: A count is never negative: -5"},
      {"Active = 1", "a boolean is expected, not an integer"},
      {"Ratio = 'x'", "an integer is expected, not a string"},
      {"Caption = nil", "a string is expected, not nil"},
      {"Caption = (1 2)", "a string is expected, not a list"},
      {"Mask = 'ab'", "'ab' is not one character"},
      {"Mask = ''", "'' is not one character"},
      {"Link = Nobody", "Line 3: Part1.Link: there is no component Nobody"},
      {"Link = Part1.Nobody", "there is no component Part1.Nobody"},
      {"Link = Other1", "A TOther cannot be the value of Link: TPart"},
      {"Link = 5", "an identifier is expected, not an integer"},
      {"Link = <>", "property Link is no collection"},
      {"Style = nil", "the property is read-only"},
      {"Style = Part1", "the property is read-only"},
      {"Lines.Strings = 5", "a list is expected, not an integer"},
      {"Lines.Strings = (5)", "a string is expected, not an integer"},
      {"Style.Data = (1)", "binary data is expected, not a list"},
      {"OnClick = Nothing", "Line 3: Part1.OnClick: TSampleForm has no method Nothing"},
      {"OnClick = PartKey", "the parameters of PartKey are not those of TNotifyEvent"},
      {"OnClick = 'PartClick'", "an identifier is expected, not a string"},
      {"Name = 'Other1'", "A component named Other1 already exists"},
      {"object Part1: TPart end", "Line 3: Part1: A component named Part1 already exists"},
      {"inherited Part9: TPart end", "Line 3: Part9: there is no inherited component Part9"},
      {"object X: TSet end object Part1: TPart end", "Class TSet not found"},
  };
  for (const TErrorCase& each : cases) {
    const std::string text =
        Concat("object Form1: TSampleForm\nobject Other1: TOther end object Part1: TPart\n",
               each.Line, "\nend\nend");
    const bool noClass = std::string_view(each.Message).starts_with("Class");
    EXPECT_THAT(noClass ? LoadError<EClassNotFound>(text) : LoadError<EReadError>(text),
                HasSubstr(each.Message));
  }
  EXPECT_THAT(LoadError<EReadError>("object F: TSampleForm\n object Part1: TOther\n end end"),
              HasSubstr("Line 2: Part1: the field Part1 of TSampleForm takes no TOther"));
  EXPECT_THAT(LoadError<EReadError>("object A: TPart end\nobject B: TPart end"),
              HasSubstr("Line 2: A: more stands behind the root"));
}

TEST_F(FormErrors, NameTheLineOfAMalformedText) {
  const TErrorCase cases[] = {
      {"", "Line 1: 'object', 'inherited' or 'inline' is expected, but the text ends"},
      {"Hello", "Line 1: 'object', 'inherited' or 'inline' is expected, not 'Hello'"},
      {"object", "a component's name is expected"},
      {"object A: 5", "a class name is expected, not '5'"},
      {"object A: TPart", "a property or 'end' is expected, but the text ends"},
      {"object A: TPart\n\nCount 5 end", "Line 3: '=' is expected, not '5'"},
      {"object A: TPart Count = end", "a property or 'end' is expected"},
      {"object A: TPart Count = = end", "a value is expected, not '='"},
      {"object A: TPart Caption = 'a\n' end", "Line 1: a string is not ended on its line"},
      {"object A: TPart Caption = 'a' + 5 end", "the rest of a string is expected, not '5'"},
      {"object A: TPart Caption = # end", "the number of a character is expected"},
      {"object A: TPart Caption = #55357 end", "#55357 is no character"},
      {"object A: TPart Caption = #55357#65 end", "a character's second half is missing"},
      {"object A: TPart Caption = #1114112 end", "#1114112 is no character"},
      {"object A: TPart Count = 9223372036854775808 end", "is no number that can be kept"},
      {"object A: TPart Count = $ end", "'$' is no number that can be kept"},
      {"object A: TPart Count = 12ab end", "'12' is no number that can be kept"},
      {"object A: TPart Ratio = 1e999 end", "'1e999' is no number that can be kept"},
      {"object A: TPart Shapes = [a b] end", "',' is expected, not 'b'"},
      {"object A: TPart Shapes = [1] end", "an element of a set is expected, not '1'"},
      {"object A: TPart Data = {0} end", "two hexadecimal digits or '}' are expected"},
      {"object A: TPart Data = {00", "two hexadecimal digits or '}' are expected"},
      {"object A: TPart Lines = (1 2 end end", "a value is expected, but the text ends"},
      {"object A: TPart Items = <item Title = '' >", "a property or 'end' is expected, not '>'"},
      {"object A: TPart [x] end", "a place among siblings is expected, not 'x'"},
  };
  for (const TErrorCase& each : cases) {
    EXPECT_THAT(LoadError<EParserError>(each.Line), HasSubstr(each.Message)) << each.Line;
  }
  const std::string longName(256, 'a');
  EXPECT_THAT(LoadError<EParserError>("object A: TPart " + longName + " = 1 end"),
              HasSubstr("is too long"));
}

std::string Repeat(std::string_view text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

TEST_F(FormErrors, RefuseDeepNesting) {
  constexpr int depth = 100000;
  LoadError<EParserError>(Repeat("object A: TPart ", depth));
  LoadError<EParserError>("object A: TPart Lines.Strings = " + Repeat("(", depth));
  LoadError<EParserError>("object A: TPart " + Repeat("Items = < item ", depth));
  const std::string heading("TPF0\5TPart\0", 11);
  LoadError<EReadError>(heading + std::string(1, '\0') +
                        Repeat(std::string_view("\5TPart\0\0", 8), depth));
  LoadError<EReadError>(heading + "\rLines.Strings" + Repeat("\1", depth));
  LoadError<EReadError>(heading + Repeat("\5Items\x0E\1", depth));
  EXPECT_THROW(BinaryToText(heading + "\1X" + Repeat("\1", depth)), EReadError);
}

TEST_F(FormErrors, BelieveNoLengthsBeyondTheFile) {
  const std::string heading("TPF0\5TPart\0", 11);
  for (const char* value : {"\7Caption\x0C\xFF\xFF\xFF\x7F", "\nStyle.Data\x0A\xFF\xFF\xFF\xFF",
                            "\7Caption\6\xFF", "\5Count\4", "\5Count\4\1"}) {
    EXPECT_THAT(LoadError<EReadError>(heading + value), HasSubstr("Offset "));
  }
}

TEST_F(FormErrors, RefuseNamesThatTheTextCannotHold) {
  for (const char* name : {"a b", "end", "1a", "a..b", ".a", "\xFF"}) {
    const std::string binary = std::string("TPF0\5TPart\0", 11) +
                               static_cast<char>(std::strlen(name)) + name +
                               std::string("\x09\0\0", 3);
    EXPECT_THROW(BinaryToText(binary), EReadError) << name;
  }
}

TEST_F(FormErrors, ComeFromEveryTruncation) {
  const std::string binary = TextToBinary(Good);
  for (std::size_t size = 4; size < binary.size(); ++size) {
    LoadError<EReadError>(binary.substr(0, size));
  }
  const std::string text = Good;
  for (std::size_t size = 0; size + 4 < text.size(); ++size) {
    try {
      delete ReadForm(text.substr(0, size));
      ADD_FAILURE() << size;
    } catch (const EParserError&) {
    }
  }
}

/// Reads, converts and writes what may be no form. Only the library's own exceptions may come out.
void TryEverything(const std::string& form) {
  try {
    TSampleForm root(nullptr);
    ReadForm(form, &root);
    FormText(&root);
  } catch (const Exception&) {
  }
  try {
    IsBinaryForm(form) ? BinaryToText(form) : TextToBinary(form);
  } catch (const Exception&) {
  }
  EXPECT_EQ(TPart::Alive, 0);
}

TEST_F(FormErrors, AreTheOnlyHarmOfMutations) {
  std::mt19937 random(17);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  for (const std::string& form : {std::string(Good), TextToBinary(Good)}) {
    for (int round = 0; round < 4000; ++round) {
      std::string mutation = form;
      for (std::size_t flips = 1 + below(3); flips > 0; --flips) {
        mutation[below(mutation.size())] = static_cast<char>(random());
      }
      // Now and then a piece of the form stands twice, or is missing.
      if (round % 4 == 0) mutation.insert(below(form.size()), form, below(form.size()), below(60));
      if (round % 4 == 1) mutation.erase(below(form.size()), below(60));
      TryEverything(mutation);
    }
  }
}

/// What is read twice leaves nothing of the first time that could still be waited for.
TEST_F(FormErrors, DoNotComeFromCollectionsThatStandTwice) {
  std::unique_ptr<TSampleForm> form(static_cast<TSampleForm*>(
      ReadForm("object F: TSampleForm Items = <item end item Link = Part1 end> Items = <item end>"
               " object Part1: TPart end end")));
  ASSERT_EQ(form->Items()->Count(), 1);
  EXPECT_EQ(static_cast<TPartItem*>(form->Items()->Items(0))->Link(), nullptr);
}

TEST_F(FormErrors, BeginWithTheNameOfWhatIsRead) {
  const std::pair<const char*, const char*> cases[] = {
      {"object", "main.dfm: Line 1: "},
      {"object F: TSampleForm Colour = 1 end",
       "main.dfm: Line 1: F.Colour: property does not exist"},
      {"object F: TNothing end", "main.dfm: Line 1: Class TNothing not"},
      {"object F: TSampleForm object A: TNothing end end",
       "main.dfm: Line 1: A: Class TNothing not"},
  };
  for (const auto& [form, message] : cases) {
    TStringStream stream(form);
    EXPECT_THAT([&] { ReadComponentFile(stream, nullptr, "main.dfm"); },
                testing::ThrowsMessage<Exception>(HasSubstr(message)));
  }
}

}  // namespace
