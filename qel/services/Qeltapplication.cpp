// TQELApplication: its table, and what it hears.
#include "qel/services/Qeltapplication.h"

#include "vcl/forms/applicationlistener.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// Hands on what the application tells. A handler may free the component.
class TQELApplication::TListener : public vcl::TApplicationListener {
 public:
  explicit TListener(TQELApplication& owner) : FOwner(owner) {}

  void Activated() override { Tell(FOwner.OnActivate); }
  void Deactivated() override { Tell(FOwner.OnDeactivate); }
  void Minimized() override { Tell(FOwner.OnMinimize); }
  void Restored() override { Tell(FOwner.OnRestore); }
  void HintChanged() override { Tell(FOwner.OnHint); }
  void EndSession() override { Tell(FOwner.OnEndSession); }
  void ShowHint(std::string& text, bool& canShow, vcl::THintInfo& info) override {
    if (Hears()) FOwner.OnShowHint(text, canShow, info);
  }
  void Idle(bool& done) override {
    if (Hears()) FOwner.OnIdle(&FOwner, done);
  }
  void Message(MSG& message, bool& handled) override {
    if (Hears()) FOwner.OnMessage(message, handled);
  }
  void Error(vcl::TObject* sender, const std::exception& error, bool& handled) override {
    if (Hears()) FOwner.OnException(sender, error, handled);
  }
  void QueryEndSession(bool& canEnd) override {
    if (Hears()) FOwner.OnQueryEndSession(&FOwner, canEnd);
  }
  void Broadcast(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (!Hears()) return;
    if (message == WM_DISPLAYCHANGE) return FOwner.OnDisplayChange(&FOwner);
    if (message == WM_POWERBROADCAST) return TellPower(wParam);
    const auto* section = reinterpret_cast<const wchar_t*>(lParam);
    FOwner.OnSettingsChange(&FOwner, section ? vcl::ToUtf8(section) : std::string());
  }

 private:
  bool Hears() const { return !FOwner.Designing(); }
  void Tell(const vcl::TNotifyEvent& event) {
    if (Hears()) event(&FOwner);
  }
  void TellPower(WPARAM change) {
    switch (change) {
      case PBT_APMSUSPEND: return FOwner.OnPowerChange(&FOwner, pcSuspend);
      // The system sends it once for every sleep, and another one when a user is there.
      case PBT_APMRESUMEAUTOMATIC: return FOwner.OnPowerChange(&FOwner, pcResume);
      case PBT_APMPOWERSTATUSCHANGE: return FOwner.OnPowerChange(&FOwner, pcStatus);
      default: return;
    }
  }

  TQELApplication& FOwner;
};

const vcl::TClass& TQELApplication::Class() {
  using T = TQELApplication;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELApplication", "qel/services/Qeltapplication.h",
      {
          Property<&T::HintColor, &T::SetHintColor>("HintColor").Default(clDefault),
          Property<&T::HintPause, &T::SetHintPause>("HintPause").Default(-1),
          Event<&T::OnActivate>("OnActivate"),
          Event<&T::OnDeactivate>("OnDeactivate"),
          Event<&T::OnDisplayChange>("OnDisplayChange"),
          Event<&T::OnEndSession>("OnEndSession"),
          Event<&T::OnException>("OnException")
              .Type("TQELExceptionEvent",
                    "vcl::TObject* sender, const std::exception& error, bool& handled"),
          Event<&T::OnHint>("OnHint"),
          Event<&T::OnIdle>("OnIdle"),
          Event<&T::OnMessage>("OnMessage").Type("TMessageEvent", "tagMSG& message, bool& handled"),
          Event<&T::OnMinimize>("OnMinimize"),
          Event<&T::OnPowerChange>("OnPowerChange")
              .Type("TQELPowerChangeEvent", "vcl::TObject* sender, qel::TQELPowerChange change"),
          Event<&T::OnQueryEndSession>("OnQueryEndSession"),
          Event<&T::OnRestore>("OnRestore"),
          Event<&T::OnSettingsChange>("OnSettingsChange")
              .Type("TQELSettingsChangeEvent", "vcl::TObject* sender, const std::string& section"),
          Event<&T::OnShowHint>("OnShowHint"),
      });
  return info;
}

TQELApplication::TQELApplication(vcl::TComponent* owner)
    : TQELComponent(owner), FListener(std::make_unique<TListener>(*this)) {}

TQELApplication::~TQELApplication() {
  AnnounceEnd();
  FListener.reset();
  SetHintColor(vcl::clDefault);
  SetHintPause(-1);
}

void TQELApplication::SetHintColor(vcl::TColor color) {
  FHintColor = color;
  Apply();
}

void TQELApplication::SetHintPause(int milliseconds) {
  if (milliseconds < -1) return;
  FHintPause = milliseconds;
  Apply();
}

void TQELApplication::Loaded() {
  TQELComponent::Loaded();
  Apply();
}

/// Keeps what was before the first time, and puts it back when it is to be left alone.
void TQELApplication::Apply() {
  if (Designing() || Loading()) return;
  vcl::TApplication* const application = vcl::Application();
  if (FHintColor != vcl::clDefault) {
    if (!FFormerColor) FFormerColor = application->HintColor();
    application->SetHintColor(FHintColor);
  } else if (FFormerColor) {
    application->SetHintColor(*std::exchange(FFormerColor, std::nullopt));
  }
  if (FHintPause >= 0) {
    if (!FFormerPause) FFormerPause = application->HintPause();
    application->SetHintPause(FHintPause);
  } else if (FFormerPause) {
    application->SetHintPause(*std::exchange(FFormerPause, std::nullopt));
  }
}

}  // namespace qel
