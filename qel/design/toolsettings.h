// What the user has set for the tools: files and links of his own, and whom to contact.
#pragma once

#include <string>
#include <vector>

namespace qel {

/// A menu entry and what it opens.
struct TQELToolLink {
  std::string Caption;
  std::string Target;
};

struct TQELToolSettings {
  std::vector<TQELToolLink> Files;
  std::vector<TQELToolLink> Links;
  std::string HomePage;
  std::string Mail;
  std::string Pager;
  /// How often open forms are saved, in minutes; 0 for never.
  int AutoSave = 0;
};

/// Reads them from, and writes them to, the user's part of the registry. Raise ERegistryException
/// for what it refuses.
TQELToolSettings LoadToolSettings();
void SaveToolSettings(const TQELToolSettings& settings);
/// Shows the settings in a form; true when the user has confirmed them.
bool EditToolSettings(TQELToolSettings& settings);

}  // namespace qel
