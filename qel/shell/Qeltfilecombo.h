// TQELFileCombo: the files in a folder.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/stdctrls/combobox.h"

namespace qel {

class TFolderWatch;
class TImageLines;

/// A combo box of a folder's files, each with its icon, by the alphabet. Hidden files are not
/// shown. What changes on the disk is seen.
class QEL_API TQELFileCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELFileCombo(vcl::TComponent* owner);
  ~TQELFileCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Folder() const { return FFolder; }
  /// The folder whose files are shown, with a backslash at its end; empty for none. One that cannot
  /// be read has none.
  void SetFolder(const std::string& folder);
  const std::string& Mask() const { return FMask; }
  /// Which files are shown, such as "*.txt;*.doc"; empty for all.
  void SetMask(const std::string& mask);

  /// The file that is selected, with its folder; empty for none.
  std::string Filename() const;
  /// Selects the file, in its own folder where it has one; none where it is not listed.
  void SetFilename(const std::string& fileName);
  /// Reads the folder anew. The file that is selected stays so while it is there.
  void Refresh();

 protected:
  void Loaded() override;
  void ChangeScale(int m, int d) override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TImageLines* FLines;  // The list's look.
  std::string FFolder;
  std::string FMask;
  std::unique_ptr<TFolderWatch> FWatch;
};

}  // namespace qel
