// TQELBackground: a fill - gradient, picture, colour or brush pattern - that any number of controls
// paint themselves on; TQELGradient, TQELTexture and TQELBrushFill, its settings.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"
#include "vcl/graphics/graphics.h"
#include "vcl/rtl/strings.h"

namespace qel {

class TPictureCache;
class TSurface;

/// Which of its five fills a background paints.
enum TQELBackStyle {
  bGradient,
  bTexture,
  bSolidcolor,
  bBrushFillUseCurrent,  ///< A brush pattern on white.
  bBrushFillSolidColor   ///< A brush pattern on the background's SolidColor.
};

/// The shape in which a gradient goes from colour to colour.
enum TQELFillStyle {
  Circle,      ///< A fan of lines through the centre.
  Horizontal,  ///< From top to bottom.
  Vertical,    ///< From left to right.
  LeftBottom,  ///< From the top left corner to the bottom right one.
  RoundMiddle,
  SquareMiddle,
  Spectral,  ///< A fan whose lines alternate between a colour and its opposite.
  DoppelFlash,
  Singleflash,
  MiddleHBar,
  MiddleVBar,
  VerticalDoppelBar,
  HorizontalDoppelBar
};

/// How a picture fills the area.
enum TQELImageStyle { isTile, isCenter, isStretched };

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELBackStyle>{
    "TQELBackStyle", "bGradient bTexture bSolidcolor bBrushFillUseCurrent bBrushFillSolidColor"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELFillStyle>{
    "TQELFillStyle",
    "Circle Horizontal Vertical LeftBottom RoundMiddle SquareMiddle Spectral DoppelFlash "
    "Singleflash "
    "MiddleHBar MiddleVBar VerticalDoppelBar HorizontalDoppelBar"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELImageStyle>{"TQELImageStyle",
                                                                   "isTile isCenter isStretched"};

namespace qel {

/// Colours in a row, each fading into the next, in one of thirteen shapes.
class QEL_API TQELGradient : public vcl::TGraphicsObject {
 public:
  TQELGradient();
  ~TQELGradient() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another gradient's settings.
  void Assign(const vcl::TPersistent* source) override;

  vcl::TColor BeginColor() const { return FBeginColor; }
  /// The first colour.
  void SetBeginColor(vcl::TColor color);
  vcl::TColor EndColor() const { return FEndColor; }
  /// The last colour.
  void SetEndColor(vcl::TColor color);
  TQELFillStyle FillStyle() const { return FFillStyle; }
  /// The shape of the gradient.
  void SetFillStyle(TQELFillStyle style);
  int ColorCount() const { return FColorCount; }
  /// The number of steps between each two neighbouring colours. With 1, each pair is painted in its
  /// first colour; with 0 or less, the first colour of all fills the area.
  void SetColorCount(int count);
  /// The colours between the first and the last, one name or number a line, as StringToColor reads
  /// them.
  vcl::TStrings* ColorsInBetween() const { return FColorsInBetween.get(); }
  void SetColorsInBetween(const vcl::TStrings* colors);

  /// Paints the rectangle (0, 0, width, height) with the first colour, `colors` and the last one;
  /// the first and the last change places unless `forward`. A line that says no colour counts as
  /// `color`, as an error raised while painting would come again with every repaint. Sizes of 0 or
  /// less paint nothing. What was painted is kept and copied when it is asked for again. Raises
  /// EOutOfResources for a size that the system refuses.
  void MultiDraw(HDC dc, int width, int height, const vcl::TStrings* colors, vcl::TColor color,
                 bool forward);

 protected:
  void Changed() override;

 private:
  vcl::TColor FBeginColor = vcl::clSilver;
  vcl::TColor FEndColor = vcl::clGray;
  TQELFillStyle FFillStyle = Horizontal;
  int FColorCount = 32;
  std::unique_ptr<vcl::TStringList> FColorsInBetween;
  bool FAssigning = false;
  std::unique_ptr<TPictureCache> FPictures;
};

/// A picture: tiled, centred or stretched.
class QEL_API TQELTexture : public vcl::TGraphicsObject {
 public:
  TQELTexture();
  ~TQELTexture() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another texture's settings and picture.
  void Assign(const vcl::TPersistent* source) override;

  /// The picture that is painted; an empty one paints nothing.
  vcl::TBitmap* Image() const { return FImage.get(); }
  /// Copies the picture; null for none.
  void SetImage(const vcl::TBitmap* image);
  TQELImageStyle ImageStyle() const { return FImageStyle; }
  /// Whether the picture is tiled, centred or stretched.
  void SetImageStyle(TQELImageStyle style);
  vcl::TColor TransparentColor() const { return FTransparentColor; }
  /// The picture's pixels of this colour are painted in TransparentBackground; clNone for none.
  void SetTransparentColor(vcl::TColor color);
  vcl::TColor TransparentBackground() const { return FTransparentBackground; }
  /// The colour in which the picture's pixels of TransparentColor are painted.
  void SetTransparentBackground(vcl::TColor color);

  /// Paints the area from (0, 0) with the picture; nothing when there is none. Tiles at the right
  /// and bottom edges are painted whole, beyond the area too where the context shows it, and the
  /// area may be as large as an int says; around a centred picture nothing is painted. `color`
  /// becomes the context's background colour where the picture is centred.
  void Draw(HDC dc, int width, int height, vcl::TColor color);

 protected:
  void Changed() override;

 private:
  void DrawTiled(HDC dc, int width, int height);
  void DrawCentered(HDC dc, int width, int height, vcl::TColor color);
  void DrawStretched(HDC dc, int width, int height);
  const TSurface& Source();
  const TSurface& PictureOfTiles(std::int64_t width, std::int64_t height);
  std::vector<int> Key(int width, int height, int mode) const;

  std::unique_ptr<vcl::TBitmap> FImage;
  bool FAssigning = false;
  TQELImageStyle FImageStyle = isTile;
  vcl::TColor FTransparentColor = vcl::clNone;
  vcl::TColor FTransparentBackground = vcl::clBtnFace;
  std::unique_ptr<TSurface> FSource;  // The picture as it is copied; made when it is needed.
  COLORREF FSourceBackground = 0;
  std::unique_ptr<TPictureCache> FPictures;
};

/// The brush of the two fills by brush.
class QEL_API TQELBrushFill : public vcl::TGraphicsObject {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another one's settings.
  void Assign(const vcl::TPersistent* source) override;

  vcl::TBrushStyle BrushStyle() const { return FBrushStyle; }
  /// The brush's pattern.
  void SetBrushStyle(vcl::TBrushStyle style);
  vcl::TColor BrushColor() const { return FBrushColor; }
  /// The colour of the brush's pattern.
  void SetBrushColor(vcl::TColor color);

 private:
  vcl::TBrushStyle FBrushStyle = vcl::bsSolid;
  vcl::TColor FBrushColor = vcl::clBtnFace;
};

/// A fill that controls paint themselves on. It is put on a form once and linked to any number of
/// controls, which are painted again whenever one of its settings changes.
class QEL_API TQELBackground : public TQELCustomBackground {
 public:
  explicit TQELBackground(vcl::TComponent* owner);
  ~TQELBackground() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The picture that bTexture fills with.
  TQELTexture* Texture() const { return FTexture.get(); }
  /// The gradient that bGradient fills with.
  TQELGradient* Gradient() const { return FGradient.get(); }
  /// The brush of the two fills by brush.
  TQELBrushFill* BrushFill() const { return FBrushFill.get(); }
  /// Copy the given settings.
  void SetTexture(const TQELTexture* texture) { FTexture->Assign(texture); }
  void SetGradient(const TQELGradient* gradient) { FGradient->Assign(gradient); }
  void SetBrushFill(const TQELBrushFill* brushFill) { FBrushFill->Assign(brushFill); }
  vcl::TColor SolidColor() const { return FSolidColor; }
  /// The colour that bSolidcolor fills with.
  void SetSolidColor(vcl::TColor color);
  TQELBackStyle BackgroundStyle() const { return FBackgroundStyle; }
  /// What the background fills with.
  void SetBackgroundStyle(TQELBackStyle style);

  /// Appends a control to the clients. It is told when the background is freed, and leaves the list
  /// when it is freed itself. Raises EInvalidOperation for null.
  void AddItem(vcl::TControl* client) override;
  /// Takes a control out of the clients, once if it is there several times.
  void RemoveItem(vcl::TControl* client) override;
  int ClientCount() const { return static_cast<int>(FClients.size()); }
  /// The client at the index from 0. Raises EListError outside.
  vcl::TControl* Clients(int index) const;

  /// Paints the rectangle (0, 0, width, height); sizes of 0 or less paint nothing. `forward` false
  /// lets a gradient's first and last colour change places. Raises EOutOfResources for a size that
  /// the system refuses.
  void Draw(HDC dc, int width, int height, bool forward) override;
  /// Puts the background behind what the canvas shows from (0, 0): it appears wherever the canvas
  /// has the colour.
  void DrawTrans(vcl::TCanvas* canvas, int width, int height, bool forward, vcl::TColor color);
  /// Draws a text in the rectangle, its letters filled with the background as it is painted for the
  /// rectangle; their shadow, highlight and repetitions are drawn as `font3D` says. The flags are
  /// those of DrawTextEx. Where the background paints nothing (a texture without a picture, or
  /// around a centred one), letters are of SolidColor.
  void Write(TQELFont3D* font3D, const vcl::TFont* font, vcl::TCanvas* canvas,
             const vcl::TRect& rect, const std::string& text, unsigned flags);

  /// Tells that a setting has changed: has every client painted again, in their order, and fires
  /// OnChanged. A client that leaves meanwhile is not touched.
  void BackChange(vcl::TObject* sender);

  /// After every change; the sender is the background.
  vcl::TNotifyEvent OnChanged;

 protected:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  void DrawBrush(HDC dc, int width, int height);
  bool IsClient(const vcl::TControl* control) const;

  std::unique_ptr<TQELTexture> FTexture;
  std::unique_ptr<TQELGradient> FGradient;
  std::unique_ptr<TQELBrushFill> FBrushFill;
  vcl::TColor FSolidColor = vcl::clBtnFace;
  TQELBackStyle FBackgroundStyle = bGradient;
  std::vector<vcl::TControl*> FClients;
  std::unique_ptr<TPictureCache> FPatterns;
};

}  // namespace qel
