// Files of the format ICO: several images of one icon, each in its size and depth.
#pragma once

#include <span>
#include <vector>

#include "vcl/graphics/handles.h"
#include "vcl/graphics/types.h"

namespace vcl {

class TStream;

struct TIconImage {
  TSize Size;
  int BitCount = 0;
  std::span<const unsigned char> Bytes;  ///< Within the file.
};

/// Reads a whole ICO file from the stream and leaves the stream behind its last image. Raises
/// EInvalidGraphic, with what is wrong, for anything else.
std::vector<unsigned char> ReadIconFile(TStream& stream);
/// The image nearest the size; of several, the one of most colours. The file has been checked.
TIconImage BestIconImage(std::span<const unsigned char> file, TSize wanted);
/// The icon of that image. Raises EInvalidGraphic when the system refuses it.
TOwnedIcon MakeIcon(std::span<const unsigned char> file, TSize wanted);
/// Writes an ICO file of one image of 32 bits; takes over the two bitmaps that GetIconInfo made.
void WriteIconFile(HBITMAP color, HBITMAP mask, TStream& stream);

}  // namespace vcl
