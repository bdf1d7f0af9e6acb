// TQELHeaderList: its properties, its columns and its rows.
#include "qel/controls/Qeltheaderlist.h"

#include <algorithm>
#include <limits>

#include "qel/controls/private/headerlistparts.h"
#include "qel/controls/private/rowset.h"
#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/grids/gridlook.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr int MostRows = std::numeric_limits<int>::max() - 2;  // With the header's, for the grid.
constexpr int MostWidth = 32767;                               // Of a grid's column.
constexpr vcl::TGridOptions ListOptions{vcl::goRangeSelect, vcl::goThumbTracking};

}  // namespace

const vcl::TClass& TQELHeaderList::Class() {
  using T = TQELHeaderList;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomGrid>(
      "qel::TQELHeaderList", "qel/controls/Qeltheaderlist.h",
      {
          vcl::ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Property<&T::AlternateColor, &T::SetAlternateColor>("AlternateColor").Default(clNone),
          Inherit("Anchors"),
          Property<&T::AutoSort, &T::SetAutoSort>("AutoSort").Default(true),
          Inherit("BorderStyle"),
          Property<&T::CheckBoxes, &T::SetCheckBoxes>("CheckBoxes").Default(false),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::GridLines, &T::SetGridLines>("GridLines").Default(false),
          Property<&T::HeaderBackground, &T::SetHeaderBackground>("HeaderBackground")
              .Type("TQELBackground"),
          Property<&T::Images, &T::SetImages>("Images"),
          Property<&T::MultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(true),
          Inherit("ScrollBars"),
          Property<&T::Sections, &T::SetSections>("Sections"),
          Property<&T::Separator, &T::SetSeparator>("Separator").Default(U'\t'),
          Property<&T::Items, &T::SetItems>("Items"),
          Property<&T::RowCount, &T::SetRowCount>("RowCount").Default(0),
          // Behind the rows.
          Property<&T::ItemIndex, &T::SetItemIndex>("ItemIndex").Default(-1),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Event<&T::OnClickCheck>("OnClickCheck"),
          Event<&T::OnCompare>("OnCompare")
              .Type("TQELCompareRowsEvent",
                    "vcl::TObject* sender, int first, int second, int column, int& order"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Event<&T::OnDrawCell>("OnDrawCell"),
          Inherit(FocusEvents),
          Event<&T::OnGetImage>("OnGetImage")
              .Type("TQELRowImageEvent", "vcl::TObject* sender, int row, int& image"),
          Event<&T::OnGetText>("OnGetText"),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Event<&T::OnSectionClick>("OnSectionClick")
              .Type("TQELSectionEvent", "vcl::TObject* sender, qel::TQELHeaderSection* section"),
          Event<&T::OnSectionResize>("OnSectionResize")
              .Type("TQELSectionEvent", "vcl::TObject* sender, qel::TQELHeaderSection* section"),
          Event<&T::OnSelect>("OnSelect"),
          Event<&T::OnSetText>("OnSetText"),
          Event<&T::OnSort>("OnSort").Type("TQELSortEvent",
                                           "vcl::TObject* sender, int column, bool descending"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELHeaderList::TQELHeaderList(vcl::TComponent* owner)
    : TCustomGrid(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FLines(std::make_unique<TLines>(*this)),
      FSelected(std::make_unique<TRowSet>()),
      FChecked(std::make_unique<TRowSet>()),
      FHeader(new TListHeader(this)) {
  SetBounds(0, 0, 250, 150);
  SetOptions(ListOptions);
  SetDefaultDrawing(false);
  SetFixedCols(0);
  SetColCount(1);
  SetFixedRows(1);
  TCustomGrid::SetRowCount(1);
  FHeader->SetParent(this);
  FImages.Link.OnChange = [this](vcl::TObject*) { Invalidate(); };
  FitRows();
  HearOnlyAsked<TQELHeaderList>();
}

TQELHeaderList::~TQELHeaderList() {
  AnnounceEnd();
  FImages.Take(nullptr, *this);
}

void TQELHeaderList::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TCustomGrid::Notification(component, operation);
  if (operation == vcl::opRemove && component == FImages.List) SetImages(nullptr);
}

// Properties.

vcl::TStrings* TQELHeaderList::Items() const { return FLines.get(); }

void TQELHeaderList::SetSeparator(char32_t separator) {
  if (separator == 0 || separator == FSeparator) return;
  FSeparator = separator;
  Invalidate();
}

void TQELHeaderList::SetImages(vcl::TImageList* images) {
  if (FImages.Take(images, *this)) FitRows();
}

void TQELHeaderList::SetCheckBoxes(bool checkBoxes) {
  if (checkBoxes == FCheckBoxes) return;
  FCheckBoxes = checkBoxes;
  FitRows();
}

void TQELHeaderList::SetMultiSelect(bool multiSelect) {
  if (multiSelect == FMultiSelect) return;
  FMultiSelect = multiSelect;
  if (!multiSelect) FItemIndex >= 0 ? SelectOnly(FItemIndex) : ClearSelection();
}

void TQELHeaderList::SetAlternateColor(vcl::TColor color) {
  if (color == FAlternateColor) return;
  FAlternateColor = color;
  Invalidate();
}

void TQELHeaderList::SetGridLines(bool lines) {
  if (lines == FGridLines) return;
  FGridLines = lines;
  vcl::TGridOptions options = Options();
  for (const vcl::TGridOption each : {vcl::goVertLine, vcl::goHorzLine}) {
    lines ? options.Include(each) : options.Exclude(each);
  }
  SetOptions(options);
  ColumnsChanged();
}

void TQELHeaderList::SetReadOnly(bool readOnly) {
  if (readOnly == FReadOnly) return;
  FReadOnly = readOnly;
  vcl::TGridOptions options = Options();
  readOnly ? options.Exclude(vcl::goEditing) : options.Include(vcl::goEditing);
  SetOptions(options);
  Invalidate();
}

// Columns.

int TQELHeaderList::ColumnOf(int col) const {
  const TQELHeaderSections* sections = Sections();
  return sections->Has(col) ? sections->Items(col)->Column() : col;
}

/// The grid's columns become what the sections say. Without sections there is one as wide as the
/// list.
void TQELHeaderList::ColumnsChanged() {
  if (FPlacing) return;
  const vcl::TSetFor placing(FPlacing, true, this);
  const TWatch watch(this);
  const TQELHeaderSections* sections = Sections();
  SetColCount(std::max(sections->Count(), 1));
  if (sections->Count() == 0) SetColWidths(0, std::clamp(ClientWidth(), 0, MostWidth));
  for (int i = 0; !watch.Gone() && i < sections->Count(); ++i) {
    const int width = sections->Items(i)->Width() - (FGridLines ? GridLineWidth() : 0);
    SetColWidths(i, std::clamp(width, 0, MostWidth));
  }
  if (watch.Gone()) return;
  Invalidate();
}

void TQELHeaderList::PlaceHeader() {
  const int left = -Sections()->Left(std::min(LeftCol(), Sections()->Count()));
  const int width = std::max(ClientWidth() - left, Sections()->TotalWidth());
  const TWatch watch(this);
  FHeader->SetBounds(left, 0, width, FHeader->FittingHeight());
  if (!watch.Gone()) static_cast<TListHeader*>(FHeader)->Fit();
}

/// Rows as high as what they show, and the header's place.
void TQELHeaderList::FitRows() {
  const int text = vcl::FontHeight(*Font()) + 2 * ScaledPixels(vcl::CellMargin);
  const int image = FImages.List ? FImages.List->Height() + ScaledPixels(2) : 0;
  const int box = FCheckBoxes ? ScaledPixels(CheckSize + 2) : 0;
  const TWatch watch(this);
  SetDefaultRowHeight(std::max({text, image, box}));
  if (!watch.Gone()) SetRowHeights(0, FHeader->FittingHeight());
  if (!watch.Gone()) PlaceHeader();
  if (!watch.Gone()) Invalidate();
}

void TQELHeaderList::Resize() {
  const TWatch watch(this);
  TCustomGrid::Resize();
  if (!watch.Gone()) PlaceHeader();
}

void TQELHeaderList::Loaded() {
  const TWatch watch(this);
  TCustomGrid::Loaded();
  if (!watch.Gone()) PlaceHeader();
}

void TQELHeaderList::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TCustomGrid::ChangeScale(m, d);
  if (watch.Gone()) return;
  ColumnsChanged();
  FitRows();
}

/// What the first column has before its text.
int TQELHeaderList::LeadWidth() const {
  const int gap = ScaledPixels(3);
  return (FCheckBoxes ? ScaledPixels(CheckSize) + gap : 0) +
         (FImages.List ? FImages.List->Width() + gap : 0);
}

/// Of the rows that are seen.
int TQELHeaderList::ContentWidth(int section) {
  int width = 0;
  const TWatch watch(this);
  const int first = TopRow() - 1;
  const int last = std::min(first + VisibleRowCount(), Count() - 1);
  for (int row = first; row <= last; ++row) {
    const std::string text = TextOf(row, ColumnOf(section));
    if (watch.Gone()) return 0;
    width = std::max(width, vcl::TextWidth(*Font(), text));
  }
  const int margins = 2 * ScaledPixels(vcl::CellMargin + TextInset) + GridLineWidth();
  return width + margins + (section == 0 ? LeadWidth() : 0);
}

void TQELHeaderList::FitColumns() {
  const TWatch watch(this);
  for (int i = 0; !watch.Gone() && i < Sections()->Count(); ++i) {
    if (!Sections()->Items(i)->AutoSize()) FHeader->FitSection(i);
  }
}

// Rows.

int TQELHeaderList::Count() const { return Virtual() ? FRowCount : FLines->Count(); }

void TQELHeaderList::SetRowCount(int count) {
  if (count < 0 || count > MostRows || count == FRowCount) return;
  // Other rows than before, when there were none of this sort.
  if (count == 0 || FRowCount == 0) RowsCleared();
  FRowCount = count;
  if (Virtual()) {
    FSelected->Trim(count);
    FChecked->Trim(count);
    if (FItemIndex >= count) FItemIndex = -1;
  }
  RowsChanged();
}

void TQELHeaderList::RowsChanged() {
  const TWatch watch(this);
  TCustomGrid::SetRowCount(Count() + 1);
  if (!watch.Gone()) Invalidate();
}

void TQELHeaderList::RowInserted(int row) {
  if (Virtual()) return;
  FSelected->InsertRow(row);
  FChecked->InsertRow(row);
  if (FItemIndex >= row) ++FItemIndex;
  if (FSelectFrom >= row) ++FSelectFrom;
  if (FItemIndex >= 0 && FItemIndex < TCustomGrid::RowCount() - 1)
    PutCurrent(Col(), FItemIndex + 1);
}

void TQELHeaderList::RowDeleted(int row) {
  if (Virtual()) return;
  FSelected->DeleteRow(row);
  FChecked->DeleteRow(row);
  FItemIndex = FItemIndex == row ? -1 : FItemIndex - (FItemIndex > row ? 1 : 0);
  if (FSelectFrom > row) --FSelectFrom;
  if (FItemIndex >= 0) PutCurrent(Col(), FItemIndex + 1);
}

void TQELHeaderList::RowsCleared() {
  FSelected->Clear();
  FChecked->Clear();
  FItemIndex = -1;
  FSelectFrom = 0;
}

std::string TQELHeaderList::TextOf(int row, int column) {
  if (row < 0 || row >= Count() || column < 0) return {};
  std::string text;
  if (Virtual()) {
    OnGetText(this, column, row, text);
    return text;
  }
  text = FLines->Strings(row);
  const std::string separator = vcl::Utf8(FSeparator);
  std::size_t from = 0;
  for (int i = 0; i < column; ++i) {
    const std::size_t found = text.find(separator, from);
    if (found == std::string::npos) return {};
    from = found + separator.size();
  }
  const std::size_t to = text.find(separator, from);
  return text.substr(from, to == std::string::npos ? to : to - from);
}

std::string TQELHeaderList::CellText(int col, int row) {
  if (row > 0) return TextOf(row - 1, ColumnOf(col));
  return Sections()->Has(col) ? vcl::WithoutAccel(Sections()->Items(col)->Text()) : std::string();
}

}  // namespace qel
