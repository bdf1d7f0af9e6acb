// TQELHeaderList: sorting, editing, check boxes, and the rows as text.
#include <algorithm>
#include <list>

#include "qel/controls/private/columnorder.h"
#include "qel/controls/private/headerlistparts.h"
#include "qel/controls/private/rowset.h"
#include "vcl/grids/gridtext.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/clipboard.h"

namespace qel {

using vcl::TWatch;

// Sorting.

void TQELHeaderList::HeaderClicked(TQELHeaderSection* section) {
  const int index = section->Index();
  const TWatch watch(this);
  OnSectionClick(this, section);
  if (watch.Gone() || !FAutoSort) return;
  SortBy(index, index == FHeader->SortColumn() && !FHeader->SortDescending());
}

void TQELHeaderList::SortBy(int section, bool descending) {
  if (!Sections()->Has(section)) return;
  const TWatch watch(this);
  EndEdit();
  if (watch.Gone() || !Sections()->Has(section)) return;
  FHeader->SetSortColumn(section);
  FHeader->SetSortDescending(descending);
  const int column = ColumnOf(section);
  Virtual() ? OnSort(this, column, descending) : SortItems(column, descending);
  if (!watch.Gone()) Invalidate();
}

void TQELHeaderList::SortItems(int column, bool descending) {
  const TWatch watch(this);
  const std::vector<int> order = OrderBy(column, descending);
  // The handler may have changed the rows that it compared.
  if (!watch.Gone() && static_cast<int>(order.size()) == FLines->Count()) ReorderItems(order);
}

std::vector<int> TQELHeaderList::OrderBy(int column, bool descending) {
  std::vector<std::string> texts;
  for (int row = 0; row < FLines->Count(); ++row) texts.push_back(TextOf(row, column));
  if (!OnCompare) return OrderOf(texts, descending);
  // Merging a list keeps to its ends, whatever the handler says.
  std::list<int> rows;
  for (int row = 0; row < FLines->Count(); ++row) rows.push_back(row);
  const TWatch watch(this);
  rows.sort([&](int a, int b) {
    int order = 0;
    if (!watch.Gone()) OnCompare(this, a, b, column, order);
    return descending ? order > 0 : order < 0;
  });
  return {rows.begin(), rows.end()};
}

void TQELHeaderList::ReorderItems(const std::vector<int>& order) {
  std::vector<std::pair<std::string, vcl::TObject*>> former;
  for (int row = 0; row < FLines->Count(); ++row) {
    former.emplace_back(FLines->Strings(row), FLines->Objects(row));
  }
  const auto moved = [&](int row) {
    const auto found = std::ranges::find(order, row);
    return found == order.end() ? row : static_cast<int>(found - order.begin());
  };
  FSelected->Reorder(order);
  FChecked->Reorder(order);
  FItemIndex = moved(FItemIndex);
  FSelectFrom = moved(FSelectFrom);
  const TWatch watch(this);
  {
    const vcl::TUpdating<vcl::TStrings> once(*FLines, this);
    for (int row = 0; row < FLines->Count(); ++row) {
      const auto& [text, object] =
          former[static_cast<std::size_t>(order[static_cast<std::size_t>(row)])];
      FLines->SetStrings(row, text);
      FLines->SetObjects(row, object);
    }
  }
  if (!watch.Gone() && FItemIndex >= 0) PutCurrent(Col(), FItemIndex + 1);
}

// Editing.

bool TQELHeaderList::CanModify(int /*col*/, int row) {
  return FMayEdit && !FReadOnly && row > 0 && (!Virtual() || OnSetText);
}

bool TQELHeaderList::EditCell(int section) {
  if (FReadOnly || FItemIndex < 0 || !Sections()->Has(section)) return false;
  const TWatch watch(this);
  FocusCell(section, FItemIndex + 1, false);
  if (watch.Gone()) return false;
  const vcl::TSetFor may(FMayEdit, true, this);
  SetEditorMode(true);
  return !watch.Gone() && EditorMode();
}

void TQELHeaderList::SetEditText(int col, int row, const std::string& text) {
  const int column = ColumnOf(col);
  if (Virtual()) return OnSetText(this, column, row - 1, text);
  // A separator in the text would begin another column.
  const std::string separator = vcl::Utf8(FSeparator);
  std::string line;
  const std::string former = FLines->Strings(row - 1);
  const auto columns = [&] {
    int count = 1;
    for (std::size_t at = former.find(separator); at != std::string::npos;
         at = former.find(separator, at + separator.size())) {
      ++count;
    }
    return std::max(count, column + 1);
  }();
  for (int i = 0; i < columns; ++i) {
    if (i > 0) line += separator;
    line += i == column ? text.substr(0, text.find(separator)) : TextOf(row - 1, i);
  }
  FLines->SetStrings(row - 1, line);
}

// Check boxes.

bool TQELHeaderList::Checked(int row) const { return FChecked->Has(row); }

void TQELHeaderList::SetChecked(int row, bool checked) {
  if (row < 0 || row >= Count() || checked == Checked(row)) return;
  FChecked->Set(row, checked);
  InvalidateRow(row + 1);
  AccessibleChanged(vcl::acState);
}

void TQELHeaderList::ToggleCheck(int row) {
  SetChecked(row, !Checked(row));
  OnClickCheck(this);
}

// The rows as text.

std::string TQELHeaderList::SelectionText() {
  vcl::TTextBlock block;
  const TWatch watch(this);
  for (const TRowSet::TStretch& each : std::vector(FSelected->Stretches())) {
    for (int row = each.From; row <= each.To; ++row) {
      std::vector<std::string>& line = block.emplace_back();
      for (int col = 0; col < ColCount(); ++col) {
        line.push_back(CellText(col, row + 1));
        if (watch.Gone()) return {};
      }
    }
  }
  return vcl::BlockToText(block);
}

void TQELHeaderList::CopyToClipboard() {
  const TWatch watch(this);
  const std::string text = SelectionText();
  if (!watch.Gone() && !text.empty()) vcl::Clipboard()->SetAsText(text);
}

int TQELHeaderList::FindRow(const std::string& text, int column, int from) {
  const int count = Count();
  const TWatch watch(this);
  for (int i = 0; i < count; ++i) {
    const int row = static_cast<int>((std::int64_t{from} + i) % count);
    const std::string other = TextOf(row, column);
    if (watch.Gone()) return -1;
    if (vcl::AnsiCompareText(other.substr(0, text.size()), text) == 0) return row;
  }
  return -1;
}

}  // namespace qel
