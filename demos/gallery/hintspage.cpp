// The page of hints: the settings of the one component that shows those of all pages, and fields to
// rest the mouse on.
#include "demos/gallery/galleryform.h"
#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/win32.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

const std::vector<TSetting> HintSettings = {
    {"HintSpeechbubbleCheck", "Speechbubble"},
    {"HintShadowCheck", "Shadow"},
    {"HintShadowColorBox", "HintShadowColor"},
    {"HintUnUsedColorBox", "UnUsedHintColor"},
    {"HintBackgroundBox", "Background"},
    {"HintPauseTimeEdit", "HintPauseTime"},
    {"HintFontNameEdit", "HintFont.Name"},
    {"HintFontSizeEdit", "HintFont.Size"},
    {"HintFontColorBox", "HintFont.Color"},
    {"HintFontStyleEdit", "HintFont.Style"},
    {"HintThreeDimensionalCheck", "Font3D.ThreeDimensional"},
    {"HintStyle3DBox", "Font3D.Style3D"},
    {"HintOffsetEdit", "Font3D.Offset"},
    {"HintRepetitionBox", "Font3D.Repetition"},
    {"HintRepetitionwidthEdit", "Font3D.Repetitionwidth"},
    {"HintRepetitionColorBox", "Font3D.RepetitionColor"},
    {"HintTextShadowBox", "Font3D.Shadow"},
    {"HintHighlightBox", "Font3D.Highlight"},
};

const std::vector<TSetting> DirectionSetting = {{"HintDirectionBox", "HintDirection"}};

/// The fields that have their hints on one side.
struct TSideField {
  const char* Name;
  TQELDirectionB Direction;
};
constexpr TSideField SideFields[] = {{"HintUpLeftField", dUpLeft},
                                     {"HintUpRightField", dUpRight},
                                     {"HintDownLeftField", dDownLeft},
                                     {"HintDownRightField", dDownRight}};

}  // namespace

void TGalleryForm::SetUpHints() {
  Bind(HintSettings).SetTargets({BubbleHint});
  FDirectionSetting = &Bind(DirectionSetting);
  FDirectionSetting->SetTargets({BubbleHint});
}

void TGalleryForm::SelectHintDirection(TControl* control, TQELDirectionB& direction) {
  for (const TSideField& field : SideFields)
    if (control && control->Name() == field.Name) direction = field.Direction;
  // A hint that found no room has changed the setting, and this one does.
  BubbleHint->SetHintDirection(direction);
  FDirectionSetting->Refresh();
}

/// Moves the window, beyond the screen where it must be, until the four fields touch the edge.
void TGalleryForm::HintEdgeClick(TObject* sender) {
  const TPoint first = HintUpLeftField->ClientToScreen({});
  const TPoint last = HintDownRightField->ClientToScreen(
      {HintDownRightField->Width(), HintDownRightField->Height()});
  const std::string& edge = dynamic_cast<const TComponent&>(*sender).Name();
  if (edge == "HintLeftEdgeButton") SetLeft(Left() - first.X);
  if (edge == "HintTopEdgeButton") SetTop(Top() - first.Y);
  if (edge == "HintRightEdgeButton") SetLeft(Left() + Screen()->Width() - last.X);
  if (edge == "HintBottomEdgeButton") SetTop(Top() + Screen()->Height() - last.Y);
}

void TGalleryForm::ShowSampleHint() {
  const TPoint place =
      HintStageField->ClientToScreen({HintStageField->Width() / 2, HintStageField->Height() - 30});
  ::SetCursorPos(place.X, place.Y);
  Application()->Hints().ActivateHint(place);
}

}  // namespace gallery
