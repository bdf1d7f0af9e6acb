// TPageControl: the system's tabs.
#include <algorithm>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/pagecontrol.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {
namespace {

void SendTab(const TPageControl& pages, UINT message, int tab, const std::string& caption) {
  std::wstring text = ToUtf16(caption);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text.data();
  Send(pages, message, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
}

}  // namespace

void TPageControl::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_TAB_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = WC_TABCONTROLA;
  params.Style |= WS_CLIPCHILDREN | (FMultiLine ? TCS_MULTILINE : 0u);
}

void TPageControl::CreateWnd() {
  // The pages are placed once the tabs have taken their room.
  DisableAlign();
  TWinControl::CreateWnd();
  UpdateTabs();
  EnableAlign();
}

/// Gives the window the tabs anew. Their rows may have become more or fewer, and the pages' place
/// another.
void TPageControl::UpdateTabs() {
  if (!HandleAllocated()) return;
  Send(*this, TCM_DELETEALLITEMS);
  for (const TTabSheet* page : FPages) {
    if (page->TabVisible()) SendTab(*this, TCM_INSERTITEMW, page->TabIndex(), page->Caption());
  }
  ShowActiveTab();
  Realign();
}

void TPageControl::UpdateTab(TTabSheet* page) {
  if (HandleAllocated() && page->TabIndex() >= 0) {
    SendTab(*this, TCM_SETITEMW, page->TabIndex(), page->Caption());
  }
}

void TPageControl::ShowActiveTab() {
  const int tab = FActivePage ? FActivePage->TabIndex() : -1;
  SendIfAllocated(*this, TCM_SETCURSEL, static_cast<WPARAM>(tab));
}

TTabSheet* TPageControl::PageOfTab(int tab) const {
  if (tab < 0) return nullptr;  // Pages without a tab have the index -1, as has no tab at all.
  const auto found = std::ranges::find(FPages, tab, &TTabSheet::TabIndex);
  return found == FPages.end() ? nullptr : *found;
}

TTabSheet* TPageControl::PageAtPos(TPoint position) const {
  TCHITTESTINFO info{};
  info.pt = position;
  return PageOfTab(static_cast<int>(Send(*this, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&info))));
}

void TPageControl::AdjustClientRect(TRect& rect) const {
  if (!HandleAllocated()) return;
  RECT inside = rect;
  Send(*this, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
  rect = inside;
}

void TPageControl::NotifyFromWindow(TMessage& message) {
  TWatch watch(this);
  switch (reinterpret_cast<const NMHDR*>(message.LParam)->code) {
    case static_cast<UINT>(TCN_SELCHANGING): message.Result = !CanChange(); return;
    case static_cast<UINT>(TCN_SELCHANGE):
      SetActivePage(PageOfTab(static_cast<int>(Send(*this, TCM_GETCURSEL))));
      if (!watch.Gone()) Change();
      return;
    default: return;
  }
}

bool TPageControl::TakesAccel(WPARAM character) {
  const auto found = std::ranges::find_if(FPages, [character](const TTabSheet* page) {
    return page->TabVisible() && IsAccel(character, page->Caption());
  });
  if (found == FPages.end() || !CanFocus()) return false;
  UserSelects(*found);
  return true;
}

void TPageControl::Dispatch(TMessage& message) {
  if (message.Msg == CN_NOTIFY) return NotifyFromWindow(message);
  TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_FONTCHANGED) Realign();
  if (message.Msg == CM_DESIGNHITTEST) {
    const TTabSheet* page = PageAtPos({message.XPos(), message.YPos()});
    message.Result = page && page != FActivePage;
  }
  // The controls inside come first: an inner page control takes the key before an outer one.
  if (message.Result != 0) return;
  const bool tab = message.Msg == CM_DIALOGKEY && message.WParam == VK_TAB;
  if (tab && ::GetKeyState(VK_CONTROL) < 0 && (Focused() || HasFocusInside())) {
    message.Result = 1;
    SelectNextPage(::GetKeyState(VK_SHIFT) >= 0);
  } else if (message.Msg == CM_DIALOGCHAR) {
    message.Result = TakesAccel(message.WParam);
  }
}

// Screen readers: the tabs are parts, and the pages are controls of their own.

void TPageControl::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arPageTabList;
}

std::vector<TAccessiblePart> TPageControl::AccessibleParts() {
  std::vector<TAccessiblePart> tabs;
  for (const TTabSheet* page : FPages) {
    if (!page->TabVisible()) continue;
    TAccessiblePart& tab = tabs.emplace_back();
    tab.Role = arPageTab;
    tab.State = {asSelectable};
    tab.Name = page->Accessible().Name;
    tab.KeyboardShortcut = AccelKeys(page->Caption());
    tab.DefaultAction = "Switch";
    if (page == FActivePage) tab.State.Include(asSelected);
    if (page == FActivePage && Focused()) tab.State.Include(asFocused);
    RECT bounds{};
    SendIfAllocated(*this, TCM_GETITEMRECT, static_cast<WPARAM>(page->TabIndex()),
                    reinterpret_cast<LPARAM>(&bounds));
    tab.Bounds = bounds;
  }
  return tabs;
}

void TPageControl::DoAccessiblePart(const TAccessiblePath& part) {
  UserSelects(PageOfTab(part.front()));
}

void TTabSheet::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arPropertyPage;
  info.KeyboardShortcut.clear();
}

}  // namespace vcl
