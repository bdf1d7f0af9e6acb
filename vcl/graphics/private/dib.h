// A picture as plain pixels in memory, and the file format BMP that it is read from and written to.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vcl {

class TStream;

/// Pixels as they lie in a file: the bottom row first, each row padded to 4 bytes.
struct TDib {
  int Width = 0;
  int Height = 0;
  int BitCount = 0;                    ///< 1, 4 or 8 (indexes into the palette), 16, 24 or 32.
  bool SixBitGreen = false;            ///< Of 16 bits, green has 6; else each channel has 5.
  std::vector<std::uint32_t> Palette;  ///< 0x00RRGGBB; 2 to the power of BitCount entries.
  std::vector<std::uint8_t> Bits;

  std::size_t Stride() const;
  /// Makes the pixels, all zero, and the palette, all black. Raises EInvalidGraphic for a size
  /// below 1 by 1 or beyond what is taken for a picture.
  void Allocate();
  /// A row, 0 at the top.
  std::span<std::uint8_t> Row(int y);
  std::span<const std::uint8_t> Row(int y) const;
};

/// The bytes of a row of that many pixels.
std::int64_t DibStride(std::int64_t width, int bitCount);
/// Raises EInvalidGraphic, with the numbers, for what is no size of a picture or takes too much
/// memory.
void CheckDibSize(std::int64_t width, std::int64_t height, int bitCount);

/// Reads a BMP file from the stream's position on and leaves the stream behind its pixels. Raises
/// EInvalidGraphic with what is wrong.
TDib ReadBmp(TStream& stream);
/// The same without the file's header, as resources hold it.
TDib ReadBmpResource(TStream& stream);
void WriteBmp(const TDib& dib, TStream& stream);

/// The colours of new pictures of a depth; none above 8 bits.
std::vector<std::uint32_t> StandardPalette(int bitCount);
/// The picture at another depth: in the nearest colours of a standard palette where the new depth
/// has one, of its own palette where that fits.
TDib ConvertDib(const TDib& dib, int bitCount, bool sixBitGreen);
/// The pixels of a row as 0xAARRGGBB; without an alpha channel AA is 0.
std::vector<std::uint32_t> DibColors(const TDib& dib, int y);

/// Unpacks run-length coded pixels (of 8 or 4 bits a pixel, as `dib` has) into the allocated
/// picture. Raises EInvalidGraphic for runs that leave the picture or end before it does.
void UnpackRuns(std::span<const std::uint8_t> coded, TDib& dib);

}  // namespace vcl
