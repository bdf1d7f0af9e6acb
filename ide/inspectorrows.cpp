// TInspectorRows: which lines the grid has, read from the editors, and what has changed in them.
#include "ide/inspectorrows.h"

#include <algorithm>
#include <exception>

#include "vcl/rtl/text.h"

namespace ide {

using vcl::TTypeKind;

namespace {

/// The elements of a set stand in their own order, all else by the alphabet.
void SortByName(vcl::TPropertyEditors& editors) {
  std::ranges::sort(editors, [](const auto& a, const auto& b) {
    return vcl::CompareText(a->GetName(), b->GetName()) < 0;
  });
}

std::optional<vcl::TColor> ColorOf(const vcl::TPropertyEditor& editor) {
  const vcl::TEditedProperty& first = editor.Edited().front();
  if (first.Property->IsEvent() || first.Property->Kind() != TTypeKind::Color) return {};
  if (!editor.AllEqual()) return {};
  return static_cast<vcl::TColor>(std::get<std::int64_t>(first.Property->Get(*first.Object)));
}

/// A value that can't be read is shown by what is wrong with it, and can't be typed over.
void ReadValue(TInspectorRow& row) {
  const vcl::TPropertyEditor& editor = *row.Editor;
  try {
    row.Value = editor.ShownValue();
    row.Default = editor.IsDefault();
    row.ReadOnly = editor.ReadOnly();
    row.Color = ColorOf(editor);
  } catch (const std::exception& error) {
    row.Value = vcl::Concat("(", error.what(), ")");
    row.ReadOnly = true;
  }
}

}  // namespace

bool TInspectorRow::Shows(const TInspectorRow& other) const {
  return Path == other.Path && Expandable == other.Expandable && Expanded == other.Expanded &&
         Value == other.Value && Default == other.Default && ReadOnly == other.ReadOnly &&
         Color == other.Color;
}

int TInspectorRows::IndexOf(const std::string& path) const {
  const auto found = std::ranges::find(FRows, path, &TInspectorRow::Path);
  return found == FRows.end() ? -1 : static_cast<int>(found - FRows.begin());
}

int TInspectorRows::Find(const std::string& beginning, int from) const {
  for (int i = 0; i < Count(); ++i) {
    const int row = (std::max(from, 0) + i) % Count();
    if (vcl::SameText((*this)[row].Name().substr(0, beginning.size()), beginning)) return row;
  }
  return -1;
}

void TInspectorRows::SetObjects(vcl::TDesigner* designer, std::vector<vcl::TObject*> objects) {
  FDesigner = designer;
  FObjects = std::move(objects);
  FRows = Read();
}

TRowChanges TInspectorRows::Refresh() {
  TRowChanges changes;
  // The editors are made anew too: an object inside a property may be another one by now.
  TRows rows = Read();
  changes.Others = !std::ranges::equal(rows, FRows, {}, &TInspectorRow::Path, &TInspectorRow::Path);
  for (int i = 0; !changes.Others && i < Count(); ++i) {
    if (!rows[static_cast<std::size_t>(i)].Shows((*this)[i])) changes.Rows.push_back(i);
  }
  FRows = std::move(rows);
  return changes;
}

void TInspectorRows::SetExpanded(int row, bool expanded) {
  const std::string path = (*this)[row].Path;
  expanded ? void(FExpanded.insert(path)) : void(FExpanded.erase(path));
  FRows = Read();
}

TInspectorRows::TRows TInspectorRows::Read() const {
  TRows rows;
  if (!FDesigner || FObjects.empty()) return rows;
  auto editors = vcl::PropertiesOf(*FDesigner, FObjects, FWanted);
  SortByName(editors);
  Append(rows, std::move(editors), {}, 0);
  return rows;
}

void TInspectorRows::Append(TRows& rows, vcl::TPropertyEditors editors, const std::string& around,
                            int depth) const {
  for (auto& editor : editors) {
    TInspectorRow row;
    row.Editor = std::move(editor);
    row.Path = around + row.Editor->GetName();
    row.Depth = depth;
    row.Expandable = row.Editor->Offers(vcl::paSubProperties);
    row.Expanded = row.Expandable && FExpanded.contains(row.Path);
    ReadValue(row);
    rows.push_back(row);
    if (!row.Expanded) continue;
    auto inside = row.Editor->GetProperties();
    if (row.Editor->PropInfo().Kind() != TTypeKind::Set) SortByName(inside);
    Append(rows, std::move(inside), row.Path + ".", depth + 1);
  }
}

}  // namespace ide
