// TSettings: the settings file and its lists: packages, recent files, and how often forms are kept.
#include "ide/settings.h"

#include <algorithm>
#include <cstdlib>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/inifile.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace ide {

using namespace vcl;

namespace {

constexpr std::size_t RecentLimit = 9;

}  // namespace

std::string ProgramFolder() { return ExtractFileDir(BaseApplication().ExeName()); }

std::string TSettings::DefaultFileName() {
  const wchar_t* folder = ::_wgetenv(L"APPDATA");
  return (folder ? ToUtf8(folder) : ProgramFolder()) + "\\Designer\\designer.ini";
}

std::vector<std::string> TSettings::List(const std::string& section) const {
  const TIniFile file(FFileName);
  std::vector<std::string> lines;
  for (int i = 1;; ++i) {
    std::string line = file.ReadString(section, IntToStr(i), {});
    if (line.empty()) return lines;
    lines.push_back(std::move(line));
  }
}

void TSettings::SetList(const std::string& section, const std::vector<std::string>& lines) const {
  TIniFile file(FFileName);
  if (file.SectionExists(section)) file.EraseSection(section);
  const std::string folder = ExtractFileDir(FFileName);
  if (!lines.empty() && !folder.empty()) ForceDirectories(folder);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    file.WriteString(section, IntToStr(static_cast<std::int64_t>(i) + 1), lines[i]);
  }
}

std::vector<std::string> TSettings::Sections() const {
  TStringList sections;
  TIniFile(FFileName).ReadSections(sections);
  std::vector<std::string> names;
  for (int i = 0; i < sections.Count(); ++i) names.push_back(sections.Strings(i));
  return names;
}

int TSettings::AutosaveSeconds() const {
  constexpr int minute = 60, day = 24 * 60 * minute;
  const auto seconds = TIniFile(FFileName).ReadInteger("Designer", "AutosaveSeconds", minute);
  return std::clamp(static_cast<int>(seconds), 1, day);
}

std::vector<std::string> TSettings::Packages() const {
  auto packages = List("Packages");
  if (packages.empty()) packages.push_back(ProgramFolder() + "\\qel.dll");
  return packages;
}

void TSettings::SetPackages(const std::vector<std::string>& packages) const {
  SetList("Packages", packages);
}

std::vector<std::string> TSettings::RecentFiles() const { return List("Recent files"); }

void TSettings::Forget(const std::string& fileName) const {
  for (const char* section : {"Packages", "Recent files"}) {
    auto files = List(section);
    if (std::erase(files, fileName) > 0) SetList(section, files);
  }
}

void TSettings::AddRecentFile(const std::string& fileName) const {
  auto files = RecentFiles();
  std::erase_if(files, [&](const std::string& each) { return SameText(each, fileName); });
  files.insert(files.begin(), fileName);
  if (files.size() > RecentLimit) files.resize(RecentLimit);
  SetList("Recent files", files);
}

}  // namespace ide
