// Queries over ODBC, on a database file of SQLite's.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qel/data/Qeltdbascii.h"
#include "tests/data/sqlite.h"
#include "vcl/db/datasource.h"
#include "vcl/rtl/convert.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Odbc : public testing::Test {
 protected:
  Odbc() : Database("qelodbc") {
    Query.SetConnectionString(Database.ConnectionString());
    Query.SetIdentityQuery("SELECT last_insert_rowid()");
  }
  void SetUp() override {
    try {
      Database.Execute(
          "CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(20) NOT NULL UNIQUE,"
          " memo TEXT, born DATE, seen TIMESTAMP, wakes TIME, sure BOOLEAN, score DOUBLE,"
          " big BIGINT, picture BLOB, city VARCHAR(20) DEFAULT 'Ulm')");
    } catch (const vcl::EDatabaseError& error) {
      const bool missing = error.Message().find("SQLSTATE IM00") != std::string::npos ||
                           error.Message().find("SQLSTATE 01000") != std::string::npos;
      if (missing) GTEST_SKIP() << "no ODBC driver for SQLite: " << error.Message();
      throw;
    }
    for (const char* name : {"Ann", "Bob", "Cid"}) {
      Database.Execute(std::string("INSERT INTO people (name) VALUES ('") + name + "')");
    }
  }
  void Open(const std::string& sql, bool live = true, bool uniDirectional = false) {
    Query.Close();
    Query.SetRequestLive(live);
    Query.SetUniDirectional(uniDirectional);
    Query.SQL()->SetText(sql);
    Query.Open();
  }
  vcl::TField* Field(const char* name) { return Query.FieldByName(name); }
  std::string Names() const { return Database.Ask("SELECT name FROM people ORDER BY id"); }

  TSqliteFile Database;
  vcl::TOdbcQuery Query{nullptr};
};

TEST_F(Odbc, EveryKindOfValueComesBack) {
  const std::string bytes{"\0\xff;'\"", 5};
  std::string memo;
  while (memo.size() < 300'000) memo += "\u00e4\u20ac\U0001F600 x";
  for (const std::string& text :
       {memo, std::string(255, 'x'), std::string(256, 'x'), std::string(257, 'x'), std::string()}) {
    const int year = text == memo ? 2024 : 1604;  // Before 1899 times count backwards.
    const double sign = year < 1899 ? -1 : 1;
    const vcl::TDateTime day = vcl::EncodeDate(year, 2, 29);
    const vcl::TDateTime moment = day + sign * vcl::EncodeTime(23, 59, 58, 500);
    Open("SELECT * FROM people WHERE name = 'Bob'");
    Query.Edit();
    Field("memo")->SetAsString(text);
    Field("born")->SetAsDateTime(moment);
    Field("seen")->SetAsDateTime(moment);
    Field("wakes")->SetAsDateTime(vcl::EncodeTime(6, 30, 0, 0));
    Field("sure")->SetAsBoolean(true);
    Field("score")->SetAsFloat(-0.125);
    Field("big")->SetAsLargeInt(INT64_MIN);
    Field("picture")->SetAsString(bytes);
    Query.Post();
    Query.Refresh();
    EXPECT_TRUE(Field("memo")->AsString() == text) << text.size();
    EXPECT_EQ(Field("born")->AsDateTime(), day);
    EXPECT_EQ(vcl::FormatDateTime("yyyymmddhhnnsszzz", Field("seen")->AsDateTime()),
              vcl::IntToStr(year) + "0229235958500");
    EXPECT_EQ(vcl::FormatDateTime("hhnnss", Field("wakes")->AsDateTime()), "063000");
    EXPECT_TRUE(Field("sure")->AsBoolean());
    EXPECT_EQ(Field("score")->AsFloat(), -0.125);
    EXPECT_EQ(Field("big")->AsLargeInt(), INT64_MIN);
    EXPECT_EQ(Field("picture")->AsString(), bytes);
    EXPECT_EQ(Field("city")->AsString(), "Ulm");
  }
  Query.Edit();
  for (vcl::TField* field : Query.Fields()) {
    if (field->FieldNo() > 1) field->Clear();
  }
  Query.Post();
  EXPECT_EQ(Database.Ask("SELECT * FROM people WHERE name = 'Bob'"), "2|Bob|||||||||");
}

TEST_F(Odbc, WritesWhatIsPostedAndRefusesWhatTheDatabaseRefuses) {
  Open("SELECT id, name, city, score + 1 AS more FROM people ORDER BY id");
  Query.Last();
  Query.InsertRecord({{}, std::string("Dan")});
  EXPECT_EQ(Field("id")->AsInteger(), 4) << "the key that the database has given";
  Query.Edit();
  Field("name")->SetAsString("Don");
  Query.Post();
  Query.Edit();
  Field("name")->SetAsString("Ann");
  EXPECT_THAT(Message([&] { Query.Post(); }), HasSubstr("UNIQUE"));
  EXPECT_EQ(Query.State(), vcl::dsEdit);
  Query.Cancel();
  EXPECT_EQ(Field("name")->AsString(), "Don");
  EXPECT_THAT(Message([&] { Query.AppendRecord({}); }), HasSubstr("NOT NULL"));
  Query.Cancel();
  Query.First();
  Query.Edit();
  Field("id")->SetAsInteger(3);
  Query.Delete();
  EXPECT_EQ(Names(), "Bob;Cid;Don") << "the one that was there before it was edited";
  Database.Execute("DELETE FROM people WHERE name = 'Bob'");
  EXPECT_THAT(Message([&] { Query.Delete(); }), HasSubstr("not in table 'people' any more"));
  EXPECT_EQ(Field("name")->AsString(), "Bob");
  Query.Edit();
  EXPECT_THAT(Message([&] { Field("more")->SetAsFloat(1); }), HasSubstr("cannot be modified"));
  Database.Execute("UPDATE people SET city = 'no city that is so long' WHERE name = 'Cid'");
  Open("SELECT id, name, city FROM people ORDER BY name");
  Query.Edit();
  Field("name")->SetAsString("Kit");
  Query.Post();
  EXPECT_EQ(Dump(Query), "3|Kit|no city that is so long;4|Don|Ulm") << "not once more at the end";
}

TEST_F(Odbc, HandlersMayAnswerForWhatTheDatabaseRefuses) {
  Open("SELECT id, name FROM people");
  int tries = 0;
  Query.OnPostError = [&](vcl::TDataSet*, const vcl::EDatabaseError&, vcl::TDataAction& action) {
    if (++tries == 1) Database.Execute("DELETE FROM people WHERE name = 'Cid'");
    action = tries < 3 ? vcl::daRetry : vcl::daAbort;
  };
  Query.InsertRecord({{}, std::string("Cid")});
  EXPECT_EQ(tries, 1);
  EXPECT_THROW(Query.InsertRecord({{}, std::string("Ann")}), vcl::EAbort);
  EXPECT_EQ(Names(), "Ann;Bob;Cid");
}

TEST_F(Odbc, ChangesOnlyWhatItCanFindAgain) {
  Open("SELECT name FROM people");
  Query.Edit();
  Field("name")->SetAsString("X");
  EXPECT_THAT(Message([&] { Query.Post(); }), HasSubstr("no primary key"));
  Query.Cancel();
  for (const char* sql :
       {"SELECT count(*) FROM people", "SELECT a.id, b.name FROM people a, sqlite_master b"}) {
    Open(sql);
    EXPECT_FALSE(Query.CanModify()) << sql;
    EXPECT_THAT(Message([&] { Query.Edit(); }), HasSubstr("read-only"));
  }
  Open("SELECT id FROM people", false);
  EXPECT_FALSE(Query.CanModify());
  Query.Close();
  const std::string odd = "\"odd \"\"pairs\"\"\"";
  Database.Execute("CREATE TABLE " + odd +
                   " (a INTEGER, \"b \"\" b\" INTEGER, c TEXT, PRIMARY KEY " +
                   "(a, \"b \"\" b\"))");
  Open("SELECT * FROM " + odd);
  for (const int b : {1, 2, 3}) Query.AppendRecord({std::int64_t{1}, std::int64_t{b}});
  Query.Prior();
  Query.Edit();
  Field("c")->SetAsString("two");
  Query.Post();
  EXPECT_EQ(Database.Ask("SELECT * FROM " + odd), "1|1|;1|2|two;1|3|");
}

TEST_F(Odbc, ParametersHaveNames) {
  Query.SQL()->SetText(
      "SELECT name || ':not' AS \":no\", name -- :nor this\r\nFROM people"
      " /* :nor */ WHERE name = :Who OR :who = id OR name = :other ORDER BY id");
  EXPECT_EQ(Query.Params()->Count(), 2);
  Query.ParamByName("who")->SetAsString("Bob");
  Query.ParamByName("Other")->SetAsString("Cid");
  Query.Open();
  EXPECT_EQ(Dump(Query), "Bob:not|Bob;Cid:not|Cid");
  EXPECT_THAT(Message([&] { Query.ParamByName("nor"); }), HasSubstr("'nor'"));
  vcl::TOdbcQuery other(nullptr);
  other.SetParams(Query.Params());
  EXPECT_EQ(std::get<std::string>(other.ParamByName("WHO")->Value()), "Bob");
  Query.SQL()->SetText("UPDATE people SET score = ?, born = ?");
  Query.ParamByName("1")->SetAsFloat(1.5);
  Query.ParamByName("2")->SetAsDate(vcl::EncodeDate(1999, 12, 31));
  EXPECT_EQ(Query.ExecSQL(), 3);
  EXPECT_EQ(Database.Ask("SELECT sum(score), min(born || '') FROM people"), "4.5|1999-12-31");
}

TEST_F(Odbc, RecordsAreFilteredAndFoundAsTheyAreRead) {
  Open("SELECT id, name FROM people ORDER BY id");
  Query.SetFilter("name <> 'Bob'");
  Query.SetFiltered(true);
  EXPECT_EQ(Dump(Query), "1|Ann;3|Cid");
  EXPECT_TRUE(Query.Locate("name", {std::string("CID")}, {vcl::loCaseInsensitive}));
  Query.InsertRecord({{}, std::string("Eve")});
  EXPECT_EQ(Dump(Query), "1|Ann;4|Eve;3|Cid");
  Query.Last();
  Query.Edit();
  Field("name")->SetAsString("Cleo");
  Query.Post();
  Query.Refresh();
  EXPECT_EQ(Dump(Query), "1|Ann;3|Cleo;4|Eve");
  Query.Close();
  Query.SetUniDirectional(true);
  EXPECT_THAT(Message([&] { Query.Open(); }), HasSubstr("unidirectional"));
  EXPECT_FALSE(Query.Active());
}

TEST_F(Odbc, ParametersFollowAMaster) {
  vcl::TOdbcQuery visits(nullptr);
  vcl::TDataSource source(nullptr);
  source.SetDataSet(&Query);
  visits.SetMasterSource(&source);
  visits.SetConnectionString(Database.ConnectionString());
  visits.SQL()->SetText("SELECT :id * 10 AS place, :other AS other");
  visits.ParamByName("other")->SetAsString("x");
  Open("SELECT id, name FROM people ORDER BY id");
  visits.Open();
  EXPECT_EQ(Dump(visits), "10|x");
  Query.Next();
  EXPECT_EQ(Dump(visits), "20|x");
  EXPECT_TRUE(Query.Locate("name", {std::string("Cid")}));
  EXPECT_EQ(Dump(visits), "30|x");
}

TEST_F(Odbc, TransactionsAreKeptOrRolledBack) {
  Open("SELECT id, name FROM people");
  Query.StartTransaction();
  EXPECT_EQ(Dump(Query), "1|Ann;2|Bob;3|Cid") << "the transaction has not ended the query";
  Query.AppendRecord({{}, std::string("Dan")});
  Query.Rollback();
  EXPECT_EQ(Names(), "Ann;Bob;Cid");
  Query.StartTransaction();
  Query.AppendRecord({{}, std::string("Eve")});
  EXPECT_THAT(Message([&] { Query.StartTransaction(); }), HasSubstr("already"));
  Query.Commit();
  EXPECT_EQ(Names(), "Ann;Bob;Cid;Eve");
  Open("SELECT id, name FROM people", true, true);
  EXPECT_THAT(Message([&] { Query.StartTransaction(); }), HasSubstr("read to its end"));
  Query.Last();
  Query.StartTransaction();
}

TEST_F(Odbc, SaysWhatIsWrong) {
  EXPECT_THAT(Message([&] { Open("SELECT * FROM nowhere"); }), HasSubstr("nowhere"));
  EXPECT_THAT(Message([&] { Open("DELETE FROM people"); }), HasSubstr("ExecSQL"));
  EXPECT_THAT(Message([&] { Open(" "); }), HasSubstr("no SQL"));
  Query.SetConnectionString("Driver=There is none;Database=x");
  EXPECT_THAT(Message([&] { Open("SELECT 1"); }), HasSubstr("SQLSTATE"));
  EXPECT_FALSE(Query.Active());
}

TEST_F(Odbc, AUnidirectionalQueryMovesForwardOnly) {
  Open("SELECT id, name FROM people ORDER BY id", true, true);
  Query.Next();
  EXPECT_EQ(Field("name")->AsString(), "Bob");
  EXPECT_THAT(Message([&] { Query.Prior(); }), HasSubstr("backwards"));
  EXPECT_THAT(Message([&] { Query.Bookmark(); }), HasSubstr("bookmarks"));
  Query.Edit();
  Field("name")->SetAsString("Ben");
  Query.Post();
  for (const char* name : {"Dan", "Eve"}) {
    Query.InsertRecord({std::int64_t{-1} * name[0], std::string("?")});
    Query.Edit();
    Field("name")->SetAsString(name);
    Query.Post();
    EXPECT_EQ(Field("name")->AsString(), name);
  }
  Query.Next();
  EXPECT_EQ(Field("name")->AsString(), "Ben") << "where the records were inserted";
  Query.Next();
  EXPECT_EQ(Field("name")->AsString(), "Cid");
  Query.Delete();
  EXPECT_TRUE(Query.Eof());
  EXPECT_EQ(Names(), "Eve;Dan;Ann;Ben");
  EXPECT_EQ(Query.RecordCount(), -1);
  Query.Refresh();
  EXPECT_EQ(Field("name")->AsString(), "Eve");
  Query.Last();
  EXPECT_EQ(Field("name")->AsString(), "Ben");
}

/// A query long enough to be read ahead: 0, 1, 2 … with an error in the place of number `bad`.
std::string Numbers(int bad) {
  return "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 6000)"
         " SELECT CASE i WHEN " +
         std::to_string(bad) + " THEN abs(-9223372036854775807 - 1) ELSE i END AS i FROM n";
}

TEST_F(Odbc, ALongQueryIsReadWholeAndInOrderWhateverHappensMeanwhile) {
  const auto walk = [&](int end, int number = 0) {
    for (; !Query.Eof() && number < end; Query.Next()) {
      ASSERT_EQ(Query.Fields()[0]->AsInteger(), number++);
    }
    EXPECT_EQ(number, end);
  };
  Open(Numbers(-1), false, true);
  walk(3000);
  Query.First();
  walk(6000);
  EXPECT_TRUE(Query.Eof());
  Open(Numbers(4000), false, true);
  EXPECT_THAT(Message([&] { walk(6000); }), HasSubstr("overflow"));
  EXPECT_EQ(Query.Fields()[0]->AsInteger(), 3999);
  Database.Execute("CREATE TABLE numbers (i INTEGER PRIMARY KEY)");
  Database.Execute("INSERT INTO numbers " + Numbers(-1));
  Open("SELECT i FROM numbers ORDER BY i", true, true);
  for (int number = 0; number < 5600; number += 700) {
    walk(number + 700, number);
    Query.InsertRecord({std::int64_t{-1} - number});
    Query.Next();
  }
  Query.Delete();
  walk(5999, 5601);
  Query.Edit();
  Field("i")->SetAsInteger(7000);
  Query.Post();
  EXPECT_EQ(Database.Ask("SELECT count(*), min(i), max(i) FROM numbers"), "6007|-4901|7000");
}

TEST_F(Odbc, FilesGoOutAndComeBackThoughEveryLineIsBroken) {
  Database.Execute("CREATE TABLE copies (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)");
  Open("SELECT id, name FROM copies", true, true);
  vcl::TDataSource source(nullptr);
  source.SetDataSet(&Query);
  qel::TQELDBAscii ascii(nullptr);
  ascii.SetDataSource(&source);
  ascii.SetDelimiter(U',');
  ascii.SetFilename(Database.File("copies.csv"));
  for (const char* name : {"id", "name"}) ascii.Fields()->Add()->SetDataField(name);
  std::vector<std::string> failed;
  int dealtWith = 0;
  ascii.OnImportException = [&](vcl::TObject*, const std::string& record) {
    failed.push_back(record + " " + ascii.ImportError().substr(0, 0));
    EXPECT_THAT(ascii.ImportError(), HasSubstr("UNIQUE"));
  };
  ascii.OnImportSuccess = [&](vcl::TObject*, const std::string&) { ++dealtWith; };
  // Too few columns, too many, one twice, one empty, bytes that are no UTF-8.
  WriteContents(ascii.Filename(), "alone\r\n7,a,b,c\r\n7,other\r\n8,a,b,c\r\n9,\xe4\n,\r\n10");
  ascii.DoImport();
  EXPECT_THAT(failed, ElementsAre("7,other ", "8,a,b,c "));
  EXPECT_EQ(dealtWith, 7);
  EXPECT_TRUE(Query.Active());
  Query.Close();
  ascii.DoExport();
  EXPECT_FALSE(Query.Active());
  EXPECT_EQ(Contents(ascii.Filename()), "1,alone\r\n7,a,b,c\r\n9,\u00e4\r\n10,\r\n11,10\r\n");
}

}  // namespace
