// Three-dimensional text, against the layers that it is made of, drawn one by one.
#include <gmock/gmock.h>

#include <cstring>
#include <limits>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/plainfill.h"
#include "vcl/rtl/properties.h"

namespace {

using qel::TQELFont3D;
using vcl::TColor;

constexpr TColor Face = TColor(0x0000FF), Light = TColor(0x00FF00), Dark = TColor(0xFF0000),
                 Trail = TColor(0x00FFFF);
constexpr int Width = 120, Height = 60;
constexpr vcl::TRect Area(20, 15, 110, 50);

/// A layer: how far from the rectangle's place, in which colour.
struct TLayer {
  int Dx;
  int Dy;
  TColor Color;
};

/// Settings that are none of a case's stay as the constructor sets them.
struct TCase {
  const char* Name;
  std::vector<TLayer> Layers;
  qel::TQELStyle3D Style = TQELFont3D().Style3D();
  int Offset = TQELFont3D().Offset();
  qel::TQELRepeat Repetition = TQELFont3D().Repetition();
  int RepetitionWidth = TQELFont3D().Repetitionwidth();
  bool ThreeDimensional = true;
  bool Enabled = true;
  int PixelsPerInch = 96;
};

void DrawLayers(HDC dc, const vcl::TFont& font, const std::vector<TLayer>& layers) {
  const int saved = ::SaveDC(dc);
  ::SelectObject(dc, font.Handle());
  ::SetBkMode(dc, TRANSPARENT);
  for (const TLayer& layer : layers) {
    RECT rect = Area;
    ::OffsetRect(&rect, layer.Dx, layer.Dy);
    ::SetTextColor(dc, vcl::ColorToRGB(layer.Color));
    wchar_t text[] = L"Größe";
    ::DrawTextExW(dc, text, -1, &rect, DT_LEFT | DT_NOCLIP, nullptr);
  }
  ::RestoreDC(dc, saved);
}

class Font3D : public testing::TestWithParam<TCase> {};

TEST_P(Font3D, DrawsItsLayersInOrder) {
  vcl::TFont font;
  font.SetPixelsPerInch(GetParam().PixelsPerInch);
  font.SetSize(20);
  font.SetColor(Face);
  TQELFont3D font3D;
  font3D.SetHighlight(Light);
  font3D.SetShadow(Dark);
  font3D.SetRepetitionColor(Trail);
  font3D.SetStyle3D(GetParam().Style);
  font3D.SetOffset(GetParam().Offset);
  font3D.SetRepetition(GetParam().Repetition);
  font3D.SetRepetitionwidth(GetParam().RepetitionWidth);
  font3D.SetThreeDimensional(GetParam().ThreeDimensional);
  const plain::TDib painted(Width, Height), expected(Width, Height), empty(Width, Height);
  for (const plain::TDib* dib : {&painted, &expected, &empty}) dib->Fill(RGB(9, 9, 9));
  font3D.Write(&font, painted.DC(), Area, "Größe", DT_LEFT, GetParam().Enabled);
  DrawLayers(expected.DC(), font, GetParam().Layers);
  EXPECT_EQ("", painted.Difference(expected));
  EXPECT_NE("", painted.Difference(empty));
}

// clang-format off
const TCase Cases[] = {
    {"defaults", {{-1, -1, Light}, {0, 0, Face}}},
    {.Name = "flat", .Layers = {{0, 0, Face}}, .ThreeDimensional = false},
    {"raised", {{-3, -3, Light}, {3, 3, Dark}, {0, 0, Face}}, qel::fontRaised, 3},
    {"inset", {{-2, -2, Dark}, {2, 2, Light}, {0, 0, Face}}, qel::fontInset, 2},
    {"only_shadow", {{1, 1, Dark}, {0, 0, Face}}, qel::fontOnlyShadow},
    {"outline_ignores_the_offset",
     {{-1, -1, Dark}, {1, -1, Dark}, {1, 1, Dark}, {-1, 1, Dark}, {0, 0, Face}}, qel::fontOutLineShadow, 7},
    {"disabled_ignores_the_style", {{0, 0, vcl::clBtnHighlight}, {-1, -1, vcl::clGrayText}},
     qel::fontRaised, 1, qel::repeatOnShadow, 4, false, false},
    // The rectangle shrinks by 3, so a text at its upper left begins 3 pixels further in.
    {"trail_to_the_shadow",
     {{5, 5, Trail}, {4, 4, Trail}, {3, 3, Trail}, {4, 4, Dark}, {2, 2, Face}},
     qel::fontOnlyShadow, 2, qel::repeatOnShadow, 3},
    {"trail_to_the_highlight", {{1, 1, Trail}, {2, 2, Trail}, {2, 2, Light}, {3, 3, Face}},
     qel::fontOnlyHighlight, 1, qel::repeatOnHighLight, 2},
    {"no_repetition_does_not_shrink", {{-1, -1, Light}, {0, 0, Face}},
     qel::fontOnlyHighlight, 1, qel::repeatNone, 5},
    {.Name = "raised_at_192", .Layers = {{-6, -6, Light}, {6, 6, Dark}, {0, 0, Face}},
     .Style = qel::fontRaised, .Offset = 3, .PixelsPerInch = 192},
    {.Name = "outline_at_192",
     .Layers = {{-2, -2, Dark}, {2, -2, Dark}, {2, 2, Dark}, {-2, 2, Dark}, {0, 0, Face}},
     .Style = qel::fontOutLineShadow, .PixelsPerInch = 192},
    {.Name = "trail_at_192", .Layers = {{0, 0, Trail}, {1, 1, Trail}, {0, 0, Light}, {2, 2, Face}},
     .Repetition = qel::repeatOnHighLight, .RepetitionWidth = 1, .PixelsPerInch = 192},
    {.Name = "disabled_at_192", .Layers = {{0, 0, vcl::clBtnHighlight}, {-2, -2, vcl::clGrayText}},
     .Enabled = false, .PixelsPerInch = 192},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Cases, Font3D, testing::ValuesIn(Cases),
                         [](const auto& test) { return test.param.Name; });

TEST(Font3DWrite, LeavesTheContextAsItWas) {
  const plain::TDib dib(Width, Height);
  vcl::TFont font;
  ::SetTextColor(dib.DC(), 0x123456);
  ::SetBkColor(dib.DC(), 0x654321);
  ::SetBkMode(dib.DC(), OPAQUE);
  const HGDIOBJ former = ::GetCurrentObject(dib.DC(), OBJ_FONT);
  TQELFont3D().Write(&font, dib.DC(), Area, "text", 0, true);
  EXPECT_EQ(::GetTextColor(dib.DC()), 0x123456u);
  EXPECT_EQ(::GetBkColor(dib.DC()), 0x654321u);
  EXPECT_EQ(::GetBkMode(dib.DC()), OPAQUE);
  EXPECT_EQ(::GetCurrentObject(dib.DC(), OBJ_FONT), former);
}

std::vector<UINT> Flags;

TEST(Font3DWrite, AddsItsFlagToTheOthers) {
  const TImportPatch patch(
      "qel.dll", "DrawTextExW",
      +[](HDC, wchar_t*, int length, RECT*, UINT flags, DRAWTEXTPARAMS* parameters) WINAPI -> int {
        EXPECT_EQ(length, -1);
        EXPECT_EQ(parameters, nullptr);
        Flags.push_back(flags);
        return 1;
      });
  const plain::TDib dib(Width, Height);
  vcl::TFont font;
  TQELFont3D font3D;
  font3D.SetThreeDimensional(false);
  for (unsigned flags : {0x0u, 0x8025u, 0x100u, 0x15u}) {
    font3D.Write(&font, dib.DC(), Area, "x", flags, true);
  }
  EXPECT_THAT(Flags, testing::ElementsAre(0x100u, 0x8125u, 0x200u, 0x115u));
}

TEST(Font3DWrite, TakesAnyText) {
  const plain::TDib dib(Width, Height);
  vcl::TFont font;
  const std::string texts[] = {"", std::string(100000, 'x'), "\xFF\xFE", "&", "a\tb\nc"};
  for (const std::string& text : texts) {
    TQELFont3D().Write(&font, dib.DC(), Area, text, DT_MODIFYSTRING | DT_END_ELLIPSIS, true);
    TQELFont3D().Write(&font, dib.DC(), {5, 5, -5, -5}, text, DT_WORDBREAK, false);
  }
}

/// Few copies are all drawn, of many only those that can be seen: a trail that begins beyond the
/// area shows the same from there on, whichever it is.
TEST(Font3DWrite, TrailsOfAnyLengthTakeNoTime) {
  vcl::TFont font;
  for (const qel::TQELRepeat repeat : {qel::repeatOnShadow, qel::repeatOnHighLight}) {
    for (const unsigned flags : {DT_LEFT, DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                                 DT_RIGHT | DT_BOTTOM | DT_SINGLELINE, DT_CENTER | DT_WORDBREAK}) {
      TQELFont3D font3D;
      font3D.SetRepetition(repeat);
      font3D.SetRepetitionColor(vcl::clRed);
      const auto write = [&](int copies) {
        auto dib = std::make_unique<plain::TDib>(Width, Height);
        dib->Fill(0xFFFFFF);
        font3D.SetRepetitionwidth(copies);
        // The rectangle is larger by what the copies take from it.
        font3D.Write(
            &font, dib->DC(),
            {Area.Left - copies, Area.Top - copies, Area.Right + copies, Area.Bottom + copies},
            "Ab cd", flags, true);
        ::GdiFlush();
        return dib;
      };
      const auto few = write(1000);
      EXPECT_EQ(std::memcmp(few->Bits(), write(1001)->Bits(), few->Bytes()), 0) << flags;
      EXPECT_EQ(std::memcmp(few->Bits(), write(50'000'000)->Bits(), few->Bytes()), 0) << flags;
    }
  }
}

int copiesDrawn = 0;

/// In a control the rectangle stays what it is and the copies turn it inside out.
TEST(Font3DWrite, TrailsThatBeginFarBeyondAControlTakeNoTime) {
  const TImportPatch patch(
      "qel.dll", "DrawTextExW",
      +[](HDC dc, wchar_t* text, int length, RECT* rect, UINT flags, DRAWTEXTPARAMS* parameters)
           WINAPI -> int {
        copiesDrawn += !(flags & DT_CALCRECT);
        if (copiesDrawn > 10'000) return 1;
        return ::DrawTextExW(dc, text, length, rect, flags, parameters);
      });
  const plain::TDib dib(Width, Height);
  vcl::TFont font;
  TQELFont3D font3D;
  for (const qel::TQELRepeat repeat : {qel::repeatOnShadow, qel::repeatOnHighLight}) {
    for (const unsigned flags : {0x8025u, 0x15u, 0x25u, 0x0u, 0x2Au}) {
      for (const int copies : {100'000'000, std::numeric_limits<int>::max()}) {
        font3D.SetRepetition(repeat);
        font3D.SetRepetitionwidth(copies);
        copiesDrawn = 0;
        font3D.Write(&font, dib.DC(), Area, "50 %", flags, true);
        EXPECT_LT(copiesDrawn, 2000) << flags << ", " << copies;
      }
    }
  }
}

TEST(Font3DSettings, RefusedValuesAreToldAllTheSame) {
  TQELFont3D font3D;
  int changes = 0;
  font3D.OnChange = [&](vcl::TObject*) { ++changes; };
  font3D.SetOffset(4);
  font3D.SetOffset(0);
  font3D.SetOffset(-2);
  EXPECT_EQ(font3D.Offset(), 4);
  font3D.SetRepetitionwidth(6);
  font3D.SetRepetitionwidth(-1);
  EXPECT_EQ(font3D.Repetitionwidth(), 6);
  font3D.SetMaskFont(font3D.MaskFont());
  EXPECT_EQ(changes, 6);
  EXPECT_EQ(font3D.GetDrawingwidth(), 14);
}

}  // namespace
