// TQELExplorerView: its table, its settings, the folder it is at, and the tree it goes with.
#include "qel/shell/Qeltexplorerview.h"

#include <objbase.h>

#include "qel/shell/private/explorerdrop.h"
#include "qel/shell/private/explorerrows.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

using vcl::TWatch;

const vcl::TClass& TQELExplorerView::Class() {
  using T = TQELExplorerView;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomListView>(
      "qel::TQELExplorerView", "qel/shell/Qeltexplorerview.h",
      {
          vcl::ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Inherit("BorderStyle"),
          Inherit("Color"),
          Inherit("ColumnClick"),
          Inherit("Columns"),
          Inherit("Ctl3D"),
          Property<&T::DragFiles, &T::SetDragFiles>("DragFiles").Default(true),
          Inherit("Enabled"),
          Property<&T::Folder, &T::SetFolder>("Folder"),
          Inherit("Font"),
          Inherit("FullDrag"),
          Inherit("GridLines"),
          Inherit("HideSelection"),
          Property<&T::Mask, &T::SetMask>("Mask"),
          Inherit("MultiSelect").Default(true),
          Property<&T::NewFolderName, &T::SetNewFolderName>("NewFolderName").Default("New folder"),
          Inherit("ParentColor").Default(false),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ReadOnly"),
          Inherit("RowSelect"),
          Inherit("ShowColumnHeaders"),
          Property<&T::ShowHidden, &T::SetShowHidden>("ShowHidden").Default(false),
          Inherit("ShowHint"),
          Property<&T::SortColumn, &T::SetSortColumn>("SortColumn").Default(evName),
          Property<&T::SortDescending, &T::SetSortDescending>("SortDescending").Default(false),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Property<&T::TakeFiles, &T::SetTakeFiles>("TakeFiles").Default(true),
          Property<&T::Tree, &T::SetTree>("Tree"),
          Inherit("ViewStyle").Default(vsReport),
          Inherit("Visible"),
          Property<&T::WatchChanges, &T::SetWatchChanges>("WatchChanges").Default(true),
          Event<&T::OnAddFile>("OnAddFile")
              .Type("TQELAddFileEvent", "vcl::TObject* sender, std::string path, bool& add"),
          Event<&T::OnFolderChange>("OnFolderChange"),
          Event<&T::OnOpenFile>("OnOpenFile")
              .Type("TQELOpenFileEvent",
                    "vcl::TObject* sender, const std::string& path, bool& handled"),
          Inherit("OnChange"),
          Inherit("OnChanging"),
          Inherit("OnClick"),
          Inherit("OnColumnClick"),
          Inherit("OnColumnDragged"),
          Inherit("OnColumnResized"),
          Inherit("OnCustomDraw"),
          Inherit("OnCustomDrawItem"),
          Inherit("OnCustomDrawSubItem"),
          Inherit("OnData"),
          Inherit("OnDblClick"),
          Inherit("OnDragDrop"),
          Inherit("OnDragOver"),
          Inherit("OnEdited"),
          Inherit("OnEditing"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Inherit("OnSelectItem"),
      });
  return info;
}

TQELExplorerView::TQELExplorerView(vcl::TComponent* owner)
    : TCustomListView(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FRows(std::make_unique<TRows>([this] { ReadNew(); })),
      FDrop(std::make_unique<TDrop>(*this)) {
  // The shell's functions want it.
  FComStarted = SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  SetBounds(0, 0, 400, 250);
  SetOwnerData(true);
  SetMultiSelect(true);
  SetViewStyle(vcl::vsReport);
  const struct {
    const char* Caption;
    int Width;
    vcl::TAlignment Alignment;
  } columns[] = {{"Name", 180, vcl::taLeftJustify},
                 {"Size", 80, vcl::taRightJustify},
                 {"Type", 110, vcl::taLeftJustify},
                 {"Modified", 130, vcl::taLeftJustify}};
  for (const auto& each : columns) {
    vcl::TListColumn* column = Columns()->Add();
    column->SetCaption(each.Caption);
    column->SetWidth(each.Width);
    column->SetAlignment(each.Alignment);
  }
  MarkColumn();
  FTreeLink.OnChange = [this](vcl::TObject*) { FollowTree(); };
  HearOnlyAsked<TQELExplorerView>();
}

TQELExplorerView::~TQELExplorerView() {
  AnnounceEnd();
  FRows->Watch.Watch({});
  FDrop.reset();
  if (FComStarted) ::CoUninitialize();
}

// ---- Where it is ----

void TQELExplorerView::SetFolder(const std::string& folder) {
  if (Loading() || Designing()) {
    FFolder = folders::Normalized(folder);
    return;
  }
  try {
    GoTo(folder);
  } catch (const vcl::EInOutError&) {
    // A setter keeps what was; GoTo says why.
    return;
  }
}

void TQELExplorerView::GoTo(const std::string& folder) {
  const std::string path = folders::Normalized(folder);
  const TWatch watch(this);
  const bool other = folders::UpperCased(path) != folders::UpperCased(FFolder);
  Read(path);
  if (watch.Gone() || !other) return;
  ClearSelection();
  if (!watch.Gone() && !FRows->Rows.empty()) SetItemFocused(Items()->Items(0));
  if (!watch.Gone()) LeadTree();
  if (!watch.Gone()) OnFolderChange(this);
}

bool TQELExplorerView::GoUp() {
  const std::string from = folders::NameOf(FFolder);
  const std::string above = folders::ParentOf(FFolder);
  if (above.empty()) return false;
  const TWatch watch(this);
  GoTo(above);
  if (!watch.Gone()) SelectName(from);
  return true;
}

void TQELExplorerView::ReadNew() {
  if (FFolder.empty() || Designing()) return;
  std::string folder = FFolder;
  while (!folders::Exists(folder) && !folders::ParentOf(folder).empty()) {
    folder = folders::ParentOf(folder);
  }
  GoTo(folder);
}

void TQELExplorerView::CreateWnd() {
  TCustomListView::CreateWnd();
  FDrop->Attach();
}

void TQELExplorerView::Loaded() {
  TCustomListView::Loaded();
  if (Designing()) return;
  const std::string folder = FTree ? FTree->Directory() : std::exchange(FFolder, {});
  SetFolder(folder);
}

// ---- The tree ----

void TQELExplorerView::SetTree(TQELExplorerTree* tree) {
  if (tree == FTree) return;
  if (FTree) FTree->UnRegisterChanges(&FTreeLink);
  FTree = tree;
  if (!tree) return;
  tree->RegisterChanges(&FTreeLink);
  tree->FreeNotification(this);
  FollowTree();
}

void TQELExplorerView::FollowTree() {
  if (!Loading() && !Designing()) SetFolder(FTree->Directory());
}

/// A folder that the tree does not show is shown here all the same.
void TQELExplorerView::LeadTree() {
  if (!FTree || FFolder.empty()) return;
  if (folders::UpperCased(FTree->Directory()) == folders::UpperCased(FFolder)) return;
  try {
    FTree->SetDirectory(FFolder);
  } catch (const vcl::EInOutError&) {
    return;
  }
}

void TQELExplorerView::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  if (operation == vcl::opRemove && component == FTree) FTree = nullptr;
  TCustomListView::Notification(component, operation);
}

// ---- Settings ----

void TQELExplorerView::ReadIfLive() {
  if (!Loading()) ReadNew();
}

void TQELExplorerView::SetMask(const std::string& mask) {
  if (mask == FMask) return;
  FMask = mask;
  ReadIfLive();
}

void TQELExplorerView::SetShowHidden(bool showHidden) {
  if (showHidden == FShowHidden) return;
  FShowHidden = showHidden;
  ReadIfLive();
}

void TQELExplorerView::SetWatchChanges(bool watch) {
  if (watch == FWatchChanges) return;
  FWatchChanges = watch;
  FRows->Watch.Watch(watch && !Loading() && !Designing() ? FFolder : std::string());
}

void TQELExplorerView::SetSortColumn(TQELExplorerViewSortColumn column) {
  if (column == FSortColumn || column < evName || column > evDate) return;
  FSortColumn = column;
  Sort();
}

void TQELExplorerView::SetSortDescending(bool descending) {
  if (descending == FSortDescending) return;
  FSortDescending = descending;
  Sort();
}

bool TQELExplorerView::TakeFiles() const { return FDrop->Take; }

void TQELExplorerView::SetTakeFiles(bool take) {
  FDrop->Take = take;
  FDrop->Attach();
}

}  // namespace qel
