// TGraphic, the base of pictures: bitmaps and icons.
#pragma once

#include <string>

#include "vcl/graphics/types.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/persistent.h"

namespace vcl {

class TCanvas;
class TStream;

/// A picture that can be drawn and kept in files.
class VCL_API TGraphic : public TPersistent {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  virtual bool Empty() const = 0;
  /// In pixels; 0 when there is no picture.
  virtual int Width() const = 0;
  virtual int Height() const = 0;
  /// Draws the whole picture stretched to the rectangle.
  virtual void Draw(TCanvas* canvas, const TRect& rect) = 0;

  /// Reads the picture from the stream's position and leaves the stream behind it. Raises
  /// EInvalidGraphic, with what was wrong, for data that is damaged, truncated or no picture of
  /// this kind; the old picture then stays.
  virtual void LoadFromStream(TStream& stream) = 0;
  /// Writes what LoadFromStream reads; nothing when there is no picture.
  virtual void SaveToStream(TStream& stream) const = 0;
  /// The same with a file; also raise EFOpenError and EFCreateError.
  void LoadFromFile(const std::string& fileName);
  void SaveToFile(const std::string& fileName) const;

  bool Transparent() const { return FTransparent; }
  virtual void SetTransparent(bool transparent);

  /// The picture, or how it is drawn, has changed.
  TNotifyEvent OnChange;

 protected:
  /// Keeps the picture in form files, as the bytes of the property "Data".
  void DefineProperties(TFiler& filer) override;
  /// The bytes in a form file: those of the picture's file, unless a class puts more around them.
  virtual void ReadData(TStream& stream);
  virtual void WriteData(TStream& stream) const;
  virtual void Changed();
  /// Sets Transparent as part of a greater change, which is announced by who makes it.
  void AssignTransparent(bool transparent) { FTransparent = transparent; }

 private:
  friend class TPicture;
  bool FTransparent = false;
};

}  // namespace vcl
