// Measuring a gauge's progress against repainting the gauge.
#include "bench/gauge.h"

#include "bench/timing.h"
#include "qel/controls/Qeltgauge.h"
#include "vcl/forms/forms.h"

namespace bench {

namespace {

constexpr int Updates = 1000;

/// A gauge on the screen.
class TShownGauge {
 public:
  explicit TShownGauge(qel::TQELKind kind) : FForm(nullptr), FBackground(nullptr), FGauge(&FForm) {
    FForm.SetBounds(0, 0, 400, 300);
    FGauge.SetParent(&FForm);
    FGauge.SetKind(kind);
    if (kind == qel::kVertical) FGauge.SetBounds(10, 10, 60, 140);
  }
  TPair Measure() {
    FForm.Show();
    FForm.Update();
    return Compare([this] { Update(); }, [this] { Repaint(); });
  }
  void AddBackground() { FGauge.SetBackground(&FBackground); }

 private:
  void Update() {
    for (int i = 0; i < Updates; ++i) FGauge.SetPercentage(i % 101);
  }
  /// Half full, as the other gauge is on average.
  void Repaint() {
    FGauge.SetPercentage(50);
    for (int i = 0; i < Updates; ++i) FGauge.Repaint();
  }

  vcl::TForm FForm;
  qel::TQELBackground FBackground;
  qel::TQELGauge FGauge;
};

}  // namespace

void Gauge() {
  TTable table("1,000 updates of a gauge's percentage, against repainting the gauge",
               "On the screen. Aim: at most 0.25.", {"plain", "on a gradient"});
  const auto row = [&](const char* name, qel::TQELKind kind) {
    TShownGauge plain(kind);
    TShownGauge filled(kind);
    filled.AddBackground();
    table.Add(name, {plain.Measure(), filled.Measure()});
  };
  row("horizontal, 140x36", qel::kHorizontal);
  row("vertical, 60x140", qel::kVertical);
}

}  // namespace bench
