// TQELFileLabel and TQELFileLabel3D: labels of a file.
#pragma once

#include <string>

#include "qel/controls/Qeltlabel.h"

namespace qel {

/// What a file's label shows.
enum TQELFileLabelDisplay {
  fdPath,    ///< The name with its folders, shortened in the middle where it is too long.
  fdName,    ///< The name alone.
  fdFolder,  ///< The folder, shortened in the middle where it is too long.
  fdSize,    ///< The size in kilobytes.
  fdDate,    ///< When it was last written to.
  fdType     ///< What the shell calls such files.
};

/// A label that shows a file, or a folder, and may open it. Size, date and type are read when the
/// file's name or the kind of text is set, and by Refresh; they are empty where there is no such
/// file.
class QEL_API TQELFileLabel : public TQELComputedLabel {
 public:
  explicit TQELFileLabel(vcl::TComponent* owner);
  ~TQELFileLabel() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;

  const std::string& Filename() const { return FFilename; }
  /// The file or folder that is shown.
  void SetFilename(const std::string& fileName);
  TQELFileLabelDisplay Display() const { return FDisplay; }
  /// Which of the file's texts is shown.
  void SetDisplay(TQELFileLabelDisplay display);
  bool ShowIcon() const { return FShowIcon; }
  /// True shows the shell's small picture of the file at the left.
  void SetShowIcon(bool show);
  bool ClickOpens() const { return FClickOpens; }
  /// True opens the file by a click, or by the default action of assistive programs, with the
  /// program for such files. In the designer it opens nothing. The system opens whatever it is
  /// given: programs and scripts are started.
  void SetClickOpens(bool opens);

  /// Opens the file. False, as LastError says why, when the system can't.
  bool Open();
  /// Why the file was not opened; empty when it was.
  const std::string& LastError() const { return FLastError; }

 protected:
  std::string ComputeText() const override;
  unsigned WriteFlags() const override;
  int TextIndent() const override;
  void Click() override;
  void Paint() override;

 private:
  bool ShowsPath() const { return FDisplay == fdPath || FDisplay == fdFolder; }

  std::string FFilename;
  TQELFileLabelDisplay FDisplay = fdPath;
  bool FShowIcon = false;
  bool FClickOpens = false;
  std::string FLastError;
  mutable int FPicture = 0;  // In the system's lists; read with the text.
};

/// A file's label whose text is three-dimensional and stands over a background.
class QEL_API TQELFileLabel3D : public TQELFileLabel {
 public:
  explicit TQELFileLabel3D(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELFileLabelDisplay>{
    "TQELFileLabelDisplay", "fdPath fdName fdFolder fdSize fdDate fdType"};

}  // namespace vcl
