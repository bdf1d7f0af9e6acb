// TQELHint: the one component that takes over the application's hints, and its settings.
#include "qel/controls/Qelthint.h"

#include "qel/core/private/Qelownedsettings.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

int Instances = 0;

/// The main form has the hint, wherever it was put; a form in the designer keeps what is put on it.
vcl::TComponent* OwnerFor(vcl::TComponent* owner) {
  vcl::TCustomForm* const main = vcl::Application()->MainForm();
  return main && !(owner && owner->Designing()) ? main : owner;
}

/// Off and on, or on and off: where the application shows hints, it makes a new window for them.
void RenewHintWindow() {
  vcl::TApplication* const application = vcl::Application();
  application->SetShowHint(!application->ShowHint());
  application->SetShowHint(!application->ShowHint());
}

}  // namespace

Qelthint::TQELDuplicateError::~TQELDuplicateError() = default;

TQELHint::TInstance::TInstance() {
  if (++Instances == 1) return;
  --Instances;
  throw Qelthint::TQELDuplicateError("You can have one and ONLY ONE\r\n\n" + Class().Name() +
                                     " Component\r\n, in a project and it must be on the Mainform");
}

TQELHint::TInstance::~TInstance() { --Instances; }

TQELHint::TQELHint(vcl::TComponent* owner)
    : TQELComponent(OwnerFor(owner)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FHintFont(std::make_unique<vcl::TFont>()) {
  FHintFont->OnChange = vcl::TNotifyEvent(this, &TQELHint::HintFontChanged);
  if (!Designing()) vcl::Application()->SetHintPause(FHintPauseTime);
  TakeOverHints();
}

TQELHint::~TQELHint() { AnnounceEnd(); }

void TQELHint::Loaded() {
  TQELComponent::Loaded();
  // Once more: whoever was made since may have put another class in force.
  TakeOverHints();
}

void TQELHint::TakeOverHints() {
  if (Designing()) return;
  vcl::SetHintWindowClass(TQELNewHint::Class());
  RenewHintWindow();
  ApplyHintFont();
}

void TQELHint::HintFontChanged(vcl::TObject* /*sender*/) {
  if (Designing()) return;
  RenewHintWindow();
  ApplyHintFont();
}

void TQELHint::ApplyHintFont() {
  const vcl::TApplication* const application = vcl::Application();
  for (int i = 0; i < application->ComponentCount(); ++i) {
    auto* const window = dynamic_cast<TQELNewHint*>(application->Components(i));
    if (window) return window->SetTextFont(FHintFont.get());
  }
}

void TQELHint::SetFont3D(TQELFont3D* font3D) { TakeOver(FFont3D, font3D, this); }

void TQELHint::SetHintPauseTime(int milliseconds) {
  // The designer's own hints keep their pause, and the property with them.
  if (Designing() || milliseconds == FHintPauseTime) return;
  FHintPauseTime = milliseconds;
  vcl::Application()->SetHintPause(milliseconds);
}

void TQELHint::SetBackground(TQELBackground* background) {
  // The hint is no client, which would be painted again with every change: only the next hint shows
  // it. But it may be another form's.
  FBackground = background;
  if (background) background->FreeNotification(this);
}

void TQELHint::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation == vcl::opRemove && component == FBackground) FBackground = nullptr;
}

const vcl::TClass& TQELHint::Class() {
  using T = TQELHint;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELHint", "qel/controls/Qelthint.h",
      {
          Property<&T::Font3D, &T::SetFont3D>("Font3D"),
          Property<&T::Speechbubble, &T::SetSpeechbubble>("Speechbubble"),
          Property<&T::Shadow, &T::SetShadow>("Shadow"),
          Property<&T::HintDirection, &T::SetHintDirection>("HintDirection").Default(dUpRight),
          // The two colours' declared defaults are not the constructor's, and stay as they are:
          // form files rely on them. Set to its declared default, a colour is not written, and
          // comes back as the constructor's.
          Property<&T::UnUsedHintColor, &T::SetUnUsedHintColor>("UnUsedHintColor")
              .Default(clYellow),
          Property<&T::HintShadowColor, &T::SetHintShadowColor>("HintShadowColor")
              .Default(clPurple),
          Property<&T::HintFont, &T::SetHintFont>("HintFont"),
          Property<&T::HintPauseTime, &T::SetHintPauseTime>("HintPauseTime").Default(600),
          Event<&T::OnSelectHintDirection>("OnSelectHintDirection"),
          Property<&T::Background, &T::SetBackground>("Background"),
      });
  return info;
}

}  // namespace qel
