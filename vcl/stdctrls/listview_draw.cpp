// TCustomListView: items that handlers draw, or give another look.
#include "vcl/controls/controlcanvas.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/listview.h"

namespace vcl {

namespace {

TCustomDrawState StateOf(UINT drawn) {
  TCustomDrawState state;
  if (drawn & CDIS_SELECTED) state.Include(cdsSelected);
  if (drawn & CDIS_DISABLED) state.Include(cdsDisabled);
  if (drawn & CDIS_FOCUS) state.Include(cdsFocused);
  if (drawn & CDIS_HOT) state.Include(cdsHot);
  return state;
}

}  // namespace

void TCustomListView::CustomDraw(TMessage& message) {
  const auto& told = reinterpret_cast<const NMLVCUSTOMDRAW*>(message.LParam)->nmcd;
  message.Result = CDRF_DODEFAULT;
  const bool items = OnCustomDrawItem || OnCustomDrawSubItem;
  if (told.dwDrawStage & CDDS_ITEM) {
    if (items && (told.dwDrawStage & CDDS_PREPAINT)) message.Result = DrawItem(message.LParam);
    return;
  }
  if (told.dwDrawStage != CDDS_PREPAINT || (!items && !OnCustomDraw)) return;
  bool byDefault = true;
  const TWatch watch(this);
  {
    const TCanvasBinding binding(*this, *FCanvas, told.hdc);
    FCanvas->SetFont(Font());
    FCanvas->Brush()->SetColor(Color());
    OnCustomDraw(this, ClientRect(), byDefault);
  }
  if (watch.Gone() || !byDefault) message.Result = CDRF_SKIPDEFAULT;
  if (message.Result == CDRF_DODEFAULT && items) message.Result = CDRF_NOTIFYITEMDRAW;
}

/// An item, or in vsReport the text in a column. What the handler sets on the canvas and does not
/// draw itself, the system draws with.
LRESULT TCustomListView::DrawItem(LPARAM drawn) {
  auto& told = *reinterpret_cast<NMLVCUSTOMDRAW*>(drawn);
  const bool columns = OnCustomDrawSubItem && FViewStyle == vsReport;
  const LRESULT more = columns ? CDRF_NOTIFYSUBITEMDRAW : CDRF_DODEFAULT;
  const int column = told.nmcd.dwDrawStage & CDDS_SUBITEM ? told.iSubItem : 0;
  if (column == 0 && (told.nmcd.dwDrawStage & CDDS_SUBITEM)) return CDRF_DODEFAULT;
  TListItem* item = ItemOf(static_cast<int>(told.nmcd.dwItemSpec), told.nmcd.lItemlParam);
  if (!item) return more;
  const TWatch watch(this);
  const TCustomDrawState state = StateOf(told.nmcd.uItemState);
  bool byDefault = true;
  bool another = false;
  {
    const TCanvasBinding binding(*this, *FCanvas, told.nmcd.hdc);
    FCanvas->SetFont(Font());
    FCanvas->Brush()->SetColor(Color());
    column > 0 ? OnCustomDrawSubItem(this, item, column, state, byDefault)
               : OnCustomDrawItem(this, item, state, byDefault);
    if (watch.Gone() || !byDefault) return CDRF_SKIPDEFAULT;
    another = !(*FCanvas->Font() == *Font());
    const bool colored = FCanvas->Brush()->Color() != Color();
    if (another || column > 0) told.clrText = ColorToRGB(FCanvas->Font()->Color());
    if (colored || column > 0) told.clrTextBk = ColorToRGB(FCanvas->Brush()->Color());
    FDrawnFont->AssignPixels(FCanvas->Font());
  }
  if (!another && column == 0) return more;
  ::SelectObject(told.nmcd.hdc, FDrawnFont->Handle());
  return more | CDRF_NEWFONT;
}

}  // namespace vcl
