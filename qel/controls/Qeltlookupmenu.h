// TQELLookupMenu: a menu of texts to insert into an edit.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/strings.h"
#include "vcl/stdctrls/edit.h"

namespace qel {

enum TQELLookupMode {
  lmInsert,  ///< The text takes the place of what is selected.
  lmReplace  ///< The text takes the place of all.
};

/// Sender and the text that is about to be inserted, which the handler may change; an empty one
/// inserts nothing.
using TQELLookupSelectEvent = vcl::TEvent<vcl::TObject*, std::string&>;

class TQELKeyList;

/// A menu of texts, which a key brings up beside the caret of an edit. "Greetings\Formal=Dear Sir
/// or Madam" is the item "Formal" in the submenu "Greetings", with the text behind the "=".
class QEL_API TQELLookupMenu : public TQELComponent {
 public:
  explicit TQELLookupMenu(vcl::TComponent* owner);
  ~TQELLookupMenu() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The menu's lines: the way to the item, its parts parted by "\", and behind a "=" the text to
  /// insert, which else is the item. "-" is a separating line.
  vcl::TStrings* Items() const { return FItems.get(); }
  void SetItems(const vcl::TStrings* items) { FItems->Assign(items); }
  vcl::TCustomEdit* Edit() const { return FEdit; }
  /// The edit that the texts go to; null for the one that has the focus.
  void SetEdit(vcl::TCustomEdit* edit);
  TQELLookupMode Mode() const { return FMode; }
  /// What the text takes the place of.
  void SetMode(TQELLookupMode mode) { FMode = mode; }
  vcl::TShortCut ShortCut() const { return FShortCut; }
  /// The key that brings the menu up while the edit has the focus; scNone for none.
  void SetShortCut(vcl::TShortCut shortCut);
  vcl::TImageList* Images() const { return FImages; }
  /// The items' pictures, in the order of the lines.
  void SetImages(vcl::TImageList* images);

  /// Shows the menu at the position on the screen and inserts what the user chooses; returns when
  /// the menu is gone. False when there is no edit to insert into, or no item.
  bool Popup(int x, int y);
  /// The same beside the caret of the edit.
  bool Popup();
  /// Inserts a text as the menu does.
  void Insert(const std::string& text);

  /// A text has been chosen.
  TQELLookupSelectEvent OnSelect;

 protected:
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  friend class TQELKeyList;
  vcl::TCustomEdit* Target() const;
  void Fill(vcl::TPopupMenu& menu, std::string& chosen) const;
  void AddLine(vcl::TPopupMenu& menu, int line, std::string& chosen) const;
  void ListenToKey();

  std::unique_ptr<vcl::TStringList> FItems;
  vcl::TCustomEdit* FEdit = nullptr;
  vcl::TImageList* FImages = nullptr;
  TQELLookupMode FMode = lmInsert;
  vcl::TShortCut FShortCut;
  TQELKeyList* FKeys = nullptr;  // The form's, while there is a key to listen to.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELLookupMode>{"TQELLookupMode", "lmInsert lmReplace"};
template <>
inline constexpr TEventText EventText<qel::TQELLookupSelectEvent>{
    "TQELLookupSelectEvent", "vcl::TObject* sender, std::string& text"};

}  // namespace vcl
