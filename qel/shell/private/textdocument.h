// TTextDocument: a text file of any size, read where it is looked at.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "qel/shell/private/textcoding.h"

namespace qel {

/// The file's bytes, of which a few blocks are kept. Other programs may write to it meanwhile.
class TFileBytes {
 public:
  TFileBytes() = default;
  ~TFileBytes() { Close(); }
  TFileBytes(const TFileBytes&) = delete;
  TFileBytes& operator=(const TFileBytes&) = delete;

  /// Raises vcl::EInOutError.
  void Open(const std::string& fileName);
  void Close();
  bool IsOpen() const { return FFile != nullptr; }
  /// As it is now.
  std::uint64_t CurrentSize() const;
  /// The bytes from there on, at most so many; fewer at the end, or where they cannot be read.
  std::string Read(std::uint64_t from, std::size_t count);
  /// Forgets what has been read, as it may have changed.
  void Forget() { FBlocks = {}; }

 private:
  static constexpr std::size_t BlockSize = 64 << 10, BlockCount = 64;
  struct TBlock {
    std::optional<std::uint64_t> Number;
    std::string Bytes;
  };
  const std::string& Block(std::uint64_t number);

  void* FFile = nullptr;
  std::array<TBlock, BlockCount> FBlocks;
};

/// A line, or a piece of a long one: the bytes from `Begin` to before `End`, without what ends the
/// line; the next one begins at `Next`.
struct TLineBytes {
  std::uint64_t Begin, End, Next;
};

/// A line as it is shown: its units of UTF-16, and for each one, and for the end, the place of its
/// character in the file.
struct TShownLine {
  std::wstring Text;
  std::vector<std::uint64_t> Places;
};

/// A text file, whose lines are found around any place in it. Lines of more than 64 KB come in
/// pieces. Nothing is kept of them, so that a file may be larger than the memory.
class TTextDocument {
 public:
  /// Opens the file in that coding; nothing for the one that its bytes look like. Raises
  /// vcl::EInOutError.
  void Open(const std::string& fileName, std::optional<TTextCoding> coding);
  void Close();
  bool IsOpen() const { return FBytes.IsOpen(); }
  /// In bytes, as last looked at.
  std::uint64_t Size() const { return FSize; }
  /// Looks at the size again: what it was before.
  std::uint64_t Refresh();
  TTextCoding Coding() const { return FCoding; }
  /// Where the text begins, behind its mark.
  std::uint64_t Begin() const { return FBegin; }

  /// The line that begins there.
  TLineBytes LineAt(std::uint64_t begin);
  /// Where the line begins that holds the place.
  std::uint64_t BeginOf(std::uint64_t place);
  /// Where the line before the one that begins there begins; the text's begin for the first one.
  std::uint64_t LineBefore(std::uint64_t begin);
  TShownLine Shown(const TLineBytes& line);
  /// The text between two places, in UTF-8.
  std::string Text(std::uint64_t from, std::uint64_t to);
  /// Where the text is found, from a place on or before it; nothing when it is not.
  std::optional<std::uint64_t> Find(const std::string& text, bool matchCase, std::uint64_t from,
                                    bool backwards);
  /// How many bytes the text has in the file's coding.
  std::uint64_t LengthOf(const std::string& text) const;

 private:
  std::size_t Unit() const;
  std::uint64_t EndOfLine(std::uint64_t from, std::uint64_t limit);
  bool IsLineEnd(std::uint64_t place);
  std::string Encoded(const std::string& text) const;

  TFileBytes FBytes;
  TTextCoding FCoding = TTextCoding::Utf8;
  std::uint64_t FSize = 0;
  std::uint64_t FBegin = 0;
};

}  // namespace qel
