// TLookupRows and TCustomLookupList: reading the rows that are seen, and choosing one of them.
#include "vcl/dbctrls/lookuplist.h"

#include <algorithm>
#include <cstdlib>

#include "vcl/graphics/canvas.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int TextMargin = 2;        // At 96 dots per inch, around a row's text.
constexpr DWORD SearchPause = 1000;  // Milliseconds after which a search begins anew.

}  // namespace

// TLookupRows.

void TLookupRows::SetKeyField(const std::string& name) {
  FKeyField = name;
  FChanged();
}

void TLookupRows::SetListField(const std::string& names) {
  FListField = names;
  FChanged();
}

void TLookupRows::SetListFieldIndex(int index) {
  if (index < 0) {
    throw EArgumentOutOfRangeException(
        Concat(std::to_string(index), " is no place among list fields"));
  }
  FListFieldIndex = index;
  FChanged();
}

void TLookupRows::RecordChanged(TField* field) {
  // While a record is edited its row changes with each field.
  if (!field || Editing()) FChanged();
}

int TLookupRows::Count() const {
  if (!Active() || DataSet()->IsUniDirectional()) return 0;
  return std::max(DataSet()->RecordCount(), 0);
}

std::vector<std::string> TLookupRows::ListFields() const {
  std::vector<std::string> names;
  const std::string& all = FListField.empty() ? FKeyField : FListField;
  for (std::size_t begin = 0; begin <= all.size();) {
    const std::size_t end = std::min(all.find(';', begin), all.size());
    names.emplace_back(Trim(std::string_view(all).substr(begin, end - begin)));
    begin = end + 1;
  }
  return names;
}

TField* TLookupRows::ListFieldAt(int place) const {
  const std::vector<std::string> names = ListFields();
  if (!Active() || place < 0 || place >= static_cast<int>(names.size())) return nullptr;
  return DataSet()->FindField(names[static_cast<std::size_t>(place)]);
}

std::string TLookupRows::Text(int row, int place) const {
  std::string text;
  const TField* const field = ListFieldAt(place);
  if (field) WithRecord(row, [&] { text = field->DisplayText(); });
  return text;
}

TFieldValue TLookupRows::Key(int row) const {
  TFieldValue value;
  const TField* const field = Active() ? DataSet()->FindField(FKeyField) : nullptr;
  if (field) WithRecord(row, [&] { value = field->Value(); });
  return value;
}

/// A value that the field cannot have is that of no row.
int TLookupRows::Find(const std::string& field, const TFieldValue& value,
                      TLocateOptions options) const {
  if (!Active() || DataSet()->IsUniDirectional() || !DataSet()->FindField(field)) return -1;
  try {
    return FindRecord(field, {value}, options);
  } catch (const EDatabaseError&) {
    return -1;
  }
}

int TLookupRows::RowOf(const TFieldValue& key) const {
  return IsNull(key) ? -1 : Find(FKeyField, key, {});
}

int TLookupRows::RowBeginning(const std::string& text) const {
  const TField* const field = ListFieldAt(FListFieldIndex);
  return field ? Find(field->FieldName(), text, {loCaseInsensitive, loPartialKey}) : -1;
}

// TCustomLookupList.

TCustomLookupList::TCustomLookupList(TComponent* owner)
    : TCustomGrid(owner), FRows([this] {
        if (!Destroying()) RowsChanged();
      }) {
  SetDoubleBuffered(true);
  SetFixedCols(0);
  SetFixedRows(0);
  SetColCount(1);
  SetRowCount(1);
  SetGridLineWidth(0);
  SetOptions({goRowSelect, goThumbTracking, goDrawFocusSelected});
  SetScrollBars(ssVertical);
  SetColor(clWindow);
  SetBounds(0, 0, 121, 97);
}

TCustomLookupList::~TCustomLookupList() {
  AnnounceEnd();
  FRows.SetDataSource(nullptr);
}

int TCustomLookupList::ColumnWidth(int place, int places) const {
  if (places == 1) return std::max(ClientWidth(), 1);
  const TField* const field = FRows.ListFieldAt(place);
  const TWindowDC screen(nullptr);
  const TSelection font(screen.Get(), Font()->Handle());
  SIZE digit{};
  ::GetTextExtentPoint32W(screen.Get(), L"0", 1, &digit);
  const int digits = field ? field->DisplayWidth() : 1;
  return std::clamp(digits * static_cast<int>(digit.cx) + 2 * ScaledPixels(TextMargin), 1, 32767);
}

void TCustomLookupList::FitRows() {
  if (FFitting || !HandleAllocated()) return;
  const TSetFor fitting(FFitting, true, this);
  const int height = std::max(std::abs(Font()->Height()), 1) + 2 * ScaledPixels(TextMargin) + 1;
  if (DefaultRowHeight() != height) SetDefaultRowHeight(height);
  const int places = static_cast<int>(FRows.ListFields().size());
  SetColCount(places);
  SetRowCount(std::max(FRows.Count(), 1));
  int room = ClientWidth();
  for (int i = 0; i < places; ++i) {
    const int own = ColumnWidth(i, places);
    SetColWidths(i, i + 1 < places ? own : std::max(own, room));
    room -= own;
  }
}

void TCustomLookupList::RowsChanged() {
  FitRows();
  Invalidate();
}

void TCustomLookupList::ShowChosen(int row) {
  FChosen = row < FRows.Count() ? row : -1;
  const TSetFor showing(FShowingChosen, true, this);
  if (FChosen >= 0 && FChosen < RowCount()) FocusCell(0, FChosen, false);
  Invalidate();
}

void TCustomLookupList::ChooseByUser(int row) {
  if (row < 0 || row >= FRows.Count()) return;
  const TWatch watch(this);
  ShowChosen(row);
  if (!watch.Gone()) RowChosen();
}

bool TCustomLookupList::SelectCell(int /*col*/, int row) {
  if (FShowingChosen || FFitting) return true;
  const TWatch watch(this);
  ChooseByUser(row);
  // What was refused has gone back to another row.
  return !watch.Gone() && FChosen == row;
}

bool TCustomLookupList::MoveBy(std::uint16_t key) {
  const int count = FRows.Count();
  const int page = std::max(PageRows(), 1);
  int row = FChosen;
  switch (key) {
    case VK_UP: row = std::max(row - 1, 0); break;
    case VK_DOWN: ++row; break;
    case VK_PRIOR: row = std::max(row - page, 0); break;
    case VK_NEXT: row = std::max(row, 0) + page; break;
    case VK_HOME: row = 0; break;
    case VK_END: row = count - 1; break;
    default: return false;
  }
  row = std::min(row, count - 1);
  if (row >= 0 && row != FChosen) ChooseByUser(row);
  return true;
}

bool TCustomLookupList::SearchBy(char32_t character) {
  const DWORD now = ::GetTickCount();
  if (now - FSearchedAt > SearchPause) FSearch.clear();
  FSearchedAt = now;
  const std::string text = FSearch + Utf8(character);
  const int row = FRows.RowBeginning(text);
  if (row < 0) return false;
  FSearch = text;
  if (row != FChosen) ChooseByUser(row);
  return true;
}

// Drawing.

void TCustomLookupList::DrawCell(int col, int row, const TRect& rect, TGridDrawState /*state*/) {
  const bool chosen = row == FChosen;
  const bool focus = Focused() || !CanFocus();
  TCanvas& canvas = *Canvas();
  canvas.Brush()->SetColor(!chosen ? Color() : focus ? clHighlight : clBtnFace);
  canvas.FillRect(rect);
  const TColor plain = Enabled() ? Font()->Color() : TColor(clGrayText);
  canvas.Font()->SetColor(chosen && focus ? TColor(clHighlightText) : plain);
  const int margin = ScaledPixels(TextMargin);
  canvas.TextRect(rect, rect.Left + margin, rect.Top + margin, FRows.Text(row, col));
}

std::string TCustomLookupList::CellText(int col, int row) { return FRows.Text(row, col); }

void TCustomLookupList::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomGrid::DescribeAccessible(info);
  info.Value = FRows.Text(FChosen);
}

// Input.

void TCustomLookupList::CreateWnd() {
  TCustomGrid::CreateWnd();
  RowsChanged();
}

void TCustomLookupList::Resize() {
  const TWatch watch(this);
  TCustomGrid::Resize();
  if (!watch.Gone()) FitRows();
}

void TCustomLookupList::Dispatch(TMessage& message) {
  const TWatch watch(this);
  TCustomGrid::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_FONTCHANGED) RowsChanged();
  if (message.Msg == WM_SETFOCUS || message.Msg == WM_KILLFOCUS) Invalidate();
}

void TCustomLookupList::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomGrid::KeyPress(key);
  if (!watch.Gone() && key >= ' ') SearchBy(key);
}

/// A click on the row that the grid has as its current one chooses it, too.
void TCustomLookupList::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TCustomGrid::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft) return;
  const int row = RowAt(x, y);
  if (row >= 0 && row == Row() && row != FChosen) ChooseByUser(row);
}

}  // namespace vcl
