// TDesignMenuBar: painting the strip of a form's main menu, and the mouse on it.
#include "ide/designmenubar.h"

#include <algorithm>

#include "vcl/graphics/handles.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

namespace {

constexpr int Padding = 7;  // Before and behind an item's text.

/// The system's font for menus, in a device context.
class TMenuFont {
 public:
  explicit TMenuFont(HDC dc) : FDC(dc) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    FFont = ::CreateFontIndirectW(&metrics.lfMenuFont);
    FFormer = ::SelectObject(FDC, FFont);
  }
  ~TMenuFont() {
    ::SelectObject(FDC, FFormer);
    ::DeleteObject(FFont);
  }
  TMenuFont(const TMenuFont&) = delete;
  TMenuFont& operator=(const TMenuFont&) = delete;

 private:
  HDC FDC;
  HFONT FFont;
  HGDIOBJ FFormer;
};

constexpr UINT TextFlags = DT_SINGLELINE | DT_VCENTER | DT_CENTER;

TPoint ScreenPoint(LPARAM position) {
  return {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
}

}  // namespace

void TDesignMenuBar::SetForm(TForm* form) {
  FForm = form;
  FHeight = 0;
  Refresh();
}

void TDesignMenuBar::Refresh() {
  if (!FForm) return;
  const bool shown = FForm->Menu() && FForm->BorderStyle() != bsDialog;
  const int height = shown ? ::GetSystemMetrics(SM_CYMENU) : 0;
  const int growth = height - FHeight;
  FHeight = height;
  if (growth != 0) {
    ::SetWindowPos(FForm->Handle(), nullptr, 0, 0, FForm->Width(), FForm->Height() + growth,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  if (shown) Paint();
}

bool TDesignMenuBar::Handle(TMessage& message) {
  if (!FForm || FHeight == 0 || !FForm->HandleAllocated()) return false;
  switch (message.Msg) {
    case WM_NCCALCSIZE: return CutOff(message), true;
    case WM_NCPAINT:
      message.Result =
          ::DefWindowProcW(FForm->Handle(), message.Msg, message.WParam, message.LParam);
      return Paint(), true;
    case WM_NCHITTEST:
      if (!Contains(ScreenPoint(message.LParam))) return false;
      message.Result = HTMENU;
      return true;
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
      if (message.WParam != HTMENU) return false;
      return Press(ScreenPoint(message.LParam), message.Msg == WM_NCLBUTTONDBLCLK), true;
    default: return false;
  }
}

/// The strip is no part of the form's inside.
void TDesignMenuBar::CutOff(TMessage& message) const {
  message.Result = ::DefWindowProcW(FForm->Handle(), message.Msg, message.WParam, message.LParam);
  auto& inside = *reinterpret_cast<RECT*>(message.LParam);  // Of both kinds of the message.
  inside.top = std::min(inside.top + FHeight, inside.bottom);
}

/// In coordinates of the form's inside.
TRect TDesignMenuBar::Bar() const {
  RECT inside{};
  ::GetClientRect(FForm->Handle(), &inside);
  return {0, -FHeight, static_cast<int>(inside.right), 0};
}

std::vector<TDesignMenuBar::TPlace> TDesignMenuBar::Places() const {
  std::vector<TPlace> places;
  const TWindowDC dc(FForm->Handle());
  const TMenuFont font(dc.Get());
  TMenuItem& items = *FForm->Menu()->Items();
  int left = 0;
  for (int i = 0; i < items.Count(); ++i) {
    if (!items.Items(i)->Visible()) continue;
    RECT text{};
    ::DrawTextW(dc.Get(), ToUtf16(items.Items(i)->Caption()).c_str(), -1, &text,
                TextFlags | DT_CALCRECT);
    const int right = left + static_cast<int>(text.right) + 2 * Padding;
    places.push_back({items.Items(i), left, right});
    left = right;
  }
  return places;
}

void TDesignMenuBar::Paint() const {
  const HWND window = FForm->Handle();
  const auto places = Places();
  RECT frame{};
  ::GetWindowRect(window, &frame);
  POINT origin{0, 0};
  ::ClientToScreen(window, &origin);
  const HDC dc = ::GetWindowDC(window);
  ::OffsetViewportOrgEx(dc, static_cast<int>(origin.x - frame.left),
                        static_cast<int>(origin.y - frame.top), nullptr);
  {
    const TMenuFont font(dc);
    const RECT bar = Bar();
    ::FillRect(dc, &bar, ::GetSysColorBrush(COLOR_MENU));
    ::SetBkMode(dc, TRANSPARENT);
    for (const TPlace& each : places) {
      RECT text{each.Left, bar.top, each.Right, bar.bottom};
      ::SetTextColor(dc, ::GetSysColor(each.Item->Enabled() ? COLOR_MENUTEXT : COLOR_GRAYTEXT));
      ::DrawTextW(dc, ToUtf16(each.Item->Caption()).c_str(), -1, &text, TextFlags);
    }
  }
  ::ReleaseDC(window, dc);
}

// The mouse.

bool TDesignMenuBar::Contains(TPoint screen) const {
  return Bar().Contains(FForm->ScreenToClient(screen));
}

void TDesignMenuBar::Press(TPoint screen, bool twice) {
  ::SetFocus(FForm->Handle());
  const int x = FForm->ScreenToClient(screen).X;
  const auto places = Places();
  const auto pressed = std::ranges::find_if(
      places, [x](const TPlace& each) { return x >= each.Left && x < each.Right; });
  const bool beside = pressed == places.end();
  TComponent& component =
      beside ? static_cast<TComponent&>(*FForm->Menu()) : static_cast<TComponent&>(*pressed->Item);
  if (twice) return OnDoubleClick(component);
  OnSelect(component);
  if (!beside && pressed->Item->Count() > 0) DropDown(*pressed);
}

/// What is chosen below is selected.
void TDesignMenuBar::DropDown(const TPlace& place) {
  const TPoint at = FForm->ClientToScreen({place.Left, 0});
  TMenu& menu = *FForm->Menu();
  const BOOL chosen =
      ::TrackPopupMenu(place.Item->Handle(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_LEFTALIGN, at.X,
                       at.Y, 0, FForm->Handle(), nullptr);
  TMenuItem* item = menu.FindItem(static_cast<std::uint16_t>(chosen));
  if (chosen != 0 && item) OnSelect(*item);
}

}  // namespace ide
