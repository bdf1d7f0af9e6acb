// Text files: UTF-8 with any kind of line end, read whole and replaced whole.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace notes {

enum class TLineEnds { CrLf, Lf, Cr };

/// How a file spells its text.
struct TTextFormat {
  TLineEnds LineEnds = TLineEnds::CrLf;
  bool ByteOrderMark = false;
};

/// A text whose lines end with CR LF, as the system's edit has it, and how its file spells it.
struct TText {
  std::string Text;
  TTextFormat Format;
  bool MixedLineEnds = false;  ///< The file has several kinds; Format has the most frequent one.
};

/// Files that are larger are refused: the system's edit would take minutes for them.
inline constexpr std::int64_t LargestFile = std::int64_t{8} << 20;

/// Reads a file. Raises EInOutError, with the name and the reason, for one that is not there, is a
/// folder, may not be read, is too large, or is no text: not UTF-8, or with a NUL byte in it.
TText ReadTextFile(const std::string& fileName);
/// What a file's bytes say; `name` is for the messages.
TText DecodeText(std::string_view bytes, const std::string& name);
/// The bytes of the text in the format. Line ends of any kind become that of the format.
std::string EncodeText(std::string_view text, const TTextFormat& format);
/// Replaces a file, or makes it: whenever the program ends, the file holds its former contents or
/// the new ones, and they are on the disk when this returns. Raises EInOutError; the file is as
/// before then.
void ReplaceContents(const std::string& fileName, const std::string& bytes);

}  // namespace notes
