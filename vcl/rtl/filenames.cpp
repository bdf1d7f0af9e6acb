// Taking names of files apart and putting them together.
#include "vcl/rtl/filenames.h"

#include <algorithm>

namespace vcl {
namespace {

constexpr std::string_view Delimiters = "\\/:";

bool IsPathDelimiter(char character) { return character == '\\' || character == '/'; }

std::size_t FindPathDelimiter(std::string_view name, std::size_t from) {
  return name.find_first_of("\\/", from);
}

std::string_view PathPart(std::string_view name) {
  return name.substr(0, name.find_last_of(Delimiters) + 1);  // npos + 1 is 0.
}

/// Where the extension begins; the end of the name when there is none.
std::size_t ExtensionStart(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == name.npos || dot < PathPart(name).size() ? name.size() : dot;
}

/// Where the share ends in "\\server\share\..."; 0 when the name is no such one.
std::size_t ShareEnd(std::string_view name) {
  if (name.size() < 2 || !IsPathDelimiter(name[0]) || !IsPathDelimiter(name[1])) return 0;
  const std::size_t server = FindPathDelimiter(name, 2);
  if (server == name.npos || server == 2) return 0;
  const std::size_t end = std::min(FindPathDelimiter(name, server + 1), name.size());
  return end == server + 1 ? 0 : end;
}

}  // namespace

std::string ExtractFileName(std::string_view fileName) {
  return std::string(fileName.substr(PathPart(fileName).size()));
}

std::string ExtractFilePath(std::string_view fileName) { return std::string(PathPart(fileName)); }

std::string ExtractFileDir(std::string_view fileName) {
  const std::string_view path = PathPart(fileName);
  const bool root = path.size() < 2 || Delimiters.find(path[path.size() - 2]) != path.npos;
  return root ? std::string(path) : ExcludeTrailingPathDelimiter(path);
}

std::string ExtractFileDrive(std::string_view fileName) {
  const bool drive = fileName.size() > 1 && fileName[1] == ':';
  return std::string(fileName.substr(0, drive ? 2 : ShareEnd(fileName)));
}

std::string ExtractFileExt(std::string_view fileName) {
  return std::string(fileName.substr(ExtensionStart(fileName)));
}

std::string ChangeFileExt(std::string_view fileName, std::string_view extension) {
  return std::string(fileName.substr(0, ExtensionStart(fileName))).append(extension);
}

std::string IncludeTrailingPathDelimiter(std::string_view name) {
  std::string path(name);
  if (path.empty() || !IsPathDelimiter(path.back())) path += PathDelim;
  return path;
}

std::string ExcludeTrailingPathDelimiter(std::string_view name) {
  if (!name.empty() && IsPathDelimiter(name.back())) name.remove_suffix(1);
  return std::string(name);
}

}  // namespace vcl
