// Measuring a grid of a million rows against one of a thousand.
#include "bench/grids.h"

#include <memory>
#include <string>

#include "bench/timing.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/canvas.h"
#include "vcl/grids/grids.h"
#include "vcl/rtl/win32.h"

namespace bench {

namespace {

/// A shown grid, which Page Down goes through again and again.
class TPagedGrid {
 public:
  explicit TPagedGrid(int rows) : FGrid(new vcl::TDrawGrid(&FForm)) {
    FForm.SetBounds(0, 0, 600, 500);
    FGrid->SetParent(&FForm);
    FGrid->SetAlign(vcl::alClient);
    FGrid->SetColCount(10);
    FGrid->SetRowCount(rows);
    FGrid->OnDrawCell = [this](vcl::TObject*, int col, int row, const vcl::TRect& rect,
                               vcl::TGridDrawState) {
      FGrid->Canvas()->TextRect(rect, rect.Left + 2, rect.Top + 2, std::to_string(col * row));
    };
    FForm.Show();
    FForm.Update();
  }
  TPagedGrid(const TPagedGrid&) = delete;
  TPagedGrid& operator=(const TPagedGrid&) = delete;

  void Page() {
    constexpr int lastPages = 100;
    if (FGrid->Row() + lastPages > FGrid->RowCount()) FGrid->SetRow(FGrid->RowCount() / 2);
    FGrid->Perform(WM_KEYDOWN, VK_NEXT);
    FGrid->Update();
  }

 private:
  vcl::TForm FForm{nullptr};
  vcl::TDrawGrid* FGrid;
};

}  // namespace

void Grids() {
  TPagedGrid many(1'000'000);
  TPagedGrid few(1000);
  TTable table("A grid of 1,000,000 rows, against 1,000",
               "Page Down, painted. At most 1.1: only the cells that are seen cost anything.",
               {"page down"});
  table.Add("TDrawGrid", {Compare([&] { many.Page(); }, [&] { few.Page(); })});
}

}  // namespace bench
