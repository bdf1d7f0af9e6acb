// Which records of a data set are shown, in what order, and how one is found: filters, Locate,
// calculated fields, orders, masters and details.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/data/datatest.h"
#include "vcl/db/datasource.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/registration.h"
#include "vcl/rtl/classes.h"
#include "vcl/rtl/customapplication.h"

namespace {

using namespace vcl;
using testing::HasSubstr;

TFieldValue T(const char* text) { return std::string(text); }
TFieldValue N(std::int64_t number) { return number; }
TFieldValue D(int year, int month, int day) { return EncodeDate(year, month, day); }
const TFieldValue None;

/// Five people; the current one is the first.
struct TPeople : TMemoryDataSet {
  TPeople() : TMemoryDataSet(nullptr) {
    FieldDefs()->Add("Name", ftString);
    FieldDefs()->Add("Age", ftLargeint);
    FieldDefs()->Add("Home town", ftString);
    FieldDefs()->Add("Born", ftDate);
    FieldDefs()->Add("Sure", ftBoolean);
    FieldDefs()->Add("Score", ftFloat);
    Open();
    AppendRecord({T("Ann"), N(30), T("Ulm"), D(1994, 2, 28), N(1), 2.5});
    AppendRecord({T("bob"), N(20), T("Bonn"), D(2004, 7, 1), N(0), -1.0});
    AppendRecord({T("O'Brien"), None, T("ulm"), None, N(1), 1e10});
    AppendRecord({T("\u00c4nne"), N(9007199254740993), None, D(1850, 1, 2), None, 0.0});
    AppendRecord({T("A*"), N(40), T("K\u00f6ln"), D(2024, 2, 29), N(0), None});
    First();
  }
  std::string Name() const { return FieldByName("Name")->AsString(); }
  void Add(const char* name, int age) { AppendRecord({T(name), N(age)}); }
};

std::string Names(TDataSet& data, const char* field = "Name") {
  std::string names;
  for (data.First(); !data.Eof(); data.Next()) {
    names += (names.empty() ? "" : " ") + data.FieldByName(field)->AsString();
  }
  return names;
}

TEST(Filter, ShowsTheRecordsThatFulfilIt) {
  TPeople people;
  people.SetFiltered(true);
  struct TCase {
    const char *Filter, *Names;
    TFilterOptions Options;
  };
  const TCase cases[] = {
      {"", "Ann bob O'Brien \u00c4nne A*", {}},
      {"Age >= 30", "Ann \u00c4nne A*", {}},
      {"age<30 OR Age>40", "bob \u00c4nne", {}},
      {"Age = 9007199254740992", "", {}},
      {"NOT Age = 30", "bob \u00c4nne A*", {}},
      {"Age IS NULL or Score is null", "O'Brien A*", {}},
      {"Age IS NOT NULL AND NOT (Age <= 30)", "\u00c4nne A*", {}},
      {"Age IN (20, 2*15, '40')", "Ann bob A*", {}},
      {"Age NOT IN (20, 30)", "\u00c4nne A*", {}},
      {"Name IN ('ann', 'A*')", "A*", {}},
      {"Name = 'O''Brien'", "O'Brien", {}},
      {"[Home town] = 'ulm'", "O'Brien", {}},
      {"[home town] = 'ULM'", "Ann O'Brien", {foCaseInsensitive}},
      {"[Home town] <> 'Ulm'", "bob O'Brien A*", {}},
      {"Name = 'A*'", "Ann A*", {}},
      {"Name <> 'a*'", "bob O'Brien \u00c4nne", {foCaseInsensitive}},
      {"Name = 'A*'", "A*", {foNoPartialCompare}},
      {"Name LIKE 'A%'", "Ann A*", {}},
      {"Name LIKE '%b%'", "bob O'Brien", {foCaseInsensitive}},
      {"Name like '_nn%'", "Ann \u00c4nne", {}},
      {"Name NOT LIKE '%n%'", "bob A*", {}},
      {"[Home town] LIKE 'k\u00d6l_'", "A*", {foCaseInsensitive}},
      {"Born < '1994-02-28'", "\u00c4nne", {}},
      {"'2024-02-29' = Born", "A*", {}},
      {"Born + 1 = '1994-03-01' OR Born - '2004-06-30' = 1", "Ann bob", {}},
      {"Sure", "Ann O'Brien", {}},
      {"Sure = FALSE", "bob A*", {}},
      {"NOT Sure AND TRUE", "bob A*", {}},
      {"Score / 0 = 1 OR -Score = 1", "bob", {}},
      {"Score * 2 - 1 = 4", "Ann", {}},
      {"Age * 4000 > 1e19", "\u00c4nne", {}},
      {"Score > 1e9", "O'Brien", {}},
  };
  for (const auto& [filter, names, options] : cases) {
    people.SetFilterOptions(options);
    people.SetFilter(filter);
    EXPECT_EQ(Names(people), names) << filter;
  }
  people.SetFilter("Age = 20");
  EXPECT_EQ(people.RecordCount(), 1);
  people.SetFiltered(false);
  EXPECT_EQ(people.Name(), "bob") << "the current record stays";
  EXPECT_EQ(people.RecNo(), 2);
}

TEST(Filter, SaysWhereItIsWrongAndChangesNothing) {
  TPeople people;
  people.SetFilter("Age = 20");
  people.SetFiltered(true);
  struct TCase {
    std::string Filter;
    const char* Message;
  };
  const TCase cases[] = {
      {"Age >", "character 6: a field or a value was expected, not its end"},
      {"Age > 1 2", "character 9: AND, OR or the end was expected, not \"2\""},
      {"Age", "character 1: a condition was expected, not a number"},
      {"\u00c4ge = 1", "character 1: there is no field '\u00c4ge'"},
      {"Name = 'x", "character 8: the text does not end"},
      {"[Name = 'x'", "character 1: the bracket is not closed"},
      {"Name = '\u00c4\u00c4' AND !", "character 17: \"!\" means nothing here"},
      {"Age = 'x'", "character 7: a number was expected, not 'x'"},
      {"Born = '2023-02-29'", "a date or time was expected, not '2023-02-29'"},
      {"Age = Name", "character 7: a number was expected, not a text"},
      {"Age = NULL", "Null is asked for by IS NULL"},
      {"Age IS 5", "character 8: NULL was expected"},
      {"Age NOT 5", "LIKE or IN was expected"},
      {"Age LIKE '3%'", "character 1: a text was expected"},
      {"Age IN 5", "( was expected"},
      {"Age IN (5", "\",\" or \")\" was expected, not its end"},
      {"(Age = 5", "\")\" was expected"},
      {"Age = 12x", "\"12x\" is no number"},
      {"Sure AND Age", "character 10: a condition was expected"},
      {std::string(100000, '(') + "Age", "nested more than 100 levels deep"},
      {"Age = " + std::string(100000, '-'), "a field or a value was expected"},
  };
  for (const auto& [filter, message] : cases) {
    EXPECT_THAT(Message([&] { people.SetFilter(filter); }), HasSubstr(message)) << filter;
    EXPECT_EQ(people.Filter(), "Age = 20");
  }
  EXPECT_EQ(Names(people), "bob");
  people.SetFiltered(false);
  people.SetFilter("Age >");
  EXPECT_THAT(Message([&] { people.SetFiltered(true); }), HasSubstr("\"Age >\""));
  EXPECT_FALSE(people.Filtered());
  EXPECT_EQ(people.RecordCount(), 5);
  std::string deep = "Age = 20";
  for (int i = 0; i < 20000; ++i) deep += " OR Age = 20 + 0";
  people.SetFilter(deep);
  people.SetFiltered(true);
  EXPECT_EQ(Names(people), "bob") << "what is long is not deep";
}

TEST(Filter, HidesWhatIsPostedAndShowsWhatIsInserted) {
  TPeople people;
  people.SetFilter("Age < 50");
  people.SetFiltered(true);
  people.Next();
  people.InsertRecord({T("Eve"), N(1)});
  EXPECT_EQ(Names(people), "Ann Eve bob A*");
  people.First();
  people.Edit();
  people.FieldByName("Age")->SetAsInteger(60);
  people.Post();
  EXPECT_EQ(people.Name(), "Eve") << "the next one";
  people.InsertRecord({T("Old"), N(70)});
  EXPECT_EQ(people.Name(), "Eve");
  people.Delete();
  EXPECT_EQ(Names(people), "bob A*");
  people.SetFiltered(false);
  EXPECT_EQ(Names(people), "Ann Old bob O'Brien \u00c4nne A*") << "each in its place";
}

TEST(Filter, AHandlerDecidesToo) {
  auto people = std::make_unique<TPeople>();
  people->OnFilterRecord = [](TDataSet* data, bool& accept) {
    EXPECT_EQ(data->State(), dsFilter);
    accept = data->FieldByName("Name")->AsString() != "bob";
  };
  people->SetFilter("Age < 35");
  EXPECT_EQ(people->RecordCount(), 5);
  people->SetFiltered(true);
  EXPECT_EQ(Names(*people), "Ann");
  people->OnFilterRecord = [](TDataSet* data, bool&) { data->Next(); };
  EXPECT_THAT(Message([&] { people->Refresh(); }), HasSubstr("while records are filtered"));
  people->OnFilterRecord = nullptr;
  people->Refresh();
  EXPECT_EQ(Names(*people), "Ann bob");
  people->OnFilterRecord = [](TDataSet*, bool&) { throw EDatabaseError("not this one"); };
  people->Insert();
  people->SetFieldValues("Age", N(3));
  EXPECT_EQ(Message([&] { people->Post(); }), "not this one");
  EXPECT_EQ(people->State(), dsInsert);
  people->OnFilterRecord = nullptr;
  people->Post();
  EXPECT_EQ(people->RecordCount(), 3) << "and it was not posted twice";
  people->OnFilterRecord = [&](TDataSet*, bool&) { people.reset(); };
  EXPECT_THROW(people->Refresh(), EAbort);
}

TEST(Locate, FindsByFieldsOrStays) {
  TPeople people;
  EXPECT_TRUE(people.Locate("Home town;Age", {T("Bonn"), T("20")}));
  EXPECT_EQ(people.Name(), "bob");
  EXPECT_FALSE(people.Locate("Name", {T("ann")}));
  EXPECT_EQ(people.Name(), "bob");
  EXPECT_TRUE(people.Locate("name", {T("\u00c4NNE")}, {loCaseInsensitive}));
  EXPECT_EQ(people.RecNo(), 4);
  EXPECT_TRUE(people.Locate("Name", {T("O'")}, {loPartialKey}));
  EXPECT_FALSE(people.Locate("Name", {T("o'")}, {loPartialKey}));
  EXPECT_TRUE(people.Locate("Name", {T("BO")}, {loPartialKey, loCaseInsensitive}));
  EXPECT_EQ(people.Name(), "bob");
  EXPECT_TRUE(people.Locate("Age", {None}));
  EXPECT_EQ(people.Name(), "O'Brien");
  EXPECT_THAT(Message([&] { people.Locate("Age", {T("x")}); }), HasSubstr("'x'"));
  EXPECT_THAT(Message([&] { people.Locate("Age;Nix", {N(1), N(2)}); }), HasSubstr("'Nix'"));
  EXPECT_THAT(Message([&] { people.Locate("Age", {}); }), HasSubstr("0 values"));
  people.Edit();
  people.SetFieldValues("Score", 5.0);
  EXPECT_EQ(people.Lookup("Name", {T("A*")}, "Born;Age"), (TRecord{D(2024, 2, 29), N(40)}));
  EXPECT_EQ(people.Lookup("Name", {T("nobody")}, "Age"), TRecord());
  EXPECT_EQ(people.State(), dsEdit) << "looking up is no move";
  people.Locate("Age", {N(30)});
  EXPECT_EQ(people.Lookup("Name", {T("O'Brien")}, "Score"), TRecord{5.0}) << "moving posts";
  const TBookmark first = people.Bookmark();
  people.Last();
  EXPECT_LT(people.CompareBookmarks(first, people.Bookmark()), 0);
  EXPECT_EQ(people.CompareBookmarks(first, first), 0);
  EXPECT_THAT(Message([&] { people.CompareBookmarks(first, 99); }), HasSubstr("gone"));
}

TEST(Order, IsKeptAsRecordsArePosted) {
  TPeople people;
  people.SetIndexFieldNames("Age");
  EXPECT_EQ(Names(people), "O'Brien bob Ann A* \u00c4nne") << "Null first, numbers as such";
  people.SetIndexFieldNames("Sure desc; Name");
  EXPECT_EQ(Names(people), "Ann O'Brien A* bob \u00c4nne");
  people.SetIndexFieldNames("Name");
  people.Add("ann", 1);
  EXPECT_EQ(people.Name(), "ann") << "it is the current one where it has gone";
  EXPECT_EQ(people.RecNo(), 3) << "behind its equal";
  EXPECT_TRUE(people.Locate("Name", {T("ann")}));
  EXPECT_EQ(people.FieldByName("Age")->AsInteger(), 1);
  EXPECT_FALSE(people.Locate("Name", {T("ANN")}));
  EXPECT_TRUE(people.Locate("Name", {T("ANN")}, {loCaseInsensitive}));
  EXPECT_EQ(people.RecNo(), 2);
  people.Edit();
  people.SetFieldValues("Name", T("Zoe"));
  people.Post();
  EXPECT_EQ(people.Name(), "Zoe");
  people.Delete();
  people.SetFilter("Age < 40");
  people.SetFiltered(true);
  EXPECT_EQ(Names(people), "ann bob");
  EXPECT_THAT(Message([&] { people.SetIndexFieldNames("Name;Nix"); }), HasSubstr("'Nix'"));
  EXPECT_EQ(people.IndexFieldNames(), "Name");
  people.SetFiltered(false);
  people.SetIndexFieldNames("");
  EXPECT_EQ(Names(people), "bob O'Brien \u00c4nne A* ann") << "as they came";
}

/// Orders with a total that is calculated and the name of the customer, which is looked up.
struct TOrders : TMemoryDataSet {
  TOrders() : TMemoryDataSet(nullptr) {
    People.SetIndexFieldNames("Age");
    FieldDefs()->Add("Who", ftLargeint);
    FieldDefs()->Add("Price", ftFloat);
    for (const char* name : {"Who", "Price", "Total", "Name"}) {
      TField* field = NewField(name == std::string("Name") ? ftString : ftFloat, this);
      field->SetFieldName(name);
      field->SetDataSet(this);
    }
    Field("Total").SetFieldKind(fkCalculated);
    TField& name = Field("Name");
    name.SetFieldKind(fkLookup);
    name.SetKeyFields("Who");
    name.SetLookupDataSet(&People);
    name.SetLookupKeyFields("Age");
    name.SetLookupResultField("Name");
    OnCalcFields = [this](TDataSet* data) {
      ++Calculations;
      EXPECT_EQ(data->State(), dsCalcFields);
      Field("Total").SetAsFloat(Field("Price").AsFloat() * 2);
    };
    Open();
    AppendRecord({N(20), 1.0});
    AppendRecord({N(30), 2.0});
    AppendRecord({N(99), 3.0});
    First();
  }
  TField& Field(const char* name) { return *FieldByName(name); }
  TPeople People;
  int Calculations = 0;
};

TEST(CalculatedFields, FollowTheRecord) {
  TOrders orders;
  EXPECT_EQ(Dump(orders), "20|1|2|bob;30|2|4|Ann;99|3|6|");
  orders.First();
  orders.Calculations = 0;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(orders.Field("Total").AsFloat(), 2);
  EXPECT_EQ(orders.Calculations, 1) << "once for a record";
  orders.Edit();
  orders.Field("Price").SetAsFloat(7);
  EXPECT_EQ(orders.Field("Total").AsFloat(), 14);
  orders.SetAutoCalcFields(false);
  orders.Field("Price").SetAsFloat(8);
  EXPECT_EQ(orders.Field("Total").AsFloat(), 14);
  EXPECT_FALSE(orders.Field("Total").CanModify());
  for (const char* name : {"Total", "Name"}) {
    EXPECT_THAT(Message([&] { orders.Field(name).SetAsFloat(1); }), HasSubstr(name));
  }
  orders.Post();
  EXPECT_EQ(orders.Field("Total").AsFloat(), 16);
  orders.SetFilter("Total > 5 AND Name IS NOT NULL");
  orders.SetFiltered(true);
  EXPECT_EQ(Dump(orders), "20|8|16|bob");
  orders.SetFiltered(false);
  EXPECT_TRUE(orders.Locate("Name", {T("Ann")}));
  EXPECT_EQ(orders.Lookup("Total", {6.0}, "Who;Total"), (TRecord{99.0, 6.0}));
  EXPECT_THAT(Message([&] { orders.SetIndexFieldNames("Total"); }), HasSubstr("'Total'"));
  orders.OnCalcFields = [&](TDataSet*) { orders.Field("Price").SetAsFloat(1); };
  orders.First();
  EXPECT_THAT(Message([&] { orders.Field("Total").AsFloat(); }), HasSubstr("calculated"));
}

TEST(LookupFields, MayKeepWhatWasFound) {
  TOrders orders;
  orders.Close();
  orders.Field("Name").SetLookupCache(true);
  orders.Open();
  EXPECT_EQ(orders.Field("Name").AsString(), "bob");
  orders.People.Locate("Name", {T("bob")});
  orders.People.Edit();
  orders.People.SetFieldValues("Name", T("Ben"));
  orders.People.Post();
  orders.Refresh();
  EXPECT_EQ(orders.Field("Name").AsString(), "bob");
  orders.Field("Name").RefreshLookupList();
  orders.Refresh();
  EXPECT_EQ(orders.Field("Name").AsString(), "Ben");
  orders.Field("Name").RefreshLookupList();
  orders.People.Close();
  orders.Refresh();
  EXPECT_TRUE(orders.Field("Name").IsNull());
  EXPECT_THAT(Message([&] { orders.Field("Name").SetLookupDataSet(&orders); }),
              HasSubstr("own data set"));
}

TEST(MasterDetail, DetailsFollowTheirMaster) {
  TPeople people;
  TDataSource source(nullptr);
  source.SetDataSet(&people);
  TMemoryDataSet visits(nullptr);
  visits.FieldDefs()->Add("Person", ftString);
  visits.FieldDefs()->Add("Place", ftString);
  visits.Open();
  for (const char* place : {"Rom", "Paris", "Oslo"}) visits.AppendRecord({T("bob"), T(place)});
  visits.AppendRecord({T("Ann"), T("Bern")});
  visits.SetIndexFieldNames("Person;Place");
  visits.SetMasterFields("Name");
  visits.SetMasterSource(&source);
  const auto places = [&] { return Names(visits, "Place"); };
  EXPECT_EQ(places(), "Bern");
  people.Next();
  EXPECT_EQ(places(), "Oslo Paris Rom");
  visits.Append();
  visits.SetFieldValues("Place", T("Lima"));
  EXPECT_EQ(visits.FieldByName("Person")->AsString(), "bob");
  people.Next();
  EXPECT_EQ(people.Name(), "O'Brien") << "the detail has been posted";
  EXPECT_EQ(places(), "");
  people.Prior();
  EXPECT_EQ(places(), "Lima Oslo Paris Rom");
  visits.BeforePost = [](TDataSet*) { throw EDatabaseError("no"); };
  visits.Edit();
  visits.SetFieldValues("Place", T("X"));
  EXPECT_EQ(Message([&] { people.First(); }), "no");
  EXPECT_EQ(people.Name(), "bob") << "the master waits for its details";
  visits.Cancel();
  people.Edit();
  people.SetFieldValues("Name", T("Ann"));
  people.Post();
  EXPECT_EQ(places(), "Bern");
  people.Insert();
  EXPECT_EQ(places(), "") << "a new one has no details";
  people.Cancel();
  EXPECT_THAT(Message([&] { visits.SetMasterFields("Name;Age;Born"); }), HasSubstr("fewer fields"));
  EXPECT_EQ(visits.MasterFields(), "Name");
  TDataSource own(nullptr);
  own.SetDataSet(&visits);
  EXPECT_THAT(Message([&] { visits.SetMasterSource(&own); }), HasSubstr("own master"));
  people.SetMasterSource(&own);  // Each is the other's master: nothing hangs.
  people.First();
  people.Close();
  EXPECT_EQ(places(), "Bern Lima Oslo Paris Rom") << "without a master, all";
}

TEST(MasterDetail, AMasterThatGoesTakesNothingWithIt) {
  auto people = std::make_unique<TPeople>();
  TDataSource source(nullptr);
  source.SetDataSet(people.get());
  TMemoryDataSet visits(nullptr);
  visits.FieldDefs()->Add("Person", ftString);
  visits.Open();
  for (const char* person : {"bob", "Ann"}) visits.AppendRecord({T(person)});
  visits.SetIndexFieldNames("Person");
  visits.SetMasterFields("Name");
  visits.SetMasterSource(&source);
  visits.Append();
  visits.SetFieldValues("Person", T("Cid"));
  struct TListener : TCustomApplication {
    TListener() : TCustomApplication(nullptr) {}
    void HandleException(TObject*, const std::exception& error) override { Shown += error.what(); }
    std::string Shown;
  } listener;
  visits.BeforePost = [](TDataSet*) { throw EDatabaseError("no"); };
  people.reset();
  EXPECT_EQ(listener.Shown, "no");
  EXPECT_EQ(visits.State(), dsInsert) << "what cannot be posted is still being edited";
  visits.Cancel();
  visits.Refresh();
  EXPECT_EQ(Names(visits, "Person"), "Ann");
}

TEST(View, ComesFromAFormFile) {
  RegisterDataClasses();
  TStringStream file(
      "object Data: TMemoryDataSet\r\n"
      "  FieldDefs = <\r\n"
      "    item\r\n      Name = 'Name'\r\n      DataType = ftString\r\n    end>\r\n"
      "  Filter = 'Name LIKE ''A%'''\r\n"
      "  FilterOptions = [foCaseInsensitive]\r\n"
      "  Filtered = True\r\n"
      "  IndexFieldNames = 'Name DESC'\r\n"
      "  Active = True\r\n"
      "  object DataName: TStringField\r\n    FieldName = 'Name'\r\n  end\r\n"
      "  object DataLong: TIntegerField\r\n"
      "    FieldKind = fkCalculated\r\n    FieldName = 'Long'\r\n  end\r\n"
      "end\r\n");
  TMemoryDataSet data(nullptr);
  ReadComponentFile(file, &data);
  ASSERT_TRUE(data.Active());
  data.OnCalcFields = [](TDataSet* sender) {
    sender->SetFieldValues("Long",
                           N(static_cast<int>(sender->FieldByName("Name")->AsString().size())));
  };
  for (const char* name : {"Ab", "axel", "Bob"}) data.AppendRecord({T(name)});
  EXPECT_EQ(Dump(data), "axel|4;Ab|2");
}

}  // namespace
