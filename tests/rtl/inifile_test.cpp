// Settings files: what is kept when a line is changed, what is refused, encodings, many writers.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "vcl/rtl/classes.h"

namespace {

namespace fs = std::filesystem;
using vcl::TIniFile;

class IniFile : public testing::Test {
 protected:
  IniFile() { fs::create_directories(Folder); }
  ~IniFile() override { fs::remove_all(Folder); }
  std::string Name() const { return (Folder / "settings.ini").string(); }
  void Put(const std::string& text) const { std::ofstream(Name(), std::ios::binary) << text; }
  std::string Text() const {
    std::ifstream file(Name(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  const fs::path Folder = fs::temp_directory_path() / "qel settings";
};

TEST_F(IniFile, OtherLinesStayToTheByte) {
  const char* const cases[][5] = {
      {"", "S", "k", "v", "[S]\r\nk=v\r\n"},
      {"; c\n\n[ s ] x\n\t Key =  old  \n\xFF\xFE=raw\n", "S", "key", "new",
       "; c\n\n[ s ] x\n\t Key=new\n\xFF\xFE=raw\n"},
      {"[S]\r\na = 1\r\n\r\n;c\r\n\r\n\r\n[T]\r\n", "S", "b", "2",
       "[S]\r\na = 1\r\n\r\n;c\r\nb=2\r\n\r\n\r\n[T]\r\n"},
      {"x=1", "", "y", "2", "x=1\r\ny=2\r\n"},
      {"[T]\nb=2", "S", "a", "1", "[T]\nb=2\n[S]\na=1\n"},
      {"[S]\rflag\ra=1\r", "S", "flag", "on", "[S]\rflag=on\ra=1\r"},
      {"[S]\r\na=1\r\na=2\r\n", "S", "a", nullptr, "[S]\r\na=2\r\n"},
      {"[S]\n[s]\na=1", "S", "a", nullptr, "[S]\n[s]\n"},
      {"[A]\n\n[S]\n;c\na=1\n\n[B]\n", "s", nullptr, nullptr, "[A]\n\n[B]\n"},
  };
  for (const auto& [before, section, ident, value, after] : cases) {
    Put(before);
    TIniFile ini(Name());
    if (value) {
      ini.WriteString(section, ident, value);
    } else if (ident) {
      ini.DeleteKey(section, ident);
    } else {
      ini.EraseSection(section);
    }
    EXPECT_EQ(Text(), after) << before;
  }
}

TEST_F(IniFile, WhatALineCantHoldIsRefused) {
  const std::string text = "[S]\r\na=1\r\n";
  Put(text);
  TIniFile ini(Name());
  const std::string cases[][3] = {{"S", "a=b", "v"},
                                  {"S", "k", "v\r\n[T]"},
                                  {"S", "k", std::string("v\0w", 3)},
                                  {"S", "[k]", "v"},
                                  {"S", "[k", "v]"},
                                  {"S\nT", "k", "v"},
                                  {"S", "k\rl", "v"},
                                  {std::string("\0", 1), "k", "v"}};
  for (const auto& [section, ident, value] : cases) {
    EXPECT_THROW(ini.WriteString(section, ident, value), vcl::EIniFileException) << ident << value;
    EXPECT_EQ(ini.ReadString(section, ident, "none"), "none");
    ini.DeleteKey(section, ident);
    EXPECT_EQ(Text(), text);
  }
  EXPECT_THROW(TIniFile(""), vcl::EIniFileException);
  const TIniFile folder(Folder.string());
  EXPECT_EQ(folder.ReadString("S", "a", "none"), "none");
  EXPECT_THROW(TIniFile(Folder.string()).WriteString("S", "a", "b"), vcl::EIniFileException);
  EXPECT_THROW(TIniFile((Folder / "no" / "f").string()).WriteString("S", "a", "b"),
               vcl::EIniFileException);
}

TEST_F(IniFile, AFileThatOthersHaveOpenForReadingIsWritten) {
  Put("[S]\na=1\nlong=" + std::string(5000, 'x') + "\n");
  const std::ifstream reader(Name(), std::ios::binary);  // On Windows it denies deletion.
  TIniFile ini(Name());
  ini.WriteString("S", "b", std::string(9000, 'y'));
  EXPECT_EQ(Text(),
            "[S]\na=1\nlong=" + std::string(5000, 'x') + "\nb=" + std::string(9000, 'y') + "\n");
  ini.DeleteKey("S", "b");
  ini.DeleteKey("S", "long");
  EXPECT_EQ(Text(), "[S]\na=1\n");
  const auto files = std::distance(fs::directory_iterator(Folder), fs::directory_iterator());
  EXPECT_EQ(files, 1) << "nothing is left beside it";
}

TEST_F(IniFile, WhatMustBeReadIsNotTakenForMissing) {
  TIniFile ini(Folder.string()), missing(Name());
  for (TIniFile* each : {&ini, &missing}) each->SetMustRead(true);
  EXPECT_THROW(ini.ReadString("S", "a", "none"), vcl::EIniFileException);
  EXPECT_EQ(missing.ReadString("S", "a", "none"), "none");
}

TEST_F(IniFile, ValuesOfOtherKinds) {
  TIniFile ini(Name());
  ini.WriteFloat("S", "f", 0.1);
  ini.WriteInteger("S", "i", -2147483647 - 1);
  const vcl::TDateTime when = vcl::EncodeDate(2024, 2, 29) + vcl::EncodeTime(13, 14, 15, 0);
  ini.WriteDateTime("S", "t", when);
  EXPECT_EQ(ini.ReadFloat("S", "f", 0), 0.1);
  EXPECT_EQ(ini.ReadInteger("S", "i", 0), -2147483647 - 1);
  EXPECT_NEAR(ini.ReadDateTime("S", "t", 0), when, 1e-9);
  ini.WriteDate("S", "day", when);
  ini.WriteTime("S", "hour", when);
  EXPECT_EQ(ini.ReadDate("S", "day", 0), vcl::EncodeDate(2024, 2, 29));
  EXPECT_NEAR(ini.ReadTime("S", "hour", 0), vcl::EncodeTime(13, 14, 15, 0), 1e-9);
  EXPECT_EQ(ini.ReadTime("S", "none", 0.25), 0.25);
  ini.WriteString("S", "x", "0x1F");
  EXPECT_EQ(ini.ReadInteger("S", "x", 0), 31);
  ini.WriteString("S", "x", "99999999999");
  EXPECT_EQ(ini.ReadInteger("S", "x", 5), 5);
  EXPECT_EQ(ini.ReadFloat("S", "t", 2.5), 2.5);
  EXPECT_EQ(ini.ReadDate("S", "f", 7.0), 7.0);
  EXPECT_TRUE(ini.ReadBool("S", "none", true));
}

TEST_F(IniFile, AnEncodingIsKept) {
  const std::string euro = "\xE2\x82\xAC", clef = "\xF0\x9D\x84\x9E";
  for (const bool big : {false, true}) {
    const auto wide = [&](const std::u16string& text) {
      std::string bytes;
      for (const char16_t c : text) {
        const char high = static_cast<char>(c >> 8), low = static_cast<char>(c);
        bytes += big ? high : low;
        bytes += big ? low : high;
      }
      return bytes;
    };
    Put(wide(u"\uFEFF[S]\r\na=\U0001D11E\r\n\xD800=x\r\n"));
    TIniFile ini(Name());
    EXPECT_EQ(ini.ReadString("S", "a", ""), clef);
    ini.WriteString("S", "b", euro);
    // Half a character can't be kept.
    EXPECT_EQ(Text(), wide(u"\uFEFF[S]\r\na=\U0001D11E\r\n\uFFFD=x\r\nb=\u20AC\r\n"));
  }
  Put("\xEF\xBB\xBF[S]\n");
  TIniFile(Name()).WriteString("S", "b", euro);
  EXPECT_EQ(Text(), "\xEF\xBB\xBF[S]\nb=" + euro + "\n");
}

TEST_F(IniFile, ThreadsThatWriteDifferentValuesLoseNothing) {
  constexpr int each = 40;
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([this, t] {
      TIniFile ini(Name());
      for (int i = 0; i < each; ++i) {
        ini.WriteInteger("S" + std::to_string(i % 2), std::to_string(t * each + i), i);
      }
    });
  }
  for (auto& thread : threads) thread.join();
  const TIniFile ini(Name());
  for (int i = 0; i < 4 * each; ++i) {
    EXPECT_EQ(ini.ReadInteger("S" + std::to_string(i % 2), std::to_string(i), -1), i % each);
  }
}

TEST_F(IniFile, ManyEntriesInMemoryAndBack) {
  constexpr int count = 100'000;
  std::string text = "[S]\r\n";
  for (int i = 0; i < count; ++i) text += "entry" + std::to_string(i) + "=\"" + "x\"\r\n";
  for (const bool returns : {false, true}) {
    if (returns) std::erase(text, '\n');
    Put(text);
    vcl::TMemIniFile memory(Name());
    vcl::TStringList list;
    memory.ReadSectionValues("s", list);
    ASSERT_EQ(list.Count(), count);
    EXPECT_EQ(list.Strings(count - 1), "entry99999=x");
    memory.WriteString("S", "entry99999", "last");
    memory.WriteString("S", "new", "y");
    EXPECT_EQ(Text(), text);
    memory.UpdateFile();
    const TIniFile file(Name());
    EXPECT_EQ(file.ReadString("S", "ENTRY99999", ""), "last");
    EXPECT_EQ(file.ReadString("S", "new", ""), "y");
    EXPECT_EQ(file.ReadString("S", "entry0", ""), "x");
  }
}

}  // namespace
