// TImage: a picture on a form.
#pragma once

#include <memory>

#include "vcl/controls/control.h"
#include "vcl/graphics/picture.h"

namespace vcl {

/// A control without a window that shows a picture.
class VCL_API TImage : public TGraphicControl {
 public:
  explicit TImage(TComponent* owner);
  ~TImage() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TPicture* Picture() const { return FPicture.get(); }
  /// The picture that is shown.
  void SetPicture(const TPicture* picture) { FPicture->Assign(picture); }
  bool AutoSize() const { return FAutoSize; }
  /// The control takes the picture's size.
  void SetAutoSize(bool autoSize);
  bool Center() const { return FCenter; }
  /// The picture stands in the middle instead of at the top left.
  void SetCenter(bool center) { Change(FCenter, center); }
  bool Stretch() const { return FStretch; }
  /// The picture is stretched to the control's size.
  void SetStretch(bool stretch) { Change(FStretch, stretch); }
  bool Transparent() const { return FTransparent; }
  /// What is behind shows where a bitmap has its transparent colour.
  void SetTransparent(bool transparent);

 protected:
  void Paint() override;

 private:
  void Change(bool& field, bool value);
  void PictureChanged(TObject* sender);
  TRect PictureRect() const;

  std::unique_ptr<TPicture> FPicture;
  bool FAutoSize = false;
  bool FCenter = false;
  bool FStretch = false;
  bool FTransparent = false;
};

}  // namespace vcl
