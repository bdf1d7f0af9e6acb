// TQELFolderListbox: the way down to a folder, what lies in it, and going elsewhere.
#include "qel/shell/Qeltfolderlistbox.h"

#include <algorithm>

#include "qel/shell/Qeltfilecombo.h"
#include "qel/shell/private/folders.h"
#include "qel/shell/private/folderwatch.h"
#include "qel/shell/private/imagelines.h"
#include "qel/shell/private/listproperties.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

/// The folder and those above it, the root first.
std::vector<std::string> WayTo(const std::string& folder) {
  std::vector<std::string> way;
  for (std::string each = folder; !each.empty(); each = folders::ParentOf(each))
    way.push_back(each);
  std::ranges::reverse(way);
  return way;
}

/// Raises EInOutError for a folder that cannot be read.
std::vector<std::string> FoldersIn(const std::string& folder) {
  std::vector<std::string> found;
  folders::ScanEntries(folder, [&](const folders::TEntry& entry) {
    const bool hidden = (entry.Attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (entry.IsFolder() && !hidden) found.push_back(folder + entry.Name + "\\");
    return true;
  });
  folders::Sort(found);
  return found;
}

}  // namespace

const vcl::TClass& TQELFolderListbox::Class() {
  using T = TQELFolderListbox;
  using namespace vcl;
  static const TClass info =
      Describe<T, TCustomListBox>("qel::TQELFolderListbox", "qel/shell/Qeltfolderlistbox.h",
                                  {
                                      ReadOnly<&T::About>("About"),
                                      Property<&T::Folder, &T::SetFolder>("Folder").Default(""),
                                      Property<&T::FileList, &T::SetFileList>("FileList"),
                                      Inherit("ItemHeight").Default(18),
                                      Inherit(ListBoxProperties),
                                      Event<&T::OnFolderChange>("OnFolderChange"),
                                  });
  return info;
}

TQELFolderListbox::TQELFolderListbox(vcl::TComponent* owner)
    : TCustomListBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto lines = std::make_unique<TImageLines>(*this);
  FLines = lines.get();
  SetLook(std::move(lines));
  TCustomListBox::SetStyle(vcl::lbOwnerDrawFixed);
  SetItemHeight(18);
  if (!Designing()) FWatch = std::make_unique<TFolderWatch>([this] { Refresh(); });
  HearOnlyAsked<TQELFolderListbox>();
}

TQELFolderListbox::~TQELFolderListbox() { AnnounceEnd(); }

void TQELFolderListbox::SetFolder(const std::string& folder) {
  const std::string path = folders::Normalized(folder);
  if (Loading()) {
    FFolder = path;
  } else {
    Show(path, path);
  }
}

/// Nothing changes where the folder cannot be read.
void TQELFolderListbox::Show(const std::string& folder, const std::string& selected) {
  std::vector<std::string> paths = WayTo(folder);
  const std::size_t depth = paths.size();
  try {
    if (!folder.empty()) std::ranges::move(FoldersIn(folder), std::back_inserter(paths));
  } catch (const vcl::EInOutError&) {
    return;
  }
  std::vector<TImageLine> lines;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const folders::TAppearance shown = folders::Appearance(paths[i]);
    lines.push_back({i == 0 ? shown.Name : folders::NameOf(paths[i]), shown.Icon,
                     static_cast<int>(std::min(i, depth))});
  }
  const bool other = folders::UpperCased(folder) != folders::UpperCased(FFolder);
  FFolder = folder;
  FPaths = std::move(paths);
  FLines->SetLines(lines);
  const auto found = std::ranges::find(FPaths, selected);
  SetItemIndex(found == FPaths.end() ? -1 : static_cast<int>(found - FPaths.begin()));
  if (FWatch) FWatch->Watch(FFolder);
  if (!other) return;
  const vcl::TWatch watch(this);
  Lead();
  if (!watch.Gone()) OnFolderChange(this);
}

void TQELFolderListbox::Lead() {
  if (FFileList) FFileList->SetFolder(FFolder);
}

void TQELFolderListbox::SetFileList(TQELFileCombo* list) {
  FFileList = list;
  if (!list) return;
  list->FreeNotification(this);
  if (!Loading()) Lead();
}

std::string TQELFolderListbox::Selected() const {
  const int index = ItemIndex();
  return index < 0 ? std::string() : FPaths[static_cast<std::size_t>(index)];
}

void TQELFolderListbox::Open() {
  const std::string folder = Selected();
  if (!folder.empty()) Show(folder, folder);
}

bool TQELFolderListbox::GoUp() {
  const std::string from = FFolder, above = folders::ParentOf(from);
  if (above.empty()) return false;
  Show(above, from);
  return true;
}

void TQELFolderListbox::Refresh() {
  std::string folder = FFolder;
  while (!folder.empty() && !folders::Exists(folder)) folder = folders::ParentOf(folder);
  const std::string selected = Selected();
  if (!folder.empty()) Show(folder, folder == FFolder ? selected : folder);
}

void TQELFolderListbox::DblClick() {
  const vcl::TWatch watch(this);
  TCustomListBox::DblClick();
  if (!watch.Gone()) Open();
}

void TQELFolderListbox::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const vcl::TWatch watch(this);
  TCustomListBox::KeyDown(key, shift);
  if (watch.Gone() || shift.Has(vcl::ssAlt) || shift.Has(vcl::ssCtrl)) return;
  if (key == VK_RETURN) Open();
  if (key == VK_BACK) GoUp();
}

void TQELFolderListbox::Loaded() {
  TCustomListBox::Loaded();
  const std::string folder = FFolder;
  Show(folder, folder);
  Lead();
}

void TQELFolderListbox::ChangeScale(int m, int d) {
  const vcl::TWatch watch(this);
  TCustomListBox::ChangeScale(m, d);
  if (!watch.Gone() && !Loading()) Show(FFolder, Selected());
}

void TQELFolderListbox::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TCustomListBox::Notification(component, operation);
  if (operation == vcl::opRemove && component == FFileList) FFileList = nullptr;
}

}  // namespace qel
