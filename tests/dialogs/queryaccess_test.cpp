// The code before something protected: what is kept of it, and what a restart or a clock undoes.
#include <fstream>
#include <memory>
#include <string>

#include "tests/dialogs/dialogtest.h"
#include "tests/support/program.h"
#include "tests/support/registered.h"
#include "tests/support/testclocks.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

using testing::HasSubstr;
using testing::Not;
using testinput::TypeKey;
using vcl::TCustomForm;

class QueryAccess : public vcl::TStandardForm {
 protected:
  QueryAccess() {
    Form.SetName("Form1");
    ShowForm();
    Make();
  }
  /// As the program's next start does.
  void Make() {
    Query.reset();
    Query = std::make_unique<TQELQueryAccess>(&Form);
    Query->SetName("Query1");
    Query->SetCode(Hash);
    Query->SetLockAfter(2);
  }
  void Keep() {
    Query->AccessStore()->SetEnabled(true);
    Query->AccessStore()->SetDatatype(sIniFile);
    Query->AccessStore()->Inifile()->SetFilename((Folder.Path / "access.ini").string());
  }
  void Restart() {
    Make();
    Keep();
  }
  /// Types the codes, each with Enter, and gives up.
  bool Enter(const std::vector<std::string>& codes) {
    return Ask(*Query, [&](TCustomForm& form) {
      for (const std::string& code : codes) {
        Type(code);
        TypeKey(VK_RETURN);
      }
      if (form.ModalResult() == vcl::mrNone) TypeKey(VK_ESCAPE);
    });
  }

  const std::string Hash = QELHashedCode("1234", 1000);
  testing_support::TFolder Folder;
  TTestClocks Clocks;
  std::unique_ptr<TQELQueryAccess> Query;
};

TEST_F(QueryAccess, TakesTheCodeAlone) {
  Query->SetLockAfter(0);
  EXPECT_TRUE(Enter({"1234"}));
  EXPECT_FALSE(Enter({"123"}));
  EXPECT_EQ(Query->LastError(), "") << "given up";
  EXPECT_TRUE(Enter({"12345", "1234"})) << "asked each time";
  Query->ChangeCode("new");
  EXPECT_FALSE(Enter({"1234"}));
  EXPECT_TRUE(Enter({"new"}));
  Query->SetCode("new");
  EXPECT_TRUE(Enter({"new"})) << "a code is no hash";
  Query->SetCode("");
  EXPECT_FALSE(Query->Execute());
  EXPECT_EQ(Query->LastError(), "There is no code");
}

TEST_F(QueryAccess, AsksNoSecondTimeForAWhile) {
  Query->SetValidFor(30);
  EXPECT_TRUE(Enter({"1234"}));
  Clocks.Pass(29);
  EXPECT_TRUE(Query->Execute()) << "without asking";
  Clocks.SetClock(-3600);
  EXPECT_TRUE(Query->Execute()) << "the program has counted itself";
  Clocks.Pass(2);
  EXPECT_TRUE(Enter({"1234"}));
  Query->Revoke();
  EXPECT_FALSE(Enter({}));
}

TEST_F(QueryAccess, AsksForANewCodeAtOnce) {
  Keep();
  Query->SetValidFor(30);
  EXPECT_TRUE(Enter({"1234"}));
  EXPECT_TRUE(Query->Execute()) << "without asking";
  Query->ChangeCode("new");
  EXPECT_FALSE(Enter({"1234"}));
  EXPECT_TRUE(Enter({"new"}));
}

TEST_F(QueryAccess, IsLockedOverARestart) {
  Keep();
  EXPECT_FALSE(Enter({"1"}));
  EXPECT_EQ(Query->LockedFor(), 0);
  Restart();
  EXPECT_FALSE(Enter({"2", "1234"})) << "the second wrong one";
  EXPECT_EQ(Query->LastError(), "Locked for 60 s");
  Clocks.Pass(20);
  Restart();
  EXPECT_EQ(Query->LockedFor(), 40);
  EXPECT_FALSE(Ask(*Query, [&](TCustomForm& form) {
    EXPECT_FALSE(ControlsOf<vcl::TBitBtn>(form)[0]->Enabled());
    EXPECT_THAT(CaptionsOf<vcl::TLabel>(form), testing::Contains("Locked for 40 s."));
    Type("1234");
    TypeKey(VK_RETURN);
    TypeKey(VK_ESCAPE);
  }));
  Clocks.Pass(40);
  Restart();
  EXPECT_TRUE(Enter({"1234"}));
}

TEST_F(QueryAccess, StaysLockedWhenTheClockIsSetBack) {
  Keep();
  EXPECT_FALSE(Enter({"1", "2"}));
  Clocks.SetClock(-24 * 60 * 60);
  Restart();
  EXPECT_EQ(Query->LockedFor(), 60);
  Clocks.Pass(15);
  Restart();
  EXPECT_EQ(Query->LockedFor(), 45) << "time goes on from there";
  Clocks.Pass(45);
  EXPECT_TRUE(Enter({"1234"}));
}

TEST_F(QueryAccess, AClockSetBackProlongsNothing) {
  Keep();
  Query->SetValidFor(30);
  EXPECT_TRUE(Enter({"1234"}));
  Clocks.Pass(10);
  Restart();
  Query->SetValidFor(30);
  EXPECT_TRUE(Query->Execute()) << "without asking";
  Clocks.SetClock(-60);
  Restart();
  Query->SetValidFor(30);
  EXPECT_FALSE(Enter({})) << "asked";
}

TEST_F(QueryAccess, TakesNonsenseInTheStoreForNothing) {
  const std::string file = (Folder.Path / "access.ini").string();
  for (const char* nonsense : {"", "x", "9", "1;2;3", "1;2;3;4", "1;2;3;4;5;", "-1;0;0;0;",
                               "0;99999999999999999999;0;0;", "0;0;99999999999999;99;"}) {
    std::ofstream(file) << "[Access]\nForm1.Query1_Access=" << nonsense << "\n";
    Restart();
    EXPECT_EQ(Query->LockedFor(), 0) << nonsense;
    EXPECT_FALSE(Enter({})) << nonsense;
  }
}

TEST_F(QueryAccess, KnowsOnlyTheHash) {
  RegisterAll();
  Query->ChangeCode("openup");
  Query->SetLockTime(-1);
  Query->SetValidFor(2000000000);
  Keep();
  EXPECT_FALSE(Enter({"wrongcode"}));
  EXPECT_TRUE(Enter({"openup"}));
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, Not(HasSubstr("openup")));
  EXPECT_THAT(text, HasSubstr("pbkdf2-sha256$210000$"));
  vcl::TForm form(nullptr);
  ReadForm(text, &form);
  EXPECT_EQ(FormText(&form), text);
  auto* read = dynamic_cast<TQELQueryAccess*>(form.FindComponent("Query1"));
  EXPECT_EQ(read->LockTime() + read->ValidFor(), 60) << "refused";
  std::ifstream kept(Folder.Path / "access.ini");
  const std::string all((std::istreambuf_iterator<char>(kept)), {});
  EXPECT_THAT(all, HasSubstr("Form1.Query1_Access="));
  for (const char* secret : {"openup", "wrongcode", "pbkdf2"}) {
    EXPECT_THAT(all, Not(HasSubstr(secret)));
  }
}

TEST_F(QueryAccess, MayBeFreedMeanwhile) {
  Keep();
  EXPECT_FALSE(Ask(*Query, [this](TCustomForm&) { Query.reset(); }));
}

}  // namespace
}  // namespace qel
