// TDropTarget: its control's window, and what is asked of its handlers.
#include "vcl/transfer/droptarget.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/private/windowwatch.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/private/comdata.h"
#include "vcl/transfer/private/comdrop.h"

namespace vcl {

/// The registration of the control's window with the system.
class TDropTarget::TWindow final : public TWindowWatch {
 public:
  explicit TWindow(TDropTarget* owner) : FOwner(owner), FTarget(new TComDropTarget(owner)) {
    All().push_back(this);
  }
  ~TWindow() override {
    SetControl(nullptr);
    FTarget->Forget();
    std::erase(All(), this);
  }
  TComDropTarget* Target() const { return FTarget.get(); }

  void SetControl(TWinControl* control) {
    CheckFree(control);
    TWinControl* const former = Watched();
    if (former && former->HandleAllocated()) WindowEnding(former->Handle());
    Watch(control);
    if (control && control->HandleAllocated()) WindowMade(control->Handle());
  }

 protected:
  void WindowMade(HWND window) override {
    if (FOwner->Designing() || FRegistered) return;
    NeedOle();
    const HRESULT result = ::RegisterDragDrop(window, FTarget.get());
    FRegistered = SUCCEEDED(result);
    if (FRegistered) return;
    throw EOutOfResources(Concat("The system lets nothing be dropped on the control '",
                                 Watched()->Name(), "': error ", std::to_string(result)));
  }
  void WindowEnding(HWND window) override {
    if (std::exchange(FRegistered, false)) ::RevokeDragDrop(window);
  }

 private:
  static std::vector<TWindow*>& All() {
    static std::vector<TWindow*> all;
    return all;
  }
  void CheckFree(const TWinControl* control) const {
    const bool taken = control && std::ranges::any_of(All(), [&](const TWindow* each) {
                         return each != this && each->Watched() == control;
                       });
    if (taken) {
      throw EInvalidOperation(
          Concat("The control '", control->Name(), "' has another drop target already"));
    }
  }

  TDropTarget* FOwner;
  std::unique_ptr<TComDropTarget, TComReleaser> FTarget;
  bool FRegistered = false;
};

const TClass& TDropTarget::Class() {
  using T = TDropTarget;
  static const TClass info =
      Describe<T, TComponent>("vcl::TDropTarget", "vcl/transfer/transfer.h",
                              {
                                  Property<&T::Control, &T::SetControl>("Control"),
                                  Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
                                  Property<&T::Formats, &T::SetFormats>("Formats"),
                                  Property<&T::Kinds, &T::SetKinds>("Kinds").Default(
                                      TDataKinds{dkText, dkHtml, dkPicture, dkFiles, dkComponent}),
                                  Event<&T::OnDragEnter>("OnDragEnter"),
                                  Event<&T::OnDragLeave>("OnDragLeave"),
                                  Event<&T::OnDragOver>("OnDragOver"),
                                  Event<&T::OnDrop>("OnDrop"),
                              });
  return info;
}

TDropTarget::TDropTarget(TComponent* owner)
    : TComponent(owner),
      FFormats(std::make_unique<TStringList>()),
      FWindow(std::make_unique<TWindow>(this)) {
  HearOnlyAsked<TDropTarget>();
}

TDropTarget::~TDropTarget() { AnnounceEnd(); }

TWinControl* TDropTarget::Control() const { return FWindow->Watched(); }
IDropTarget* TDropTarget::Interface() const { return FWindow->Target(); }

void TDropTarget::SetControl(TWinControl* control) {
  TWinControl* const former = Control();
  if (control == former) return;
  FWindow->SetControl(control);
  FData = nullptr;
  if (former) former->RemoveFreeNotification(this);
  if (control) control->FreeNotification(this);
}

void TDropTarget::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && FWindow && component == Control()) SetControl(nullptr);
}

// What the system says.

namespace {

TDropEffect OfferedEffect(DWORD keys, TDropEffects allowed) {
  const DWORD wanted = keys & (MK_CONTROL | MK_SHIFT);
  if (wanted == (MK_CONTROL | MK_SHIFT)) return allowed.Has(deLink) ? deLink : deNone;
  if (wanted == MK_CONTROL) return allowed.Has(deCopy) ? deCopy : deNone;
  if (wanted == MK_SHIFT) return allowed.Has(deMove) ? deMove : deNone;
  for (const TDropEffect each : {deCopy, deMove, deLink}) {
    if (allowed.Has(each)) return each;
  }
  return deNone;
}

}  // namespace

bool TDropTarget::Takes(const TTransferData& data) const {
  if (!FEnabled || !Control()) return false;
  if (data.Has(FKinds)) return true;
  for (int i = 0; i < FFormats->Count(); ++i) {
    const std::string name = FFormats->Strings(i);
    if (!name.empty() && data.HasFormat(RegisterTransferFormat(name))) return true;
  }
  return false;
}

TDropEffect TDropTarget::Ask(const TDropInfoEvent& event, DWORD keys, TPoint screen,
                             TDropEffects allowed) {
  const TData data = FData;  // It outlives this component, should a handler free that.
  const TWatch watch(this);
  TDropEffect effect = FEffect;
  event(this, {*data, allowed, KeysToShiftState(keys), Control()->ScreenToClient(screen)}, effect);
  if (!allowed.Has(effect)) effect = deNone;
  if (!watch.Gone()) FEffect = effect;
  return watch.Gone() ? deNone : effect;
}

TDropEffect TDropTarget::Enter(TData data, DWORD keys, TPoint screen, TDropEffects allowed) {
  FData = Takes(*data) ? std::move(data) : nullptr;
  FEffect = OfferedEffect(keys, allowed);
  return FData ? Ask(OnDragEnter, keys, screen, allowed) : deNone;
}

// Without a handler of its own the answer to what came in stands.
TDropEffect TDropTarget::Over(DWORD keys, TPoint screen, TDropEffects allowed) {
  if (!FData) return deNone;
  if (OnDragOver || FEffect != deNone) FEffect = OfferedEffect(keys, allowed);
  return Ask(OnDragOver, keys, screen, allowed);
}

TDropEffect TDropTarget::Leave() {
  if (std::exchange(FData, nullptr)) OnDragLeave(this);
  return deNone;
}

TDropEffect TDropTarget::Drop(TData data, DWORD keys, TPoint screen, TDropEffects allowed) {
  const TWatch watch(this);
  const TAtEnd done([this] { FData = nullptr; }, this);
  if (!FData || FEffect == deNone) return Leave();
  FData = std::move(data);
  const TData kept = FData;
  TDropEffect effect = FEffect;
  OnDrop(this, {*kept, allowed, KeysToShiftState(keys), Control()->ScreenToClient(screen)}, effect);
  return effect;
}

}  // namespace vcl
