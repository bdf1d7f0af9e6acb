// doccomments sentences FILE FOLDERS...: writes for each class of the folders' sources that has a
// table of what it publishes, and for each line of the table, the first sentence of its doc
// comment. A line is a class's name in C++, or that, a full stop and a property's name; a tab; the
// sentence. What has no comment has no line.
//
// doccomments classes FILE FOLDERS...: writes a source with the list of those classes, in the order
// of their names, as far as a public header defines them.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/doccomments/headers.h"
#include "tools/doccomments/tables.h"

namespace doccomments {
namespace {

namespace fs = std::filesystem;

std::string Contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// In the order of their names, so that what is written depends on nothing else.
std::vector<fs::path> FilesIn(const std::vector<std::string>& folders, const char* ending) {
  std::vector<fs::path> files;
  for (const std::string& folder : folders) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.path().extension() == ending) files.push_back(entry.path());
    }
  }
  std::ranges::sort(files);
  return files;
}

/// The getter's or the event's sentence, else that of the method with the property's name, which
/// may read otherwise for form files, else the setter's.
std::string SentenceOf(const TClassDocs& classes, const TTable& table, const TTableLine& line) {
  std::vector<std::string> members = line.Members;
  if (!members.empty()) members.insert(members.begin() + 1, line.Name);
  for (const std::string& member : members) {
    std::string sentence = SentenceOf(classes, table.Scope(), line.Class, member);
    if (!sentence.empty()) return sentence;
  }
  return {};
}

void AddLine(std::string& text, const std::string& name, const std::string& sentence) {
  if (!sentence.empty()) text += name + "\t" + sentence + "\n";
}

/// The folders' tables of the classes that are known.
std::vector<TTable> Tables(const std::vector<std::string>& folders, const TClassDocs& classes) {
  std::vector<TTable> tables;
  for (const fs::path& file : FilesIn(folders, ".cpp")) {
    for (TTable& each : TablesOf(Contents(file))) {
      if (FindClass(classes, "", each.Class)) tables.push_back(std::move(each));
    }
  }
  return tables;
}

std::string Sentences(const std::vector<std::string>& folders) {
  TClassDocs classes;
  for (const fs::path& file : FilesIn(folders, ".h")) ReadHeader(Contents(file), classes);
  std::string text;
  for (const TTable& table : Tables(folders, classes)) {
    AddLine(text, table.Class, FindClass(classes, "", table.Class)->Sentence);
    for (const TTableLine& line : table.Lines) {
      AddLine(text, table.Class + "." + line.Name, SentenceOf(classes, table, line));
    }
  }
  return text;
}

std::string ClassList(const std::vector<std::string>& folders) {
  TClassDocs classes;
  for (const fs::path& file : FilesIn(folders, ".h")) {
    if (file.parent_path().filename() != "private") ReadHeader(Contents(file), classes);
  }
  std::set<std::string> includes;
  std::set<std::string> lines;
  for (const TTable& each : Tables(folders, classes)) {
    includes.insert("#include \"" + each.Header + "\"\n");
    lines.insert("      &" + each.Class + "::Class(),\n");
  }
  const auto joined = [](const std::set<std::string>& parts) {
    return std::accumulate(parts.begin(), parts.end(), std::string());
  };
  return joined(includes) + "#include \"tools/qelref/reference.h\"\n\n" +
         "std::vector<const vcl::TClass*> qelref::LibraryClasses() {\n  return {\n" +
         joined(lines) + "  };\n}\n";
}

/// A list that is as it was keeps its time, so that what is made of it is not made again.
void Write(const fs::path& file, const std::string& text) {
  if (fs::exists(file) && Contents(file) == text) return;
  std::ofstream stream(file, std::ios::binary);
  stream << text;
  stream.close();
  if (!stream) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace
}  // namespace doccomments

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool sentences = argc > 3 && arguments[0] == "sentences";
  if (!sentences && !(argc > 3 && arguments[0] == "classes")) {
    std::fputs("doccomments sentences|classes FILE FOLDERS...\n", stderr);
    return 2;
  }
  const std::vector<std::string> folders(arguments.begin() + 2, arguments.end());
  try {
    using namespace doccomments;
    Write(arguments[1], sentences ? Sentences(folders) : ClassList(folders));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "doccomments: %s\n", error.what());
    return 1;
  }
}
