// TWorkspace: the desktop that its forms stand on, and scrolling it.
#include "ide/workspace.h"

#include <algorithm>

#include "vcl/graphics/graphics.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

const TClass& TWorkspace::Class() {
  static const TClass info = Describe<TWorkspace, TCustomControl>(
      "ide::TWorkspace", "ide/workspace.h", {Inherit("Align"), Inherit("TabOrder")});
  return info;
}

namespace {

class TDesktop : public TCustomControl {
 public:
  explicit TDesktop(TComponent* owner) : TCustomControl(owner) {
    // It is filled around the forms only.
    SetControlStyle(ControlStyle() + TControlStyle{csAcceptsControls});
    SetColor(clAppWorkSpace);
  }
};

}  // namespace

TWorkspace::TWorkspace(TComponent* owner) : TCustomControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csAcceptsControls});
  SetColor(clAppWorkSpace);
  FDesktop = new TDesktop(this);
  FDesktop->SetParent(this);
}

void TWorkspace::CreateParams(TCreateParams& params) {
  TCustomControl::CreateParams(params);
  params.Style |= WS_HSCROLL | WS_VSCROLL;
  params.ExStyle |= WS_EX_CLIENTEDGE;
}

void TWorkspace::SetExtent(TSize extent) {
  if (extent == FExtent) return;
  FExtent = extent;
  Place();
}

void TWorkspace::ScrollTo(int x, int y) {
  FX = x;
  FY = y;
  Place();
}

void TWorkspace::Resize() {
  TCustomControl::Resize();
  Place();
}

/// Puts the desktop where the scroll bars are, which stay inside what there is.
void TWorkspace::Place() {
  const int width = std::max(FExtent.cx, ClientWidth());
  const int height = std::max(FExtent.cy, ClientHeight());
  FX = std::clamp(FX, 0, width - ClientWidth());
  FY = std::clamp(FY, 0, height - ClientHeight());
  FDesktop->SetBounds(-FX, -FY, width, height);
  if (!HandleAllocated()) return;
  UpdateBar(SB_HORZ, FX, ClientWidth(), width);
  UpdateBar(SB_VERT, FY, ClientHeight(), height);
}

void TWorkspace::UpdateBar(int bar, int position, int inside, int extent) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  info.nMax = extent - 1;
  info.nPage = static_cast<UINT>(inside);
  info.nPos = position;
  ::SetScrollInfo(Handle(), bar, &info, TRUE);
}

void TWorkspace::Scroll(int bar, int code) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(Handle(), bar, &info);
  constexpr int line = 16;
  const int page = static_cast<int>(info.nPage);
  int to = info.nPos;
  switch (code) {
    case SB_LINEUP: to -= line; break;
    case SB_LINEDOWN: to += line; break;
    case SB_PAGEUP: to -= page; break;
    case SB_PAGEDOWN: to += page; break;
    case SB_THUMBTRACK: to = info.nTrackPos; break;
    case SB_TOP: to = 0; break;
    case SB_BOTTOM: to = info.nMax; break;
    default: return;
  }
  bar == SB_HORZ ? ScrollTo(to, FY) : ScrollTo(FX, to);
}

void TWorkspace::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_HSCROLL: return Scroll(SB_HORZ, LOWORD(message.WParam));
    case WM_VSCROLL: return Scroll(SB_VERT, LOWORD(message.WParam));
    default: TCustomControl::Dispatch(message);
  }
}

}  // namespace ide
