// Records in memory that are saved to files and come back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/data/datatest.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/rtl/streams.h"

namespace {

using namespace vcl;
using testing::HasSubstr;

constexpr TDataFormat Formats[] = {dfText, dfJson};

std::string Saved(TMemoryDataSet& data, TDataFormat format) {
  TStringStream stream;
  data.SaveToStream(stream, format);
  return std::string(stream.DataString());
}

void Load(TMemoryDataSet& data, const std::string& text) {
  TStringStream stream(text);
  data.LoadFromStream(stream);
}

std::vector<TRecord> Records(TDataSet& data) {
  std::vector<TRecord> records;
  for (data.First(); !data.Eof(); data.Next()) {
    records.emplace_back();
    for (const TField* field : data.Fields()) records.back().push_back(field->Value());
  }
  return records;
}

TEST(RecordFile, EveryKindOfFieldComesBack) {
  TMemoryDataSet data(nullptr);
  for (int type = ftString; type <= ftBlob; ++type) {
    data.FieldDefs()->Add("Field\t" + std::to_string(type), static_cast<TFieldType>(type),
                          type == ftString ? 90 : 0, type == ftBoolean);
  }
  data.Open();
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  const std::string text =
      "\\N a\tb\r\nc\\\"\u00e4\u20ac\U0001F600'/" + std::string(1, '\0') + "\x01";
  const TDateTime moment = EncodeDate(1604, 2, 29) - EncodeTime(23, 59, 58, 501);
  const auto most = std::numeric_limits<std::int64_t>::max();
  const TFieldValue yes = std::int64_t{1}, no = std::int64_t{0};
  data.AppendRecord({text, std::int64_t{-32768}, std::int64_t{2147483647}, most, yes, 0.1, -2.5,
                     1e300, EncodeDate(2024, 2, 28), EncodeTime(6, 30, 0, 0), moment, text, bytes});
  data.AppendRecord({std::string(), std::int64_t{0}, std::int64_t{0}, -most - 1, no, -0.5, 0.0, 1.0,
                     EncodeDate(1, 1, 1), 1.0 / 3, 45000 + 1.0 / 3, std::string(), std::string()});
  TRecord nulls(13);
  nulls[4] = yes;
  data.AppendRecord(nulls);
  const std::vector<TRecord> records = Records(data);
  data.SetFilter("[Field\t5] = FALSE");
  data.SetFiltered(true);
  for (const TDataFormat format : Formats) {
    const std::string file = Saved(data, format);
    TMemoryDataSet back(nullptr);
    Load(back, file);
    EXPECT_EQ(Records(back), records) << file;
    EXPECT_EQ(Saved(back, format), file);
    EXPECT_EQ(back.FieldDefs()->Items(0)->Size(), 90);
    EXPECT_TRUE(back.FieldDefs()->Items(4)->Required());
    EXPECT_EQ(back.FieldDefs()->Items(0)->Name(), "Field\t1");
  }
}

TEST(RecordFile, LooksAsItIsWritten) {
  TMemoryDataSet data(nullptr);
  Load(data,
       "records 1\nftString(8)! Name\nftDate Born\nftBoolean Sure\n\nAnn\t2000-02-29\tTrue\n"
       "B\\tb\t\\N\tFalse\n");
  EXPECT_TRUE(data.Active());
  const std::string text = Saved(data, dfText), json = Saved(data, dfJson);
  EXPECT_EQ(text,
            "records 1\r\nftString(8)! Name\r\nftDate Born\r\nftBoolean Sure\r\n\r\n"
            "Ann\t2000-02-29\tTrue\r\nB\\tb\t\\N\tFalse\r\n");
  EXPECT_EQ(json,
            "{\"fields\": [\r\n"
            "  {\"name\": \"Name\", \"type\": \"ftString\", \"size\": 8, \"required\": true},\r\n"
            "  {\"name\": \"Born\", \"type\": \"ftDate\"},\r\n"
            "  {\"name\": \"Sure\", \"type\": \"ftBoolean\"}],\r\n"
            "\"records\": [\r\n"
            "  [\"Ann\", \"2000-02-29\", true],\r\n"
            "  [\"B\\tb\", null, false]]}\r\n");
  Load(data,
       "\xEF\xBB\xBF{\"fields\":[{\"type\":\"ftInteger\",\"name\":\"N\"},"
       "{\"name\":\"T\",\"type\":\"ftMemo\"}],\"records\":[[1,\"\\u00e4\\ud83d\\ude00\"]]}");
  EXPECT_EQ(Dump(data), "1|\u00e4\U0001F600");
}

TEST(RecordFile, WhatIsWrongIsRefusedWithItsLine) {
  TMemoryDataSet data(nullptr);
  Load(data, "records 1\nftString Name\nftInteger Age\n\nAnn\t3\n");
  const std::string head = "records 1\nftString Name\nftInteger Age\n\n";
  const std::string json = "{\"fields\":[{\"name\":\"A\",\"type\":\"ftInteger\"}],\n\"records\":[";
  struct TCase {
    std::string File;
    const char* Message;
  };
  const TCase cases[] = {
      {"", "Line 1: this is no file of records"},
      {"records 2\n", "Line 1: this is no file"},
      {"records 1\n\n", "Line 2: there are no fields"},
      {"records 1\nftString Name\n", "Line 3: the file ends within the fields"},
      {"records 1\nftNix Name\n\n", "Line 2: 'ftNix' is no kind of field"},
      {"records 1\nftUnknown Name\n\n", "Line 2: 'ftUnknown'"},
      {"records 1\nftString(x) Name\n\n", "Line 2: '(x)' is no size"},
      {"records 1\nftString( Name\n\n", "Line 2: '(' is no size"},
      {"records 1\nftString\n\n", "Line 2: a field has no name"},
      {"records 1\nftString A\nftMemo a\n\n", "Line 3: there are two fields 'a'"},
      {head + "Bob\t4\nCid\n", "Line 6: there are too few values"},
      {head + "Bob\t4\t5\n", "Line 5: there are too many values"},
      {head + "Bob\t4\nCid\tx\n", "Line 6: 'x' is no ftInteger value for field 'Age'"},
      {head + "Bob\t2147483648\n", "Line 5: '2147483648' is no ftInteger value"},
      {head + "B\\ob\t4\n", "Line 5: \"\\o\" means nothing"},
      {head + "Bob\t4", "Line 5: the line is cut"},
      {"{", "Line 1: '\"' was expected, not the end"},
      {"{\"records\":[]}", "Line 1: the records come before their fields"},
      {"{\"fields\":[]}", "Line 1: there are no fields"},
      {"{\"fields\":[{\"name\":\"A\"}]}", "Line 1: a field has no type"},
      {"{\"fields\":[{\"name\":\"A\",\"type\":\"ftInteger\"}]}", "Line 1: there are no records"},
      {"{\"x\":1}", "Line 1: \"x\" is unexpected"},
      {json + "[1],\n[\"x\"]]}", "Line 3: 'x' is no ftInteger value for field 'A'"},
      {json + "[1,2]]}", "Line 2: there are too many values"},
      {json + "[]]}", "Line 2: there are too few values"},
      {json + "[true]]}", "Line 2: 'True' is no ftInteger"},
      {json + "[[1]]]}", "Line 2: a value was expected"},
      {json + "[\"\\ud800\"]]}", "half a character"},
      {json + "[\"1]]}", "the text does not end"},
      {json + "[1]]} x", "Line 2: something follows the end"},
      {json + "[1]", "not the end"},
      {json + std::string(100000, '['), "Line 2: a value was expected"},
  };
  for (const auto& [file, message] : cases) {
    EXPECT_THAT(Message([&] { Load(data, file); }), HasSubstr(message)) << file.substr(0, 200);
    EXPECT_EQ(Dump(data), "Ann|3") << file.substr(0, 200);
  }
  data.SetIndexFieldNames("Age");
  EXPECT_THAT(Message([&] { Load(data, "records 1\nftString Name\n\nBob\n"); }),
              HasSubstr("'Age'"));
  EXPECT_EQ(Dump(data), "Ann|3") << "what cannot be opened is as before";
  TMemoryDataSet typed(nullptr);
  TStringField field(&typed);
  field.SetFieldName("City");
  field.SetDataSet(&typed);
  EXPECT_THAT(Message([&] { Load(typed, head); }), HasSubstr("Field 'City' not found"));
  EXPECT_EQ(typed.FieldDefs()->Count(), 0);
  EXPECT_THAT(Message([&] { Saved(typed, dfText); }), HasSubstr("no field definitions"));
}

TEST(RecordFile, FilesAreReplacedWhole) {
  const TDataFolder folder("vclrecords");
  const std::string name = folder.File("people.records");
  TMemoryDataSet data(nullptr);
  data.FieldDefs()->Add("Name", ftString);
  data.SaveToFile(name);
  EXPECT_EQ(Contents(name), "records 1\r\nftString Name\r\n\r\n") << "while it is closed, too";
  data.Open();
  data.Append();
  data.SetFieldValues("Name", std::string("Ann"));
  data.SaveToFile(name, dfJson);
  EXPECT_EQ(data.State(), dsBrowse) << "what is being edited is posted";
  TMemoryDataSet other(nullptr);
  other.LoadFromFile(name);
  EXPECT_EQ(Dump(other), "Ann");
  WriteContents(name, "nothing\n");
  EXPECT_EQ(Message([&] { other.LoadFromFile(name); }),
            name + ": Line 1: this is no file of records");
  EXPECT_THROW(other.LoadFromFile(folder.File("none")), EFOpenError);
  EXPECT_THROW(data.SaveToFile(folder.File("none/none")), EInOutError);
  EXPECT_EQ(Dump(other), "Ann");
}

}  // namespace
