// TListsPage: the page of the class library's list view and grids.
#pragma once

#include "vcl/forms/frames.h"
#include "vcl/grids/grids.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace gallery {

/// The frame of listspage.dfm.
class TListsPage : public vcl::TFrame {
 public:
  explicit TListsPage(vcl::TComponent* owner);
  ~TListsPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  vcl::TComboBox* StyleBox = nullptr;
  vcl::TCheckBox* LinesCheck = nullptr;
  vcl::TListView* RowsView = nullptr;
  vcl::TStringGrid* SampleGrid = nullptr;
  vcl::TDrawGrid* DrawnGrid = nullptr;

  void StyleChange(vcl::TObject*);
  void LinesClick(vcl::TObject*);
  void RowsData(vcl::TObject*, vcl::TListItem* item);
  void GridSort(vcl::TObject*, int column, int row);
  void CellDraw(vcl::TObject*, int column, int row, const vcl::TRect& rect,
                vcl::TGridDrawState state);
};

}  // namespace gallery
