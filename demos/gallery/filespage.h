// TFilesPage: the page of the components that show files, folders and icons.
#pragma once

#include <string>
#include <vector>

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of filespage.dfm.
class TFilesPage : public vcl::TFrame {
 public:
  explicit TFilesPage(vcl::TComponent* owner);
  ~TFilesPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELDroppedFiles* Dropped = nullptr;
  qel::TQELDriveCombo* Drives = nullptr;
  qel::TQELFolderListbox* Folders = nullptr;
  qel::TQELFileCombo* FileBox = nullptr;
  qel::TQELFileLabel* FileLabel = nullptr;
  qel::TQELFileLabel3D* FolderLabel = nullptr;
  qel::TQELIconCombo* IconBox = nullptr;
  qel::TQELIconListbox* IconList = nullptr;
  vcl::TMemo* Told = nullptr;

  void FoldersFolderChange(vcl::TObject*);
  void FileBoxChange(vcl::TObject*);
  void IconBoxChange(vcl::TObject*);
  void IconListClick(vcl::TObject*);
  void DroppedDrop(vcl::TObject*, const std::vector<std::string>& files, int x, int y);
  void ShowFile(const std::string& fileName);
};

}  // namespace gallery
