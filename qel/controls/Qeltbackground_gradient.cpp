// TQELGradient.
#include <utility>

#include "qel/controls/Qeltbackground.h"
#include "qel/controls/private/gradientsteps.h"
#include "qel/controls/private/picturecache.h"
#include "qel/core/private/Qelownedsettings.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

namespace qel {

using vcl::TColor;

namespace {

COLORREF LineColor(const std::string& line, TColor otherwise) {
  try {
    return vcl::ColorToRGB(vcl::StringToColor(line));
  } catch (const vcl::EConvertError&) {
    return vcl::ColorToRGB(otherwise);
  }
}

/// All that the plan's picture depends on.
TPictureCache::TKey KeyOf(const TGradientPlan& plan) {
  TPictureCache::TKey key{plan.Width, plan.Height, plan.FillStyle, plan.ColorCount};
  for (COLORREF color : plan.Colors) key.push_back(static_cast<int>(color));
  return key;
}

}  // namespace

TQELGradient::TQELGradient()
    : FColorsInBetween(std::make_unique<vcl::TStringList>()),
      FPictures(std::make_unique<TPictureCache>()) {
  FColorsInBetween->OnChange = [this](vcl::TObject*) {
    if (!FAssigning) Changed();
  };
}

TQELGradient::~TQELGradient() = default;

void TQELGradient::Changed() {
  FPictures->Outdate();
  TGraphicsObject::Changed();
}

void TQELGradient::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELGradient*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  FBeginColor = other->FBeginColor;
  FEndColor = other->FEndColor;
  FFillStyle = other->FFillStyle;
  FColorCount = other->FColorCount;
  SetColorsInBetween(other->FColorsInBetween.get());
}

void TQELGradient::MultiDraw(HDC dc, int width, int height, const vcl::TStrings* colors,
                             TColor color, bool forward) {
  if (width <= 0 || height <= 0) return;
  const auto [first, last] =
      forward ? std::pair(FBeginColor, FEndColor) : std::pair(FEndColor, FBeginColor);
  TGradientPlan plan{width, height, FFillStyle, FColorCount, {vcl::ColorToRGB(first)}};
  for (int i = 0; colors && i < colors->Count(); ++i) {
    plan.Colors.push_back(LineColor(colors->Strings(i), color));
  }
  plan.Colors.push_back(vcl::ColorToRGB(last));
  const TSurface& picture = FPictures->Get(
      KeyOf(plan), width, height, [&](TSurface& surface) { PaintGradient(plan, surface); });
  picture.CopyTo(dc, 0, 0);
}

void TQELGradient::SetBeginColor(TColor color) {
  FBeginColor = color;
  Changed();
}

void TQELGradient::SetEndColor(TColor color) {
  FEndColor = color;
  Changed();
}

void TQELGradient::SetFillStyle(TQELFillStyle style) {
  FFillStyle = style;
  Changed();
}

void TQELGradient::SetColorCount(int count) {
  FColorCount = count;
  Changed();
}

void TQELGradient::SetColorsInBetween(const vcl::TStrings* colors) {
  {
    const TQuietly quietly(FAssigning);
    FColorsInBetween->Assign(colors);
  }
  Changed();
}

const vcl::TClass& TQELGradient::Class() {
  using T = TQELGradient;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELGradient", "qel/controls/Qeltbackground.h",
      {
          // The two colours are set by the constructor and have no declared default: always
          // written.
          Property<&T::BeginColor, &T::SetBeginColor>("BeginColor"),
          Property<&T::EndColor, &T::SetEndColor>("EndColor"),
          Property<&T::FillStyle, &T::SetFillStyle>("FillStyle").Default(Horizontal),
          Property<&T::ColorCount, &T::SetColorCount>("ColorCount").Default(32),
          Property<&T::ColorsInBetween, &T::SetColorsInBetween>("ColorsInBetween"),
      });
  return info;
}

}  // namespace qel
