// TDesignSurface: which messages of the designed form are the designer's, and what is painted
// behind it.
#include "ide/designsurface.h"

#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"

namespace ide {

using namespace vcl;

TDesignSurface::TDesignSurface(TWinControl& host, TSelection& selection)
    : FHost(host), FSelection(selection) {
  FMenuBar.OnSelect = [this](TComponent& item) { FSelection.Only(&item); };
  FMenuBar.OnDoubleClick = [this](TComponent& item) {
    if (Events.DoubleClick) Events.DoubleClick(item);
  };
}

TDesignSurface::~TDesignSurface() = default;

void TDesignSurface::SetStage(TStage* stage) {
  Cancel();
  FMarks.clear();
  FIcons.clear();
  FBandSides.clear();
  FStage = stage;
  FRoot = stage ? &stage->Root() : nullptr;
  FForm = stage ? &stage->Form() : nullptr;
  FInside = stage ? &stage->Inside() : nullptr;
  FMenuBar.SetForm(FForm);
  if (!stage) return;
  // Windows inside the host are shown as active by no one else.
  ::SendMessageW(FForm->Handle(), WM_NCACTIVATE, TRUE, 0);
  Refresh();
}

void TDesignSurface::SetShowGrid(bool show) {
  FShowGrid = show;
  if (FRoot) FInside->Invalidate();
}

void TDesignSurface::SetShowIcons(bool show) {
  FShowIcons = show;
  Refresh();
}

void TDesignSurface::PaintBehind(HDC dc) {
  if (!FShowGrid || !FRoot) return;
  const TRect inside = FInside->ClientRect();
  RECT clip;
  if (::GetClipBox(dc, &clip) <= NULLREGION) return;
  // A row of points is drawn once and copied.
  const TMemoryDC memory;
  const TOwnedBitmap row(::CreateCompatibleBitmap(dc, inside.Width(), 1));
  if (!row) return;
  const auto former = ::SelectObject(memory.Get(), row.Get());
  const RECT line{0, 0, inside.Width(), 1};
  ::FillRect(memory.Get(), &line, FInside->Brush()->Handle());
  for (int x = 0; x < inside.Width(); x += GridStep) ::SetPixelV(memory.Get(), x, 0, 0);
  const int first = static_cast<int>(clip.top) / GridStep * GridStep;
  for (int y = first; y < clip.bottom; y += GridStep) {
    ::BitBlt(dc, 0, y, inside.Width(), 1, memory.Get(), 0, 0, SRCCOPY);
  }
  ::SelectObject(memory.Get(), former);
}

bool TDesignSurface::IsDesignMessage(TWinControl& sender, TMessage& message) {
  if (!FRoot || &sender == &FHost) return false;
  switch (message.Msg) {
    case WM_SETCURSOR: return SetCursor(message);
    case WM_HSCROLL:
    case WM_VSCROLL:
      // The marks move with what they are on.
      sender.WndProc(message);
      Refresh();
      return true;
    case WM_CONTEXTMENU:
    case WM_MOUSEWHEEL:
    case WM_MOUSEACTIVATE: return message.Msg != WM_MOUSEACTIVATE;
    case WM_KEYUP:
    case WM_SYSKEYUP: return true;
    case WM_KEYDOWN: return KeyDown(message.WParam);
    case WM_CHAR:
      if (message.WParam >= ' ' && Events.Character) {
        Events.Character(static_cast<wchar_t>(message.WParam));
      }
      return true;
    default: break;
  }
  if (&sender == FForm && IsFormMessage(message)) return true;
  if (&sender == FInside && &sender != FForm && message.Msg == WM_ERASEBKGND) {
    PaintFrame(message);
    return true;
  }
  return IsMouse(sender, message);
}

/// A frame does not ask for what lies behind its controls.
void TDesignSurface::PaintFrame(TMessage& message) {
  const auto dc = reinterpret_cast<HDC>(message.WParam);
  const RECT inside = FInside->ClientRect();
  ::FillRect(dc, &inside, FInside->Brush()->Handle());
  PaintBehind(dc);
  message.Result = 1;
}

/// What the window's own frame asks for.
bool TDesignSurface::IsFormMessage(TMessage& message) {
  if (FMenuBar.Handle(message)) return true;
  switch (message.Msg) {
    case WM_CLOSE:
      if (Events.Close) Events.Close();
      return true;
    case WM_SYSCOMMAND: {
      const WPARAM command = message.WParam & 0xFFF0;
      return command == SC_MINIMIZE || command == SC_MAXIMIZE;
    }
    case WM_NCLBUTTONDOWN:
      ::SetFocus(FForm->Handle());
      FSelection.Only(FRoot);
      return false;
    case WM_NCLBUTTONDBLCLK: return true;
    case WM_EXITSIZEMOVE:
      FStage->TakeBounds();
      if (Events.Changed) Events.Changed({});
      return false;
    case WM_CAPTURECHANGED: Cancel(); return false;
    default: return false;
  }
}

bool TDesignSurface::SetCursor(TMessage& message) const {
  if (LOWORD(message.LParam) != HTCLIENT) return false;
  const auto* name = FPlacing ? IDC_CROSS : IDC_ARROW;
  ::SetCursor(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(name)));
  message.Result = TRUE;
  return true;
}

namespace {

bool IsMouseMessage(UINT message) {
  return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
         (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

/// A press on what is not a window's inside, such as a scroll bar, is one on the control.
UINT InsideMessage(UINT message) {
  return message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK
             ? message - WM_NCMOUSEMOVE + WM_MOUSEMOVE
             : message;
}

}  // namespace

bool TDesignSurface::IsMouse(TWinControl& sender, TMessage& message) {
  const bool frame = message.Msg >= WM_NCMOUSEMOVE && message.Msg <= WM_NCMBUTTONDBLCLK;
  if (!IsMouseMessage(message.Msg) || (&sender == FForm && frame)) return false;
  // What scrolls to the places of controls scrolls here, too.
  const bool bar = message.WParam == HTHSCROLL || message.WParam == HTVSCROLL;
  if (frame && bar && dynamic_cast<TScrollingWinControl*>(&sender)) return false;
  const TPoint at{message.XPos(), message.YPos()};
  const TPoint screen = frame ? at : sender.ClientToScreen(at);
  switch (InsideMessage(message.Msg)) {
    case WM_MOUSEMOVE: MouseMove(screen); return true;
    case WM_LBUTTONUP: MouseUp(screen); return true;
    case WM_LBUTTONDOWN: {
      TComponent* component = ComponentAt(sender, screen);
      const bool wants = sender.Perform(CM_DESIGNHITTEST, 0, message.LParam) != 0;
      Press(*component, *ContainerAt(sender, screen), screen);
      // A page control goes to the page of the tab as well.
      return !wants || FMode == TMode::Placing;
    }
    case WM_LBUTTONDBLCLK:
      if (Events.DoubleClick) Events.DoubleClick(*ComponentAt(sender, screen));
      return true;
    case WM_RBUTTONUP: ShowMenu(*ComponentAt(sender, screen), screen); return true;
    default: return true;
  }
}

}  // namespace ide
