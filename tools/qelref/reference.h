// The reference of a package's classes: what is printed, whatever the format.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vcl {
class TPackage;
}

namespace qelref {

/// A published property or event.
struct TEntry {
  std::string Name;
  std::string Kind;
  std::string Type;
  /// What a form file would hold for the declared default; nothing when none is declared.
  std::optional<std::string> Default;
  bool Stored;
};

struct TClassReference {
  std::string Name;
  std::string Ancestor;
  /// The palette page; nothing for a class that is on none.
  std::optional<std::string> Page;
  std::string Unit;
  /// What the class itself declares or publishes, in declared order.
  std::vector<TEntry> Published;
};

/// The classes in the order in which the package lists them.
std::vector<TClassReference> ReferenceOf(const vcl::TPackage& package);

std::string ToJson(const std::vector<TClassReference>& classes);
std::string ToMarkdown(const std::vector<TClassReference>& classes);

}  // namespace qelref
