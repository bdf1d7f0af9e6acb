// What is unsaved, kept beside the settings in case that the program is ended.
#pragma once

#include <optional>
#include <string>

#include "demos/notes/textfile.h"

namespace notes {

/// A text that was not saved, the file that it belongs to (empty for none yet) and its format.
struct TUnsaved {
  std::string FileName;
  TText Text;
};

class TRecovery {
 public:
  explicit TRecovery(const std::string& folder) : FFileName(folder + "\\unsaved.txt") {}

  /// Keeps the text in place of what was kept. Raises EInOutError; what was kept stays then.
  void Keep(const TUnsaved& unsaved) const;
  /// What was kept; nothing when all was saved. Raises EInOutError for a file that says something
  /// else, which is then moved aside.
  std::optional<TUnsaved> Find() const;
  /// All is saved.
  void Discard() const;

 private:
  std::string FFileName;
};

}  // namespace notes
