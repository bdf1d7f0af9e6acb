// Data sets in memory: moving, editing, fields, events, and what data links hear.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/data/datatest.h"
#include "vcl/db/datasource.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/params.h"
#include "vcl/db/registration.h"
#include "vcl/rtl/classes.h"

namespace {

using namespace vcl;
using testing::ElementsAre;
using testing::HasSubstr;

/// Three people, the current one being the first.
struct TPeople : TMemoryDataSet {
  TPeople() : TMemoryDataSet(nullptr) {
    FieldDefs()->Add("Name", ftString, 8, true);
    FieldDefs()->Add("Age", ftInteger);
    Open();
    for (const char* name : {"Ann", "Bob", "Cid"}) AppendRecord({std::string(name)});
    First();
  }
  std::string Name() const { return FieldByName("name")->AsString(); }
};

TEST(DataSet, MovesAndSaysWhereItIs) {
  TPeople people;
  std::string seen;
  const auto look = [&] {
    seen += people.Name() + (people.Bof() ? "^" : "") + (people.Eof() ? "$ " : " ");
  };
  look(), people.Prior(), look();
  EXPECT_EQ(people.MoveBy(2), 2);
  look(), people.Next(), look();
  EXPECT_EQ(people.MoveBy(-7), -2);
  look(), people.Last(), look();
  EXPECT_EQ(seen, "Ann^ Ann^ Cid Cid$ Ann^ Cid$ ") << "on the last record is not behind it";
  people.SetRecNo(2);
  const TBookmark bob = people.Bookmark();
  people.InsertRecord({std::string("Abe")});
  people.First();
  people.GotoBookmark(bob);
  EXPECT_EQ(people.Name(), "Bob");
  EXPECT_EQ(people.RecNo(), 3);
  people.Delete();
  EXPECT_EQ(people.Name(), "Cid");
  EXPECT_THAT(Message([&] { people.GotoBookmark(bob); }), HasSubstr("gone"));
  people.InsertRecord({std::string("Dan")});
  people.GotoBookmark(people.Bookmark());
  EXPECT_EQ(people.Name(), "Dan") << "no name is given twice";
  EXPECT_THAT(Message([&] { people.SetRecNo(9); }), HasSubstr("9"));
}

TEST(DataSet, EditsInsertsAndDeletes) {
  TPeople people;
  people.Next();
  people.Insert();
  EXPECT_EQ(people.State(), dsInsert);
  EXPECT_TRUE(people.FieldByName("Name")->IsNull());
  people.Next();
  EXPECT_EQ(Dump(people), "Ann|;Bob|;Cid|") << "a record that nothing was written into is given up";
  people.Edit();
  people.SetFieldValues("Name", std::string("Zoe"));
  EXPECT_EQ(std::get<std::string>(people.FieldByName("Name")->OldValue()), "Cid");
  people.Cancel();
  EXPECT_EQ(people.Name(), "Cid");
  people.Edit();
  people.FieldByName("Age")->SetAsInteger(7);
  people.First();
  EXPECT_EQ(Dump(people), "Ann|;Bob|;Cid|7") << "moving posts";
  people.Last();
  people.Delete();
  EXPECT_EQ(people.Name(), "Bob") << "behind the last one there is only the one before";
  while (!people.IsEmpty()) people.Delete();
  EXPECT_TRUE(people.Bof() && people.Eof());
  EXPECT_EQ(people.Name(), "");
  EXPECT_THAT(Message([&] { people.Delete(); }), HasSubstr("empty"));
  people.Edit();
  EXPECT_EQ(people.State(), dsInsert) << "there is nothing to edit, so a record is made";
}

TEST(DataSet, ClearsTheFieldsOfARecordThatIsEdited) {
  TPeople people;
  EXPECT_EQ(std::get<std::string>(people.FieldValues("name")), "Ann");
  EXPECT_THAT(Message([&] { people.ClearFields(); }), HasSubstr("edit"));
  people.DisableControls();
  EXPECT_TRUE(people.ControlsDisabled());
  people.EnableControls();
  EXPECT_FALSE(people.ControlsDisabled());
  people.Edit();
  people.ClearFields();
  EXPECT_TRUE(IsNull(people.FieldValues("name")));
  EXPECT_TRUE(people.Modified());
  people.Cancel();
  EXPECT_EQ(people.Name(), "Ann");
}

TEST(Params, TakeTheKindOfTheirValue) {
  TParams params;
  params.Parse("? ?");
  TParam &time = *params.Items(0), &bytes = *params.Items(1);
  time.SetAsTime(EncodeTime(12, 0, 0, 0));
  bytes.SetAsBlob(std::string("\0x", 2));
  EXPECT_EQ(time.DataType(), ftTime);
  EXPECT_EQ(std::get<double>(time.Value()), 0.5);
  EXPECT_EQ(bytes.DataType(), ftBlob);
  EXPECT_EQ(std::get<std::string>(bytes.Value()), std::string("\0x", 2));
}

TEST(DataSet, RefusesWithAMessageAndStaysAsItWas) {
  TPeople people;
  people.SetName("People");
  EXPECT_EQ(Message([&] { people.FieldByName("City"); }), "People: Field 'City' not found");
  EXPECT_THAT(Message([&] { people.FieldByName("Age")->SetAsInteger(1); }), HasSubstr("edit"));
  people.Insert();
  EXPECT_EQ(Message([&] { people.Post(); }), "Field 'Name' must have a value");
  EXPECT_EQ(people.State(), dsInsert);
  people.SetFieldValues("Name", std::string("\u00c4\u00d6\u00dc456789"));
  EXPECT_THAT(Message([&] { people.Post(); }), HasSubstr("longer than the 8 characters"));
  people.SetFieldValues("Name", std::string("\u00c4\u00d6\u00dc45678"));
  people.Post();
  people.Close();
  EXPECT_THAT(Message([&] { people.Next(); }), HasSubstr("closed"));
  EXPECT_EQ(people.FindField("Name"), nullptr);
  TMemoryDataSet undefined(nullptr);
  EXPECT_THAT(Message([&] { undefined.Open(); }), HasSubstr("definitions"));
  EXPECT_FALSE(undefined.Active());
}

TEST(DataSet, FiresItsEventsInOrder) {
  TPeople people;
  std::string log;
  const auto note = [&](const char* what) { return [&log, what](TDataSet*) { log += what; }; };
  people.BeforeInsert = note("insert "), people.AfterInsert = note("inserted ");
  people.BeforeEdit = note("edit "), people.AfterEdit = note("edited ");
  people.BeforePost = note("post "), people.AfterPost = note("posted ");
  people.BeforeCancel = note("cancel "), people.AfterCancel = note("cancelled ");
  people.BeforeDelete = note("delete "), people.AfterDelete = note("deleted ");
  people.BeforeScroll = note("scroll "), people.AfterScroll = note("scrolled ");
  people.OnNewRecord = [&](TDataSet* data) {
    log += "new ";
    data->SetFieldValues("Age", std::int64_t{1});
  };
  people.Insert();
  EXPECT_FALSE(people.Modified()) << "what a new record begins with is no change of the user's";
  people.Cancel();
  people.Edit();
  people.SetFieldValues("Name", std::string("Eve"));
  people.Next();
  people.Delete();
  EXPECT_EQ(log,
            "insert scroll new inserted scrolled cancel scroll cancelled scrolled "
            "edit edited post posted scroll scrolled delete scroll deleted scrolled ");
  people.Last();
  log.clear();
  people.Next();
  EXPECT_EQ(log, "") << "there is nowhere to go";
}

TEST(DataSet, AHandlerMayFreeOrCloseIt) {
  auto people = std::make_unique<TPeople>();
  people->BeforePost = [&](TDataSet*) { people.reset(); };
  people->Edit();
  people->SetFieldValues("Age", std::int64_t{1});
  EXPECT_THROW(people->Next(), EAbort);
  TPeople closed;
  closed.BeforeScroll = [](TDataSet* data) { data->Close(); };
  EXPECT_THAT(Message([&] { closed.Next(); }), HasSubstr("closed"));
  TPeople seen;
  TDataSource source(nullptr);
  auto other = std::make_unique<TDataSource>(nullptr);
  for (TDataSource* each : {&source, other.get()}) each->SetDataSet(&seen);
  source.OnDataChange = [&](TObject*, TField*) { other.reset(); };
  seen.Next();
  EXPECT_EQ(other, nullptr);
}

TEST(Fields, ConvertOrRefuse) {
  const TFormatSettings settings;
  FormatSettings() = settings;
  struct TCase {
    TFieldType Type;
    const char *Text, *Read;  // Null for a text that is refused.
  };
  const TCase cases[] = {
      {ftSmallint, "32767", "32767"},
      {ftSmallint, "32768", nullptr},
      {ftInteger, " -2147483648 ", "-2147483648"},
      {ftInteger, "1.5", nullptr},
      {ftInteger, "", ""},
      {ftLargeint, "9223372036854775807", "9223372036854775807"},
      {ftFloat, "1e3", "1000"},
      {ftFloat, "much", nullptr},
      {ftCurrency, "2.5", "2.5"},
      {ftBoolean, "TRUE", "True"},
      {ftBoolean, "perhaps", nullptr},
      {ftDate, "02/29/2000", "02/29/2000"},
      {ftDate, "02/30/2000", nullptr},
      {ftTime, "23:59", "23:59:00"},
      {ftDateTime, "1/2/2003 4:05", "01/02/2003 04:05:00"},
      {ftMemo, "a\r\nb", "a\r\nb"},
  };
  for (const TCase& each : cases) {
    SCOPED_TRACE(std::string(EnumText<TFieldType>.Name) + " " + std::to_string(each.Type) + ": " +
                 each.Text);
    TMemoryDataSet data(nullptr);
    data.FieldDefs()->Add("F", each.Type);
    data.Open();
    data.Insert();
    TField* field = data.Fields()[0];
    if (each.Read) {
      field->SetAsString(each.Text);
      EXPECT_EQ(field->AsString(), each.Read);
      EXPECT_EQ(field->IsNull(), !*each.Text && each.Type != ftString);
    } else {
      EXPECT_THAT(Message([&] { field->SetAsString(each.Text); }), HasSubstr("for field 'F'"));
      EXPECT_TRUE(field->IsNull());
    }
  }
}

TEST(Fields, ReadAsOtherTypesAndShowThemselves) {
  TMemoryDataSet data(nullptr);
  for (const TFieldType type : {ftString, ftFloat, ftCurrency, ftBoolean, ftDate, ftBlob}) {
    data.FieldDefs()->Add("F" + IntToStr(data.FieldDefs()->Count()), type);
  }
  data.Open();
  data.Insert();
  TField &text = *data.Fields()[0], &number = *data.Fields()[1], &money = *data.Fields()[2],
         &sure = *data.Fields()[3], &day = *data.Fields()[4];
  EXPECT_EQ(number.AsInteger(), 0) << "Null";
  text.SetAsFloat(-2.5);
  EXPECT_EQ(text.AsFloat(), -2.5);
  text.SetAsString("x");
  EXPECT_THAT(Message([&] { text.AsInteger(); }), HasSubstr("'x'"));
  number.SetAsFloat(2.5);
  EXPECT_EQ(number.AsInteger(), 3);
  number.SetAsFloat(1e10);
  EXPECT_THAT(Message([&] { number.AsInteger(); }), HasSubstr("10000000000"));
  money.SetAsCurrency(2.5);
  EXPECT_EQ(money.DisplayText() + " " + money.Text(), "2.50 2.5");
  EXPECT_EQ(money.AsCurrency(), 2.5);
  static_cast<TNumericField&>(money).SetDisplayFormat("0.000 'EUR';;-");
  EXPECT_EQ(money.Text(), "2.5") << "as it is edited";
  EXPECT_TRUE(money.DisplayText() == "2.500 EUR" || money.DisplayText() == "2,500 EUR");
  static_cast<TNumericField&>(number).SetDisplayFormat("000");
  number.SetAsInteger(7);
  EXPECT_EQ(number.DisplayText() + " " + number.AsString(), "007 7");
  static_cast<TBooleanField&>(sure).SetDisplayValues("Yes;No");
  sure.SetAsString("no");
  EXPECT_FALSE(sure.AsBoolean());
  EXPECT_EQ(sure.DisplayText(), "No");
  day.SetAsDateTime(EncodeDate(2000, 2, 29) + 0.75);
  EXPECT_EQ(day.AsDateTime(), EncodeDate(2000, 2, 29));
  EXPECT_THAT(Message([&] { day.AsBoolean(); }), HasSubstr("Boolean"));
  auto& bytes = dynamic_cast<TBlobField&>(*data.Fields()[5]);
  EXPECT_EQ(bytes.BlobSize(), 0);
  bytes.SetAsString(std::string("a\0b", 3));
  EXPECT_EQ(bytes.BlobSize(), 3);
  text.OnGetText = [](TField*, std::string& shown, bool display) {
    if (display) shown = "<" + shown + ">";
  };
  EXPECT_EQ(text.DisplayText(), "<x>");
  text.OnValidate = [](TField* sender) {
    if (sender->AsString() == "bad") throw EDatabaseError("bad is bad");
  };
  EXPECT_EQ(Message([&] { text.SetAsString("bad"); }), "bad is bad");
  EXPECT_EQ(text.AsString(), "x");
}

/// Notes what a control would hear.
struct TNotes : TDataLink {
  std::vector<std::string> Log;
  void ActiveChanged() override { Log.push_back(Active() ? "open" : "closed"); }
  void EditingChanged() override { Log.push_back(Editing() ? "editing" : "browsing"); }
  void DataSetChanged() override { Log.push_back("all"); }
  void DataSetScrolled(int distance) override { Log.push_back("scroll " + IntToStr(distance)); }
  void RecordChanged(TField* field) override {
    Log.push_back(field ? field->FieldName() : "record");
  }
};

TEST(DataLink, HearsOfTheDataSet) {
  TPeople people;
  TNotes notes;
  auto source = std::make_unique<TDataSource>(nullptr);
  source->SetDataSet(&people);
  notes.SetDataSource(source.get());
  EXPECT_EQ(source->State(), dsBrowse);
  people.Next();
  EXPECT_TRUE(notes.Edit());
  people.SetFieldValues("Age", std::int64_t{5});
  people.Post();
  people.DisableControls();
  people.Last();
  people.EnableControls();
  source->SetEnabled(false);
  people.First();
  source->SetEnabled(true);
  people.Close();
  EXPECT_THAT(notes.Log, ElementsAre("open", "scroll 1", "editing", "record", "Age", "browsing",
                                     "all", "all", "closed", "open", "closed"));
  source->SetAutoEdit(false);
  people.Open();
  EXPECT_FALSE(notes.Edit());
  source.reset();
  EXPECT_FALSE(notes.Active());
  EXPECT_EQ(notes.DataSource(), nullptr);
}

TEST(DataLink, WritesWhatIsTypedBeforeTheRecordIsPosted) {
  TPeople people;
  TDataSource source(nullptr);
  source.SetDataSet(&people);
  TFieldDataLink link;
  link.SetFieldName("Name");
  link.SetDataSource(&source);
  link.OnUpdateData = [&](TObject*) { link.Field()->SetText("Typed"); };
  ASSERT_TRUE(link.Edit());
  link.Modified();
  people.Next();
  people.Edit();
  people.FieldByName("Age")->SetAsInteger(3);
  EXPECT_EQ(Dump(people), "Typed|;Bob|3;Cid|") << "nothing was typed for the second one";
}

TEST(DataLink, LooksAtTheRecordsAroundTheCurrentOne) {
  TPeople people;
  TDataSource source(nullptr);
  source.SetDataSet(&people);
  TNotes link;
  link.SetDataSource(&source);
  link.SetBufferCount(2);
  const auto rows = [&] {
    std::string names;
    const int active = link.ActiveRecord();
    for (int i = 0; i < link.RecordCount(); ++i) {
      link.SetActiveRecord(i);
      names += (i == active ? "*" : " ") + people.Name();
    }
    link.SetActiveRecord(active);
    return names;
  };
  EXPECT_EQ(rows(), "*Ann Bob");
  people.Last();
  EXPECT_EQ(rows(), " Bob*Cid");
  EXPECT_EQ(people.Name(), "Cid") << "looking is no move";
  people.Insert();
  EXPECT_EQ(rows(), " Bob*");
  people.Cancel();
  people.First();
  people.Insert();
  EXPECT_EQ(rows(), "* Ann") << "the new record stands before the first one";
}

TEST(MemoryDataSet, KeepsWhatItCanUnderNewDefinitions) {
  TPeople people;
  people.Close();
  people.FieldDefs()->Items(1)->SetDataType(ftString);
  people.FieldDefs()->Add("City", ftString)->SetIndex(0);
  people.Open();
  EXPECT_EQ(Dump(people), "|Ann|;|Bob|;|Cid|");
  people.EmptyTable();
  EXPECT_TRUE(people.IsEmpty());
}

TEST(MemoryDataSet, ComesFromAFormFileWithItsFields) {
  RegisterDataClasses();
  TStringStream file(
      "object Data: TMemoryDataSet\r\n"
      "  FieldDefs = <\r\n"
      "    item\r\n      Name = 'Name'\r\n      DataType = ftString\r\n    end\r\n"
      "    item\r\n      Name = 'Hidden'\r\n      DataType = ftInteger\r\n    end>\r\n"
      "  Active = True\r\n"
      "  object DataName: TStringField\r\n"
      "    DisplayLabel = 'Who'\r\n    FieldName = 'Name'\r\n"
      "  end\r\n"
      "end\r\n");
  TMemoryDataSet data(nullptr);
  ReadComponentFile(file, &data);
  ASSERT_TRUE(data.Active());
  ASSERT_EQ(data.FieldCount(), 1) << "the fields of the file are all that there are";
  EXPECT_EQ(data.FieldByName("name")->DisplayLabel(), "Who");
  data.AppendRecord({std::string("Ann")});
  EXPECT_EQ(Dump(data), "Ann");
}

}  // namespace
