// TDBGrid: its columns and settings, and how it follows the records.
#include "vcl/dbctrls/dbgrids.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int TextMargin = 3;       // At 96 dots per inch, around a cell's text.
constexpr int IndicatorWidth = 11;  // At 96 dots per inch.
constexpr int MostWidth = 32767;
/// What stands for the place in the data, whose size need not be known: its beginning, somewhere in
/// the middle, its end.
constexpr int ScrollBegin = 0, ScrollMiddle = 2, ScrollEnd = 4;
constexpr TDBGridOptions DefaultOptions{dgTitles,    dgColLines,      dgRowLines,
                                        dgRowSelect, dgConfirmDelete, dgCancelOnExit};

}  // namespace

const TClass& TDBGrid::Class() {
  using T = TDBGrid;
  static const TClass info = Describe<T, TCustomGrid>(
      "vcl::TDBGrid", "vcl/dbctrls/dbgrids.h",
      {
          Inherit("Align"),
          Inherit("Color"),
          Property<&T::Columns, &T::SetColumns>("Columns").StoredIf<&T::HasColumns>(),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Options, &T::SetOptions>("Options").Default(DefaultOptions),
          Inherit("ParentColor"),
          Inherit("ParentFont"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Event<&T::OnColumnMoved>("OnColumnMoved"),
          Inherit("OnDblClick"),
          Event<&T::OnDrawColumnCell>("OnDrawColumnCell"),
          Event<&T::OnEditButtonClick>("OnEditButtonClick"),
          Inherit(FocusEvents),
          Inherit("OnKeyDown"),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Event<&T::OnTitleClick>("OnTitleClick"),
      });
  return info;
}

TDBGrid::TDBGrid(TComponent* owner)
    : TCustomGrid(owner),
      FLink(*this),
      FColumns(std::make_unique<TDBGridColumns>(this)),
      FFieldColumns(std::make_unique<TDBGridColumns>(this)),
      FOptions(DefaultOptions) {
  SetDoubleBuffered(true);
  FColumns->OnUpdate = [this](TCollectionItem*) { ColumnsChanged(); };
  FFieldColumns->OnUpdate = [this](TCollectionItem*) { ColumnsChanged(); };
  UseOptions();
}

TDBGrid::~TDBGrid() {
  AnnounceEnd();
  FColumns->OnUpdate = nullptr;
  FFieldColumns->OnUpdate = nullptr;
  FLink.SetDataSource(nullptr);
}

void TDBGrid::SetDataSource(TDataSource* dataSource) {
  FLink.SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
  DataChanged();
}

void TDBGrid::SetOptions(TDBGridOptions options) {
  if (options == FOptions) return;
  FOptions = options;
  UseOptions();
  DataChanged();
}

void TDBGrid::SetReadOnly(bool readOnly) {
  if (readOnly == FReadOnly) return;
  FReadOnly = readOnly;
  UseOptions();
}

void TDBGrid::UseOptions() {
  static constexpr std::pair<TDBGridOption, TGridOptions> meant[] = {
      {dgEditing, {goEditing}},
      {dgColumnResize, {goColSizing, goColMoving}},
      {dgColLines, {goVertLine, goFixedVertLine}},
      {dgRowLines, {goHorzLine, goFixedHorzLine}},
      {dgTabs, {goTabs}},
      {dgRowSelect, {goRowSelect}}};
  TGridOptions options{goFixedRowClick, goDrawFocusSelected};
  for (const auto& [option, means] : meant) {
    if (FOptions.Has(option)) options += means;
  }
  if (FReadOnly) options.Exclude(goEditing);
  TCustomGrid::SetOptions(options);
}

// Columns.

TColumn* TDBGrid::Shown(int index) const {
  if (index >= 0 && index < ShownCount()) return FShown[static_cast<std::size_t>(index)];
  throw EListError(Concat("The grid shows no column ", std::to_string(index)));
}

TColumn* TDBGrid::ColumnAt(int col) const {
  const int index = col - FirstCol();
  return index >= 0 && index < ShownCount() ? FShown[static_cast<std::size_t>(index)] : nullptr;
}

TColumn* TDBGrid::SelectedColumn() const { return ColumnAt(Col()); }
int TDBGrid::SelectedIndex() const { return Col() - FirstCol(); }
void TDBGrid::SetSelectedIndex(int index) { Shown(index), SetCol(index + FirstCol()); }

TField* TDBGrid::SelectedField() const {
  const TColumn* column = SelectedColumn();
  return column ? column->Field() : nullptr;
}

void TDBGrid::ColumnsChanged() {
  if (!FFitting) DataChanged();
}

void TDBGrid::FindShown() {
  const TDBGridColumns& columns = FColumns->Count() > 0 ? *FColumns : *FFieldColumns;
  if (&columns == FFieldColumns.get()) MakeFieldColumns();
  FShown.clear();
  for (int i = 0; FLink.Active() && i < columns.Count(); ++i) {
    if (columns.Items(i)->Visible()) FShown.push_back(columns.Items(i));
  }
}

/// One for each visible field; those that are there already stay, with their widths.
void TDBGrid::MakeFieldColumns() {
  std::vector<std::string> names;
  for (const TField* field : FLink.Active() ? FLink.DataSet()->Fields() : TFields()) {
    if (field->Visible()) names.push_back(field->FieldName());
  }
  TDBGridColumns& columns = *FFieldColumns;
  for (int i = 0; i < static_cast<int>(names.size()); ++i) {
    const std::string& name = names[static_cast<std::size_t>(i)];
    int found = i;
    while (found < columns.Count() && columns.Items(found)->FieldName() != name) ++found;
    TColumn* column = found < columns.Count() ? columns.Items(found) : columns.Add();
    column->SetFieldName(name);
    column->SetIndex(i);
  }
  while (columns.Count() > static_cast<int>(names.size())) columns.Delete(columns.Count() - 1);
}

// Measures.

int TDBGrid::Pitch() const {
  const int height = std::abs(Font()->Height());
  return std::max(height, ScaledPixels(8)) + 2 * Margin() + 2;
}

int TDBGrid::Margin() const { return ScaledPixels(TextMargin); }

int TDBGrid::FieldWidth(const TField& field) const {
  const TWindowDC screen(nullptr);
  const TSelection font(screen.Get(), Font()->Handle());
  SIZE digit{};
  ::GetTextExtentPoint32W(screen.Get(), L"0", 1, &digit);
  return std::clamp(field.DisplayWidth() * static_cast<int>(digit.cx) + 2 * Margin() - 1, 1,
                    MostWidth);
}

/// The first row is the titles', which are hidden without dgTitles. Without records, or without
/// columns, there is no other.
void TDBGrid::FitGrid() {
  const bool shows = !FShown.empty();
  const int height = Pitch() - LineWidth(dgRowLines);
  SetColCount(std::max(FirstCol() + ShownCount(), 1));
  SetFixedCols(shows ? FirstCol() : 0);
  if (DefaultRowHeight() != height) SetDefaultRowHeight(height);
  SetRowCount(1 + (shows ? FLink.RecordCount() : 0));
  SetFixedRows(1);
  SetRowHeights(0, FOptions.Has(dgTitles) ? height : 0);
  FitColumns();
}

void TDBGrid::FitColumns() {
  if (FShown.empty()) return;
  if (FOptions.Has(dgIndicator)) SetColWidths(0, ScaledPixels(IndicatorWidth));
  for (int i = 0; i < ShownCount(); ++i) SetColWidths(FirstCol() + i, Shown(i)->Width());
}

// A column that the user sizes keeps the size.
void TDBGrid::ColWidthsChanged() {
  if (FFitting) return;
  const TSetFor fitting(FFitting, true, this);
  for (int i = 0; i < ShownCount(); ++i) {
    const int width = ColWidths(FirstCol() + i);
    if (width > 0 && width != Shown(i)->Width()) Shown(i)->SetWidth(width);
  }
}

/// The column, or the field that it was made for, takes the other one's place.
void TDBGrid::ColumnMoved(int from, int to) {
  TColumn* const column = ColumnAt(from);
  TColumn* const place = ColumnAt(to);
  if (!column || !place) return DataChanged();
  const TWatch watch(this);
  if (HasColumns()) {
    column->SetIndex(place->Index());
  } else if (column->Field() && place->Field()) {
    column->Field()->SetIndex(place->Field()->Index());
  }
  if (!watch.Gone()) DataChanged();
  if (!watch.Gone()) OnColumnMoved(this, ColumnAt(to));
}

void TDBGrid::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TCustomGrid::ChangeScale(m, d);
  if (watch.Gone()) return;
  {
    const TSetFor fitting(FFitting, true, this);
    for (int i = 0; i < FColumns->Count(); ++i) {
      TColumn& column = *FColumns->Items(i);
      if (column.FWidth) column.FWidth = std::max(ScaleMeasure(*column.FWidth, m, d), 1);
    }
  }
  DataChanged();
}

// The records.

void TDBGrid::CreateWnd() {
  TCustomGrid::CreateWnd();
  DataChanged();
}

void TDBGrid::Loaded() {
  TCustomGrid::Loaded();
  DataChanged();
}

void TDBGrid::Resize() {
  const TWatch watch(this);
  TCustomGrid::Resize();
  if (!watch.Gone()) DataChanged();
}

void TDBGrid::DataChanged() {
  if (FFitting || Destroying() || Loading() || !HandleAllocated()) return;
  const TWatch watch(this);
  {
    const TSetFor fitting(FFitting, true, this);
    FindShown();
    FitGrid();
    const int titles = FOptions.Has(dgTitles) ? Pitch() : 0;
    FLink.SetBufferCount((ClientHeight() - titles) / Pitch());
    FitGrid();
    if (HasCells()) PutCurrent(Col(), 1 + FLink.ActiveRecord());
  }
  LayoutChanged();
  if (!watch.Gone()) RefreshEditor();
  if (!watch.Gone()) TellRecord();
}

void TDBGrid::EditingChanged() {
  // What was typed and has not come into the record was dropped with it.
  const TWatch watch(this);
  if (!FLink.Editing()) CancelActions();
  if (!watch.Gone()) DataChanged();
}

void TDBGrid::ShowBar(bool vertical) {
  if (!vertical) return TCustomGrid::ShowBar(vertical);
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

void TDBGrid::TellRecord() {
  const TDataSet* data = FLink.Active() ? FLink.DataSet() : nullptr;
  const int record = data && FLink.RecordCount() > 0 ? data->RecNo() : 0;
  if (std::exchange(FToldRecord, record) != record && record != 0) TellCurrent();
}

// Moving through them.

void TDBGrid::MoveBy(int distance) {
  if (FLink.Active() && distance != 0) FLink.DataSet()->MoveBy(distance);
}

void TDBGrid::Scroll(bool vertical, int command) {
  if (!vertical) return TCustomGrid::Scroll(vertical, command);
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

void TDBGrid::Dispatch(TMessage& message) {
  if (message.Msg == WM_VSCROLL && LOWORD(message.WParam) == SB_THUMBPOSITION) {
    const int place = HIWORD(message.WParam);
    if (place != ScrollMiddle) Scroll(true, place < ScrollMiddle ? SB_TOP : SB_BOTTOM);
    return;
  }
  const TWatch watch(this);
  TCustomGrid::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_FONTCHANGED) DataChanged();
}

bool TDBGrid::ScrollByWheel(bool vertical, int wheelDelta) {
  if (!vertical) return TCustomGrid::ScrollByWheel(vertical, wheelDelta);
  MoveBy(-wheelDelta / WHEEL_DELTA);
  return true;
}

/// A click on a record, or a screen reader, goes there.
bool TDBGrid::SelectCell(int /*col*/, int row) {
  const TWatch watch(this);
  if (row != Row()) MoveBy(row - Row());
  return !watch.Gone() && HasCells() && Row() == row;
}

}  // namespace vcl
