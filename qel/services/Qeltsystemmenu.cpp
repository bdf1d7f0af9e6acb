// TQELSystemMenu: putting lines into the system menu, taking them out, and the commands.
#include "qel/services/Qeltsystemmenu.h"

#include <array>
#include <utility>
#include <vector>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

/// Those that work on a window, by the order of their lines.
std::vector<TQELSystemMenu*>& Working() {
  static std::vector<TQELSystemMenu*> working;
  return working;
}

// By TQELSystemMenuCommand.
constexpr UINT Commands[] = {SC_RESTORE, SC_MOVE, SC_SIZE, SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE};
// The system's commands are above those of menu items, and keep the lowest four bits for itself.
constexpr WPARAM FirstSystemCommand = 0xF000;
constexpr WPARAM SystemCommandBits = 0xFFF0;

/// A line of a menu with its text, copied from one menu to another.
class TLine {
 public:
  TLine(HMENU menu, int index) {
    FInfo.cbSize = sizeof FInfo;
    FInfo.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_BITMAP | MIIM_STRING |
                  MIIM_DATA | MIIM_CHECKMARKS;
    FInfo.dwTypeData = FText.data();
    FInfo.cch = static_cast<UINT>(FText.size());
    FThere = ::GetMenuItemInfoW(menu, static_cast<UINT>(index), TRUE, &FInfo);
  }
  TLine(const TLine&) = delete;
  TLine& operator=(const TLine&) = delete;

  bool IsSeparator() const { return FThere && (FInfo.fType & MFT_SEPARATOR); }
  bool IsOf(const TQELSystemMenu* component) const {
    return FThere && FInfo.dwItemData == reinterpret_cast<ULONG_PTR>(component);
  }
  /// Marks it as the component's. A separator has no text to be set.
  void AppendTo(HMENU menu, const TQELSystemMenu* component) {
    if (!FThere) return;
    FInfo.dwItemData = reinterpret_cast<ULONG_PTR>(component);
    if (IsSeparator()) FInfo.fMask &= ~static_cast<UINT>(MIIM_STRING | MIIM_BITMAP);
    ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &FInfo);
  }

 private:
  std::array<wchar_t, 512> FText{};
  MENUITEMINFOW FInfo{};
  bool FThere = false;
};

void AppendSeparator(HMENU menu, const TQELSystemMenu* component) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_FTYPE | MIIM_DATA;
  info.fType = MFT_SEPARATOR;
  info.dwItemData = reinterpret_cast<ULONG_PTR>(component);
  ::InsertMenuItemW(menu, static_cast<UINT>(::GetMenuItemCount(menu)), TRUE, &info);
}

/// Takes out the separators that separate nothing.
void Tidy(HMENU menu) {
  bool open = true;  // Nothing to be separated is above, or a separator is.
  for (int i = 0; i < ::GetMenuItemCount(menu);) {
    const bool separator = TLine(menu, i).IsSeparator();
    if (separator && open) {
      ::RemoveMenu(menu, static_cast<UINT>(i), MF_BYPOSITION);
    } else {
      open = separator;
      ++i;
    }
  }
  const int last = ::GetMenuItemCount(menu) - 1;
  if (last >= 0 && open) ::RemoveMenu(menu, static_cast<UINT>(last), MF_BYPOSITION);
}

}  // namespace

const vcl::TClass& TQELSystemMenu::Class() {
  using T = TQELSystemMenu;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELSystemMenu", "qel/services/Qeltsystemmenu.h",
      {
          Property<&T::Menu, &T::SetMenu>("Menu"),
          Property<&T::Hidden, &T::SetHidden>("Hidden").Default(TQELSystemMenuHidden()),
          Event<&T::OnCommand>("OnCommand")
              .Type("TQELSystemCommandEvent", "vcl::TObject* sender, int command, bool& handled"),
      });
  return info;
}

TQELSystemMenu::TQELSystemMenu(vcl::TComponent* owner) : TQELFormComponent(owner) { Attach(); }

TQELSystemMenu::~TQELSystemMenu() {
  AnnounceEnd();
  Detach();
  SetMenu(nullptr);
}

void TQELSystemMenu::SetMenu(vcl::TPopupMenu* menu) {
  if (menu == FMenu) return;
  if (FMenu) FMenu->RemoveFreeNotification(this);
  FMenu = menu;
  if (menu) menu->FreeNotification(this);
  if (Begun()) Refresh(Form(), false);
}

void TQELSystemMenu::SetHidden(TQELSystemMenuHidden hidden) {
  if (hidden == FHidden) return;
  FHidden = hidden;
  if (Begun()) Refresh(Form(), true);
}

// The lines leave the menu while the submenus are there, which the system would free with it.
void TQELSystemMenu::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELFormComponent::Notification(component, operation);
  if (operation == vcl::opRemove && component == FMenu) SetMenu(nullptr);
}

// The form's menu.

void TQELSystemMenu::Begin() {
  Working().push_back(this);
  Refresh(Form(), false);
}

void TQELSystemMenu::End() {
  if (const HMENU menu = ::GetSystemMenu(Form()->Handle(), FALSE)) RemoveLines(menu);
  std::erase(Working(), this);
  Refresh(Form(), FHidden != TQELSystemMenuHidden());
}

/// Puts together what all components want. `anew` begins with the system's own menu.
void TQELSystemMenu::Refresh(vcl::TCustomForm* form, bool anew) {
  const auto each = [&](void (TQELSystemMenu::*call)(HMENU) const) {
    const HMENU menu = ::GetSystemMenu(form->Handle(), FALSE);
    for (const TQELSystemMenu* one : Working()) {
      if (menu && one->Form() == form) (one->*call)(menu);
    }
  };
  each(&TQELSystemMenu::RemoveLines);
  if (anew) ::GetSystemMenu(form->Handle(), TRUE);
  each(&TQELSystemMenu::HideCommands);
  each(&TQELSystemMenu::AppendLines);
  ::DrawMenuBar(form->Handle());
}

void TQELSystemMenu::HideCommands(HMENU menu) const {
  if (FHidden == TQELSystemMenuHidden()) return;
  for (int i = smRestore; i <= smClose; ++i) {
    if (FHidden.Has(static_cast<TQELSystemMenuCommand>(i))) {
      ::RemoveMenu(menu, Commands[i], MF_BYCOMMAND);
    }
  }
  Tidy(menu);
}

void TQELSystemMenu::AppendLines(HMENU menu) const {
  if (!FMenu) return;
  const HMENU source = FMenu->Handle();
  const int count = ::GetMenuItemCount(source);
  if (count > 0 && ::GetMenuItemCount(menu) > 0) AppendSeparator(menu, this);
  for (int i = 0; i < count; ++i) TLine(source, i).AppendTo(menu, this);
}

void TQELSystemMenu::RemoveLines(HMENU menu) const {
  for (int i = ::GetMenuItemCount(menu); i-- > 0;) {
    if (TLine(menu, i).IsOf(this)) ::RemoveMenu(menu, static_cast<UINT>(i), MF_BYPOSITION);
  }
}

// Messages.

void TQELSystemMenu::BeforeMessage(vcl::TMessage& message, bool& handled) {
  switch (message.Msg) {
    case WM_SYSCOMMAND: return Command(message, handled);
    case WM_INITMENUPOPUP:
      if (HIWORD(message.LParam)) return Opening();
      [[fallthrough]];
    case WM_MEASUREITEM:
    case WM_DRAWITEM:
      handled = FMenu && FMenu->HandleMessage(message);
      message.Result = handled && message.Msg != WM_INITMENUPOPUP;
      return;
    case WM_MENUSELECT:
      if (FMenu) FMenu->HandleMessage(message);
      return;
    default: return;
  }
}

/// Handlers of the menu change its items, or free it, before they are seen.
void TQELSystemMenu::Opening() {
  if (!FMenu) return;
  const vcl::TWatch watch(this);
  FMenu->OnPopup(FMenu);
  if (watch.Gone() || !FMenu) return;
  // Its items' actions are updated as if it opened itself.
  FMenu->HandleMessage({WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(FMenu->Handle()), 0, 0});
  if (!watch.Gone() && Begun()) Refresh(Form(), false);
}

void TQELSystemMenu::Command(vcl::TMessage& message, bool& handled) {
  const bool systems = message.WParam >= FirstSystemCommand;
  const auto command =
      static_cast<int>(systems ? message.WParam & SystemCommandBits : LOWORD(message.WParam));
  const vcl::TWatch watch(this);
  OnCommand(this, command, handled);
  if (handled || watch.Gone() || systems || !FMenu) return;
  handled = FMenu->DispatchCommand(static_cast<std::uint16_t>(command));
}

}  // namespace qel
