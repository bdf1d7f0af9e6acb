// Colours as GDI takes them, and how fonts, pens and brushes tell of changes.
#include "vcl/graphics/graphicsobject.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

COLORREF ColorToRGB(TColor color) {
  const auto bits = static_cast<std::uint32_t>(color);
  if (bits & 0x80000000) return ::GetSysColor(static_cast<int>(bits & 0xFF));
  return bits & 0xFFFFFF;
}

const TClass& TGraphicsObject::Class() {
  static const TClass info =
      Describe<TGraphicsObject, TPersistent>("vcl::TGraphicsObject", "vcl/graphics/graphics.h", {});
  return info;
}

void TGraphicsObject::Changed() {
  ++FVersion;
  OnChange(this);
}

}  // namespace vcl
