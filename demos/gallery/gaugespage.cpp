// The page of gauges: the settings of one gauge, and one that a timer drives.
#include "demos/gallery/galleryform.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

const std::vector<TSetting> SampleSettings = {
    {"GaugePercentageEdit", "Percentage"},
    {"GaugeKindBox", "Kind"},
    {"GaugeSegmentWidthEdit", "SegmentWidth"},
    {"GaugeSegmentGapEdit", "SegmentGap"},
    {"GaugeSegmentColorBox", "SegmentColor"},
    {"GaugeInsideBackColorBox", "InsideBackColor"},
    {"GaugeBorderwidthEdit", "Borderwidth"},
    {"GaugePicturePositionBox", "PicturePosition"},
    {"GaugeBackgroundBox", "Background"},
    {"GaugeGlyphVisibleCheck", "Glyph.Visible"},
    {"GaugeInnerStyleBox", "BevelInner.FrameStyle"},
    {"GaugeInnerWidthEdit", "BevelInner.FrameWidth"},
    {"GaugeOuterStyleBox", "BevelOuter.FrameStyle"},
    {"GaugeOuterWidthEdit", "BevelOuter.FrameWidth"},
    {"GaugeStyle3DBox", "Font3D.Style3D"},
    {"GaugeOffsetEdit", "Font3D.Offset"},
    {"GaugeRepetitionBox", "Font3D.Repetition"},
    {"GaugeRepetitionwidthEdit", "Font3D.Repetitionwidth"},
    {"GaugeFontSizeEdit", "Font.Size"},
    {"GaugeFontColorBox", "Font.Color"},
};

const std::vector<TSetting> TimerSettings = {{"GaugeIntervalEdit", "Interval"}};

}  // namespace

void TGalleryForm::SetUpGauges() {
  Bind(SampleSettings).SetTargets({SampleGauge});
  Bind(TimerSettings).SetTargets({LiveTimer});
}

void TGalleryForm::LiveTimerTick(TObject*) {
  const int percentage = LiveGauge->Percentage();
  LiveGauge->SetPercentage(percentage < 100 ? percentage + 1 : 0);
}

void TGalleryForm::LiveStartClick(TObject*) { LiveTimer->SetEnabled(true); }
void TGalleryForm::LiveStopClick(TObject*) { LiveTimer->SetEnabled(false); }

}  // namespace gallery
