// TQELFontLines: lines of typefaces, which a combo box or a list box shows.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "qel/core/api.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/linelook.h"

namespace qel {

enum TQELFontKind {
  fkTrueType,  ///< Outlines, which look the same at every size.
  fkRaster,    ///< Pixels, for a few sizes.
  fkVector     ///< Strokes.
};
using TQELFontKinds = vcl::TSet<TQELFontKind>;
/// The system's number for "of any set of characters".
inline constexpr vcl::TFontCharset AnyCharset{1};
inline constexpr TQELFontKinds AllFontKinds{fkTrueType, fkRaster, fkVector};

/// A typeface that the system has.
struct TQELFontFace {
  std::string Name;
  TQELFontKind Kind = fkTrueType;
  bool Fixed = false;   ///< All characters are of one width.
  bool Symbol = false;  ///< Its characters are no letters.
};

/// The typefaces with characters of the set, by the alphabet; of those that can be written
/// downwards only the upright ones.
QEL_API std::vector<TQELFontFace> QELFontFaces(vcl::TFontCharset charset);

/// Tells, while it lives, that typefaces have been installed or removed.
class QEL_API TQELFontWatch {
 public:
  explicit TQELFontWatch(std::function<void()> changed);
  ~TQELFontWatch();
  TQELFontWatch(const TQELFontWatch&) = delete;
  TQELFontWatch& operator=(const TQELFontWatch&) = delete;

 private:
  friend struct TFontNews;
  std::function<void()> FChanged;
};

/// Typefaces as lines, each in its own face behind an image for its kind: what a list of them is,
/// whichever face of a list shows it. Those that were used last stand first, and once more in their
/// place in the alphabet.
class QEL_API TQELFontLines : public vcl::TLineLook {
 public:
  /// For the list that the look is given to.
  explicit TQELFontLines(vcl::TCustomListControl& list);

  /// The selected line's name; one that is not listed waits for a line of it to come.
  std::string FontName() const;
  void SetFontName(const std::string& name);
  TQELFontKinds Kinds() const { return FKinds; }
  void SetKinds(TQELFontKinds kinds) { Change(FKinds, kinds); }
  bool FixedOnly() const { return FFixedOnly; }
  void SetFixedOnly(bool fixedOnly) { Change(FFixedOnly, fixedOnly); }
  bool Preview() const { return FPreview; }
  void SetPreview(bool preview);
  int RecentCount() const { return FRecentCount; }
  /// Refuses, silently, a negative number.
  void SetRecentCount(int count);
  vcl::TFontCharset Charset() const { return FCharset; }
  void SetCharset(vcl::TFontCharset charset) { Change(FCharset, charset); }

  /// The selected typeface has been used: it is the first line from now on.
  void Use();
  /// Makes the lines anew from what the system has.
  void Fill();

  void Draw(vcl::TCustomListControl& list, int index, const vcl::TRect& rect,
            vcl::TOwnerDrawState state) override;

 private:
  template <class T>
  void Change(T& field, T value) {
    if (value == field) return;
    field = value;
    Fill();
  }
  bool Shown(const TQELFontFace& face) const;
  void AddLine(const TQELFontFace& face, bool last);
  void DrawKind(int mark, const vcl::TRect& rect) const;
  void Select(const std::string& name);

  vcl::TCustomListControl& FList;
  TQELFontWatch FWatch;
  TQELFontKinds FKinds = AllFontKinds;
  bool FFixedOnly = false;
  bool FPreview = true;
  int FRecentCount = 5;
  vcl::TFontCharset FCharset = AnyCharset;
  std::vector<std::string> FRecent;
  std::string FWanted;  // Selected, though no line has it.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELFontKind>{
    "TQELFontKind", "fkTrueType fkRaster fkVector", "TQELFontKinds"};

}  // namespace vcl
