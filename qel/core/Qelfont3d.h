// TQELFont3D: the settings of three-dimensional text, and its drawing.
#pragma once

#include <string>

#include "qel/core/Qelenumerations.h"
#include "qel/core/api.h"
#include "vcl/graphics/graphics.h"

namespace qel {

/// How a control's text is drawn: flat, or with copies in the colours of light and shadow, and with
/// copies that trail from it. Every setter has the owner painted again, also when it refuses a
/// value.
class QEL_API TQELFont3D : public vcl::TGraphicsObject {
 public:
  /// `owner` is the control to paint again after a change; it is not owned.
  explicit TQELFont3D(vcl::TObject* owner = nullptr);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another one's settings, with one change notice.
  void Assign(const vcl::TPersistent* source) override;

  vcl::TObject* Owner() const { return FOwner; }
  /// For a control that takes over settings made by somebody else.
  void SetOwner(vcl::TObject* owner) { FOwner = owner; }

  bool ThreeDimensional() const { return FThreeDimensional; }
  /// False draws the text once, in its own colour.
  void SetThreeDimensional(bool threeDimensional);
  TQELStyle3D Style3D() const { return FStyle3D; }
  /// On which sides of the text its highlight and its shadow are drawn.
  void SetStyle3D(TQELStyle3D style);
  int Offset() const { return FOffset; }
  /// The distance of highlight and shadow, in pixels at 96 dots per inch. Takes only values above
  /// 0.
  void SetOffset(int offset);
  TQELRepeat Repetition() const { return FRepetition; }
  /// To which side copies of the text trail from it.
  void SetRepetition(TQELRepeat repetition);
  vcl::TColor RepetitionColor() const { return FRepetitionColor; }
  /// The colour of the trailing copies.
  void SetRepetitionColor(vcl::TColor color);
  int Repetitionwidth() const { return FRepetitionwidth; }
  /// The number of trailing copies at 96 dots per inch, each a pixel further. Takes only values
  /// from 0.
  void SetRepetitionwidth(int width);
  bool MaskFont() const { return FMaskFont; }
  /// For the owning control's own use.
  void SetMaskFont(bool maskFont);
  vcl::TColor Shadow() const { return FShadow; }
  /// The colour of the text's shadow.
  void SetShadow(vcl::TColor color);
  vcl::TColor Highlight() const { return FHighlight; }
  /// The colour of the text's highlight.
  void SetHighlight(vcl::TColor color);
  /// How many pixels more than the plain text the drawing takes, in each direction.
  int GetDrawingwidth() const { return 2 * FOffset + FRepetitionwidth; }

  /// Draws the text in the rectangle, with the flags of DrawTextEx; a disabled one as a grey text
  /// on a light one. Distances follow the font's dots per inch. The context's own font, colours and
  /// modes stay what they were.
  void Write(const vcl::TFont* font, HDC dc, const vcl::TRect& rect, const std::string& text,
             unsigned flags, bool enabled) const;

  /// Has the owner painted again when it is a control. Called by OnChange, until that is set to
  /// something else.
  void Invalidate(vcl::TObject* sender);

 private:
  vcl::TObject* FOwner;
  bool FThreeDimensional = true;
  TQELStyle3D FStyle3D = fontOnlyHighlight;
  int FOffset = 1;
  TQELRepeat FRepetition = repeatNone;
  vcl::TColor FRepetitionColor = vcl::clBlack;
  int FRepetitionwidth = 0;
  bool FMaskFont = true;
  vcl::TColor FShadow = vcl::clBtnShadow;
  vcl::TColor FHighlight = vcl::clBtnHighlight;
};

/// Draws a text as a disabled control shows it: light, and grey one pixel to the upper left.
QEL_API void QELDrawDisabledText(const vcl::TFont* font, vcl::TCanvas* canvas,
                                 const vcl::TRect& rect, unsigned flags, const std::string& text);

}  // namespace qel
