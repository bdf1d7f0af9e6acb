// TDrawGrid: the grid's questions, asked by its events.
#include "vcl/grids/drawgrid.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr const char* GridProperties[] = {
    "Align",         "BorderStyle",     "ColCount",       "Color",
    "Ctl3D",         "DefaultColWidth", "DefaultDrawing", "DefaultRowHeight",
    "DragCursor",    "DragMode",        "Enabled",        "FixedColor",
    "RowCount",      "FixedCols",       "FixedRows",      "Font",
    "GridLineWidth", "Options",         "ParentColor",    "ParentCtl3D",
    "ParentFont",    "ParentShowHint",  "PopupMenu",      "ScrollBars",
    "ShowHint",      "TabOrder",        "TabStop",        "Visible"};

/// Keeps what a handler draws inside the cell.
class TCellClip {
 public:
  TCellClip(HDC dc, const TRect& rect) : FDC(dc), FRegion(::CreateRectRgn(0, 0, 0, 0)) {
    FHadRegion = ::GetClipRgn(dc, FRegion.Get()) == 1;
    ::IntersectClipRect(dc, rect.Left, rect.Top, rect.Right, rect.Bottom);
  }
  ~TCellClip() { ::SelectClipRgn(FDC, FHadRegion ? FRegion.Get() : nullptr); }
  TCellClip(const TCellClip&) = delete;
  TCellClip& operator=(const TCellClip&) = delete;

 private:
  HDC FDC;
  TOwnedRegion FRegion;
  bool FHadRegion;
};

constexpr const char* CellParameters = "vcl::TObject* sender, int col, int row";
constexpr const char* MovedParameters = "vcl::TObject* sender, int fromIndex, int toIndex";

}  // namespace

const TClass& TDrawGrid::Class() {
  using T = TDrawGrid;
  static const TClass info = Describe<T, TCustomGrid>(
      "vcl::TDrawGrid", "vcl/grids/grids.h",
      {
          Inherit(GridProperties),
          Inherit("OnClick"),
          Event<&T::OnColumnMoved>("OnColumnMoved").Type("TMovedEvent", MovedParameters),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Event<&T::OnDrawCell>("OnDrawCell"),
          Event<&T::OnEditButtonClick>("OnEditButtonClick").Type("TCellEvent", CellParameters),
          Inherit(FocusEvents),
          Event<&T::OnFixedCellClick>("OnFixedCellClick").Type("TCellEvent", CellParameters),
          Event<&T::OnGetEditStyle>("OnGetEditStyle"),
          Event<&T::OnGetEditMask>("OnGetEditMask"),
          Event<&T::OnGetEditText>("OnGetEditText"),
          Event<&T::OnGetPickList>("OnGetPickList"),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Event<&T::OnRowMoved>("OnRowMoved").Type("TMovedEvent", MovedParameters),
          Event<&T::OnSelectCell>("OnSelectCell")
              .Type("TSelectCellEvent", "vcl::TObject* sender, int col, int row, bool& canSelect"),
          Event<&T::OnSetEditText>("OnSetEditText"),
          Inherit("OnStartDrag"),
          Event<&T::OnTopLeftChanged>("OnTopLeftChanged"),
      });
  return info;
}

void TDrawGrid::DrawCell(int col, int row, const TRect& rect, TGridDrawState state) {
  if (!OnDrawCell) return;
  const TCellClip clip(Canvas()->Handle(), rect);
  OnDrawCell(this, col, row, rect, state);
}

bool TDrawGrid::SelectCell(int col, int row) {
  bool can = true;
  OnSelectCell(this, col, row, can);
  return can;
}

std::string TDrawGrid::GetEditText(int col, int row) {
  std::string text;
  OnGetEditText(this, col, row, text);
  return text;
}

void TDrawGrid::SetEditText(int col, int row, const std::string& text) {
  OnSetEditText(this, col, row, text);
}

std::string TDrawGrid::GetEditMask(int col, int row) {
  std::string mask;
  OnGetEditMask(this, col, row, mask);
  return mask;
}

TEditStyle TDrawGrid::GetEditStyle(int col, int row) {
  TEditStyle style = esSimple;
  OnGetEditStyle(this, col, row, style);
  return style;
}

void TDrawGrid::GetPickList(int col, int row, TStrings& items) {
  OnGetPickList(this, col, row, &items);
}

void TDrawGrid::ToggleChecked(int col, int row) {
  const TWatch watch(this);
  const bool checked = SameText(GetEditText(col, row), BoolToStr(true));
  if (!watch.Gone()) SetEditText(col, row, BoolToStr(!checked));
}

}  // namespace vcl
