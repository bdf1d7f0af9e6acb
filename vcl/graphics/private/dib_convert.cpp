// Converting pictures between depths.
#include <algorithm>
#include <unordered_map>

#include "vcl/graphics/private/dib.h"

namespace vcl {
namespace {

using TPalette = std::vector<std::uint32_t>;

/// The system's 16 colours, in its order.
constexpr std::uint32_t SixteenColors[] = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0x808080,
    0xC0C0C0, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

/// The 16 colours, a cube of 6 by 6 by 6, and greys.
TPalette ManyColors() {
  TPalette colors(std::begin(SixteenColors), std::end(SixteenColors));
  for (std::uint32_t i = 0; i < 216; ++i) {
    colors.push_back(i / 36 * 0x33 << 16 | i / 6 % 6 * 0x33 << 8 | i % 6 * 0x33);
  }
  for (std::uint32_t grey = 5; colors.size() < 256; grey += 10) colors.push_back(grey * 0x010101);
  return colors;
}

TPalette PaletteFor(const TDib& dib, int bitCount) {
  if (dib.BitCount > bitCount || bitCount > 8) return StandardPalette(bitCount);
  TPalette own = dib.Palette;
  own.resize(std::size_t{1} << bitCount);
  return own;
}

int Distance(std::uint32_t a, std::uint32_t b) {
  int sum = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const int difference =
        static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
    sum += difference * difference;
  }
  return sum;
}

/// Finds the nearest colours of a palette, each only once.
class TNearest {
 public:
  explicit TNearest(const TPalette& palette) : FPalette(palette) {}

  std::uint32_t operator()(std::uint32_t color) {
    const auto [known, isNew] = FKnown.try_emplace(color & 0xFFFFFF, 0);
    if (isNew) {
      const auto nearest = std::ranges::min_element(
          FPalette, {}, [color](std::uint32_t entry) { return Distance(entry, color); });
      known->second = static_cast<std::uint32_t>(nearest - FPalette.begin());
    }
    return known->second;
  }

 private:
  const TPalette& FPalette;
  std::unordered_map<std::uint32_t, std::uint32_t> FKnown;
};

std::uint32_t Widen(std::uint32_t value, std::uint32_t most) {
  return (value * 255 + most / 2) / most;
}

std::uint32_t FromSixteen(std::uint32_t pixel, bool sixBitGreen) {
  const std::uint32_t blue = Widen(pixel & 31, 31);
  const std::uint32_t green = sixBitGreen ? Widen(pixel >> 5 & 63, 63) : Widen(pixel >> 5 & 31, 31);
  const std::uint32_t red = Widen(pixel >> (sixBitGreen ? 11 : 10) & 31, 31);
  return red << 16 | green << 8 | blue;
}

std::uint32_t ToSixteen(std::uint32_t color, bool sixBitGreen) {
  const std::uint32_t red = color >> 19 & 31;
  const std::uint32_t blue = color >> 3 & 31;
  if (sixBitGreen) return red << 11 | (color >> 10 & 63) << 5 | blue;
  return red << 10 | (color >> 11 & 31) << 5 | blue;
}

/// The pixel's bits where it has less than a byte, else its bytes.
std::uint32_t GetPixelBits(std::span<const std::uint8_t> row, std::size_t x, int bitCount) {
  const auto bits = static_cast<std::size_t>(bitCount);
  if (bits < 8) {
    const std::size_t shift = 8 - bits - x * bits % 8;
    return row[x * bits / 8] >> shift & ((1U << bits) - 1);
  }
  std::uint32_t value = 0;
  for (std::size_t i = bits / 8; i-- > 0;) value = value << 8 | row[x * bits / 8 + i];
  return value;
}

void PutPixelBits(std::span<std::uint8_t> row, std::size_t x, int bitCount, std::uint32_t value) {
  const auto bits = static_cast<std::size_t>(bitCount);
  if (bits < 8) {
    const std::size_t shift = 8 - bits - x * bits % 8;
    row[x * bits / 8] = static_cast<std::uint8_t>(row[x * bits / 8] | value << shift);
    return;
  }
  for (std::size_t i = 0; i < bits / 8; ++i) {
    row[x * bits / 8 + i] = static_cast<std::uint8_t>(value >> 8 * i);
  }
}

}  // namespace

std::vector<std::uint32_t> StandardPalette(int bitCount) {
  if (bitCount > 8) return {};
  if (bitCount == 8) return ManyColors();
  if (bitCount == 4) return {std::begin(SixteenColors), std::end(SixteenColors)};
  return {0x000000, 0xFFFFFF};
}

std::vector<std::uint32_t> DibColors(const TDib& dib, int y) {
  std::vector<std::uint32_t> colors(static_cast<std::size_t>(dib.Width));
  const auto row = dib.Row(y);
  for (std::size_t x = 0; x < colors.size(); ++x) {
    const std::uint32_t pixel = GetPixelBits(row, x, dib.BitCount);
    colors[x] = dib.BitCount <= 8    ? dib.Palette[pixel]
                : dib.BitCount == 16 ? FromSixteen(pixel, dib.SixBitGreen)
                                     : pixel;
  }
  return colors;
}

TDib ConvertDib(const TDib& dib, int bitCount, bool sixBitGreen) {
  TDib result;
  result.Width = dib.Width;
  result.Height = dib.Height;
  result.BitCount = bitCount;
  result.SixBitGreen = sixBitGreen;
  result.Allocate();
  result.Palette = PaletteFor(dib, bitCount);
  TNearest nearest(result.Palette);
  for (int y = 0; y < dib.Height; ++y) {
    const auto colors = DibColors(dib, y);
    const auto row = result.Row(y);
    for (std::size_t x = 0; x < colors.size(); ++x) {
      const std::uint32_t color = colors[x];
      PutPixelBits(row, x, bitCount,
                   bitCount <= 8    ? nearest(color)
                   : bitCount == 16 ? ToSixteen(color, sixBitGreen)
                                    : color);
    }
  }
  return result;
}

}  // namespace vcl
