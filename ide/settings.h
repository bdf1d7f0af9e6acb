// TSettings: what the designer remembers from one run to the next, in an INI file.
#pragma once

#include <string>
#include <vector>

namespace ide {

class TSettings {
 public:
  /// The file need not be there; its folder is made when something is written.
  explicit TSettings(std::string fileName) : FFileName(std::move(fileName)) {}
  /// The user's own file.
  static std::string DefaultFileName();
  const std::string& FileName() const { return FFileName; }

  /// The packages to load, in order. While none are named: "qel.dll" beside the program.
  std::vector<std::string> Packages() const;
  void SetPackages(const std::vector<std::string>& packages) const;
  /// The files that were open last, the newest first.
  std::vector<std::string> RecentFiles() const;
  /// Puts the file in front.
  void AddRecentFile(const std::string& fileName) const;
  /// Takes the name out of the lists above that hold it.
  void Forget(const std::string& fileName) const;
  /// How often unsaved forms are copied, in seconds; a minute when nothing else is set.
  int AutosaveSeconds() const;

  /// The sections of the file, and the lists in them, each line under its number from 1. A section
  /// without lines is not there.
  std::vector<std::string> Sections() const;
  std::vector<std::string> List(const std::string& section) const;
  void SetList(const std::string& section, const std::vector<std::string>& lines) const;

 private:
  std::string FFileName;
};

/// The folder of the running program, without a backslash at its end.
std::string ProgramFolder();

}  // namespace ide
