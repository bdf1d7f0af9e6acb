// Bitmaps as PNG files.
#pragma once

#include <string>

#include "vcl/graphics/bitmap.h"

namespace vcl {

/// Writes the bitmap to a stream as a PNG (RFC 2083) of 24 bits a pixel, whatever its own depth.
/// Raises EInvalidGraphic for an empty bitmap, EOutOfResources when the system cannot encode it,
/// and what the stream raises.
VCL_API void SavePng(const TBitmap& bitmap, TStream& stream);
/// The same, to a file, which is opened when the picture is encoded. Raises EFCreateError and
/// EWriteError too.
VCL_API void SavePng(const TBitmap& bitmap, const std::string& fileName);

}  // namespace vcl
