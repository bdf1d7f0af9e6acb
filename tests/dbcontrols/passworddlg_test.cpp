// The password dialog over the records of a data set.
#include <string>

#include "tests/dbcontrols/dataform.h"
#include "tests/dialogs/dialogtest.h"
#include "tests/support/registered.h"
#include "tests/support/testclocks.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

using testinput::TypeKey;
using vcl::TCustomForm;

class DBPasswordDlg : public vcl::TStandardForm {
 protected:
  DBPasswordDlg() {
    Data.FieldDefs()->Add("User", vcl::ftString, 20);
    Data.FieldDefs()->Add("Key", vcl::ftString, 118);
    Data.FieldDefs()->Add("Old", vcl::ftString, 8);
    Data.Open();
    Data.AppendRecord({std::string("ann"), QELHashedCode("apple", 1000), std::string("plain1")});
    Data.AppendRecord({std::string("bob"), QELHashedCode("berry", 1000), std::string()});
    Data.AppendRecord({std::string("eve"), std::string("garbage")});
    Data.AppendRecord({std::string(), QELHashedCode("nobody", 1000)});
    Data.First();
    Source.SetDataSet(&Data);
    Dialog->SetName("Password1");
    Dialog->SetDataSource(&Source);
    Dialog->SetDataUsername("User");
    Dialog->SetDatapassword("Key");
    Dialog->SetMaxTries(1);
    ShowForm();
  }
  bool Enter(const std::vector<std::string>& texts) {
    Clocks.Pass(60);
    Dialog->SetUsername(Dialog->Kind() == pkLogin ? "" : Dialog->Username());
    return Ask(*Dialog, [&](TCustomForm& form) {
      for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0) TypeKey(VK_TAB);
        Type(texts[i]);
      }
      TypeKey(VK_RETURN);
      if (form.ModalResult() == vcl::mrNone) TypeKey(VK_ESCAPE);
    });
  }
  TTestClocks Clocks;
  vcl::TMemoryDataSet Data{nullptr};
  vcl::TDataSource Source{nullptr};
  TQELDBPasswordDlg* Dialog = new TQELDBPasswordDlg(&Form);
};

TEST_F(DBPasswordDlg, ChecksTheRecordOfTheUserAndMovesNowhere) {
  int moves = 0;
  Data.SetRecNo(2);
  Data.AfterScroll = [&](vcl::TDataSet*) { ++moves; };
  Data.Edit();
  Data.FieldByName("User")->SetAsString("bobby");
  Data.FieldByName("Key")->SetAsString(QELHashedCode("mine", 1000));
  EXPECT_TRUE(Enter({"ann", "apple"}));
  EXPECT_EQ(Dialog->Username() + Dialog->Password(), "ann") << "wiped";
  EXPECT_TRUE(Enter({"bob", "berry"}));
  for (const auto& [user, password] :
       std::vector<std::pair<const char*, const char*>>{{"ann", "berry"},
                                                        {"ann", ""},
                                                        {"carl", "apple"},
                                                        {"Ann", "apple"},
                                                        {"", "nobody"},
                                                        {"eve", "garbage"},
                                                        {"eve", ""},
                                                        {"bobby", "mine"}}) {
    EXPECT_FALSE(Enter({user, password})) << user;
  }
  EXPECT_EQ(Data.State(), vcl::dsEdit) << "goes on being edited";
  EXPECT_EQ(Data.FieldByName("User")->AsString(), "bobby");
  EXPECT_EQ(Data.RecNo() * 10 + moves, 20);
  Data.Cancel();
  EXPECT_FALSE(Data.Filtered());
}

TEST_F(DBPasswordDlg, ChecksPlainTextsOfOldTables) {
  Dialog->SetPasswordFormat(pfPlain);
  Dialog->SetDatapassword("Old");
  EXPECT_TRUE(Enter({"ann", "plain1"}));
  for (const char* wrong : {"plain", "Plain1", "plain11", ""}) {
    EXPECT_FALSE(Enter({"ann", wrong})) << wrong;
  }
  EXPECT_FALSE(Enter({"bob", ""})) << "no password is none";
  EXPECT_FALSE(Enter({"eve", ""}));
}

TEST_F(DBPasswordDlg, TakesTheCurrentRecordWithoutAName) {
  Dialog->SetKind(pkPassword);
  EXPECT_TRUE(Enter({"apple"}));
  Dialog->SetUsername("bob");
  EXPECT_FALSE(Enter({"apple"}));
  EXPECT_TRUE(Enter({"berry"}));
}

TEST_F(DBPasswordDlg, WritesTheNewPassword) {
  Dialog->SetKind(pkChange);
  Dialog->SetUsername("bob");
  EXPECT_TRUE(Enter({"berry", "blue", "blue"}));
  EXPECT_EQ(Data.RecNo(), 1) << "as before";
  EXPECT_FALSE(Data.ControlsDisabled());
  const auto key = std::get<std::string>(Data.Lookup("User", {std::string("bob")}, "Key").at(0));
  EXPECT_TRUE(QELCodeMatches("blue", key));
  Dialog->SetPasswordFormat(pfPlain);
  Dialog->SetDatapassword("Old");
  Dialog->SetUsername("ann");
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm& form) {
    for (const char* each : {"plain1", "much too long", "much too long"}) {
      Type(each);
      TypeKey(VK_TAB);
    }
    TypeKey(VK_RETURN);
    EXPECT_THAT(CaptionsOf<vcl::TLabel>(form), testing::Contains(Dialog->StoreFailedText()));
    TypeKey(VK_ESCAPE);
  }));
  EXPECT_EQ(Data.FieldByName("Old")->AsString(), "plain1");
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
}

TEST_F(DBPasswordDlg, SaysWhyItShowsNothing) {
  const auto why = [&] {
    EXPECT_FALSE(Dialog->Execute());
    return Dialog->LastError();
  };
  Dialog->SetDatapassword("Keys");
  EXPECT_EQ(why(), "There is no field 'Keys'");
  Data.Close();
  EXPECT_EQ(why(), "The passwords' data set is not open");
  Dialog->SetDataSource(nullptr);
  EXPECT_EQ(why(), "The passwords' data set is not open");
}

TEST_F(DBPasswordDlg, ComesBackFromAFormFile) {
  RegisterAll();
  Source.SetName("Records");
  Form.InsertComponent(&Source);
  vcl::RegisterClasses({&vcl::TDataSource::Class()});
  Dialog->SetPasswordFormat(pfPlain);
  const std::string text = FormText(&Form);
  vcl::TForm form(nullptr);
  ReadForm(text, &form);
  EXPECT_EQ(FormText(&form), text);
  auto* read = dynamic_cast<TQELDBPasswordDlg*>(form.FindComponent("Password1"));
  EXPECT_EQ(read->DataSource(), form.FindComponent("Records"));
  EXPECT_EQ(read->DataUsername() + read->Datapassword(), "UserKey");
  Form.RemoveComponent(&Source);
  delete form.FindComponent("Records");
  EXPECT_EQ(read->DataSource(), nullptr);
}

}  // namespace
}  // namespace qel
