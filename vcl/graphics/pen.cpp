// TPen: its settings, and the system's pen that is made of them.
#include "vcl/graphics/pen.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TPen::~TPen() = default;

const TClass& TPen::Class() {
  static const TClass info = Describe<TPen, TGraphicsObject>(
      "vcl::TPen", "vcl/graphics/graphics.h",
      {
          Property<&TPen::Color, &TPen::SetColor>("Color").Default(clBlack),
          Property<&TPen::Mode, &TPen::SetMode>("Mode").Default(pmCopy),
          Property<&TPen::Style, &TPen::SetStyle>("Style").Default(psSolid),
          Property<&TPen::Width, &TPen::SetWidth>("Width").Default(1),
      });
  return info;
}

void TPen::Assign(const TPersistent* source) {
  const auto* pen = dynamic_cast<const TPen*>(source);
  if (!pen) return TPersistent::Assign(source);
  if (pen == this || *pen == *this) return;
  FColor = pen->FColor;
  FWidth = pen->FWidth;
  FStyle = pen->FStyle;
  FMode = pen->FMode;
  FHandle = pen->FHandle;
  Changed();
}

bool TPen::operator==(const TPen& other) const {
  return FColor == other.FColor && FWidth == other.FWidth && FStyle == other.FStyle &&
         FMode == other.FMode;
}

std::shared_ptr<const TOwnedPen> TPen::Share() const {
  static constexpr int styles[] = {PS_SOLID,      PS_DASH, PS_DOT,        PS_DASHDOT,
                                   PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME};
  if (!FHandle) {
    FHandle = std::make_shared<const TOwnedPen>(
        CheckHandle(::CreatePen(styles[FStyle], FWidth, ColorToRGB(FColor)), "a pen"));
  }
  return FHandle;
}

HPEN TPen::Handle() const { return Share()->Get(); }

void TPen::Remake() {
  FHandle.reset();
  Changed();
}

void TPen::SetColor(TColor color) {
  if (color == FColor) return;
  FColor = color;
  Remake();
}

void TPen::SetWidth(int width) {
  if (width == FWidth || width < 0) return;
  FWidth = width;
  Remake();
}

void TPen::SetStyle(TPenStyle style) {
  if (style == FStyle) return;
  FStyle = style;
  Remake();
}

void TPen::SetMode(TPenMode mode) {
  if (mode == FMode) return;
  FMode = mode;
  Changed();  // The handle knows no mode.
}

}  // namespace vcl
