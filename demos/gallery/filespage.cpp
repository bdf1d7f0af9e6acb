// The page of files: lists that follow each other, names that fit, icons, what is dropped.
#include "demos/gallery/filespage.h"

#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

const TClass& TFilesPage::Class() {
  using T = TFilesPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TFilesPage", "demos/gallery/filespage.h",
                          {
                              Field<&T::Dropped>("Dropped"),
                              Field<&T::Drives>("Drives"),
                              Field<&T::Folders>("Folders"),
                              Field<&T::FileBox>("FileBox"),
                              Field<&T::FileLabel>("FileLabel"),
                              Field<&T::FolderLabel>("FolderLabel"),
                              Field<&T::IconBox>("IconBox"),
                              Field<&T::IconList>("IconList"),
                              Field<&T::Told>("Told"),
                              Method<&T::FoldersFolderChange>("FoldersFolderChange"),
                              Method<&T::FileBoxChange>("FileBoxChange"),
                              Method<&T::IconBoxChange>("IconBoxChange"),
                              Method<&T::IconListClick>("IconListClick"),
                              Method<&T::DroppedDrop>("DroppedDrop"),
                          });
  return info;
}

TFilesPage::TFilesPage(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  const std::string system = qel::QELInformation(qel::iiSystemFolder);
  Drives->SetDrive(system.substr(0, 2));
  Folders->SetFolder(system);
  const std::string icons = system + "\\shell32.dll";
  IconBox->SetFilename(icons);
  IconList->SetFilename(icons);
  FileBox->SetFilename(icons);
  ShowFile(icons);
}

TFilesPage::~TFilesPage() { AnnounceEnd(); }

void TFilesPage::FoldersFolderChange(TObject*) { ShowFile(Folders->Folder()); }

void TFilesPage::FileBoxChange(TObject*) { ShowFile(FileBox->Filename()); }

void TFilesPage::ShowFile(const std::string& fileName) {
  FileLabel->SetFilename(fileName);
  FolderLabel->SetFilename(fileName);
}

void TFilesPage::IconBoxChange(TObject*) { IconList->SetItemIndex(IconBox->ItemIndex()); }

void TFilesPage::IconListClick(TObject*) { IconBox->SetItemIndex(IconList->ItemIndex()); }

void TFilesPage::DroppedDrop(TObject*, const std::vector<std::string>& files, int, int) {
  for (const std::string& each : files) Told->Lines()->Add(each);
  if (!files.empty()) ShowFile(files.front());
}

}  // namespace gallery
