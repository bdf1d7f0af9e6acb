// TQELDBSearchForm: what is found, the window with real input, and records that change meanwhile.
#include "tests/data/sqlite.h"
#include "tests/dbcontrols/dataform.h"
#include "tests/dialogs/dialogtest.h"

namespace qel {
namespace {

using testing::ElementsAre;

class SearchForm : public TDataForm {
 protected:
  SearchForm() {
    Search->SetDataSource(&Source);
    for (const char* name : {"Annabel", "joann", "Zoe"}) Data.AppendRecord({std::string(name)});
    Data.First();
    Search->OnFound = [this](vcl::TObject*) { Seen.push_back(Data.RecNo()); };
    Search->OnNotFound = [this](vcl::TObject*) { Seen.push_back(0); };
  }
  /// The numbers of the hits, one after another, and 0 for the end.
  std::vector<int> Hits(const std::string& text, TQELDBSearchOptions options = {}) {
    Seen.clear();
    Search->SetSearchText(text);
    Search->SetOptions(options);
    Data.Last();
    for (bool found = Search->Find(); found;) found = Search->FindNext();
    return std::exchange(Seen, {});
  }
  vcl::TCustomForm* Window() const {
    for (int i = 0; i < vcl::Screen()->FormCount(); ++i) {
      vcl::TCustomForm* const form = vcl::Screen()->Forms(i);
      if (form != &Form && form->Visible()) return form;
    }
    return nullptr;
  }
  static void Press(const vcl::TCustomForm& form, const std::string& caption) {
    for (vcl::TBitBtn* each : ControlsOf<vcl::TBitBtn>(form)) {
      if (each->Caption() == caption) testinput::Click(each);
    }
  }
  /// What the window says.
  static std::string Said(const vcl::TCustomForm& form) {
    return ControlsOf<vcl::TLabel>(form).back()->Caption();
  }

  TQELDBSearchForm* Search = new TQELDBSearchForm(&Form);
  std::vector<int> Seen;
};

TEST_F(SearchForm, FindsByWhatFieldsShow) {
  EXPECT_THAT(Hits("ann"), ElementsAre(1, 4, 5, 0));
  EXPECT_THAT(Hits("ann", {soFromStart}), ElementsAre(1, 4, 0));
  EXPECT_THAT(Hits("ann", {soWholeField}), ElementsAre(1, 0));
  EXPECT_THAT(Hits("ann", {soCase}), ElementsAre(5, 0));
  EXPECT_THAT(Hits("zoe", {soFromCurrent}), ElementsAre(6, 0)) << "the current one counts";
  EXPECT_THAT(Hits("ann", {soFromCurrent}), ElementsAre(0));
  EXPECT_THAT(Hits("500"), ElementsAre(2, 0)) << "numbers";
  EXPECT_THAT(Hits("\1"), ElementsAre(0)) << "bytes are not searched";
  Search->SetDefaultField("Notes");
  EXPECT_THAT(Hits("ann"), ElementsAre(0));
  EXPECT_THAT(Hits("ONE"), ElementsAre(1, 0));
  Search->SetDefaultField("");
  Search->Fields()->SetText("Count\r\nNone");
  EXPECT_THAT(Hits("ann"), ElementsAre(0));
  EXPECT_THAT(Hits("7"), ElementsAre(1, 0));
  EXPECT_EQ(Search->Count(), 1);
}

TEST_F(SearchForm, SaysWhatCannotBeSearched) {
  EXPECT_FALSE(Search->Find());
  EXPECT_EQ(Search->LastError(), "There is nothing to search for");
  Search->SetSearchText("x");
  Search->SetDefaultField("None");
  EXPECT_FALSE(Search->FindNext());
  EXPECT_EQ(Search->LastError(), "There is no field \"None\" that can be searched");
  Search->SetDefaultField("");
  EXPECT_FALSE(Search->Find());
  EXPECT_EQ(Search->LastError(), "") << "there is just none";
  Data.Close();
  EXPECT_FALSE(Search->Execute());
  EXPECT_EQ(Search->Count(), -1);
  EXPECT_FALSE(Search->FilterToHits());
  EXPECT_EQ(Search->LastError(), "There are no records to search");
  class TForward : public vcl::TMemoryDataSet {
   public:
    using TMemoryDataSet::TMemoryDataSet;
    bool IsUniDirectional() const override { return true; }
  } forward(nullptr);
  forward.FieldDefs()->Add("Name", vcl::ftString);
  forward.Open();
  Source.SetDataSet(&forward);
  EXPECT_FALSE(Search->Find());
  EXPECT_EQ(Search->LastError(), "A data set that moves only forwards cannot be searched");
}

TEST_F(SearchForm, AnEditIsPostedOrTheSearchRefused) {
  Data.Edit();
  Data.FieldByName("Name")->SetAsString("Edited");
  Search->SetSearchText("zoe");
  Data.BeforePost = [](vcl::TDataSet*) { throw vcl::EDatabaseError("Not that"); };
  EXPECT_THROW(Search->Find(), vcl::EDatabaseError);
  EXPECT_THROW(Search->FilterToHits(), vcl::EDatabaseError);
  EXPECT_FALSE(Search->Filtered());
  EXPECT_EQ(Data.State(), vcl::dsEdit);
  EXPECT_EQ(Value("Name"), "Edited");
  Data.BeforePost = nullptr;
  EXPECT_TRUE(Search->Find());
  EXPECT_EQ(Value("Name"), "Zoe");
  Data.First();
  EXPECT_EQ(Value("Name"), "Edited");
}

TEST_F(SearchForm, FiltersToTheHitsAndBack) {
  Data.SetFilter("Count = 7");
  Search->SetSearchText("ann");
  ASSERT_TRUE(Search->FilterToHits());
  EXPECT_EQ(Data.RecordCount(), 3) << "a filter that did not work does not now";
  Search->SetSearchText("el");
  ASSERT_TRUE(Search->FilterToHits());
  EXPECT_EQ(Value("Name"), "Annabel");
  EXPECT_EQ(Data.RecordCount(), 1);
  Search->ShowAll();
  EXPECT_EQ(Data.RecordCount(), 6);
  EXPECT_EQ(Data.Filter(), "Count = 7");
  Data.OnFilterRecord = [](vcl::TDataSet* set, bool& accept) {
    accept = set->FieldByName("Name")->AsString() != "Ann";
  };
  Data.SetFilter("");
  Data.SetFiltered(true);
  Search->SetSearchText("ann");
  ASSERT_TRUE(Search->FilterToHits());
  EXPECT_EQ(Data.RecordCount(), 2) << "among what was shown before";
  delete Search;
  EXPECT_TRUE(Data.Filtered());
  EXPECT_EQ(Data.RecordCount(), 5);
}

TEST_F(SearchForm, TheWindowFindsCountsAndFiltersByKeyboard) {
  ShowForm();
  std::vector<std::string> said;
  EXPECT_TRUE(Ask(*Search, [&](vcl::TCustomForm& form) {
    EXPECT_FALSE(ControlsOf<vcl::TBitBtn>(form)[0]->Enabled()) << "there is no text";
    Type("ann");
    for (int i = 0; i < 4; ++i) Key(VK_RETURN);
    said.push_back(Said(form));
    KeyWith(VK_MENU, 'O');
    said.push_back(Said(form));
    KeyWith(VK_MENU, 'W');
    KeyWith(VK_MENU, 'L');
    EXPECT_EQ(Data.RecordCount(), 1);
    KeyWith(VK_MENU, 'A');
    EXPECT_EQ(Data.RecordCount(), 6);
    Key(VK_ESCAPE);
  }));
  EXPECT_THAT(Seen, ElementsAre(1, 4, 5, 0));
  EXPECT_THAT(said, ElementsAre("There is no further \"ann\"", "Records found: 3"));
  EXPECT_EQ(Search->Options(), TQELDBSearchOptions{soWholeField});
  EXPECT_FALSE(Search->Shown());
  EXPECT_FALSE(Ask(*Search, Keys({VK_ESCAPE}))) << "nothing was looked for";
}

TEST_F(SearchForm, OffersTheFieldsByTheirLabels) {
  Data.FieldByName("Name")->SetDisplayLabel("Called");
  Search->Fields()->SetText("Name\r\nNone\r\nCount\r\nPhoto");
  Search->SetDefaultField("count");
  Ask(*Search, [&](vcl::TCustomForm& form) {
    vcl::TComboBox* const fields = ControlsOf<vcl::TComboBox>(form).front();
    EXPECT_EQ(fields->Items()->Text(), "(all fields)\r\nCalled\r\nCount\r\n");
    EXPECT_EQ(fields->ItemIndex(), 2);
    EXPECT_EQ(fields->Accessible().Name, "Field:");
    fields->SetFocus();
    Key(VK_UP);
    EXPECT_EQ(Search->SearchField(), "Name");
    Data.Close();
    EXPECT_EQ(fields->Items()->Count(), 1);
    Key(VK_ESCAPE);
  });
}

TEST_F(SearchForm, AWindowThatStaysOpenLetsTheUserGoOn) {
  Search->SetStayOpen(true);
  Search->SetSearchText("zoe");
  ShowForm();
  ASSERT_TRUE(Search->Execute());
  vcl::TCustomForm* const window = Window();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(::GetWindow(window->Handle(), GW_OWNER), Form.Handle()) << "in front of the form";
  EXPECT_TRUE(::IsWindowEnabled(Form.Handle()));
  EXPECT_TRUE(Search->Execute());
  testinput::Pump();
  Press(*window, "&Find");
  EXPECT_EQ(Value("Name"), "Zoe");
  Key(VK_ESCAPE);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_FALSE(Search->Shown());
  ASSERT_TRUE(Search->Execute());
  Form.SetBorderStyle(vcl::bsSizeable);
  EXPECT_FALSE(Search->Shown()) << "the form's window was made anew";
  testinput::Pump();
  EXPECT_TRUE(Search->Execute());
  ASSERT_NE(Window(), nullptr);
  EXPECT_TRUE(::IsWindowVisible(Window()->Handle()));
  EXPECT_EQ(::GetWindow(Window()->Handle(), GW_OWNER), Form.Handle());
  delete Search;
  testinput::Pump();
  EXPECT_EQ(Window(), nullptr) << "the window goes with its component";
}

TEST_F(SearchForm, AWindowThatStaysOpenGoesWithItsForm) {
  ShowForm();
  {
    vcl::TForm second(nullptr);
    auto* search = new TQELDBSearchForm(&second);
    search->SetDataSource(&Source);
    search->SetStayOpen(true);
    second.Show();
    testinput::Pump();
    ASSERT_TRUE(search->Execute());
    testinput::Pump();
  }
  testinput::Pump();
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(SearchForm, ALongSearchCanBeStopped) {
  for (int i = 0; i < 400; ++i) Data.AppendRecord({std::string("many")});
  Data.FieldByName("Name")->OnGetText = [](vcl::TField*, std::string&, bool) { ::Sleep(1); };
  Search->SetSearchText("none");
  int told = 0;
  Search->OnProgress = [&](vcl::TObject*, int records, bool& giveUp) {
    EXPECT_GT(records, 0);
    giveUp = ++told == 2;
  };
  EXPECT_EQ(Search->Count(), -1);
  EXPECT_EQ(told, 2);
  Search->OnProgress = [&](vcl::TObject*, int, bool&) {
    told = 100;
    testinput::SendKey(VK_ESCAPE, true);
    testinput::SendKey(VK_ESCAPE, false);
  };
  Search->SetStayOpen(true);
  ShowForm();
  Search->Execute();
  testinput::Pump();
  Press(*Window(), "&Find");
  EXPECT_EQ(told, 100);
  EXPECT_NE(Window(), nullptr) << "what stops the search does not close the window";
  EXPECT_THAT(Seen, ElementsAre()) << "given up is not missed";
  Data.FieldByName("Name")->OnGetText = nullptr;
}

TEST_F(SearchForm, MayBeFreedInItsOwnEvents) {
  ShowForm();
  Search->SetSearchText("ann");
  Search->OnFound = [this](vcl::TObject*) { delete Search; };
  EXPECT_FALSE(Ask(*Search, Keys({VK_RETURN})));
  Search = new TQELDBSearchForm(&Form);
  Search->SetDataSource(&Source);
  Search->SetSearchText("nothing");
  Search->SetStayOpen(true);
  Search->OnNotFound = [this](vcl::TObject*) { delete Search; };
  Search->Execute();
  testinput::Pump();
  Key(VK_RETURN);
  EXPECT_EQ(Window(), nullptr);
  Search = new TQELDBSearchForm(&Form);
  Search->SetDataSource(&Source);
  Search->SetSearchText("Ann");
  Data.FieldByName("Name")->OnGetText = [this](vcl::TField*, std::string&, bool) {
    delete std::exchange(Search, nullptr);
  };
  EXPECT_FALSE(Search->Find());
  Data.FieldByName("Name")->OnGetText = nullptr;
  Search = new TQELDBSearchForm(&Form);
  vcl::TDataSource source(nullptr);
  auto* data = new vcl::TMemoryDataSet(nullptr);
  data->FieldDefs()->Add("Name", vcl::ftString);
  data->FieldDefs()->Add("City", vcl::ftString);
  data->Open();
  data->AppendRecord({std::string("Ann"), std::string("Ulm")});
  data->FieldByName("Name")->OnGetText = [&](vcl::TField*, std::string&, bool) { data->Close(); };
  source.SetDataSet(data);
  Search->SetDataSource(&source);
  Search->SetSearchText("Ulm");
  EXPECT_FALSE(Search->Find()) << "closed behind its back";
  data->Open();
  Search->OnProgress = [&](vcl::TObject*, int, bool&) { delete std::exchange(data, nullptr); };
  data->FieldByName("Name")->OnGetText = [](vcl::TField*, std::string&, bool) { ::Sleep(120); };
  EXPECT_EQ(Search->Count(), -1) << "freed behind its back";
}

TEST_F(SearchForm, SearchesQueriesTheSame) {
  TSqliteFile database("qelsearch");
  try {
    database.Execute("CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(20))");
  } catch (const vcl::EDatabaseError& error) {
    GTEST_SKIP() << "no ODBC driver for SQLite: " << error.Message();
  }
  database.Execute("INSERT INTO people (name) VALUES ('Ann'), (NULL), ('Joann')");
  vcl::TOdbcQuery query(nullptr);
  query.SetConnectionString(database.ConnectionString());
  query.SQL()->SetText("SELECT * FROM people ORDER BY id");
  query.Open();
  Source.SetDataSet(&query);
  Search->OnFound = nullptr;
  Search->SetSearchText("ann");
  EXPECT_EQ(Search->Count(), 2);
  EXPECT_TRUE(Search->Find() && Search->FindNext());
  EXPECT_EQ(query.RecNo(), 3);
  EXPECT_TRUE(Search->FilterToHits());
  EXPECT_EQ(query.RecordCount(), 2);
  Source.SetDataSet(nullptr);
}

}  // namespace
}  // namespace qel
