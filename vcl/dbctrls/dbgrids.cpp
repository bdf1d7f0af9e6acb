// TDBGrid: painting records in rows, and moving through them by keyboard, mouse and scroll bar.
#include "vcl/dbctrls/dbgrids.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int TextMargin = 3;  // At 96 dots per inch, around a cell's text.
/// What stands for the place in the data, whose size need not be known: its beginning, somewhere in
/// the middle, its end.
constexpr int ScrollBegin = 0, ScrollMiddle = 2, ScrollEnd = 4;

bool IsNumber(TFieldType type) {
  return (type >= ftSmallint && type <= ftLargeint) || (type >= ftFloat && type <= ftBCD);
}

struct TKeyCommand {
  int Key, Command;
};
constexpr TKeyCommand Keys[] = {{VK_UP, SB_LINEUP},    {VK_DOWN, SB_LINEDOWN},
                                {VK_PRIOR, SB_PAGEUP}, {VK_NEXT, SB_PAGEDOWN},
                                {VK_HOME, SB_TOP},     {VK_END, SB_BOTTOM}};

}  // namespace

const TClass& TDBGrid::Class() {
  using T = TDBGrid;
  static const TClass info =
      Describe<T, TCustomControl>("vcl::TDBGrid", "vcl/dbctrls/dbgrids.h",
                                  {
                                      Inherit("Align"),
                                      Inherit("Color"),
                                      Property<&T::DataSource, &T::SetDataSource>("DataSource"),
                                      Inherit("Enabled"),
                                      Inherit("Font"),
                                      Inherit("ParentColor"),
                                      Inherit("ParentFont"),
                                      Inherit("PopupMenu"),
                                      Inherit("TabOrder"),
                                      Inherit("TabStop"),
                                      Inherit("Visible"),
                                      Inherit("OnDblClick"),
                                      Inherit(FocusEvents),
                                      Inherit("OnKeyDown"),
                                  });
  return info;
}

TDBGrid::TDBGrid(TComponent* owner) : TCustomControl(owner), FLink(*this) {
  SetBounds(0, 0, 320, 120);
  SetTabStop(true);
  SetParentColor(false);
  SetColor(clWindow);
  SetDoubleBuffered(true);
}

TDBGrid::~TDBGrid() {
  AnnounceEnd();
  FLink.SetDataSource(nullptr);
}

void TDBGrid::SetDataSource(TDataSource* dataSource) {
  FLink.SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
  DataChanged();
}

void TDBGrid::CreateParams(TCreateParams& params) {
  TCustomControl::CreateParams(params);
  params.Style |= WS_VSCROLL | WS_TABSTOP;
  params.ExStyle |= WS_EX_CLIENTEDGE;
}

void TDBGrid::CreateWnd() {
  TCustomControl::CreateWnd();
  DataChanged();
}

void TDBGrid::Resize() {
  TCustomControl::Resize();
  DataChanged();
}

void TDBGrid::DataChanged() {
  if (Destroying() || !HandleAllocated()) return;
  FLink.SetBufferCount(ClientRect().Bottom / RowHeight() - 1);
  ShowScrollPosition();
  Invalidate();
}

void TDBGrid::ShowScrollPosition() {
  const TDataSet* data = FLink.Active() ? FLink.DataSet() : nullptr;
  const int position = !data || data->Bof() || data->RecNo() == 1 ? ScrollBegin
                       : data->Eof()                              ? ScrollEnd
                                                                  : ScrollMiddle;
  SCROLLINFO info{sizeof info,
                  SIF_RANGE | SIF_POS | SIF_DISABLENOSCROLL,
                  ScrollBegin,
                  ScrollEnd,
                  0,
                  position,
                  0};
  ::SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
}

int TDBGrid::RowHeight() {
  const int height = std::abs(Font()->Height());
  return std::max(height, ScaledPixels(8)) + 2 * Margin() + 2;
}

int TDBGrid::Margin() const { return ScaledPixels(TextMargin); }

void TDBGrid::Paint() {
  TCanvas& canvas = *Canvas();
  canvas.SetFont(Font());
  canvas.Brush()->SetColor(Color());
  canvas.FillRect(ClientRect());
  if (!FLink.Active()) return;
  PaintTitles();
  const int current = FLink.ActiveRecord();
  for (int row = 0; row < FLink.RecordCount(); ++row) {
    FLink.SetActiveRecord(row);
    PaintRow(row, row == current);
  }
  // An empty data set has no record to go back to.
  if (FLink.RecordCount() > 0) FLink.SetActiveRecord(current);
}

void TDBGrid::PaintTitles() {
  TCanvas& canvas = *Canvas();
  canvas.Brush()->SetColor(clBtnFace);
  canvas.Font()->SetColor(clBtnText);
  TRect cell{0, 0, 0, RowHeight()};
  for (const TField* field : FLink.DataSet()->Fields()) {
    if (!field->Visible()) continue;
    cell.Left = cell.Right;
    cell.Right += field->DisplayWidth() * canvas.TextWidth("0") + 2 * Margin();
    PaintCell(cell, field->DisplayLabel(), false);
  }
}

void TDBGrid::PaintRow(int row, bool current) {
  TCanvas& canvas = *Canvas();
  canvas.Brush()->SetColor(current ? clHighlight : Color());
  canvas.Font()->SetColor(current ? clHighlightText : Font()->Color());
  const int top = (row + 1) * RowHeight();
  TRect cell{0, top, 0, top + RowHeight()};
  for (const TField* field : FLink.DataSet()->Fields()) {
    if (!field->Visible()) continue;
    cell.Left = cell.Right;
    cell.Right += field->DisplayWidth() * canvas.TextWidth("0") + 2 * Margin();
    PaintCell(cell, field->DisplayText(), IsNumber(field->DataType()));
  }
}

void TDBGrid::PaintCell(const TRect& rect, const std::string& text, bool right) {
  TCanvas& canvas = *Canvas();
  const int x = right
                    ? std::max(rect.Left + Margin(), rect.Right - Margin() - canvas.TextWidth(text))
                    : rect.Left + Margin();
  canvas.TextRect({rect.Left, rect.Top, rect.Right - 1, rect.Bottom - 1}, x, rect.Top + Margin(),
                  text);
  canvas.Pen()->SetColor(clBtnShadow);
  canvas.MoveTo(rect.Right - 1, rect.Top);
  canvas.LineTo(rect.Right - 1, rect.Bottom - 1);
  canvas.LineTo(rect.Left - 1, rect.Bottom - 1);
}

void TDBGrid::MoveBy(int distance) {
  if (FLink.Active() && distance != 0) FLink.DataSet()->MoveBy(distance);
}

void TDBGrid::Scroll(int command) {
  if (!FLink.Active()) return;
  switch (command) {
    case SB_LINEUP: return MoveBy(-1);
    case SB_LINEDOWN: return MoveBy(1);
    case SB_PAGEUP: return MoveBy(-FLink.BufferCount());
    case SB_PAGEDOWN: return MoveBy(FLink.BufferCount());
    case SB_TOP: return FLink.DataSet()->First();
    case SB_BOTTOM: return FLink.DataSet()->Last();
    default: return;
  }
}

void TDBGrid::KeyDown(std::uint16_t& key, TShiftState shift) {
  TCustomControl::KeyDown(key, shift);
  const auto* found = std::ranges::find(Keys, key, &TKeyCommand::Key);
  if (found != std::end(Keys)) Scroll(found->Command);
}

void TDBGrid::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  if (CanFocus()) SetFocus();
  const int row = y / RowHeight() - 1;
  if (button == mbLeft && row >= 0 && row < FLink.RecordCount()) MoveBy(row - FLink.ActiveRecord());
  TCustomControl::MouseDown(button, shift, x, y);
}

void TDBGrid::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_VSCROLL: {
      const int command = LOWORD(message.WParam);
      const bool dragged = command == SB_THUMBPOSITION;
      const int place = HIWORD(message.WParam);
      if (!dragged) return Scroll(command);
      if (place != ScrollMiddle) Scroll(place < ScrollMiddle ? SB_TOP : SB_BOTTOM);
      return;
    }
    case WM_MOUSEWHEEL: return MoveBy(-GET_WHEEL_DELTA_WPARAM(message.WParam) / WHEEL_DELTA);
    case WM_GETDLGCODE: message.Result = DLGC_WANTARROWS; return;
    default: TCustomControl::Dispatch(message);
  }
}

}  // namespace vcl
