// TPictureCache: finding a kept picture, and making room for another one.
#include "qel/controls/private/picturecache.h"

#include <algorithm>
#include <utility>

namespace qel {

namespace {

constexpr std::size_t MaxBytes = 64u << 20;  // A screen of 3840 by 2160 pixels takes half of it.
constexpr std::size_t MinPictureBytes = 256u << 10;

std::size_t Cost(std::size_t bytes) { return std::max(bytes, MinPictureBytes); }

}  // namespace

bool TPictureCache::Fits(std::int64_t width, std::int64_t height) {
  constexpr std::int64_t maxPixels = MaxBytes / sizeof(TPixel);
  return width <= maxPixels && height <= maxPixels && width * height <= maxPixels;
}

void TPictureCache::Outdate() {
  for (TEntry& entry : FEntries) entry.Outdated = true;
}

const TSurface* TPictureCache::Find(const TKey& key) {
  const auto found = FKnown.find(key);
  if (found == FKnown.end()) return nullptr;
  ToFront(found->second);
  return found->second->Surface.get();
}

void TPictureCache::ToFront(TPlace entry) {
  FEntries.splice(FEntries.begin(), FEntries, entry);
  entry->Outdated = false;
}

// A picture that nobody asks for by a key: it is being painted.
void TPictureCache::Forget(TPlace entry) {
  if (entry->Known != FKnown.end()) FKnown.erase(std::exchange(entry->Known, FKnown.end()));
}

void TPictureCache::Remove(TPlace entry) {
  Forget(entry);
  FUsed -= Cost(entry->Surface->Bytes());
  FEntries.erase(entry);
}

void TPictureCache::RemoveOutdated() {
  for (TPlace entry = FEntries.begin(); entry != FEntries.end();) {
    const TPlace each = entry++;
    if (each->Outdated) Remove(each);
  }
}

TPictureCache::TPlace TPictureCache::Place(int width, int height) {
  // Fresh memory costs more than the painting, so an outdated picture of the size is painted over.
  const auto reusable = std::find_if(FEntries.begin(), FEntries.end(), [&](const TEntry& entry) {
    return entry.Outdated && entry.Surface->Width() == width && entry.Surface->Height() == height;
  });
  if (reusable != FEntries.end()) {
    Forget(reusable);
    ToFront(reusable);
    return reusable;
  }
  RemoveOutdated();
  const std::size_t cost = Cost(std::size_t(width) * height * sizeof(TPixel));
  while (!FEntries.empty() && FUsed + cost > MaxBytes) Remove(std::prev(FEntries.end()));
  FEntries.push_front({std::make_unique<TSurface>(width, height), FKnown.end()});
  FUsed += cost;
  return FEntries.begin();
}

}  // namespace qel
