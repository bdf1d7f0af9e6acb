// TQELGlyph: a strip of up to four images, of which the one that fits a control's state is drawn.
#pragma once

#include <memory>

#include "qel/core/Qelenumerations.h"
#include "qel/core/api.h"
#include "vcl/graphics/graphics.h"

namespace qel {

/// The glyph of a control. Its images stand side by side in one bitmap: for the normal state, the
/// pressed one (where there are at least three), and last the disabled one.
class QEL_API TQELGlyph : public vcl::TGraphicsObject {
 public:
  /// `owner` is the control to paint again after a change; it is not owned.
  explicit TQELGlyph(vcl::TObject* owner = nullptr);
  ~TQELGlyph() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another one's settings and images, with one change notice.
  void Assign(const vcl::TPersistent* source) override;

  vcl::TObject* Owner() const { return FOwner; }
  vcl::TColor TransparentColor() const { return FTransparentColor; }
  /// With Transparent, the bitmap's pixels of this colour are not drawn.
  void SetTransparentColor(vcl::TColor color);
  /// The images, in a row of equal ones.
  vcl::TBitmap* Bitmap() const { return FBitmap.get(); }
  /// Copies the bitmap; null for none. In the form designer the number of images (1 when it would
  /// be above 4) follows from the size if that is a row of squares, and the transparent colour is
  /// that of the lower left pixel.
  void SetBitmap(const vcl::TBitmap* bitmap);
  bool Visible() const { return FVisible; }
  /// False draws no glyph.
  void SetVisible(bool visible);
  /// How many images the bitmap holds: 0, for no glyph, to 4.
  TQELNumGlyphs NumGlyphs() const { return FNumGlyphs; }
  /// Raises EArgumentOutOfRangeException for more than 4. With 0 nothing is drawn.
  void SetNumGlyphs(TQELNumGlyphs count);
  bool Transparent() const { return FTransparent; }
  /// True leaves out the pixels of TransparentColor.
  void SetTransparent(bool transparent);

  /// The size of one image as it is drawn, in pixels at the dots per inch of the owner; 0 when
  /// there is none.
  int GetWidth() const;
  int GetHeight() const;
  /// Draws the image for the state at (x, y). A disabled glyph is always greyed, also when the
  /// strip has an image for it; `grayed` greys the first image of an enabled one.
  void Draw(vcl::TCanvas* canvas, int x, int y, bool enabled, bool down, bool grayed) const;
  /// True when there is an image with the number, from 1.
  bool HasImage(int number) const { return number >= 1 && number <= FNumGlyphs; }
  /// Draws the image with the number, from 1, at (x, y), greyed if wished: for controls whose
  /// images stand for other states. Where it is missing, the first one stands in.
  void DrawImage(vcl::TCanvas* canvas, int x, int y, int number, bool grayed) const;
  /// Turns a bitmap's colours, save the transparent one, into those of a button's face, from black
  /// to light: the more of them into dark ones, the higher the level. `color` is not used.
  void DrawGrayed(vcl::TBitmap& bitmap, vcl::TColor color, int level) const;

  /// Has the owner painted again when it is a control. Called by OnChange, until that is set to
  /// something else.
  void Invalidate(vcl::TObject* sender);

 private:
  void BitmapChanged(vcl::TObject* sender);
  void AssignBitmap(const vcl::TBitmap* bitmap);
  void AdoptStrip();
  int ImageWidth() const;
  int ImageFor(bool enabled, bool down) const;
  void CopyImage(int number, vcl::TBitmap& image) const;
  void PutImage(vcl::TCanvas* canvas, vcl::TBitmap& image, int x, int y) const;
  void DrawScaled(vcl::TCanvas* canvas, vcl::TBitmap& image, int x, int y) const;

  vcl::TColor FTransparentColor = vcl::clBlack;
  vcl::TObject* FOwner;
  std::unique_ptr<vcl::TBitmap> FBitmap;
  bool FAssigning = false;
  bool FVisible = true;
  TQELNumGlyphs FNumGlyphs{};
  bool FTransparent = true;
};

}  // namespace qel

/// Numbers from 0 to 4, without names.
template <>
inline constexpr vcl::TIntegerText vcl::IntegerText<qel::TQELNumGlyphs>{"TQELNumGlyphs"};
