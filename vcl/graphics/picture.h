// TPicture: a picture of any kind.
#pragma once

#include <memory>
#include <string>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/codedimage.h"
#include "vcl/graphics/icon.h"

namespace vcl {

/// Holds a bitmap, an icon or a coded image. A form file keeps the kind's class name in front of
/// its data.
class VCL_API TPicture : public TPersistent {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another picture or a graphic; null makes it empty.
  void Assign(const TPersistent* source) override;

  /// What it holds; null when it is empty.
  TGraphic* Graphic() const { return FGraphic.get(); }
  void SetGraphic(const TGraphic* graphic) { Assign(graphic); }
  /// The bitmap resp. icon that it holds. When it holds none of the kind, an empty one takes the
  /// place of what it holds.
  TBitmap* Bitmap();
  TIcon* Icon();
  /// In pixels; 0 when it is empty.
  int Width() const { return FGraphic ? FGraphic->Width() : 0; }
  int Height() const { return FGraphic ? FGraphic->Height() : 0; }
  /// Reads a file as its extension says (.bmp, .ico, .png, .jpg, .jpeg, .gif). Raises
  /// EInvalidGraphic for others, and what the kind's reading raises; the old picture then stays.
  void LoadFromFile(const std::string& fileName);
  /// Writes what it holds; nothing when it is empty.
  void SaveToFile(const std::string& fileName) const;

  TNotifyEvent OnChange;

 protected:
  void DefineProperties(TFiler& filer) override;

 private:
  void Take(std::unique_ptr<TGraphic> graphic);
  void ReadData(TStream& stream);
  void WriteData(TStream& stream) const;

  std::unique_ptr<TGraphic> FGraphic;
};

}  // namespace vcl
