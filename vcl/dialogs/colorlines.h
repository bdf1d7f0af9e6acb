// TColorLines: lines of colours, which a combo box or a list box shows.
#pragma once

#include <string>

#include "vcl/rtl/colors.h"
#include "vcl/rtl/strings.h"
#include "vcl/stdctrls/linelook.h"

namespace vcl {

enum TColorBoxStyleValue {
  cbStandardColors,  ///< The sixteen colours of the screen's own palette.
  cbExtendedColors,  ///< Money green, sky blue, cream and medium grey.
  cbSystemColors,    ///< The colours that the user has chosen for windows, menus and the like.
  cbIncludeNone,     ///< clNone, shown as NoneColorColor.
  cbIncludeDefault,  ///< clDefault, shown as DefaultColorColor.
  cbCustomColor,     ///< A first line "Custom...", which opens the dialog for colours.
  cbPrettyNames,     ///< Names for people, such as "Sky blue", instead of code's.
  cbCustomColors     ///< What OnGetColors makes of the list.
};
template <>
inline constexpr TEnumText EnumText<TColorBoxStyleValue>{
    "TColorBoxStyleValue",
    "cbStandardColors cbExtendedColors cbSystemColors cbIncludeNone cbIncludeDefault "
    "cbCustomColor cbPrettyNames cbCustomColors",
    "TColorBoxStyle"};
using TColorBoxStyle = TSet<TColorBoxStyleValue>;
inline constexpr TColorBoxStyle DefaultColorBoxStyle{cbStandardColors, cbExtendedColors,
                                                     cbSystemColors};

/// Sender and the list's lines, each a name, "=" and a colour as StringToColor reads it: the
/// handler adds lines, deletes some, puts them into another order.
using TGetColorsEvent = TEvent<TObject*, TStrings*>;
template <>
inline constexpr TEventText EventText<TGetColorsEvent>{
    "TGetColorsEvent", "vcl::TObject* sender, vcl::TStrings* colors"};

/// A swatch and a name in each line: what a list of colours is, whichever face shows it.
class VCL_API TColorLines : public TLineLook {
 public:
  /// For the list that the look is given to, with the event that it publishes as OnGetColors.
  TColorLines(TCustomListControl& list, const TGetColorsEvent& onGetColors);

  TColorBoxStyle Style() const { return FStyle; }
  /// Which colours there are; the selected one stays, as far as it is among them.
  void SetStyle(TColorBoxStyle style);
  TColor DefaultColor() const { return FDefault; }
  void SetDefaultColor(TColor color);
  TColor NoneColor() const { return FNone; }
  void SetNoneColor(TColor color);
  virtual TColor Selected() const;
  /// Selects the colour's line; one that is not listed is the "Custom..." line's where there is
  /// one, else it is kept until a line of it comes.
  void Select(TColor color);
  /// A line's colour. Raises EStringListError for an index that is not a line's.
  TColor Colors(int index) const { return static_cast<TColor>(Mark(FList, index)); }
  /// True when the "Custom..." line is selected.
  bool OnCustomLine() const { return FStyle.Has(cbCustomColor) && FList.ItemIndex() == 0; }
  /// Lets the user choose the colour of the "Custom..." line in the dialog. False when he has
  /// cancelled it, or the list has gone meanwhile.
  bool PickCustom();
  /// Makes the list's lines anew. Raises EConvertError for a line of OnGetColors that is none.
  void Fill();

  void Draw(TCustomListControl& list, int index, const TRect& rect, TOwnerDrawState state) override;

 protected:
  TCustomListControl& List() const { return FList; }
  /// The lines that Style asks for, before OnGetColors changes them.
  virtual void AddLines(TStrings& lines) const;
  /// Selects a colour that is not listed.
  virtual void SelectUnlisted(TColor color);
  /// Selects what the dialog has given.
  virtual void SelectPicked(TColor color);
  /// Gives the "Custom..." line, which there is, the colour.
  void SetCustom(TColor color);
  TColor ShownColor(int index) const;
  /// Draws a framed swatch of the line's colour.
  void DrawSwatch(int index, const TRect& swatch) const;

 private:
  std::string NameOf(const std::string& ident) const;
  int IndexOf(TColor color) const;

  TCustomListControl& FList;
  const TGetColorsEvent& FOnGetColors;
  TColorBoxStyle FStyle = DefaultColorBoxStyle;
  TColor FDefault = clBlack;
  TColor FNone = clBlack;
  TColor FCustom = clBlack;
  TColor FWanted = clBlack;  // Selected, though no line has it.
};

}  // namespace vcl
