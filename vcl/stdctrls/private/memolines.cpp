// TMemoLines: a memo's text taken as lines, changed in the window where there is one.
#include "vcl/stdctrls/private/memolines.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/memo.h"

namespace vcl {
namespace {

/// The length of the end of line at the position; 0 when there is none.
template <class S>
std::size_t LineEnding(const S& text, std::size_t at) {
  if (at >= text.size()) return 0;
  if (text[at] == '\n') return 1;
  if (text[at] != '\r') return 0;
  return at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1;
}

void ReplaceInWindow(TCustomMemo& memo, std::size_t start, std::size_t end,
                     const std::string& with) {
  const std::wstring wide = ToUtf16(with);
  Send(memo, EM_LIMITTEXT, 0);  // The limit is for what the user types.
  Send(memo, EM_SETSEL, start, static_cast<LPARAM>(end));
  Send(memo, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(wide.c_str()));
  SendIfAllocated(memo, EM_LIMITTEXT, static_cast<WPARAM>(memo.MaxLength()));
}

}  // namespace

/// The line's place in the text; of the line behind the last one, the text's end.
template <class S>
TMemoLines::TSpan TMemoLines::FindLine(const S& text, int index) {
  TSpan span{0, 0, 0};
  for (int i = 0; i <= index; ++i) {
    span.Start = span.End = span.Next;
    while (span.End < text.size() && LineEnding(text, span.End) == 0) ++span.End;
    span.Next = span.End + LineEnding(text, span.End);
  }
  return span;
}

const std::vector<std::string>& TMemoLines::Lines() const {
  if (FValid) return FLines;
  FLines.clear();
  const std::string text = FMemo.Text();
  for (std::size_t at = 0; at < text.size();) {
    const std::string_view rest = std::string_view(text).substr(at);
    const TSpan span = FindLine(rest, 0);
    FLines.emplace_back(rest.substr(0, span.End));
    at += span.Next;
  }
  FValid = true;
  return FLines;
}

int TMemoLines::Count() const { return static_cast<int>(Lines().size()); }

std::string TMemoLines::Strings(int index) const {
  CheckIndex(index, Count());
  return Lines()[static_cast<std::size_t>(index)];
}

TObject* TMemoLines::Objects(int index) const {
  CheckIndex(index, Count());
  return nullptr;
}

void TMemoLines::SetObjects(int index, TObject* object) {
  CheckIndex(index, Count());
  if (object) throw EInvalidOperation("The lines of a memo carry no objects");
}

template <class F>
void TMemoLines::Replace(int index, const F& choose, const std::string& with) {
  if (FMemo.HandleAllocated()) {
    const std::wstring text = ToUtf16(FMemo.Text());
    const auto [start, end] = choose(FindLine(text, index));
    const auto position = [&](std::size_t at) {
      const auto ends =
          std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), L'\n');
      return FMemo.LineEndUnits() == 1 ? at - static_cast<std::size_t>(ends) : at;
    };
    ReplaceInWindow(FMemo, position(start), position(end), with);
  } else {
    std::string text = FMemo.Text();
    const auto [start, end] = choose(FindLine(text, index));
    FMemo.SetText(text.replace(start, end - start, with));
  }
}

void TMemoLines::SetStrings(int index, const std::string& text) {
  CheckIndex(index, Count());
  if (UpdateCount() > 0) {
    FLines[static_cast<std::size_t>(index)] = text;
    FChanged = true;
    return;
  }
  Replace(
      index, [](const TSpan& line) { return std::pair(line.Start, line.End); }, text);
}

void TMemoLines::InsertObject(int index, const std::string& text, TObject* object) {
  CheckIndex(index, Count() + 1);
  if (object) throw EInvalidOperation("The lines of a memo carry no objects");
  if (UpdateCount() > 0) {
    FLines.insert(FLines.begin() + index, text);
    FChanged = true;
    return;
  }
  const std::string all = FMemo.Text();
  const bool afterOpenLine = index == Count() && !all.empty() && all.back() != '\n';
  const std::string line = text + "\r\n";
  Replace(
      index, [](const TSpan& at) { return std::pair(at.Start, at.Start); },
      afterOpenLine ? "\r\n" + line : line);
}

void TMemoLines::Delete(int index) {
  CheckIndex(index, Count());
  if (UpdateCount() > 0) {
    FLines.erase(FLines.begin() + index);
    FChanged = true;
    return;
  }
  Replace(index, [](const TSpan& line) { return std::pair(line.Start, line.Next); }, {});
}

void TMemoLines::Clear() {
  if (UpdateCount() == 0) return FMemo.Clear();
  FLines.clear();
  FValid = FChanged = true;
}

void TMemoLines::TextChanged() { FValid = FChanged = false; }

void TMemoLines::SetUpdateState(bool updating) {
  if (updating) {
    Lines();  // What is changed from now on.
  } else if (FChanged) {
    FMemo.SetText(Text());
  }
}

}  // namespace vcl
