// TQELSystemKeys: its table, and the keys as the system has them.
#include "qel/services/Qeltsystemkeys.h"

#include <utility>
#include <vector>

#include "qel/services/private/keyblocker.h"
#include "vcl/controls/messagewindow.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

// The keys.

const vcl::TClass& TQELSystemKey::Class() {
  using T = TQELSystemKey;
  using namespace vcl;
  static const TClass info = Describe<T, TCollectionItem>(
      "qel::TQELSystemKey", "qel/services/Qeltsystemkeys.h",
      {
          Property<&T::Active, &T::SetActive>("Active").Default(true),
          Property<&T::ShortCut, &T::SetShortCut>("ShortCut").Default(scNone),
      });
  return info;
}

TQELSystemKey::TQELSystemKey(vcl::TCollection* collection) : TCollectionItem(collection) {}
TQELSystemKey::~TQELSystemKey() = default;

void TQELSystemKey::Assign(const vcl::TPersistent* source) {
  const auto* key = dynamic_cast<const TQELSystemKey*>(source);
  if (!key) return TCollectionItem::Assign(source);
  FActive = key->FActive;
  FShortCut = key->FShortCut;
  Changed(false);
}

std::string TQELSystemKey::DisplayName() const {
  return FShortCut == vcl::scNone ? TCollectionItem::DisplayName() : vcl::ShortCutToText(FShortCut);
}

void TQELSystemKey::SetActive(bool active) {
  if (active == std::exchange(FActive, active)) return;
  Changed(false);
}

void TQELSystemKey::SetShortCut(vcl::TShortCut shortCut) {
  if (shortCut == std::exchange(FShortCut, shortCut)) return;
  Changed(false);
}

const vcl::TClass& TQELSystemKeyList::Class() {
  static const vcl::TClass info = vcl::Describe<TQELSystemKeyList, vcl::TCollection>(
      "qel::TQELSystemKeyList", "qel/services/Qeltsystemkeys.h", {});
  return info;
}

// The window that the system tells.

class TQELSystemKeys::TWindow {
 public:
  explicit TWindow(TQELSystemKeys& owner)
      : FWindow(vcl::AllocateHWnd([this, &owner](vcl::TMessage& message) {
          if (message.Msg == WM_HOTKEY) return owner.Pressed(static_cast<int>(message.WParam));
          message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
        })) {}
  ~TWindow() {
    Forget();
    vcl::DeallocateHWnd(FWindow);
  }
  TWindow(const TWindow&) = delete;
  TWindow& operator=(const TWindow&) = delete;

  /// False when the system refuses; GetLastError says why.
  bool Register(int id, vcl::TShortCut keys) {
    UINT held = MOD_NOREPEAT;
    if (keys & vcl::scShift) held |= MOD_SHIFT;
    if (keys & vcl::scCtrl) held |= MOD_CONTROL;
    if (keys & vcl::scAlt) held |= MOD_ALT;
    if (!::RegisterHotKey(FWindow, id, held, keys & 0xFFU)) return false;
    FIds.push_back(id);
    return true;
  }
  void Forget() {
    for (const int id : std::exchange(FIds, {})) ::UnregisterHotKey(FWindow, id);
  }

 private:
  HWND FWindow;
  std::vector<int> FIds;
};

// The component.

const vcl::TClass& TQELSystemKeys::Class() {
  using T = TQELSystemKeys;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELSystemKeys", "qel/services/Qeltsystemkeys.h",
      {
          Property<&T::Blocked, &T::SetBlocked>("Blocked").Default(TQELBlockedKeys{}),
          Property<&T::Keys, &T::SetKeys>("Keys"),
          Event<&T::OnPress>("OnPress").Type("TQELSystemKeyEvent",
                                             "vcl::TObject* sender, qel::TQELSystemKey* key"),
          Event<&T::OnTaken>("OnTaken").Type("TQELSystemKeyEvent",
                                             "vcl::TObject* sender, qel::TQELSystemKey* key"),
      });
  return info;
}

TQELSystemKeys::TQELSystemKeys(vcl::TComponent* owner)
    : TQELComponent(owner), FKeys(std::make_unique<TQELSystemKeyList>()) {
  FKeys->OnUpdate = [this](vcl::TCollectionItem*) { Apply(); };
}

TQELSystemKeys::~TQELSystemKeys() {
  AnnounceEnd();
  FKeys->OnUpdate = nullptr;
}

void TQELSystemKeys::Loaded() {
  TQELComponent::Loaded();
  Apply();
}

void TQELSystemKeys::SetBlocked(TQELBlockedKeys keys) {
  FBlocked = keys;
  Apply();
}

/// Has the system know the keys as they are now. Their numbers are their places.
void TQELSystemKeys::Apply() {
  if (!Hears()) return;
  FBlocker.reset();
  if (FBlocked != TQELBlockedKeys{}) FBlocker = std::make_unique<TKeyBlocker>(FBlocked);
  if (!FWindow && FKeys->Count() > 0) FWindow = std::make_unique<TWindow>(*this);
  if (!FWindow) return;
  FWindow->Forget();
  FLastError.clear();
  std::vector<int> taken;
  for (int i = 0; i < FKeys->Count(); ++i) {
    TQELSystemKey* key = FKeys->Keys(i);
    const bool wanted = key->FActive && key->FShortCut != vcl::scNone;
    key->FHeld = wanted && FWindow->Register(i, key->FShortCut);
    if (!wanted || key->FHeld) continue;
    FLastError = vcl::Concat("The keys ", vcl::ShortCutToText(key->FShortCut),
                             " cannot be heard: ", vcl::SysErrorMessage(vcl::LastSystemError()));
    taken.push_back(i);
  }
  const vcl::TWatch watch(this);
  for (const int i : taken) {
    if (watch.Gone() || i >= FKeys->Count()) return;
    OnTaken(this, FKeys->Keys(i));
  }
}

void TQELSystemKeys::Pressed(int id) {
  if (id < FKeys->Count()) OnPress(this, FKeys->Keys(id));
}

}  // namespace qel
