// TQELTipTricks: which tip is shown when, and what the user does without.
#include <fstream>

#include "qel/qel.h"
#include "tests/dialogs/dialogtest.h"
#include "tests/support/program.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

/// The tips of a form, kept in an INI file.
class TipTricks : public testing::Test {
 protected:
  TipTricks() {
    Form.SetName("Form1");
    Make();
  }
  /// As the program's next start does.
  void Make() {
    Tips.reset();
    Tips = std::make_unique<TQELTipTricks>(&Form);
    Tips->SetName("Tips1");
    Tips->Tips()->SetText("one\r\ngoes on\r\n\r\n  \r\ntwo\r\n\r\nthree\r\n");
  }
  void Keep() {
    Tips->TipStore()->SetEnabled(true);
    Tips->TipStore()->SetDatatype(sIniFile);
    Tips->TipStore()->Inifile()->SetFilename((Folder.Path / "tips.ini").string());
  }
  static std::string ShownIn(const vcl::TCustomForm& form) {
    return ControlsOf<vcl::TMemo>(form).front()->Text();
  }
  /// Shows the tips, presses the keys and returns what was seen before each and at the end.
  std::string Seen(const std::vector<WORD>& keys) {
    std::string seen;
    Ask(*Tips, [&](vcl::TCustomForm& form) {
      for (const WORD key : keys) {
        seen += ShownIn(form) + "|";
        testinput::TypeKey(key);
        testinput::Pump();
      }
      seen += ShownIn(form);
      testinput::TypeKey(VK_ESCAPE);
    });
    return seen;
  }

  testing_support::TFolder Folder;
  vcl::TForm Form{nullptr};
  std::unique_ptr<TQELTipTricks> Tips;
};

TEST_F(TipTricks, GoRoundByTheirButtons) {
  EXPECT_EQ(Seen({VK_RETURN, VK_RETURN, VK_RETURN, 'P'}),
            "one\r\ngoes on|two|three|one\r\ngoes on|three");
  EXPECT_EQ(Seen({}), "one\r\ngoes on") << "nothing is kept without a store";
}

TEST_F(TipTricks, BeginWithTheNextOneAtEachStart) {
  for (const char* tip : {"one\r\ngoes on", "two", "three", "one\r\ngoes on"}) {
    Make();
    Keep();
    EXPECT_EQ(Seen({}), tip);
  }
  std::ofstream(Folder.Path / "tips.ini") << "[Tips]\nForm1.Tips1_Next=77\n";
  EXPECT_EQ(Seen({}), "one\r\ngoes on") << "there are fewer tips now";
}

TEST_F(TipTricks, AreNotShownToWhoDoesWithoutThem) {
  Keep();
  EXPECT_TRUE(Ask(*Tips, Keys({'S', VK_ESCAPE})));
  EXPECT_FALSE(Tips->ShowAtStart());
  Make();
  Keep();
  EXPECT_TRUE(Tips->ShowAtStart());
  EXPECT_FALSE(Tips->Execute());
  EXPECT_EQ(Tips->LastError(), "");
  Tips->SetForce(true);
  EXPECT_TRUE(Ask(*Tips, Keys({VK_ESCAPE})));
}

TEST_F(TipTricks, SayWhyNothingIsShown) {
  Tips->Tips()->Clear();
  EXPECT_FALSE(Tips->Execute());
  EXPECT_EQ(Tips->LastError(), "There are no tips");
  Tips->SetFilename((Folder.Path / "none.txt").string());
  EXPECT_FALSE(Tips->Execute());
  EXPECT_THAT(Tips->LastError(), testing::HasSubstr("none.txt"));
  std::ofstream(Folder.Path / "some.txt") << "from a file\n";
  Tips->SetFilename((Folder.Path / "some.txt").string());
  EXPECT_EQ(Seen({}), "from a file");
  EXPECT_EQ(Tips->LastError(), "");
}

TEST_F(TipTricks, AtRandomAreEachShownOnce) {
  Tips->SetRandom(true);
  const std::string seen = Seen({VK_RETURN, VK_RETURN});
  for (const char* tip : {"one", "two", "three"}) {
    EXPECT_EQ(seen.find(tip), seen.rfind(tip)) << seen;
    EXPECT_NE(seen.find(tip), std::string::npos) << seen;
  }
}

TEST_F(TipTricks, MayBeFreedMeanwhile) {
  Keep();
  EXPECT_FALSE(Ask(*Tips, [this](vcl::TCustomForm&) { Tips.reset(); }));
}

}  // namespace
}  // namespace qel
