// TFont: the face, height, style and colour of text.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "vcl/graphics/graphicsobject.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/sets.h"

namespace vcl {

enum TFontStyle { fsBold, fsItalic, fsUnderline, fsStrikeOut };
template <>
inline constexpr TEnumText EnumText<TFontStyle>{
    "TFontStyle", "fsBold fsItalic fsUnderline fsStrikeOut", "TFontStyles"};
using TFontStyles = TSet<TFontStyle>;

enum TFontPitch { fpDefault, fpVariable, fpFixed };
template <>
inline constexpr TEnumText EnumText<TFontPitch>{"TFontPitch", "fpDefault fpVariable fpFixed"};

/// A character set: one of the system's constants (ANSI_CHARSET, DEFAULT_CHARSET, ...).
enum TFontCharset : std::uint8_t {};
/// The constant's name; nothing for a value without one, resp. the value of that name.
VCL_API std::optional<std::string> CharsetToIdent(std::int64_t charset);
VCL_API std::optional<std::int64_t> IdentToCharset(std::string_view ident);
/// Calls `each` for every character set that has a name.
VCL_API void GetCharsetValues(const std::function<void(const std::string&)>& each);
template <>
inline constexpr TIntegerText IntegerText<TFontCharset>{
    "TFontCharset", [](std::int64_t value) { return CharsetToIdent(value); },
    [](std::string_view ident) { return IdentToCharset(ident); },
    [](const std::function<void(const std::string&)>& each) { GetCharsetValues(each); }};

/// A font. A new one is Tahoma, 8 points, in the colour of text in windows.
class VCL_API TFont : public TGraphicsObject {
 public:
  TFont();
  /// The same for a device of so many pixels per inch.
  explicit TFont(int pixelsPerInch);
  ~TFont() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies another font; the two share one handle until either changes. Where the other one has
  /// another PixelsPerInch, the size in points stays.
  void Assign(const TPersistent* source) override;
  /// The same with its PixelsPerInch, so that the height in pixels stays as well.
  void AssignPixels(const TFont* source);

  /// The GDI font, which stays the TFont's own. Raises EOutOfResources.
  HFONT Handle() const;
  /// Takes the description from a GDI font, which stays the caller's.
  void SetHandle(HFONT font);
  /// The handle with a share in its life, for who keeps it selected.
  std::shared_ptr<const TOwnedFont> Share() const;

  const std::string& Name() const { return FName; }
  /// The face. Raises EArgumentOutOfRangeException for a name of 32 UTF-16 units or more.
  void SetName(const std::string& name);
  int Height() const { return FHeight; }
  /// In pixels: negative without, positive with the internal leading (as LOGFONT's lfHeight).
  void SetHeight(int height);
  /// In points, where Height is negative or zero; else negative.
  int Size() const;
  void SetSize(int points);
  TFontStyles Style() const { return FStyle; }
  /// Bold, italic, underlined and struck out.
  void SetStyle(TFontStyles style);
  TColor Color() const { return FColor; }
  /// The colour of the text.
  void SetColor(TColor color);
  TFontPitch Pitch() const { return FPitch; }
  /// Whether all characters are equally wide.
  void SetPitch(TFontPitch pitch);
  TFontCharset Charset() const { return FCharset; }
  /// The character set that the system looks for a face with.
  void SetCharset(TFontCharset charset);
  int PixelsPerInch() const { return FPixelsPerInch; }
  /// What points are counted with; a new font takes the screen's. Does not change Height. Raises
  /// EArgumentOutOfRangeException for less than 1.
  void SetPixelsPerInch(int pixels);

  bool operator==(const TFont& other) const;

 private:
  /// The look has changed: the handle is given up.
  void Remake();
  LOGFONTW LogFont() const;

  std::string FName = "Tahoma";
  int FHeight;
  int FPixelsPerInch;
  TFontStyles FStyle;
  TColor FColor = clWindowText;
  TFontPitch FPitch = fpDefault;
  TFontCharset FCharset = TFontCharset(1);  // DEFAULT_CHARSET
  mutable std::shared_ptr<const TOwnedFont> FHandle;
};

}  // namespace vcl
