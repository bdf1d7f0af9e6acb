// The reference as Markdown.
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
         (entry.Stored ? "" : "no") + " | " + Escaped(entry.Sentence) + " |\n";
}

/// Which classes the palette shows of the class library says the designer, not a package.
std::string Place(const TClassReference& reference) {
  std::string text;
  if (!reference.Ancestor.empty()) text = "Descends from `" + reference.Ancestor + "`. ";
  if (reference.FromLibrary) return text + "Header `" + reference.Header + "`.";
  text += "Unit `" + reference.Unit + "`.";
  return text + (reference.Page ? " On the palette page \"" + *reference.Page + "\"."
                                : " On no palette page.");
}

std::string Section(const TClassReference& reference) {
  std::string text = "\n## " + reference.Name + "\n\n";
  if (!reference.Sentence.empty()) text += reference.Sentence + "\n\n";
  text += Place(reference) + "\n";
  if (reference.Published.empty()) return text + "\nPublishes nothing of its own.\n";
  text +=
      "\n| Property | Kind | Type | Default | Stored | What it is |\n|---|---|---|---|---|---|\n";
  for (const TEntry& entry : reference.Published) text += Row(entry);
  return text;
}

std::string Code(const std::string& text) { return text.empty() ? "" : "`" + text + "`"; }

std::string PageRow(const TPageReference& page) {
  return "| \"" + page.Name + "\" | " + Joined(page.Classes, ", ", Code) + " |\n";
}

std::string PropertyEditorRow(const TPropertyEditorReference& each) {
  const auto plain = [](const std::string& text) { return text; };
  return "| `" + each.Editor + "` | `" + each.Type + "` | `" + each.Class + "` | " +
         Code(each.Property) + " | " + Joined(each.Attributes, ", ", plain) + " |\n";
}

std::string ComponentEditorRow(const TComponentEditorReference& each) {
  const auto verb = [](const std::string& text) { return "\"" + text + "\""; };
  return "| `" + each.Editor + "` | `" + each.Class + "` | " + Joined(each.Verbs, ", ", verb) +
         " |\n";
}

}  // namespace

std::string ToMarkdown(const TReference& reference) {
  std::string text =
      "# Reference\n\nWhat the package brings into a form designer, its classes, and those of the "
      "class library. Printed by `./run qelref --markdown`; `./run reference` makes a page of it "
      "that "
      "can be searched.\n\n## Palette\n\n| Page | Components, in order |\n|---|---|\n";
  text += Joined(reference.Pages, "", PageRow);
  text +=
      "\n## Property editors\n\nIn the order of their registration. An editor is for the property "
      "of that type and name, or without a name for all of that type, of the class and its "
      "descendants.\n\n| Editor | Type | Class | Property | Attributes |\n|---|---|---|---|---|\n";
  text += Joined(reference.PropertyEditors, "", PropertyEditorRow);
  text +=
      "\n## Component editors\n\nA double click on a component does what the first command "
      "does.\n\n| Editor | Class | Commands |\n|---|---|---|\n";
  text += Joined(reference.ComponentEditors, "", ComponentEditorRow);
  text +=
      "\n# Classes\n\nWhat each of them declares or publishes, in declared order. A value equal to "
      "its default is not written to form files; one without a default always is.\n";
  bool library = false;
  for (const TClassReference& each : reference.Classes) {
    if (each.FromLibrary && !library) text += "\n# Classes of the class library\n";
    library = each.FromLibrary;
    text += Section(each);
  }
  return text;
}

}  // namespace qelref
