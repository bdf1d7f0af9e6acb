// TQELMRUMenu: a menu's list of the files that were used last, and TQELMRUItem, the lines that it
// adds to the menu.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "qel/core/Qeltstoredata.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// The clicked menu item, the file's name.
using TQELMRUItemClick = vcl::TEvent<vcl::TObject*, std::string>;

/// A menu item that a TQELMRUMenu has made. Items of this class are removed from the menu when the
/// list is shown anew, whoever has put them there.
class QEL_API TQELMRUItem : public vcl::TMenuItem {
 public:
  /// `number` is 1 for the first file of the list, 0 for a separator or a submenu.
  explicit TQELMRUItem(vcl::TComponent* owner, int number = 0)
      : TMenuItem(owner), FNumber(number) {}
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int Number() const { return FNumber; }

 private:
  int FNumber;  // A store may have more names than a list with MaxItems has.
};

/// Keeps a list of files, shows their names in a menu, says when one is clicked, and remembers the
/// list between runs in its MRUStore, in the values MRU0, MRU1 and so on.
///
/// The list is read when the form has been read, and written when the component is freed and by
/// Clear; neither happens in the designer. What the store raises reaches the caller; while the form
/// is being read MRUStore's OnError tells it, while the component is being freed the application.
///
/// What could not be read is never erased: it is read again before the store is written, and stays
/// before what has come to the list since; when it still can't be read, the store stays as it is.
class QEL_API TQELMRUMenu : public TQELComponent {
 public:
  explicit TQELMRUMenu(vcl::TComponent* owner);
  ~TQELMRUMenu() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Adds the name at the end of the list, and deletes the first name while there are more than
  /// MaxItems. A name that is there, compared without case, becomes the first one as it is spelled
  /// there.
  void Insert(const std::string& fileName);
  /// Deletes the name, if it is there.
  void Delete(const std::string& fileName);
  /// Empties the list, and the store unless that can't be read, which is raised.
  void Clear();
  /// Replaces the list by what the store has, be it more than MaxItems. An unusable store changes
  /// nothing. Raises EIniFileException or ERegistryException for one that can't be read, be it one
  /// value that is no text; the list is as before then. False when the store is not enabled.
  bool Load();
  /// Replaces what the store has by the list. A name that the store refuses is left out and its
  /// error raised at the end. Behind a Load that raised, the stored names come to the list first,
  /// or what they raise is raised again and the store left alone. False when the store is not
  /// enabled.
  bool Save();
  /// Shows the list in the menu anew.
  virtual void PopulateMenu();
  /// Takes the names out of the menu, and frees their items.
  void RemoveAllItems();

  bool Numbering() const { return FNumbering; }
  /// Puts a number before each name, whose last digit chooses it. Seen when the list is next shown
  /// anew.
  void SetNumbering(bool numbering) { FNumbering = numbering; }
  /// The greatest number of names in the list.
  std::uint8_t MaxItems() const { return FMaxItems; }
  /// A smaller number than before deletes names at the end of the list.
  void SetMaxItems(std::uint8_t maxItems);
  bool RemoveOnClick() const { return FRemoveOnClick; }
  /// A clicked name leaves the list.
  void SetRemoveOnClick(bool removeOnClick) { FRemoveOnClick = removeOnClick; }
  bool AsSubMenu() const { return FAsSubMenu; }
  /// Shows the names in a submenu. The declared default is false, so that a form file never says
  /// false and each form that is read begins with true: to have the names in the menu itself, set
  /// this at run time.
  void SetAsSubMenu(bool asSubMenu);
  bool Separator() const { return FSeparator; }
  /// Shows a line before the names.
  void SetSeparator(bool separator);
  const std::string& SubMenuname() const { return FSubMenuname; }
  /// The submenu's caption.
  void SetSubMenuname(const std::string& name);
  /// Where the names are: at the end of this item's menu or, when it has none, just before this
  /// item. When the item is freed at run time its names go too, but the reference stays until
  /// another one is set: it can be compared with then and nothing else.
  vcl::TMenuItem* AttachToMenu() const { return FAttachToMenu; }
  void SetAttachToMenu(vcl::TMenuItem* menu);
  /// Where the list is kept between runs.
  TQELDataStore* MRUStore() const { return FMRUStore.get(); }

  /// A name was clicked; with RemoveOnClick it has left the list by now. The item lives until the
  /// event is over, whatever the handler does to the list.
  TQELMRUItemClick OnItemClick;

 protected:
  void MRUClicked(vcl::TObject* sender);
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  vcl::TMenuItem* LiveMenu() const { return FMenuGone ? nullptr : FAttachToMenu; }
  vcl::TMenuItem* Container() const;
  TQELMRUItem* AddItem(vcl::TMenuItem* container, int position, const std::string& caption,
                       int number);
  void AddNames(vcl::TMenuItem* container, int position);
  bool ReadStored(vcl::TStringList& names);
  void TakeInUnread();
  void SaveAtEnd();
  void WriteAll();
  void Discard(TQELMRUItem* item);
  void FreeDiscarded();

  bool FNumbering = false;
  std::uint8_t FMaxItems = 10;
  bool FRemoveOnClick = true;
  bool FAsSubMenu = true;
  bool FSeparator = true;
  std::string FSubMenuname = "Reopen";
  vcl::TMenuItem* FAttachToMenu = nullptr;
  bool FMenuGone = false;
  int FClicks = 0;  // Being handled.
  std::unique_ptr<TQELDataStore> FMRUStore;
  vcl::TStringList FFiles;
  bool FUnread = false;  // What is stored was not to be read.
};

}  // namespace qel
