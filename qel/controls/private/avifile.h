// The pictures of an AVI file, by the system's video library.
#pragma once

#include <memory>
#include <string>

#include "vcl/graphics/bitmap.h"

namespace qel {

/// An open AVI file. The system's library is loaded while there is one.
class TAviFile {
 public:
  /// Raises EQELAnimatorError, with the file's name and the cause, for a file that the system can't
  /// play.
  explicit TAviFile(const std::string& fileName);
  ~TAviFile();
  TAviFile(const TAviFile&) = delete;
  TAviFile& operator=(const TAviFile&) = delete;

  int FrameCount() const { return FFrameCount; }
  /// Draws the frame on the bitmap, which gets its size; false for a frame that can't be decoded.
  bool GetFrame(int index, vcl::TBitmap& frame) const;

 private:
  struct TVideo;
  std::unique_ptr<TVideo> FVideo;
  int FFrameCount = 0;
};

}  // namespace qel
