// Measuring list views: rows of owner data, and items one by one.
#include "bench/lists.h"

#include <string>

#include "bench/timing.h"
#include "qel/controls/Qeltheaderlist.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"

namespace bench {

namespace {

constexpr int Pages = 20;

/// A list view of owner data on the screen, with two columns.
class TShownRows {
 public:
  TShownRows(int rows, int left) : FForm(nullptr), FView(&FForm) {
    FForm.SetBounds(left, 0, 400, 400);
    FView.SetParent(&FForm);
    FView.SetBounds(10, 10, 350, 330);
    FView.SetViewStyle(vcl::vsReport);
    for (int i = 0; i < 2; ++i) FView.Columns()->Add()->SetWidth(150);
    FView.SetOwnerData(true);
    FView.OnData = [](vcl::TObject*, vcl::TListItem* item) {
      item->SetCaption("Row " + std::to_string(item->Index()));
      item->SubItems()->Add(std::to_string(item->Index() * 2));
    };
    FView.Items()->SetCount(rows);
    FForm.Show();
    FForm.Update();
  }

  void PageDown() {
    ::SendMessageW(FView.Handle(), WM_VSCROLL, SB_TOP, 0);
    for (int i = 0; i < Pages; ++i) {
      ::SendMessageW(FView.Handle(), WM_VSCROLL, SB_PAGEDOWN, 0);
      FView.Update();
    }
  }

 private:
  vcl::TForm FForm;
  vcl::TListView FView;
};

/// A header list of virtual rows on the screen, which Page Down goes through.
class TShownHeaderList {
 public:
  TShownHeaderList(int rows, int left) : FForm(nullptr), FList(&FForm) {
    FForm.SetBounds(left, 0, 400, 400);
    FList.SetParent(&FForm);
    FList.SetBounds(10, 10, 350, 330);
    for (int i = 0; i < 2; ++i) FList.Sections()->Add()->SetWidth(150);
    FList.OnGetText = [](vcl::TObject*, int column, int row, std::string& text) {
      text = std::to_string(row * (column + 1));
    };
    FList.SetRowCount(rows);
    FForm.Show();
    FForm.Update();
  }

  /// From the middle each time.
  void PageDown() {
    FList.SetItemIndex(FList.Count() / 2 - 1);
    FList.Perform(WM_KEYDOWN, VK_NEXT);
    FList.Update();
  }

 private:
  vcl::TForm FForm;
  qel::TQELHeaderList FList;
};

void AddItems(int count) {
  vcl::TForm form(nullptr);
  vcl::TListView view(&form);
  view.SetParent(&form);
  view.SetViewStyle(vcl::vsReport);
  view.Columns()->Add()->SetWidth(150);
  view.HandleNeeded();
  for (int i = 0; i < count; ++i) view.Items()->Add()->SetCaption("Item");
  for (int i = 0; i < count / 2; ++i) view.Items()->Delete(0);
}

}  // namespace

void Lists() {
  TTable pages("A list view of 1,000,000 rows of owner data, against one of 1,000",
               "Twenty pages down, each painted. Aim: at most 1.1.", {"20 pages"});
  TShownRows many(1'000'000, 0);
  TShownRows few(1'000, 410);
  pages.Add("TListView", {Compare([&] { many.PageDown(); }, [&] { few.PageDown(); })});

  TTable headers("A header list of 1,000,000 virtual rows, against 100",
                 "Page Down, painted. At most 1.1: only the rows that are seen cost anything.",
                 {"page down"});
  TShownHeaderList million(1'000'000, 0);
  TShownHeaderList hundred(100, 410);
  headers.Add("TQELHeaderList",
              {Compare([&] { million.PageDown(); }, [&] { hundred.PageDown(); })});

  TTable items("A list view of 1,000 items, against 250",
               "Added one by one, half of them deleted from the beginning. At most 6.",
               {"added, deleted"});
  items.Add("TListView", {Compare([] { AddItems(1000); }, [] { AddItems(250); })});
}

}  // namespace bench
