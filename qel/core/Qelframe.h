// TQELFrame: the settings of a frame around a rectangle, and its drawing.
#pragma once

#include "qel/core/Qelenumerations.h"
#include "qel/core/api.h"
#include "vcl/graphics/graphics.h"

namespace qel {

/// A frame of one or two borders, each of so many rings one pixel wide, drawn just inside a
/// rectangle.
class QEL_API TQELFrame : public vcl::TGraphicsObject {
 public:
  /// `owner` is the control to paint again after a change; it is not owned.
  explicit TQELFrame(vcl::TObject* owner = nullptr);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another one's settings, with one change notice.
  void Assign(const vcl::TPersistent* source) override;

  vcl::TObject* Owner() const { return FOwner; }
  /// For a control that takes over settings made by somebody else.
  void SetOwner(vcl::TObject* owner) { FOwner = owner; }

  TQELFrameStyle FrameStyle() const { return FFrameStyle; }
  /// Which borders the frame has.
  void SetFrameStyle(TQELFrameStyle style);
  /// Notes the style that the owner gives to its frames when it makes them. Where that is not
  /// frameRaised, form files always hold the style.
  void SetInitialStyle(TQELFrameStyle style) { FInitialStyle = style; }
  bool StyleHasDefault() const { return FInitialStyle == frameRaised; }
  vcl::TColor Highlight() const { return FHighlight; }
  /// The colour of the sides in the light.
  void SetHighlight(vcl::TColor color);
  vcl::TColor Shadow() const { return FShadow; }
  /// The colour of the sides in the shadow.
  void SetShadow(vcl::TColor color);
  /// The colour of frameSolid.
  vcl::TColor Solid() const { return FSolid; }
  void SetSolid(vcl::TColor color);
  int Offset() const { return FOffset; }
  /// The gap between the two borders of frameFramedUp and frameFramedDown, at 96 dots per inch.
  /// Takes only values from 0.
  void SetOffset(int offset);
  int FrameWidth() const { return FFrameWidth; }
  /// The number of rings of a border at 96 dots per inch. Takes only values above 0.
  void SetFrameWidth(int width);

  /// FrameWidth at the dots per inch of the owner: how many rings a border is drawn with.
  int RingCount() const;
  /// How many pixels the frame takes on each side, at the dots per inch of the owner; without a
  /// frame those of 2 at 96, as a frameless control keeps that margin.
  int BorderWidth() const;
  /// Computes BorderWidth at 96 dots per inch anew. The setters call it.
  void Calcwidth();

  /// Draws the frame just inside the rectangle, which becomes what is left inside the frame.
  void Draw(HDC dc, vcl::TRect& rect);
  /// Draws the two rings of a button's face with the canvas's pen; the rectangle loses 2 pixels on
  /// every side.
  void Drawbutton(vcl::TCanvas* canvas, vcl::TRect& rect, bool down) const;

  /// Has the owner painted again when it is a control. Called by OnChange, until that is set to
  /// something else.
  void Invalidate(vcl::TObject* sender);

 private:
  class TPainter;
  int Thickness(int pixelsPerInch) const;

  vcl::TObject* FOwner;
  TQELFrameStyle FFrameStyle = frameRaised;
  TQELFrameStyle FInitialStyle = frameRaised;
  vcl::TColor FHighlight = vcl::clBtnHighlight;
  vcl::TColor FShadow = vcl::clBtnShadow;
  vcl::TColor FSolid = vcl::clBlack;
  int FBorderWidth = 1;
  int FOffset = 0;
  int FFrameWidth = 1;
};

}  // namespace qel
