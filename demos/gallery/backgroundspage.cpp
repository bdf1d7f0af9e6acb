// The page of backgrounds: the settings of the one that several controls share.
#include "demos/gallery/galleryform.h"
#include "demos/gallery/propertytext.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

void CheckColors(const std::string& lines) {
  TStringList colors;
  colors.SetText(lines);
  for (int i = 0; i < colors.Count(); ++i) StringToColor(colors.Strings(i));
}

const std::vector<TSetting> BackgroundSettings = {
    {"BackStyleBox", "BackgroundStyle"},
    {"BackSolidColorBox", "SolidColor"},
    {"BackFillStyleBox", "Gradient.FillStyle"},
    {"BackBeginColorBox", "Gradient.BeginColor"},
    {"BackEndColorBox", "Gradient.EndColor"},
    {"BackColorCountEdit", "Gradient.ColorCount"},
    {"BackBetweenMemo", "Gradient.ColorsInBetween", &CheckColors},
    {"BackImageStyleBox", "Texture.ImageStyle"},
    {"BackTexTransparentBox", "Texture.TransparentColor"},
    {"BackTexGroundBox", "Texture.TransparentBackground"},
    {"BackBrushStyleBox", "BrushFill.BrushStyle"},
    {"BackBrushColorBox", "BrushFill.BrushColor"},
};

}  // namespace

void TGalleryForm::SetUpBackgrounds() {
  Bind(BackgroundSettings).SetTargets({SharedBackground});
  // The pictures to choose from, and the background on the form that has each.
  BackImageBox->Items()->AddObject("Bricks", StretchedBackground);
  BackImageBox->Items()->AddObject("Leaf", SeeThroughBackground);
  BackImageBox->Items()->AddObject("Weave", TiledBackground);
  BackImageBox->Items()->Add(std::string(NoComponent));
  BackImageBox->SetItemIndex(0);
}

void TGalleryForm::PictureChange(TObject*) {
  const int index = BackImageBox->ItemIndex();
  if (index < 0) return;
  const auto* source = dynamic_cast<TQELBackground*>(BackImageBox->Items()->Objects(index));
  SharedBackground->Texture()->SetImage(source ? source->Texture()->Image() : nullptr);
}

void TGalleryForm::SharedChanged(TObject*) {
  if (Loading()) return;  // The label may not be there yet.
  ++FChanges;
  ChangesLabel->SetCaption(
      Concat("Fired ", IntToStr(FChanges), FChanges == 1 ? " time" : " times"));
}

}  // namespace gallery
