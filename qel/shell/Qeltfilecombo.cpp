// TQELFileCombo: reading the files of a folder.
#include "qel/shell/Qeltfilecombo.h"

#include <algorithm>
#include <map>
#include <vector>

#include "qel/shell/private/folders.h"
#include "qel/shell/private/folderwatch.h"
#include "qel/shell/private/imagelines.h"
#include "qel/shell/private/listproperties.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

/// The names of the files, by the alphabet.
std::vector<std::string> FilesIn(const std::string& folder, const vcl::TFileMasks& masks) try {
  std::vector<std::pair<std::string, std::string>> keyed;
  folders::ScanEntries(folder, [&](const folders::TEntry& entry) {
    const bool hidden = (entry.Attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (!entry.IsFolder() && !hidden && masks.Matches(entry.Name))
      keyed.emplace_back(folders::SortKey(entry.Name), entry.Name);
    return true;
  });
  std::ranges::sort(keyed);
  std::vector<std::string> names;
  for (auto& [key, name] : keyed) names.push_back(std::move(name));
  return names;
} catch (const vcl::EInOutError&) {
  return {};
}

/// The files with their pictures. Where they are many, those of programs and the like are not
/// looked for in each.
std::vector<TImageLine> LinesOf(const std::string& folder, const std::vector<std::string>& names) {
  constexpr std::size_t few = 200;
  std::map<std::string, int> pictures;  // By extension.
  std::vector<TImageLine> lines;
  for (const std::string& name : names) {
    const std::string extension = vcl::ExtractFileExt(name);
    int picture = 0;
    if (names.size() <= few && folders::HasOwnPicture(extension)) {
      picture = folders::PictureOf(folder + name);
    } else {
      const auto [place, added] = pictures.try_emplace(extension);
      if (added) place->second = folders::PictureOfFiles(extension);
      picture = place->second;
    }
    lines.push_back({name, picture});
  }
  return lines;
}

}  // namespace

const vcl::TClass& TQELFileCombo::Class() {
  using T = TQELFileCombo;
  using namespace vcl;
  static const TClass info =
      Describe<T, TCustomComboBox>("qel::TQELFileCombo", "qel/shell/Qeltfilecombo.h",
                                   {
                                       ReadOnly<&T::About>("About"),
                                       Property<&T::Folder, &T::SetFolder>("Folder").Default(""),
                                       Property<&T::Mask, &T::SetMask>("Mask").Default(""),
                                       Inherit("ItemHeight").Default(18),
                                       Inherit(ComboProperties),
                                       Inherit("OnChange"),
                                   });
  return info;
}

TQELFileCombo::TQELFileCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto lines = std::make_unique<TImageLines>(*this);
  FLines = lines.get();
  SetLook(std::move(lines));
  TCustomComboBox::SetStyle(vcl::csOwnerDrawFixed);
  SetItemHeight(18);
  if (!Designing()) FWatch = std::make_unique<TFolderWatch>([this] { Refresh(); });
  HearOnlyAsked<TQELFileCombo>();
}

TQELFileCombo::~TQELFileCombo() { AnnounceEnd(); }

void TQELFileCombo::SetFolder(const std::string& folder) {
  FFolder = folders::Normalized(folder);
  Refresh();
}

void TQELFileCombo::SetMask(const std::string& mask) {
  FMask = mask;
  Refresh();
}

std::string TQELFileCombo::Filename() const {
  const int index = ItemIndex();
  return index < 0 ? std::string() : FFolder + Items()->Strings(index);
}

void TQELFileCombo::SetFilename(const std::string& fileName) {
  const std::string folder = vcl::ExtractFilePath(fileName);
  if (!folder.empty()) SetFolder(folder);
  SetItemIndex(Items()->IndexOf(fileName.substr(folder.size())));
}

void TQELFileCombo::Refresh() {
  if (Loading()) return;
  const int index = ItemIndex();
  const std::string selected = index < 0 ? std::string() : Items()->Strings(index);
  FLines->SetLines(FFolder.empty() ? std::vector<TImageLine>()
                                   : LinesOf(FFolder, FilesIn(FFolder, vcl::TFileMasks(FMask))));
  SetItemIndex(selected.empty() ? -1 : Items()->IndexOf(selected));
  if (FWatch) FWatch->Watch(FFolder);
}

void TQELFileCombo::Loaded() {
  TCustomComboBox::Loaded();
  Refresh();
}

void TQELFileCombo::ChangeScale(int m, int d) {
  const vcl::TWatch watch(this);
  TCustomComboBox::ChangeScale(m, d);
  if (!watch.Gone()) Refresh();
}

}  // namespace qel
