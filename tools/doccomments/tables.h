// The published tables of a source file: which members stand behind which property.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace doccomments {

/// A line of a table that has members of its own: a getter and perhaps a setter, or an event.
struct TTableLine {
  std::string Name;
  /// The class as the line names it, which may be an ancestor of the table's.
  std::string Class;
  std::vector<std::string> Members;
};

struct TTable {
  /// With its namespaces.
  std::string Class;
  std::string Header;
  std::vector<TTableLine> Lines;

  std::string Scope() const { return Class.substr(0, Class.rfind("::")); }
};

/// The tables that the source gives Describe.
std::vector<TTable> TablesOf(std::string_view source);

}  // namespace doccomments
