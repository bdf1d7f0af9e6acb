// The shell's menu: IContextMenu of the shell's folder, as the Win32 documentation has it.
#include "qel/shell/private/shellmenu.h"

#include "qel/shell/private/folders.h"
// They need what stands above.
#include <shellapi.h>
#include <shlobj.h>

#include <memory>

#include "vcl/controls/wincontrol.h"
#include "vcl/controls/windowhook.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

struct TRelease {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class I>
using TCom = std::unique_ptr<I, TRelease>;

struct TFreeList {
  void operator()(ITEMIDLIST* list) const { ::CoTaskMemFree(list); }
};
using TIdList = std::unique_ptr<ITEMIDLIST, TFreeList>;

/// Another interface of the object; null when it has none of that kind.
template <class I>
TCom<I> As(IUnknown* object, const IID& id) {
  void* other = nullptr;
  return TCom<I>(object && SUCCEEDED(object->QueryInterface(id, &other)) ? static_cast<I*>(other)
                                                                         : nullptr);
}

TIdList ListOf(const std::string& path) {
  const std::wstring wide = vcl::ToUtf16(path);
  ITEMIDLIST* list = nullptr;
  return TIdList(
      SUCCEEDED(::SHParseDisplayName(wide.c_str(), nullptr, &list, 0, nullptr)) ? list : nullptr);
}

/// The menu of what lies in one folder; null for what the shell does not know.
TCom<IContextMenu> MenuOf(HWND owner, const std::vector<std::string>& paths) {
  std::vector<TIdList> lists;
  std::vector<const ITEMIDLIST*> last;
  TCom<IShellFolder> folder;
  for (const std::string& path : paths) {
    TIdList list = ListOf(path);
    if (!list) return nullptr;
    void* parent = nullptr;
    const ITEMIDLIST* child = nullptr;
    if (FAILED(::SHBindToParent(list.get(), IID_IShellFolder, &parent, &child))) return nullptr;
    folder.reset(static_cast<IShellFolder*>(parent));
    last.push_back(child);
    lists.push_back(std::move(list));
  }
  void* menu = nullptr;
  if (!folder || FAILED(folder->GetUIObjectOf(owner, static_cast<UINT>(last.size()), last.data(),
                                              IID_IContextMenu, nullptr, &menu))) {
    return nullptr;
  }
  return TCom<IContextMenu>(static_cast<IContextMenu*>(menu));
}

constexpr UINT FirstCommand = 1, LastCommand = 0x7FFF;

/// The command that the user has chosen; 0 for none. The shell draws what is its own.
UINT Track(vcl::TWinControl& owner, IContextMenu& menu, HMENU shown, vcl::TPoint screen) {
  const auto drawn = As<IContextMenu2>(&menu, IID_IContextMenu2);
  vcl::TWindowHook hook(
      [&drawn](vcl::TMessage& message, bool& handled) {
        const bool itsOwn = message.Msg == WM_INITMENUPOPUP || message.Msg == WM_DRAWITEM ||
                            message.Msg == WM_MEASUREITEM;
        if (itsOwn && drawn) {
          handled = SUCCEEDED(drawn->HandleMenuMsg(message.Msg, message.WParam, message.LParam));
        }
      },
      nullptr);
  hook.SetControl(&owner);
  return static_cast<UINT>(::TrackPopupMenuEx(shown, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.X,
                                              screen.Y, owner.Handle(), nullptr));
}

bool IsRename(IContextMenu& menu, UINT command) {
  char verb[32] = "";
  const HRESULT known =
      menu.GetCommandString(command - FirstCommand, GCS_VERBA, nullptr, verb, sizeof verb);
  return SUCCEEDED(known) && std::string(verb) == "rename";
}

}  // namespace

TShellCommand ShowShellMenu(vcl::TWinControl& owner, const std::string& folder,
                            const std::vector<std::string>& names, vcl::TPoint screen) {
  std::vector<std::string> paths;
  for (const std::string& name : names) paths.push_back(folder + name);
  if (paths.empty()) paths.push_back(folder);
  const HWND window = owner.Handle();
  const TCom<IContextMenu> menu = MenuOf(window, paths);
  const std::unique_ptr<HMENU__, decltype(&::DestroyMenu)> shown(::CreatePopupMenu(),
                                                                 &::DestroyMenu);
  const UINT flags = names.empty() ? CMF_NORMAL : CMF_NORMAL | CMF_CANRENAME;
  if (!menu || !shown ||
      FAILED(menu->QueryContextMenu(shown.get(), 0, FirstCommand, LastCommand, flags))) {
    return TShellCommand::None;
  }
  const vcl::TWatch watch(&owner);
  const UINT command = Track(owner, *menu, shown.get(), screen);
  if (command == 0 || watch.Gone()) return TShellCommand::None;
  if (IsRename(*menu, command)) return TShellCommand::Rename;
  CMINVOKECOMMANDINFO info{};
  info.cbSize = sizeof info;
  info.hwnd = window;
  info.lpVerb = MAKEINTRESOURCEA(command - FirstCommand);
  info.nShow = SW_SHOWNORMAL;
  menu->InvokeCommand(&info);
  return TShellCommand::None;
}

}  // namespace qel
