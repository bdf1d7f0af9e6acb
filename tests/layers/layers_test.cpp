// The layers: which folder may include which, and that no files include each other in a circle.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Includes = std::map<std::string, std::vector<std::string>>;

/// What each folder may include besides itself. Tests and benchmarks may include everything.
const std::map<std::string, std::set<std::string>>& Allowed() {
  static const std::set<std::string> rtl = {"host/rtl"};
  static const std::set<std::string> vcl = {"host/rtl", "host/vcl"};
  static const std::set<std::string> designer = {"host/rtl", "host/vcl", "host/designintf"};
  static const std::set<std::string> component = {"host/rtl", "host/vcl", "core"};
  static const std::map<std::string, std::set<std::string>> allowed = {
      {"host/rtl", {}},
      {"host/net", rtl},
      {"host/db", rtl},
      {"host/vcl", rtl},
      {"host/dbctrls", {"host/rtl", "host/db", "host/vcl"}},
      {"host/designintf", vcl},
      {"core", vcl},
      {"controls", component},
      {"data", {"host/rtl", "host/db", "core"}},
      {"mail", {"host/rtl", "host/net", "core"}},
      {"services", component},
      {"shell", component},
      {"design",
       {"host/rtl", "host/db", "host/vcl", "host/designintf", "core", "controls", "data", "mail",
        "services", "shell"}},
      {"demos",
       {"host/rtl", "host/net", "host/db", "host/vcl", "host/dbctrls", "core", "controls", "data",
        "mail", "services", "shell"}},
      {"tools", designer},
      {"ide", {"host/rtl", "host/net", "host/db", "host/vcl", "host/dbctrls", "host/designintf"}},
  };
  return allowed;
}

std::string FolderOf(const std::string& file) {
  for (const auto& [folder, others] : Allowed()) {
    if (file.starts_with(folder + "/")) return folder;
  }
  return {};
}

/// The file that a line includes; empty for another line, or one that includes a system's header.
std::string Included(const std::string& line) {
  static const std::string start = "#include \"";
  if (!line.starts_with(start)) return {};
  return line.substr(start.size(), line.find('"', start.size()) - start.size());
}

Includes ReadIncludes() {
  Includes includes;
  for (const auto& [folder, others] : Allowed()) {
    const fs::path root = fs::path(SOURCE_FOLDER) / folder;
    if (!fs::exists(root)) continue;
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
