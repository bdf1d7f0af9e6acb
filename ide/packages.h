// TPackages: the packages that the designer works with.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/designintf/package.h"

namespace ide {

/// A package that was asked for, loaded or not.
struct TPackageEntry {
  std::string FileName;
  /// Why it could not be loaded; empty when it is.
  std::string Error;
  std::unique_ptr<vcl::TPackage> Package;
  /// False: the next start of the program does not ask for it.
  bool Wanted = true;
};

class TPackages {
 public:
  /// Loads the package; what it raises is kept in its entry. One that is there already is tried
  /// again if it has failed.
  const TPackageEntry& Load(const std::string& fileName);
  const std::vector<std::unique_ptr<TPackageEntry>>& Entries() const { return FEntries; }
  /// The files that the next start is to ask for.
  std::vector<std::string> Wanted() const;

 private:
  TPackageEntry& Entry(const std::string& fileName);

  std::vector<std::unique_ptr<TPackageEntry>> FEntries;
};

}  // namespace ide
