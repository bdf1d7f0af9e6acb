// The page of labels: the settings of all three-dimensional texts, of all frames, and of one label.
#include "demos/gallery/galleryform.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

const std::vector<TSetting> TextSettings = {
    {"LabelThreeDimensionalCheck", "Font3D.ThreeDimensional"},
    {"LabelOffsetEdit", "Font3D.Offset"},
    {"LabelRepetitionwidthEdit", "Font3D.Repetitionwidth"},
    {"LabelRepetitionColorBox", "Font3D.RepetitionColor"},
    {"LabelShadowBox", "Font3D.Shadow"},
    {"LabelHighlightBox", "Font3D.Highlight"},
    {"LabelFontSizeEdit", "Font.Size"},
    {"LabelFontColorBox", "Font.Color"},
};

const std::vector<TSetting> FrameSettings = {
    {"LabelFrameWidthEdit", "Frame.FrameWidth"},   {"LabelFrameOffsetEdit", "Frame.Offset"},
    {"LabelFrameHighlightBox", "Frame.Highlight"}, {"LabelFrameShadowBox", "Frame.Shadow"},
    {"LabelFrameSolidBox", "Frame.Solid"},
};

const std::vector<TSetting> SampleSettings = {
    {"LabelSampleCaptionEdit", "Caption"},
    {"LabelSampleAlignmentBox", "Alignment"},
    {"LabelSampleFontBackgroundBox", "FontBackground"},
    {"LabelSampleBackgroundBox", "Background"},
    {"LabelSampleFrameStyleBox", "Frame.FrameStyle"},
    {"LabelSampleStyle3DBox", "Font3D.Style3D"},
    {"LabelSampleRepetitionBox", "Font3D.Repetition"},
    {"LabelSampleColorBox", "Color"},
    {"LabelSampleEnabledCheck", "Enabled"},
    {"LabelSampleTransparentCheck", "Transparent"},
    {"LabelSampleWordWrapCheck", "WordWrap"},
};

/// The names of an enumeration's values, without the word that all of them begin with.
template <class E>
std::vector<std::string> ShortNames(std::string_view prefix) {
  std::vector<std::string> names;
  const TTypeInfo& type = TypeInfoOf<E>();
  for (std::int64_t ordinal = type.Min; ordinal <= type.Max; ++ordinal)
    names.emplace_back(type.EnumName(ordinal)->substr(prefix.size()));
  return names;
}

TComponent* Named(const TComponent& form, const std::string& name) {
  if (TComponent* found = form.FindComponent(name)) return found;
  throw EComponentError(Concat(form.Name(), " has no label ", name));
}

/// The label of each style of text with each repetition is named after both.
std::vector<TComponent*> TextLabels(const TComponent& form) {
  std::vector<TComponent*> labels;
  for (const auto& style : ShortNames<TQELStyle3D>("font"))
    for (const auto& repetition : ShortNames<TQELRepeat>("repeat"))
      labels.push_back(Named(form, Concat(style, repetition, "Label")));
  return labels;
}

std::vector<TComponent*> FrameLabels(const TComponent& form) {
  std::vector<TComponent*> labels;
  for (const auto& style : ShortNames<TQELFrameStyle>("frame"))
    labels.push_back(Named(form, Concat("Frame", style, "Label")));
  return labels;
}

}  // namespace

void TGalleryForm::SetUpLabels() {
  Bind(TextSettings).SetTargets(TextLabels(*this));
  Bind(FrameSettings).SetTargets(FrameLabels(*this));
  Bind(SampleSettings).SetTargets({SampleLabel});
}

}  // namespace gallery
