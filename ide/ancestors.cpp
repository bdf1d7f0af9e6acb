// Finding the form files of ancestors and frames in a form's folder.
#include "ide/ancestors.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <sstream>

#include "ide/unitparts.h"
#include "vcl/forms/datamodule.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/frames.h"
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

/// What a form file's first words say; nothing for what is no form file, or a damaged one.
std::optional<TFirstLine> FirstLineOf(const std::string& bytes) {
  std::string text = bytes;
  if (IsBinaryForm(bytes)) {
    TStringStream binary(bytes), converted;
    try {
      ObjectBinaryToText(binary, converted);
    } catch (const EReadError&) {
      return std::nullopt;
    }
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

/// The first class that the header's class descends from, without its namespace; empty for none.
std::string BaseIn(const TCppText& header, const std::string& className) {
  const std::size_t open = FindClass(header, className).Open;
  std::size_t colon = open;
  while (colon > 0 && !header.Is(colon, ":") && !header.Is(colon, "class")) --colon;
  std::string base;
  for (std::size_t i = colon + 1; header.Is(colon, ":") && i < open && !header.Is(i, ","); ++i) {
    if (header.IsName(i)) base = header[i].Text;
  }
  return base;
}

/// The same of a class that says `inherited` in its form file.
std::string BaseOf(const std::string& headerFile, const std::string& className) {
  const auto header = ReadWholeFile(headerFile);
  if (!header) {
    throw EFOpenError(Concat(className, " descends from another form; its unit says from which, ",
                             "and there is no ", headerFile));
  }
  const TCppText text(ExtractFileName(headerFile), *header);
  std::string base = BaseIn(text, className);
  if (base.empty()) {
    const std::size_t open = FindClass(text, className).Open;
    text.Refuse(text[open].Begin, Concat(className, " descends from no form"));
  }
  return base;
}

const TClass& LibraryClassNamed(std::string_view name) {
  for (const TClass* each : {&TFrame::Class(), &TDataModule::Class()}) {
    if (name == each->Name()) return *each;
  }
  return TForm::Class();
}

/// The class of this library that one descends from whose form file does not say `inherited`.
const TClass& LibraryClassOf(const std::string& headerFile, const std::string& className) {
  const auto header = ReadWholeFile(headerFile);
  std::string base;
  try {
    if (header) base = BaseIn(TCppText(ExtractFileName(headerFile), *header), className);
  } catch (const EUnitError&) {
    // What is wrong with the unit is said when it is written; a form can be designed without one.
  }
  return LibraryClassNamed(base);
}

}  // namespace

TAncestorFile FindFormFile(const std::string& folder, const std::string& className,
                           const std::string& user) {
  std::string damaged;
  std::error_code failed;
  const std::filesystem::path path(ToUtf16(folder.empty() ? "." : folder));
  for (const auto& entry : std::filesystem::directory_iterator(path, failed)) {
    const std::string name = ToUtf8(entry.path().wstring());
    if (!SameText(ExtractFileExt(name), ".dfm")) continue;
    const auto bytes = ReadWholeFile(name);
    const auto line = bytes ? FirstLineOf(*bytes) : std::nullopt;
    if (line && SameText(line->ClassName, className)) return {line->ClassName, name, *bytes};
    if (!line) damaged += Concat("; ", ExtractFileName(name), " is damaged");
  }
  throw EFOpenError(Concat(user, " needs the form file of ", className, ", and none of the folder ",
                           folder, " is of that class", damaged));
}

std::string FormClassOf(const std::string& bytes) {
  const auto line = FirstLineOf(bytes);
  return line ? line->ClassName : std::string();
}

TFormOrigin OriginOf(const std::string& fileName, const std::string& bytes) {
  TFormOrigin origin{&TForm::Class(), {}, ExtractFileDir(fileName)};
  std::string file = fileName;
  auto line = FirstLineOf(bytes);
  while (line && line->Inherited) {
    const std::string header = ChangeFileExt(file, ".h");
    const std::string base = BaseOf(header, line->ClassName);
    const bool again = SameText(base, line->ClassName) ||
                       std::ranges::any_of(origin.Files, [&](const TAncestorFile& each) {
                         return SameText(each.ClassName, base);
                       });
    if (again) throw EReadError(Concat(header, ": ", base, " descends from itself"));
    origin.Files.insert(origin.Files.begin(), FindFormFile(origin.Folder, base, line->ClassName));
    file = origin.Files.front().FileName;
    line = FirstLineOf(origin.Files.front().Bytes);
  }
  if (line) origin.Class = &LibraryClassOf(ChangeFileExt(file, ".h"), line->ClassName);
  return origin;
}

TFormOrigin OriginFrom(const std::string& ancestorFile) {
  const auto bytes = ReadWholeFile(ancestorFile);
  if (!bytes) throw EFOpenError(Concat("There is no ", ancestorFile));
  const auto line = FirstLineOf(*bytes);
  if (!line) throw EReadError(Concat(ancestorFile, " is no form file, or a damaged one"));
  TFormOrigin origin = OriginOf(ancestorFile, *bytes);
  origin.Files.push_back({line->ClassName, ancestorFile, *bytes});
  return origin;
}

// Copies.

namespace {

std::string KeptName(const std::string& copyName) { return copyName + "~base"; }

}  // namespace

/// The class, the folder, and the ancestor's file if there is one, each on a line.
void KeepOrigin(const std::string& copyName, const TFormOrigin& origin) {
  const std::string ancestor = origin.Files.empty() ? "" : origin.Files.back().FileName;
  ReplaceWholeFile(KeptName(copyName),
                   Concat(origin.Class->Name(), "\n", origin.Folder, "\n", ancestor, "\n"));
}

TFormOrigin KeptOrigin(const std::string& copyName, const std::string& bytes) {
  const auto kept = ReadWholeFile(KeptName(copyName));
  if (!kept) return OriginOf(copyName, bytes);
  std::istringstream lines(*kept);
  std::string sort, folder, ancestor;
  std::getline(lines, sort);
  std::getline(lines, folder);
  std::getline(lines, ancestor);
  if (!ancestor.empty()) return OriginFrom(ancestor);
  return {&LibraryClassNamed(sort), {}, folder};
}

void ForgetOrigin(const std::string& copyName) { DeleteFile(KeptName(copyName)); }

}  // namespace ide
