// TLineCounter: the numbers of a file's lines, as they are counted.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace qel {

/// Counts a file's lines in a thread of its own, and keeps where every 4096th begins, so that the
/// number of any line up to where it has come is soon known.
class TLineCounter {
 public:
  /// `counted` is called in the main thread now and then, and when all is counted.
  explicit TLineCounter(std::function<void()> counted);
  ~TLineCounter();
  TLineCounter(const TLineCounter&) = delete;
  TLineCounter& operator=(const TLineCounter&) = delete;

  /// Begins with the file, whose text begins at that byte; each line break is the unit of so many
  /// bytes. An empty name stops.
  void Start(const std::string& fileName, std::uint64_t begin, std::size_t unit, bool bigFirst);
  /// Goes on with what has been appended.
  void Continue();
  /// Up to which byte it has counted.
  std::uint64_t CountedTo() const;
  /// How many line breaks there are up to there.
  std::uint64_t Lines() const;

  /// A line whose number, from 0, is known, at or before the place: its number and its begin.
  struct TKnown {
    std::uint64_t Number, Begin;
  };
  TKnown Before(std::uint64_t place) const;
  /// The last known line up to that number.
  TKnown BeforeNumber(std::uint64_t number) const;

 private:
  class TCounting;
  std::function<void()> FCounted;
  std::unique_ptr<TCounting> FCounting;
};

}  // namespace qel
