// TPictureCache: finding a kept picture, and making room for another one.
#include "qel/controls/private/picturecache.h"

#include <algorithm>
#include <numeric>

namespace qel {

namespace {

constexpr std::size_t MaxBytes = 64u << 20;  // A screen of 3840 by 2160 pixels takes half of it.
constexpr std::size_t MaxPictures = 16;

}  // namespace

void TPictureCache::Outdate() {
  for (TEntry& entry : FEntries) entry.Outdated = true;
}

const TSurface* TPictureCache::Find(const TKey& key) {
  const auto found = std::find_if(FEntries.begin(), FEntries.end(),
                                  [&](const TEntry& entry) { return entry.Key == key; });
  return found == FEntries.end() ? nullptr : ToFront(found).Surface.get();
}

TPictureCache::TEntry& TPictureCache::ToFront(std::list<TEntry>::iterator entry) {
  FEntries.splice(FEntries.begin(), FEntries, entry);
  entry->Outdated = false;
  return *entry;
}

TPictureCache::TEntry& TPictureCache::Place(int width, int height) {
  // Fresh memory costs more than the painting, so an outdated picture of the size is painted over.
  const auto reusable = std::find_if(FEntries.begin(), FEntries.end(), [&](const TEntry& entry) {
    return entry.Outdated && entry.Surface->Width() == width && entry.Surface->Height() == height;
  });
  if (reusable != FEntries.end()) {
    reusable->Key.clear();  // Should painting fail, the picture is nobody's.
    return ToFront(reusable);
  }
  FEntries.remove_if([](const TEntry& entry) { return entry.Outdated; });
  MakeRoom(std::size_t(width) * height * sizeof(TPixel));
  FEntries.push_front({{}, std::make_unique<TSurface>(width, height)});
  return FEntries.front();
}

void TPictureCache::MakeRoom(std::size_t bytes) {
  const auto used = [this] {
    return std::accumulate(
        FEntries.begin(), FEntries.end(), std::size_t{0},
        [](std::size_t sum, const TEntry& e) { return sum + e.Surface->Bytes(); });
  };
  while (!FEntries.empty() && (FEntries.size() >= MaxPictures || used() + bytes > MaxBytes)) {
    FEntries.pop_back();
  }
}

}  // namespace qel
