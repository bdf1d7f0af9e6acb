// INI files under the system that has functions for them: the same is done by TIniFile and by the
// private profile functions, each to a file of its own. And what happens to a file when several
// programs write to it, or one is ended while it does.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/support/texts.h"
#include "tests/vcl/iniwriter.h"
#include "vcl/vcl.h"

namespace {

namespace fs = std::filesystem;
using vcl::TIniFile;

const fs::path Folder = fs::temp_directory_path() / "qel ini files";

/// A file in a folder that is gone at the end.
class TFile {
 public:
  explicit TFile(const char* name, const std::string& text = {}) : FPath(Folder / name) {
    fs::create_directories(Folder);
    if (!text.empty()) std::ofstream(FPath, std::ios::binary) << text;
  }
  ~TFile() {
    ::SetFileAttributesA(Name().c_str(), FILE_ATTRIBUTE_NORMAL);
    fs::remove_all(Folder);
  }
  std::string Name() const { return FPath.string(); }
  std::string Text() const {
    std::ifstream file(FPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  fs::path FPath;
};

/// What a system's function writes into a buffer: texts, each ended by NUL, when there are several.
template <class Call>
std::string Filled(Call call) {
  std::string text(20000, '\0');
  text.resize(call(text.data(), static_cast<DWORD>(text.size())));
  return text;
}

std::string SystemsValue(const std::string& file, const char* section, const char* ident) {
  return Filled([&](char* text, DWORD size) {
    return ::GetPrivateProfileStringA(section, ident, "(none)", text, size, file.c_str());
  });
}

std::string Joined(const vcl::TStrings& list) {
  std::string text;
  for (const std::string& line : Lines(list)) text += line + '\0';
  return text;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// A line as the system leaves it: without blanks around names and values, nothing behind headers.
std::string TidyLine(const std::string& whole) {
  const std::string line = Trimmed(whole);
  const auto bracket = line.rfind(']');
  if (line.starts_with('[') && bracket != std::string::npos) {
    return "[" + Trimmed(line.substr(1, bracket - 1)) + "]";
  }
  const auto equals = line.find('=');
  if (equals == std::string::npos) return line;
  return Trimmed(line.substr(0, equals)) + "=" + Trimmed(line.substr(equals + 1));
}

/// The lines so, without empty ones.
std::string Tidied(const std::string& text) {
  std::string tidy, line;
  for (const char c : text + "\n") {
    if (c != '\r' && c != '\n') {
      line += c;
      continue;
    }
    if (!TidyLine(line).empty()) tidy += TidyLine(line) + "\n";
    line.clear();
  }
  return tidy;
}

const char* const Texts[] = {
    "; top\r\nlost=1\r\n\r\n[ One ] ; tail\r\n  a = 1  \r\nb=\"q v\"\r\nc='s'\r\nd=\"half\r\ne=\r\n"
    "f\r\n;com=x\r\n# hash=3\r\n=noname\r\nA=2\r\ng=x;y\r\nh= \" in \" "
    "\r\ni='\"'\r\nj=\"\"x\"\"\r\n"
    "\r\n[two]]\r\nx=1\r\n[one]\r\nz=9\r\na=dup\r\n[three\r\ny=1\r\n[y=2\r\n[z]=5\r\nq=6\r\nlast="
    "end",
    "[One]\nu=7\rv=8\n\n\t k\t=\tv \n  ;c = d\nequal==x=y\n",
    "[One]\ra=7\rv=8\rw=9",
    "[one]x=1\r\na=2\r\n[]\r\nn=5\r\n[Two]\r\na=[3]\r\n [ three ]\r\na=4\r\n\x1A\r\nb=5",
    "a=without\r\nb=section",
    "\xEF\xBB\xBF[One]\r\n\xC3\xA4=\xC3\x9F\r\na=\xE2\x82\xAC\r\n",
    "\xFF\xFE[\0O\0n\0e\0]\0\r\0\n\0a\0=\0\xAC\x20\r\0\n\0",
    "[one]\r\n\r\n\r\n[Two]\r\nb=1\r\n\r\n; comment of three\r\n[three]\r\n",
};
const char* const SectionNames[] = {"One", " one ",  "two", "two]", "three",
                                    "",    "[three", "z",   "no"};
const char* const Idents[] = {"a",      "A ",     "b",    "c",    "d",        "e",   "f", ";com",
                              "# hash", "",       "g",    "h",    "i",        "j",   "z", "equal",
                              "k",      "u",      "v",    "w",    "x",        "y",   "q", "[y",
                              "n",      "equal=", "last", "lost", "\xC3\xA4", "a=b", "no"};

std::string FileOf(const char* const& text) {
  // The one in UTF-16 has NULs.
  return text[0] == '\xFF' ? std::string(text, 26) : std::string(text);
}

TEST(IniFileAndSystem, ReadTheSame) {
  for (const char* const& text : Texts) {
    SCOPED_TRACE(text);
    const TFile file("read.ini", FileOf(text));
    const TIniFile ours(file.Name());
    vcl::TStringList list;
    ours.ReadSections(list);
    EXPECT_EQ(Joined(list), SystemsValue(file.Name(), nullptr, nullptr));
    for (const char* section : SectionNames) {
      SCOPED_TRACE(section);
      for (const char* ident : Idents) {
        EXPECT_EQ(ours.ReadString(section, ident, "(none)"),
                  SystemsValue(file.Name(), section, ident))
            << ident;
      }
      // For its lists of names, unlike for values, the system wants a section's name without
      // blanks.
      if (section != Trimmed(section)) continue;
      const std::string idents = SystemsValue(file.Name(), section, nullptr);
      ours.ReadSection(section, list);
      EXPECT_EQ(Joined(list), idents == "(none)" ? "" : idents);
    }
  }
}

TEST(IniFileAndSystem, LeaveFilesThatSayTheSame) {
  const std::tuple<const char*, const char*, const char*> changes[] = {
      {"One", "a", "new"},        {"ONE", "B", "\"q\""},    {"one", "new", "x y"},
      {"New", "n", "1"},          {"three", "y", ""},       {"Two", "f", "v"},
      {"", "lost", "found"},      {"", "none", "2"},        {"One", "f", "v"},
      {"one", "a", nullptr},      {"one", "z", nullptr},    {"one", nullptr, nullptr},
      {"two]", nullptr, nullptr}, {"no", nullptr, nullptr}, {"no", "a", nullptr},
      {"S]T", "k", "v"},          {"one", ";com", "y"},     {"One", "[y", "z"},
      {"", nullptr, nullptr},     {"three", "a", "b;c=d"}};
  for (const char* const& text : Texts) {
    if (std::string(text).find("[]") != std::string::npos) continue;  // The system takes it away.
    for (const auto& [section, ident, value] : changes) {
      const TFile file("ours.ini", FileOf(text));
      const TFile systems("systems.ini", FileOf(text));
      TIniFile ours(file.Name());
      if (value) {
        ours.WriteString(section, ident, value);
      } else if (ident) {
        ours.DeleteKey(section, ident);
      } else {
        ours.EraseSection(section);
      }
      ::WritePrivateProfileStringA(section, ident, value, systems.Name().c_str());
      EXPECT_EQ(Tidied(file.Text()), Tidied(systems.Text()))
          << text << "\n"
          << section << "|" << (ident ? ident : "-") << "|" << (value ? value : "-");
    }
  }
}

TEST(IniFileAndSystem, BareNamesAreInTheWindowsFolder) {
  constexpr const char* name = "qel test of bare names.ini";
  TIniFile(name).WriteInteger("S", "a", 7);
  EXPECT_EQ(::GetPrivateProfileIntA("S", "a", 0, name), 7u);
  EXPECT_FALSE(fs::exists(name));
  char folder[MAX_PATH];
  ::GetWindowsDirectoryA(folder, MAX_PATH);
  EXPECT_TRUE(fs::remove(fs::path(folder) / name));
}

TEST(IniFile, ChangesThatTheSystemRefusesLeaveTheFile) {
  const std::string text = "[S]\r\na=1\r\n";
  const TFile file("refused.ini", text);
  TIniFile ini(file.Name());
  const auto expectRefusal = [&](const char* why) {
    EXPECT_THROW(ini.WriteString("S", "a", "2"), vcl::EIniFileException) << why;
    EXPECT_EQ(file.Text(), text) << why;
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder), {}), 1) << why;
  };
  {
    const TImportPatch patch(
        "qelhost.dll", "WriteFile",
        +[](HANDLE, LPCVOID, DWORD, LPDWORD done, LPOVERLAPPED) WINAPI -> BOOL {
          *done = 3;
          ::SetLastError(ERROR_DISK_FULL);
          return FALSE;
        });
    expectRefusal("a full disk");
  }
  {
    const TImportPatch patch(
        "qelhost.dll", "MoveFileExW", +[](LPCWSTR, LPCWSTR, DWORD) WINAPI -> BOOL {
          ::SetLastError(ERROR_WRITE_PROTECT);
          return FALSE;
        });
    expectRefusal("a protected folder");
  }
  {
    const TImportPatch patch(
        "qelhost.dll", "ReadFile",
        +[](HANDLE, LPVOID, DWORD, LPDWORD done, LPOVERLAPPED) WINAPI -> BOOL {
          *done = 0;
          ::SetLastError(ERROR_CRC);
          return FALSE;
        });
    EXPECT_EQ(ini.ReadString("S", "a", "otherwise"), "otherwise");
    expectRefusal("an unreadable file");
  }
  ::SetFileAttributesA(file.Name().c_str(), FILE_ATTRIBUTE_READONLY);
  expectRefusal("a read-only file");
  EXPECT_EQ(ini.ReadString("S", "a", ""), "1");
}

using testing_support::TProgram;

/// Another program that writes to the file: see writer::Run.
std::unique_ptr<TProgram> StartWriter(const std::string& file, const std::string& name) {
  return std::make_unique<TProgram>(L"test_vcl",
                                    vcl::ToUtf16("--ini-writer \"" + file + "\" \"" + name + "\""));
}

TEST(IniFile, WritersOfDifferentEntriesLoseNothing) {
  const TFile file("shared.ini", "; kept\r\n[Section 1]\r\nfirst=1\r\n");
  constexpr const char* writers[] = {"a", "b", "c", "d"};
  std::vector<std::unique_ptr<TProgram>> running;
  for (const char* each : writers) running.push_back(StartWriter(file.Name(), each));
  const TIniFile ini(file.Name());
  for (const auto& program : running) {
    // Readers in between see a whole file, and do not stop the writers.
    while (program->ExitCode(1) == STILL_ACTIVE) {
      ASSERT_EQ(ini.ReadInteger("Section 1", "first", 0), 1);
    }
    EXPECT_EQ(program->ExitCode(), 0u);
  }
  for (int i = 0; i < writer::Entries; ++i) {
    for (const std::string each : writers) {
      EXPECT_EQ(ini.ReadInteger("Section " + std::to_string(i % 3), each + std::to_string(i), -1),
                i)
          << each;
    }
  }
  EXPECT_TRUE(file.Text().starts_with("; kept\r\n[Section 1]\r\nfirst=1\r\n"));
}

TEST(IniFile, AWriterThatIsEndedLeavesAWholeFile) {
  std::string rest;
  for (int i = 0; i < 3000; ++i) rest += "entry" + std::to_string(i) + "=value\r\n";
  const TFile file("shared.ini", "[S]\r\nlast=0\r\n" + rest);
  TIniFile ini(file.Name());
  for (int round = 0; round < 6; ++round) {
    ini.WriteInteger("S", "last", 0);  // In one's turn at once, though the other ended in its own.
    const auto program = StartWriter(file.Name(), "");
    const ULONGLONG end = ::GetTickCount64() + 20000;
    while (ini.ReadInteger("S", "last", -1) <= 0 && ::GetTickCount64() < end) ::Sleep(1);
    ::Sleep(static_cast<DWORD>(round * 3));
    program->End();
    program->ExitCode();
    const std::string text = file.Text();
    EXPECT_GT(ini.ReadInteger("S", "last", -1), 0);
    ASSERT_TRUE(text.starts_with("[S]\r\nlast=") && text.ends_with("\r\n" + rest)) << round;
  }
}

}  // namespace
