// Measuring how long something takes, and printing what was measured.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Waits until what was painted is painted, where there is something to paint on.
void FinishPainting();

/// Both take turns, so that a busy machine slows down the one as it does the other.
struct TPair {
  double Ours;      ///< Milliseconds: the median, or the least.
  double Baseline;  ///< Milliseconds: the median, or the least.

  double Ratio() const { return Ours / Baseline; }
};

/// Runs the two in turn, at least 21 times each and up to some 2 seconds, after one run of each to
/// warm up. What takes microseconds is run several times for each sample.
TPair Compare(const std::function<void()>& ours, const std::function<void()>& baseline);

/// The same, 15 times each, and the least of each instead of the median: for what takes so long
/// that a busy machine always has a part in it.
TPair CompareLeast(const std::function<void()>& ours, const std::function<void()>& baseline);

/// One table in Markdown: the columns are headed by the sizes, the cells hold ratios with the times
/// behind them.
class TTable {
 public:
  TTable(std::string title, std::string aim, std::vector<std::string> columns);
  void Add(const std::string& row, const std::vector<TPair>& cells);
  /// The highest ratio of all cells.
  double Worst() const { return FWorst; }

 private:
  double FWorst = 0;
};

}  // namespace bench
