// The editor of pictures.
#include <algorithm>

#include "vcl/designintf/standardeditors.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/graphics/picture.h"

namespace vcl {
namespace {

/// What the file dialog offers for each class.
const struct {
  const TClass& (*Class)();
  const char* Filter;
} Filters[] = {
    {&TBitmap::Class, "Bitmaps (*.bmp)|*.bmp|All files (*.*)|*.*"},
    {&TIcon::Class, "Icons (*.ico)|*.ico|All files (*.*)|*.*"},
    {&TPicture::Class,
     "Pictures (*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.png)|*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.png|"
     "All files (*.*)|*.*"},
};

std::string FilterFor(const TObject& picture) {
  const auto* found = std::ranges::find_if(
      Filters, [&](const auto& each) { return picture.InheritsFrom(each.Class()); });
  return found == std::end(Filters) ? "All files (*.*)|*.*" : found->Filter;
}

bool IsEmpty(const TObject* value) {
  if (const auto* picture = dynamic_cast<const TPicture*>(value)) value = picture->Graphic();
  const auto* graphic = dynamic_cast<const TGraphic*>(value);
  return !graphic || graphic->Empty();
}

void Load(TObject& value, const std::string& fileName) {
  if (auto* picture = dynamic_cast<TPicture*>(&value)) return picture->LoadFromFile(fileName);
  dynamic_cast<TGraphic&>(value).LoadFromFile(fileName);
}

}  // namespace

TPropertyAttributes TPictureProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paReadOnly, paRevertable};
}

std::string TPictureProperty::GetValue() const {
  return IsEmpty(ObjectValue()) ? "(None)" : TClassProperty::GetValue();
}

void TPictureProperty::Edit() {
  const auto picture = NewValue();
  TOpenDialog dialog(nullptr);
  dialog.SetFilter(FilterFor(*picture));
  dialog.SetOptions({ofHideReadOnly, ofPathMustExist, ofFileMustExist, ofEnableSizing});
  if (!dialog.Execute()) return;
  Load(*picture, dialog.FileName());
  AssignAll(*picture);
}

bool TPictureProperty::IsDefault() const {
  for (int i = 0; i < PropCount(); ++i) {
    if (!IsEmpty(ObjectValue(i))) return false;
  }
  return true;
}

void TPictureProperty::Revert() { AssignAll(*NewValue()); }

}  // namespace vcl
