// The page of spin edits: the settings of one of them, and a gauge that shows where its value
// stands.
#include "demos/gallery/galleryform.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

const std::vector<TSetting> SpinSettings = {
    {"SpinMinValueEdit", "MinValue"},
    {"SpinMaxValueEdit", "MaxValue"},
    {"SpinValueEdit", "Value"},
    {"SpinLineSizeEdit", "LineSize"},
    {"SpinMultipleLineSizeEdit", "MultipleLineSize"},
    {"SpinButtonColorBox", "ButtonColor"},
    {"SpinArrowColorBox", "ArrowColor"},
    {"SpinColorBox", "Color"},
    {"SpinMaxLengthEdit", "MaxLength"},
    {"SpinFontSizeEdit", "Font.Size"},
    {"SpinFontColorBox", "Font.Color"},
    {"SpinReadonlyCheck", "Readonly"},
    {"SpinCutandPasteCheck", "CutandPaste"},
    {"SpinEnabledCheck", "Enabled"},
    {"SpinAutoSelectCheck", "AutoSelect"},
};

/// Where the value stands from its lower bound to its upper one; at 0 where there are no bounds.
int PercentageOf(const TQELSpinEdit& spin) {
  const std::int64_t span = std::int64_t{spin.MaxValue()} - spin.MinValue();
  if (span <= 0) return 0;
  const std::int64_t value = spin.CheckValue(spin.GetValue());
  return static_cast<int>((value - spin.MinValue()) * 100 / span);
}

}  // namespace

void TGalleryForm::SetUpSpinEdits() {
  FSpinSettings = &Bind(SpinSettings);
  FSpinSettings->SetTargets({SampleSpin});
  SpinGauge->SetPercentage(PercentageOf(*SampleSpin));
}

void TGalleryForm::SampleSpinChange(TObject*) {
  // Asked for its value, an empty edit would fill itself, and nobody could type into it.
  if (!FSpinSettings || SampleSpin->Text().empty()) return;
  SpinGauge->SetPercentage(PercentageOf(*SampleSpin));
  // A change that comes from the settings must not disturb what is being typed there.
  if (SampleSpin->Focused()) FSpinSettings->Refresh();
}

}  // namespace gallery
