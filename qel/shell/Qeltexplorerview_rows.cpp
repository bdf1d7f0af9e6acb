// TQELExplorerView: reading the folder, the order of the rows, and what they show.

#include <algorithm>
#include <set>
#include <tuple>

#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/private/explorerrows.h"
#include "qel/shell/private/hourglass.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace qel {

using vcl::TWatch;

// ---- The rows ----

const TQELExplorerView::TRow& TQELExplorerView::TRows::At(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= Rows.size()) {
    throw vcl::EListError(vcl::Concat("There is no row ", std::to_string(row)));
  }
  return Rows[static_cast<std::size_t>(row)];
}

const std::string& TQELExplorerView::TRows::TypeOf(const folders::TEntry& entry) {
  const std::string extension =
      entry.IsFolder() ? "\\" : vcl::UpperCase(vcl::ExtractFileExt(entry.Name));
  const auto [found, added] = Types.try_emplace(extension);
  if (added) {
    found->second = entry.IsFolder() ? folders::TypeOfFolders() : folders::TypeOfFiles(extension);
  }
  return found->second;
}

int TQELExplorerView::TRows::PictureOf(const std::string& folder, TRow& row) {
  if (row.Picture >= 0) return row.Picture;
  const std::string path = folder + row.Entry.Name;
  const std::string extension = vcl::UpperCase(vcl::ExtractFileExt(row.Entry.Name));
  if (row.Entry.IsFolder()) {
    row.Picture = folders::Appearance(path + "\\").Icon;
  } else if (folders::HasOwnPicture(extension)) {
    row.Picture = folders::PictureOf(path);
  } else {
    const auto [found, added] = Pictures.try_emplace(extension);
    if (added) found->second = folders::PictureOfFiles(extension);
    row.Picture = found->second;
  }
  return row.Picture;
}

void TQELExplorerView::TRows::Sort(TQELExplorerViewSortColumn column, bool descending) {
  // Of equal ones the names decide, which no two share.
  const auto before = [&](const TRow& a, const TRow& b) {
    switch (column) {
      case evSize: return std::tie(a.Entry.Size, a.Key) < std::tie(b.Entry.Size, b.Key);
      case evDate: return std::tie(a.Entry.Written, a.Key) < std::tie(b.Entry.Written, b.Key);
      case evType: {
        const int order = vcl::AnsiCompareText(TypeOf(a.Entry), TypeOf(b.Entry));
        return order != 0 ? order < 0 : a.Key < b.Key;
      }
      case evName: break;
    }
    return std::tie(a.Key, a.Entry.Name) < std::tie(b.Key, b.Entry.Name);
  };
  std::ranges::sort(Rows, [&](const TRow& a, const TRow& b) {
    if (a.Entry.IsFolder() != b.Entry.IsFolder()) return a.Entry.IsFolder();
    return descending ? before(b, a) : before(a, b);
  });
}

// ---- Reading ----

/// Keeps by name what is selected and focused while the rows become others.
class TQELExplorerView::TKept {
 public:
  explicit TKept(TQELExplorerView& view) : FView(view), FWatch(&view) {
    for (int row = -1; (row = Next(row, isSelected)) >= 0;) FSelected.insert(view.NameOf(row));
    const vcl::TListItem* focused = view.ItemFocused();
    if (focused) FFocused = view.NameOf(focused->Index());
  }
  void Restore() {
    for (int row = 0; !FSelected.empty() && row < FView.Items()->Count(); ++row) {
      if (FSelected.erase(FView.NameOf(row)) > 0) FView.Items()->Items(row)->SetSelected(true);
      if (FWatch.Gone()) return;
    }
    const int focused = FFocused.empty() ? -1 : FView.RowOf(FFocused);
    if (focused >= 0) FView.SetItemFocused(FView.Items()->Items(focused));
  }

 private:
  static constexpr vcl::TItemStateValue isSelected = vcl::isSelected;
  int Next(int row, vcl::TItemStateValue state) const {
    vcl::TListItem* from = row < 0 ? nullptr : FView.Items()->Items(row);
    const vcl::TListItem* next = FView.GetNextItem(from, vcl::sdAll, {state});
    return next ? next->Index() : -1;
  }

  TQELExplorerView& FView;
  TWatch FWatch;
  std::set<std::string> FSelected;
  std::string FFocused;
};

/// Shows the folder's entries. The former ones stay when it cannot be read.
void TQELExplorerView::Read(const std::string& folder) {
  const THourGlass wait;
  const TWatch watch(this);
  const vcl::TFileMasks masks(FMask);
  std::vector<TRow> rows;
  const auto add = [&](const folders::TEntry& entry) {
    const bool hidden = (entry.Attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (hidden && !FShowHidden) return true;
    if (!entry.IsFolder() && !masks.Matches(entry.Name)) return true;
    bool shown = true;
    OnAddFile(this, folder + entry.Name + (entry.IsFolder() ? "\\" : ""), shown);
    if (watch.Gone()) return false;
    if (shown) rows.push_back({entry, folders::SortKey(entry.Name)});
    return true;
  };
  if (!folder.empty()) folders::ScanEntries(folder, add);
  if (watch.Gone()) return;
  TKept kept(*this);
  FRows->Rows = std::move(rows);
  FRows->Sort(FSortColumn, FSortDescending);
  if (folder != FFolder) {
    FFolder = folder;
    if (FWatchChanges) FRows->Watch.Watch(folder);
  }
  Show();
  if (!watch.Gone()) kept.Restore();
}

/// Shows the rows as they are now, none of them selected.
void TQELExplorerView::Show() {
  const TWatch watch(this);
  ClearSelection();
  if (watch.Gone()) return;
  Items()->SetCount(static_cast<int>(FRows->Rows.size()));
  Invalidate();
}

void TQELExplorerView::Sort() {
  MarkColumn();
  const TWatch watch(this);
  TKept kept(*this);
  FRows->Sort(FSortColumn, FSortDescending);
  Show();
  if (!watch.Gone()) kept.Restore();
}

void TQELExplorerView::MarkColumn() {
  for (int i = 0; i < Columns()->Count(); ++i) {
    const vcl::TSortMark mark = FSortDescending ? vcl::smDown : vcl::smUp;
    Columns()->Items(i)->SetSortMark(i == FSortColumn ? mark : vcl::smNone);
  }
}

void TQELExplorerView::HeaderClick(vcl::TListColumn* column) {
  const TWatch watch(this);
  const int place = column->Index();
  TCustomListView::HeaderClick(column);
  if (watch.Gone() || place > evDate) return;
  if (place == FSortColumn) return SetSortDescending(!FSortDescending);
  FSortDescending = false;
  SetSortColumn(static_cast<TQELExplorerViewSortColumn>(place));
}

// ---- What is shown ----

void TQELExplorerView::Data(vcl::TListItem* item) {
  const int index = item->Index();
  if (index >= 0 && static_cast<std::size_t>(index) < FRows->Rows.size()) {
    const folders::TEntry& entry = FRows->At(index).Entry;
    item->SetCaption(entry.Name);
    vcl::TStrings* texts = item->SubItems();
    texts->Add(entry.IsFolder() ? std::string() : folders::SizeText(entry.Size));
    texts->Add(FRows->TypeOf(entry));
    texts->Add(entry.Written == 0 ? std::string()
                                  : vcl::DateTimeToStr(folders::LocalTime(entry.Written)));
  }
  TCustomListView::Data(item);
}

void TQELExplorerView::GetImageIndex(vcl::TListItem* item) {
  const int index = item->Index();
  if (index >= 0 && static_cast<std::size_t>(index) < FRows->Rows.size()) {
    item->SetImageIndex(FRows->PictureOf(FFolder, FRows->At(index)));
  }
  TCustomListView::GetImageIndex(item);
}

HIMAGELIST TQELExplorerView::LargePictures() const { return folders::LargeSystemImages(); }
HIMAGELIST TQELExplorerView::SmallPictures() const { return folders::SystemImages(CurrentPPI()); }

int TQELExplorerView::DataFind(vcl::TItemFind find, const std::string& text, vcl::TPoint, void*,
                               int start, vcl::TSearchDirection, bool wrap) {
  if (find != vcl::ifPartialString && find != vcl::ifExactString) return -1;
  const int count = static_cast<int>(FRows->Rows.size());
  for (int i = 0; i < count; ++i) {
    const int row = start + i;
    if (row >= count && !wrap) return -1;
    const std::string& name = FRows->At(row % count).Entry.Name;
    const bool partial = find == vcl::ifPartialString;
    if (vcl::AnsiSameText(partial ? vcl::CutUtf8(name, text.size()) : name, text)) {
      return row % count;
    }
  }
  return -1;
}

const std::string& TQELExplorerView::NameOf(int row) const { return FRows->At(row).Entry.Name; }
bool TQELExplorerView::IsFolder(int row) const { return FRows->At(row).Entry.IsFolder(); }

int TQELExplorerView::RowOf(const std::string& name) const {
  const std::string key = folders::SortKey(name);
  const auto found = std::ranges::find(FRows->Rows, key, &TRow::Key);
  return found == FRows->Rows.end() ? -1 : static_cast<int>(found - FRows->Rows.begin());
}

}  // namespace qel
