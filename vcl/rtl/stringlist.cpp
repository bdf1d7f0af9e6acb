// TStringList: texts in memory, sorted if asked.
#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TStringList::Class() {
  static const TClass info =
      Describe<TStringList, TStrings>("vcl::TStringList", "vcl/rtl/strings.h", {});
  return info;
}

std::string TStringList::Strings(int index) const {
  CheckIndex(index, Count());
  return FLines[static_cast<std::size_t>(index)].Text;
}

void TStringList::SetStrings(int index, const std::string& text) {
  RefuseWhenSorted();
  CheckIndex(index, Count());
  Changing();
  FLines[static_cast<std::size_t>(index)].Text = text;
  Changed();
}

TObject* TStringList::Objects(int index) const {
  CheckIndex(index, Count());
  return FLines[static_cast<std::size_t>(index)].Object;
}

void TStringList::SetObjects(int index, TObject* object) {
  CheckIndex(index, Count());
  Changing();
  FLines[static_cast<std::size_t>(index)].Object = object;
  Changed();
}

int TStringList::AddObject(const std::string& text, TObject* object) {
  int index = Count();
  if (FSorted && Find(text, index) && FDuplicates != dupAccept) {
    if (FDuplicates == dupIgnore) return index;
    throw EStringListError(Concat("The list has the line '", text, "' already"));
  }
  InsertLine(index, text, object);
  return index;
}

void TStringList::InsertObject(int index, const std::string& text, TObject* object) {
  RefuseWhenSorted();
  CheckIndex(index, Count() + 1);
  InsertLine(index, text, object);
}

void TStringList::InsertLine(int index, const std::string& text, TObject* object) {
  Changing();
  FLines.insert(FLines.begin() + index, TLine{text, object});
  Changed();
}

void TStringList::Delete(int index) {
  CheckIndex(index, Count());
  Changing();
  FLines.erase(FLines.begin() + index);
  Changed();
}

void TStringList::Clear() {
  if (FLines.empty()) return;
  Changing();
  FLines.clear();
  Changed();
}

int TStringList::IndexOf(std::string_view text) const {
  if (FSorted) {
    int index = 0;
    return Find(text, index) ? index : -1;
  }
  const auto found = std::ranges::find_if(FLines, [&](const TLine& line) {
    return FCaseSensitive ? line.Text == text : AnsiSameText(line.Text, text);
  });
  return found == FLines.end() ? -1 : static_cast<int>(found - FLines.begin());
}

bool TStringList::Less(std::string_view a, std::string_view b) const {
  return FCaseSensitive ? a < b : AnsiCompareText(a, b) < 0;
}

bool TStringList::Find(std::string_view text, int& index) const {
  const auto found = std::lower_bound(
      FLines.begin(), FLines.end(), text,
      [this](const TLine& line, std::string_view wanted) { return Less(line.Text, wanted); });
  index = static_cast<int>(found - FLines.begin());
  return found != FLines.end() && !Less(text, found->Text);
}

void TStringList::Sort() {
  if (FLines.size() < 2) return;
  Changing();
  std::ranges::stable_sort(FLines,
                           [this](const TLine& a, const TLine& b) { return Less(a.Text, b.Text); });
  Changed();
}

void TStringList::SetSorted(bool sorted) {
  if (sorted && !FSorted) Sort();
  FSorted = sorted;
}

void TStringList::SetCaseSensitive(bool caseSensitive) {
  if (caseSensitive == FCaseSensitive) return;
  FCaseSensitive = caseSensitive;
  if (FSorted) Sort();
}

void TStringList::RefuseWhenSorted() const {
  if (FSorted) throw EStringListError("A sorted list puts its lines in their places itself");
}

void TStringList::SetUpdateState(bool updating) { updating ? Changing() : Changed(); }

void TStringList::Changing() {
  if (UpdateCount() == 0) OnChanging(this);
}

void TStringList::Changed() {
  if (UpdateCount() == 0) OnChange(this);
}

}  // namespace vcl
