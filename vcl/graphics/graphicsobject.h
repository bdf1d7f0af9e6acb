// What fonts, pens and brushes have in common, and the colours that GDI takes.
#pragma once

#include "vcl/rtl/colors.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// The colour as GDI takes it: a system colour's present value (GetSysColor), any other's lower 24
/// bits. clNone and clDefault, which stand for no colour of their own, give 0xFFFFFF and 0.
VCL_API COLORREF ColorToRGB(TColor color);
/// The colour with these channels.
constexpr TColor RGBToColor(BYTE red, BYTE green, BYTE blue) {
  return static_cast<TColor>(red | green << 8 | blue << 16);
}

/// A font, pen or brush: a description from which a GDI object is made when it is asked for.
class VCL_API TGraphicsObject : public TPersistent {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Something of the description has changed.
  TNotifyEvent OnChange;
  /// Another number after each change, by which a canvas sees that it must select the object anew.
  unsigned Version() const { return FVersion; }

 protected:
  /// Counts the change and fires OnChange.
  virtual void Changed();

 private:
  unsigned FVersion = 0;
};

}  // namespace vcl
