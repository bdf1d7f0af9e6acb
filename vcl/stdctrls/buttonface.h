// TButtonFace: the glyph and the caption of a button, where they stand and how they are drawn.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

class TActionChange;

/// The side of the caption on which the glyph stands.
enum TButtonLayout { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
template <>
inline constexpr TEnumText EnumText<TButtonLayout>{
    "TButtonLayout", "blGlyphLeft blGlyphRight blGlyphTop blGlyphBottom"};

/// The number of images in a button's glyph, from 1 to 4.
enum TNumGlyphs : std::int8_t {};
template <>
inline constexpr TIntegerText IntegerText<TNumGlyphs>{"TNumGlyphs"};

/// A button's states, in the order of the images in its glyph. Exclusive is a button that stays
/// down.
enum class TFaceState { Up, Disabled, Down, Exclusive };

/// How the edge of a button without a window is drawn.
struct TFaceEdge {
  bool Flat;    ///< One line thick, and only where it is shown.
  bool Shown;   ///< Of a flat one.
  bool Down;    ///< Sunk.
  bool Filled;  ///< A flat button hides what is behind it.
};
/// Draws the edge; what is left inside it.
VCL_API TRect DrawFaceEdge(TCanvas* canvas, const TRect& rect, const TFaceEdge& edge);

/// A picture of a list; none without a list. One that is not enabled is drawn embossed.
struct TFacePicture {
  TImageList* List = nullptr;
  int Index = 0;
  bool Enabled = true;
};

/// What a button shows. Its glyph is a row of images of one size for the states above; a state
/// without one has the first image, which is drawn embossed when the button is disabled. Pixels of
/// the colour of the bitmap's lower left one are see-through.
class VCL_API TButtonFace {
 public:
  /// `changed` is called when the button has to be painted again, `glyphChanged` before it when the
  /// glyph is another.
  explicit TButtonFace(TNotifyEvent changed, TNotifyEvent glyphChanged = nullptr);
  ~TButtonFace();

  TBitmap* Glyph() { return &FGlyph; }
  /// Copies the bitmap; null for none. A row of up to four squares is taken for as many images, any
  /// other bitmap for one.
  void SetGlyph(const TBitmap* glyph);
  TNumGlyphs NumGlyphs() const { return FNumGlyphs; }
  /// Raises EArgumentOutOfRangeException unless 1 to 4.
  void SetNumGlyphs(TNumGlyphs count);
  TButtonLayout Layout() const { return FLayout; }
  void SetLayout(TButtonLayout layout);
  int Margin() const { return FMargin; }
  /// Pixels from the button's edge to the glyph (or the caption, without one); -1 puts the two into
  /// the middle. Raises EArgumentOutOfRangeException below -1.
  void SetMargin(int margin);
  int Spacing() const { return FSpacing; }
  /// Pixels between glyph and caption; -1 spreads them. Raises EArgumentOutOfRangeException below
  /// -1.
  void SetSpacing(int spacing);

  /// A button without a glyph of its own shows the picture that its action names.
  void FollowAction(const TActionChange& change);
  /// True while the glyph is the action's picture.
  bool GlyphFollows() const { return FGlyphFollows; }

  /// Draws glyph and caption, in the canvas's font, into the rectangle; the glyph at its size for
  /// so many dots per inch.
  void Draw(TCanvas* canvas, const TRect& client, const std::string& caption, TFaceState state,
            int pixelsPerInch);
  /// The same with a picture in the glyph's place.
  void DrawWith(TCanvas* canvas, const TRect& client, const std::string& caption, TFaceState state,
                const TFacePicture& picture) const;

 private:
  struct TPlaces {
    TPoint Glyph;
    TRect Text;
  };
  template <class T>
  void Change(T& field, T value);
  void GlyphChanged(TObject* sender);
  void CountImages();
  TSize GlyphSize() const;
  TPlaces Arrange(const TRect& client, TSize glyph, TSize text) const;
  TFacePicture GlyphFor(TFaceState state, int pixelsPerInch);
  TImageList* ImagesFor(int pixelsPerInch);

  TNotifyEvent FChanged;
  TNotifyEvent FGlyphChanged;
  TBitmap FGlyph;
  std::unique_ptr<TImageList> FImages;  // The glyph's images, until it changes.
  std::unique_ptr<TImageList> FLarger;  // The action's picture at larger sizes.
  TNumGlyphs FNumGlyphs{1};
  TButtonLayout FLayout = blGlyphLeft;
  int FMargin = -1;
  int FSpacing = 4;
  bool FGlyphFollows = false;
};

}  // namespace vcl
