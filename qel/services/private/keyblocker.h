// TKeyBlocker: keys that do nothing while the program is the active one.
#pragma once

#include "qel/services/Qeltsystemkeys.h"

namespace qel {

/// Keeps keys from the system and from all programs while one of this program's windows is in
/// front. Any number of them block, each its own keys.
class TKeyBlocker {
 public:
  explicit TKeyBlocker(TQELBlockedKeys keys);
  ~TKeyBlocker();
  TKeyBlocker(const TKeyBlocker&) = delete;
  TKeyBlocker& operator=(const TKeyBlocker&) = delete;

 private:
  TQELBlockedKeys FKeys;
};

}  // namespace qel
