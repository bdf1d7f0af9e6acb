// TPackages: loading packages, and which of them the user wants.
#include "ide/packages.h"

#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

TPackageEntry& TPackages::Entry(const std::string& fileName) {
  for (const auto& each : FEntries) {
    if (SameText(each->FileName, fileName)) return *each;
  }
  FEntries.push_back(std::make_unique<TPackageEntry>());
  FEntries.back()->FileName = fileName;
  return *FEntries.back();
}

const TPackageEntry& TPackages::Load(const std::string& fileName) {
  TPackageEntry& entry = Entry(fileName);
  entry.Wanted = true;
  if (entry.Package) return entry;
  entry.Error.clear();
  try {
    entry.Package = std::make_unique<TPackage>(fileName);
  } catch (const std::exception& error) {
    entry.Error = error.what();
  }
  return entry;
}

std::vector<std::string> TPackages::Wanted() const {
  std::vector<std::string> names;
  for (const auto& each : FEntries) {
    if (each->Wanted) names.push_back(each->FileName);
  }
  return names;
}

}  // namespace ide
