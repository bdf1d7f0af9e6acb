// TColorBox and TColorListBox: a colour is chosen from a list.
#pragma once

#include "vcl/dialogs/colorlines.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/listbox.h"

namespace vcl {

/// A combo box of colours. Its line "Custom...", chosen from the open list, opens the dialog for
/// colours; when that is cancelled, the colour from before is selected again.
class VCL_API TCustomColorBox : public TCustomComboBox {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TColor Selected() const { return FColors->Selected(); }
  /// The colour that is chosen. One that is not listed becomes the "Custom..." line's, if there is
  /// one; else no line is selected.
  void SetSelected(TColor color) { FColors->Select(color); }
  /// A line's colour. Raises EStringListError for an index that is not a line's.
  TColor Colors(int index) const { return FColors->Colors(index); }
  /// Makes the list anew, as after a change of what OnGetColors tells.
  void PopulateList() { FColors->Fill(); }

  /// The list is made: the handler changes its colours.
  TGetColorsEvent OnGetColors;

 protected:
  explicit TCustomColorBox(TComponent* owner);
  /// What the lines are, for constructors; fills the list.
  void UseColors(std::unique_ptr<TColorLines> colors);
  TColorLines& ColorLines() const { return *FColors; }
  void Click() override;
  void DropDown() override;
  void CloseUp() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void Loaded() override;

 private:
  bool Pick();

  TColorLines* FColors = nullptr;  // The list's look.
  TColor FBefore = clBlack;        // Selected when the list was opened.
  bool FFromList = false;          // The selection comes from the open list.
};

/// A combo box of colours for forms.
class VCL_API TColorBox : public TCustomColorBox {
 public:
  explicit TColorBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TColorBoxStyle Style() const { return ColorLines().Style(); }
  /// Which colours are listed, and under which names.
  void SetStyle(TColorBoxStyle style) { ColorLines().SetStyle(style); }
  TColor DefaultColorColor() const { return ColorLines().DefaultColor(); }
  /// What the swatch of clDefault shows.
  void SetDefaultColorColor(TColor color) { ColorLines().SetDefaultColor(color); }
  TColor NoneColorColor() const { return ColorLines().NoneColor(); }
  /// What the swatch of clNone shows.
  void SetNoneColorColor(TColor color) { ColorLines().SetNoneColor(color); }
};

/// A list box of colours. A double click on its line "Custom...", or Enter there, opens the dialog
/// for colours.
class VCL_API TColorListBox : public TCustomListBox {
 public:
  explicit TColorListBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TColorBoxStyle Style() const { return FColors->Style(); }
  /// Which colours are listed, and under which names.
  void SetStyle(TColorBoxStyle style) { FColors->SetStyle(style); }
  TColor Selected() const { return FColors->Selected(); }
  /// The colour that is chosen. One that is not listed becomes the "Custom..." line's, if there is
  /// one; else no line is selected.
  void SetSelected(TColor color) { FColors->Select(color); }
  TColor DefaultColorColor() const { return FColors->DefaultColor(); }
  /// What the swatch of clDefault shows.
  void SetDefaultColorColor(TColor color) { FColors->SetDefaultColor(color); }
  TColor NoneColorColor() const { return FColors->NoneColor(); }
  /// What the swatch of clNone shows.
  void SetNoneColorColor(TColor color) { FColors->SetNoneColor(color); }
  /// A line's colour. Raises EStringListError for an index that is not a line's.
  TColor Colors(int index) const { return FColors->Colors(index); }
  /// Makes the list anew, as after a change of what OnGetColors tells.
  void PopulateList() { FColors->Fill(); }

  /// The list is made, with cbCustomColors in Style: the handler changes its colours.
  TGetColorsEvent OnGetColors;

 protected:
  void DblClick() override;
  void KeyPress(char32_t& key) override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  void Pick();

  TColorLines* FColors;  // The list's look.
};

}  // namespace vcl
