// TIniText: the text of a settings file, read and changed in place.
//
// It is understood as the system's private profile functions understand it: a line whose first
// character is "[" and that has a "]" begins a section, named by what stands between the first and
// the last of them; any other line up to the next section is an entry "ident=value" or, without
// "=", an entry without a value. Blanks around names and values don't count, names are compared
// without the case of A to Z. What stands before the first section is a section without a name. Of
// two sections of the same name the first one is read, and of two entries the first. Comments begin
// with ";"; empty lines say nothing.
//
// A change touches the lines that it is about and no other: comments, empty lines, blanks, the
// order and the kind of line breaks stay.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vcl {

class TIniText {
 public:
  /// An entry as it stands there, without the blanks around its parts.
  struct TEntry {
    std::string_view Ident;
    std::optional<std::string_view> Value;
  };

  TIniText() = default;
  explicit TIniText(std::string text) : FText(std::move(text)) {}
  const std::string& Text() const { return FText; }
  /// The text, which is none any more then.
  std::string TakeText() { return std::move(FText); }

  /// The value, quotes included; nothing when there is none. Valid until the text changes.
  std::optional<std::string_view> Find(std::string_view section, std::string_view ident) const;
  std::vector<std::string_view> Sections() const;
  bool HasSection(std::string_view section) const;
  /// All entries of the section but comments.
  std::vector<TEntry> Entries(std::string_view section) const;

  /// True when a line can hold the entry resp. the section's name, so that it is found again under
  /// it.
  static bool CanHold(std::string_view ident, std::string_view value);
  static bool CanHold(std::string_view section);
  /// Sets a value that can be held; an entry that is there already keeps its place and its name's
  /// spelling, a new one follows the section's last line, a new section the text's.
  void Write(std::string_view section, std::string_view ident, std::string_view value);
  /// Deletes the first such entry, be it in a later section of the same name.
  void Delete(std::string_view section, std::string_view ident);
  /// Deletes the first such section whole, comments in it included.
  void Erase(std::string_view section);

 private:
  struct TLine;
  TLine LineAt(std::size_t begin) const;
  TLine NextHeader(std::size_t begin) const;
  std::size_t LineBegin(std::size_t first, std::size_t limit) const;
  TLine SectionHeader(std::string_view section, std::size_t from) const;
  TLine EntryLine(std::size_t begin, std::string_view ident) const;
  void AddEntry(std::size_t sectionBegin, const std::string& line);
  void InsertLines(std::size_t at, std::string lines);
  std::string LineBreak() const;

  std::string FText;
};

}  // namespace vcl
