// TQELButtonDetails: handing its settings on to the button, as long as that lives.
#include "qel/core/Qelbuttondetails.h"

#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/buttons.h"

namespace qel {

/// The button that the details are of, as long as it lives.
class TQELButtonDetails::TTarget {
 public:
  explicit TTarget(vcl::TControl& control)
      : FWatch(&control),
        FBitBtn(dynamic_cast<vcl::TBitBtn*>(&control)),
        FSpeedButton(dynamic_cast<vcl::TSpeedButton*>(&control)) {}

  /// Calls `use` with the button as what it is.
  template <class Use>
  void With(Use use) const {
    if (FWatch.Gone()) return;
    if (FBitBtn) use(*FBitBtn);
    if (FSpeedButton && !FWatch.Gone()) use(*FSpeedButton);
  }

 private:
  vcl::TWatch FWatch;
  vcl::TBitBtn* FBitBtn;
  vcl::TSpeedButton* FSpeedButton;
};

const vcl::TClass& TQELButtonDetails::Class() {
  using T = TQELButtonDetails;
  using namespace vcl;
  // The constructor leaves ShowHint false: form files say so of all details that keep it.
  static const TClass info = Describe<T, TPersistent>(
      "qel::TQELButtonDetails", "qel/core/Qelclasses2.h",
      {
          Property<&T::Glyph, &T::Setglyph>("Glyph"),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
          Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
          Property<&T::ConfirmOnPress, &T::SetConfirmOnPress>("ConfirmOnPress").Default(false),
          Property<&T::ConfirmMessage, &T::SetConfirmMessage>("ConfirmMessage"),
          Property<&T::Caption, &T::SetCaption>("Caption"),
          Property<&T::Hint, &T::SetHint>("Hint"),
          Property<&T::ShowHint, &T::SetSHint>("ShowHint").Default(true),
      });
  return info;
}

TQELButtonDetails::TQELButtonDetails(vcl::TControl* target)
    : FGlyph(std::make_unique<vcl::TBitmap>()),
      FTarget(target ? std::make_shared<const TTarget>(*target) : nullptr) {
  FGlyph->OnChange = vcl::TNotifyEvent(this, &TQELButtonDetails::GlyphChanged);
}

TQELButtonDetails::~TQELButtonDetails() { FGlyph->OnChange.Clear(); }

/// A button that is disabled or hidden loses the focus, and what handles that may free these
/// details: from there on only the target is looked at.
template <class Apply>
void TQELButtonDetails::Change(Apply apply) {
  const std::shared_ptr<const TTarget> target = FTarget;
  if (!target) return;
  target->With(apply);
  target->With([](auto& button) { button.Invalidate(); });
}

void TQELButtonDetails::Setglyph(const vcl::TBitmap* glyph) { FGlyph->Assign(glyph); }

void TQELButtonDetails::GlyphChanged(vcl::TObject* /*sender*/) {
  Change([this](auto& button) { button.SetGlyph(FGlyph.get()); });
}

void TQELButtonDetails::SetVisible(bool visible) {
  FVisible = visible;
  Change([&](auto& button) { button.SetVisible(visible); });
}

void TQELButtonDetails::SetEnabled(bool enabled) {
  FEnabled = enabled;
  Change([&](auto& button) { button.SetEnabled(enabled); });
}

void TQELButtonDetails::SetCaption(const std::string& caption) {
  FCaption = caption;
  Change([&](auto& button) { button.SetCaption(FCaption); });
}

void TQELButtonDetails::SetHint(const std::string& hint) {
  FHint = hint;
  Change([&](auto& button) { button.SetHint(FHint); });
}

void TQELButtonDetails::SetSHint(bool showHint) {
  FShowHint = showHint;
  Change([&](auto& button) { button.SetShowHint(showHint); });
}

}  // namespace qel
