// TRowSet: a set of rows as stretches, so that a million selected rows cost what one does.
#pragma once

#include <vector>

namespace qel {

class TRowSet {
 public:
  struct TStretch {
    int From;
    int To;  ///< The last one.
    friend bool operator==(const TStretch&, const TStretch&) = default;
  };

  bool Has(int row) const;
  bool Empty() const { return FStretches.empty(); }
  int Count() const;
  const std::vector<TStretch>& Stretches() const { return FStretches; }
  void Clear() { FStretches.clear(); }
  void Add(int from, int to);
  void Remove(int from, int to);
  void Set(int row, bool in) { in ? Add(row, row) : Remove(row, row); }
  /// A row comes before the one at the place; those behind move on.
  void InsertRow(int at);
  /// A row goes; those behind come nearer.
  void DeleteRow(int at);
  /// Forgets the rows from `count` on.
  void Trim(int count);
  /// Puts at each place the row that `order` has there.
  void Reorder(const std::vector<int>& order);

 private:
  std::vector<TStretch> FStretches;  // In their order, none touching the next.
};

}  // namespace qel
