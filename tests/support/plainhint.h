// A hint's picture and its place as plain sequences of GDI calls and comparisons, one pixel at a
// time: what the hint window's own are compared with. Shares no code with the library.
#pragma once

#include <string>

#include "tests/support/plainfill.h"

namespace plain {

/// What a hint's picture depends on; the directions are up right, up left, down right, down left.
struct THintLook {
  int Direction = 0;
  bool Bubble = false;
  bool Shadow = true;
  COLORREF Key = RGB(0, 255, 0);
  COLORREF ShadowColor = 0;
  HFONT Font = nullptr;
  COLORREF FontColor = 0;
  std::wstring Text;
};

class THintPicture {
 public:
  /// Draws on `snapshot`, the screen under the hint, and then all of it on `picture`, which begins
  /// as the background.
  THintPicture(const THintLook& look, TDib& snapshot, TDib& picture)
      : L(look), S(snapshot), T(picture), W(snapshot.Width()), H(snapshot.Height()) {
    Up = L.Direction < 2;
    Off = Up ? 0 : 15;
    if (L.Shadow) Shadow();
    Body();
    if (L.Bubble) Pointer();
    for (int y = 0; y < H; ++y) {
      for (int x = 0; x < W; ++x) {
        const COLORREF at = ::GetPixel(S.DC(), x, y);
        if (at != L.Key) ::SetPixel(T.DC(), x, y, at);
      }
    }
    Write();
  }

 private:
  void Shade(HRGN region, int left, int top, int right, int bottom) {
    for (int y = top; y <= bottom; ++y) {
      for (int x = left; x <= right; ++x) {
        if (x % 2 == y % 2 && ::PtInRegion(region, x, y)) ::SetPixel(S.DC(), x, y, L.ShadowColor);
      }
    }
    ::DeleteObject(region);
  }
  HRGN BodyRegion() {
    const int top = Up ? 8 : 23;
    const int bottom = Up ? H - 9 : H - 2;
    return L.Bubble ? ::CreateRoundRectRgn(10, top, W, bottom, 8, 8)
                    : ::CreateRectRgn(10, top, W, bottom);
  }
  void Shadow() {
    if (Up) {
      Shade(BodyRegion(), W - 14, 8, W, H - 14);
      Shade(BodyRegion(), 10, H - 14, W, H - 9);
    } else {
      Shade(BodyRegion(), W - 14, 23, W, H - 8);
      Shade(BodyRegion(), 10, H - 8, W, H - 2);
    }
    if (!L.Bubble || !Up) return;
    const POINT right[] = {{12, H - 15}, {25, H - 15}, {12, H}};
    const POINT left[] = {{W - 33, H - 15}, {W - 11, H - 15}, {W - 6, H}};
    const POINT* s = L.Direction == 0 ? right : left;
    Shade(::CreatePolygonRgn(s, 3, WINDING), s[0].x, s[0].y, s[1].x, s[2].y);
  }
  void Shape(COLORREF pen, int left, int top, int right, int bottom) {
    HGDIOBJ formerPen = ::SelectObject(S.DC(), ::CreatePen(PS_SOLID, 1, pen));
    HGDIOBJ formerBrush = ::SelectObject(S.DC(), ::CreateSolidBrush(L.Key));
    if (L.Bubble) {
      ::RoundRect(S.DC(), left, top, right, bottom, 9, 9);
    } else {
      ::Rectangle(S.DC(), left, top, right, bottom);
    }
    ::DeleteObject(::SelectObject(S.DC(), formerBrush));
    ::DeleteObject(::SelectObject(S.DC(), formerPen));
  }
  void Body() {
    const int d = Up ? 0 : 6;
    Shape(RGB(0, 0, 0), 1, Off, W - 6, H - 14 + d);
    Shape(RGB(255, 255, 255), 0, Off, W - 7, H - 15 + d);
    Shape(L.Key, 1, Off + 1, W - 7, H - 15 + d);
  }
  void Line(COLORREF pen, POINT from, POINT to) {
    HGDIOBJ former = ::SelectObject(S.DC(), ::CreatePen(PS_SOLID, 1, pen));
    ::MoveToEx(S.DC(), from.x, from.y, nullptr);
    ::LineTo(S.DC(), to.x, to.y);
    ::DeleteObject(::SelectObject(S.DC(), former));
  }
  void Pointer() {
    const POINT all[4][3] = {{{10, H - 15}, {20, H - 15}, {0, H}},
                             {{W - 26, H - 15}, {W - 16, H - 15}, {W - 6, H}},
                             {{10, 15}, {20, 15}, {0, 0}},
                             {{W - 26, 15}, {W - 16, 15}, {W - 6, 0}}};
    const POINT* p = all[L.Direction];
    Line(L.Key, p[0], p[1]);
    HRGN region = ::CreatePolygonRgn(p, 3, WINDING);
    HBRUSH brush = ::CreateSolidBrush(L.Key);
    ::FillRgn(S.DC(), region, brush);
    ::DeleteObject(brush);
    ::DeleteObject(region);
    Line(RGB(0, 0, 0), p[1], p[2]);
    Line(RGB(255, 255, 255), p[2], p[0]);
  }
  /// A light copy of the text up and left, the text over it.
  void Write() {
    HGDIOBJ former = ::SelectObject(T.DC(), L.Font);
    ::SetBkMode(T.DC(), TRANSPARENT);
    for (int step : {-1, 0}) {
      RECT area{8 + step, 3 + Off + step, W + step, H + step};
      ::SetTextColor(T.DC(), step ? ::GetSysColor(COLOR_BTNHIGHLIGHT) : L.FontColor);
      ::DrawTextW(T.DC(), L.Text.c_str(), -1, &area, DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
    }
    ::SelectObject(T.DC(), former);
  }

  const THintLook& L;
  TDib& S;
  TDib& T;
  int W;
  int H;
  bool Up = true;
  int Off = 0;
};

}  // namespace plain
