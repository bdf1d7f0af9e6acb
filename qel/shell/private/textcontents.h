// What a text view shows.
#pragma once

#include "qel/shell/Qelttextfileview.h"
#include "qel/shell/private/linecounter.h"
#include "qel/shell/private/textdocument.h"

namespace qel {

/// The file, and the numbers of its lines.
struct TQELTextFileView::TContents {
  explicit TContents(std::function<void()> counted) : Counter(std::move(counted)) {}
  mutable TTextDocument Text;
  TLineCounter Counter;
};

/// What stands in one row: units of a line as it is shown.
struct TQELTextFileView::TRow {
  TPlace Line, Next;   ///< Where the line begins, and the next one.
  std::size_t Number;  ///< Which of the line's rows, from 0.
  std::wstring Text;
  std::vector<TPlace> Places;  ///< Of each unit, and of the end.
};

}  // namespace qel
