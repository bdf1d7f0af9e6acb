// Measuring backgrounds: fills against the system's calls, repainting, tiling, and handles.
#include "bench/backgrounds.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "bench/timing.h"
#include "qel/controls/Qeltbackground.h"
#include "tests/support/handles.h"
#include "tests/support/plainfill.h"

namespace bench {

namespace {

using qel::TQELGradient;
using qel::TQELTexture;
using vcl::TColor;

struct TSize {
  int Width;
  int Height;
};
constexpr TSize Sizes[] = {{320, 240}, {1920, 1080}, {3840, 2160}};
constexpr int Steps = 32;
constexpr COLORREF First = RGB(192, 192, 192), Last = RGB(128, 128, 128);

std::vector<std::string> SizeNames() {
  std::vector<std::string> names;
  for (const TSize& size : Sizes) {
    names.push_back(std::to_string(size.Width) + "×" + std::to_string(size.Height));
  }
  return names;
}

template <class Measure>
std::vector<TPair> EachSize(Measure measure) {
  std::vector<TPair> cells;
  for (const TSize& size : Sizes) cells.push_back(measure(size.Width, size.Height));
  return cells;
}

/// A context that shows one pixel only: what is painted on it has to be computed, but copying it
/// takes no time.
class TPeephole {
 public:
  TPeephole() : FDib(1, 1) {}
  HDC DC() const { return FDib.DC(); }

 private:
  plain::TDib FDib;
};

/// Has the gradient forget what it has painted.
void Touch(TQELGradient& gradient) {
  gradient.SetEndColor(TColor(gradient.EndColor() == TColor(Last) ? Last + 1 : Last));
}

void Render(TQELGradient& gradient, HDC dc, int width, int height) {
  gradient.MultiDraw(dc, width, height, nullptr, vcl::clBtnFace, true);
}

void DrawTexture(TQELTexture& texture, HDC dc, int width, int height) {
  texture.Draw(dc, width, height, vcl::clBtnFace);
}

void SystemGradient(HDC dc, int width, int height, ULONG mode) {
  const auto vertex = [](int x, int y, COLORREF color) {
    return TRIVERTEX{x,
                     y,
                     static_cast<COLOR16>(GetRValue(color) << 8),
                     static_cast<COLOR16>(GetGValue(color) << 8),
                     static_cast<COLOR16>(GetBValue(color) << 8),
                     0};
  };
  TRIVERTEX vertices[] = {vertex(0, 0, First), vertex(width, height, Last)};
  GRADIENT_RECT rect{0, 1};
  ::GradientFill(dc, vertices, 2, &rect, 1, mode);
}

void MeasureAgainstGradientFill() {
  TTable table("Horizontal and Vertical, two colours, against GradientFill",
               "Rendering into the background's own bitmap. Aim: at most 1.5.", SizeNames());
  const auto row = [&](const char* name, qel::TQELFillStyle style, ULONG mode) {
    table.Add(name, EachSize([&](int width, int height) {
                const TPeephole peephole;
                const plain::TDib dib(width, height);
                TQELGradient gradient;
                gradient.SetFillStyle(style);
                return Compare(
                    [&] {
                      Touch(gradient);
                      Render(gradient, peephole.DC(), width, height);
                    },
                    [&] { SystemGradient(dib.DC(), width, height, mode); });
              }));
  };
  row("Horizontal", qel::Horizontal, GRADIENT_FILL_RECT_V);
  row("Vertical", qel::Vertical, GRADIENT_FILL_RECT_H);
}

void MeasureAgainstPlainCalls() {
  TTable table("Each fill style against the plain sequence of GDI calls",
               "Rendering into the background's own bitmap, 32 colours; the pixels are the same. "
               "Aim: at most 1.00, where rows can be written 0.25.",
               SizeNames());
  for (int style = 0; style <= qel::HorizontalDoppelBar; ++style) {
    table.Add(std::string(*vcl::TypeInfoOf<qel::TQELFillStyle>().EnumName(style)),
              EachSize([&](int width, int height) {
                const TPeephole peephole;
                const plain::TDib dib(width, height);
                TQELGradient gradient;
                gradient.SetFillStyle(qel::TQELFillStyle(style));
                return Compare(
                    [&] {
                      Touch(gradient);
                      Render(gradient, peephole.DC(), width, height);
                    },
                    [&] {
                      plain::Gradient(dib.DC(), width, height, style, Steps, {First, Last});
                    });
              }));
  }
}

std::unique_ptr<vcl::TBitmap> Tile() {
  auto tile = std::make_unique<vcl::TBitmap>(64, 64);
  for (int i = 0; i < 64; ++i) {
    tile->Canvas()->Pen()->SetColor(TColor(i * 0x040201));
    tile->Canvas()->MoveTo(0, i);
    tile->Canvas()->LineTo(64, 63 - i);
  }
  return tile;
}

void MeasureRepaint() {
  TTable table("Painting an unchanged background again, against BitBlt",
               "Both into a bitmap of that size. Aim: at most 1.2.", SizeNames());
  const auto row = [&](const char* name, auto& settings, auto paint) {
    table.Add(name, EachSize([&](int width, int height) {
                const plain::TDib dest(width, height);
                const plain::TDib source(width, height);
                return Compare(
                    [&] { paint(settings, dest.DC(), width, height); },
                    [&] { ::BitBlt(dest.DC(), 0, 0, width, height, source.DC(), 0, 0, SRCCOPY); });
              }));
  };
  TQELGradient gradient;
  gradient.SetFillStyle(qel::Spectral);
  row("Gradient", gradient, Render);
  TQELTexture texture;
  texture.SetImage(Tile().get());
  row("Texture, tiled", texture, DrawTexture);
  texture.SetImageStyle(qel::isStretched);
  row("Texture, stretched", texture, DrawTexture);
}

void MeasureTiling() {
  TTable table("Tiling a 64×64 texture, against memcpy of the area",
               "Rendering into the background's own bitmap. Aim: at most 1.5.", SizeNames());
  TQELTexture texture;
  texture.SetImage(Tile().get());
  table.Add("Tiled", EachSize([&](int width, int height) {
              const TPeephole peephole;
              const plain::TDib dest(width, height);
              const plain::TDib source(width, height);
              return Compare(
                  [&] {
                    texture.SetImageStyle(qel::isTile);
                    texture.Draw(peephole.DC(), width, height, vcl::clBtnFace);
                  },
                  [&] { std::memcpy(dest.Bits(), source.Bits(), dest.Bytes()); });
            }));
}

constexpr int Clients = 50;

/// The sizes of controls of which no two are the same.
TSize ClientSize(int client) { return {60 + 2 * client, 20 + client}; }

/// Paints each of the sizes once, with the settings that the call gives for it.
template <class SettingsOf, class Paint>
void PaintClients(HDC dc, SettingsOf settingsOf, Paint paint) {
  for (int i = 0; i < Clients; ++i) {
    const TSize size = ClientSize(i);
    paint(settingsOf(i), dc, size.Width, size.Height);
  }
}

void MeasureManySizes() {
  TTable table("One background painting 50 sizes in turn, against 50 that keep one picture each",
               "Both into a bitmap, the same 50 sizes. Aim: at most 1.2.", {"50 sizes"});
  const auto row = [&](const char* name, auto prepare, auto paint) {
    const plain::TDib dest(200, 100);
    using TSettings = std::decay_t<decltype(*prepare())>;
    std::vector<std::unique_ptr<TSettings>> each(Clients);
    for (auto& settings : each) settings = prepare();
    const auto shared = prepare();
    table.Add(name, {Compare(
                        [&] {
                          PaintClients(
                              dest.DC(), [&](int) -> TSettings& { return *shared; }, paint);
                        },
                        [&] {
                          PaintClients(
                              dest.DC(), [&](int i) -> TSettings& { return *each[i]; }, paint);
                        })});
  };
  const auto gradient = [] {
    auto made = std::make_unique<TQELGradient>();
    made->SetFillStyle(qel::Spectral);
    return made;
  };
  row("Gradient", gradient, Render);
  const auto texture = [](qel::TQELImageStyle style) {
    auto made = std::make_unique<TQELTexture>();
    made->SetImage(Tile().get());
    made->SetImageStyle(style);
    return made;
  };
  row(
      "Texture, tiled", [&] { return texture(qel::isTile); }, DrawTexture);
  row(
      "Texture, stretched", [&] { return texture(qel::isStretched); }, DrawTexture);
}

struct THandles {
  int Gdi = handles::GdiObjects();
  int User = handles::UserObjects();
};

void MeasureHandles() {
  constexpr int Repaints = 10000;
  TQELGradient gradient;
  TQELTexture texture;
  texture.SetImage(Tile().get());
  const plain::TDib dest(100, 100);
  const auto repaint = [&](int i) {
    Touch(gradient);
    gradient.SetFillStyle(qel::TQELFillStyle(i % 13));
    texture.SetImageStyle(qel::TQELImageStyle(i % 3));
    texture.SetTransparentColor(i % 2 ? vcl::clNone : vcl::clBlack);
    Render(gradient, dest.DC(), 90 + i % 3, 100);
    texture.Draw(dest.DC(), 90 + i % 3, 100, vcl::clBtnFace);
  };
  for (int i = 0; i < 100; ++i) repaint(i);
  const THandles before;
  for (int i = 0; i < Repaints; ++i) repaint(i);
  const THandles after;
  std::printf(
      "\n## Handles\n\n%d repaints, each with other settings. Aim: equal.\n\n"
      "| | before | after |\n|---|---|---|\n| GDI | %d | %d |\n| user | %d | %d |\n",
      Repaints, before.Gdi, after.Gdi, before.User, after.User);
}

}  // namespace

void Backgrounds() {
  MeasureAgainstGradientFill();
  MeasureAgainstPlainCalls();
  MeasureRepaint();
  MeasureManySizes();
  MeasureTiling();
  MeasureHandles();
}

}  // namespace bench
