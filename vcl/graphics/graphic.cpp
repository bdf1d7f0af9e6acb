// TGraphic: files and form files, and telling of changes.
#include "vcl/graphics/graphic.h"

#include "vcl/rtl/filer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"

namespace vcl {

const TClass& TGraphic::Class() {
  static const TClass info =
      Describe<TGraphic, TPersistent>("vcl::TGraphic", "vcl/graphics/graphics.h", {});
  return info;
}

void TGraphic::LoadFromFile(const std::string& fileName) {
  TFileStream stream(fileName, fmOpenRead | fmShareDenyWrite);
  LoadFromStream(stream);
}

void TGraphic::SaveToFile(const std::string& fileName) const {
  // The file is only opened once there is something whole to put into it.
  TMemoryStream whole;
  SaveToStream(whole);
  whole.SaveToFile(fileName);
}

void TGraphic::SetTransparent(bool transparent) {
  if (transparent == FTransparent) return;
  FTransparent = transparent;
  Changed();
}

void TGraphic::DefineProperties(TFiler& filer) {
  filer.DefineBinaryProperty(
      // A descendant's form may have none where its ancestor has one.
      "Data", [this](TStream& stream) { stream.Size() == 0 ? Assign(nullptr) : ReadData(stream); },
      [this](TStream& stream) {
        if (!Empty()) WriteData(stream);
      },
      !Empty());
}

void TGraphic::ReadData(TStream& stream) { LoadFromStream(stream); }
void TGraphic::WriteData(TStream& stream) const { SaveToStream(stream); }
void TGraphic::Changed() { OnChange(this); }

}  // namespace vcl
