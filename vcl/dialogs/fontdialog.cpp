// TFontDialog: a font and its options, to the system's dialog and back.
#include "vcl/dialogs/fontdialog.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr DWORD OptionFlags[] = {
    CF_SCRIPTSONLY,   CF_TTONLY,     CF_EFFECTS,       CF_FIXEDPITCHONLY, CF_FORCEFONTEXIST,
    CF_NOFACESEL,     CF_NOOEMFONTS, CF_NOSIMULATIONS, CF_NOSIZESEL,      CF_NOSTYLESEL,
    CF_NOVECTORFONTS, CF_LIMITSIZE,  CF_SCALABLEONLY,
};

}  // namespace

const TClass& TFontDialog::Class() {
  using T = TFontDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TFontDialog", "vcl/dialogs/dialogs.h",
      {
          Property<&T::Font, &T::SetFont>("Font"),
          Property<&T::MinFontSize, &T::SetMinFontSize>("MinFontSize").Default(0),
          Property<&T::MaxFontSize, &T::SetMaxFontSize>("MaxFontSize").Default(0),
          Property<&T::Options, &T::SetOptions>("Options").Default(TFontDialogOptions{fdEffects}),
      });
  return info;
}

TFontDialog::TFontDialog(TComponent* owner)
    : TCommonDialog(owner), FFont(std::make_unique<TFont>()) {}

TFontDialog::~TFontDialog() { AnnounceEnd(); }

bool TFontDialog::Execute() {
  LOGFONTW font{};
  ::GetObjectW(FFont->Handle(), sizeof font, &font);
  CHOOSEFONTW data{};
  data.lStructSize = sizeof data;
  data.lpLogFont = &font;
  data.rgbColors = ColorToRGB(FFont->Color());
  data.nSizeMin = FMinFontSize;
  data.nSizeMax = FMaxFontSize;
  data.Flags = CF_INITTOLOGFONTSTRUCT | CF_SCREENFONTS | FlagsOf(FOptions, OptionFlags);
  if (NeedsHook()) {
    data.Flags |= CF_ENABLEHOOK;
    data.lpfnHook = &Hook;
  }
  const bool agreed = Run([&](HWND owner) {
    data.hwndOwner = owner;
    return ::ChooseFontW(&data);
  });
  if (!agreed) return false;
  const TOwnedFont chosen(CheckHandle(::CreateFontIndirectW(&font), "The chosen font"));
  FFont->SetHandle(chosen.Get());
  // The system's colours would become fixed ones without having been touched.
  if (FOptions.Has(fdEffects) && data.rgbColors != ColorToRGB(FFont->Color()))
    FFont->SetColor(static_cast<TColor>(data.rgbColors));
  return true;
}

}  // namespace vcl
