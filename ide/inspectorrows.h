// TInspectorRows: what stands in the grid of an object inspector: the properties that the selected
// objects have in common, and those inside them as far as they are expanded.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "vcl/designintf/propertyeditor.h"
#include "vcl/rtl/colors.h"

namespace ide {

/// A line of the grid: a property, and how it looked when it was last read.
struct TInspectorRow {
  std::shared_ptr<vcl::TPropertyEditor> Editor;
  std::string Path;  ///< The property's name behind those around it: "Font.Style".
  int Depth = 0;     ///< How many properties are around it.
  bool Expandable = false;
  bool Expanded = false;
  std::string Value;
  bool Default = true;  ///< A form file would not hold it.
  bool ReadOnly = false;
  std::optional<vcl::TColor> Color;  ///< Of a property that is one colour.

  std::string Name() const { return Path.substr(Path.rfind('.') + 1); }
  /// True when both lines look the same.
  bool Shows(const TInspectorRow& other) const;
};

/// What reading the values anew has changed.
struct TRowChanges {
  std::vector<int> Rows;  ///< The lines that look different.
  bool Others = false;    ///< They are other lines than before, or of another number.
};

class TInspectorRows {
 public:
  /// Only the properties for which `wanted` is true stand here.
  explicit TInspectorRows(std::function<bool(const vcl::TPropInfo&)> wanted)
      : FWanted(std::move(wanted)) {}

  int Count() const { return static_cast<int>(FRows.size()); }
  const TInspectorRow& operator[](int row) const { return FRows.at(static_cast<std::size_t>(row)); }
  /// The line of that path; -1 when there is none.
  int IndexOf(const std::string& path) const;
  /// The first line from `from` on, round the end, whose name begins with the text, compared
  /// without case; -1 when there is none.
  int Find(const std::string& beginning, int from) const;

  /// Shows other objects; null and none for nothing. What was expanded stays so, by its name.
  void SetObjects(vcl::TDesigner* designer, std::vector<vcl::TObject*> objects);
  /// Reads the objects again.
  TRowChanges Refresh();
  /// Shows resp. hides what is inside the property of the line.
  void SetExpanded(int row, bool expanded);

 private:
  using TRows = std::vector<TInspectorRow>;
  TRows Read() const;
  void Append(TRows& rows, vcl::TPropertyEditors editors, const std::string& around,
              int depth) const;

  std::function<bool(const vcl::TPropInfo&)> FWanted;
  vcl::TDesigner* FDesigner = nullptr;
  std::vector<vcl::TObject*> FObjects;
  std::set<std::string> FExpanded;
  TRows FRows;
};

}  // namespace ide
