// TField: its place in the data set, reading and writing the current record's value, and its texts.
#include "vcl/db/field.h"

#include <cmath>
#include <limits>

#include "vcl/db/dataset.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/masktext.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

const TFieldValue Null;

/// How many characters a text in UTF-8 has.
int CharacterCount(const std::string& text) {
  int count = 0;
  for (const char c : text) count += (c & 0xC0) != 0x80;
  return count;
}

}  // namespace

const TClass& TField::Class() {
  using T = TField;
  static const TClass info = Describe<T, TComponent>(
      "vcl::TField", "vcl/db/db.h",
      {
          Property<&T::DisplayLabel, &T::SetDisplayLabel>("DisplayLabel"),
          Property<&T::DisplayWidth, &T::SetDisplayWidth>("DisplayWidth"),
          Property<&T::EditMask, &T::SetEditMask>("EditMask")
              .Default("")
              .Type("TEditMask")
              .Unpublished(),
          Property<&T::FieldKind, &T::SetFieldKind>("FieldKind").Default(fkData),
          Property<&T::FieldName, &T::SetFieldName>("FieldName"),
          Property<&T::KeyFields, &T::SetKeyFields>("KeyFields").Default(""),
          Property<&T::LookupCache, &T::SetLookupCache>("LookupCache").Default(false),
          Property<&T::LookupDataSet, &T::SetLookupDataSet>("LookupDataSet"),
          Property<&T::LookupKeyFields, &T::SetLookupKeyFields>("LookupKeyFields").Default(""),
          Property<&T::LookupResultField, &T::SetLookupResultField>("LookupResultField")
              .Default(""),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Property<&T::Required, &T::SetRequired>("Required").Default(false),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
          Event<&T::OnChange>("OnChange"),
          Event<&T::OnGetText>("OnGetText"),
          Event<&T::OnSetText>("OnSetText"),
          Event<&T::OnValidate>("OnValidate"),
      });
  return info;
}

TField::~TField() {
  AnnounceEnd();
  if (FDataSet) std::erase(FDataSet->FFields.FFields, this);
}

void TField::LayoutChanged() {
  if (FDataSet && FDataSet->Active()) FDataSet->DataEvent(deLayoutChange);
}

void TField::SetFieldName(const std::string& fieldName) {
  if (FDataSet) FDataSet->CheckInactive();
  FFieldName = fieldName;
}

void TField::SetDisplayLabel(const std::string& label) {
  FLabel = label == FFieldName ? std::string() : label;
  LayoutChanged();
}

void TField::SetVisible(bool visible) {
  if (FVisible == visible) return;
  FVisible = visible;
  LayoutChanged();
}

void TField::SetDisplayWidth(int width) {
  FDisplayWidth = width > 0 && width != DefaultWidth() ? width : 0;
  LayoutChanged();
}

void TField::SetEditMask(const std::string& mask) {
  if (!mask.empty()) static_cast<void>(TMaskText(mask));
  FEditMask = mask;
  LayoutChanged();
}

void TField::SetDataSet(TDataSet* dataSet) {
  if (FDataSet == dataSet) return;
  if (FDataSet) FDataSet->CheckInactive();
  if (dataSet) {
    dataSet->CheckInactive();
    if (dataSet->FindField(FFieldName)) {
      throw EDatabaseError(Concat("The dataset has a field '", FFieldName, "' already"));
    }
  }
  if (FDataSet) std::erase(FDataSet->FFields.FFields, this);
  FDataSet = dataSet;
  if (FDataSet) FDataSet->FFields.FFields.push_back(this);
}

int TField::Index() const {
  for (int i = 0; FDataSet && i < FDataSet->FieldCount(); ++i) {
    if (FDataSet->Fields()[i] == this) return i;
  }
  return -1;
}

void TField::SetIndex(int index) {
  const int before = Index();
  if (before < 0) return;
  auto& fields = FDataSet->FFields.FFields;
  fields.erase(fields.begin() + before);
  fields.insert(fields.begin() + std::clamp(index, 0, static_cast<int>(fields.size())), this);
  if (index != before) LayoutChanged();
}

TComponent* TField::GetParentComponent() const { return FDataSet; }

void TField::SetParentComponent(TComponent* parent) { SetDataSet(dynamic_cast<TDataSet*>(parent)); }

bool TField::CanModify() const {
  return FFieldNo >= 0 && FFieldKind == fkData && !FReadOnly && FDataSet->Active() &&
         FDataSet->CanModify();
}

const TFieldValue& TField::Raw() const {
  if (FValidating) return *FValidating;
  if (FFieldNo >= 0 && FFieldKind != fkData) return FDataSet->Calculated(FFieldNo);
  const TRecord* record = FFieldNo >= 0 ? FDataSet->Shown() : nullptr;
  return record ? (*record)[static_cast<std::size_t>(FFieldNo)] : Null;
}

TFieldValue TField::Value() const { return Raw(); }
bool TField::IsNull() const { return vcl::IsNull(Raw()); }

TFieldValue TField::OldValue() const {
  if (FFieldNo < 0 || FFieldKind != fkData || !FDataSet->Editing()) return Raw();
  return FDataSet->FBefore[static_cast<std::size_t>(FFieldNo)];
}

void TField::NoSuchAccess(const char* kind) const {
  throw EDatabaseError(Concat("Cannot access field '", FFieldName, "' as type ", kind));
}

void TField::Refuse(const TFieldValue& value, const char* kind) const {
  const auto* text = std::get_if<std::string>(&value);
  const auto* whole = std::get_if<std::int64_t>(&value);
  const std::string shown = text    ? *text
                            : whole ? IntToStr(*whole)
                                    : FloatToStr(std::get<double>(value));
  throw EDatabaseError(
      Concat("'", Shown(shown), "' is not a valid ", kind, " value for field '", FFieldName, "'"));
}

std::string TField::TextOf(const TFieldValue& value, bool display) const {
  if (vcl::IsNull(value)) return {};
  const auto* text = std::get_if<std::string>(&value);
  if (!text) return ToText(value, display);
  return display && !FEditMask.empty() ? Masked(*text) : *text;
}

/// The text in the mask's literals; one that the mask would take something from, as it is.
std::string TField::Masked(const std::string& text) const {
  const TMaskText mask(FEditMask);
  TMaskText::TEdited cells = mask.Edited(text);
  if (mask.KeepsLiterals() || mask.Text(cells) != text) return text;
  for (int i = 0; i < mask.Length(); ++i) {
    char32_t& cell = cells[static_cast<std::size_t>(i)];
    if (mask.Editable(i) && cell == mask.Blank()) cell = U' ';
  }
  return FromCells(cells);
}

std::string TField::AsString() const { return TextOf(Raw(), false); }

std::int64_t TField::AsLargeInt() const {
  const TFieldValue& value = Raw();
  if (vcl::IsNull(value)) return 0;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  if (HoldsDates()) NoSuchAccess("Integer");
  if (const auto* text = std::get_if<std::string>(&value)) {
    std::int64_t number = 0;
    if (!TryStrToInt64(Trim(*text), number)) Refuse(value, "integer");
    return number;
  }
  const double rounded = std::round(std::get<double>(value));
  constexpr double limit = 9223372036854775808.0;
  if (!(rounded >= -limit && rounded < limit)) Refuse(value, "integer");
  return static_cast<std::int64_t>(rounded);
}

int TField::AsInteger() const {
  const std::int64_t number = AsLargeInt();
  if (number != static_cast<int>(number)) Refuse(number, "integer");
  return static_cast<int>(number);
}

double TField::AsFloat() const {
  const TFieldValue& value = Raw();
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  const auto* text = std::get_if<std::string>(&value);
  double number = 0;
  if (text && !TryStrToFloat(Trim(*text), number)) Refuse(value, "floating point");
  return number;
}

bool TField::AsBoolean() const {
  const TFieldValue& value = Raw();
  if (HoldsDates()) NoSuchAccess("Boolean");
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole != 0;
  if (const auto* number = std::get_if<double>(&value)) return *number != 0;
  const auto* text = std::get_if<std::string>(&value);
  if (!text) return false;
  try {
    return StrToBool(*text);
  } catch (const EConvertError&) {
    Refuse(value, "boolean");
  }
}

TDateTime TField::AsDateTime() const {
  const TFieldValue& value = Raw();
  if (const auto* date = std::get_if<double>(&value)) return *date;
  if (std::holds_alternative<std::int64_t>(value)) NoSuchAccess("DateTime");
  const auto* text = std::get_if<std::string>(&value);
  TDateTime date = 0;
  if (text && !TryStrToDateTime(*text, date)) Refuse(value, "date");
  return date;
}

void TField::SetAsBoolean(bool value) {
  FDataType == ftString || FDataType == ftMemo ? SetValue(BoolToStr(value))
                                               : SetValue(std::int64_t{value});
}

void TField::SetAsDateTime(TDateTime value) {
  FDataType == ftString || FDataType == ftMemo ? SetValue(DateTimeToStr(value)) : SetValue(value);
}

std::string TField::ShownText(bool display) const {
  std::string text = TextOf(Raw(), display);
  if (OnGetText) {
    OnGetText(const_cast<TField*>(this), text, display);
  } else if (display && FDataType == ftBlob) {
    return IsNull() ? "(blob)" : "(BLOB)";  // In capitals where there is one, as users expect.
  }
  return text;
}

void TField::SetText(const std::string& text) {
  OnSetText ? OnSetText(this, text) : SetAsString(text);
}

void TField::SetValue(const TFieldValue& value) {
  const TFieldValue accepted = Convert(value);
  if (!FDataSet || FFieldNo < 0) {
    throw EDatabaseError(Concat("Field '", FFieldName, "' has no open dataset"));
  }
  if (FFieldKind != fkData) return FDataSet->WriteCalculated(*this, accepted);
  FDataSet->CheckActive();
  if (FReadOnly) throw EDatabaseError(Concat("Field '", FFieldName, "' cannot be modified"));
  if (!FDataSet->Editing()) FDataSet->Refuse("The dataset is not in edit or insert mode");
  Write(accepted);
}

void TField::Write(const TFieldValue& value) {
  if (OnValidate) {
    const TWatch watch(this);
    {
      const TSetFor validating(FValidating, &value, this);
      OnValidate(this);
    }
    if (watch.Gone() || !FDataSet || FFieldNo < 0 || !FDataSet->Editing()) return;
  }
  FDataSet->Write(*this, value);
}

void TField::CheckPosted() const {
  if (FFieldKind != fkData) return;
  const TFieldValue& value = Raw();
  if (FRequired && vcl::IsNull(value)) {
    throw EDatabaseError(Concat("Field '", DisplayLabel(), "' must have a value"));
  }
  const auto* text = std::get_if<std::string>(&value);
  if (text && FSize > 0 && value != OldValue() && CharacterCount(*text) > FSize) {
    throw EDatabaseError(Concat("'", Shown(*text), "' is longer than the ", IntToStr(FSize),
                                " characters of field '", DisplayLabel(), "'"));
  }
}

void TField::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TField*>(source);
  if (!other) return TComponent::Assign(source);
  SetValue(other->Raw());
}

TField* TFields::Fields(int index) const {
  if (index < 0 || index >= Count()) {
    throw EListError(Concat("There is no field ", IntToStr(index), " among ", IntToStr(Count())));
  }
  return FFields[static_cast<std::size_t>(index)];
}

TField* TFields::FindField(std::string_view name) const {
  for (TField* field : FFields) {
    const std::string& each = field->FieldName();
    if (each == name || (each.size() == name.size() && SameText(each, name))) return field;
  }
  return nullptr;
}

}  // namespace vcl
