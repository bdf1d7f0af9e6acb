#include "tools/qelref/reference.h"

namespace qelref {
namespace {

/// A vertical bar would end the table's cell.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '|') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

std::string Row(const TEntry& entry) {
  return "| `" + entry.Name + "` | " + entry.Kind + " | `" + entry.Type + "` | " +
         (entry.Default ? "`" + Escaped(*entry.Default) + "`" : "") + " | " +
         (entry.Stored ? "" : "no") + " |\n";
}

std::string Section(const TClassReference& reference) {
  std::string text = "\n## " + reference.Name + "\n\nDescends from `" + reference.Ancestor +
                     "`. Unit `" + reference.Unit + "`.";
  text += reference.Page ? " On the palette page \"" + *reference.Page + "\".\n"
                         : " On no palette page.\n";
  if (reference.Published.empty()) return text + "\nPublishes nothing of its own.\n";
  text += "\n| Property | Kind | Type | Default | Stored |\n|---|---|---|---|---|\n";
  for (const TEntry& entry : reference.Published) text += Row(entry);
  return text;
}

}  // namespace

std::string ToMarkdown(const std::vector<TClassReference>& classes) {
  std::string text =
      "# Reference\n\nThe classes of the package and what each of them declares or publishes, in "
      "declared order. A value equal to its default is not written to form files; one without a "
      "default always is. Printed by `./run qelref --markdown`.\n";
  for (const TClassReference& reference : classes) text += Section(reference);
  return text;
}

}  // namespace qelref
