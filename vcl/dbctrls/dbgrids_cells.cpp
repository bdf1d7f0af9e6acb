// TDBGrid: drawing and editing the fields of records, and the keys.
#include <algorithm>

#include "vcl/dbctrls/dbgrids.h"
#include "vcl/dbctrls/lookuplist.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

template <class Call>
void TDBGrid::WithRecord(int row, const Call& call) {
  if (row < 1 || row > FLink.RecordCount()) return;
  const int current = FLink.ActiveRecord();
  FLink.SetActiveRecord(row - 1);
  const TAtEnd back([this, current] { FLink.SetActiveRecord(current); }, this);
  call();
}

// Drawing.

TColor TDBGrid::LineColor(bool /*fixed*/) const { return clBtnShadow; }

void TDBGrid::Paint() {
  if (!FShown.empty()) return TCustomGrid::Paint();
  Canvas()->Brush()->SetColor(Color());
  Canvas()->FillRect(ClientRect());
}

void TDBGrid::DrawCell(int col, int row, const TRect& rect, TGridDrawState state) {
  TColumn* column = ColumnAt(col);
  if (!column) return DrawIndicator(row, rect);
  if (row > 0) return DrawField({col, row}, *column, rect, state);
  if (Enabled() && !state.Has(gdPressed)) Canvas()->Font()->SetColor(clBtnText);
  DrawFieldText(rect, column->Title(), taLeftJustify);
}

void TDBGrid::DrawFieldText(const TRect& rect, const std::string& text, TAlignment alignment) {
  const int width = alignment == taLeftJustify ? 0 : Canvas()->TextWidth(text);
  const int room = rect.Width() + 1 - 2 * Margin() - width;
  const int indent = alignment == taLeftJustify ? 0 : alignment == taCenter ? room / 2 : room;
  Canvas()->TextRect(rect, rect.Left + Margin() + std::max(indent, 0), rect.Top + Margin(), text);
}

void TDBGrid::DrawField(TGridCoord cell, TColumn& column, const TRect& rect, TGridDrawState state) {
  WithRecord(cell.Y, [&] {
    const TField* field = column.Field();
    if (field && column.EditStyle() == esCheckBox) {
      DrawCheckBox(rect, SameText(field->DisplayText(), column.ValueChecked()));
    } else {
      DrawFieldText(rect, field ? field->DisplayText() : std::string(), column.Alignment());
    }
    OnDrawColumnCell(this, rect, cell.X - FirstCol(), &column, state);
  });
}

/// A triangle at the current record; a bar while it is edited.
void TDBGrid::DrawIndicator(int row, const TRect& rect) {
  if (row == 0 || row != Row()) return;
  const int half = ScaledPixels(4);
  const int middle = (rect.Top + rect.Bottom) / 2;
  const int left = rect.Left + ScaledPixels(3);
  Canvas()->Pen()->SetColor(clBtnText);
  Canvas()->Brush()->SetColor(clBtnText);
  if (FLink.Editing()) {
    return Canvas()->FillRect({left, middle - half, left + ScaledPixels(2), middle + half});
  }
  const TPoint corners[] = {{left, middle - half}, {left + half, middle}, {left, middle + half}};
  Canvas()->Polygon(corners);
}

// Screen readers.

std::string TDBGrid::CellText(int col, int row) {
  const TColumn* column = ColumnAt(col);
  std::string text = column && row == 0 ? column->Title() : std::string();
  WithRecord(row, [&] {
    const TField* field = column ? column->Field() : nullptr;
    if (field) text = field->DisplayText();
  });
  return text;
}

std::vector<TAccessiblePart> TDBGrid::AccessibleParts() {
  return FShown.empty() ? std::vector<TAccessiblePart>() : TCustomGrid::AccessibleParts();
}

// Editing the current record.

bool TDBGrid::EditsRecords() const {
  const bool may = FOptions.Has(dgEditing) && !FOptions.Has(dgRowSelect) && !FReadOnly;
  return may && FLink.Active() && FLink.DataSet()->CanModify();
}

bool TDBGrid::CanModify(int col, int /*row*/) {
  const TColumn* column = ColumnAt(col);
  const TDataSource* source = DataSource();
  return EditsRecords() && column && column->CanModify() && source &&
         (source->AutoEdit() || FLink.Editing());
}

bool TDBGrid::CanType(char32_t /*key*/) { return FLink.Edit(); }

std::string TDBGrid::GetEditText(int col, int row) {
  const TColumn* column = ColumnAt(col);
  std::string text;
  WithRecord(row, [&] {
    const TField* field = column ? column->Field() : nullptr;
    if (field) text = field->Text();
  });
  return text;
}

std::string TDBGrid::GetEditMask(int col, int /*row*/) {
  const TColumn* column = ColumnAt(col);
  const TField* field = column ? column->Field() : nullptr;
  return field ? field->EditMask() : std::string();
}

void TDBGrid::SetEditText(int col, int row, const std::string& text) {
  const TColumn* column = ColumnAt(col);
  TField* field = column ? column->Field() : nullptr;
  const TWatch watch(this);
  if (!field || row != Row() || !FLink.Edit() || watch.Gone()) return;
  field->FieldKind() == fkLookup ? WriteLookup(*field, text) : field->SetText(text);
}

/// A text that is looked up stands for the key of the record that has it.
void TDBGrid::WriteLookup(const TField& field, const std::string& text) {
  TField& written = *field.DataSet()->FieldByName(field.KeyFields());
  if (text.empty()) return written.Clear();
  if (text == field.DisplayText()) return;
  TDataSet* const data = field.LookupDataSet();
  const TRecord found = data && data->Active() ? data->Lookup(field.LookupResultField(), {text},
                                                              field.LookupKeyFields())
                                               : TRecord();
  if (found.empty()) {
    throw EDatabaseError(Concat("There is no '", text, "' for field '", field.FieldName(), "'"));
  }
  written.SetValue(found[0]);
}

TEditStyle TDBGrid::GetEditStyle(int col, int /*row*/) {
  const TColumn* column = ColumnAt(col);
  if (!column) return esSimple;
  const TField* field = column->Field();
  const bool lookedUp = field && field->FieldKind() == fkLookup;
  return lookedUp && column->ButtonStyle() == cbsAuto ? esPickList : column->EditStyle();
}

void TDBGrid::GetPickList(int col, int /*row*/, TStrings& items) {
  const TColumn* column = ColumnAt(col);
  if (!column) return;
  items.Assign(column->PickList());
  const TField* field = column->Field();
  if (items.Count() > 0 || !field || field->FieldKind() != fkLookup) return;
  TDataSource source(nullptr);
  source.SetDataSet(field->LookupDataSet());
  TLookupRows rows([] {});
  rows.SetListField(field->LookupResultField());
  rows.SetDataSource(&source);
  for (int i = 0; i < rows.Count(); ++i) items.Add(rows.Text(i));
}

bool TDBGrid::Checked(int col, int row) {
  const TColumn* column = ColumnAt(col);
  return column && SameText(CellText(col, row), column->ValueChecked());
}

void TDBGrid::ToggleChecked(int col, int row) {
  const TColumn* column = ColumnAt(col);
  SetEditText(col, row, Checked(col, row) ? column->ValueUnchecked() : column->ValueChecked());
}

void TDBGrid::FixedCellClick(int col, int row) {
  TColumn* column = ColumnAt(col);
  if (column && row == 0) OnTitleClick(this, column);
}

void TDBGrid::DoExit() {
  const TWatch watch(this);
  TCustomGrid::DoExit();
  if (watch.Gone() || !FOptions.Has(dgCancelOnExit) || !EditsRecords()) return;
  TDataSet& data = *FLink.DataSet();
  if (data.State() == dsInsert && !data.Modified()) data.Cancel();
}

// Keys.

bool TDBGrid::WantsKey(WPARAM key) const {
  if (key == VK_ESCAPE && EditsRecords() && FLink.Editing()) return true;
  return TCustomGrid::WantsKey(key);
}

bool TDBGrid::DoKey(std::uint16_t key, TShiftState shift) {
  if (!FLink.Active()) return false;
  return ChangeKey(key, shift) || RecordKey(key, shift) || TCustomGrid::DoKey(key, shift);
}

/// Keys that go to another record.
bool TDBGrid::RecordKey(std::uint16_t key, TShiftState shift) {
  struct TKeyCommand {
    int Key, Command;
  };
  static constexpr TKeyCommand keys[] = {{VK_UP, SB_LINEUP},    {VK_DOWN, SB_LINEDOWN},
                                         {VK_PRIOR, SB_PAGEUP}, {VK_NEXT, SB_PAGEDOWN},
                                         {VK_HOME, SB_TOP},     {VK_END, SB_BOTTOM}};
  const auto* found = std::ranges::find(keys, key, &TKeyCommand::Key);
  const bool ends = key == VK_HOME || key == VK_END;
  const bool inRow = ends && !FOptions.Has(dgRowSelect) && !shift.Has(ssCtrl);
  if (found == std::end(keys) || inRow || shift.Has(ssAlt)) return false;
  const TWatch watch(this);
  EndEdit();
  if (!watch.Gone()) Scroll(true, found->Command);
  return true;
}

/// Keys that begin, cancel and delete records.
bool TDBGrid::ChangeKey(std::uint16_t key, TShiftState shift) {
  if (!EditsRecords()) return false;
  TDataSet& data = *FLink.DataSet();
  const bool last = data.RecNo() == data.RecordCount() || data.IsEmpty();
  const bool below = key == VK_DOWN && shift.Empty() && last && data.State() != dsInsert;
  if (key == VK_DELETE && shift.Has(ssCtrl)) return DeleteRecord(), true;
  if (!shift.Empty()) return false;
  if (key == VK_ESCAPE && FLink.Editing()) return data.Cancel(), true;
  if (key != VK_INSERT && !below) return false;
  const TWatch watch(this);
  EndEdit();
  if (!watch.Gone()) below ? data.Append() : data.Insert();
  return true;
}

void TDBGrid::DeleteRecord() {
  TDataSet& data = *FLink.DataSet();
  if (data.IsEmpty()) return;
  const TWatch watch(this);
  const bool ask = FOptions.Has(dgConfirmDelete);
  if (ask && MessageDlg("Delete record?", mtConfirmation, {mbOK, mbCancel}) != mrOk) return;
  if (!watch.Gone()) data.Delete();
}

}  // namespace vcl
