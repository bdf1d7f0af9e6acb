// ICO files: reading them, choosing the image that fits, and writing them.
#include "vcl/graphics/private/iconfile.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "vcl/graphics/bitmap.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr std::size_t DirectorySize = 6;
constexpr std::size_t EntrySize = 16;
constexpr std::int64_t MostBytes = 64 << 20;
constexpr DWORD IconVersion = 0x00030000;

using TBytes = std::span<const unsigned char>;

[[noreturn]] void Invalid(const std::string& what) { throw EInvalidGraphic("The icon " + what); }

std::uint32_t Little(TBytes bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | bytes[at + i];
  return value;
}

void Put(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::size_t CountOf(TBytes file) { return Little(file, 4, 2); }

TIconImage ImageAt(TBytes file, std::size_t index) {
  const std::size_t at = DirectorySize + index * EntrySize;
  const auto side = [](unsigned char value) { return value ? int{value} : 256; };
  return {{side(file[at]), side(file[at + 1])},
          static_cast<int>(Little(file, at + 6, 2)),
          file.subspan(Little(file, at + 12, 4), Little(file, at + 8, 4))};
}

/// Appends bytes from the stream until there are `size` of them.
void ReadUpTo(std::vector<unsigned char>& file, TStream& stream, std::int64_t size) {
  const auto have = static_cast<std::int64_t>(file.size());
  if (size <= have) return;
  if (size > MostBytes || size - have > stream.Size() - stream.Position()) {
    Invalid(Concat("is cut off: it takes ", std::to_string(size), " bytes, of which ",
                   std::to_string(have + stream.Size() - stream.Position()), " are there"));
  }
  file.resize(static_cast<std::size_t>(size));
  stream.ReadBuffer(file.data() + have, size - have);
}

/// How far the last of the images reaches.
std::int64_t EndOf(TBytes file) {
  const std::size_t first = DirectorySize + CountOf(file) * EntrySize;
  std::int64_t end = 0;
  for (std::size_t i = 0; i < CountOf(file); ++i) {
    const std::size_t entry = DirectorySize + i * EntrySize;
    const std::uint32_t size = Little(file, entry + 8, 4);
    const std::uint32_t offset = Little(file, entry + 12, 4);
    if (size < 4 || offset < first) {
      Invalid(Concat("is damaged: image ", std::to_string(i), " has ", std::to_string(size),
                     " bytes at ", std::to_string(offset)));
    }
    end = std::max(end, std::int64_t{offset} + size);
  }
  return end;
}

}  // namespace

std::vector<unsigned char> ReadIconFile(TStream& stream) {
  std::vector<unsigned char> file;
  ReadUpTo(file, stream, DirectorySize);
  if (Little(file, 0, 2) != 0 || Little(file, 2, 2) != 1)
    Invalid("file does not begin as one does");
  if (CountOf(file) == 0) Invalid("file has no image");
  ReadUpTo(file, stream,
           std::int64_t{DirectorySize} + static_cast<std::int64_t>(CountOf(file)) * EntrySize);
  ReadUpTo(file, stream, EndOf(file));
  return file;
}

TIconImage BestIconImage(TBytes file, TSize wanted) {
  const auto farness = [wanted](const TIconImage& image) {
    return std::pair(std::abs(image.Size.cx - wanted.cx) + std::abs(image.Size.cy - wanted.cy),
                     -image.BitCount);
  };
  TIconImage best = ImageAt(file, 0);
  for (std::size_t i = 1; i < CountOf(file); ++i) {
    const TIconImage image = ImageAt(file, i);
    if (farness(image) < farness(best)) best = image;
  }
  return best;
}

TOwnedIcon MakeIcon(TBytes file, TSize wanted) {
  const TIconImage image = BestIconImage(file, wanted);
  // Asked for no size, the system makes the icon in the image's own.
  TOwnedIcon icon(::CreateIconFromResourceEx(const_cast<BYTE*>(image.Bytes.data()),
                                             static_cast<DWORD>(image.Bytes.size()), TRUE,
                                             IconVersion, 0, 0, LR_DEFAULTCOLOR));
  if (!icon) {
    Invalid(Concat("is damaged: the system refuses its image of ", std::to_string(image.Size.cx),
                   " by ", std::to_string(image.Size.cy), " pixels"));
  }
  return icon;
}

void WriteIconFile(HBITMAP colorHandle, HBITMAP maskHandle, TStream& stream) {
  TBitmap color;
  TBitmap mask;
  color.SetHandle(colorHandle);
  mask.SetHandle(maskHandle);
  mask.SetPixelFormat(pf1bit);
  const int width = mask.Width();
  const int height = color.Empty() ? mask.Height() / 2 : mask.Height();
  if (color.Empty()) {
    // An icon of black, white and holes: the lower half of its mask are the colours.
    color.SetPixelFormat(pf32bit);
    color.SetSize(width, height);
    color.Canvas()->CopyRect(Rect(0, 0, width, height), mask.Canvas(),
                             Rect(0, height, width, 2 * height));
  }
  color.SetPixelFormat(pf32bit);

  const std::uint32_t colorRow = static_cast<std::uint32_t>(width) * 4;
  const std::uint32_t maskRow = (static_cast<std::uint32_t>(width) + 31) / 32 * 4;
  const std::uint32_t pixels = (colorRow + maskRow) * static_cast<std::uint32_t>(height);
  constexpr std::uint32_t headerSize = sizeof(BITMAPINFOHEADER);
  std::string bytes;
  for (const std::uint32_t value : {0U, 1U, 1U}) Put(bytes, value, 2);
  Put(bytes, static_cast<std::uint32_t>(width) & 0xFF, 1);  // 256 is written as 0.
  Put(bytes, static_cast<std::uint32_t>(height) & 0xFF, 1);
  Put(bytes, 0, 2);
  Put(bytes, 1, 2);
  Put(bytes, 32, 2);
  Put(bytes, headerSize + pixels, 4);
  Put(bytes, DirectorySize + EntrySize, 4);
  BITMAPINFOHEADER header{};
  header.biSize = headerSize;
  header.biWidth = width;
  header.biHeight = 2 * height;  // The mask counts, too.
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biSizeImage = pixels;
  bytes.append(reinterpret_cast<const char*>(&header), headerSize);
  for (int y = height; y-- > 0;)
    bytes.append(static_cast<const char*>(color.ScanLine(y)), colorRow);
  for (int y = height; y-- > 0;) bytes.append(static_cast<const char*>(mask.ScanLine(y)), maskRow);
  stream.WriteText(bytes);
}

}  // namespace vcl
