// The layers: which room may include which, which headers are private, and that no files include
// each other in a circle.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Includes = std::map<std::string, std::vector<std::string>>;

/// What each room may include besides itself. Tests and benchmarks may include everything.
const std::map<std::string, std::set<std::string>>& Allowed() {
  static const std::set<std::string> rtl = {"vcl/rtl"};
  // Controls need the form that they stand on and its menus, whose files need controls.
  static const std::set<std::string> window = {"vcl/rtl",   "vcl/graphics", "vcl/controls",
                                               "vcl/menus", "vcl/forms",    "vcl/actions"};
  const auto with = [](std::set<std::string> rooms, std::set<std::string> more) {
    rooms.merge(more);
    return rooms;
  };
  static const std::set<std::string> dialogs =
      with(window, {"vcl/stdctrls", "vcl/transfer", "vcl/dialogs"});
  static const std::set<std::string> vcl =
      with(dialogs, {"vcl/stdactions", "vcl/system", "vcl/grids", "vcl/printing"});
  static const std::set<std::string> component = with(vcl, {"qel/core"});
  static const std::set<std::string> application =
      with(component, {"vcl", "vcl/net", "vcl/db", "vcl/dbctrls", "qel", "qel/controls", "qel/data",
                       "qel/dbcontrols", "qel/dialogs", "qel/mail", "qel/services", "qel/shell"});
  static const std::map<std::string, std::set<std::string>> allowed = {
      {"vcl/rtl", {}},
      {"vcl/net", rtl},
      {"vcl/db", rtl},
      {"vcl/system", rtl},
      {"vcl/graphics", rtl},
      {"vcl/controls", window},
      {"vcl/menus", window},
      {"vcl/actions", window},
      {"vcl/forms", vcl},  // Forms register the standard classes.
      {"vcl/stdctrls", with(window, {"vcl/transfer"})},
      {"vcl/transfer", window},
      {"vcl/dialogs", dialogs},
      {"vcl/printing", dialogs},
      {"vcl/grids", with(window, {"vcl/stdctrls", "vcl/transfer"})},
      {"vcl/stdactions", dialogs},
      {"vcl/dbctrls", with(vcl, {"vcl/db"})},
      {"vcl/designintf", vcl},
      {"vcl", with(vcl, {"vcl/net", "vcl/db", "vcl/dbctrls"})},
      {"qel/core", vcl},
      {"qel/controls", component},
      {"qel/dialogs", with(component, {"qel/controls"})},
      {"qel/dbcontrols", with(component, {"qel/controls", "qel/dialogs", "vcl/db", "vcl/dbctrls"})},
      {"qel/data", {"vcl/rtl", "vcl/db", "qel/core"}},
      {"qel/mail", {"vcl/rtl", "vcl/net", "qel/core"}},
      {"qel/services", component},
      {"qel/shell", with(component, {"qel/controls"})},
      {"qel/design", with(application, {"vcl/designintf"})},
      {"qel", application},
      {"demos", application},
      {"tools", with(vcl, {"vcl/designintf"})},
      {"ide", with(vcl, {"vcl", "vcl/net", "vcl/db", "vcl/dbctrls", "vcl/designintf"})},
  };
  return allowed;
}

/// The library or program that a file belongs to, whose private headers it may include.
std::string TopOf(const std::string& file) { return file.substr(0, file.find('/')); }

/// The room that a file lies in: "vcl/rtl", "demos"; "vcl" for a file beside the rooms.
std::string FolderOf(const std::string& file) {
  std::string found;
  for (const auto& [folder, others] : Allowed()) {
    if (file.starts_with(folder + "/") && folder.size() > found.size()) found = folder;
  }
  return found;
}

/// The file that a line includes; empty for another line, or one that includes a system's header.
std::string Included(const std::string& line) {
  static const std::string start = "#include \"";
  if (!line.starts_with(start)) return {};
  return line.substr(start.size(), line.find('"', start.size()) - start.size());
}

Includes ReadIncludes() {
  Includes includes;
  for (const char* top : {"vcl", "qel", "ide", "demos", "tools"}) {
    const fs::path root = fs::path(SOURCE_FOLDER) / top;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
      const std::string ending = entry.path().extension().string();
      if (ending != ".h" && ending != ".cpp") continue;
      auto& list = includes[entry.path().lexically_relative(SOURCE_FOLDER).generic_string()];
      std::ifstream file(entry.path());
      for (std::string line; std::getline(file, line);) {
        if (std::string other = Included(line); !other.empty()) list.push_back(std::move(other));
      }
    }
  }
  return includes;
}

TEST(Layers, EachIncludesOnlyWhatStandsBelowIt) {
  std::vector<std::string> wrong;
  const Includes includes = ReadIncludes();
  EXPECT_GT(includes.size(), 100u) << "the sources are not where they were looked for";
  for (const auto& [file, included] : includes) {
    const std::string folder = FolderOf(file);
    for (const std::string& other : included) {
      const std::string target = FolderOf(other);
      if (target != folder && !Allowed().at(folder).contains(target)) {
        wrong.push_back(file + " includes " + other);
      }
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

bool IsPrivate(const std::string& header) {
  return header.find("/private/") != std::string::npos || header.starts_with("qel/design/");
}

TEST(Layers, PrivateHeadersStayInTheirLibrary) {
  std::vector<std::string> wrong;
  int privates = 0;
  for (const auto& [file, included] : ReadIncludes()) {
    privates += IsPrivate(file) && file.ends_with(".h");
    const bool published = file.ends_with(".h") && !IsPrivate(file);
    for (const std::string& other : included) {
      if (IsPrivate(other) && (published || TopOf(file) != TopOf(other))) {
        wrong.push_back(file + " includes " + other);
      }
    }
  }
  EXPECT_GT(privates, 40) << "the private headers are not where they were looked for";
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST(Layers, EachFileLiesInARoom) {
  std::vector<std::string> outside;
  for (const auto& [file, included] : ReadIncludes()) {
    const std::string room = FolderOf(file);
    const bool umbrella = file == "vcl/vcl.h" || file == "qel/qel.h";
    if (room.empty() || ((room == "vcl" || room == "qel") && !umbrella)) outside.push_back(file);
  }
  EXPECT_THAT(outside, testing::IsEmpty());
}

/// A file's lines without the comments behind "//".
std::vector<std::string> CodeOf(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream stream(fs::path(SOURCE_FOLDER) / file);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line.substr(0, line.find("//")));
  return lines;
}

/// The identifiers in a line.
std::set<std::string> WordsOf(const std::string& line) {
  std::set<std::string> words;
  std::string word;
  for (const char c : line + ' ') {
    if (std::isalnum(static_cast<unsigned char>(c)) || c == '_') {
      word += c;
    } else if (!word.empty()) {
      words.insert(std::exchange(word, {}));
    }
  }
  return words;
}

TEST(Layers, TheDesignerNamesNothingOfThePackage) {
  std::vector<std::string> wrong;
  for (const auto& [file, included] : ReadIncludes()) {
    if (TopOf(file) != "ide") continue;
    for (const std::string& line : CodeOf(file)) {
      for (const std::string& word : WordsOf(line)) {
        if (word.starts_with("TQEL") || word.starts_with("Qelt"))
          wrong.push_back(file + ": " + word);
      }
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty()) << "another's package must get what ours gets";
}

TEST(Layers, HeadersWhoseNamesAreMacrosOfTheSystemTakeThoseBack) {
  std::set<std::string> macros;
  for (const std::string& line : CodeOf("vcl/rtl/systemmacros.h")) {
    if (line.starts_with("#undef ")) macros.insert(line.substr(7));
  }
  EXPECT_GT(macros.size(), 80u);
  std::vector<std::string> wrong;
  for (const auto& [file, included] : ReadIncludes()) {
    const bool library = TopOf(file) == "vcl" || TopOf(file) == "qel";
    if (!library || !file.ends_with(".h") || IsPrivate(file) || file == "vcl/rtl/systemmacros.h" ||
        std::ranges::count(included, "vcl/rtl/systemmacros.h")) {
      continue;
    }
    for (const std::string& line : CodeOf(file)) {
      for (const std::string& word : WordsOf(line)) {
        if (macros.contains(word)) wrong.push_back(file + " declares " + word);
      }
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST(Layers, NoPublicHeaderIncludesTheSystems) {
  std::vector<std::string> wrong;
  for (const auto& [file, included] : ReadIncludes()) {
    const bool library = TopOf(file) == "vcl" || TopOf(file) == "qel";
    if (!library || !file.ends_with(".h") || IsPrivate(file) || file == "vcl/rtl/win32.h") continue;
    if (std::ranges::count(included, "vcl/rtl/win32.h")) wrong.push_back(file);
    for (const std::string& line : CodeOf(file)) {
      if (line.starts_with("#include <windows.h>")) wrong.push_back(file);
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST(Layers, EachFileSaysInItsFirstLineWhatItHolds) {
  std::vector<std::string> silent;
  for (const auto& [file, included] : ReadIncludes()) {
    std::ifstream stream(fs::path(SOURCE_FOLDER) / file);
    std::string first;
    std::getline(stream, first);
    if (!first.starts_with("// ")) silent.push_back(file);
  }
  EXPECT_THAT(silent, testing::IsEmpty());
}

/// Follows the includes depth first; a file that is met again on the way to itself closes a circle.
class CircleSearch {
 public:
  explicit CircleSearch(const Includes& includes) : FIncludes(includes) {}
  std::vector<std::string> Circles;

  void Visit(const std::string& file) {
    if (FDone.contains(file)) return;
    if (FOnTheWay.contains(file)) return Circles.push_back(file);
    const auto found = FIncludes.find(file);
    if (found == FIncludes.end()) return;
    FOnTheWay.insert(file);
    for (const std::string& other : found->second) Visit(other);
    FOnTheWay.erase(file);
    FDone.insert(file);
  }

 private:
  const Includes& FIncludes;
  std::set<std::string> FOnTheWay, FDone;
};

TEST(Layers, NoFilesIncludeEachOtherInACircle) {
  const Includes includes = ReadIncludes();
  CircleSearch search(includes);
  for (const auto& [file, included] : includes) search.Visit(file);
  EXPECT_THAT(search.Circles, testing::IsEmpty());
}

}  // namespace
