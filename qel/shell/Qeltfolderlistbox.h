// TQELFolderListbox: the folders in a folder.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

class TQELFileCombo;
class TFolderWatch;
class TImageLines;

/// A list box of the folders in a folder, below those that it lies in itself, from its drive on. A
/// double click or Enter goes into a folder, or up to one above it; Backspace goes up by one.
/// Hidden folders are not shown. What changes on the disk is seen.
class QEL_API TQELFolderListbox : public vcl::TCustomListBox {
 public:
  explicit TQELFolderListbox(vcl::TComponent* owner);
  ~TQELFolderListbox() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the list box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  const std::string& Folder() const { return FFolder; }
  /// The folder that is shown, with a backslash at its end; empty for none. Refuses, silently, what
  /// cannot be read; one from a form file stays.
  void SetFolder(const std::string& folder);
  TQELFileCombo* FileList() const { return FFileList; }
  /// The list that shows the folder's files, which is not owned; null for none.
  void SetFileList(TQELFileCombo* list);
  /// The folder whose line is selected; empty for none.
  std::string Selected() const;

  /// Goes into the folder whose line is selected.
  void Open();
  /// Goes to the folder above; false in a root.
  bool GoUp();
  /// Reads the folder anew. Where it is gone, the next one above that is there is shown.
  void Refresh();

  /// Another folder is shown.
  vcl::TNotifyEvent OnFolderChange;

 protected:
  void DblClick() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void Loaded() override;
  void ChangeScale(int m, int d) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  void Show(const std::string& folder, const std::string& selected);
  void Lead();

  std::unique_ptr<TQELAbout> FAbout;
  TImageLines* FLines;  // The list's look.
  std::string FFolder;
  std::vector<std::string> FPaths;  // One a line.
  TQELFileCombo* FFileList = nullptr;
  std::unique_ptr<TFolderWatch> FWatch;
};

}  // namespace qel
