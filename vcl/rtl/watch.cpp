// TWatched and TWatch: the list of watches, and its end.
#include "vcl/rtl/watch.h"

namespace vcl {

TWatched::~TWatched() {
  for (TWatch* watch = FWatches; watch; watch = watch->FNext) {
    watch->FObject = nullptr;
    watch->FGone = true;
  }
}

TWatch& TWatch::operator=(const TWatch& other) noexcept {
  if (&other == this) return *this;
  End();
  FGone = other.FGone;
  Begin(other.FObject);
  return *this;
}

void TWatch::Begin(const TWatched* object) noexcept {
  FObject = object;
  if (!object) return;
  FNext = object->FWatches;
  object->FWatches = this;
}

void TWatch::End() noexcept {
  if (!FObject) return;
  // Most end in the opposite order of their making: then it is the first one.
  TWatch** link = &FObject->FWatches;
  while (*link != this) link = &(*link)->FNext;
  *link = FNext;
}

}  // namespace vcl
