// TRowSet: adding, removing and moving stretches.
#include "qel/controls/private/rowset.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace qel {

bool TRowSet::Has(int row) const {
  const auto found =
      std::ranges::partition_point(FStretches, [&](const TStretch& each) { return each.To < row; });
  return found != FStretches.end() && found->From <= row;
}

int TRowSet::Count() const {
  int count = 0;
  for (const TStretch& each : FStretches) count += each.To - each.From + 1;
  return count;
}

void TRowSet::Add(int from, int to) {
  if (from > to) return;
  // Those that touch the new one become part of it.
  const auto first = std::ranges::partition_point(
      FStretches, [&](const TStretch& each) { return each.To < from - 1; });
  auto last = first;
  for (; last != FStretches.end() && last->From <= to + 1; ++last) {
    from = std::min(from, last->From);
    to = std::max(to, last->To);
  }
  FStretches.insert(FStretches.erase(first, last), {from, to});
}

void TRowSet::Remove(int from, int to) {
  std::vector<TStretch> left;
  for (const TStretch& each : FStretches) {
    if (each.From < from) left.push_back({each.From, std::min(each.To, from - 1)});
    if (each.To > to) left.push_back({std::max(each.From, to + 1), each.To});
  }
  FStretches = std::move(left);
}

void TRowSet::InsertRow(int at) {
  std::vector<TStretch> moved;
  for (const TStretch& each : FStretches) {
    if (each.From < at) moved.push_back({each.From, std::min(each.To, at - 1)});
    if (each.To >= at) moved.push_back({std::max(each.From, at) + 1, each.To + 1});
  }
  FStretches = std::move(moved);
}

void TRowSet::DeleteRow(int at) {
  Remove(at, at);
  const std::vector<TStretch> former = std::exchange(FStretches, {});
  for (const TStretch& each : former) {
    const int by = each.From > at ? 1 : 0;
    Add(each.From - by, each.To - by);
  }
}

void TRowSet::Trim(int count) { Remove(count, std::numeric_limits<int>::max() - 1); }

void TRowSet::Reorder(const std::vector<int>& order) {
  TRowSet moved;
  for (int row = 0; !Empty() && row < static_cast<int>(order.size()); ++row) {
    if (Has(order[static_cast<std::size_t>(row)])) moved.Add(row, row);
  }
  *this = std::move(moved);
}

}  // namespace qel
