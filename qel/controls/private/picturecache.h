// Pictures that were computed before, kept until what they show changes.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include "qel/controls/private/surface.h"

namespace qel {

/// Keeps the pictures that a background has painted, one for each size that it is asked for in turn
/// (its clients' sizes), up to a limit of memory. A picture is known by all that its pixels depend
/// on.
class TPictureCache {
 public:
  /// Everything that decides how a picture looks, its size included.
  using TKey = std::vector<int>;

  /// The picture of the key, painted by `paint(TSurface&)` unless it is there. Valid until the next
  /// call. Raises EOutOfResources for a size that the system refuses.
  template <class Paint>
  const TSurface& Get(const TKey& key, int width, int height, Paint paint) {
    if (const TSurface* known = Find(key)) return *known;
    TEntry& entry = Place(width, height);
    paint(*entry.Surface);
    entry.Key = key;
    return *entry.Surface;
  }
  /// The settings have changed: the pictures' memory may be used for new ones.
  void Outdate();

 private:
  struct TEntry {
    TKey Key;
    std::unique_ptr<TSurface> Surface;
    bool Outdated = false;
  };
  const TSurface* Find(const TKey& key);
  TEntry& Place(int width, int height);
  TEntry& ToFront(std::list<TEntry>::iterator entry);
  void MakeRoom(std::size_t bytes);

  std::list<TEntry> FEntries;  // Latest used first.
};

}  // namespace qel
