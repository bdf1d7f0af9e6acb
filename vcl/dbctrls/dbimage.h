// TDBImage: a picture in a field.
#pragma once

#include <memory>
#include <string>

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/graphics/picture.h"

namespace vcl {

/// Shows the picture whose file's bytes the field holds: PNG, JPEG, GIF, BMP or an icon, which its
/// first bytes tell. What is none is told of in the picture's place. Ctrl+C, Ctrl+X and Ctrl+V
/// copy, cut and paste it, Del takes it out; a picture that is pasted is kept as PNG.
class VCL_API TDBImage : public TFieldEditor<TCustomControl> {
 public:
  explicit TDBImage(TComponent* owner);
  ~TDBImage() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TPicture* Picture() const { return FPicture.get(); }
  /// Shows another picture, which is written into the field as what the user changes. Raises
  /// EDatabaseError where the record cannot be edited.
  void SetPicture(const TPicture* picture);
  bool AutoDisplay() const { return FAutoDisplay; }
  /// False: the picture is shown when the user asks for it, by Enter or a double click, which
  /// spares the time for large ones.
  void SetAutoDisplay(bool autoDisplay);
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// bsSingle for a border, bsNone for none.
  void SetBorderStyle(TBorderStyle style);
  bool Center() const { return FCenter; }
  /// The picture stands in the middle instead of at the top left.
  void SetCenter(bool center);
  bool Proportional() const { return FProportional; }
  /// A picture that is too large is made smaller, and with Stretch any is made to fit, without
  /// being distorted.
  void SetProportional(bool proportional);
  bool Stretch() const { return FStretch; }
  /// The picture is stretched to the control's size.
  void SetStretch(bool stretch);

  /// Shows the picture of the current record.
  void LoadPicture();
  /// Copies the picture to the clipboard; nothing without one.
  void CopyToClipboard();
  /// Copies it and takes it out of the field.
  void CutToClipboard();
  /// Puts the clipboard's picture into the field; nothing when it has none.
  void PasteFromClipboard();
  /// Where the picture is drawn.
  TRect PictureRect() const;

 protected:
  /// What stands in the place of bytes that are no picture. Here: `error`, why they are none.
  virtual std::string NoteFor(const std::string& /*bytes*/, const std::string& error) const {
    return error;
  }
  void ShowField() override;
  void WriteField() override;
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  void DblClick() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  void Paint() override;

 private:
  void Change(bool& field, bool value);
  void ShowBytes(const std::string& bytes);
  bool TakePicture(const TGraphic* graphic);

  std::unique_ptr<TPicture> FPicture;
  std::string FNote;  // What stands in the place of a picture.
  bool FLoaded = true;
  bool FAutoDisplay = true;
  bool FCenter = true;
  bool FProportional = false;
  bool FStretch = false;
  TBorderStyle FBorderStyle = bsSingle;
};

}  // namespace vcl
