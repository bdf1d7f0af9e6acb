// Exporting records to text files and importing them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qel/data/Qeltdbascii.h"
#include "tests/data/datatest.h"
#include "vcl/db/memorydataset.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A data set with three text fields and a component for all of them, which notes its events.
class DBAscii : public testing::Test {
 protected:
  DBAscii() : Folder("qeldbascii"), File(Folder.File("records.txt")) {
    for (const char* name : {"Name", "City", "Phone"}) Data.FieldDefs()->Add(name, vcl::ftString);
    Source.SetDataSet(&Data);
    Make();
  }
  void Make() {
    Ascii = std::make_unique<qel::TQELDBAscii>(nullptr);
    for (const char* name : {"Name", "City", "Phone"}) {
      qel::TQELADField* column = Ascii->Fields()->Add();
      column->SetDataField(name);
      column->SetCSVName(std::string("The ") + name);
    }
    Ascii->SetDataSource(&Source);
    Ascii->SetDelimiter(U';');
    Ascii->SetFilename(File);
    Ascii->OnImportSuccess = Note("success");
    Ascii->OnImportException = Note("exception");
    Ascii->ImportBeforeInsert = Note("insert");
    Ascii->ExportBeforeWrite = Note("write");
    Ascii->OnExportDone = [this](vcl::TObject*) { Log.push_back("done"); };
  }

  qel::TQELImportExportEvent Note(const std::string& what) {
    return [this, what](vcl::TObject* sender, const std::string& text) {
      EXPECT_EQ(sender, Ascii.get());
      Log.push_back(what + " " + text);
    };
  }
  std::string Records() {
    Data.Open();
    return Dump(Data);
  }
  std::string Import(const std::string& bytes) {
    WriteContents(File, bytes);
    Data.Open();
    Data.EmptyTable();
    Log.clear();
    Ascii->DoImport();
    return Records();
  }

  TDataFolder Folder;
  std::string File;
  vcl::TMemoryDataSet Data{nullptr};
  vcl::TDataSource Source{nullptr};
  std::unique_ptr<qel::TQELDBAscii> Ascii;
  std::vector<std::string> Log;
};

TEST_F(DBAscii, WritesALineForEachRecord) {
  Data.Open();
  Data.AppendRecord({std::string("Ann"), std::string("a;b \"c\""), {}});
  Data.AppendRecord({std::string("B\u00f6"), std::string(""), std::string(" 3 ")});
  Data.Close();
  Ascii->DoExport();
  EXPECT_EQ(Contents(File), "Ann;a;b \"c\";\r\nB\u00f6;; 3 \r\n");
  EXPECT_THAT(Log, ElementsAre("write Ann;a;b \"c\";", "write B\u00f6;; 3 ", "done"));
  EXPECT_FALSE(Data.Active()) << "it was closed before";
  Data.Open();
  Data.Last();
  Ascii->SetPrintHeader(true);
  Ascii->Fields()->GetItem(0)->SetIndex(2);
  Ascii->SetDelimiter(U'\u20ac');
  Ascii->DoExport();
  EXPECT_TRUE(Contents(File).starts_with(
      "(The City)(The Phone)(The Name)\r\na;b \"c\"\u20ac\u20acAnn\r\n"));
  EXPECT_TRUE(Data.Eof());
  Data.EmptyTable();
  Ascii->DoImport();
  EXPECT_EQ(Dump(Data), "B\u00f6|| 3 ;Ann|a;b \"c\"|");
}

TEST_F(DBAscii, WritesAnEmptyFileWithoutRecordsAndNoneWithoutData) {
  WriteContents(File, "before");
  Ascii->DoExport();
  EXPECT_EQ(Contents(File), "");
  Ascii->SetPrintHeader(true);
  Ascii->DoExport();
  EXPECT_EQ(Contents(File), "(The Name)(The City)(The Phone)\r\n");
  Source.SetDataSet(nullptr);
  Ascii->SetFilename(Folder.File("nowhere/file"));
  Ascii->DoExport();
  Ascii->DoImport();
  EXPECT_THAT(Log, ElementsAre("done", "done", "done"));
}

TEST_F(DBAscii, SplitsLinesIntoColumns) {
  struct TCase {
    const char *File, *Records;
  };
  const TCase cases[] = {
      {"a;b;c;d\r\n", "a|b|c;d"},
      {"a\r\n", "||a"},
      {"a;b\r\n", "a||b"},
      {";;\r\n", "||"},
      {"\r\n\r\na;b;c\r\n\r\n", "a|b|c"},
      {"1;2;3\r\n4;5;6", "4|5|6;1|2|3"},  // Each is inserted before the one that was before it.
      {"1;2;3\n4;5;6\r7;8;9\n", "7|8|9;4|5|6;1|2|3"},
      {"", ""},
      {"\xEF\xBB\xBF", ""},  // A byte-order mark is no part of the first value.
      {"\xEF\xBB\xBF"
       "1;2;3\r\n",
       "1|2|3"},
  };
  for (const TCase& each : cases) EXPECT_EQ(Import(each.File), each.Records) << each.File;
  Ascii->SetPrintHeader(true);
  EXPECT_EQ(Import("(x)(y)\r\n1;2;3\r\n"), "1|2|3");
  EXPECT_EQ(Import(""), "");
}

TEST_F(DBAscii, LongLinesAndManyAreReadWhole) {
  const std::string field(200'000, 'x');
  std::string file = field + ";" + field + ";z\r\n";
  for (int i = 0; i < 20'000; ++i) file += "a;b;" + std::to_string(i) + "\r\n";
  WriteContents(File, file);
  Ascii->DoImport();
  Data.Open();
  EXPECT_EQ(Data.RecordCount(), 20'001);
  EXPECT_EQ(Data.FieldByName("Phone")->AsString(), "19999");
  Data.Last();
  EXPECT_TRUE(Data.FieldByName("City")->AsString() == field);
}

TEST_F(DBAscii, TellsOfEachRecordAndGivesUpWhatCannotBePosted) {
  Data.FieldDefs()->Items(1)->SetSize(2);
  std::string error;
  Ascii->OnImportException = [&](vcl::TObject*, const std::string& text) {
    Log.push_back("exception " + text);
    error = Ascii->ImportError();
    EXPECT_EQ(Data.State(), vcl::dsInsert) << "the handler can still look at the record";
  };
  EXPECT_EQ(Import("1;far too long;3\r\n4;5;6\r\n"), "4|5|6");
  EXPECT_THAT(Log, ElementsAre("insert 1;far too long;3", "exception 1;far too long;3",
                               "success 1;far too long;3", "insert 4;5;6", "success 4;5;6"));
  EXPECT_THAT(error, HasSubstr("longer than"));
}

TEST_F(DBAscii, AValueThatItsFieldDoesNotTakeGivesTheRecordUpOrIsRaised) {
  Data.FieldDefs()->Items(2)->SetDataType(vcl::ftInteger);
  EXPECT_THROW(Import("1;2;three\r\n"), vcl::Exception) << "nobody handles it";
  Data.Close();
  Ascii->SetPrintHeader(true);
  Log.clear();
  Ascii->OnImportValueError = [&](vcl::TObject*, qel::TQELADField* column, bool& goOn) {
    Log.push_back(std::to_string(Ascii->ImportLine()) + " " + column->CSVName());
    EXPECT_THAT(Ascii->ImportError(), HasSubstr("three"));
    goOn = Ascii->ImportLine() < 5;
  };
  EXPECT_EQ(Import("(x)\r\n\r\n1;2;three\r\n4;5;6\r\n"), "4|5|6");
  EXPECT_THAT(Log, ElementsAre("insert 1;2;three", "3 The Phone", "success 1;2;three",
                               "insert 4;5;6", "success 4;5;6"));
  EXPECT_THROW(Import("(x)\r\n\r\n\r\n\r\n1;2;three\r\n"), vcl::Exception);
}

TEST_F(DBAscii, TheHandlerOfExportBeforeWriteIsCalledBeforePosting) {
  Ascii->ImportBeforePost = Note("post");
  Import("1;2;3");
  EXPECT_THAT(Log, ElementsAre("insert 1;2;3", "write 1;2;3", "success 1;2;3"));
  Ascii->ExportBeforeWrite = nullptr;
  EXPECT_EQ(Import("1;2;3"), "1|2|3");
}

TEST_F(DBAscii, OtherErrorsReachTheCaller) {
  Ascii->SetFilename(Folder.File("missing.txt"));
  EXPECT_THROW(Ascii->DoImport(), vcl::EInOutError);
  Ascii->SetFilename(Folder.File("no/such/folder"));
  EXPECT_THROW(Ascii->DoExport(), vcl::EInOutError);
  Ascii->SetFilename(File);
  Data.EmptyTable();
  Data.AppendRecord({std::string("Ann")});
  Ascii->SetPrintHeader(true);
  Ascii->Fields()->Add()->SetDataField("Age");
  EXPECT_THROW(Ascii->DoExport(), vcl::EDatabaseError);
  EXPECT_EQ(Contents(File), "(The Name)(The City)(The Phone)()\r\n");
  EXPECT_TRUE(Data.Active());
  EXPECT_THAT(Log, ElementsAre());
  WriteContents(File, "header\r\n1;2;3;4\r\n");
  EXPECT_THROW(Ascii->DoImport(), vcl::EDatabaseError);
}

TEST_F(DBAscii, AnyHandlerMayFreeTheComponent) {
  Data.Open();
  Data.AppendRecord({std::string("Ann")});
  const auto free = [this](auto&&...) { Ascii.reset(); };
  const std::function<void()> places[] = {
      [&] { Data.AfterOpen = free; },         [&] { Data.BeforeClose = free; },
      [&] { Data.AfterScroll = free; },       [&] { Data.AfterInsert = free; },
      [&] { Source.OnDataChange = free; },    [&] { Data.AfterPost = free; },
      [&] { Ascii->OnImportSuccess = free; }, [&] { Ascii->ExportBeforeWrite = free; },
      [&] { Ascii->OnExportDone = free; }};
  for (const auto& place : places) {
    Data.Close();
    Make();
    place();
    Ascii->DoExport();
    if (Ascii) Ascii->DoImport();
    EXPECT_EQ(Ascii, nullptr) << &place - places;
    Data.AfterOpen = Data.BeforeClose = Data.AfterScroll = Data.AfterInsert = Data.AfterPost = {};
    Source.OnDataChange = nullptr;
  }
}

TEST_F(DBAscii, ColumnsCopyTheirFieldOnly) {
  qel::TQELDBAscii other(nullptr);
  other.SetFields(Ascii->Fields());
  EXPECT_EQ(other.Fields()->Count(), 3);
  EXPECT_EQ(other.Fields()->GetItem(1)->DataField(), "City");
  EXPECT_EQ(other.Fields()->GetItem(1)->CSVName(), "");
  EXPECT_EQ(other.Fields()->GetItem(1)->DisplayName(), "City");
  EXPECT_EQ(other.Fields()->Add()->DisplayName(), "TQELADField");
  EXPECT_EQ(other.Fields()->GetItem(0)->Owner(), &other);
}

}  // namespace
