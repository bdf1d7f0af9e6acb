// TLineReader and TTextLines: lines of a text held in one piece, found, replaced and added.
#include "qel/mail/textlines.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

namespace qel {

bool TLineReader::Next(std::string_view& line) {
  if (FPosition >= FText.size()) return false;
  if (!FSearched || FLineFeed < FPosition) {
    FLineFeed = std::min(FText.find('\n', FPosition), FText.size());
    FSearched = true;
  }
  line = FText.substr(FPosition, FLineFeed - FPosition);
  const std::size_t carriageReturn = line.find('\r');
  if (carriageReturn == std::string_view::npos) {
    FPosition = std::min(FLineFeed + 1, FText.size());
    return true;
  }
  const bool both = FPosition + carriageReturn + 1 == FLineFeed && FLineFeed < FText.size();
  line = line.substr(0, carriageReturn);
  FPosition += carriageReturn + (both ? 2 : 1);
  return true;
}

const vcl::TClass& TTextLines::Class() {
  static const vcl::TClass info =
      vcl::Describe<TTextLines, vcl::TStrings>("qel::TTextLines", "qel/mail/textlines.h", {});
  return info;
}

std::string_view TTextLines::Line(int index) const {
  CheckIndex(index, Count());
  return std::string_view(FLetters).substr(Begin(index), End(index) - Begin(index));
}

int TTextLines::LineOf(std::size_t letter) const {
  return static_cast<int>(std::ranges::upper_bound(FEnds, letter) - FEnds.begin());
}

void TTextLines::Replace(int index, std::string_view text) {
  const std::size_t before = End(index) - Begin(index);
  FLetters.replace(Begin(index), before, text);
  for (auto end = FEnds.begin() + index; end != FEnds.end(); ++end) *end += text.size() - before;
}

void TTextLines::SetStrings(int index, const std::string& text) {
  CheckIndex(index, Count());
  Replace(index, text);
}

vcl::TObject* TTextLines::Objects(int index) const {
  CheckIndex(index, Count());
  return nullptr;
}

void TTextLines::RefuseObject(const vcl::TObject* object) {
  if (object) throw vcl::EStringListError("This list keeps no objects beside its lines");
}

void TTextLines::SetObjects(int index, vcl::TObject* object) {
  CheckIndex(index, Count());
  RefuseObject(object);
}

void TTextLines::InsertObject(int index, const std::string& text, vcl::TObject* object) {
  CheckIndex(index, Count() + 1);
  RefuseObject(object);
  if (index == Count()) return AddLine(text);
  FEnds.insert(FEnds.begin() + index, Begin(index));
  Replace(index, text);
}

void TTextLines::Delete(int index) {
  CheckIndex(index, Count());
  Replace(index, {});
  FEnds.erase(FEnds.begin() + index);
}

void TTextLines::Clear() {
  FLetters.clear();
  FEnds.clear();
}

void TTextLines::AddLine(std::string_view line) {
  FLetters.append(line);
  FEnds.push_back(FLetters.size());
}

void TTextLines::AddLines(std::string_view text) {
  std::string_view line;
  for (TLineReader lines(text); lines.Next(line);) AddLine(line);
}

}  // namespace qel
