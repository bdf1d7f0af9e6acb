// What list views and header controls do alike with the parts of a header.
#pragma once

#include <algorithm>
#include <functional>

#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/headeritem.h"

namespace vcl {

/// Changes widths as the window has them, of which the control then needs no news.
class THeaderFit {
 public:
  static void SetWidth(THeaderItem& item, int width) { item.FWidth = width; }

  /// Gives the items with AutoSize what the others leave of the room, and tells of each.
  static void Share(const TCollection& items, int room,
                    const std::function<void(const THeaderItem&)>& tell) {
    const auto at = [&items](int i) { return static_cast<THeaderItem*>(items.Items(i)); };
    int parts = 0;
    for (int i = 0; i < items.Count(); ++i) {
      at(i)->AutoSize() ? ++parts : room -= at(i)->Width();
    }
    for (int i = 0; i < items.Count(); ++i) {
      if (!at(i)->AutoSize()) continue;
      SetWidth(*at(i), at(i)->Limited(std::max(room / parts--, 0)));
      room -= at(i)->Width();
      tell(*at(i));
    }
  }
};

/// The bits of a header item's format that show the mark.
inline int SortMarkFormat(TSortMark mark) {
  static constexpr int marks[] = {0, HDF_SORTUP, HDF_SORTDOWN};
  return marks[mark];
}

}  // namespace vcl
