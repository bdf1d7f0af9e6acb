// The page of lists and grids: a million rows without a million of anything.
#include "demos/gallery/listspage.h"

#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

namespace {

constexpr int RowsShown = 1'000'000;

constexpr const char* Stock[][4] = {
    {"Screws", "1200", "Hall 1", "False"},  {"Nails", "800", "Hall 1", "True"},
    {"Boards", "64", "Yard", "False"},      {"Paint", "45", "Hall 2", "True"},
    {"Glue", "130", "Hall 2", "False"},     {"Hammers", "24", "Hall 1", "False"},
    {"Ladders", "7", "Yard", "True"},       {"Cable", "310", "Hall 2", "False"},
    {"Lamps", "96", "Hall 2", "False"},     {"Tiles", "2400", "Yard", "True"},
    {"Sandpaper", "500", "Hall 1", "False"}};

TColor Mix(int red, int green, int blue) {
  return static_cast<TColor>(red | green << 8 | blue << 16);
}

int DigitSum(int number) {
  int sum = 0;
  for (; number > 0; number /= 10) sum += number % 10;
  return sum;
}

}  // namespace

const TClass& TListsPage::Class() {
  using T = TListsPage;
  static const TClass info = Describe<T, TFrame>("gallery::TListsPage", "demos/gallery/listspage.h",
                                                 {
                                                     Field<&T::StyleBox>("StyleBox"),
                                                     Field<&T::LinesCheck>("LinesCheck"),
                                                     Field<&T::RowsView>("RowsView"),
                                                     Field<&T::SampleGrid>("SampleGrid"),
                                                     Field<&T::DrawnGrid>("DrawnGrid"),
                                                     Method<&T::StyleChange>("StyleChange"),
                                                     Method<&T::LinesClick>("LinesClick"),
                                                     Method<&T::RowsData>("RowsData"),
                                                     Method<&T::GridSort>("GridSort"),
                                                     Method<&T::CellDraw>("CellDraw"),
                                                 });
  return info;
}

TListsPage::TListsPage(TComponent* owner) : TFrame(owner) {
  LoadFrame();
  RowsView->Items()->SetCount(RowsShown);
  for (int row = 0; row < static_cast<int>(std::size(Stock)); ++row) {
    SampleGrid->SetCells(0, row + 1, IntToStr(row + 1));
    for (int column = 0; column < 4; ++column) {
      SampleGrid->SetCells(column + 1, row + 1, Stock[row][column]);
    }
  }
}

TListsPage::~TListsPage() { AnnounceEnd(); }

void TListsPage::StyleChange(TObject*) {
  RowsView->SetViewStyle(static_cast<TViewStyle>(StyleBox->ItemIndex()));
}

void TListsPage::LinesClick(TObject*) { RowsView->SetGridLines(LinesCheck->Checked()); }

void TListsPage::RowsData(TObject*, TListItem* item) {
  const int number = item->Index() + 1;
  item->SetCaption(IntToStr(number));
  item->SubItems()->Add(IntToStr(std::int64_t{number} * number));
  item->SubItems()->Add(IntToStr(DigitSum(number)));
}

/// A click on a title sorts, a second one the other way.
void TListsPage::GridSort(TObject*, int column, int row) {
  if (row != 0 || column == 0) return;
  const bool again = SampleGrid->SortColumn() == column;
  SampleGrid->SortRows(column, again && !SampleGrid->SortDescending());
}

void TListsPage::CellDraw(TObject*, int column, int row, const TRect& rect, TGridDrawState state) {
  TCanvas* canvas = DrawnGrid->Canvas();
  if (state.Has(gdFixed)) return canvas->TextOut(rect.Left + 2, rect.Top + 2, IntToStr(row));
  if (state.Has(gdSelected)) return;
  const int step = 16 * (column - 1);
  canvas->Brush()->SetColor(Mix(step, row % 256, 255 - step));
  canvas->FillRect(rect);
}

}  // namespace gallery
