// TMenuItem, TMainMenu and TPopupMenu.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/controls/controltypes.h"
#include "vcl/controls/messages.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/component.h"

namespace vcl {

class TActionChange;
class TActionLink;
class TBasicAction;
class TCustomForm;
class TMenu;
struct TActionValues;

/// A key with scShift, scCtrl and scAlt.
enum TShortCut : std::uint16_t { scNone = 0, scShift = 0x2000, scCtrl = 0x4000, scAlt = 0x8000 };
constexpr TShortCut operator|(TShortCut a, TShortCut b) {
  return static_cast<TShortCut>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
template <>
inline constexpr TIntegerText IntegerText<TShortCut>{"TShortCut"};
/// The shortcut of a key (VK_...) with ssShift, ssCtrl and ssAlt.
VCL_API TShortCut ShortCut(std::uint16_t key, TShiftState shift);
/// "Ctrl+S" and the like; empty for no shortcut.
VCL_API std::string ShortCutToText(TShortCut shortCut);
/// The shortcut that the text says; scNone for one that says none.
VCL_API TShortCut TextToShortCut(std::string_view text);

/// One line of a menu, or one of its submenus.
class VCL_API TMenuItem : public TComponent {
 public:
  explicit TMenuItem(TComponent* owner);
  ~TMenuItem() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& Caption() const { return FCaption; }
  /// "-" is a separating line; "&" marks the letter that chooses the item.
  void SetCaption(const std::string& caption);
  bool Checked() const { return FChecked; }
  /// The item has a check mark.
  void SetChecked(bool checked);
  bool Default() const { return FDefault; }
  /// The item is the menu's default, shown in bold; one of a menu is.
  void SetDefault(bool isDefault);
  bool Enabled() const { return FEnabled; }
  /// False greys the item, which then cannot be chosen.
  void SetEnabled(bool enabled);
  bool Visible() const { return FVisible; }
  /// False leaves the item out of the menu.
  void SetVisible(bool visible);
  bool RadioItem() const { return FRadioItem; }
  /// The item is one of a group of which one is checked.
  void SetRadioItem(bool radioItem);
  int GroupIndex() const { return FGroupIndex; }
  /// Checking one radio item unchecks the others of its group in the menu.
  void SetGroupIndex(int groupIndex);
  TShortCut ShortCut() const { return FShortCut; }
  /// The key that chooses the item without the menu; scNone for none.
  void SetShortCut(TShortCut shortCut);
  const std::string& Hint() const { return FHint; }
  /// The text that the application shows as its hint while the item is selected.
  void SetHint(const std::string& hint) { FHint = hint; }
  int ImageIndex() const { return FImageIndex; }
  /// The picture beside the caption, in the menu's Images; -1 for none.
  void SetImageIndex(int index);

  int Count() const { return static_cast<int>(FItems.size()); }
  /// The item at the index from 0. Raises EListError outside.
  TMenuItem* Items(int index) const;
  TMenuItem* Parent() const { return FParent; }
  void Add(TMenuItem* item) { Insert(Count(), item); }
  /// Raises EInvalidOperation for an item that is in a menu already, EListError for the index.
  void Insert(int index, TMenuItem* item);
  /// Takes the item out without freeing it. Raises EInvalidOperation for one that is not here.
  void Remove(TMenuItem* item);
  /// The same for the item at the index. Raises EListError outside.
  void Delete(int index);
  /// Frees the items inside.
  void Clear();
  int IndexOf(const TMenuItem* item) const;
  int MenuIndex() const;
  void SetMenuIndex(int index);
  TMenu* GetParentMenu() const;
  bool IsLine() const { return FCaption == "-"; }
  /// The number that the system knows the item by.
  std::uint16_t Command() const { return FCommand; }
  /// The submenu's handle, made when it is needed.
  HMENU Handle();
  /// Chooses the item: does nothing when it or one around it is disabled.
  virtual void Click();
  TBasicAction* Action() const;
  /// The action whose values the item shows (see TActionLink::SetAction), and which a click
  /// executes unless OnClick is assigned.
  void SetAction(TBasicAction* action);

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return true; }
  void SetParentComponent(TComponent* parent) override;
  void SetChildOrder(TComponent* child, int order) override;

  /// The item has been chosen, or its submenu is about to open.
  TNotifyEvent OnClick;

 private:
  friend class TMenu;
  friend class TMainMenu;
  template <class T>
  void Change(T& field, const T& value);
  void Changed();
  void ItemsChanged();
  void Fill();
  void AppendTo(HMENU menu);
  bool HasPicture() const;
  void FillAgain();
  void ClearSiblings(bool TMenuItem::*flag, bool sameGroup);
  TMenuItem* Find(const std::function<bool(const TMenuItem&)>& wanted);
  bool EnabledWithParents() const;
  bool ChosenByKey();
  void UpdateAction();
  void UpdateActions();
  void FollowAction(const TActionChange& change);
  template <class T>
  bool IsOwn(T TActionValues::*value, const T& shown) const;
  bool IsCaptionStored() const;
  bool IsCheckedStored() const;
  bool IsEnabledStored() const;
  bool IsGroupIndexStored() const;
  bool IsHintStored() const;
  bool IsImageIndexStored() const;
  bool IsShortCutStored() const;
  bool IsVisibleStored() const;

  std::string FCaption;
  std::string FHint;
  bool FChecked = false;
  bool FDefault = false;
  bool FEnabled = true;
  bool FVisible = true;
  bool FRadioItem = false;
  int FGroupIndex = 0;
  int FImageIndex = -1;
  TShortCut FShortCut = scNone;
  std::uint16_t FCommand;
  TMenuItem* FParent = nullptr;
  TMenu* FMenu = nullptr;  // Set for a menu's own invisible item.
  std::vector<TMenuItem*> FItems;
  HMENU FHandle = nullptr;
  std::unique_ptr<TActionLink> FActionLink;  // Made when there is an action.
};

/// Base of the menus.
class VCL_API TMenu : public TComponent {
 public:
  explicit TMenu(TComponent* owner);
  ~TMenu() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The invisible item that holds the menu's items.
  TMenuItem* Items() const { return FItems.get(); }
  HMENU Handle() { return FItems->Handle(); }
  /// The item of that command number resp. shortcut; null when there is none.
  TMenuItem* FindItem(std::uint16_t command) const;
  TMenuItem* FindShortCut(TShortCut shortCut) const;
  /// Clicks the item of that number; false when the menu has none.
  bool DispatchCommand(std::uint16_t command);
  /// Clicks the item whose shortcut the key message says; false when there is none.
  bool IsShortCut(const MSG& key);
  TImageList* Images() const { return FImages; }
  /// What the items' ImageIndex counts in. The pictures are drawn at the size for the monitor.
  void SetImages(TImageList* images);
  /// Does what a window that shows the menu must do with a message of it: chooses the item of a
  /// WM_COMMAND, clicks a submenu that opens, gives an item's hint to the application, measures and
  /// draws the items' pictures. True when the message was of this menu.
  bool HandleMessage(const TMessage& message);
  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

 protected:
  friend class TMenuItem;
  /// Makes the system's empty menu. The inherited method makes one that comes up.
  virtual HMENU CreateHandle() const;
  /// Called after the items have changed.
  virtual void MenuChanged() {}
  /// Of what the menu stands on.
  virtual int PixelsPerInch() const;
  /// The system measures pictures once: has it do so again where the menu came to other dots per
  /// inch.
  void FitPictures();
  void Notification(TComponent* component, TOperation operation) override;

 private:
  bool ShowHintOf(const TMessage& select);
  const TMenuItem* ItemWithPicture(unsigned type, unsigned command) const;
  bool MeasurePicture(const TMessage& message) const;
  bool DrawPicture(const TMessage& message) const;

  std::unique_ptr<TMenuItem> FItems;
  TImageList* FImages = nullptr;
  TChangeLink FImagesLink;
  int FMeasuredAt = 0;  // Dots per inch.
};

/// The menu bar of a form (`TCustomForm::SetMenu`).
class VCL_API TMainMenu : public TMenu {
 public:
  explicit TMainMenu(TComponent* owner);
  ~TMainMenu() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  HMENU CreateHandle() const override;
  void MenuChanged() override;
  int PixelsPerInch() const override;

 private:
  friend class TCustomForm;
  TCustomForm* FForm = nullptr;  // Which shows the menu.
};

/// A menu that comes up at the mouse.
class VCL_API TPopupMenu : public TMenu {
 public:
  explicit TPopupMenu(TComponent* owner);
  ~TPopupMenu() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Shows the menu at the position on the screen and clicks what the user chooses; returns when
  /// the menu is gone.
  virtual void Popup(int x, int y);
  /// The control (or other component) that the menu was last brought up for.
  TComponent* PopupComponent() const { return FPopupComponent; }
  void SetPopupComponent(TComponent* component);
  bool AutoPopup() const { return FAutoPopup; }
  /// Comes up by itself when a control with this menu is right-clicked.
  void SetAutoPopup(bool autoPopup) { FAutoPopup = autoPopup; }

  /// The menu is about to come up.
  TNotifyEvent OnPopup;

 protected:
  int PixelsPerInch() const override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  TComponent* FPopupComponent = nullptr;
  bool FAutoPopup = true;
};

}  // namespace vcl
