// TQELVersionDetails: the version information of a file.
#pragma once

#include <string>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelfileversion.h"

namespace qel {

/// Tells what a file says of its version: texts, which are empty where it has none, and numbers, 0
/// where it has none. They are read from the file each time.
class QEL_API TQELVersionDetails : public TQELComponent {
 public:
  explicit TQELVersionDetails(vcl::TComponent* owner);
  ~TQELVersionDetails() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The text of any key, be it one that only this file has.
  std::string Value(const std::string& key) const { return QELFileVersion(FFilename, key); }

  const std::string& Filename() const { return FFilename; }
  /// The file; the program's own where it is empty.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }
  /// False where the file is missing or has no version information.
  bool HasVersion() const { return QELFileVersionNumbers(FFilename).has_value(); }
  /// The language of the texts, in the user's language.
  std::string Language() const { return QELFileVersionLanguage(FFilename); }
  /// What else is said of the file.
  std::string Comments() const { return QELFileVersion(FFilename, viComments); }
  /// Who made it.
  std::string CompanyName() const { return QELFileVersion(FFilename, viCompanyName); }
  /// What the file is.
  std::string FileDescription() const { return QELFileVersion(FFilename, viFileDescription); }
  /// The file's version, as a text.
  std::string FileVersion() const { return QELFileVersion(FFilename, viFileVersion); }
  /// What its makers call it.
  std::string InternalName() const { return QELFileVersion(FFilename, viInternalName); }
  /// Whose it is.
  std::string LegalCopyright() const { return QELFileVersion(FFilename, viLegalCopyright); }
  /// The names that are protected.
  std::string LegalTrademarks() const { return QELFileVersion(FFilename, viLegalTrademarks); }
  /// What the file was called when it was made.
  std::string OriginalFilename() const { return QELFileVersion(FFilename, viOriginalFilename); }
  /// What a private build is for.
  std::string PrivateBuild() const { return QELFileVersion(FFilename, viPrivateBuild); }
  /// What the file is a part of.
  std::string ProductName() const { return QELFileVersion(FFilename, viProductName); }
  /// The version of that, as a text.
  std::string ProductVersion() const { return QELFileVersion(FFilename, viProductVersion); }
  /// What a special build is for.
  std::string SpecialBuild() const { return QELFileVersion(FFilename, viSpecialBuild); }
  /// The first number of the file's version.
  int FileMajor() const { return Numbers().File[0]; }
  /// The second number of the file's version.
  int FileMinor() const { return Numbers().File[1]; }
  /// The third number of the file's version.
  int FileRelease() const { return Numbers().File[2]; }
  /// The fourth number of the file's version.
  int FileBuild() const { return Numbers().File[3]; }
  /// The first number of the product's version.
  int ProductMajor() const { return Numbers().Product[0]; }
  /// The second number of the product's version.
  int ProductMinor() const { return Numbers().Product[1]; }
  /// The third number of the product's version.
  int ProductRelease() const { return Numbers().Product[2]; }
  /// The fourth number of the product's version.
  int ProductBuild() const { return Numbers().Product[3]; }
  /// The file is one for looking for errors.
  bool DebugBuild() const;
  /// The file is not as it was first made.
  bool PatchedBuild() const;
  /// The file is not meant for everybody yet.
  bool PreRelease() const;

 private:
  TQELVersionNumbers Numbers() const {
    return QELFileVersionNumbers(FFilename).value_or(TQELVersionNumbers());
  }

  std::string FFilename;
};

}  // namespace qel
