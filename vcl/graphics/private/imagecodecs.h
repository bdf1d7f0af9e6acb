// Decoding and encoding of pictures by the system.
#pragma once

#include <string>
#include <vector>

#include "vcl/graphics/bitmap.h"

namespace vcl {

/// The pixels of a coded picture.
struct TDecodedImage {
  int Width = 0;
  int Height = 0;
  /// From the top; blue, green, red, and how much the pixel covers, by which they are multiplied.
  std::vector<unsigned char> Pixels;
};

/// The first picture of the data, whose format is the one with that MIME type. By the Windows
/// Imaging Component. Raises EInvalidGraphic for data of another format, damaged data and for more
/// than 64 million pixels; EOutOfResources when the system cannot decode at all.
TDecodedImage DecodeImage(const std::vector<unsigned char>& data, const std::string& mimeType);

/// The bitmap of 24 bits a pixel in the format with that MIME type. By GDI+. Raises EOutOfResources
/// when the system cannot encode it.
std::vector<unsigned char> EncodeImage(const TBitmap& bitmap, const std::string& mimeType);

}  // namespace vcl
