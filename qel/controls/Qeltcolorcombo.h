// TQELColorCombo: a combo box of colours.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "vcl/dialogs/colorbox.h"

namespace qel {

enum TQELColorKind {
  ccStandard,  ///< The sixteen colours of the screen's own palette.
  ccSystem,    ///< The colours that the user has chosen for windows, menus and the like.
  ccCustom     ///< A first line "Custom...", which opens the dialog for colours.
};
using TQELColorKinds = vcl::TSet<TQELColorKind>;

class TQELColorLines;

/// A combo box of colours, each with a swatch of it. A colour that is not listed gets a line of its
/// own when it is selected, by code or in the dialog.
class QEL_API TQELColorCombo : public vcl::TCustomColorBox {
 public:
  explicit TQELColorCombo(vcl::TComponent* owner);
  ~TQELColorCombo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the combo box says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  TQELColorKinds Colors() const { return FKinds; }
  /// Which colours are listed, besides those that got lines of their own.
  void SetColors(TQELColorKinds kinds);
  bool ShowNames() const { return FShowNames; }
  /// False shows swatches only, as wide as the lines.
  void SetShowNames(bool show);
  int SwatchWidth() const { return FSwatchWidth; }
  /// The swatches' width beside names, in pixels at 96 dots per inch. Refuses, silently, what is
  /// not between 1 and 400.
  void SetSwatchWidth(int width);

 protected:
  void Change() override;
  void DropDown() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
  TQELColorLines* FLines;  // The list's look.
  TQELColorKinds FKinds{ccStandard, ccSystem, ccCustom};
  bool FShowNames = true;
  int FSwatchWidth = 20;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELColorKind>{
    "TQELColorKind", "ccStandard ccSystem ccCustom", "TQELColorKinds"};

}  // namespace vcl
