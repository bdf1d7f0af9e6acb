// TPopupList: dropping down, following the mouse, and what is chosen.
#include "vcl/stdctrls/popuplist.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr int MostItems = 12;  // Seen at once.
constexpr int Border = 1;

}  // namespace

TPopupList::TPopupList(TComponent* owner) : TCustomListBox(owner) {
  SetBorderStyle(bsNone);
  SetTabStop(false);
}

void TPopupList::CreateParams(TCreateParams& params) {
  TCustomListBox::CreateParams(params);
  params.Style = (params.Style & ~static_cast<DWORD>(WS_CHILD | WS_VISIBLE)) | WS_POPUP | WS_BORDER;
  params.ExStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
  params.WndParent = Application()->Handle();
}

void TPopupList::DropDown(const TRect& below, const std::vector<std::string>& values,
                          const std::string& current) {
  HandleNeeded();
  {
    const TUpdating updating(*Items(), this);
    Items()->Clear();
    for (const std::string& value : values) Items()->Add(value);
  }
  Choose(current);
  Open(below, MostItems);
}

void TPopupList::Open(const TRect& below, int most) {
  const int count = std::clamp(LineCount(), 1, most);
  const int line = static_cast<int>(Send(*this, LB_GETITEMHEIGHT));
  const int item = line > 0 ? line : FontHeight(*Font());
  const int height = count * item + 2 * Border;
  const TRect area = Screen()->WorkAreaRect(below);
  const bool fits = below.Bottom + height <= area.Bottom || below.Top - height < area.Top;
  SetBounds(below.Left, fits ? below.Bottom : below.Top - height, below.Width(), height);
  ::SetWindowPos(Handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE);
  FDown = true;
}

void TPopupList::CloseUp() {
  if (!FDown) return;
  FDown = false;
  ::ShowWindow(Handle(), SW_HIDE);
}

std::string TPopupList::Chosen() const {
  return ItemIndex() < 0 ? std::string() : Items()->Strings(ItemIndex());
}

/// Moves the selection by so many items, as far as there are some.
void TPopupList::Step(int by) {
  if (LineCount() == 0) return;
  SetItemIndex(std::clamp(ItemIndex() + by, 0, LineCount() - 1));
}

bool TPopupList::TakeKey(std::uint16_t key) {
  if (!FDown) return false;
  switch (key) {
    case VK_UP: return Step(-1), true;
    case VK_DOWN: return Step(1), true;
    case VK_PRIOR: return Step(-PageSize()), true;
    case VK_NEXT: return Step(PageSize()), true;
    case VK_HOME: return Step(-LineCount()), true;
    case VK_END: return Step(LineCount()), true;
    case VK_RETURN: return OnClick(this), true;
    case VK_F4:
    case VK_ESCAPE: return CloseUp(), true;
    default: return false;
  }
}

void TPopupList::Dispatch(TMessage& message) {
  if (!DispatchOwn(message)) TCustomListBox::Dispatch(message);
}

// The window's own procedure would take the keyboard when it is pressed.
bool TPopupList::DispatchOwn(TMessage& message) {
  switch (message.Msg) {
    case WM_MOUSEACTIVATE: message.Result = MA_NOACTIVATE; return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE: SelectAt(message); return true;
    case WM_LBUTTONUP:
      if (LineAt(message) >= 0) OnClick(this);
      return true;
    default: return false;
  }
}

/// The line under the mouse; -1 for none.
int TPopupList::LineAt(const TMessage& message) const {
  const TPoint at{message.XPos(), message.YPos()};
  if (!ClientRect().Contains(at)) return -1;
  const auto height = static_cast<int>(Send(*this, LB_GETITEMHEIGHT));
  const int line = TopIndex() + at.Y / std::max(height, 1);
  return line < LineCount() ? line : -1;
}

void TPopupList::SelectAt(const TMessage& message) {
  const int item = LineAt(message);
  if (item >= 0 && item != ItemIndex()) SetItemIndex(item);
}

}  // namespace vcl
