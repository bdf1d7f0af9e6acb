// TGridAxis: the columns or the rows of a grid: how many, how large, which of them are seen.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

namespace vcl {

/// One that is seen: where it begins and ends in the window, and the width of the line behind it.
struct TGridBand {
  int Index;
  int Begin;
  int End;  ///< Of the cell, without the line.
  int Line;
  int Next() const { return End + Line; }
};

/// Sizes other than the default one are kept for those alone that have one, so that a million rows
/// cost what one does. A size of 0 hides, with the line behind. Positions are pixels in the window.
class TGridAxis {
 public:
  TGridAxis(int count, int fixed, int defaultSize)
      : FCount(count), FFixed(fixed), FFirst(fixed), FDefault(defaultSize) {}

  int Count() const { return FCount; }
  /// Fixed ones and sizes beyond go.
  void SetCount(int count);
  int Fixed() const { return FFixed; }
  void SetFixed(int fixed);
  /// The first one that is seen behind the fixed ones.
  int First() const { return FFirst; }
  void SetFirst(int first);
  int DefaultSize() const { return FDefault; }
  /// All get this size.
  void SetDefaultSize(int size);
  void SetLines(int fixedLine, int line);

  bool Has(int index) const { return index >= 0 && index < FCount; }
  int Size(int index) const;
  void SetSize(int index, int size);
  /// By index; only those that differ from the default.
  const std::map<int, int>& OwnSizes() const { return FOwn; }
  void ReplaceOwnSizes(std::map<int, int> sizes) { FOwn = std::move(sizes); }
  /// Scaling: the default size without touching the others'.
  void ReplaceDefaultSize(int size) { FDefault = size; }

  /// The size with the line behind it.
  int Span(int index) const;
  /// The end of the fixed ones, at most `room`.
  int FixedEnd(int room) const;
  /// Those of which at least a part is seen in a window of that size.
  std::vector<TGridBand> Seen(int room) const;
  /// The one at the position, lines behind it included; -1 for none.
  int At(int position, int room) const;
  /// How many behind the fixed ones are wholly seen.
  int VisibleCount(int room) const;
  /// The highest First that wastes no room.
  int LastFirst(int room) const;
  /// The First that shows the one at the index, as near to the present one as can be.
  int FirstShowing(int index, int room) const;
  /// The next one in the direction that is neither fixed nor hidden; `index` when there is none.
  int Step(int index, int by) const;
  /// The nearest one to `index`, looking in the direction first, that is neither fixed nor hidden.
  int Nearest(int index, int direction) const;
  /// Takes the size at `from` to `to`, those between give way.
  void Move(int from, int to);
  /// Where the one at the index comes when the one at `from` is moved to `to`.
  static int Moved(int index, int from, int to);

 private:
  int LineBehind(int index) const { return index < FFixed ? FFixedLine : FLine; }

  int FCount;
  int FFixed;
  int FFirst;
  int FDefault;
  int FFixedLine = 1;
  int FLine = 1;
  std::map<int, int> FOwn;
};

}  // namespace vcl
