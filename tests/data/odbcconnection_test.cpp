// A connection that several queries share, over ODBC to a file of SQLite's.
#include <gmock/gmock.h>

#include "tests/data/sqlite.h"
#include "vcl/db/odbcconnection.h"

namespace vcl {
namespace {

using testing::HasSubstr;

class OdbcConnections : public testing::Test {
 protected:
  OdbcConnections() {
    Connection.SetConnectionString(Database.ConnectionString());
    for (TOdbcQuery* each : {&People, &Other}) each->SetConnection(&Connection);
  }
  void SetUp() override {
    try {
      Connection.Execute("CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(20) UNIQUE)");
    } catch (const EDatabaseError& error) {
      GTEST_SKIP() << "no driver for SQLite: " << error.what();
    }
    EXPECT_EQ(Connection.Execute("INSERT INTO people VALUES (1, 'Ann'), (2, 'Bob')"), 2);
  }
  static void Open(TOdbcQuery& query, const char* sql) {
    query.Close();
    query.SQL()->SetText(sql);
    query.Open();
  }
  int Count() {
    Open(Other, "SELECT count(*) FROM people");
    return Other.Fields()[0]->AsInteger();
  }

  TSqliteFile Database{"odbc-connection"};
  TOdbcConnection Connection{nullptr};
  TOdbcQuery People{nullptr};
  TOdbcQuery Other{nullptr};
};

TEST_F(OdbcConnections, QueriesShareTheirTransaction) {
  People.SetRequestLive(true);
  Open(People, "SELECT id, name FROM people");
  Connection.StartTransaction();
  EXPECT_TRUE(People.InTransaction());
  EXPECT_THAT(Message([&] { Connection.StartTransaction(); }), HasSubstr("already"));
  EXPECT_THAT(Message([&] { Other.StartTransaction(); }), HasSubstr("already"));
  People.AppendRecord({std::int64_t{3}, std::string("Cid")});
  EXPECT_EQ(Count(), 3) << "the other query sees it";
  Connection.Rollback();
  EXPECT_EQ(Count(), 2);
  EXPECT_THAT(Message([&] { Connection.Commit(); }), HasSubstr("no transaction"));
  Other.StartTransaction();
  Connection.Execute("DELETE FROM people WHERE id = 1");
  People.Commit();
  EXPECT_EQ(Database.Ask("SELECT count(*) FROM people"), "1");
  Other.SetUniDirectional((Other.Close(), true));
  Connection.Execute("INSERT INTO people VALUES (7, 'Dan'), (8, 'Eve')");
  Open(Other, "SELECT id FROM people");
  EXPECT_THAT(Message([&] { People.StartTransaction(); }), HasSubstr("read to its end"));
}

TEST_F(OdbcConnections, ItTellsWhenItConnectsAndClosesItsQueries) {
  std::string told;
  const auto tell = [&](TNotifyEvent& event, const char* what) {
    event = [&told, what](TObject*) { told += what; };
  };
  tell(Connection.BeforeConnect, "[");
  tell(Connection.AfterConnect, "] ");
  tell(Connection.BeforeDisconnect, "(");
  tell(Connection.AfterDisconnect, ") ");
  EXPECT_EQ(Connection.QueryCount(), 2);
  EXPECT_EQ(Connection.Queries(1), &Other);
  EXPECT_THROW(Connection.Queries(2), EListError);
  Open(People, "SELECT * FROM people");
  Connection.SetConnected(false);
  EXPECT_FALSE(People.Active());
  EXPECT_FALSE(People.Connected());
  People.Open();
  EXPECT_TRUE(Connection.Connected());
  People.SetConnection(nullptr);
  EXPECT_FALSE(People.Active());
  EXPECT_EQ(Connection.QueryCount(), 1);
  EXPECT_EQ(told, "() [] ");
  EXPECT_NE(Message([&] { People.Open(); }), "") << "its own connection has no database";
  People.SetConnectionString(Database.ConnectionString());
  People.Open();
  EXPECT_EQ(People.RecordCount(), 2);
  EXPECT_EQ(told, "() [] ");
  {
    TOdbcConnection passing(nullptr);
    passing.SetConnectionString(Database.ConnectionString());
    People.SetConnection(&passing);
    People.Open();
    passing.StartTransaction();
  }
  EXPECT_EQ(People.Connection(), nullptr);
  EXPECT_FALSE(People.Active());
}

TEST_F(OdbcConnections, ItAsksForTheUser) {
  TOdbcConnection asking(nullptr);
  asking.SetConnectionString("Driver=There is none");
  asking.SetLoginPrompt(true);
  EXPECT_THAT(Message([&] { asking.SetConnected(true); }), HasSubstr("OnLogin"));
  asking.SetConnectionString(Database.ConnectionString());
  int asked = 0;
  asking.OnLogin = [&](TObject*, std::string& name, std::string& password) {
    ++asked;
    name = "me;Database=other";
    password = "a}b";
  };
  asking.SetConnected(true);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(asking.Execute("UPDATE people SET name = 'Bea' WHERE id = 2"), 1)
      << "what the user says adds nothing to the connection string";
  asking.OnLogin = [](TObject*, std::string&, std::string&) { throw EAbort("never mind"); };
  asking.SetConnected(false);
  EXPECT_THROW(asking.SetConnected(true), EAbort);
  EXPECT_FALSE(asking.Connected());
}

TEST_F(OdbcConnections, ErrorsHaveTheirState) {
  try {
    Connection.Execute("INSERT INTO nowhere VALUES (1)");
    FAIL();
  } catch (const EOdbcError& error) {
    EXPECT_EQ(error.SqlState().size(), 5u);
    EXPECT_THAT(error.Message(), HasSubstr("SQLSTATE " + error.SqlState()));
    EXPECT_FALSE(error.ConnectionLost());
  }
  EXPECT_TRUE(EOdbcError("gone", "08S01", 1).ConnectionLost());
}

TEST_F(OdbcConnections, BatchesWriteAllRowsOrNone) {
  People.SQL()->SetText("INSERT INTO people VALUES (:id, :name)");
  std::vector<TRecord> rows;
  for (int i = 0; i < 2500; ++i) {
    const bool named = i % 7 != 0;
    rows.push_back(
        {std::int64_t{10 + i}, named ? TFieldValue("Näme " + std::to_string(i)) : TFieldValue()});
  }
  EXPECT_EQ(People.ExecuteBatch(rows), 2500);
  EXPECT_EQ(Database.Ask("SELECT count(*), count(name), max(id) FROM people"), "2502|2144|2509");
  EXPECT_EQ(Database.Ask("SELECT name FROM people WHERE id = 2508"), "Näme 2498");
  EXPECT_FALSE(People.InTransaction());

  for (int i = 0; i < 2500; ++i) {
    rows[static_cast<std::size_t>(i)] = {std::int64_t{5000 + i}, std::to_string(i % 2400)};
  }
  EXPECT_THAT(Message([&] { People.ExecuteBatch(rows); }), testing::StartsWith("Row"));
  EXPECT_THAT(Message([&] { People.ExecuteBatch(rows); }),
              testing::AnyOf(HasSubstr("Row 2401: "), HasSubstr("Rows 2001 to 2500: ")));
  EXPECT_EQ(Database.Ask("SELECT count(*) FROM people"), "2502") << "none of them";
  EXPECT_FALSE(People.InTransaction());
  EXPECT_THAT(Message([&] { People.ExecuteBatch({{std::int64_t{1}}}); }),
              HasSubstr("Row 1 has 1 values for 2 parameters"));
  EXPECT_EQ(People.ExecuteBatch({}), 0);

  // Of several kinds, one by one; and inside a transaction, which goes on.
  Connection.StartTransaction();
  const std::string longName(5000, 'x');
  EXPECT_EQ(People.ExecuteBatch({{std::int64_t{9001}, std::int64_t{5}}, {9002.0, longName}}), 2);
  EXPECT_TRUE(People.InTransaction());
  Connection.Rollback();
  EXPECT_EQ(Database.Ask("SELECT count(*) FROM people"), "2502");
}

}  // namespace
}  // namespace vcl
