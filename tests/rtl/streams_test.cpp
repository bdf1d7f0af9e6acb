// Streams in memory and in files, and the application without windows.
#include <gmock/gmock.h>

#include <filesystem>

#include "vcl/rtl/classes.h"
#include "vcl/rtl/customapplication.h"

using namespace vcl;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

/// A name for a file that is gone after the test, with a letter in it that no code page has alone.
class TTemporaryName {
 public:
  TTemporaryName()
      : FName(Concat("stream \xC3\xA4\xE2\x82\xAC ",
                     testing::UnitTest::GetInstance()->current_test_info()->name(), ".tmp")) {
    std::filesystem::remove(Path());
  }
  ~TTemporaryName() { std::filesystem::remove(Path()); }
  const std::string& Name() const { return FName; }
  std::filesystem::path Path() const {
    return std::filesystem::path(std::u8string(FName.begin(), FName.end()));
  }

 private:
  std::string FName;
};

/// The same things done with any stream that grows.
void Exercise(TStream& stream) {
  stream.WriteText("0123456789");
  EXPECT_EQ(stream.Position(), 10);
  EXPECT_EQ(stream.Seek(-3, soEnd), 7);
  char bytes[8] = "";
  EXPECT_EQ(stream.Read(bytes, 8), 3);
  EXPECT_EQ(std::string(bytes), "789");
  EXPECT_EQ(stream.Read(bytes, 8), 0);
  stream.SetPosition(2);
  EXPECT_EQ(stream.Seek(2, soCurrent), 4);
  EXPECT_EQ(stream.ReadRest(), "456789");
  EXPECT_THROW(stream.ReadBuffer(bytes, 1), EReadError);
  EXPECT_THROW(stream.Seek(-1, soBeginning), EStreamError);
  stream.SetPosition(12);
  EXPECT_EQ(stream.ReadRest(), "");
  stream.SetPosition(12);
  stream.WriteText("x");
  stream.SetPosition(9);
  EXPECT_EQ(stream.ReadRest(), std::string("9\0\0x", 4));
  stream.SetSize(3);
  EXPECT_EQ(stream.Size(), 3);
  EXPECT_LE(stream.Position(), 3);
  stream.SetPosition(0);
  EXPECT_EQ(stream.ReadRest(), "012");
  EXPECT_THROW(stream.SetSize(-1), EStreamError);
  EXPECT_EQ(stream.Size(), 3);
}

TEST(Streams, InMemory) {
  TMemoryStream stream;
  Exercise(stream);
  EXPECT_EQ(static_cast<const char*>(stream.Memory())[1], '1');
}

TEST(Streams, InFiles) {
  TTemporaryName name;
  {
    TFileStream stream(name.Name(), fmCreate);
    Exercise(stream);
  }
  EXPECT_EQ(std::filesystem::file_size(name.Path()), 3u);
  TFileStream again(name.Name(), fmOpenRead | fmShareDenyNone);
  EXPECT_EQ(again.ReadRest(), "012");
  EXPECT_THROW(again.WriteText("x"), EWriteError);
}

TEST(Streams, CopyFromEachOther) {
  std::string text(100000, 'x');
  text += "end";
  TStringStream source(text);
  TMemoryStream target;
  source.SetPosition(99999);
  EXPECT_EQ(target.CopyFrom(source, 3), 3);
  EXPECT_EQ(target.CopyFrom(source, 0), 100003);
  target.SetPosition(0);
  EXPECT_EQ(target.ReadRest(), "xen" + text);
  EXPECT_THROW(target.CopyFrom(source, 1), EReadError);
}

TEST(Streams, KeepContentsWhenLoadingFails) {
  TTemporaryName name;
  TMemoryStream stream;
  stream.WriteText("kept");
  EXPECT_THROW(stream.LoadFromFile(name.Name()), EFOpenError);
  EXPECT_EQ(stream.Size(), 4);
  stream.SaveToFile(name.Name());
  TMemoryStream loaded;
  loaded.LoadFromFile(name.Name());
  EXPECT_EQ(loaded.Position(), 0);
  EXPECT_EQ(loaded.ReadRest(), "kept");
  TStringList lines;
  lines.Add("kept");
  EXPECT_THROW(lines.LoadFromFile("no such folder/file"), EFOpenError);
  EXPECT_EQ(lines.Count(), 1);
  lines.LoadFromFile(name.Name());
  EXPECT_EQ(lines.Text(), "kept\r\n");
}

TEST(Streams, SayWhichFileAndWhy) {
  const auto open = [](const char* name) { return [=] { TFileStream(name, fmOpenRead); }; };
  const auto create = [](const char* name) { return [=] { TFileStream(name, fmCreate); }; };
  EXPECT_THAT(open("missing \xC3\xA4.tmp"),
              testing::ThrowsMessage<EFOpenError>(
                  testing::MatchesRegex("Cannot open file \"missing \xC3\xA4.tmp\": ..+")));
  EXPECT_THAT(create("no such folder/x"),
              testing::ThrowsMessage<EFCreateError>(
                  testing::MatchesRegex("Cannot create file \"no such folder/x\": ..+")));
  EXPECT_THAT(open("."), testing::ThrowsMessage<EFOpenError>(HasSubstr("\".\"")));
  EXPECT_THAT(open(""), testing::ThrowsMessage<EFOpenError>(HasSubstr("\"\"")));
}

TEST(Application, StandsInUntilThereIsOne) {
  TCustomApplication& standIn = BaseApplication();
  EXPECT_THAT(standIn.Title(), testing::StartsWith("test_rtl"));
  EXPECT_TRUE(std::filesystem::exists(standIn.ExeName())) << standIn.ExeName();
  {
    TCustomApplication application(nullptr);
    TCustomApplication second(nullptr);
    EXPECT_EQ(&BaseApplication(), &application);
    application.SetTitle("Title");
    EXPECT_EQ(BaseApplication().Title(), "Title");
  }
  EXPECT_EQ(&BaseApplication(), &standIn);
}

TEST(Application, ShowsAllErrorsButEAbort) {
  testing::internal::CaptureStderr();
  BaseApplication().HandleException(nullptr, EAbort("quiet"));
  BaseApplication().HandleException(nullptr, EConvertError("loud"));
  EXPECT_EQ(BaseApplication().MessageBox("text", "caption", 0), 1);
  const std::string shown = testing::internal::GetCapturedStderr();
  EXPECT_THAT(shown, testing::Not(HasSubstr("quiet")));
  EXPECT_THAT(shown, HasSubstr("loud"));
  EXPECT_THAT(shown, HasSubstr("caption: text"));
}

}  // namespace
