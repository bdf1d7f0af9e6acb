// TColumn: what it says itself, and what its field says.
#include "vcl/dbctrls/dbgridcolumns.h"

#include "vcl/db/field.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr int MostWidth = 32767;
constexpr int WidthWithoutField = 64;

bool IsNumber(TFieldType type) {
  return (type >= ftSmallint && type <= ftLargeint) || (type >= ftFloat && type <= ftBCD);
}

}  // namespace

const TClass& TColumn::Class() {
  using T = TColumn;
  static const TClass info = Describe<T, TGridColumn>(
      "vcl::TColumn", "vcl/dbctrls/dbgrids.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").StoredIf<&T::IsAlignmentStored>(),
          Property<&T::FieldName, &T::SetFieldName>("FieldName").Default(""),
          Property<&T::Title, &T::SetTitle>("Title").StoredIf<&T::IsTitleStored>(),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
          Property<&T::Width, &T::SetWidth>("Width").StoredIf<&T::IsWidthStored>(),
      });
  return info;
}

void TColumn::Assign(const TPersistent* source) {
  if (const auto* other = dynamic_cast<const TColumn*>(source)) {
    FFieldName = other->FFieldName;
    FOwnAlignment = other->FOwnAlignment;
    FWidth = other->FWidth;
    FVisible = other->FVisible;
  }
  TGridColumn::Assign(source);
}

std::string TColumn::DisplayName() const {
  return FFieldName.empty() ? TGridColumn::DisplayName() : FFieldName;
}

TDBGrid* TColumn::Grid() const {
  const auto* columns = dynamic_cast<const TDBGridColumns*>(Collection());
  return columns ? columns->Grid() : nullptr;
}

TField* TColumn::Field() const {
  const TDBGrid* grid = Grid();
  const TDataSet* data = grid && grid->DataSource() ? grid->DataSource()->DataSet() : nullptr;
  return data && data->Active() ? data->FindField(FFieldName) : nullptr;
}

void TColumn::SetFieldName(const std::string& fieldName) { Change(FFieldName, fieldName); }

TAlignment TColumn::Alignment() const {
  const TField* field = Field();
  const bool number = field && IsNumber(field->DataType());
  return FOwnAlignment.value_or(number ? taRightJustify : taLeftJustify);
}

void TColumn::SetAlignment(TAlignment alignment) {
  Change(FOwnAlignment, std::optional(alignment));
}

std::string TColumn::Title() const {
  const std::string& own = TGridColumn::Title();
  const TField* field = own.empty() ? Field() : nullptr;
  return field ? field->DisplayLabel() : own.empty() ? FFieldName : own;
}

int TColumn::Width() const {
  if (FWidth) return *FWidth;
  const TField* field = Field();
  return field ? Grid()->FieldWidth(*field) : WidthWithoutField;
}

void TColumn::SetWidth(int width) {
  if (width < 1 || width > MostWidth) {
    throw EArgumentOutOfRangeException(
        Concat("The width of a column cannot be ", std::to_string(width)));
  }
  Change(FWidth, std::optional(width));
}

bool TColumn::CanModify() const {
  const TField* field = Field();
  if (!field || ReadOnly()) return false;
  const bool lookedUp = field->FieldKind() == fkLookup;
  const TField* written = lookedUp ? field->DataSet()->FindField(field->KeyFields()) : field;
  return written && written->CanModify();
}

}  // namespace vcl
