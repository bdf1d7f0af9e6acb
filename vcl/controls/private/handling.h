// Whether a message, or what comes with the program's idling, is being handled.
#pragma once

namespace vcl {

/// Lives as long as something is handled that may call the program's own code. The library runs in
/// one thread.
class THandling {
 public:
  THandling() { ++FDepth; }
  ~THandling() { --FDepth; }
  THandling(const THandling&) = delete;
  THandling& operator=(const THandling&) = delete;
  /// How many are being handled, one within the other.
  static int Depth() { return FDepth; }

 private:
  static inline int FDepth = 0;
};

}  // namespace vcl
