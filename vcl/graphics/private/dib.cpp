// A picture's pixels in memory: the size of rows, and what size is refused.
#include "vcl/graphics/private/dib.h"

#include <string>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// What a picture's pixels may take, so that a damaged header cannot ask for all of memory.
constexpr std::int64_t MostBytes = 256 << 20;
/// The system's own bound for coordinates on devices.
constexpr std::int64_t MostPixels = 1 << 27;

}  // namespace

std::int64_t DibStride(std::int64_t width, int bitCount) {
  return (width * bitCount + 31) / 32 * 4;
}

void CheckDibSize(std::int64_t width, std::int64_t height, int bitCount) {
  const bool sensible = width > 0 && height > 0 && width <= MostPixels && height <= MostPixels;
  if (sensible && DibStride(width, bitCount) * height <= MostBytes) return;
  throw EInvalidGraphic(Concat("A bitmap cannot be ", std::to_string(width), " by ",
                               std::to_string(height), " pixels of ", std::to_string(bitCount),
                               " bits large"));
}

std::size_t TDib::Stride() const { return static_cast<std::size_t>(DibStride(Width, BitCount)); }

void TDib::Allocate() {
  CheckDibSize(Width, Height, BitCount);
  Bits.assign(Stride() * static_cast<std::size_t>(Height), 0);
  Palette.assign(BitCount <= 8 ? std::size_t{1} << BitCount : 0, 0);
}

std::span<std::uint8_t> TDib::Row(int y) {
  return std::span(Bits).subspan(Stride() * static_cast<std::size_t>(Height - 1 - y), Stride());
}

std::span<const std::uint8_t> TDib::Row(int y) const {
  return std::span(Bits).subspan(Stride() * static_cast<std::size_t>(Height - 1 - y), Stride());
}

}  // namespace vcl
