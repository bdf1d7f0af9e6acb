// TOutputLines: what a program writes, as lines of text.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace qel {

/// The character set of bytes that another program has written.
enum class TOutputSet { Guessed, Utf8, Console, System, Utf16 };

/// Puts bytes, which come in pieces of any size, together to lines in UTF-8.
class TOutputLines {
 public:
  explicit TOutputLines(TOutputSet set) : FSet(set) {}

  void Add(const std::string& bytes) { FBytes += bytes; }
  /// Takes the next line that has come whole, without what ends it. False when there is none.
  bool Next(std::string& line);
  /// Takes what has come behind the last line's end. False when that is nothing.
  bool Rest(std::string& line);

 private:
  std::size_t LineEnd();
  std::string Decoded(const std::string& bytes);

  TOutputSet FSet;
  std::string FBytes;
  std::size_t FSearched = 0;  // So many of them are known to end no line.
  bool FBegun = false;        // A line has been taken, so that no mark comes any more.
};

}  // namespace qel
