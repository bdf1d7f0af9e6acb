// The sizes in the headers of PNG (ISO/IEC 15948), GIF (GIF89a) and JPEG (ITU-T T.81).
#include "vcl/graphics/private/imagesize.h"

#include <string_view>

namespace vcl {
namespace {

/// A number of the data; 0 beyond its end.
struct TNumbers {
  const std::vector<unsigned char>& Data;

  std::uint32_t Byte(std::size_t at) const { return at < Data.size() ? Data[at] : 0; }
  std::uint32_t BigEndian(std::size_t at, int bytes) const {
    std::uint32_t number = 0;
    for (int i = 0; i < bytes; ++i) number = number << 8 | Byte(at + static_cast<std::size_t>(i));
    return number;
  }
  std::uint32_t LittleEndian16(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8; }
};

/// Whether the segment holds the frame's size: SOF0 to SOF15, among which lie three others.
bool IsStartOfFrame(std::uint32_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

TImageSize JpegSize(const TNumbers& numbers) {
  std::size_t at = 2;
  while (at + 9 <= numbers.Data.size() && numbers.Byte(at) == 0xFF) {
    const std::uint32_t marker = numbers.Byte(at + 1);
    if (marker == 0xFF) {
      ++at;  // Filled up.
      continue;
    }
    if (IsStartOfFrame(marker)) {
      return {numbers.BigEndian(at + 7, 2), numbers.BigEndian(at + 5, 2)};
    }
    at += 2 + numbers.BigEndian(at + 2, 2);
  }
  return {};
}

}  // namespace

TImageSize CodedImageSize(const std::vector<unsigned char>& data) {
  const TNumbers numbers{data};
  const std::string_view text(reinterpret_cast<const char*>(data.data()), data.size());
  if (text.starts_with("\x89PNG")) return {numbers.BigEndian(16, 4), numbers.BigEndian(20, 4)};
  if (text.starts_with("GIF8")) return {numbers.LittleEndian16(6), numbers.LittleEndian16(8)};
  if (text.starts_with("\xFF\xD8")) return JpegSize(numbers);
  return {};
}

}  // namespace vcl
