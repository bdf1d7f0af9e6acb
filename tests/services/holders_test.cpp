// TQELStringHolder and TQELJokeHolder: what they hold, and what they give of it.
#include <gmock/gmock.h>

#include <fstream>
#include <set>

#include "qel/qel.h"
#include "tests/support/program.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::ElementsAre;

class StringHolder : public testing::Test {
 protected:
  StringHolder() {
    Holder.Strings()->SetText("Name=Ann\r\nEmpty=\r\nDe.name=direct\r\njust a line\r\n");
    Group("de", "Hello=Hallo, %Name%\r\nname=hidden\r\n");
    Group("de.at", "Hello=Servus\r\n");
  }
  void Group(const std::string& name, const std::string& text) {
    TQELStringGroup* const group = Holder.Groups()->Add();
    group->SetName(name);
    group->Strings()->SetText(text);
  }
  testing_support::TFolder Folder;
  TQELStringHolder Holder{nullptr};
};

TEST_F(StringHolder, PutsValuesInThePlaceOfNames) {
  const std::pair<const char*, const char*> texts[] = {
      {"", ""},
      {"%name%!", "Ann!"},
      {"<%Empty%>", "<>"},
      {"100% and %Name%, 50%", "100% and Ann, 50%"},
      {"100%% and %Name%", "100% and Ann"},
      {"%none%Name%", "%noneAnn"},
      {"%DE.hello%", "Hallo, %Name%"},
      {"%de.at.Hello%", "Servus"},
      {"%de.name%", "direct"},
      {"%fr.Hello% %just a line%", "%fr.Hello% %just a line%"},
  };
  for (const auto& [text, expanded] : texts) EXPECT_EQ(Holder.Expand(text), expanded) << text;
  EXPECT_EQ(Holder.Value(""), std::nullopt);
}

TEST_F(StringHolder, ComesBackFromItsFileAsItWas) {
  const std::string file = (Folder.Path / "texts.txt").string();
  Holder.Strings()->SetText("[no group]\r\n\\[slash]\r\n\\\\server\r\n[\r\n\r\n\xC3\xA4\r\n");
  Group("", "last\r\n");
  Holder.SaveToFile(file);
  TQELStringHolder other(nullptr);
  other.Strings()->Add("former");
  other.Groups()->Add();
  other.LoadFromFile(file);
  EXPECT_EQ(Lines(*other.Strings()), Lines(*Holder.Strings()));
  ASSERT_EQ(other.Groups()->Count(), 3);
  EXPECT_EQ(other.Groups()->Groups(1)->Name(), "de.at");
  EXPECT_EQ(other.Groups()->Groups(2)->Strings()->Text(), "last\r\n");
  EXPECT_EQ(FormText(&other), FormText(&Holder));
}

TEST_F(StringHolder, KeepsWhatItHasWhenAFileIsRefused) {
  const std::string before = FormText(&Holder);
  EXPECT_THROW(Holder.LoadFromFile((Folder.Path / "none.txt").string()), vcl::EFOpenError);
  EXPECT_THROW(Holder.SaveToFile((Folder.Path / "none" / "a.txt").string()), vcl::EInOutError);
  Holder.Groups()->Groups(0)->SetName("two\nlines");
  EXPECT_EQ(FormText(&Holder), before);
}

class JokeHolder : public testing::Test {
 protected:
  JokeHolder() {
    Form.SetName("Form1");
    Make();
  }
  /// As the program's next start does.
  void Make(const std::string& items = "one\r\ngoes on\r\n%\r\n\r\n % \r\ntwo\r\n%\r\nthree") {
    Jokes = std::make_unique<TQELJokeHolder>(&Form);
    Jokes->SetName("Jokes1");
    Jokes->Items()->SetText(items);
    Jokes->JokeStore()->SetDatatype(sIniFile);
    Jokes->JokeStore()->Inifile()->SetFilename((Folder.Path / "jokes.ini").string());
  }
  testing_support::TFolder Folder;
  vcl::TForm Form{nullptr};
  std::unique_ptr<TQELJokeHolder> Jokes;
};

TEST_F(JokeHolder, GivesNoneTwiceBeforeAllWereGiven) {
  std::string last;
  std::set<std::string> firsts;
  for (int round = 0; round < 50; ++round) {
    std::set<std::string> given;
    for (int i = 0; i < 3; ++i) {
      const std::string text = Jokes->Next();
      EXPECT_NE(text, std::exchange(last, text)) << "one after itself";
      if (i == 0) firsts.insert(text);
      given.insert(text);
    }
    EXPECT_THAT(given, ElementsAre("one\r\ngoes on", "three", "two"));
  }
  EXPECT_EQ(firsts.size(), 3u) << "the order is by chance";
  EXPECT_FALSE(std::filesystem::exists(Folder.Path / "jokes.ini")) << "the store is not enabled";
}

TEST_F(JokeHolder, GoesOnAtTheNextStart) {
  const auto next = [this] {
    Make();
    Jokes->JokeStore()->SetEnabled(true);
    return Jokes->Next();
  };
  for (int round = 0; round < 10; ++round) {
    EXPECT_THAT((std::set{next(), next(), next()}), ElementsAre("one\r\ngoes on", "three", "two"));
  }
  for (const char* kept : {"nonsense", "1 2 4000000000", "-1", ""}) {
    std::ofstream(Folder.Path / "jokes.ini") << "[Jokes]\nForm1.Jokes1_Given=" << kept << "\n";
    EXPECT_NE(next(), "") << kept;
  }
  next();
  Make("four\r\n%\r\nfive\r\n%\r\nsix");
  Jokes->JokeStore()->SetEnabled(true);
  EXPECT_THAT((std::set{Jokes->Next(), Jokes->Next(), Jokes->Next()}),
              ElementsAre("five", "four", "six"))
      << "other texts begin anew";
}

TEST_F(JokeHolder, ShowsOneInABox) {
  Make("only\r\n%\r\n");
  Jokes->SetTitle("A joke");
  vcl::Application();  // Boxes are its own.
  testinput::TBoxAnswer answer(IDOK);
  EXPECT_TRUE(Jokes->Execute());
  EXPECT_TRUE(answer.Wait());
  EXPECT_EQ(answer.Caption(), "A joke");
  EXPECT_THAT(answer.Text(), testing::HasSubstr("only"));
  Jokes->Items()->SetText(" \r\n%\r\n%");
  EXPECT_FALSE(Jokes->Execute());
  EXPECT_EQ(Jokes->LastError(), "There are no texts");
}

// A folder is no settings file: the store refuses it, and its event may free the component.
TEST_F(JokeHolder, MayBeFreedByItsStoresEvent) {
  Jokes->JokeStore()->SetEnabled(true);
  Jokes->JokeStore()->Inifile()->SetFilename(Folder.Path.string());
  Jokes->JokeStore()->OnError = [this](vcl::TObject*) { Jokes.reset(); };
  EXPECT_EQ(Jokes->Next(), "");
  EXPECT_EQ(Jokes, nullptr);
}

}  // namespace
}  // namespace qel
