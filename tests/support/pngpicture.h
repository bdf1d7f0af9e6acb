// Reads PNG files for tests: the file's structure by hand, the pixels by the system's decoder.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "vcl/rtl/colors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <objidl.h>

#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

namespace testing_support {

inline std::vector<unsigned char> FileBytes(const std::string& fileName) {
  std::ifstream file(fileName, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::uint32_t BigEndian(const unsigned char* bytes) {
  return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
         std::uint32_t{bytes[2]} << 8 | bytes[3];
}

/// The CRC of a chunk's type and data (RFC 2083, section 15).
inline std::uint32_t ChunkCrc(const unsigned char* bytes, std::size_t count) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (std::size_t i = 0; i < count; ++i) {
    crc ^= bytes[i];
    for (int bit = 0; bit < 8; ++bit) crc = crc & 1 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
  }
  return ~crc;
}

/// The types of the file's chunks, separated by blanks. Raises an error for what is no PNG.
inline std::string PngChunks(const std::vector<unsigned char>& bytes) {
  constexpr unsigned char signature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  if (bytes.size() < 8 || std::memcmp(bytes.data(), signature, 8) != 0)
    throw std::runtime_error("no PNG signature");
  std::string types;
  for (std::size_t at = 8; at < bytes.size();) {
    if (bytes.size() - at < 12) throw std::runtime_error("a chunk is cut off");
    const std::size_t length = BigEndian(&bytes[at]);
    if (bytes.size() - at - 12 < length) throw std::runtime_error("a chunk is too long");
    if (ChunkCrc(&bytes[at + 4], length + 4) != BigEndian(&bytes[at + 8 + length]))
      throw std::runtime_error("a chunk's CRC is wrong");
    types += (types.empty() ? "" : " ") + std::string(&bytes[at + 4], &bytes[at + 8]);
    at += length + 12;
  }
  return types;
}

/// The pixels of a picture file.
class TPicture {
 public:
  /// Raises an error for a file that cannot be read.
  explicit TPicture(const std::string& fileName) {
    namespace gdip = Gdiplus::DllExports;
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Check(Gdiplus::GdiplusStartup(&token, &input, nullptr));
    Gdiplus::GpBitmap* image = nullptr;
    Check(gdip::GdipCreateBitmapFromFile(vcl::ToUtf16(fileName).c_str(), &image));
    UINT width = 0, height = 0;
    Check(gdip::GdipGetImageWidth(image, &width));
    Check(gdip::GdipGetImageHeight(image, &height));
    Width = static_cast<int>(width);
    Height = static_cast<int>(height);
    for (int y = 0; y < Height; ++y) {
      for (int x = 0; x < Width; ++x) {
        Gdiplus::ARGB argb = 0;
        Check(gdip::GdipBitmapGetPixel(image, x, y, &argb));
        FPixels.push_back(argb);
      }
    }
    gdip::GdipDisposeImage(image);
    Gdiplus::GdiplusShutdown(token);
  }

  int Width = 0;
  int Height = 0;
  vcl::TColor At(int x, int y) const {
    const auto argb = FPixels.at(static_cast<std::size_t>(y * Width + x));
    return static_cast<vcl::TColor>((argb & 0xFF) << 16 | (argb & 0xFF00) | (argb >> 16 & 0xFF));
  }
  /// How many different colours the picture has.
  std::size_t ColorCount() const {
    auto colors = FPixels;
    std::sort(colors.begin(), colors.end());
    return static_cast<std::size_t>(std::unique(colors.begin(), colors.end()) - colors.begin());
  }
  friend bool operator==(const TPicture&, const TPicture&) = default;

 private:
  static void Check(Gdiplus::GpStatus status) {
    if (status != Gdiplus::Ok) throw std::runtime_error("GDI+ cannot read the picture");
  }
  std::vector<std::uint32_t> FPixels;
};

}  // namespace testing_support
