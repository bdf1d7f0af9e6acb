// TWatch, which tells that an object has gone, and TWatched, what can be watched so.
#pragma once

#include "vcl/rtl/api.h"

namespace vcl {

class TWatch;

/// What can be watched: components, and other objects that handlers may free while something is
/// done with them. Its watches hear of its end when the destructors of the classes derived from it
/// have run. Each object has its own: a copy begins without any.
class VCL_API TWatched {
 protected:
  TWatched() = default;
  TWatched(const TWatched&) noexcept {}
  // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to assign.
  TWatched& operator=(const TWatched&) noexcept { return *this; }
  ~TWatched();

 private:
  friend class TWatch;
  mutable TWatch* FWatches = nullptr;
};

/// Watches an object during a call that might free it, such as an event:
///
///     TWatch watch(this);
///     OnClick(this);
///     if (watch.Gone()) return;
///
/// Watches may be copied, end in any order and outlive the object: a handler that is kept elsewhere
/// can hold one. A watch and its object belong to one thread.
class VCL_API TWatch {
 public:
  /// Null is nothing, which never goes.
  explicit TWatch(const TWatched* object) noexcept { Begin(object); }
  /// The copy of a watch whose object has gone says so, too.
  TWatch(const TWatch& other) noexcept : FGone(other.FGone) { Begin(other.FObject); }
  TWatch& operator=(const TWatch& other) noexcept;
  ~TWatch() { End(); }
  bool Gone() const { return FGone; }

 private:
  friend class TWatched;
  void Begin(const TWatched* object) noexcept;
  void End() noexcept;

  const TWatched* FObject = nullptr;  // Null, too, once it has gone.
  TWatch* FNext = nullptr;            // Another one of the same object.
  bool FGone = false;
};

}  // namespace vcl
