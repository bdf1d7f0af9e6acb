// TQELRoundButton: its shape, and painting it with a smooth edge.
#include "qel/controls/Qeltroundbutton.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "qel/controls/private/buttonproperties.h"
#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;

namespace {

/// At 96 dots per inch: the ring of the sunken ground, and the lit edge of the face.
constexpr int InsetWidth = 3;
constexpr int EdgeWidth = 3;
/// How much of white or black the edge gets at most, and of white the face under the mouse.
constexpr double EdgeStrength = 0.65;
constexpr double HotStrength = 0.18;

constexpr std::uint32_t White = 0xFFFFFF;

/// The colours mixed: `share` of the second, from 0 to 1.
std::uint32_t Mix(std::uint32_t first, std::uint32_t second, double share) {
  std::uint32_t mixed = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    const auto a = static_cast<double>(first >> shift & 0xFF);
    const auto b = static_cast<double>(second >> shift & 0xFF);
    mixed |= static_cast<std::uint32_t>(std::lround(a + (b - a) * share)) << shift;
  }
  return mixed;
}

/// An ellipse in the middle of a rectangle that begins at (0, 0).
struct TEllipse {
  double CenterX, CenterY, RadiusX, RadiusY;

  TEllipse(int width, int height, int inset)
      : CenterX(width / 2.0),
        CenterY(height / 2.0),
        RadiusX(std::max(CenterX - inset, 1.0)),
        RadiusY(std::max(CenterY - inset, 1.0)) {}

  /// Where a pixel's middle lies: how far outside the ellipse's line, about, in pixels, and how
  /// much the line there faces the light at the top left, from -1 to 1.
  struct TPlace {
    double Outside;
    double Lit;
  };
  TPlace At(int column, int row) const {
    const double x = (column + 0.5 - CenterX) / RadiusX;
    const double y = (row + 0.5 - CenterY) / RadiusY;
    const double far = std::hypot(x, y);
    const double slope = std::hypot(x / RadiusX, y / RadiusY);
    if (slope == 0) return {-std::min(RadiusX, RadiusY), 0};
    const double lit = -(x / RadiusX + y / RadiusY) / slope / std::sqrt(2.0);
    return {far * (far - 1) / slope, lit};
  }
  bool Contains(TPoint position) const {
    const double x = (position.X + 0.5 - CenterX) / RadiusX;
    const double y = (position.Y + 0.5 - CenterY) / RadiusY;
    return x * x + y * y <= 1;
  }
};

/// How much of a pixel lies inside the line.
double Covered(double outside) { return std::clamp(0.5 - outside, 0.0, 1.0); }

/// A pixel near a line that is lit: light where that faces the light, dark where it faces away.
std::uint32_t Shaded(std::uint32_t pixel, double lit, double strength) {
  return Mix(pixel, lit > 0 ? White : 0, std::abs(lit) * EdgeStrength * strength);
}

}  // namespace

const vcl::TClass& TQELRoundButton::Class() {
  using T = TQELRoundButton;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomButton>(
      "qel::TQELRoundButton", "qel/controls/Qeltroundbutton.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Background"),
          Property<&T::ButtonType, &T::SetButtonType>("ButtonType").Default(btNormal),
          Inherit("Caption"),
          Inherit("Color").Default(clBtnFace),
          Inherit("Font3D"),
          Inherit("Glyph"),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(pTop),
          Property<&T::ModalResult, &T::SetModalResult>("ModalResult").Default(mrNone),
          Inherit("ParentColor").Default(false),
          Inherit(ButtonProperties),
          Inherit("TabStop").Default(true),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELRoundButton::TQELRoundButton(vcl::TComponent* owner) : TQELCustomButton(owner) {
  SetBounds(Left(), Top(), 80, 80);
  SetColor(vcl::clBtnFace);
  HearOnlyAsked<TQELRoundButton>();
}

TQELRoundButton::~TQELRoundButton() { AnnounceEnd(); }

void TQELRoundButton::SetButtonType(TQELButtonType type) {
  if (Store(FButtonType, type)) Invalidate();
}

void TQELRoundButton::SetLayout(TQELPosition layout) {
  if (Store(FLayout.Side, layout)) Invalidate();
}

// The shape.

bool TQELRoundButton::Contains(TPoint position) const {
  return TEllipse(ClientWidth(), ClientHeight(), 0).Contains(position);
}

/// The window takes in the pixels that the line goes through, which are painted in part.
void TQELRoundButton::ShapeWindow() {
  if (!HandleAllocated()) return;
  // The window owns the region from here on.
  ::SetWindowRgn(Handle(), ::CreateEllipticRgn(-1, -1, Width() + 2, Height() + 2), TRUE);
}

void TQELRoundButton::CreateWnd() {
  TQELCustomButton::CreateWnd();
  ShapeWindow();
}

void TQELRoundButton::Resize() {
  ShapeWindow();
  TQELCustomButton::Resize();
}

// Painting.

void TQELRoundButton::Paint() {
  if (ClientWidth() <= 0 || ClientHeight() <= 0) return;
  vcl::TBitmap picture(ClientWidth(), ClientHeight());
  PaintGround(picture.Canvas());
  PaintFace(picture);
  PaintContents(picture.Canvas());
  Canvas()->Draw(0, 0, &picture);
}

/// What is behind the button: its parent, and the controls without a window there.
void TQELRoundButton::PaintGround(vcl::TCanvas* canvas) {
  vcl::TWinControl* parent = Parent();
  canvas->Brush()->SetColor(vcl::clBtnFace);
  canvas->FillRect(ClientRect());
  if (!parent) return;
  const vcl::TSavedDC saved(canvas->Handle());
  const auto dc = reinterpret_cast<WPARAM>(canvas->Handle());
  ::SetViewportOrgEx(canvas->Handle(), -Left(), -Top(), nullptr);
  if (const auto* painted = dynamic_cast<const TQELCustomControl*>(parent)) {
    TQELCustomBackground* background = painted->Background();
    if (background) background->Draw(canvas->Handle(), parent->Width(), parent->Height(), true);
  } else {
    parent->Perform(WM_ERASEBKGND, dc, static_cast<LPARAM>(dc));
  }
  for (int i = 0; i < parent->ControlCount(); ++i) {
    vcl::TControl* each = parent->Controls(i);
    if (dynamic_cast<vcl::TWinControl*>(each)) break;
    if (!each->Seen()) continue;
    const vcl::TSavedDC before(canvas->Handle());
    ::SetViewportOrgEx(canvas->Handle(), each->Left() - Left(), each->Top() - Top(), nullptr);
    ::IntersectClipRect(canvas->Handle(), 0, 0, each->Width(), each->Height());
    each->Perform(WM_PAINT, dc);
  }
}

/// Puts the face, and the ring that it is sunk with, on the ground, pixel by pixel.
void TQELRoundButton::PaintFace(vcl::TBitmap& picture) {
  const int width = picture.Width();
  const int height = picture.Height();
  vcl::TBitmap face(width, height);
  face.Canvas()->Brush()->SetColor(Color());
  face.Canvas()->FillRect({0, 0, width, height});
  if (Background()) Background()->Draw(face.Canvas()->Handle(), width, height, true);
  face.SetPixelFormat(vcl::pf32bit);
  picture.SetPixelFormat(vcl::pf32bit);
  ::GdiFlush();
  const bool inset = FButtonType == btInset;
  const double edge = ScaledPixels(EdgeWidth);
  const TEllipse outer(width, height, 0);
  const TEllipse inner(width, height, inset ? ScaledPixels(InsetWidth) : 0);
  const double way = Down() ? -1 : 1;
  for (int y = 0; y < height; ++y) {
    const auto* from = static_cast<const std::uint32_t*>(std::as_const(face).ScanLine(y));
    auto* to = static_cast<std::uint32_t*>(picture.ScanLine(y));
    for (int x = 0; x < width; ++x) {
      if (inset) {
        const TEllipse::TPlace ring = outer.At(x, y);
        to[x] = Shaded(to[x], -ring.Lit, Covered(ring.Outside));
      }
      const TEllipse::TPlace place = inner.At(x, y);
      const double near = std::clamp(1 + place.Outside / edge, 0.0, 1.0);
      std::uint32_t pixel = from[x] & White;
      if (Hot() && Enabled()) pixel = Mix(pixel, White, HotStrength);
      to[x] = Mix(to[x] & White, Shaded(pixel, way * place.Lit, near), Covered(place.Outside));
    }
  }
}

/// Glyph and caption in the largest rectangle that the ellipse has room for.
void TQELRoundButton::PaintContents(vcl::TCanvas* canvas) {
  const double share = (1 - std::sqrt(0.5)) / 2;
  TRect area = ClientRect();
  const int across = static_cast<int>(std::lround(area.Width() * share));
  const int down = static_cast<int>(std::lround(area.Height() * share));
  area.Inflate(-across, -down);
  if (ShowsFocus()) canvas->DrawFocusRect(area);
  if (Down()) area.Offset(1, 1);
  const int image = !Enabled() ? fiDisabled : Down() ? fiPressed : Hot() ? fiHot : fiNormal;
  TQELFaceLayout scaled = FLayout;
  scaled.Spacing = ScaledPixels(FLayout.Spacing);
  scaled.Draw(canvas, area, {Glyph(), image, Font3D(), Font(), Caption(), Enabled()});
}

void TQELRoundButton::Click() {
  if (vcl::TCustomForm* form = ParentForm(); form && FModalResult != vcl::mrNone) {
    form->SetModalResult(FModalResult);
  }
  TQELCustomButton::Click();
}

}  // namespace qel
