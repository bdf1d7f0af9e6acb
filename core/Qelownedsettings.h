// What the settings objects that controls own have in common.
#pragma once

#include "host/rtl/object.h"

namespace qel {

/// Has the owner of a settings object painted again, if it is a control.
void InvalidateOwner(vcl::TObject* owner);

/// Keeps a value in a setter; true when it is another than before.
template <class T>
bool Store(T& field, const T& value) {
  if (field == value) return false;
  field = value;
  return true;
}

/// Marks the time during which an object changes something of its own and hears of it itself.
class TQuietly {
 public:
  explicit TQuietly(bool& flag) : FFlag(flag) { FFlag = true; }
  ~TQuietly() { FFlag = false; }
  TQuietly(const TQuietly&) = delete;
  TQuietly& operator=(const TQuietly&) = delete;

 private:
  bool& FFlag;
};

}  // namespace qel
