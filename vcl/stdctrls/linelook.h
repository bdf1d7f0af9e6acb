// TLineLook: what the lines of a list look like, be it a list box or a combo box.
#pragma once

#include "vcl/stdctrls/listcontrol.h"

namespace vcl {

/// The look of a list's lines: swatches before names, names in their own fonts, pictures. A class
/// of lists is such a look and two faces of a few lines that take it (TCustomListControl::SetLook),
/// one a combo box, one a list box. Both ask it in the same way, so it knows the list by what all
/// lists have: Items, Canvas, Font, ItemHeight, ScaledPixels.
class VCL_API TLineLook {
 public:
  virtual ~TLineLook() = default;
  /// Draws the line at the index on the list's Canvas, which comes with the colours of the state;
  /// the rectangle is filled. The frame of the focus is drawn by the list.
  virtual void Draw(TCustomListControl& list, int index, const TRect& rect,
                    TOwnerDrawState state) = 0;
  /// The line's height in pixels, where lines have heights of their own. Here: ItemHeight.
  virtual int Height(TCustomListControl& list, int index);

 protected:
  TLineLook() = default;
  TLineLook(const TLineLook&) = default;
  TLineLook& operator=(const TLineLook&) = default;
  /// A number that the look keeps with a line, 0 at first. It goes where the line goes. Raise
  /// EStringListError for an index that is not a line's.
  static int Mark(const TCustomListControl& list, int index);
  static void SetMark(TCustomListControl& list, int index, int mark);
  /// Draws the text in the canvas's font, in the middle of the line's height, behind an indentation
  /// from its left edge in pixels; one that is wider than the line ends with dots.
  static void DrawLineText(TCustomListControl& list, const TRect& rect, int indentation,
                           const std::string& text);
};

}  // namespace vcl
