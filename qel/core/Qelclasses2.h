// The timer on a thread, the settings of a dialog's button, and drawing helpers that several
// controls share, with what goes with them.
#pragma once

#include <string>
#include <string_view>

#include "qel/core/Qelbuttondetails.h"
#include "qel/core/Qelfont3d.h"
#include "qel/core/Qeltimer32.h"
#include "qel/core/api.h"
#include "vcl/graphics/graphics.h"
#include "vcl/rtl/strings.h"

namespace vcl {
class TControl;
}

namespace qel {

class TQELCustomBackground;

/// Draws the bitmap at (x, y) without its pixels of the colour; null draws nothing.
QEL_API void QELDrawTransparentBitmap(vcl::TCanvas* canvas, vcl::TBitmap* bitmap, int x, int y,
                                      vcl::TColor transparentColor);
/// Draws the bitmap at (x, y) as a disabled control shows it, engraved: its dark pixels grey, with
/// a light copy one pixel to the lower right. Its light pixels and those of its TransparentColor
/// are left out. Null draws nothing.
QEL_API void QELDrawDisabledBitmap(vcl::TCanvas* canvas, int x, int y, vcl::TBitmap* bitmap);
/// Draws a lamp of the colour in a sunken ring, 12 by 12 pixels from (x, y). The canvas's pen
/// stays.
QEL_API void QELDrawLed(vcl::TCanvas* canvas, int x, int y, vcl::TColor color);
/// Draws the edge of a push button, two pixels wide, in the system's colours, and takes it off the
/// rectangle.
QEL_API void QELDrawButtonFrame(vcl::TCanvas* canvas, vcl::TRect& rect, bool down);
/// Fills the rectangle as the background would paint a control of that size. Without a background
/// nothing is painted.
QEL_API void QELPaintEffect(vcl::TCanvas* canvas, const vcl::TRect& rect,
                            TQELCustomBackground* background, bool forward = true);

/// Appends the pieces of a text to the list, which is returned: what stands before each separator,
/// and the rest. A text without a separator is one piece, an empty text an empty piece.
///
/// Positions are counted in bytes, from 1, and kept in one byte: pieces have up to 254 bytes. A
/// separator at 257 or beyond cuts the text at its position modulo 256 instead, and loses the bytes
/// where it would have stood there; one whose position is a multiple of 256 ends the search, so
/// that all the rest is the last piece. An empty separator is found nowhere.
QEL_API vcl::TStrings* QELStringIntoPieces(std::string_view text, std::string_view separator,
                                           vcl::TStrings* list);

/// Centres a form on the screen, a form inside the main form in its client area, and another
/// control in its parent, whose window is made if it has to be. What is larger than the room for it
/// is put at 0. A control without a parent stays, only negative coordinates become 0.
QEL_API void QELCenterControl(vcl::TControl* control);

}  // namespace qel
