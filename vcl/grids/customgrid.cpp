// TCustomGrid: its settings, its columns and rows, their sizes.
#include "vcl/grids/customgrid.h"

#include <algorithm>

#include "vcl/controls/private/narrowed.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/reader.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/rtl/writer.h"
#include "vcl/stdctrls/inplaceedit.h"
#include "vcl/stdctrls/popuplist.h"

namespace vcl {
namespace {

constexpr int DefaultWidth = 64;
constexpr int DefaultHeight = 24;
constexpr int MostSize = 32767;  // More than any screen has, and few enough to be added up.
constexpr int MostLine = 100;
constexpr TGridOptions DefaultOptions{goFixedVertLine, goFixedHorzLine, goVertLine, goHorzLine,
                                      goRangeSelect};

void CheckRange(const char* what, int value, int least, int most) {
  if (value >= least && value <= most) return;
  throw EArgumentOutOfRangeException(Concat(what, " of a grid cannot be ", std::to_string(value)));
}

}  // namespace

const TClass& TCustomGrid::Class() {
  using T = TCustomGrid;
  static const TClass info = Describe<T, TCustomControl>(
      "vcl::TCustomGrid", "vcl/grids/grids.h",
      {
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle)
              .Unpublished(),
          Property<&T::ColCount, &T::SetColCount>("ColCount").Default(5).Unpublished(),
          Property<&T::DefaultColWidth, &T::SetDefaultColWidth>("DefaultColWidth")
              .Default(DefaultWidth)
              .Unpublished(),
          Property<&T::DefaultDrawing, &T::SetDefaultDrawing>("DefaultDrawing")
              .Default(true)
              .Unpublished(),
          Property<&T::DefaultRowHeight, &T::SetDefaultRowHeight>("DefaultRowHeight")
              .Default(DefaultHeight)
              .Unpublished(),
          Property<&T::FixedColor, &T::SetFixedColor>("FixedColor")
              .Default(clBtnFace)
              .Unpublished(),
          Property<&T::RowCount, &T::SetRowCount>("RowCount").Default(5).Unpublished(),
          Property<&T::FixedCols, &T::SetFixedCols>("FixedCols").Default(1).Unpublished(),
          Property<&T::FixedRows, &T::SetFixedRows>("FixedRows").Default(1).Unpublished(),
          Property<&T::GridLineWidth, &T::SetGridLineWidth>("GridLineWidth")
              .Default(1)
              .Unpublished(),
          Property<&T::Options, &T::SetOptions>("Options").Default(DefaultOptions).Unpublished(),
          Property<&T::ScrollBars, &T::SetScrollBars>("ScrollBars").Default(ssBoth).Unpublished(),
          Inherit("Color").Default(clWindow).Unpublished(),
          Inherit("ParentColor").Default(false).Unpublished(),
          Inherit("TabStop").Default(true),
      });
  return info;
}

TCustomGrid::TCustomGrid(TComponent* owner)
    : TCustomControl(owner),
      FCols(std::make_unique<TGridAxis>(5, 1, DefaultWidth)),
      FRows(std::make_unique<TGridAxis>(5, 1, DefaultHeight)),
      FOptions(DefaultOptions),
      FFixedColor(clBtnFace) {
  SetControlStyle({csCaptureMouse, csClickEvents, csDoubleClicks, csOpaque, csReplicatable});
  SetBounds(0, 0, 320, 120);
  SetParentColor(false);
  SetColor(clWindow);
  SetTabStop(true);
}

TCustomGrid::~TCustomGrid() { AnnounceEnd(); }

bool TCustomGrid::HasFocus() const { return Focused() || (FEdit && FEdit->Focused()); }

// How many.

int TCustomGrid::ColCount() const { return FCols->Count(); }
int TCustomGrid::RowCount() const { return FRows->Count(); }
int TCustomGrid::FixedCols() const { return FCols->Fixed(); }
int TCustomGrid::FixedRows() const { return FRows->Fixed(); }
void TCustomGrid::SetColCount(int count) { SetCount(true, count); }
void TCustomGrid::SetRowCount(int count) { SetCount(false, count); }
void TCustomGrid::SetFixedCols(int count) { SetFixed(true, count); }
void TCustomGrid::SetFixedRows(int count) { SetFixed(false, count); }

bool TCustomGrid::HasCells() const {
  return FCols->Count() > FCols->Fixed() && FRows->Count() > FRows->Fixed();
}

void TCustomGrid::CheckIndex(bool columns, int index) const {
  if (Axis(columns).Has(index)) return;
  throw EArgumentOutOfRangeException(
      Concat("The grid has no ", columns ? "column " : "row ", std::to_string(index)));
}

void TCustomGrid::SetCount(bool columns, int count) {
  CheckRange(columns ? "The number of columns" : "The number of rows", count, 1,
             std::numeric_limits<int>::max() - 1);
  TGridAxis& axis = Axis(columns);
  if (count == axis.Count()) return;
  const TWatch watch(this);
  CancelActions();
  if (watch.Gone()) return;
  axis.SetCount(count);
  UpdateLines();
  if (HandleAllocated()) axis.SetFirst(std::min(axis.First(), axis.LastFirst(Room(columns))));
  LayoutChanged();
  if (!watch.Gone()) CountsChanged();
  if (!watch.Gone()) UpdateEditor();
}

void TCustomGrid::SetFixed(bool columns, int fixed) {
  TGridAxis& axis = Axis(columns);
  CheckRange(columns ? "The number of fixed columns" : "The number of fixed rows", fixed, 0,
             axis.Count());
  if (fixed == axis.Fixed()) return;
  const TWatch watch(this);
  CancelActions();
  if (watch.Gone()) return;
  axis.SetFixed(fixed);
  LayoutChanged();
  if (!watch.Gone()) UpdateEditor();
}

void TCustomGrid::MoveColumn(int from, int to) { MoveOne(true, from, to); }
void TCustomGrid::MoveRow(int from, int to) { MoveOne(false, from, to); }

void TCustomGrid::MoveOne(bool columns, int from, int to) {
  CheckIndex(columns, from);
  CheckIndex(columns, to);
  if (from == to) return;
  const TWatch watch(this);
  EndEdit();
  if (watch.Gone()) return;
  Axis(columns).Move(from, to);
  // The current cell and the selection go with what is in them.
  for (TGridCoord* each : {&FCurrent, &FAnchor}) {
    int& index = columns ? each->X : each->Y;
    index = TGridAxis::Moved(index, from, to);
  }
  LayoutChanged();
  if (watch.Gone()) return;
  columns ? ColumnMoved(from, to) : RowMoved(from, to);
  if (!watch.Gone()) UpdateEditor();
}

void TCustomGrid::ReorderRows(const std::vector<int>& order) {
  const std::map<int, int>& former = FRows->OwnSizes();
  std::map<int, int> sizes;
  for (int row = 0; !former.empty() && row < static_cast<int>(order.size()); ++row) {
    const auto own = former.find(order[static_cast<std::size_t>(row)]);
    if (own != former.end()) sizes[row] = own->second;
  }
  FRows->ReplaceOwnSizes(std::move(sizes));
  LayoutChanged();
}

// Sizes.

int TCustomGrid::DefaultColWidth() const { return FCols->DefaultSize(); }
int TCustomGrid::DefaultRowHeight() const { return FRows->DefaultSize(); }
void TCustomGrid::SetDefaultColWidth(int width) { SetDefaultSize(true, width); }
void TCustomGrid::SetDefaultRowHeight(int height) { SetDefaultSize(false, height); }

void TCustomGrid::SetDefaultSize(bool columns, int size) {
  CheckRange(columns ? "The default width" : "The default height", size, 1, MostSize);
  TGridAxis& axis = Axis(columns);
  if (size == axis.DefaultSize() && axis.OwnSizes().empty()) return;
  axis.SetDefaultSize(size);
  SizesChanged(columns);
}

int TCustomGrid::ColWidths(int col) const { return CheckIndex(true, col), FCols->Size(col); }
int TCustomGrid::RowHeights(int row) const { return CheckIndex(false, row), FRows->Size(row); }
void TCustomGrid::SetColWidths(int col, int width) { SetSize(true, col, width); }
void TCustomGrid::SetRowHeights(int row, int height) { SetSize(false, row, height); }

void TCustomGrid::SetSize(bool columns, int index, int size) {
  CheckIndex(columns, index);
  CheckRange(columns ? "The width of a column" : "The height of a row", size, 0, MostSize);
  TGridAxis& axis = Axis(columns);
  if (size == axis.Size(index)) return;
  axis.SetSize(index, size);
  SizesChanged(columns);
}

void TCustomGrid::SizesChanged(bool columns) {
  const TWatch watch(this);
  LayoutChanged();
  if (watch.Gone()) return;
  columns ? ColWidthsChanged() : RowHeightsChanged();
}

void TCustomGrid::SetGridLineWidth(int width) {
  CheckRange("The width of the lines", width, 0, MostLine);
  if (width == FGridLineWidth) return;
  FGridLineWidth = width;
  LayoutChanged();
}

void TCustomGrid::UpdateLines() {
  const auto line = [this](TGridOption option) {
    return FOptions.Has(option) ? FGridLineWidth : 0;
  };
  FCols->SetLines(line(goFixedVertLine), line(goVertLine));
  FRows->SetLines(line(goFixedHorzLine), line(goHorzLine));
}

void TCustomGrid::LayoutChanged() {
  UpdateLines();
  KeepCurrentInside();
  if (!HandleAllocated()) return;
  const TWatch watch(this);
  ShowScrollPosition();
  if (watch.Gone()) return;
  Invalidate();
  PlaceEditor();
}

void TCustomGrid::ScaleSizes(bool columns, int m, int d) {
  TGridAxis& axis = Axis(columns);
  const auto scaled = [&](int size, int least) {
    return std::clamp(ScaleMeasure(size, m, d), least, MostSize);
  };
  axis.ReplaceDefaultSize(scaled(axis.DefaultSize(), 1));
  std::map<int, int> own;
  for (const auto& [index, size] : axis.OwnSizes()) own[index] = scaled(size, size > 0 ? 1 : 0);
  axis.ReplaceOwnSizes(std::move(own));
}

void TCustomGrid::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TCustomControl::ChangeScale(m, d);
  if (watch.Gone()) return;
  ScaleSizes(true, m, d);
  ScaleSizes(false, m, d);
  LayoutChanged();
}

// Form files hold the sizes up to the last one that is not the default.

void TCustomGrid::DefineProperties(TFiler& filer) {
  TCustomControl::DefineProperties(filer);
  DefineSizes(filer, true);
  DefineSizes(filer, false);
}

void TCustomGrid::DefineSizes(TFiler& filer, bool columns) {
  const auto write = [this, columns](TWriter& writer) {
    const TGridAxis& axis = Axis(columns);
    writer.WriteListBegin();
    for (int i = 0; i <= axis.OwnSizes().rbegin()->first; ++i) writer.WriteInteger(axis.Size(i));
    writer.WriteListEnd();
  };
  filer.DefineProperty(
      columns ? "ColWidths" : "RowHeights",
      [this, columns](TReader& reader) { ReadSizes(reader, columns); }, write,
      KeepsSizes() && !Axis(columns).OwnSizes().empty());
}

void TCustomGrid::ReadSizes(TReader& reader, bool columns) {
  reader.ReadListBegin();
  for (int i = 0; !reader.EndOfList(); ++i) {
    const std::int64_t size = reader.ReadInteger();
    SetSize(columns, i, static_cast<int>(std::clamp<std::int64_t>(size, -1, MostSize + 1)));
  }
  reader.ReadListEnd();
}

// Look.

void TCustomGrid::SetOptions(TGridOptions options) {
  if (options == FOptions) return;
  const TWatch watch(this);
  EndEdit();
  if (watch.Gone()) return;
  FOptions = options;
  LayoutChanged();
  if (!watch.Gone()) UpdateEditor();
}

void TCustomGrid::SetDefaultDrawing(bool drawing) {
  FDefaultDrawing = drawing;
  Invalidate();
}

void TCustomGrid::SetFixedColor(TColor color) {
  if (color == FFixedColor) return;
  FFixedColor = color;
  Invalidate();
}

void TCustomGrid::SetScrollBars(TScrollStyle scrollBars) {
  if (scrollBars == FScrollBars) return;
  FScrollBars = scrollBars;
  RecreateWnd();
}

void TCustomGrid::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TCustomGrid::CreateParams(TCreateParams& params) {
  TCustomControl::CreateParams(params);
  params.Style |= WS_TABSTOP | WS_CLIPCHILDREN;
  if (HasBar(false)) params.Style |= WS_HSCROLL;
  if (HasBar(true)) params.Style |= WS_VSCROLL;
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
}

void TCustomGrid::CreateWnd() {
  TCustomControl::CreateWnd();
  LayoutChanged();
}

void TCustomGrid::Resize() {
  const TWatch watch(this);
  TCustomControl::Resize();
  if (!watch.Gone() && HandleAllocated()) LayoutChanged();
}

}  // namespace vcl
