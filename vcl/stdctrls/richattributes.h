// TTextAttributes and TParaAttributes: how the text of a rich edit looks.
#pragma once

#include <string>
#include <vector>

#include "vcl/controls/controltypes.h"
#include "vcl/graphics/font.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

class TCustomRichEdit;

/// The look of characters: of those that are selected and of what is typed next, or of text without
/// a look of its own. Setting them needs the edit's window, which is made when there is none.
class VCL_API TTextAttributes : public TPersistent {
 public:
  enum class TOf { Default, Selection };
  TTextAttributes(TCustomRichEdit& edit, TOf of) : FEdit(edit), FOf(of) {}

  /// The face; of a selection that has several, the first one's.
  std::string Name() const;
  /// Raises EArgumentOutOfRangeException for a name of 32 UTF-16 units or more.
  void SetName(const std::string& name);
  /// In points, which stay what they are when the form is scaled.
  double Size() const;
  /// Raises EArgumentOutOfRangeException for less than 1 or more than 1638 points.
  void SetSize(double points);
  TColor Color() const;
  void SetColor(TColor color);
  TFontStyles Style() const;
  void SetStyle(TFontStyles style);
  bool Protected() const;
  /// True: the user's changes of the text are asked of OnProtectChange.
  void SetProtected(bool isProtected);
  /// Copies another look, or a font's.
  void Assign(const TPersistent* source) override;

 private:
  TCustomRichEdit& FEdit;
  TOf FOf;
};

enum TNumberingStyle { nsNone, nsBullet };
template <>
inline constexpr TEnumText EnumText<TNumberingStyle>{"TNumberingStyle", "nsNone nsBullet"};

/// The look of the paragraphs that the selection touches. Measures are in points.
class VCL_API TParaAttributes : public TPersistent {
 public:
  explicit TParaAttributes(TCustomRichEdit& edit) : FEdit(edit) {}

  TAlignment Alignment() const;
  void SetAlignment(TAlignment alignment);
  TNumberingStyle Numbering() const;
  void SetNumbering(TNumberingStyle numbering);
  /// How far the first row is from the left edge.
  int FirstIndent() const;
  void SetFirstIndent(int points);
  /// How far the other rows are from the first one's beginning.
  int LeftIndent() const;
  void SetLeftIndent(int points);
  /// How far rows end from the right edge.
  int RightIndent() const;
  void SetRightIndent(int points);
  int TabCount() const;
  /// The place of a tab stop. Raises EListError for an index that is not one's.
  int Tab(int index) const;
  /// All tab stops, from left to right. Raises EArgumentOutOfRangeException for more than 32.
  void SetTabs(const std::vector<int>& points);

 private:
  TCustomRichEdit& FEdit;
};

}  // namespace vcl
