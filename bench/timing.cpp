// Taking samples, their medians, and printing them in a table.
#include "bench/timing.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace bench {

namespace {

constexpr std::size_t MinSamples = 21;
constexpr std::size_t MaxSamples = 201;
constexpr double MaxMilliseconds = 1500;
constexpr int LeastOf = 15;
constexpr double SampleMilliseconds = 0.5;

double Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

/// Milliseconds for one run, from `times` runs in a row.
double Time(const std::function<void()>& work, int times) {
  const double start = Now();
  for (int i = 0; i < times; ++i) work();
  FinishPainting();
  return (Now() - start) / times;
}

int RunsPerSample(const std::function<void()>& work) {
  work();
  return std::max(1, static_cast<int>(SampleMilliseconds / std::max(Time(work, 1), 0.001)));
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

}  // namespace

TPair Compare(const std::function<void()>& ours, const std::function<void()>& baseline) {
  const int ourRuns = RunsPerSample(ours);
  const int baselineRuns = RunsPerSample(baseline);
  std::vector<double> ourTimes;
  std::vector<double> baselineTimes;
  const double start = Now();
  while (ourTimes.size() < MinSamples ||
         (ourTimes.size() < MaxSamples && Now() - start < MaxMilliseconds)) {
    ourTimes.push_back(Time(ours, ourRuns));
    baselineTimes.push_back(Time(baseline, baselineRuns));
  }
  return {Median(ourTimes), Median(baselineTimes)};
}

TPair CompareLeast(const std::function<void()>& ours, const std::function<void()>& baseline) {
  ours();
  baseline();
  TPair least{Time(ours, 1), Time(baseline, 1)};
  for (int i = 1; i < LeastOf; ++i) {
    least.Ours = std::min(least.Ours, Time(ours, 1));
    least.Baseline = std::min(least.Baseline, Time(baseline, 1));
  }
  return least;
}

TTable::TTable(std::string title, std::string aim, std::vector<std::string> columns) {
  std::printf("\n## %s\n\n%s\n\n| |", title.c_str(), aim.c_str());
  for (const std::string& column : columns) std::printf(" %s |", column.c_str());
  std::printf("\n|---|");
  for (std::size_t i = 0; i < columns.size(); ++i) std::printf("---|");
  std::printf("\n");
}

void TTable::Add(const std::string& row, const std::vector<TPair>& cells) {
  std::printf("| %s |", row.c_str());
  for (const TPair& cell : cells) {
    FWorst = std::max(FWorst, cell.Ratio());
    std::printf(" %.2f (%.3f / %.3f ms) |", cell.Ratio(), cell.Ours, cell.Baseline);
  }
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace bench
