// TColorDialog: its settings and own colours, to the system's dialog and back.
#include "vcl/dialogs/colordialog.h"

#include <charconv>
#include <cstdio>

#include "vcl/graphics/graphicsobject.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr DWORD OptionFlags[] = {CC_FULLOPEN, CC_PREVENTFULLOPEN, CC_SOLIDCOLOR, CC_ANYCOLOR};
constexpr int CustomCount = 16;
constexpr COLORREF NoCustom = 0xFFFFFF;

std::string CustomName(int index) { return std::string("Color") + static_cast<char>('A' + index); }

}  // namespace

const TClass& TColorDialog::Class() {
  using T = TColorDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TColorDialog", "vcl/dialogs/dialogs.h",
      {
          Property<&T::Color, &T::SetColor>("Color").Default(clBlack),
          Property<&T::CustomColors, &T::SetCustomColors>("CustomColors"),
          Property<&T::Options, &T::SetOptions>("Options").Default(TColorDialogOptions()),
      });
  return info;
}

TColorDialog::TColorDialog(TComponent* owner)
    : TCommonDialog(owner), FCustomColors(std::make_unique<TStringList>()) {}

TColorDialog::~TColorDialog() { AnnounceEnd(); }

void TColorDialog::ReadCustom(COLORREF* colors) const {
  for (int i = 0; i < CustomCount; ++i) {
    const std::string text = FCustomColors->Values(CustomName(i));
    colors[i] = NoCustom;
    std::from_chars(text.data(), text.data() + text.size(), colors[i], 16);
    colors[i] &= 0xFFFFFF;
  }
}

void TColorDialog::WriteCustom(const COLORREF* colors) {
  for (int i = 0; i < CustomCount; ++i) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%06lX", static_cast<unsigned long>(colors[i]));
    FCustomColors->SetValues(CustomName(i), digits);
  }
}

bool TColorDialog::Execute() {
  COLORREF custom[CustomCount];
  ReadCustom(custom);
  CHOOSECOLORW data{};
  data.lStructSize = sizeof data;
  data.rgbResult = ColorToRGB(FColor);
  data.lpCustColors = custom;
  data.Flags = CC_RGBINIT | FlagsOf(FOptions, OptionFlags);
  if (NeedsHook()) {
    data.Flags |= CC_ENABLEHOOK;
    data.lpfnHook = &Hook;
  }
  const bool agreed = Run([&](HWND owner) {
    data.hwndOwner = owner;
    return ::ChooseColorW(&data);
  });
  if (!agreed) return false;
  FColor = static_cast<TColor>(data.rgbResult);
  WriteCustom(custom);
  return true;
}

}  // namespace vcl
