// TCustomTabControl: the system's tabs.
#include "vcl/stdctrls/customtabs.h"

#include <algorithm>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

const TClass& TCustomTabControl::Class() {
  using T = TCustomTabControl;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TCustomTabControl", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::HotTrack, &T::SetHotTrack>("HotTrack").Default(false).Unpublished(),
          Property<&T::Images, &T::SetImages>("Images").Unpublished(),
          Property<&T::MultiLine, &T::SetMultiLine>("MultiLine").Default(false).Unpublished(),
          Property<&T::RaggedRight, &T::SetRaggedRight>("RaggedRight").Default(false).Unpublished(),
          Property<&T::Style, &T::SetStyle>("Style").Default(tsTabs).Unpublished(),
          Property<&T::TabHeight, &T::SetTabHeight>("TabHeight").Default(0).Unpublished(),
          Property<&T::TabPosition, &T::SetTabPosition>("TabPosition").Default(tpTop).Unpublished(),
          Property<&T::TabWidth, &T::SetTabWidth>("TabWidth").Default(0).Unpublished(),
          Event<&T::OnChange>("OnChange").Unpublished(),
          Event<&T::OnChanging>("OnChanging")
              .Type("TTabChangingEvent", "vcl::TObject* sender, bool& allow")
              .Unpublished(),
      });
  return info;
}

TCustomTabControl::TCustomTabControl(TComponent* owner) : TWinControl(owner) {
  SetControlStyle({csDoubleClicks, csOpaque});
  SetBounds(0, 0, 289, 193);
  SetTabStop(true);
  FImages.Link.OnChange = TNotifyEvent(this, &TCustomTabControl::PicturesChanged);
}

TCustomTabControl::~TCustomTabControl() { AnnounceEnd(); }

// Settings.

void TCustomTabControl::SetImages(TImageList* images) {
  if (FImages.Take(images, *this)) PicturesChanged(images);
}

/// Tabs with pictures may be of another height.
void TCustomTabControl::PicturesChanged(TObject* /*sender*/) {
  if (!HandleAllocated()) return;
  SendPictures();
  UpdateTabs();
}

void TCustomTabControl::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation == opRemove && component == FImages.List) SetImages(nullptr);
}

namespace {

int CheckedSize(const char* what, int size) {
  if (size >= 0) return size;
  throw EArgumentOutOfRangeException(
      Concat("The ", what, " of tabs can't be ", std::to_string(size)));
}

}  // namespace

void TCustomTabControl::SetTabHeight(int height) {
  ChangeWindow(FTabSize, TSize{FTabSize.cx, CheckedSize("height", height)});
}

void TCustomTabControl::SetTabWidth(int width) {
  ChangeWindow(FTabSize, TSize{CheckedSize("width", width), FTabSize.cy});
}

void TCustomTabControl::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  const int width = ScaleMeasure(TabWidth(), m, d);
  const int height = ScaleMeasure(TabHeight(), m, d);
  ChangeWindow(FTabSize, TSize{width, height});
}

// What the user does.

bool TCustomTabControl::CanChange() {
  bool allow = true;
  OnChanging(this, allow);
  return allow;
}

void TCustomTabControl::Change() { OnChange(this); }

void TCustomTabControl::UserSelects(int tab) {
  const TWatch watch(this);
  if (tab < 0 || tab == ActiveTab() || !CanChange() || watch.Gone()) return;
  ActivateTab(tab);
  if (!watch.Gone()) Change();
}

void TCustomTabControl::UserSelectsNext(bool goForward) {
  const auto count = static_cast<int>(TabLooks().size());
  if (count == 0) return;
  const int from = ActiveTab() < 0 && !goForward ? count : ActiveTab();
  UserSelects((from + (goForward ? 1 : count - 1)) % count);
}

bool TCustomTabControl::HasFocusInside() const {
  const TCustomForm* form = ParentForm();
  return Focused() || (form && form->ActiveControl() && ContainsControl(form->ActiveControl()));
}

bool TCustomTabControl::TakesAccel(WPARAM character) {
  const std::vector<TTabLook> tabs = TabLooks();
  const auto found = std::ranges::find_if(
      tabs, [character](const TTabLook& tab) { return IsAccel(character, tab.Caption); });
  if (found == tabs.end() || !CanFocus()) return false;
  UserSelects(static_cast<int>(found - tabs.begin()));
  return true;
}

// The window.

void TCustomTabControl::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_TAB_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = WC_TABCONTROLA;
  static constexpr DWORD styles[] = {0, TCS_BUTTONS, TCS_BUTTONS | TCS_FLATBUTTONS};
  static constexpr DWORD positions[] = {0, TCS_BOTTOM, TCS_VERTICAL | TCS_MULTILINE,
                                        TCS_VERTICAL | TCS_RIGHT | TCS_MULTILINE};
  params.Style |= WS_CLIPCHILDREN | styles[FStyle];
  if (FStyle == tsTabs) params.Style |= positions[FTabPosition];
  if (FMultiLine) params.Style |= TCS_MULTILINE;
  if (FRaggedRight) params.Style |= TCS_RAGGEDRIGHT;
  if (FHotTrack) params.Style |= TCS_HOTTRACK;
  if (FTabSize.cx > 0) params.Style |= TCS_FIXEDWIDTH;
}

void TCustomTabControl::CreateWnd() {
  // What stands inside is placed once the tabs have taken their room.
  DisableAlign();
  TWinControl::CreateWnd();
  SendPictures();
  if (FTabSize.cx > 0 || FTabSize.cy > 0) {
    Send(*this, TCM_SETITEMSIZE, 0, MAKELPARAM(FTabSize.cx, FTabSize.cy));
  }
  UpdateTabs();
  EnableAlign();
}

void TCustomTabControl::SendPictures() {
  TImageList* images = FImages.List ? FImages.List->ForPPI(CurrentPPI()) : nullptr;
  Send(*this, TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images ? images->Handle() : nullptr));
}

void TCustomTabControl::SendTab(UINT message, int tab, const TTabLook& look) {
  std::wstring text = ToUtf16(look.Caption);
  TCITEMW item{};
  item.mask = TCIF_TEXT | TCIF_IMAGE;
  item.pszText = text.data();
  item.iImage = look.ImageIndex;
  Send(*this, message, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
}

void TCustomTabControl::UpdateTabs() {
  if (!HandleAllocated()) return;
  Send(*this, TCM_DELETEALLITEMS);
  int tab = 0;
  for (const TTabLook& look : TabLooks()) SendTab(TCM_INSERTITEMW, tab++, look);
  ShowActiveTab();
  Realign();
}

void TCustomTabControl::UpdateTab(int tab) {
  if (HandleAllocated() && tab >= 0) {
    SendTab(TCM_SETITEMW, tab, TabLooks()[static_cast<std::size_t>(tab)]);
  }
}

void TCustomTabControl::ShowActiveTab() {
  SendIfAllocated(*this, TCM_SETCURSEL, static_cast<WPARAM>(ActiveTab()));
}

int TCustomTabControl::IndexOfTabAt(TPoint position) const {
  TCHITTESTINFO info{};
  info.pt = position;
  return static_cast<int>(Send(*this, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&info)));
}

void TCustomTabControl::AdjustClientRect(TRect& rect) const {
  if (!HandleAllocated()) return;
  RECT inside = rect;
  Send(*this, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
  rect = inside;
}

void TCustomTabControl::NotifyFromWindow(TMessage& message) {
  const TWatch watch(this);
  switch (reinterpret_cast<const NMHDR*>(message.LParam)->code) {
    case static_cast<UINT>(TCN_SELCHANGING): message.Result = !CanChange(); return;
    case static_cast<UINT>(TCN_SELCHANGE):
      ActivateTab(static_cast<int>(Send(*this, TCM_GETCURSEL)));
      if (!watch.Gone()) Change();
      return;
    default: return;
  }
}

void TCustomTabControl::Dispatch(TMessage& message) {
  if (message.Msg == CN_NOTIFY) return NotifyFromWindow(message);
  const TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_FONTCHANGED) Realign();
  if (message.Msg == CM_DESIGNHITTEST) {
    const int tab = IndexOfTabAt({message.XPos(), message.YPos()});
    message.Result = tab >= 0 && tab != ActiveTab();
  }
  // The controls inside come first: an inner page control takes the key before an outer one.
  if (message.Result != 0) return;
  const bool tab = message.Msg == CM_DIALOGKEY && message.WParam == VK_TAB;
  if (tab && ::GetKeyState(VK_CONTROL) < 0 && HasFocusInside()) {
    message.Result = 1;
    UserSelectsNext(::GetKeyState(VK_SHIFT) >= 0);
  } else if (message.Msg == CM_DIALOGCHAR) {
    message.Result = TakesAccel(message.WParam);
  }
}

// Screen readers: the tabs are parts, and what stands inside are controls of their own.

void TCustomTabControl::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arPageTabList;
}

std::vector<TAccessiblePart> TCustomTabControl::AccessibleParts() {
  std::vector<TAccessiblePart> parts;
  for (const TTabLook& look : TabLooks()) {
    const auto place = static_cast<int>(parts.size());
    TAccessiblePart& tab = parts.emplace_back();
    tab.Role = arPageTab;
    tab.State = {asSelectable};
    tab.Name = look.AccessibleName;
    tab.KeyboardShortcut = AccelKeys(look.Caption);
    tab.DefaultAction = "Switch";
    if (place == ActiveTab()) tab.State.Include(asSelected);
    if (place == ActiveTab() && Focused()) tab.State.Include(asFocused);
    RECT bounds{};
    SendIfAllocated(*this, TCM_GETITEMRECT, static_cast<WPARAM>(place),
                    reinterpret_cast<LPARAM>(&bounds));
    tab.Bounds = bounds;
  }
  return parts;
}

void TCustomTabControl::DoAccessiblePart(const TAccessiblePath& part) { UserSelects(part.front()); }

}  // namespace vcl
