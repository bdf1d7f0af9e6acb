// The form of Records with a database of its own: what it asks before something is lost.
#include <gmock/gmock.h>

#include <fstream>

#include "demos/records/database.h"
#include "demos/records/recordsform.h"
#include "tests/dialogs/dialogtest.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace records {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class Records : public testing::Test {
 protected:
  void SetUp() override {
    vcl::RegisterDataControls();
    Form = std::make_unique<TRecordsForm>(nullptr);
    try {
      Form->Open((Folder.Path / "people.db").string());
    } catch (const vcl::EDatabaseError& error) {
      GTEST_SKIP() << "no driver for SQLite: " << error.what();
    }
    Form->Show();
  }
  ~Records() override { vcl::Application()->OnIdle = nullptr; }

  template <class T>
  T* Find(const char* name) const {
    return dynamic_cast<T*>(Form->FindComponent(name));
  }
  void Click(const char* button) const { Find<vcl::TButton>(button)->Click(); }
  vcl::TField* Name() const { return Find<vcl::TOdbcQuery>("Query")->FieldByName("name"); }
  int Count() const {
    auto* const query = Find<vcl::TOdbcQuery>("Query");
    int count = 0;
    for (query->First(); !query->Eof(); query->Next()) ++count;
    return count;
  }
  std::string Status() const { return Find<vcl::TStatusBar>("StatusBar")->SimpleText(); }
  /// Imports a file of these lines; the questions are answered with these buttons.
  std::vector<std::string> Import(const std::string& lines, std::vector<std::string> answers) {
    const std::string name = (Folder.Path / "people.csv").string();
    std::ofstream(name, std::ios::binary) << lines;
    const auto asked = Answering(std::move(answers));
    try {
      Form->Import(name);
    } catch (const vcl::EAbort&) {
    }
    return *asked;
  }
  /// The dialog that is up, whether the screen has made it the active one or not; null without one.
  static vcl::TCustomForm* Dialog() {
    const vcl::TScreen* const screen = vcl::Screen();
    for (int i = 0; i < screen->FormCount(); ++i) {
      vcl::TCustomForm* const form = screen->Forms(i);
      if (form->ClassName() != "TRecordsForm" && form->Visible()) return form;
    }
    return nullptr;
  }
  /// Presses buttons in the next dialogs, whose texts it collects.
  static std::shared_ptr<std::vector<std::string>> Answering(std::vector<std::string> answers) {
    auto asked = std::make_shared<std::vector<std::string>>();
    vcl::Application()->OnIdle = [=](vcl::TObject*, bool& done) {
      if (asked->size() >= answers.size()) return;
      done = false;  // No message is certain to come behind the one that shows the dialog.
      vcl::TCustomForm* const dialog = Dialog();
      if (!dialog) return;
      const std::string wanted = answers[asked->size()];
      std::string text;
      vcl::TButton* button = nullptr;
      for (int i = 0; i < dialog->ControlCount(); ++i) {
        if (auto* label = dynamic_cast<vcl::TLabel*>(dialog->Controls(i))) text = label->Caption();
        auto* each = dynamic_cast<vcl::TButton*>(dialog->Controls(i));
        if (each && each->Caption() == wanted) button = each;
      }
      if (!button) return;
      asked->push_back(text);
      button->Click();
    };
    return asked;
  }

  const testing_support::TFolder Folder;
  std::unique_ptr<TRecordsForm> Form;
};

TEST_F(Records, AreDeletedWhenTheUserAgrees) {
  const std::string first = Name()->AsString();
  for (const bool agreed : {false, true}) {
    const auto asked = Answering({agreed ? "&Yes" : "&No"});
    Click("DeleteButton");
    EXPECT_THAT(*asked, ElementsAre("Delete " + first + "?"));
    EXPECT_EQ(Count(), agreed ? 5 : 6);
    Find<vcl::TOdbcQuery>("Query")->First();
  }
}

TEST_F(Records, AreFilteredLookedUpAndHaveTheirPayments) {
  auto* const query = Find<vcl::TOdbcQuery>("Query");
  auto* const payments = Find<vcl::TOdbcQuery>("PaymentQuery");
  EXPECT_EQ(Name()->AsString(), "Ada Bergström");
  EXPECT_EQ(Find<qel::TQELDBLookupedit>("KindEdit")->Text(), "Customer");
  EXPECT_EQ(query->FieldByName("kindname")->AsString(), "Customer");
  EXPECT_EQ(payments->RecordCount(), 2);
  auto* const filter = Find<vcl::TEdit>("FilterEdit");
  filter->SetText("forl");
  EXPECT_EQ(Name()->AsString(), "Chiara Rossi");
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(payments->FieldByName("amount")->AsFloat(), 300);
  filter->SetText("it's");
  EXPECT_EQ(Count(), 0);
  filter->SetText("");
  EXPECT_EQ(Count(), 6);
}

TEST_F(Records, AHundredThousandAreShown) {
  auto* const query = Find<vcl::TOdbcQuery>("Query");
  query->Close();
  Find<vcl::TOdbcConnection>("Connection")
      ->Execute(
          "INSERT INTO people (name, city, kind) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
          "SELECT i + 1 FROM n LIMIT 100000) SELECT 'Name ' || i, 'City', 1 + i % 3 FROM n");
  query->Open();
  query->Last();
  EXPECT_EQ(query->RecordCount(), 100'006);
  auto* const grid = Find<vcl::TDBGrid>("Grid");
  for (int i = 0; i < 50; ++i) grid->Perform(WM_VSCROLL, SB_PAGEUP, 0), grid->Update();
  EXPECT_LT(query->RecNo(), 100'006 - 50);
  Find<vcl::TEdit>("FilterEdit")->SetText("Name 99999");
  EXPECT_EQ(Name()->AsString(), "Name 99999");
}

TEST_F(Records, HaveNotesAndPhotosThatAreEdited) {
  auto* const query = Find<vcl::TOdbcQuery>("Query");
  auto* const notes = Find<qel::TQELDBMemoView>("Notes");
  EXPECT_THAT(notes->Text(), HasSubstr("fair"));
  EXPECT_THAT(query->FieldByName("photo")->AsString(), testing::StartsWith("BM"));
  Find<vcl::TPageControl>("Details")->SetActivePage(Find<vcl::TTabSheet>("NotesPage"));
  ASSERT_TRUE(testinput::PumpUntil([&] { return Form->Active(); }));
  notes->SetFocus();
  testinput::TypeKey(VK_HOME, {VK_CONTROL});
  testinput::TypeKey('X');
  EXPECT_EQ(query->State(), vcl::dsEdit);
  query->Next();
  EXPECT_EQ(notes->Text(), "");
  query->First();
  EXPECT_THAT(notes->Text(), testing::StartsWith("xMet"));
}

TEST_F(Records, AskForThePasswordOnceTheirFileHasOne) {
  EXPECT_TRUE(Form->LogIn()) << "there is none at first";
  const auto typed = [](std::vector<std::string> digits) {
    return [digits = std::move(digits)](vcl::TCustomForm&) {
      for (const std::string& text : digits) {
        for (const char digit : text) testinput::TypeKey(static_cast<WORD>(digit));
        testinput::TypeKey(&text == &digits.back() ? VK_RETURN : VK_TAB);
      }
    };
  };
  const auto logIn = [&](const std::string& password) {
    const qel::TWhenShown shown([&](vcl::TCustomForm& form) {
      typed({password})(form);
      testinput::Pump();
      if (form.ModalResult() == vcl::mrNone) testinput::TypeKey(VK_ESCAPE);
    });
    return Form->LogIn();
  };
  {
    const qel::TWhenShown shown(typed({"1234", "1234"}));
    Click("ProtectButton");
  }
  EXPECT_EQ(Find<vcl::TOdbcQuery>("AccessQuery")->RecordCount(), 1);
  EXPECT_TRUE(logIn("1234"));
  {
    const qel::TWhenShown shown(typed({"1234", "5678", "5678"}));
    Click("ProtectButton");
  }
  EXPECT_TRUE(logIn("5678"));
  EXPECT_FALSE(logIn("1234"));
}

TEST_F(Records, OfOldFilesGetTheColumnsThatAreNew) {
  const std::string name = (Folder.Path / "old.db").string();
  {
    vcl::TOdbcQuery query(nullptr);
    query.SetConnectionString(ConnectionString(name));
    for (const char* sql :
         {"CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(28) NOT NULL UNIQUE,"
          " city VARCHAR(20), born DATE, balance DOUBLE)",
          "INSERT INTO people (name) VALUES ('Old')"}) {
      query.SQL()->SetText(sql);
      query.ExecSQL();
    }
  }
  for (int i = 0; i < 2; ++i) Form->Open(name);
  EXPECT_EQ(Name()->AsString(), "Old");
  EXPECT_TRUE(Form->LogIn());
}

TEST_F(Records, ANewOneBeginsWithItsName) {
  ASSERT_TRUE(testinput::PumpUntil([&] { return Form->Active(); }));
  Click("AddButton");
  EXPECT_EQ(Form->ActiveControl(), Find<vcl::TDBEdit>("NameEdit"));
  EXPECT_TRUE(Find<vcl::TDBEdit>("NameEdit")->Focused());
  Click("CancelButton");
}

TEST_F(Records, ExportingAsksBeforeItReplacesAFile) {
  EXPECT_TRUE(Find<vcl::TSaveDialog>("SaveDialog")->Options().Has(vcl::ofOverwritePrompt));
  EXPECT_TRUE(Find<vcl::TOpenDialog>("OpenDialog")->Options().Has(vcl::ofFileMustExist));
}

TEST_F(Records, ABadValueIsToldWithItsPlaceAndTheUserDecides) {
  const std::string lines =
      "(Name)(City)(Born)(Balance)\n"
      "Gunnar;Oslo;;1\n"
      "\n"
      "Hilde;Oslo;never;1\n"
      "Ivar;Oslo;;much\n"
      "Jorunn;Oslo;;4\n";
  EXPECT_THAT(Import(lines, {"&Yes", "&No"}),
              ElementsAre(AllOf(HasSubstr("Line 4, Born: "), HasSubstr("never")),
                          AllOf(HasSubstr("Line 5, Balance: "), HasSubstr("much"))));
  EXPECT_EQ(Count(), 6) << "the import is taken back";
  EXPECT_EQ(Status(), "Nothing is read from people.csv");
  EXPECT_THAT(Import(lines, {"A&ll"}), ElementsAre(HasSubstr("Line 4")));
  EXPECT_EQ(Count(), 8);
  EXPECT_THAT(Status(), AllOf(HasSubstr("2 records read from people.csv, 2 refused"),
                              HasSubstr("Line 5, Balance: ")));
}

}  // namespace
}  // namespace records
