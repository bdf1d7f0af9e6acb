// How large a coded picture says that it is, before anything is decoded.
#pragma once

#include <cstdint>
#include <vector>

namespace vcl {

struct TImageSize {
  std::uint32_t Width = 0;
  std::uint32_t Height = 0;
};

/// What the header of a PNG, JPEG or GIF says; 0 by 0 for anything else and for what is cut off.
TImageSize CodedImageSize(const std::vector<unsigned char>& data);

}  // namespace vcl
