// The reference of a package: what is printed, whatever the format.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vcl {
class TClass;
class TPackage;
}  // namespace vcl

namespace qelref {

/// A published property or event.
struct TEntry {
  std::string Name;
  std::string Kind;
  std::string Type;
  /// What a form file would hold for the declared default; nothing when none is declared.
  std::optional<std::string> Default;
  bool Stored;
  /// What it is; empty when no doc comment says so.
  std::string Sentence;
};

struct TClassReference {
  std::string Name;
  std::string Ancestor;
  /// The palette page; nothing for a class that is on none.
  std::optional<std::string> Page;
  std::string Unit;
  /// What code includes for the class.
  std::string Header;
  /// True for a class of the class library, which no package brings.
  bool FromLibrary = false;
  /// What it is; empty when no doc comment says so.
  std::string Sentence;
  /// What the class itself declares or publishes, in declared order.
  std::vector<TEntry> Published;
};

/// A page of the palette and the classes that the package has put on it, in order.
struct TPageReference {
  std::string Name;
  std::vector<std::string> Classes;
};

/// Which properties an editor is for (an empty name: all of the type), and what it offers.
struct TPropertyEditorReference {
  std::string Editor;
  std::string Type;
  std::string Class;
  std::string Property;
  std::vector<std::string> Attributes;
};

/// Which components an editor is for, and its commands.
struct TComponentEditorReference {
  std::string Editor;
  std::string Class;
  std::vector<std::string> Verbs;
};

/// Pages and editors in the order of their registration, classes in that of the package's list,
/// with the class library's behind them.
struct TReference {
  std::vector<TPageReference> Pages;
  std::vector<TPropertyEditorReference> PropertyEditors;
  std::vector<TComponentEditorReference> ComponentEditors;
  std::vector<TClassReference> Classes;
};

TReference ReferenceOf(const vcl::TPackage& package);
/// The two lists of editors, which are asked what they offer.
void AddEditors(TReference& reference, const vcl::TPackage& package);

/// The class library's classes with a table, by name. The build writes the list
/// (tools/doccomments).
std::vector<const vcl::TClass*> LibraryClasses();
/// The classes, and their properties and events, that no doc comment is found for: a line each.
std::string WithoutSentence(const TReference& reference);

std::string ToHtml(const TReference& reference);
std::string ToJson(const TReference& reference);
std::string ToMarkdown(const TReference& reference);

/// The items as texts, with the separator between them.
template <class Items, class ToText>
std::string Joined(const Items& items, const char* separator, ToText toText) {
  std::string joined;
  for (const auto& item : items) {
    if (&item != &*items.begin()) joined += separator;
    joined += toText(item);
  }
  return joined;
}

}  // namespace qelref
