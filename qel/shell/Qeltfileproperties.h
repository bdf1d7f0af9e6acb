// TQELFileProperties: what the system knows of a file.
#pragma once

#include <cstdint>
#include <string>

#include "qel/core/Qelactioncomponent.h"
#include "qel/shell/Qeltfilecollector.h"
#include "vcl/rtl/datetime.h"

namespace qel {

/// Tells the size, the times and the attributes of a file or a folder, sets times and attributes,
/// and shows the shell's sheet of properties. What it tells is read each time; of a file that is
/// not there all is empty. Times are by the clock on the wall.
class QEL_API TQELFileProperties : public TQELActionComponent {
 public:
  explicit TQELFileProperties(vcl::TComponent* owner);
  ~TQELFileProperties() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Whether there is a file or a folder of that name.
  bool Exists() const;
  /// The attributes.
  TQELFileAttributes Attributes() const;
  /// When it was made.
  vcl::TDateTime Created() const;
  /// What the shell calls its kind.
  std::string FileType() const;
  /// When it was last read or written; systems do not keep it exactly.
  vcl::TDateTime LastAccess() const;
  /// When it was last written to.
  vcl::TDateTime Modified() const;
  /// Its size in bytes; 0 for a folder.
  std::int64_t Size() const;

  /// These return false, and LastError says why, when the system refuses. In the designer they
  /// change nothing.
  bool ChangeAttributes(TQELFileAttributes attributes);
  bool ChangeCreated(vcl::TDateTime time);
  bool ChangeLastAccess(vcl::TDateTime time);
  bool ChangeModified(vcl::TDateTime time);

  const std::string& Filename() const { return FFilename; }
  /// The file, or the folder.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }

 protected:
  /// Shows the shell's sheet, and returns at once.
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  enum class TTime { Created, LastAccess, Modified };
  vcl::TDateTime TimeOf(TTime which) const;
  bool ChangeTime(TTime which, vcl::TDateTime time);

  std::string FFilename;
};

}  // namespace qel
