// Pictures that were computed before, kept until what they show changes.
#pragma once

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <vector>

#include "qel/controls/private/surface.h"

namespace qel {

/// Keeps the pictures that a background has painted, one for each size that it is asked for in turn
/// (its clients' sizes), up to a limit of memory. For the system's objects that each one takes, of
/// which a process has but some thousands, a small picture counts as much as one of 256 KiB: so
/// there are never more than 256. A picture is known by all that its pixels depend on.
class TPictureCache {
 public:
  /// Everything that decides how a picture looks, its size included.
  using TKey = std::vector<int>;

  /// The picture of the key, painted by `paint(TSurface&)` unless it is there. Valid until the next
  /// call. Raises EOutOfResources for a size that the system refuses.
  template <class Paint>
  const TSurface& Get(const TKey& key, int width, int height, Paint paint) {
    if (const TSurface* known = Find(key)) return *known;
    const TPlace place = Place(width, height);
    paint(*place->Surface);
    place->Known = FKnown.emplace(key, place).first;
    return *place->Surface;
  }
  /// Whether a picture of the size is within the limit.
  static bool Fits(std::int64_t width, std::int64_t height);
  /// The settings have changed: the pictures' memory may be used for new ones.
  void Outdate();

 private:
  struct TEntry;
  using TPlace = std::list<TEntry>::iterator;
  using TIndex = std::map<TKey, TPlace>;
  struct TEntry {
    std::unique_ptr<TSurface> Surface;
    TIndex::iterator Known;
    bool Outdated = false;
  };
  const TSurface* Find(const TKey& key);
  TPlace Place(int width, int height);
  void ToFront(TPlace entry);
  void Forget(TPlace entry);
  void Remove(TPlace entry);
  void RemoveOutdated();

  std::list<TEntry> FEntries;  // Latest used first.
  TIndex FKnown;               // Those that are painted.
  std::size_t FUsed = 0;       // Bytes, as they count.
};

}  // namespace qel
