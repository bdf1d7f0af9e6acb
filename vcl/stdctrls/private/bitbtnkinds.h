// What the kinds of TBitBtn make of a button.
#pragma once

#include "vcl/stdctrls/bitbtn.h"

namespace vcl {

struct TBitBtnTraits {
  const char* Caption;
  TModalResult ModalResult;
  bool Default;
  bool Cancel;
};

const TBitBtnTraits& TraitsOf(TBitBtnKind kind);
/// Draws the kind's glyph, of 18 by 18 pixels, on an empty bitmap.
void DrawKindGlyph(TBitBtnKind kind, TBitmap& glyph);

}  // namespace vcl
