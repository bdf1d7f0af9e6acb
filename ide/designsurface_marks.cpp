// TDesignSurface: grabbers, icons and the rubber band.
#include <algorithm>

#include "ide/componentpicture.h"
#include "ide/designsurface.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

constexpr int GrabberSize = 7;  // At 96 dots per inch of the designer's own window.

/// The eight grabbers and their pointers; several components have those at the corners.
struct TGrabber {
  int X;
  int Y;
  LPCWSTR Pointer;
};
const TGrabber Grabbers[] = {{-1, -1, reinterpret_cast<LPCWSTR>(IDC_SIZENWSE)},
                             {1, 1, reinterpret_cast<LPCWSTR>(IDC_SIZENWSE)},
                             {1, -1, reinterpret_cast<LPCWSTR>(IDC_SIZENESW)},
                             {-1, 1, reinterpret_cast<LPCWSTR>(IDC_SIZENESW)},
                             {0, -1, reinterpret_cast<LPCWSTR>(IDC_SIZENS)},
                             {0, 1, reinterpret_cast<LPCWSTR>(IDC_SIZENS)},
                             {-1, 0, reinterpret_cast<LPCWSTR>(IDC_SIZEWE)},
                             {1, 0, reinterpret_cast<LPCWSTR>(IDC_SIZEWE)}};
constexpr std::size_t Corners = 4;

/// Where the middle of a grabber is on a side from `low` to `high`.
int On(int low, int high, int side) {
  return side < 0 ? low : side > 0 ? high - 1 : (low + high) / 2;
}

TRect GrabberAt(const TRect& bounds, const TGrabber& grabber, int size) {
  return Bounds(On(bounds.Left, bounds.Right, grabber.X) - size / 2,
                On(bounds.Top, bounds.Bottom, grabber.Y) - size / 2, size, size);
}

void FillWith(TCanvas& canvas, const TRect& inside, TColor color, TColor edge) {
  canvas.Brush()->SetColor(color);
  canvas.Pen()->SetColor(edge);
  canvas.Rectangle(inside);
}

int CaptionWidth(const std::string& text) {
  const TWindowDC screen(nullptr);
  TCanvas canvas;
  canvas.SetHandle(screen.Get());
  const int width = canvas.TextWidth(text);
  canvas.SetHandle(nullptr);
  return width + 4;
}

}  // namespace

void TDesignSurface::Refresh() {
  if (!FRoot) return;
  FStage->Follow();
  FMenuBar.Refresh();
  PlaceIcons();
  PlaceGrabbers();
  QuietForeignWindows();
}

namespace {

BOOL CALLBACK Quiet(HWND window, LPARAM) {
  if (!TWinControl::FromHandle(window) && !TOverlay::Is(window) && ::IsWindowEnabled(window)) {
    ::EnableWindow(window, FALSE);
  }
  return TRUE;
}

}  // namespace

/// Windows inside a control that are not this library's, such as a combo box's edit, leave the
/// mouse to the control.
void TDesignSurface::QuietForeignWindows() const { ::EnumChildWindows(FForm->Handle(), &Quiet, 0); }

TOverlay& TDesignSurface::GrabberIn(HWND window, std::size_t index, TGrab grab, bool several) {
  if (index >= FMarks.size()) FMarks.resize(index + 1);
  TMark& mark = FMarks[index];
  const bool same = mark.Window && mark.Window->Alive() && mark.Window->Around() == window &&
                    mark.Grab.X == grab.X && mark.Grab.Y == grab.Y && mark.Several == several;
  if (same) return *mark.Window;
  const auto paint = [several, this](TCanvas& canvas, const TRect& inside) {
    FillWith(canvas, inside, several || FLocked ? clGray : clNavy, clWhite);
  };
  const auto mouse = [this, grab, several](UINT message, TPoint at) {
    if (message == WM_LBUTTONDOWN && !several) BeginSizing(grab, at);
  };
  const auto* pointer = std::ranges::find_if(
      Grabbers, [grab](const TGrabber& each) { return each.X == grab.X && each.Y == grab.Y; });
  mark = {
      std::make_unique<TOverlay>(window, paint, mouse,
                                 several ? reinterpret_cast<LPCWSTR>(IDC_ARROW) : pointer->Pointer),
      grab, several};
  return *mark.Window;
}

void TDesignSurface::PlaceGrabbers() {
  const auto components = FSelection.Components();
  const bool several = components.size() > 1;
  const int size = FHost.ScaledPixels(GrabberSize) | 1;  // There is a middle.
  std::size_t used = 0;
  for (const TComponent* each : components) {
    const auto* control = dynamic_cast<const TControl*>(each);
    if (!control || control == FRoot || !control->Parent()) continue;
    if (!control->Parent()->HandleAllocated()) continue;
    for (std::size_t i = 0; i < (several ? Corners : std::size(Grabbers)); ++i) {
      const TGrabber& grabber = Grabbers[i];
      GrabberIn(control->Parent()->Handle(), used++, {grabber.X, grabber.Y}, several)
          .Place(GrabberAt(control->BoundsRect(), grabber, size));
    }
  }
  FMarks.resize(used);
}

TDesignSurface::TIcon TDesignSurface::MakeIcon(TComponent& component) {
  const auto mouse = [this, shown = &component](UINT message, TPoint at) {
    if (message == WM_LBUTTONDOWN) return Press(*shown, *FInside, at);
    if (message == WM_LBUTTONDBLCLK) {
      if (Events.DoubleClick) Events.DoubleClick(*shown);
      return;
    }
    ShowMenu(*shown, at);
  };
  const auto picture = [this, shown = &component](TCanvas& canvas, const TRect& inside) {
    PaintComponentPicture(canvas, inside, *shown, FSelection.Contains(shown));
  };
  const auto caption = [shown = &component](TCanvas& canvas, const TRect& inside) {
    canvas.Brush()->SetColor(clBtnFace);
    canvas.FillRect(inside);
    canvas.TextOut(2, 0, shown->Name());
  };
  const HWND form = FInside->Handle();
  const auto* arrow = reinterpret_cast<LPCWSTR>(IDC_ARROW);
  TIcon icon;
  icon.Component = &component;
  icon.Picture = std::make_unique<TOverlay>(form, picture, mouse, arrow);
  icon.Caption = std::make_unique<TOverlay>(form, caption, mouse, arrow);
  return icon;
}

void TDesignSurface::PlaceIcon(TIcon& icon) {
  constexpr int height = 14;
  const TComponent& component = *icon.Component;
  const TRect bounds = BoundsOf(component);
  const int width = CaptionWidth(component.Name());
  icon.Picture->Place(bounds);
  icon.Caption->Place(
      Bounds((bounds.Left + bounds.Right - width) / 2, bounds.Bottom + 1, width, height));
  const bool selected = FSelection.Contains(&component);
  if (icon.Text == component.Name() && icon.Selected == selected) return;
  icon.Text = component.Name();
  icon.Selected = selected;
  icon.Picture->Invalidate();
  icon.Caption->Invalidate();
}

void TDesignSurface::PlaceIcons() {
  std::vector<TComponent*> shown;
  for (int i = 0; FShowIcons && i < FRoot->ComponentCount(); ++i) {
    if (IsIcon(*FRoot->Components(i))) shown.push_back(FRoot->Components(i));
  }
  std::erase_if(FIcons, [&](const TIcon& icon) {
    return std::ranges::count(shown, icon.Component) == 0 || !icon.Picture->Alive();
  });
  for (TComponent* each : shown) {
    auto icon = std::ranges::find(FIcons, each, &TIcon::Component);
    if (icon == FIcons.end()) icon = FIcons.insert(icon, MakeIcon(*each));
    PlaceIcon(*icon);
  }
}

void TDesignSurface::ShowBand(const TRect& band) {
  const HWND window = FBandIn->Handle();
  const auto paint = [](TCanvas& canvas, const TRect& inside) {
    FillWith(canvas, inside, clGray, clGray);
  };
  while (FBandSides.size() < 4) {
    FBandSides.push_back(
        std::make_unique<TOverlay>(window, paint, nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW)));
  }
  const int width = std::max(band.Width(), 1);
  const int height = std::max(band.Height(), 1);
  FBandSides[0]->Place(Bounds(band.Left, band.Top, width, 1));
  FBandSides[1]->Place(Bounds(band.Left, band.Bottom, width, 1));
  FBandSides[2]->Place(Bounds(band.Left, band.Top, 1, height));
  FBandSides[3]->Place(Bounds(band.Right, band.Top, 1, height));
}

}  // namespace ide
