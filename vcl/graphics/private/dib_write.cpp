// Writing BMP files, always with a BITMAPINFOHEADER and the bottom row first.
#include <string>

#include "vcl/graphics/private/dib.h"
#include "vcl/rtl/streams.h"

namespace vcl {
namespace {

constexpr std::uint32_t FileHeaderSize = 14;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::uint32_t BitFields = 3;

void Put(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

std::string Headers(const TDib& dib) {
  const auto bits = static_cast<std::uint32_t>(dib.Bits.size());
  const std::uint32_t masks = dib.SixBitGreen ? 12 : 0;
  const auto colors = static_cast<std::uint32_t>(dib.Palette.size());
  const std::uint32_t offset = FileHeaderSize + InfoHeaderSize + masks + colors * 4;
  std::string bytes = "BM";
  Put(bytes, offset + bits, 4);
  Put(bytes, 0, 4);
  Put(bytes, offset, 4);
  Put(bytes, InfoHeaderSize, 4);
  Put(bytes, static_cast<std::uint32_t>(dib.Width), 4);
  Put(bytes, static_cast<std::uint32_t>(dib.Height), 4);
  Put(bytes, 1, 2);
  Put(bytes, static_cast<std::uint32_t>(dib.BitCount), 2);
  Put(bytes, dib.SixBitGreen ? BitFields : 0, 4);
  Put(bytes, bits, 4);
  Put(bytes, 0, 4);
  Put(bytes, 0, 4);
  Put(bytes, colors, 4);
  Put(bytes, 0, 4);
  return bytes;
}

}  // namespace

void WriteBmp(const TDib& dib, TStream& stream) {
  std::string bytes = Headers(dib);
  if (dib.SixBitGreen) {
    for (const std::uint32_t mask : {0xF800U, 0x07E0U, 0x001FU}) Put(bytes, mask, 4);
  }
  for (const std::uint32_t color : dib.Palette) Put(bytes, color & 0xFFFFFF, 4);
  stream.WriteText(bytes);
  stream.WriteBuffer(dib.Bits.data(), static_cast<std::int64_t>(dib.Bits.size()));
}

}  // namespace vcl
