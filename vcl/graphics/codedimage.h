// TCodedImage: pictures of the formats that the system's imaging component decodes; TPngImage,
// TJpegImage and TGifImage.
#pragma once

#include <memory>
#include <vector>

#include "vcl/graphics/bitmap.h"

namespace vcl {

struct TImageFormat;

/// A picture that stays as its file has it and is shown from its decoded pixels, with what they
/// cover only in part. Of several pictures in a file the first one is shown.
class VCL_API TCodedImage : public TGraphic {
 public:
  ~TCodedImage() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies a coded image of the same format as it is; one of another format, a bitmap or an icon
  /// is coded anew. Null makes it empty. Raises EOutOfResources when the system cannot code it.
  void Assign(const TPersistent* source) override;

  bool Empty() const override { return FData.empty(); }
  int Width() const override { return FPixels.Width(); }
  int Height() const override { return FPixels.Height(); }
  /// Whether there are pixels that do not cover all that is behind them.
  bool HasAlpha() const { return FHasAlpha; }
  /// The decoded pixels: 32 bits, colours multiplied by the fourth byte, how much they cover.
  const TBitmap& Pixels() const { return FPixels; }
  void Draw(TCanvas* canvas, const TRect& rect) override;

  /// Reads all that is left of the stream. Refuses, with EInvalidGraphic, a picture of more than 64
  /// million pixels before it decodes it.
  void LoadFromStream(TStream& stream) override;
  void SaveToStream(TStream& stream) const override;

 protected:
  explicit TCodedImage(const TImageFormat& format);
  /// Copies the picture into a bitmap, over white.
  void AssignTo(TPersistent* dest) const override;

 private:
  void Take(std::vector<unsigned char> data);
  void Encode(const TBitmap& bitmap);

  const TImageFormat& FFormat;
  std::vector<unsigned char> FData;
  TBitmap FPixels;
  bool FHasAlpha = false;
};

/// A picture of the format PNG (ISO/IEC 15948).
class VCL_API TPngImage : public TCodedImage {
 public:
  TPngImage();
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// A picture of the format JPEG (ITU-T T.81).
class VCL_API TJpegImage : public TCodedImage {
 public:
  TJpegImage();
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// A picture of the format GIF (GIF89a).
class VCL_API TGifImage : public TCodedImage {
 public:
  TGifImage();
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
