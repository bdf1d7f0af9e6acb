// TQELDriveCombo: the drives.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/stdctrls/combobox.h"

namespace qel {

class TQELDriveLines;
class TQELFolderListbox;

/// A combo box of the drives, each with the shell's name and picture of it. Drives that come and go
/// appear and vanish. The drive that the user chooses is shown by the FolderList.
class QEL_API TQELDriveCombo : public vcl::TCustomComboBox {
 public:
  explicit TQELDriveCombo(vcl::TComponent* owner);
  ~TQELDriveCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Drive() const { return FDrive; }
  /// The drive that is selected, such as "C:\"; any path on it will do. One that is not there is
  /// kept, with no line selected, for when it comes. Refuses, silently, what is no path of a drive.
  void SetDrive(const std::string& drive);
  TQELFolderListbox* FolderList() const { return FFolderList; }
  /// The list that shows the drive, which is not owned; null for none. It shows the root of the
  /// drive unless it is on it already. A drive that it can't read, the user can't choose.
  void SetFolderList(TQELFolderListbox* list);

 protected:
  void Change() override;
  void Loaded() override;
  void ChangeScale(int m, int d) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  bool Lead();

  std::unique_ptr<TQELAbout> FAbout;
  TQELDriveLines* FDrives;  // The list's look.
  std::string FDrive;
  TQELFolderListbox* FFolderList = nullptr;
};

}  // namespace qel
