// Decoding and encoding text files, and replacing them whole.
#include "demos/notes/textfile.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace notes {

using namespace vcl;

namespace {

constexpr std::string_view Mark = "\xEF\xBB\xBF";
constexpr std::string_view Ends[] = {"\r\n", "\n", "\r"};

/// What the first and the second byte of a character may be, and its length (Unicode, table 3-7).
struct TForm {
  unsigned char First, Last;
  std::size_t Length;
  unsigned char SecondFirst, SecondLast;
};
constexpr TForm Forms[] = {
    {0x00, 0x7F, 1, 0, 0},       {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the character that the bytes begin with; 0 for none.
std::size_t CharacterLength(std::string_view bytes) {
  const auto within = [&](std::size_t at, unsigned char first, unsigned char last) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    return byte >= first && byte <= last;
  };
  for (const TForm& form : Forms) {
    if (!within(0, form.First, form.Last)) continue;
    if (bytes.size() < form.Length) return 0;
    if (form.Length > 1 && !within(1, form.SecondFirst, form.SecondLast)) return 0;
    for (std::size_t i = 2; i < form.Length; ++i)
      if (!within(i, 0x80, 0xBF)) return 0;
    return form.Length;
  }
  return 0;
}

[[noreturn]] void Refuse(const std::string& name, const std::string& reason) {
  throw EInOutError(Concat(name, " ", reason));
}

void CheckText(std::string_view bytes, const std::string& name) {
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = CharacterLength(bytes.substr(at));
    if (bytes[at] == '\0')
      Refuse(name, Concat("is no text file: byte ", std::to_string(at + 1), " is a NUL"));
    if (length == 0)
      Refuse(name, Concat("is no text file in UTF-8: byte ", std::to_string(at + 1),
                          " belongs to no character"));
    at += length;
  }
}

/// Calls `line` for each line and the kind of its end; the last one has none.
template <class F>
void EachLine(std::string_view text, F line) {
  for (;;) {
    const auto end = text.find_first_of("\r\n");
    if (end == std::string_view::npos) return line(text, nullptr);
    TLineEnds kind = text[end] == '\n' ? TLineEnds::Lf : TLineEnds::Cr;
    if (text.substr(end).starts_with("\r\n")) kind = TLineEnds::CrLf;
    line(text.substr(0, end), &kind);
    text.remove_prefix(end + Ends[static_cast<int>(kind)].size());
  }
}

std::string WithEnds(std::string_view text, TLineEnds ends) {
  std::string result;
  result.reserve(text.size());
  EachLine(text, [&](std::string_view line, const TLineEnds* end) {
    result += line;
    if (end) result += Ends[static_cast<int>(ends)];
  });
  return result;
}

}  // namespace

TText DecodeText(std::string_view bytes, const std::string& name) {
  CheckText(bytes, name);
  TText result;
  result.Format.ByteOrderMark = bytes.starts_with(Mark);
  if (result.Format.ByteOrderMark) bytes.remove_prefix(Mark.size());
  int counts[3] = {};
  EachLine(bytes, [&](std::string_view, const TLineEnds* end) {
    if (end) ++counts[static_cast<int>(*end)];
  });
  const auto* most = std::max_element(std::begin(counts), std::end(counts));
  result.Format.LineEnds = static_cast<TLineEnds>(most - counts);
  result.MixedLineEnds = *most < counts[0] + counts[1] + counts[2];
  result.Text = WithEnds(bytes, TLineEnds::CrLf);
  return result;
}

std::string EncodeText(std::string_view text, const TTextFormat& format) {
  return std::string(format.ByteOrderMark ? Mark : "") + WithEnds(text, format.LineEnds);
}

TText ReadTextFile(const std::string& fileName) {
  if (DirectoryExists(fileName)) Refuse(fileName, "is a folder");
  if (!FileExists(fileName)) RaiseLastOSError<EInOutError>(fileName, " cannot be opened");
  TFileStream file(fileName, fmOpenRead | fmShareDenyNone);
  if (file.Size() > LargestFile) {
    Refuse(fileName,
           Concat("is too large: it has ", std::to_string(file.Size() >> 20), " MB, and at most ",
                  std::to_string(LargestFile >> 20), " MB can be edited"));
  }
  return DecodeText(file.ReadRest(), fileName);
}

void ReplaceContents(const std::string& fileName, const std::string& bytes) {
  if (DirectoryExists(fileName)) Refuse(fileName, "is a folder");
  if (FileIsReadOnly(fileName)) Refuse(fileName, "cannot be saved: it may only be read");
  ReplaceWholeFile(fileName, bytes);
}

}  // namespace notes
