// TFontDialog: the user chooses a font.
#pragma once

#include <memory>

#include "vcl/dialogs/commondialog.h"
#include "vcl/graphics/font.h"

namespace vcl {

/// Which fonts are offered, and what of them; see the system's CF_... flags of the same names.
/// fdEffects offers colour, underlining and striking out.
enum TFontDialogOption {
  fdAnsiOnly,
  fdTrueTypeOnly,
  fdEffects,
  fdFixedPitchOnly,
  fdForceFontExist,
  fdNoFaceSel,
  fdNoOEMFonts,
  fdNoSimulations,
  fdNoSizeSel,
  fdNoStyleSel,
  fdNoVectorFonts,
  fdLimitSize,
  fdScalableOnly
};
template <>
inline constexpr TEnumText EnumText<TFontDialogOption>{
    "TFontDialogOption",
    "fdAnsiOnly fdTrueTypeOnly fdEffects fdFixedPitchOnly fdForceFontExist fdNoFaceSel "
    "fdNoOEMFonts fdNoSimulations fdNoSizeSel fdNoStyleSel fdNoVectorFonts fdLimitSize "
    "fdScalableOnly",
    "TFontDialogOptions"};
using TFontDialogOptions = TSet<TFontDialogOption>;

/// The system's dialog for the fonts of the screen (ChooseFontW).
class VCL_API TFontDialog : public TCommonDialog {
 public:
  explicit TFontDialog(TComponent* owner);
  ~TFontDialog() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;

  TFont* Font() const { return FFont.get(); }
  /// The font that is offered and then the one that is chosen.
  void SetFont(const TFont* font) { FFont->Assign(font); }
  /// The least size that may be chosen with fdLimitSize, in points.
  int MinFontSize() const { return FMinFontSize; }
  void SetMinFontSize(int points) { FMinFontSize = points; }
  int MaxFontSize() const { return FMaxFontSize; }
  /// The greatest size that may be chosen with fdLimitSize, in points.
  void SetMaxFontSize(int points) { FMaxFontSize = points; }
  TFontDialogOptions Options() const { return FOptions; }
  /// How the dialog looks and which fonts it offers.
  void SetOptions(TFontDialogOptions options) { FOptions = options; }

 private:
  std::unique_ptr<TFont> FFont;
  int FMinFontSize = 0;
  int FMaxFontSize = 0;
  TFontDialogOptions FOptions{fdEffects};
};

}  // namespace vcl
