// An AVI file: chunks of a name, a size and bytes, some of them lists of others (RIFF; the headers
// are AVIMAINHEADER, AVISTREAMHEADER and BITMAPINFOHEADER).
#include "demos/gallery/clip.h"

#include <cstdint>
#include <initializer_list>

namespace gallery {

namespace {

std::string Numbers(std::initializer_list<std::uint32_t> numbers) {
  std::string bytes;
  for (const std::uint32_t number : numbers) {
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
  }
  return bytes;
}

std::string Chunk(const std::string& name, const std::string& bytes) {
  const auto size = static_cast<std::uint32_t>(bytes.size());
  return name + Numbers({size}) + bytes + std::string(size % 2, '\0');
}

/// The pixels of one frame, the lowest row first.
std::string Frame(const vcl::TBitmap& strip, int left, int width) {
  std::string pixels;
  for (int row = strip.Height() - 1; row >= 0; --row) {
    const auto* line = static_cast<const char*>(strip.ScanLine(row));
    pixels.append(line + std::ptrdiff_t{3} * left, static_cast<std::size_t>(width) * 3);
  }
  return pixels;
}

}  // namespace

std::string ClipOf(const vcl::TBitmap& strip, int frames) {
  vcl::TBitmap pixels;
  pixels.Assign(&strip);
  pixels.SetPixelFormat(vcl::pf24bit);
  const int side = strip.Width() / frames;
  const auto count = static_cast<std::uint32_t>(frames);
  const auto width = static_cast<std::uint32_t>(side);
  const auto height = static_cast<std::uint32_t>(strip.Height());
  const std::uint32_t size = width * height * 3;
  constexpr std::uint32_t microseconds = 80'000;
  constexpr std::uint32_t hasIndex = 0x10;
  constexpr std::uint32_t keyFrame = 0x10;

  std::string movie = "movi";
  std::string index;
  for (int i = 0; i < frames; ++i) {
    index += "00db" + Numbers({keyFrame, static_cast<std::uint32_t>(movie.size()), size});
    movie += Chunk("00db", Frame(pixels, i * side, side));
  }
  const std::string head =
      Numbers({microseconds, 0, 0, hasIndex, count, 0, 1, size, width, height, 0, 0, 0, 0});
  const std::string stream = "vidsDIB " + Numbers({0, 0, 0, microseconds, 1'000'000, 0, count, size,
                                                   0xFFFFFFFF, 0, 0, height << 16 | width});
  const std::string format = Numbers({40, width, height, 24u << 16 | 1u, 0, size, 0, 0, 0, 0});
  const std::string list = "strl" + Chunk("strh", stream) + Chunk("strf", format);
  return Chunk("RIFF", "AVI " + Chunk("LIST", "hdrl" + Chunk("avih", head) + Chunk("LIST", list)) +
                           Chunk("LIST", movie) + Chunk("idx1", index));
}

}  // namespace gallery
