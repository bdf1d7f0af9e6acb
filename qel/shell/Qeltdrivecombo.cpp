// TQELDriveCombo: which drives there are, and who shows the one that is chosen.
#include "qel/shell/Qeltdrivecombo.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <vector>

#include "qel/shell/Qeltfolderlistbox.h"
#include "qel/shell/private/drivewatch.h"
#include "qel/shell/private/folders.h"
#include "qel/shell/private/imagelines.h"
#include "qel/shell/private/listproperties.h"
#include "vcl/rtl/properties.h"

namespace qel {

/// The drives as lines.
class TQELDriveLines : public TImageLines {
 public:
  explicit TQELDriveLines(TQELDriveCombo& combo) : TImageLines(combo), FCombo(combo) {
    // While a form is being designed, the drives are those of its beginning.
    if (!combo.Designing()) FWatch.emplace([this] { Fill(); });
  }

  void Fill() {
    FRoots = folders::Drives();
    std::vector<TImageLine> lines;
    for (const std::string& root : FRoots) {
      const folders::TAppearance shown = folders::Appearance(root);
      lines.push_back({shown.Name, shown.Icon});
    }
    SetLines(lines);
    Select();
  }
  void Select() {
    const auto found = std::ranges::find(FRoots, FCombo.Drive());
    List().SetItemIndex(found == FRoots.end() ? -1 : static_cast<int>(found - FRoots.begin()));
  }
  std::string Selected() const {
    const int index = List().ItemIndex();
    return index < 0 ? std::string() : FRoots[static_cast<std::size_t>(index)];
  }

 private:
  TQELDriveCombo& FCombo;
  std::vector<std::string> FRoots;  // One a line.
  std::optional<TDriveWatch> FWatch;
};

const vcl::TClass& TQELDriveCombo::Class() {
  using T = TQELDriveCombo;
  using namespace vcl;
  static const TClass info =
      Describe<T, TCustomComboBox>("qel::TQELDriveCombo", "qel/shell/Qeltdrivecombo.h",
                                   {
                                       ReadOnly<&T::About>("About"),
                                       Property<&T::Drive, &T::SetDrive>("Drive").Default(""),
                                       Property<&T::FolderList, &T::SetFolderList>("FolderList"),
                                       Inherit("ItemHeight").Default(18),
                                       Inherit(ComboProperties),
                                       Inherit("OnChange"),
                                   });
  return info;
}

TQELDriveCombo::TQELDriveCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  auto drives = std::make_unique<TQELDriveLines>(*this);
  FDrives = drives.get();
  SetLook(std::move(drives));
  TCustomComboBox::SetStyle(vcl::csOwnerDrawFixed);
  SetItemHeight(18);
  FDrives->Fill();
  HearOnlyAsked<TQELDriveCombo>();
}

TQELDriveCombo::~TQELDriveCombo() { AnnounceEnd(); }

void TQELDriveCombo::SetDrive(const std::string& drive) {
  std::string root;
  if (!drive.empty()) {
    const bool letter = std::isalpha(static_cast<unsigned char>(drive[0])) != 0;
    const bool path = drive.size() == 1 || drive[1] == ':';
    if (!letter || !path) return;
    root = folders::UpperCased(drive.substr(0, 1)) + ":\\";
  }
  FDrive = root;
  FDrives->Select();
  if (!Loading()) Lead();
}

void TQELDriveCombo::SetFolderList(TQELFolderListbox* list) {
  FFolderList = list;
  if (list) list->FreeNotification(this);
  if (!Loading()) Lead();
}

/// False where the list can't show the drive. What the list tells may end it and the combo box.
bool TQELDriveCombo::Lead() {
  if (!FFolderList || FDrive.empty()) return true;
  TQELFolderListbox& list = *FFolderList;
  const auto shows = [&list, root = FDrive] {
    return folders::UpperCased(list.Folder()).starts_with(root);
  };
  if (shows()) return true;
  const vcl::TWatch watch(&list);
  list.SetFolder(FDrive);
  return watch.Gone() || shows();
}

/// A drive without a medium, say, leaves the former one selected.
void TQELDriveCombo::Change() {
  const std::string former = std::exchange(FDrive, FDrives->Selected());
  const vcl::TWatch watch(this);
  const bool led = Lead();
  if (watch.Gone()) return;
  if (led) return TCustomComboBox::Change();
  FDrive = former;
  FDrives->Select();
}

void TQELDriveCombo::Loaded() {
  TCustomComboBox::Loaded();
  FDrives->Select();
  Lead();
}

void TQELDriveCombo::ChangeScale(int m, int d) {
  const vcl::TWatch watch(this);
  TCustomComboBox::ChangeScale(m, d);
  if (!watch.Gone()) FDrives->Fill();
}

void TQELDriveCombo::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TCustomComboBox::Notification(component, operation);
  if (operation == vcl::opRemove && component == FFolderList) FFolderList = nullptr;
}

}  // namespace qel
