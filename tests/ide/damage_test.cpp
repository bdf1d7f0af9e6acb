// Damaged form files: each is refused, or it can be saved and read again without a change.
#include <gmock/gmock.h>

#include <random>

#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// What happens to a file on its way: bytes and lines that are lost, doubled or exchanged.
class TDamage {
 public:
  explicit TDamage(unsigned seed) : FRandom(seed) {}

  std::string Of(std::string text) {
    for (std::size_t i = Below(3) + 1; i > 0; --i) text = Once(std::move(text));
    return text;
  }

 private:
  std::size_t Below(std::size_t limit) { return FRandom() % std::max<std::size_t>(limit, 1); }

  std::string Once(std::string text) {
    switch (Below(6)) {
      case 0: return text.substr(0, Below(text.size()));
      case 1: return ChangeByte(std::move(text));
      case 2: return CopyLine(std::move(text), Below(2) == 0);
      case 3: return SwapWords(std::move(text));
      case 4: return text.erase(Below(text.size()), Below(12));
      default: return ReplaceWord(std::move(text));
    }
  }
  std::string ChangeByte(std::string text) {
    static constexpr std::string_view bytes = "\n\r '#$()<>[]{}=.,:+-09azAZ_\x01\x80\xC3\xFF";
    if (!text.empty()) text[Below(text.size())] = bytes[Below(bytes.size())];
    return text;
  }
  /// The line goes to another place, too, or instead.
  std::string CopyLine(std::string text, bool remove) {
    const auto [begin, end] = Line(text, Below(text.size()));
    const std::string line = text.substr(begin, end - begin);
    if (remove) text.erase(begin, end - begin);
    return text.insert(Line(text, Below(text.size())).first, line);
  }
  std::string SwapWords(std::string text) {
    auto first = Word(text, Below(text.size())), second = Word(text, Below(text.size()));
    if (first.first > second.first) std::swap(first, second);
    if (first.second > second.first) return text;
    const std::string a = text.substr(first.first, first.second - first.first);
    const std::string b = text.substr(second.first, second.second - second.first);
    text.replace(second.first, b.size(), a);
    return text.replace(first.first, a.size(), b);
  }
  std::string ReplaceWord(std::string text) {
    static const char* const words[] = {"Item", "True",  "nil",    "end",  "object", "Owner",
                                        "-1",   "99999", "1e300",  "$FF",  "Name",   "Left",
                                        "''",   "()",    "<>",     "[]",   "TPanel", "TForm",
                                        "Tag",  "F",     "#55357", "{00}", "Caption"};
    const auto [begin, end] = Word(text, Below(text.size()));
    return text.replace(begin, end - begin, words[Below(std::size(words))]);
  }
  static std::pair<std::size_t, std::size_t> Line(const std::string& text, std::size_t at) {
    const std::size_t before = at == 0 ? std::string::npos : text.rfind('\n', at - 1);
    const std::size_t behind = text.find('\n', at);
    return {before == std::string::npos ? 0 : before + 1,
            behind == std::string::npos ? text.size() : behind + 1};
  }
  static std::pair<std::size_t, std::size_t> Word(const std::string& text, std::size_t at) {
    const auto part = [&](std::size_t i) {
      return std::isalnum(static_cast<unsigned char>(text[i])) || text[i] == '_';
    };
    while (at < text.size() && !part(at)) ++at;
    std::size_t begin = at;
    while (begin > 0 && part(begin - 1)) --begin;
    while (at < text.size() && part(at)) ++at;
    return {begin, at};
  }

  std::mt19937 FRandom;
};

class DamagedForms : public Designer {
 protected:
  /// What is wrong with how the designer takes the text; empty for nothing.
  std::string ProblemWith(const std::string& text) {
    Write("damaged.dfm", text);
    try {
      Document().Load(File("damaged.dfm"));
    } catch (const Exception&) {
      return {};
    }
    ++Opened;
    try {
      const std::string read = Document().Text();
      Document().Save(File("saved.dfm"));
      Document().Load(File("saved.dfm"));
      return Document().Text() == read ? "" : "comes back different";
    } catch (const std::exception& error) {
      return error.what();
    }
  }
  static std::string Sample(const char* name) {
    std::ifstream file(std::string(DOCS_FOLDER "/../") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  unsigned Opened = 0;
};

TEST_F(DamagedForms, ComponentsStayInsideWhatHoldsThem) {
  EXPECT_EQ(ProblemWith(Sample("demos/records/records.dfm")), "");
  EXPECT_THAT(Messages(), ElementsAre());
  EXPECT_THAT(Read("saved.dfm"), HasSubstr("\n    object QueryId: TIntegerField\n"));
  OpenForm(
      " object Data: TMemoryDataSet\n object Known: TStringField\n FieldName = 'a'\n end\n"
      " object Unknown: TGeometryField\n FieldName = 'b'\n Width = 80\n end\n end\n");
  EXPECT_THAT(Document().Text(), HasSubstr("\n    object Unknown: TGeometryField\n"));
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("TGeometryField not found")));
}

TEST_F(DamagedForms, ControlsKeepTheirPlacesAmongThoseWithoutOne) {
  OpenForm(
      " object Bar: TStatusBar\n end\n object First: TEdit\n TabOrder = 0\n end\n"
      " object Second: TEdit\n TabOrder = 2\n end\n");
  EXPECT_EQ(Find<TEdit>("First")->TabOrder(), 0);
  EXPECT_EQ(Find<TEdit>("Second")->TabOrder(), 2);
}

TEST_F(DamagedForms, ControlsInWhatHoldsNoneStandOnTheForm) {
  OpenForm(
      " object Around: TLabel\n object Lost: TEdit\n Left = 8\n end\n object Clock: TTimer\n"
      " end\n end\n");
  EXPECT_EQ(Find("Lost")->Parent(), &Root());
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("Lost cannot stand inside Around")));
}

TEST_F(DamagedForms, NamesThatNoFileCanHoldAreNotPasted) {
  const std::string before = Document().Text();
  It().Try([&] { It().PasteText("object Item: TButton\nend\n"); });
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("'Item' is no name")));
  EXPECT_EQ(Document().Text(), before);
}

TEST_F(DamagedForms, AreRefusedOrCanBeSaved) {
  const char* const names[] = {"demos/notes/find.dfm",     "demos/notes/options.dfm",
                               "demos/mailer/compose.dfm", "demos/records/records.dfm",
                               "demos/notes/notes.dfm",    "qel/design/toollist.dfm",
                               "ide/mainform.dfm"};
  constexpr unsigned count = 200;
  for (unsigned seed = 0; seed < count; ++seed) {
    const char* name = names[seed % std::size(names)];
    EXPECT_EQ(ProblemWith(TDamage(seed).Of(Sample(name))), "")
        << "damage " << seed << " of " << name;
  }
  EXPECT_GT(Opened, count / 8) << "what is refused says nothing of saving";
}

}  // namespace
}  // namespace ide
