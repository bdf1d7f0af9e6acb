// What an explorer view shows: the entries of a folder in their order.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/private/folders.h"
#include "qel/shell/private/folderwatch.h"

namespace qel {

/// A file or a folder of the view's.
struct TQELExplorerView::TRow {
  folders::TEntry Entry;
  std::string Key;   ///< Of its name, to be in order.
  int Picture = -1;  ///< In the system's lists; -1 until it is asked for.
};

/// The rows, what is known of their kinds, and what tells of changes.
struct TQELExplorerView::TRows {
  explicit TRows(std::function<void()> changed) : Watch(std::move(changed)) {}
  /// What the shell calls the row's kind; it is asked once for each kind.
  const std::string& TypeOf(const folders::TEntry& entry);
  int PictureOf(const std::string& folder, TRow& row);
  const TRow& At(int row) const;
  TRow& At(int row) { return const_cast<TRow&>(std::as_const(*this).At(row)); }
  void Sort(TQELExplorerViewSortColumn column, bool descending);

  std::vector<TRow> Rows;
  std::unordered_map<std::string, std::string> Types;
  std::unordered_map<std::string, int> Pictures;
  TFolderWatch Watch;
};

}  // namespace qel
