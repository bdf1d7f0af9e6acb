// Text files: what is read, what is refused, and that nothing is lost when writing fails.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "demos/notes/recovery.h"
#include "demos/notes/textfile.h"
#include "tests/support/program.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/utf16.h"

namespace notes {
namespace {

using namespace std::string_literals;
using testing_support::TFolder;
namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}
std::string Read(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}
std::string Name(const fs::path& path) { return vcl::ToUtf8(path.wstring()); }

template <class F>
std::string Error(F run) {
  try {
    run();
    return {};
  } catch (const vcl::EInOutError& error) {
    return error.what();
  }
}

TEST(TextFiles, KeepTheirSpelling) {
  const TFolder folder;
  const fs::path path = folder.Path / L"Größe.txt";
  for (const std::string& bytes : {""s, "a\r\nb\r\n"s, "a\nb\n\n"s, "a\rb"s, "\xEF\xBB\xBFä\n"s,
                                   "\xEF\xBB\xBF"s, "€ 𝄞 \xED\x9F\xBF\n"s, "\t\x01\n"s}) {
    Write(path, bytes);
    const TText text = ReadTextFile(Name(path));
    EXPECT_FALSE(text.MixedLineEnds);
    ReplaceContents(Name(path), EncodeText(text.Text, text.Format));
    EXPECT_EQ(Read(path), bytes);
  }
  const TText mixed = DecodeText("a\nb\r\nc\nd", "");
  EXPECT_TRUE(mixed.MixedLineEnds);
  EXPECT_EQ(mixed.Text, "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(EncodeText(mixed.Text, mixed.Format), "a\nb\nc\nd");
}

TEST(TextFiles, ThatAreNoneAreRefusedWithTheReason) {
  const struct {
    std::string Bytes, Reason;
  } cases[] = {
      {"ab\0c"s, "byte 3 is a NUL"},
      {"ab\xFF", "byte 3"},
      {"\xC0\x80", "byte 1"},
      {"ä\xE2\x82", "byte 3"},
      {"\xED\xA0\x80", "byte 1"},
      {"\xF4\x90\x80\x80", "byte 1"},
      {"\xE2\x28\xA1", "byte 1 belongs to"},
      {"x\x80", "byte 2 belongs to no character"},
  };
  for (const auto& each : cases) {
    const std::string error = Error([&] { DecodeText(each.Bytes, "X.txt"); });
    EXPECT_NE(error.find(each.Reason), std::string::npos) << error;
    EXPECT_EQ(error.find("X.txt"), 0u);
  }
  const TFolder folder;
  const std::string inside = Name(folder.Path / "big.txt");
  EXPECT_NE(Error([&] { ReadTextFile(inside); }).find("cannot be opened"), std::string::npos);
  EXPECT_NE(Error([&] { ReadTextFile(Name(folder.Path)); }).find("is a folder"), std::string::npos);
  Write(folder.Path / "big.txt", "x");
  fs::resize_file(folder.Path / "big.txt", std::uintmax_t{200} << 20);
  EXPECT_NE(Error([&] { ReadTextFile(inside); }).find("it has 200 MB"), std::string::npos);
}

TEST(TextFiles, StayAsTheyAreWhenSavingFails) {
  const TFolder folder;
  const fs::path path = folder.Path / "kept.txt";
  Write(path, "kept");
  ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_NE(Error([&] { ReplaceContents(Name(path), "new"); }).find("may only be read"),
            std::string::npos);
  ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  {
    const testing_support::TOutputFile open(folder.Path / "open.txt");
    EXPECT_NE(Error([&] { ReplaceContents(Name(folder.Path / "open.txt"), "new"); }), "");
  }
  EXPECT_NE(Error([&] { ReplaceContents(Name(folder.Path), "new"); }), "");
  EXPECT_NE(Error([&] { ReplaceContents(Name(folder.Path / "no" / "x.txt"), "new"); }), "");
  EXPECT_EQ(Read(path), "kept");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path), {}), 2) << "nothing is left behind";
}

TEST(Recovery, GivesBackWhatItKeptAndPutsDamageAside) {
  const TFolder folder;
  const TRecovery recovery(Name(folder.Path));
  EXPECT_FALSE(recovery.Find());
  recovery.Keep({"C:\\ä.txt", {"x\r\n\r\ny", {TLineEnds::Lf, true}, false}});
  const auto found = recovery.Find();
  ASSERT_TRUE(found);
  EXPECT_EQ(found->FileName, "C:\\ä.txt");
  EXPECT_EQ(EncodeText(found->Text.Text, found->Text.Format), "\xEF\xBB\xBFx\n\ny");
  const std::string whole = Read(folder.Path / "unsaved.txt");
  for (const std::string& damaged : {whole.substr(0, 30), ""s, "other\n" + whole}) {
    Write(folder.Path / "unsaved.txt", damaged);
    EXPECT_NE(Error([&] { recovery.Find(); }), "");
    EXPECT_FALSE(recovery.Find());
    EXPECT_EQ(Read(folder.Path / "unsaved.txt.damaged"), damaged);
  }
}

}  // namespace
}  // namespace notes
