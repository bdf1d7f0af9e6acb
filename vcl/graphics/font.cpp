// TFont: its settings, the system's font that is made of them, and the names of character sets.
#include "vcl/graphics/font.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string_view>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int PointsPerInch = 72;
constexpr int DefaultPoints = 8;

int ScreenPixelsPerInch() {
  static const int pixels = ::GetDeviceCaps(TWindowDC(nullptr).Get(), LOGPIXELSY);
  return pixels;
}

struct TCharsetName {
  std::uint8_t Charset;
  const char* Name;
};
constexpr TCharsetName CharsetNames[] = {
    {ANSI_CHARSET, "ANSI_CHARSET"},
    {DEFAULT_CHARSET, "DEFAULT_CHARSET"},
    {SYMBOL_CHARSET, "SYMBOL_CHARSET"},
    {MAC_CHARSET, "MAC_CHARSET"},
    {SHIFTJIS_CHARSET, "SHIFTJIS_CHARSET"},
    {HANGEUL_CHARSET, "HANGEUL_CHARSET"},
    {JOHAB_CHARSET, "JOHAB_CHARSET"},
    {GB2312_CHARSET, "GB2312_CHARSET"},
    {CHINESEBIG5_CHARSET, "CHINESEBIG5_CHARSET"},
    {GREEK_CHARSET, "GREEK_CHARSET"},
    {TURKISH_CHARSET, "TURKISH_CHARSET"},
    {VIETNAMESE_CHARSET, "VIETNAMESE_CHARSET"},
    {HEBREW_CHARSET, "HEBREW_CHARSET"},
    {ARABIC_CHARSET, "ARABIC_CHARSET"},
    {BALTIC_CHARSET, "BALTIC_CHARSET"},
    {RUSSIAN_CHARSET, "RUSSIAN_CHARSET"},
    {THAI_CHARSET, "THAI_CHARSET"},
    {EASTEUROPE_CHARSET, "EASTEUROPE_CHARSET"},
    {OEM_CHARSET, "OEM_CHARSET"},
};

TFontStyles StylesOf(const LOGFONTW& font) {
  TFontStyles styles;
  if (font.lfWeight > FW_MEDIUM) styles.Include(fsBold);
  if (font.lfItalic) styles.Include(fsItalic);
  if (font.lfUnderline) styles.Include(fsUnderline);
  if (font.lfStrikeOut) styles.Include(fsStrikeOut);
  return styles;
}

TFontPitch PitchOf(const LOGFONTW& font) {
  static constexpr TFontPitch pitches[] = {fpDefault, fpFixed, fpVariable, fpDefault};
  return pitches[font.lfPitchAndFamily & 3];
}

}  // namespace

std::optional<std::string> CharsetToIdent(std::int64_t charset) {
  const auto* found = std::ranges::find(CharsetNames, charset, &TCharsetName::Charset);
  if (found == std::end(CharsetNames)) return std::nullopt;
  return found->Name;
}

std::optional<std::int64_t> IdentToCharset(std::string_view ident) {
  const auto* found = std::ranges::find_if(
      CharsetNames, [ident](const TCharsetName& entry) { return SameText(entry.Name, ident); });
  if (found == std::end(CharsetNames)) return std::nullopt;
  return found->Charset;
}

void GetCharsetValues(const std::function<void(const std::string&)>& each) {
  for (const TCharsetName& entry : CharsetNames) each(entry.Name);
}

TFont::TFont() : TFont(ScreenPixelsPerInch()) {}

TFont::TFont(int pixelsPerInch)
    : FHeight(-::MulDiv(DefaultPoints, pixelsPerInch, PointsPerInch)),
      FPixelsPerInch(pixelsPerInch) {}

TFont::~TFont() = default;

const TClass& TFont::Class() {
  static const TClass info = Describe<TFont, TGraphicsObject>(
      "vcl::TFont", "vcl/graphics/graphics.h",
      {
          Property<&TFont::Charset, &TFont::SetCharset>("Charset"),
          Property<&TFont::Color, &TFont::SetColor>("Color"),
          Property<&TFont::Height, &TFont::SetHeight>("Height"),
          Property<&TFont::Name, &TFont::SetName>("Name").Type("TFontName"),
          Property<&TFont::Pitch, &TFont::SetPitch>("Pitch").Default(fpDefault),
          Property<&TFont::Size, &TFont::SetSize>("Size").Stored(false),
          Property<&TFont::Style, &TFont::SetStyle>("Style"),
      });
  return info;
}

void TFont::Assign(const TPersistent* source) {
  const auto* font = dynamic_cast<const TFont*>(source);
  if (!font) return TPersistent::Assign(source);
  if (font == this || *font == *this) return;
  FName = font->FName;
  FStyle = font->FStyle;
  FColor = font->FColor;
  FPitch = font->FPitch;
  FCharset = font->FCharset;
  // Between resolutions the size in points is what stays.
  const bool sameScale = font->FPixelsPerInch == FPixelsPerInch;
  FHeight =
      sameScale ? font->FHeight : ::MulDiv(font->FHeight, FPixelsPerInch, font->FPixelsPerInch);
  FHandle = sameScale ? font->FHandle : nullptr;
  Changed();
}

void TFont::AssignPixels(const TFont* source) {
  const bool rescaled = source && FPixelsPerInch != source->FPixelsPerInch;
  if (rescaled) FPixelsPerInch = source->FPixelsPerInch;
  // Points count otherwise now, also where all the rest is the same already.
  if (rescaled && *this == *source) return Changed();
  Assign(source);
}

bool TFont::operator==(const TFont& other) const {
  return FName == other.FName && FHeight == other.FHeight &&
         FPixelsPerInch == other.FPixelsPerInch && FStyle == other.FStyle &&
         FColor == other.FColor && FPitch == other.FPitch && FCharset == other.FCharset;
}

LOGFONTW TFont::LogFont() const {
  static constexpr BYTE pitches[] = {DEFAULT_PITCH, VARIABLE_PITCH, FIXED_PITCH};
  LOGFONTW font{};
  font.lfHeight = FHeight;
  font.lfWeight = FStyle.Has(fsBold) ? FW_BOLD : FW_NORMAL;
  font.lfItalic = FStyle.Has(fsItalic);
  font.lfUnderline = FStyle.Has(fsUnderline);
  font.lfStrikeOut = FStyle.Has(fsStrikeOut);
  font.lfCharSet = FCharset;
  font.lfPitchAndFamily = pitches[FPitch];
  ToUtf16(FName).copy(font.lfFaceName, LF_FACESIZE - 1);
  return font;
}

namespace {

/// The system's font of that description, which all fonts that are like it have: a form of a
/// thousand controls needs one.
std::shared_ptr<const TOwnedFont> SharedFont(const LOGFONTW& description) {
  static std::mutex mutex;
  static auto& made = *new std::map<std::string, std::weak_ptr<const TOwnedFont>, std::less<>>;
  const std::string_view key(reinterpret_cast<const char*>(&description), sizeof description);
  const std::scoped_lock lock(mutex);
  if (const auto found = made.find(key); found != made.end()) {
    if (auto font = found->second.lock()) return font;
  }
  std::erase_if(made, [](const auto& each) { return each.second.expired(); });
  auto font = std::make_shared<const TOwnedFont>(
      CheckHandle(::CreateFontIndirectW(&description), "a font"));
  made.emplace(key, font);
  return font;
}

}  // namespace

std::shared_ptr<const TOwnedFont> TFont::Share() const {
  if (!FHandle) FHandle = SharedFont(LogFont());
  return FHandle;
}

HFONT TFont::Handle() const { return Share()->Get(); }

void TFont::SetHandle(HFONT handle) {
  LOGFONTW font;
  if (!::GetObjectW(handle, sizeof font, &font)) RaiseOutOfResources("to describe a font");
  FName = ToUtf8(font.lfFaceName);
  FHeight = static_cast<int>(font.lfHeight);
  FStyle = StylesOf(font);
  FPitch = PitchOf(font);
  FCharset = TFontCharset(font.lfCharSet);
  Remake();
}

void TFont::Remake() {
  FHandle.reset();
  Changed();
}

void TFont::SetName(const std::string& name) {
  if (name == FName) return;
  if (ToUtf16(name).size() >= LF_FACESIZE) {
    throw EArgumentOutOfRangeException(Concat("A font's name has less than ",
                                              std::to_string(LF_FACESIZE), " UTF-16 units: \"",
                                              name, "\""));
  }
  FName = name;
  Remake();
}

void TFont::SetHeight(int height) {
  if (height == FHeight) return;
  FHeight = height;
  Remake();
}

int TFont::Size() const { return -::MulDiv(FHeight, PointsPerInch, FPixelsPerInch); }

void TFont::SetSize(int points) { SetHeight(-::MulDiv(points, FPixelsPerInch, PointsPerInch)); }

void TFont::SetStyle(TFontStyles style) {
  if (style == FStyle) return;
  FStyle = style;
  Remake();
}

void TFont::SetColor(TColor color) {
  if (color == FColor) return;
  FColor = color;
  Changed();  // The handle knows no colour.
}

void TFont::SetPitch(TFontPitch pitch) {
  if (pitch == FPitch) return;
  FPitch = pitch;
  Remake();
}

void TFont::SetCharset(TFontCharset charset) {
  if (charset == FCharset) return;
  FCharset = charset;
  Remake();
}

void TFont::SetPixelsPerInch(int pixels) {
  if (pixels < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A font has at least one pixel per inch, not ", std::to_string(pixels)));
  }
  FPixelsPerInch = pixels;
}

}  // namespace vcl
