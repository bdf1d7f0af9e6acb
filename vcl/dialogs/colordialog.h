// TColorDialog: the user chooses a colour.
#pragma once

#include <memory>

#include "vcl/dialogs/commondialog.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/strings.h"

namespace vcl {

/// Whether the part in which colours are mixed is open, or cannot be opened; whether only colours
/// are offered that the screen shows without a pattern, or any.
enum TColorDialogOption { cdFullOpen, cdPreventFullOpen, cdSolidColor, cdAnyColor };
template <>
inline constexpr TEnumText EnumText<TColorDialogOption>{
    "TColorDialogOption", "cdFullOpen cdPreventFullOpen cdSolidColor cdAnyColor",
    "TColorDialogOptions"};
using TColorDialogOptions = TSet<TColorDialogOption>;

/// The system's dialog for colours (ChooseColorW).
class VCL_API TColorDialog : public TCommonDialog {
 public:
  explicit TColorDialog(TComponent* owner);
  ~TColorDialog() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;

  TColor Color() const { return FColor; }
  /// The colour that is offered and then the one that is chosen.
  void SetColor(TColor color) { FColor = color; }
  /// The colours that the user has mixed, as lines "ColorA=00FF80" to "ColorP=…" whose values are
  /// blue, green and red in hexadecimal digits; others count as none.
  TStrings* CustomColors() const { return FCustomColors.get(); }
  void SetCustomColors(const TStrings* colors) { FCustomColors->Assign(colors); }
  TColorDialogOptions Options() const { return FOptions; }
  /// How the dialog looks and which colours it offers.
  void SetOptions(TColorDialogOptions options) { FOptions = options; }

 private:
  void ReadCustom(COLORREF* colors) const;
  void WriteCustom(const COLORREF* colors);

  TColor FColor = clBlack;
  std::unique_ptr<TStringList> FCustomColors;
  TColorDialogOptions FOptions;
};

}  // namespace vcl
