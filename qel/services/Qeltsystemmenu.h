// TQELSystemMenu: lines of one's own in a form's system menu.
#pragma once

#include "qel/services/Qelformcomponent.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/sets.h"

namespace qel {

/// The system's own commands in a window's menu.
enum TQELSystemMenuCommand { smRestore, smMove, smSize, smMinimize, smMaximize, smClose };
using TQELSystemMenuHidden = vcl::TSet<TQELSystemMenuCommand>;

/// Sender, the command: one of the system's (SC_CLOSE, ...), or the Command of a menu item;
/// `handled` set to true has nothing else done for it.
using TQELSystemCommandEvent = vcl::TEvent<vcl::TObject*, int, bool&>;

/// Appends a menu's items to the system menu of its form, the one that the icon in the title bar
/// brings up: behind a line, and with submenus, pictures and check marks. Choosing an item clicks
/// it. The menu is looked at anew, and its OnPopup fired, whenever the system menu opens. Several
/// components append theirs one behind another.
class QEL_API TQELSystemMenu : public TQELFormComponent {
 public:
  explicit TQELSystemMenu(vcl::TComponent* owner);
  ~TQELSystemMenu() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  vcl::TPopupMenu* Menu() const { return FMenu; }
  /// The menu whose items are appended.
  void SetMenu(vcl::TPopupMenu* menu);
  TQELSystemMenuHidden Hidden() const { return FHidden; }
  /// The system's commands that the menu does not offer. Without smClose's line, the system greys
  /// the button that closes the form. Commands are shown again by taking the system's menu anew,
  /// which loses what others have put into it.
  void SetHidden(TQELSystemMenuHidden hidden);

  /// A command was chosen, in the menu or otherwise: the title bar's buttons and keys give the
  /// system's commands, too.
  TQELSystemCommandEvent OnCommand;

 protected:
  void BeforeMessage(vcl::TMessage& message, bool& handled) override;
  void Begin() override;
  void End() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  void Command(vcl::TMessage& message, bool& handled);
  void Opening();
  void AppendLines(HMENU menu) const;
  void RemoveLines(HMENU menu) const;
  void HideCommands(HMENU menu) const;
  static void Refresh(vcl::TCustomForm* form, bool anew);

  vcl::TPopupMenu* FMenu = nullptr;
  TQELSystemMenuHidden FHidden;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELSystemMenuCommand>{
    "TQELSystemMenuCommand", "smRestore smMove smSize smMinimize smMaximize smClose",
    "TQELSystemMenuHidden"};

}  // namespace vcl
