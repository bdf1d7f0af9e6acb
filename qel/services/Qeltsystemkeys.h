// TQELSystemKeys: keys that the program hears in every program, and keys that it takes from the
// system while it is the active one.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"

namespace qel {

class TQELSystemKeys;
class TKeyBlocker;

/// Keys of the system's: to switch windows, the Windows keys, and so on.
enum TQELBlockedKey { skAltTab, skWinKeys, skAltEsc, skCtrlEsc, skAltF4 };
using TQELBlockedKeys = vcl::TSet<TQELBlockedKey>;

/// A combination of keys that is heard in every program.
class QEL_API TQELSystemKey : public vcl::TCollectionItem {
 public:
  explicit TQELSystemKey(vcl::TCollection* collection);
  ~TQELSystemKey() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;
  std::string DisplayName() const override;

  /// Whether the system has it for this program. False for one that another program has.
  bool Held() const { return FHeld; }

  bool Active() const { return FActive; }
  /// False gives the keys back to the system.
  void SetActive(bool active);
  vcl::TShortCut ShortCut() const { return FShortCut; }
  /// The keys; none for none.
  void SetShortCut(vcl::TShortCut shortCut);

 private:
  friend class TQELSystemKeys;
  bool FActive = true;
  bool FHeld = false;
  vcl::TShortCut FShortCut = vcl::scNone;
};

/// The keys of such a component.
class QEL_API TQELSystemKeyList : public vcl::TCollection {
 public:
  TQELSystemKeyList() : TCollection(TQELSystemKey::Class()) {}
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  TQELSystemKey* Add() { return static_cast<TQELSystemKey*>(TCollection::Add()); }
  /// Raises EListError outside 0 to Count - 1.
  TQELSystemKey* Keys(int index) const {
    return static_cast<TQELSystemKey*>(TCollection::Items(index));
  }
};

/// Sender, the keys.
using TQELSystemKeyEvent = vcl::TEvent<vcl::TObject*, TQELSystemKey*>;

/// Hot keys of the whole system. Of several programs that want the same keys the first one has
/// them: the others are told by OnTaken. In the designer nothing is heard or blocked.
class QEL_API TQELSystemKeys : public TQELComponent {
 public:
  explicit TQELSystemKeys(vcl::TComponent* owner);
  ~TQELSystemKeys() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Why keys were refused last: which ones, and what the system said; empty when none were.
  const std::string& LastError() const { return FLastError; }

  TQELBlockedKeys Blocked() const { return FBlocked; }
  /// Keys that do nothing while the program is the active one. They are kept away by a thread of
  /// their own, which a busy program does not hold up.
  void SetBlocked(TQELBlockedKeys keys);
  TQELSystemKeyList* Keys() const { return FKeys.get(); }
  /// The keys that are heard.
  void SetKeys(const TQELSystemKeyList* keys) { FKeys->Assign(keys); }

  /// Keys were pressed, in whatever program. The handler may change or free what it likes.
  TQELSystemKeyEvent OnPress;
  /// Keys cannot be heard, as another program, or another one of these components, has them.
  TQELSystemKeyEvent OnTaken;

 protected:
  void Loaded() override;

 private:
  class TWindow;
  bool Hears() const { return !Designing() && !Loading(); }
  void Apply();
  void Pressed(int id);

  std::unique_ptr<TQELSystemKeyList> FKeys;
  std::unique_ptr<TWindow> FWindow;
  std::unique_ptr<TKeyBlocker> FBlocker;
  TQELBlockedKeys FBlocked;
  std::string FLastError;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELBlockedKey>{
    "TQELBlockedKey", "skAltTab skWinKeys skAltEsc skCtrlEsc skAltF4", "TQELBlockedKeys"};
