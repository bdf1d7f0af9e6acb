// Panes and the strips between them: which is beside which, and sizing them.
#include "vcl/stdctrls/panes.h"

#include <algorithm>

#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

bool AtNearEdge(const TControl& strip) { return strip.Align() == alLeft || strip.Align() == alTop; }

}  // namespace

bool StandsUpright(const TControl& strip) {
  return strip.Align() == alLeft || strip.Align() == alRight;
}

int PaneSize(const TControl& strip, const TControl& pane) {
  return StandsUpright(strip) ? pane.Width() : pane.Height();
}

TControl* PaneBeside(const TControl& strip) {
  TPoint beside;
  switch (strip.Align()) {
    case alLeft: beside = {strip.Left() - 1, strip.Top() + strip.Height() / 2}; break;
    case alRight: beside = {strip.Left() + strip.Width(), strip.Top() + strip.Height() / 2}; break;
    case alTop: beside = {strip.Left() + strip.Width() / 2, strip.Top() - 1}; break;
    case alBottom: beside = {strip.Left() + strip.Width() / 2, strip.Top() + strip.Height()}; break;
    case alNone:
    case alClient:
    default: return nullptr;
  }
  for (int i = strip.Parent() ? strip.Parent()->ControlCount() - 1 : -1; i >= 0; --i) {
    TControl* each = strip.Parent()->Controls(i);
    if (each == &strip || !each->Visible() || each->Align() != strip.Align()) continue;
    // One that has vanished still lies beside the strip.
    TRect bounds = each->BoundsRect();
    bounds.Inflate(bounds.Width() == 0, bounds.Height() == 0);
    if (bounds.Contains(beside)) return each;
  }
  return nullptr;
}

int MostPaneSize(const TControl& strip, const TControl& pane, int minSize) {
  const TWinControl* parent = strip.Parent();
  const bool upright = StandsUpright(strip);
  int room = upright ? parent->ClientWidth() : parent->ClientHeight();
  for (int i = 0; i < parent->ControlCount(); ++i) {
    const TControl* each = parent->Controls(i);
    const TAlign align = each->Align();
    const bool along =
        upright ? align == alLeft || align == alRight : align == alTop || align == alBottom;
    if (each != &pane && each->Visible() && along) room -= PaneSize(strip, *each);
  }
  return std::max(room - minSize, minSize);
}

int PaneSizeAfter(const TControl& strip, int size, TPoint way) {
  const int along = StandsUpright(strip) ? way.X : way.Y;
  return size + (AtNearEdge(strip) ? along : -along);
}

void SizePane(const TControl& strip, TControl& pane, int size) {
  TRect bounds = pane.BoundsRect();
  switch (strip.Align()) {
    case alLeft: bounds.Right = bounds.Left + size; break;
    case alRight: bounds.Left = bounds.Right - size; break;
    case alTop: bounds.Bottom = bounds.Top + size; break;
    case alBottom: bounds.Top = bounds.Bottom - size; break;
    case alNone:
    case alClient:
    default: return;
  }
  pane.SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
}

void InvertStrip(const TControl& strip, int growth, bool dotted) {
  const int way = AtNearEdge(strip) ? growth : -growth;
  TRect line = strip.BoundsRect();
  StandsUpright(strip) ? line.Offset(way, 0) : line.Offset(0, way);
  static constexpr WORD points[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
  const TOwnedBitmap pattern(::CreateBitmap(8, 8, 1, 1, points));
  const TOwnedBrush brush(::CreatePatternBrush(pattern.Get()));
  const HWND window = strip.Parent()->Handle();
  const HDC dc = ::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_LOCKWINDOWUPDATE);
  const auto former = ::SelectObject(dc, dotted ? brush.Get() : ::GetStockObject(WHITE_BRUSH));
  ::PatBlt(dc, line.Left, line.Top, line.Width(), line.Height(), PATINVERT);
  ::SelectObject(dc, former);
  ::ReleaseDC(window, dc);
}

}  // namespace vcl
