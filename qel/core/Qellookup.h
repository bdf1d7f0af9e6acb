// TQELTextMatcher: finds the lines of a list that match what is typed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Which of a list's lines begin with a text, or hold it. Keeps what it compares with, so that a
/// hundred thousand lines are looked through between two keys.
class QEL_API TQELTextMatcher {
 public:
  /// The indexes of the lines that begin with the text, or contain it; letters match without case
  /// unless `caseSensitive`. An empty text matches all.
  std::vector<int> Find(const vcl::TStrings& lines, std::string_view text, bool contains,
                        bool caseSensitive);
  /// To be called when the lines have changed.
  void Forget() { FKnown = false; }

 private:
  void Keep(const vcl::TStrings& lines, bool caseSensitive);

  std::vector<std::wstring> FLines;
  bool FKnown = false;
  bool FCaseSensitive = false;
};

}  // namespace qel
