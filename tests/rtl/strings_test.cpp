// String lists, and texts in general.
#include <gmock/gmock.h>

#include "tests/support/texts.h"

using namespace vcl;
using testing::ElementsAre;

namespace {

TEST(Strings, SplitsAndJoinsTexts) {
  TStringList list;
  list.SetText("a\r\nb\n\rc\r\n\r\n");
  EXPECT_THAT(Lines(list), ElementsAre("a", "b", "", "c", ""));
  EXPECT_EQ(list.Text(), "a\r\nb\r\n\r\nc\r\n\r\n");
  list.SetText("last");
  EXPECT_THAT(Lines(list), ElementsAre("last"));
  list.SetText("");
  EXPECT_EQ(list.Count(), 0);
}

TEST(Strings, ReadsCommaText) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"", {}},
      {"  ", {}},
      {"a,b c", {"a", "b", "c"}},
      {" a , b ", {"a", "b"}},
      {"a,,b", {"a", "", "b"}},
      {"a,", {"a", ""}},
      {"\"a \"\"b\"\", c\",d", {"a \"b\", c", "d"}},
      {"\"open", {"open"}},
      {"\"\"", {""}},
      {"a\"b", {"a\"b"}},
  };
  TStringList list;
  for (const auto& [text, lines] : cases) {
    list.SetCommaText(text);
    EXPECT_EQ(Lines(list), lines) << text;
  }
}

TEST(Strings, GivesBackWhatCommaTextHolds) {
  const std::vector<std::string> cases[] = {
      {}, {""}, {"", ""}, {"a", ""}, {"", "a"}, {"a b", "c,d", "e\"f", "\"", "\t", "plain"}};
  for (const auto& lines : cases) {
    TStringList list, again;
    for (const std::string& line : lines) list.Add(line);
    again.SetCommaText(list.CommaText());
    EXPECT_EQ(Lines(again), lines) << list.CommaText();
  }
}

TEST(Strings, HoldsNamesAndValues) {
  TStringList list;
  list.SetText("One=1\nnothing\n=empty\nTwo=a=b\none=other");
  EXPECT_EQ(list.Values("ONE"), "1");
  EXPECT_EQ(list.Values("two"), "a=b");
  EXPECT_EQ(list.Values(""), "empty");
  EXPECT_EQ(list.Values("nothing"), "");
  EXPECT_EQ(list.Names(0), "One");
  EXPECT_EQ(list.Names(1), "");
  list.SetValues("one", "");
  list.SetValues("Three", "3");
  list.SetValues("Four", "");
  list.SetValues("TWO", "2");
  EXPECT_THAT(Lines(list), ElementsAre("nothing", "=empty", "TWO=2", "one=other", "Three=3"));
}

TEST(Strings, RefusesIndexesOutside) {
  TStringList list;
  list.Add("only");
  for (int index : {-1, 1, 2147483647}) {
    EXPECT_THROW(list.Strings(index), EStringListError);
    EXPECT_THROW(list.SetStrings(index, ""), EStringListError);
    EXPECT_THROW(list.Objects(index), EStringListError);
    EXPECT_THROW(list.SetObjects(index, nullptr), EStringListError);
    EXPECT_THROW(list.Delete(index), EStringListError);
    EXPECT_THROW(list.Exchange(0, index), EStringListError);
    EXPECT_THROW(list.Move(0, index), EStringListError);
  }
  EXPECT_THROW(list.Insert(2, ""), EStringListError);
  EXPECT_THAT(Lines(list), ElementsAre("only"));
}

TEST(Strings, MovesLinesWithTheirObjects) {
  TStringList list;
  list.SetText("a\nb\nc");
  list.SetObjects(0, &list);
  list.Move(0, 2);
  EXPECT_THAT(Lines(list), ElementsAre("b", "c", "a"));
  list.Exchange(2, 0);
  EXPECT_THAT(Lines(list), ElementsAre("a", "c", "b"));
  EXPECT_EQ(list.IndexOfObject(&list), 0);
  list.AddStrings(list);
  EXPECT_THAT(Lines(list), ElementsAre("a", "c", "b", "a", "c", "b"));
  TStringList copy;
  copy.Assign(&list);
  EXPECT_TRUE(copy.Equals(list));
  copy.SetObjects(3, nullptr);
  EXPECT_FALSE(copy.Equals(list));
}

TEST(Strings, KeepsSorted) {
  TStringList list;
  list.SetText("b\nA\nc\na");
  list.SetSorted(true);
  EXPECT_THAT(Lines(list), ElementsAre("A", "a", "b", "c"));
  EXPECT_EQ(list.Add("B"), 2);
  EXPECT_EQ(list.Count(), 4);
  list.SetDuplicates(dupAccept);
  list.Add("B");
  EXPECT_EQ(list.Count(), 5);
  list.SetDuplicates(dupError);
  EXPECT_EQ(list.Duplicates(), dupError);
  EXPECT_FALSE(list.CaseSensitive());
  EXPECT_THROW(list.Add("C"), EStringListError);
  EXPECT_THROW(list.Insert(0, "z"), EStringListError);
  EXPECT_THROW(list.SetStrings(0, "z"), EStringListError);
  EXPECT_EQ(list.IndexOf("C"), 4);
  EXPECT_EQ(list.IndexOf("bb"), -1);
  list.SetCaseSensitive(true);
  EXPECT_THAT(Lines(list), ElementsAre("A", "B", "a", "b", "c"));
  EXPECT_EQ(list.IndexOf("C"), -1);
}

TEST(Strings, LettersOfEveryAlphabetMatchWithoutCase) {
  TStringList list;
  list.SetText(
      "stra\xC3\x9F"
      "e\n\xC3\xA4.txt\n\xD0\x96\n");
  for (bool sorted : {false, true}) {
    list.SetSorted(sorted);
    for (const char* text : {"\xC3\x84.TXT", "\xD0\xB6",
                             "STRA\xC3\x9F"
                             "E"}) {
      EXPECT_GE(list.IndexOf(text), 0) << text;
    }
    for (const char* text : {"a.txt", "", "\xC3\x84"}) EXPECT_EQ(list.IndexOf(text), -1) << text;
  }
  EXPECT_EQ(AnsiCompareText("", ""), 0);
  EXPECT_TRUE(AnsiSameText("x\xC3", "X\xC3")) << "no UTF-8";
}

TEST(Strings, NotifiesOncePerBatch) {
  TStringList list;
  std::string log;
  list.OnChanging = [&](TObject*) { log += '<'; };
  list.OnChange = [&](TObject*) { log += '>'; };
  list.Add("a");
  EXPECT_EQ(log, "<>");
  list.SetText("a\nb\nc");
  list.BeginUpdate();
  list.Clear();
  list.Add("x");
  EXPECT_EQ(log, "<><><");
  for (int i = 0; i < 2; ++i) {
    list.EndUpdate();
    EXPECT_EQ(log, "<><><>");
  }
  list.OnChange = [](TObject*) { throw EInvalidOperation("no"); };
  EXPECT_THROW(list.SetText("a\nb"), EInvalidOperation);
  list.OnChange = nullptr;
  list.SetText("a\nb");
  EXPECT_EQ(list.Count(), 2) << "a handler's error leaves the list usable";
}

TEST(Text, ComparesAsciiLettersOnly) {
  EXPECT_TRUE(SameText("Button_1z", "bUTTON_1Z"));
  EXPECT_FALSE(SameText("\xC3\xA4", "\xC3\x84"));
  EXPECT_FALSE(SameText("a", "ab"));
  EXPECT_LT(CompareText("A", "b"), 0);
  EXPECT_GT(CompareText("\xC3", "z"), 0);
  EXPECT_EQ(CompareText("aB", "Ab"), 0);
  EXPECT_EQ(Trim(" \t a b\r\n\1"), "a b");
}

TEST(Text, CodesCharacters) {
  for (char32_t each :
       {U'\0', U'A', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFF', U'\x10000', U'\x10FFFF'}) {
    EXPECT_EQ(OnlyCharacter(Utf8(each)), each);
  }
  EXPECT_EQ(Utf8(0x20AC), "\xE2\x82\xAC");
  EXPECT_EQ(Utf8(0xD800), "");
  EXPECT_EQ(Utf8(0x110000), "");
  for (const char* text : {"", "ab", "\x80", "\xC3", "\xC3\x28", "\xC0\xAF", "\xED\xA0\x80",
                           "\xF4\x90\x80\x80", "\xFF"}) {
    EXPECT_EQ(OnlyCharacter(text), std::nullopt) << text;
  }
}

}  // namespace
