// TMenu and TMainMenu: finding items by command or shortcut, and what menus do with messages.
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// TMenu.

const TClass& TMenu::Class() {
  static const TClass info =
      Describe<TMenu, TComponent>("vcl::TMenu", "vcl/menus/menus.h",
                                  {
                                      Property<&TMenu::Images, &TMenu::SetImages>("Images"),
                                  });
  return info;
}

TMenu::TMenu(TComponent* owner) : TComponent(owner), FItems(std::make_unique<TMenuItem>(nullptr)) {
  FItems->FMenu = this;
  FImagesLink.OnChange = [this](TObject*) { FItems->FillAgain(); };
}

TMenu::~TMenu() {
  AnnounceEnd();
  // From here on the items find no menu to tell of their changes.
  FItems->FMenu = nullptr;
}

HMENU TMenu::CreateHandle() const { return ::CreatePopupMenu(); }

TMenuItem* TMenu::FindItem(std::uint16_t command) const {
  return FItems->Find([command](const TMenuItem& item) { return item.Command() == command; });
}

TMenuItem* TMenu::FindShortCut(TShortCut shortCut) const {
  if (shortCut == scNone) return nullptr;
  return FItems->Find([shortCut](const TMenuItem& item) { return item.ShortCut() == shortCut; });
}

bool TMenu::DispatchCommand(std::uint16_t command) {
  TMenuItem* item = FindItem(command);
  if (!item || item == Items()) return false;
  item->Click();
  return true;
}

bool TMenu::IsShortCut(const MSG& key) {
  if (key.message != WM_KEYDOWN && key.message != WM_SYSKEYDOWN) return false;
  const auto code = static_cast<std::uint16_t>(key.wParam);
  TMenuItem* item = FindShortCut(vcl::ShortCut(code, KeyDataToShiftState(key.lParam)));
  return item && item->ChosenByKey();
}

bool TMenu::HandleMessage(const TMessage& message) {
  switch (message.Msg) {
    case WM_COMMAND:  // Menus send 0 in both of the other words.
      return message.LParam == 0 && HIWORD(message.WParam) == 0 &&
             DispatchCommand(LOWORD(message.WParam));
    case WM_INITMENUPOPUP: {
      const auto handle = reinterpret_cast<HMENU>(message.WParam);
      TMenuItem* item =
          FItems->Find([handle](const TMenuItem& each) { return each.FHandle == handle; });
      if (!item) return false;
      const TWatch watch(item);
      item->Click();
      if (!watch.Gone()) item->UpdateActions();
      return true;
    }
    case WM_MENUSELECT: return ShowHintOf(message);
    case WM_MEASUREITEM: return MeasurePicture(message);
    case WM_DRAWITEM: return DrawPicture(message);
    default: return false;
  }
}

// Gives the hint of the item that the user is on to the application, as a status bar shows it.
bool TMenu::ShowHintOf(const TMessage& select) {
  constexpr UINT menuClosed = 0xFFFF;
  const UINT flags = HIWORD(select.WParam);
  if (flags == menuClosed && select.LParam == 0) {
    Application()->SetHint({});
    return true;
  }
  const auto handle = reinterpret_cast<HMENU>(select.LParam);
  const UINT which = LOWORD(select.WParam);
  const HMENU submenu = flags & MF_POPUP ? ::GetSubMenu(handle, static_cast<int>(which)) : nullptr;
  TMenuItem* item = FItems->Find([&](const TMenuItem& each) {
    return submenu ? each.FHandle == submenu : each.Command() == which;
  });
  if (item) Application()->SetHint(GetLongHint(item->Hint()));
  return item != nullptr;
}

void TMenu::SetChildOrder(TComponent* child, int order) { FItems->SetChildOrder(child, order); }

void TMenu::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  FItems->GetChildren(each, root);
}

// TMainMenu.

const TClass& TMainMenu::Class() {
  static const TClass info = Describe<TMainMenu, TMenu>("vcl::TMainMenu", "vcl/menus/menus.h", {});
  return info;
}

TMainMenu::TMainMenu(TComponent* owner) : TMenu(owner) {}

TMainMenu::~TMainMenu() { AnnounceEnd(); }

HMENU TMainMenu::CreateHandle() const { return ::CreateMenu(); }

void TMainMenu::MenuChanged() {
  if (FForm && FForm->HandleAllocated() && !Loading()) FForm->UpdateMenu();
}

}  // namespace vcl
