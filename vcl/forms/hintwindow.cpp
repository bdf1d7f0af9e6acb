// The window that shows a hint, and the two halves of a hint's text.
#include <algorithm>

#include "vcl/forms/application.h"
#include "vcl/forms/hints.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr int Border = 1;  // Pixels.
constexpr int Margin = 2;  // Between the border and the text.
constexpr int Edges = 2 * (Border + Margin);
constexpr int ActivatedEdges = 4;  // What ActivateHint adds of them to the height.
constexpr UINT TextFlags = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;

// The rectangle moved onto the work area; its top left when it does not fit.
TRect KeptOnScreen(TRect rect) {
  const TRect area = Screen()->WorkAreaRect(rect.TopLeft());
  const int left = std::max(area.Left, std::min(rect.Left, area.Right - rect.Width()));
  const int top = std::max(area.Top, std::min(rect.Top, area.Bottom - rect.Height()));
  rect.Offset(left - rect.Left, top - rect.Top);
  return rect;
}

}  // namespace

std::string GetShortHint(const std::string& hint) { return hint.substr(0, hint.find('|')); }

std::string GetLongHint(const std::string& hint) {
  const std::size_t bar = hint.find('|');
  return bar == std::string::npos ? hint : hint.substr(bar + 1);
}

const TClass& THintWindow::Class() {
  static const TClass info =
      Describe<THintWindow, TCustomControl>("vcl::THintWindow", "vcl/forms/hints.h", {});
  return info;
}

THintWindow::THintWindow(TComponent* owner) : TCustomControl(owner) {
  Canvas()->Brush()->SetStyle(bsClear);
  Canvas()->Font()->SetColor(clInfoText);
  TControl::SetColor(clInfoBk);
}

void THintWindow::CreateParams(TCreateParams& params) {
  TCustomControl::CreateParams(params);
  params.Style = WS_POPUP | WS_BORDER;
  params.ExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
  params.ClassStyle |= CS_SAVEBITS;
  params.WndParent = Application()->Handle();
}

void THintWindow::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_NCHITTEST:  // The mouse goes through to what lies below.
      message.Result = HTTRANSPARENT;
      return;
    case WM_MOUSEACTIVATE: message.Result = MA_NOACTIVATE; return;
    default: TCustomControl::Dispatch(message);
  }
}

TRect THintWindow::CalcHintRect(int maxWidth, const std::string& text) {
  const TMemoryDC dc;
  const TSelection font(dc.Get(), Canvas()->Font()->Handle());
  RECT rect{0, 0, maxWidth, 0};
  std::wstring wide = ToUtf16(text);
  ::DrawTextExW(dc.Get(), wide.data(), static_cast<int>(wide.size()), &rect,
                TextFlags | DT_CALCRECT, nullptr);
  return {0, 0, static_cast<int>(rect.right) + Edges,
          static_cast<int>(rect.bottom) + Edges - ActivatedEdges};
}

void THintWindow::ActivateHint(TRect rect, const std::string& text) {
  rect.Bottom += ActivatedEdges;
  rect = KeptOnScreen(rect);
  SetCaption(text);
  SetBounds(rect.Left, rect.Top, rect.Width(), rect.Height());
  ::SetWindowPos(Handle(), HWND_TOPMOST, rect.Left, rect.Top, rect.Width(), rect.Height(),
                 SWP_SHOWWINDOW | SWP_NOACTIVATE);
  Invalidate();
  Update();
}

void THintWindow::SetPixelsPerInch(int pixels) {
  TFont* font = Canvas()->Font();
  if (pixels == font->PixelsPerInch()) return;
  const int points = font->Size();
  font->SetPixelsPerInch(pixels);
  font->SetSize(points);
}

void THintWindow::ReleaseHandle() { DestroyHandle(); }

void THintWindow::Paint() {
  TRect rect = ClientRect();
  TBrush back;
  back.SetColor(Color());
  const RECT area = rect;
  ::FillRect(Canvas()->Handle(), &area, back.Handle());
  rect.Inflate(-Margin, -Margin);
  RECT place = rect;
  std::wstring text = ToUtf16(Caption());
  ::DrawTextExW(Canvas()->Handle(), text.data(), static_cast<int>(text.size()), &place, TextFlags,
                nullptr);
}

void THintWindow::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arToolTip;
  info.Name = Caption();
}

}  // namespace vcl
