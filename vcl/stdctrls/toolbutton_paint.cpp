// TToolButton: what it needs of its bar, and its look.
#include <algorithm>
#include <vector>

#include "vcl/controls/accelerators.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/toolbar.h"
#include "vcl/stdctrls/toolbutton.h"

namespace vcl {
namespace {

// What a face needs around picture and caption, and between them, at 96 dots per inch.
constexpr int AroundAcross = 7;
constexpr int AroundDown = 6;
constexpr int Between = 4;

}  // namespace

bool TToolButton::ShowsCaption() const {
  if (IsSpace() || Caption().empty()) return false;
  return FStyle == tbsTextButton || (ToolBar() && ToolBar()->ShowCaptions());
}

bool TToolButton::IsCurrent() const {
  return ToolBar() && ToolBar()->Focused() && ToolBar()->Current() == this;
}

/// Room for a picture is kept where the others of the bar have one, unless a caption fills it.
TSize TToolButton::PictureSize() const {
  TImageList* images = ToolBar() ? ToolBar()->Images() : nullptr;
  if (!images || (FImageIndex < 0 && ShowsCaption() && ToolBar()->List())) return {};
  const TImageList* shown = images->ForPPI(CurrentPPI());
  return {shown->Width(), shown->Height()};
}

TFacePicture TToolButton::Picture() const {
  const TToolBar* bar = ToolBar();
  if (!bar || FImageIndex < 0) return {};
  TImageList* images = bar->Images();
  const bool ownDisabled = !Enabled() && bar->DisabledImages();
  if (ownDisabled) images = bar->DisabledImages();
  if (Enabled() && bar->HotImages() && (Hot() || IsCurrent())) images = bar->HotImages();
  if (!images || FImageIndex >= images->Count()) return {};
  return {images->ForPPI(CurrentPPI()), FImageIndex, (Enabled() || ownDisabled) && !FIndeterminate};
}

int TToolButton::ArrowWidth() const {
  constexpr int arrow = 12;
  return FStyle == tbsDropDown ? ScaledPixels(arrow) : 0;
}

TRect TToolButton::ArrowPart() const {
  TRect part = ClientRect();
  part.Left = part.Right - ArrowWidth();
  return part;
}

TSize TToolButton::Need() const {
  TSize need = PictureSize();
  if (ShowsCaption()) {
    const int text = TextWidth(*Font(), WithoutAccel(Caption()));
    const int line = FontHeight(*Font());
    if (ToolBar() && ToolBar()->List()) {
      need.cx += text + (need.cx > 0 ? ScaledPixels(Between) : 0);
      need.cy = std::max(need.cy, line);
    } else {
      need.cx = std::max(need.cx, text);
      need.cy += line + (need.cy > 0 ? 1 : 0);
    }
  }
  return {need.cx + ScaledPixels(AroundAcross) + ArrowWidth(), need.cy + ScaledPixels(AroundDown)};
}

// Painting.

void TToolButton::DrawArrow(bool down) {
  const TRect part = ArrowPart();
  const int half = std::max(ScaledPixels(5) / 2, 2);
  const int x = (part.Left + part.Right) / 2 + (down ? 1 : 0);
  const int y = (part.Top + part.Bottom - half) / 2 + (down ? 1 : 0);
  const TColor color = Enabled() ? clBtnText : clBtnShadow;
  Canvas()->Pen()->SetColor(color);
  Canvas()->Brush()->SetColor(color);
  Canvas()->Polygon(std::vector<TPoint>{{x - half, y}, {x + half, y}, {x, y + half}});
}

void TToolButton::DrawSpace() {
  const TRect rect = ClientRect();
  if (Designing()) Canvas()->DrawFocusRect(rect);
  if (FStyle != tbsDivider) return;
  const int middle = rect.Right / 2 - 1;
  RECT line{middle, rect.Top + 2, middle + 2, rect.Bottom - 2};
  ::DrawEdge(Canvas()->Handle(), &line, EDGE_ETCHED, BF_LEFT);
}

void TToolButton::DrawFace() {
  const bool flat = ToolBar() && ToolBar()->Flat();
  const bool pressed = FDown || Pressed();
  const bool hot = (Hot() || IsCurrent()) && Enabled();
  TRect face = ClientRect();
  face.Right -= ArrowWidth();
  const bool shown = !flat || pressed || hot || FMenuUp || Designing();
  if (ArrowWidth() > 0) {
    DrawFaceEdge(Canvas(), ArrowPart(),
                 {.Flat = flat, .Shown = shown, .Down = FMenuUp || pressed, .Filled = false});
  }
  TRect inside = DrawFaceEdge(Canvas(), face,
                              {.Flat = flat, .Shown = shown, .Down = pressed, .Filled = false});
  // What stays down is lighter than its surroundings, and what is neither up nor down darker.
  if (FMarked || FIndeterminate || (FDown && !Hot())) {
    Canvas()->Brush()->SetColor(FMarked ? clHighlight : FIndeterminate ? clBtnShadow : cl3DLight);
    Canvas()->FillRect(inside);
  }
  if (pressed) inside.Offset(1, 1);
  Canvas()->SetFont(Font());
  if (FMarked) Canvas()->Font()->SetColor(clHighlightText);
  TButtonFace layout(nullptr);
  const bool list = ToolBar() && ToolBar()->List();
  layout.SetLayout(list ? blGlyphLeft : blGlyphTop);
  layout.SetSpacing(list ? ScaledPixels(Between) : 1);
  layout.DrawWith(Canvas(), inside, ShowsCaption() ? Caption() : std::string(),
                  Enabled() ? TFaceState::Up : TFaceState::Disabled, Picture());
  if (ArrowWidth() > 0) DrawArrow(FMenuUp || pressed);
  if (IsCurrent()) Canvas()->DrawFocusRect(inside);
}

void TToolButton::Paint() { IsSpace() ? DrawSpace() : DrawFace(); }

}  // namespace vcl
