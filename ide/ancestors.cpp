// Finding the form files of ancestors and frames in a form's folder.
#include "ide/ancestors.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <sstream>

#include "ide/unitparts.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace ide {

using namespace vcl;

namespace {

struct TFirstLine {
  bool Inherited = false;
  std::string ClassName;
};

/// What a form file's first words say; nothing for what is no form file.
std::optional<TFirstLine> FirstLineOf(const std::string& bytes) {
  std::string text = bytes;
  if (IsBinaryForm(bytes)) {
    TStringStream binary(bytes), converted;
    ObjectBinaryToText(binary, converted);
    text = converted.DataString();
  }
  std::replace(text.begin(), text.end(), ':', ' ');
  std::istringstream words(text.substr(0, text.find('\n')));
  std::string sort, name;
  TFirstLine line;
  if (!(words >> sort >> name >> line.ClassName)) return std::nullopt;
  line.Inherited = SameText(sort, "inherited");
  if (!line.Inherited && !SameText(sort, "object")) return std::nullopt;
  return line;
}

/// The first class that the unit's class descends from, without its namespace.
std::string BaseOf(const std::string& headerFile, const std::string& className) {
  const auto header = ReadWholeFile(headerFile);
  if (!header) {
    throw EFOpenError(Concat(className, " descends from another form; its unit says from which, ",
                             "and there is no ", headerFile));
  }
  const TCppText text(ExtractFileName(headerFile), *header);
  const std::size_t open = FindClass(text, className).Open;
  std::size_t colon = open;
  while (colon > 0 && !text.Is(colon, ":") && !text.Is(colon, className)) --colon;
  std::string base;
  for (std::size_t i = colon + 1; i < open && !text.Is(i, ","); ++i) {
    if (text.IsName(i)) base = text[i].Text;
  }
  if (base.empty()) text.Refuse(text[open].Begin, Concat(className, " descends from no form"));
  return base;
}

}  // namespace

TAncestorFile FindFormFile(const std::string& folder, const std::string& className,
                           const std::string& user) {
  std::error_code failed;
  const std::filesystem::path path(ToUtf16(folder.empty() ? "." : folder));
  for (const auto& entry : std::filesystem::directory_iterator(path, failed)) {
    const std::string name = ToUtf8(entry.path().wstring());
    if (!SameText(ExtractFileExt(name), ".dfm")) continue;
    const auto bytes = ReadWholeFile(name);
    const auto line = bytes ? FirstLineOf(*bytes) : std::nullopt;
    if (line && SameText(line->ClassName, className)) return {line->ClassName, name, *bytes};
  }
  throw EFOpenError(Concat(user, " needs the form file of ", className, ", and none of the folder ",
                           folder, " is of that class"));
}

std::string FormClassOf(const std::string& bytes) {
  const auto line = FirstLineOf(bytes);
  return line ? line->ClassName : std::string();
}

std::vector<TAncestorFile> AncestorFiles(const std::string& fileName, const std::string& bytes) {
  std::vector<TAncestorFile> files;
  std::string unit = fileName;
  auto line = FirstLineOf(bytes);
  while (line && line->Inherited) {
    const std::string base = BaseOf(ChangeFileExt(unit, ".h"), line->ClassName);
    const bool again = std::ranges::any_of(
        files, [&](const TAncestorFile& each) { return SameText(each.ClassName, base); });
    if (again || SameText(base, line->ClassName)) {
      throw EReadError(Concat(base, " descends from itself"));
    }
    files.insert(files.begin(), FindFormFile(ExtractFileDir(fileName), base, line->ClassName));
    unit = files.front().FileName;
    line = FirstLineOf(files.front().Bytes);
  }
  return files;
}

}  // namespace ide
