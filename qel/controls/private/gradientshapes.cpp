// The gradients of lines and ellipses, whose pixels are the system's business: Circle, Spectral,
// RoundMiddle, Singleflash and DoppelFlash.
#include "qel/controls/private/gradientsteps.h"

#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// Draws outlines and areas in one colour, with the context's own pen and brush: nothing is made or
/// selected for a change of colour.
class TDrawing {
 public:
  TDrawing(const TGradientPlan& plan, TSurface& surface) : FDC(surface.DC()), FSaved(FDC) {
    ::SelectObject(FDC, ::GetStockObject(DC_PEN));
    ::SelectObject(FDC, ::GetStockObject(DC_BRUSH));
    ::SetROP2(FDC, R2_COPYPEN);
    SetColor(plan.Colors[0]);
    ::PatBlt(FDC, 0, 0, plan.Width, plan.Height, PATCOPY);
  }
  ~TDrawing() { ::GdiFlush(); }
  TDrawing(const TDrawing&) = delete;
  TDrawing& operator=(const TDrawing&) = delete;

  void SetColor(COLORREF color) {
    ::SetDCPenColor(FDC, color);
    ::SetDCBrushColor(FDC, color);
  }
  void SetLineColor(COLORREF color) { ::SetDCPenColor(FDC, color); }
  void Line(int x1, int y1, int x2, int y2) {
    ::MoveToEx(FDC, x1, y1, nullptr);
    ::LineTo(FDC, x2, y2);
  }
  void Ellipse(int left, int top, int right, int bottom) {
    ::Ellipse(FDC, left, top, right, bottom);
  }

 private:
  HDC FDC;
  vcl::TSavedDC FSaved;
};

/// The lines of one edge that a step of the fan draws: those from `From` to `To`.
struct TFanLines {
  int From;
  int To;
};

/// A step's lines from the edge's band, without those that the steps after it draw over exactly:
/// what the next step draws begins where this one's band ends.
TFanLines FanLines(const TGradientPlan& plan, int band, int pair, int step) {
  const bool last = pair == plan.Pairs() - 1 && step == plan.ColorCount - 1;
  const int from = MulDiv(step, band, plan.ColorCount);
  return {from, last ? MulDiv(std::int64_t{step} + 2, band, plan.ColorCount)
                     : MulDiv(std::int64_t{step} + 1, band, plan.ColorCount) - 1};
}

/// Left, top, right, bottom of a step's ellipse; the mirror of it is made from the same numbers.
using TPlace = std::array<int, 4>;

TPlace RoundPlace(const TGradientPlan& plan, int pair, int step) {
  const int bandY = Round(double(plan.Height) / plan.Pairs()) + 1;
  const int bandX = Round(double(plan.Width) / plan.Pairs()) + 1;
  const int offsetY = Round(bandY / 2.0 * pair) + 1;
  const int offsetX = Round(bandX / 2.0 * pair) + 1;
  const int x = MulDiv(step, Round(bandX / 2.0) + 1, plan.ColorCount);
  const int y = MulDiv(step, Round(bandY / 2.0) + 1, plan.ColorCount);
  return {offsetX + x, offsetY + y, plan.Width - x - offsetX, plan.Height - y - offsetY};
}

/// Of the double flash both bands and offsets are one pixel more.
TPlace FlashPlace(const TGradientPlan& plan, int pair, int step) {
  const int more = plan.FillStyle == DoppelFlash ? 1 : 0;
  const int bandY = Round(double(plan.Height) / plan.Pairs()) + more;
  const int bandX = Round(double(plan.Width) / plan.Pairs()) + more;
  const int x = MulDiv(step, bandX, plan.ColorCount);
  const int y = MulDiv(step, bandY, plan.ColorCount);
  return {bandX * pair + more + x, bandY * pair + more + y, plan.Width, plan.Height};
}

}  // namespace

void PaintFan(const TGradientPlan& plan, TSurface& surface) {
  TDrawing drawing(plan, surface);
  const int bandY = Round(double(plan.Height) / plan.Pairs()) + 1;
  const int bandX = Round(double(plan.Width) / plan.Pairs()) + 1;
  const int width = plan.Width;
  const int height = plan.Height;
  const auto place = [&](int pair, int step) {
    const TFanLines x = FanLines(plan, bandX, pair, step);
    const TFanLines y = FanLines(plan, bandY, pair, step);
    return TPlace{x.From, x.To, y.From, y.To};
  };
  ForEachStep(plan, place, [&](int pair, int step) {
    const TStepColors colors = StepColors(plan, pair, step);
    const auto color = [&](int k) {
      if (plan.FillStyle == Spectral) drawing.SetLineColor(k % 2 ? colors.Forth : colors.Back);
    };
    drawing.SetLineColor(colors.Forth);
    const auto [x0, x1, y0, y1] = place(pair, step);
    const int offsetX = bandX * pair;
    const int offsetY = bandY * pair;
    for (int k = x0; k <= x1; ++k) {
      color(k);
      drawing.Line(offsetX + k, 0, width - k - offsetX, height);
    }
    for (int k = y0; k <= y1; ++k) {
      color(k);
      drawing.Line(0, offsetY + k, width, height - k - offsetY);
    }
  });
}

void PaintEllipses(const TGradientPlan& plan, TSurface& surface) {
  TDrawing drawing(plan, surface);
  const auto place = [&](int pair, int step) {
    return plan.FillStyle == RoundMiddle ? RoundPlace(plan, pair, step)
                                         : FlashPlace(plan, pair, step);
  };
  ForEachStep(plan, place, [&](int pair, int step) {
    const auto [left, top, right, bottom] = place(pair, step);
    drawing.SetColor(StepColors(plan, pair, step).Forth);
    drawing.Ellipse(left, top, right, bottom);
    if (plan.FillStyle == DoppelFlash) {
      drawing.Ellipse(plan.Width - left, plan.Height - top, 0, 0);
    }
  });
}

}  // namespace qel
