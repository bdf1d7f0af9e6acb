// Reading the file of sentences.
#include "vcl/designintf/sentences.h"

#include <sstream>

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"

namespace vcl {

TSentences::TSentences(const std::string& fileName) {
  std::istringstream lines(ReadWholeFile(fileName).value_or(std::string()));
  std::string line;
  while (std::getline(lines, line)) {
    const std::size_t tab = line.find('\t');
    if (tab != std::string::npos) FSentences[line.substr(0, tab)] = line.substr(tab + 1);
  }
}

std::string TSentences::Of(const TClass& aClass) const {
  const auto found = FSentences.find(aClass.CppName());
  return found == FSentences.end() ? std::string() : found->second;
}

std::string TSentences::Of(const TClass& aClass, const std::string& property) const {
  for (const TClass* each = &aClass; each; each = each->Parent()) {
    const auto found = FSentences.find(each->CppName() + "." + property);
    if (found != FSentences.end()) return found->second;
  }
  return {};
}

const TSentences& Sentences() {
  static const TSentences sentences(ExtractFilePath(BaseApplication().ExeName()) + "sentences.txt");
  return sentences;
}

}  // namespace vcl
