// TInspectorGrid: its lines, which of them is selected, and scrolling.
#include "ide/inspectorgrid.h"

#include <algorithm>

#include "ide/inspectorlayout.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/stdctrls/popuplist.h"

namespace ide {

TInspectorGrid::TInspectorGrid(vcl::TComponent* owner,
                               std::function<bool(const vcl::TPropInfo&)> wanted)
    : TCustomControl(owner),
      FRows(std::move(wanted)),
      FEdit(new vcl::TInplaceEdit(this)),
      FList(new vcl::TPopupList(this)),
      FMenu(new vcl::TPopupMenu(this)) {
  using T = TInspectorGrid;
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetParentColor(false);
  SetColor(vcl::clWindow);
  SetTabStop(true);
  FEdit->SetVisible(false);
  FEdit->SetParent(this);
  FEdit->OnChange = vcl::TNotifyEvent(this, &T::EditChanged);
  FEdit->OnKeyDown = vcl::TKeyEvent(this, &T::EditKeyDown);
  FEdit->OnKeyPress = vcl::TKeyPressEvent(this, &T::EditKeyPress);
  FEdit->OnMouseDown = vcl::TMouseEvent(this, &T::EditMouseDown);
  FEdit->OnLeave = vcl::TNotifyEvent(this, &T::EditLeft);
  FList->OnClick = vcl::TNotifyEvent(this, &T::ListChosen);
  auto* revert = new vcl::TMenuItem(FMenu);
  revert->SetCaption("&Revert to Default");
  revert->OnClick = [this](vcl::TObject*) { Revert(); };
  FMenu->Items()->Add(revert);
  FMenu->OnPopup = vcl::TNotifyEvent(this, &T::MenuPopup);
  SetPopupMenu(FMenu);
}

TInspectorGrid::~TInspectorGrid() { AnnounceEnd(); }

void TInspectorGrid::CreateParams(vcl::TCreateParams& params) {
  TCustomControl::CreateParams(params);
  params.Style |= WS_VSCROLL | WS_CLIPCHILDREN;
}

void TInspectorGrid::CreateWnd() {
  TCustomControl::CreateWnd();
  UpdateScrollBar();
  PlaceEdit();
}

// What is shown.

void TInspectorGrid::SetObjects(vcl::TDesigner* designer, std::vector<vcl::TObject*> objects) {
  FList->CloseUp();
  FTyped = false;
  EndStretch();
  FRows.SetObjects(designer, std::move(objects));
  RowsReplaced(FSelectedPath);
}

void TInspectorGrid::Refresh() {
  const std::string selected = FSelected < 0 ? FSelectedPath : Row(FSelected).Path;
  const TRowChanges changes = FRows.Refresh();
  if (changes.Others) return RowsReplaced(selected);
  for (int row : changes.Rows) InvalidateRow(row);
  ShowValue();
}

void TInspectorGrid::RowsReplaced(const std::string& selectedPath) {
  const int selected = FRows.IndexOf(selectedPath);
  if (selected < 0) FTyped = false;
  FSelected =
      selected >= 0 ? selected : std::min(std::max(FRows.IndexOf("Name"), 0), RowCount() - 1);
  FTop = std::clamp(FTop, 0, std::max(RowCount() - VisibleRows(), 0));
  UpdateScrollBar();
  Invalidate();
  PlaceEdit();
  OnSelect(this);
}

bool TInspectorGrid::SelectRow(int row) {
  FList->CloseUp();
  if (row != FSelected) {
    if (!Apply() || row < 0 || row >= RowCount()) return false;
    InvalidateRow(FSelected);
    FSelected = row;
    FSelectedPath = Row(row).Path;
    InvalidateRow(row);
    PlaceEdit();
    OnSelect(this);
    TellSelected();
    Call([](vcl::TPropertyEditor& editor) { editor.Activate(); });
  }
  ScrollTo(std::clamp(FTop, FSelected - VisibleRows() + 1, std::max(FSelected, 0)));
  return true;
}

void TInspectorGrid::SetExpanded(int row, bool expanded) {
  if (!Row(row).Expandable || Row(row).Expanded == expanded) return;
  const std::string path = FSelected < 0 ? FSelectedPath : Row(FSelected).Path;
  if (!Apply()) return;
  FRows.SetExpanded(row, expanded);
  RowsReplaced(path);
}

// Places.

int TInspectorGrid::RowHeight() const {
  return vcl::FontHeight(*Font()) + 2 * ScaledPixels(layout::TextMargin);
}

int TInspectorGrid::VisibleRows() const {
  return HandleAllocated() ? std::max(ClientHeight() / RowHeight(), 1) : 1;
}

vcl::TRect TInspectorGrid::RowRect(int row) const {
  const int top = (row - FTop) * RowHeight();
  return {0, top, ClientWidth(), top + RowHeight()};
}

int TInspectorGrid::RowAt(int y) const {
  const int row = FTop + y / RowHeight();
  return y >= 0 && row < RowCount() ? row : -1;
}

void TInspectorGrid::InvalidateRow(int row) {
  if (row < 0 || !HandleAllocated()) return;
  const RECT rect = RowRect(row);
  ::InvalidateRect(Handle(), &rect, FALSE);
}

int TInspectorGrid::Splitter() const {
  const int greatest = std::max(ClientWidth() - ScaledPixels(layout::LeastColumn),
                                ScaledPixels(layout::LeastColumn));
  return std::clamp(FSplitter, ScaledPixels(layout::LeastColumn), greatest);
}

void TInspectorGrid::SetSplitter(int x) {
  if (x == FSplitter) return;
  FSplitter = x;
  Invalidate();
  PlaceEdit();
}

void TInspectorGrid::ChangeScale(int m, int d) {
  FSplitter = ScaleMeasure(FSplitter, m, d);
  TCustomControl::ChangeScale(m, d);
}

void TInspectorGrid::Resize() {
  TCustomControl::Resize();
  if (!HandleAllocated()) return;
  UpdateScrollBar();
  ScrollTo(FTop);
  PlaceEdit();
}

// Scrolling.

void TInspectorGrid::UpdateScrollBar() {
  if (!HandleAllocated()) return;
  SCROLLINFO info{sizeof info,
                  SIF_RANGE | SIF_PAGE | SIF_POS,
                  0,
                  std::max(RowCount() - 1, 0),
                  static_cast<UINT>(VisibleRows()),
                  FTop,
                  0};
  ::SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
}

void TInspectorGrid::ScrollTo(int top) {
  top = std::clamp(top, 0, std::max(RowCount() - VisibleRows(), 0));
  if (top == FTop) return;
  FList->CloseUp();
  FTop = top;
  UpdateScrollBar();
  Invalidate();
  PlaceEdit();
}

void TInspectorGrid::Scroll(const vcl::TMessage& message) {
  SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
  switch (LOWORD(message.WParam)) {
    case SB_LINEUP: return ScrollTo(FTop - 1);
    case SB_LINEDOWN: return ScrollTo(FTop + 1);
    case SB_PAGEUP: return ScrollTo(FTop - VisibleRows());
    case SB_PAGEDOWN: return ScrollTo(FTop + VisibleRows());
    case SB_TOP: return ScrollTo(0);
    case SB_BOTTOM: return ScrollTo(RowCount());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      ::GetScrollInfo(Handle(), SB_VERT, &info);
      return ScrollTo(info.nTrackPos);
    default: return;
  }
}

void TInspectorGrid::Dispatch(vcl::TMessage& message) {
  constexpr int wheelRows = 3;
  switch (message.Msg) {
    case WM_VSCROLL: return Scroll(message);
    case WM_MOUSEWHEEL:
      return ScrollTo(FTop - GET_WHEEL_DELTA_WPARAM(message.WParam) * wheelRows / WHEEL_DELTA);
    case WM_ERASEBKGND:  // Every line fills its own place.
    case vcl::CM_WANTSPECIALKEY: message.Result = 1; return;
    case layout::MessageEditValue: return EditValue();
    case layout::MessageShowError: std::rethrow_exception(std::exchange(FError, nullptr));
    default: break;
  }
  TCustomControl::Dispatch(message);
  const bool focus = message.Msg == WM_SETFOCUS || message.Msg == WM_KILLFOCUS;
  if (focus) InvalidateRow(FSelected);
  if (message.Msg == vcl::CM_FONTCHANGED && HandleAllocated()) RowsReplaced(FSelectedPath);
}

// Screen readers.

void TInspectorGrid::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = vcl::arTable;
}

std::vector<vcl::TAccessiblePart> TInspectorGrid::AccessibleParts() {
  std::vector<vcl::TAccessiblePart> lines;
  for (int i = 0; i < RowCount(); ++i) {
    const TInspectorRow& row = Row(i);
    vcl::TAccessiblePart& line = lines.emplace_back();
    line.Role = vcl::arRow;
    line.State = {vcl::asSelectable, vcl::asFocusable};
    line.Name = row.Path;
    line.Value = row.Value;
    line.Bounds = RowRect(i);
    line.DefaultAction = "Select";
    if (i == FSelected) line.State.Include(vcl::asSelected);
    if (i == FSelected && Focused()) line.State.Include(vcl::asFocused);
    if (row.ReadOnly) line.State.Include(vcl::asReadOnly);
    if (i < FTop || i >= FTop + VisibleRows()) line.State.Include(vcl::asOffscreen);
    if (!row.Expandable) continue;
    line.State.Include(row.Expanded ? vcl::asExpanded : vcl::asCollapsed);
    line.DefaultAction = row.Expanded ? "Collapse" : "Expand";
  }
  return lines;
}

void TInspectorGrid::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  const int row = part.front();
  if (SelectRow(row) && Row(row).Expandable) SetExpanded(row, !Row(row).Expanded);
}

void TInspectorGrid::TellSelected() {
  AccessibleChanged(vcl::acSelection, {FSelected});
  if (Focused()) AccessibleChanged(vcl::acFocus, {FSelected});
}

}  // namespace ide
