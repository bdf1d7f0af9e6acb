// TGridAxis: sizes, and what of them a window shows. Whatever is asked looks at no more cells than
// a window has room for, besides hidden ones.
#include "vcl/grids/private/gridaxis.h"

#include <algorithm>

namespace vcl {

void TGridAxis::SetCount(int count) {
  FCount = count;
  FFixed = std::min(FFixed, count);
  FOwn.erase(FOwn.lower_bound(count), FOwn.end());
  SetFirst(FFirst);
}

void TGridAxis::SetFixed(int fixed) {
  const int scrolled = FFirst - FFixed;
  FFixed = fixed;
  SetFirst(fixed + scrolled);
}

void TGridAxis::SetFirst(int first) {
  FFirst = std::clamp(first, FFixed, std::max(FFixed, FCount - 1));
}

void TGridAxis::SetDefaultSize(int size) {
  FDefault = size;
  FOwn.clear();
}

void TGridAxis::SetLines(int fixedLine, int line) {
  FFixedLine = fixedLine;
  FLine = line;
}

int TGridAxis::Size(int index) const {
  const auto own = FOwn.find(index);
  return own == FOwn.end() ? FDefault : own->second;
}

void TGridAxis::SetSize(int index, int size) {
  if (size == FDefault) {
    FOwn.erase(index);
  } else {
    FOwn[index] = size;
  }
}

int TGridAxis::Span(int index) const {
  const int size = Size(index);
  return size > 0 ? size + LineBehind(index) : 0;
}

int TGridAxis::FixedEnd(int room) const {
  int end = 0;
  for (int i = 0; i < FFixed && end < room; ++i) end += Span(i);
  return std::min(end, room);
}

std::vector<TGridBand> TGridAxis::Seen(int room) const {
  std::vector<TGridBand> seen;
  int place = 0;
  for (int i = FFixed > 0 ? 0 : FFirst; i < FCount && place < room; ++i) {
    if (i == FFixed) i = FFirst;
    const int size = Size(i);
    if (size == 0) continue;
    seen.push_back({i, place, place + size, LineBehind(i)});
    place = seen.back().Next();
  }
  return seen;
}

int TGridAxis::At(int position, int room) const {
  if (position < 0 || position >= room) return -1;
  for (const TGridBand& each : Seen(room)) {
    if (position < each.Next()) return each.Index;
  }
  return -1;
}

int TGridAxis::VisibleCount(int room) const {
  int count = 0;
  for (const TGridBand& each : Seen(room)) {
    if (each.Index >= FFixed && each.End <= room) ++count;
  }
  return count;
}

int TGridAxis::LastFirst(int room) const {
  int left = room - FixedEnd(room);
  int first = FCount;
  // The last one's line need not be seen.
  if (first > FFixed) left += LineBehind(first - 1);
  while (first > FFixed && Span(first - 1) <= left) left -= Span(--first);
  return std::clamp(first, FFixed, std::max(FFixed, FCount - 1));
}

int TGridAxis::FirstShowing(int index, int room) const {
  if (index < FFixed || index <= FFirst) return index < FFixed ? FFirst : index;
  int left = room - FixedEnd(room) + LineBehind(index);
  int first = index + 1;
  while (first > FFirst && Span(first - 1) <= left) left -= Span(--first);
  return std::min(first, index);
}

int TGridAxis::Step(int index, int by) const {
  for (int next = index + by; next >= FFixed && next < FCount; next += by) {
    if (Size(next) > 0) return next;
  }
  return index;
}

int TGridAxis::Nearest(int index, int direction) const {
  index = std::clamp(index, FFixed, std::max(FFixed, FCount - 1));
  if (!Has(index) || Size(index) > 0) return index;
  const int next = Step(index, direction);
  return next != index ? next : Step(index, -direction);
}

int TGridAxis::Moved(int index, int from, int to) {
  if (index == from) return to;
  if (from < index && index <= to) return index - 1;
  if (to <= index && index < from) return index + 1;
  return index;
}

void TGridAxis::Move(int from, int to) {
  std::map<int, int> moved;
  for (const auto& [index, size] : FOwn) moved[Moved(index, from, to)] = size;
  FOwn = std::move(moved);
}

}  // namespace vcl
