// The kinds of fields: which values each accepts, how it writes them as text, and which class
// stands for which data type.
#include "vcl/db/fields.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/numberformat.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// The class of the kinds that publish nothing more than their parent.
template <class T, class Parent>
const TClass& PlainClass(const char* name) {
  static const TClass info = Describe<T, Parent>(name, "vcl/db/db.h", {});
  return info;
}

struct TRange {
  std::int64_t Min, Max;
};

template <class T>
constexpr TRange RangeOf() {
  return {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}

TRange RangeOf(TFieldType type) {
  if (type == ftSmallint) return RangeOf<std::int16_t>();
  return type == ftInteger ? RangeOf<std::int32_t>() : RangeOf<std::int64_t>();
}

template <class T>
TField* Make(TComponent* owner) {
  return new T(owner);
}

/// In the order of TFieldType.
constexpr TField* (*Makers[])(TComponent*) = {
    nullptr,
    &Make<TStringField>,
    &Make<TSmallintField>,
    &Make<TIntegerField>,
    &Make<TLargeintField>,
    &Make<TBooleanField>,
    &Make<TFloatField>,
    &Make<TCurrencyField>,
    &Make<TBCDField>,
    &Make<TDateField>,
    &Make<TTimeField>,
    &Make<TDateTimeField>,
    &Make<TMemoField>,
    &Make<TBlobField>,
};

}  // namespace

TField* NewField(TFieldType dataType, TComponent* owner) {
  const auto make = Makers[dataType];
  return make ? make(owner) : nullptr;
}

const TClass& TStringField::Class() {
  using T = TStringField;
  static const TClass info = Describe<T, TField>(
      "vcl::TStringField", "vcl/db/db.h",
      {Inherit("EditMask"), Property<&T::Size, &T::SetSize>("Size").Default(0)});
  return info;
}

TFieldValue TStringField::Accept(const TFieldValue& value) const {
  return std::holds_alternative<std::string>(value) ? value : ToText(value, false);
}

std::string TStringField::ToText(const TFieldValue& value, bool) const {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole ? IntToStr(*whole) : FloatToStr(std::get<double>(value));
}

const TClass& TBlobField::Class() {
  return PlainClass<TBlobField, TStringField>("vcl::TBlobField");
}
const TClass& TMemoField::Class() { return PlainClass<TMemoField, TBlobField>("vcl::TMemoField"); }

void TBlobField::LoadFromFile(const std::string& fileName) {
  SetAsString(TFileStream(fileName, fmOpenRead | fmShareDenyWrite).ReadRest());
}

void TBlobField::SaveToFile(const std::string& fileName) const {
  TFileStream(fileName, fmCreate).WriteText(AsString());
}

const TClass& TNumericField::Class() {
  using T = TNumericField;
  static const TClass info = Describe<T, TField>(
      "vcl::TNumericField", "vcl/db/db.h",
      {Property<&T::DisplayFormat, &T::SetDisplayFormat>("DisplayFormat").Default("")});
  return info;
}

void TNumericField::SetDisplayFormat(const std::string& format) {
  FDisplayFormat = format;
  LayoutChanged();
}

std::string TNumericField::ToText(const TFieldValue& value, bool display) const {
  const auto* whole = std::get_if<std::int64_t>(&value);
  const double number = whole ? static_cast<double>(*whole) : std::get<double>(value);
  if (display && !FDisplayFormat.empty()) return FormatFloat(FDisplayFormat, number);
  return whole ? IntToStr(*whole) : FloatToStr(number);
}

const TClass& TIntegerField::Class() {
  return PlainClass<TIntegerField, TNumericField>("vcl::TIntegerField");
}
const TClass& TSmallintField::Class() {
  return PlainClass<TSmallintField, TIntegerField>("vcl::TSmallintField");
}
const TClass& TLargeintField::Class() {
  return PlainClass<TLargeintField, TIntegerField>("vcl::TLargeintField");
}

TFieldValue TIntegerField::Accept(const TFieldValue& value) const {
  const auto [min, max] = RangeOf(DataType());
  std::int64_t number = 0;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    number = *whole;
  } else if (const auto* text = std::get_if<std::string>(&value)) {
    const std::string_view trimmed = Trim(*text);
    if (trimmed.empty()) return {};
    if (!TryStrToInt64(trimmed, number)) Refuse(value, "integer");
  } else {
    const double rounded = std::round(std::get<double>(value));
    // The upper limit itself is no double: what is below the next power of two is below it.
    if (!(rounded >= static_cast<double>(min) && rounded < static_cast<double>(max) + 1)) {
      Refuse(value, "integer");
    }
    number = static_cast<std::int64_t>(rounded);
  }
  if (number < min || number > max) Refuse(value, "integer");
  return number;
}

const TClass& TFloatField::Class() {
  return PlainClass<TFloatField, TNumericField>("vcl::TFloatField");
}
const TClass& TCurrencyField::Class() {
  return PlainClass<TCurrencyField, TFloatField>("vcl::TCurrencyField");
}
const TClass& TBCDField::Class() { return PlainClass<TBCDField, TFloatField>("vcl::TBCDField"); }

TFieldValue TFloatField::Accept(const TFieldValue& value) const {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
  double number = 0;
  if (const auto* text = std::get_if<std::string>(&value)) {
    const std::string_view trimmed = Trim(*text);
    if (trimmed.empty()) return {};
    if (!TryStrToFloat(trimmed, number)) Refuse(value, "floating point");
  } else {
    number = std::get<double>(value);
  }
  if (!std::isfinite(number)) Refuse(value, "floating point");
  return number;
}

std::string TCurrencyField::ToText(const TFieldValue& value, bool display) const {
  const auto* number = std::get_if<double>(&value);
  if (!display || !number || !DisplayFormat().empty()) return TFloatField::ToText(value, display);
  // Amounts of any size fit: the greatest double has 309 digits.
  char text[330];
  std::snprintf(text, sizeof text, "%.2f", *number);
  return text;
}

const TClass& TBooleanField::Class() {
  using T = TBooleanField;
  static const TClass info = Describe<T, TField>(
      "vcl::TBooleanField", "vcl/db/db.h",
      {Property<&T::DisplayValues, &T::SetDisplayValues>("DisplayValues").Default("")});
  return info;
}

void TBooleanField::SetDisplayValues(const std::string& values) {
  FDisplayValues = values;
  LayoutChanged();
}

std::string TBooleanField::Word(bool value) const {
  if (FDisplayValues.empty()) return BoolToStr(value);
  const std::size_t semicolon = std::min(FDisplayValues.find(';'), FDisplayValues.size());
  if (value) return FDisplayValues.substr(0, semicolon);
  return FDisplayValues.substr(std::min(semicolon + 1, FDisplayValues.size()));
}

TFieldValue TBooleanField::Accept(const TFieldValue& value) const {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::int64_t{*whole != 0};
  const auto* text = std::get_if<std::string>(&value);
  if (!text) Refuse(value, "boolean");
  if (Trim(*text).empty()) return {};
  for (const bool each : {false, true}) {
    if (SameText(*text, Word(each))) return std::int64_t{each};
  }
  try {
    return std::int64_t{StrToBool(*text)};
  } catch (const EConvertError&) {
    Refuse(value, "boolean");
  }
}

std::string TBooleanField::ToText(const TFieldValue& value, bool) const {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return Word(whole ? *whole != 0 : std::get<double>(value) != 0);
}

const TClass& TDateTimeField::Class() {
  using T = TDateTimeField;
  static const TClass info = Describe<T, TField>(
      "vcl::TDateTimeField", "vcl/db/db.h",
      {Property<&T::DisplayFormat, &T::SetDisplayFormat>("DisplayFormat").Default(""),
       Inherit("EditMask")});
  return info;
}

const TClass& TDateField::Class() {
  return PlainClass<TDateField, TDateTimeField>("vcl::TDateField");
}
const TClass& TTimeField::Class() {
  return PlainClass<TTimeField, TDateTimeField>("vcl::TTimeField");
}

void TDateTimeField::SetDisplayFormat(const std::string& format) {
  FDisplayFormat = format;
  LayoutChanged();
}

TFieldValue TDateTimeField::Accept(const TFieldValue& value) const {
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (Trim(*text).empty()) return {};
    TDateTime date = 0;
    const bool valid = DataType() == ftDate   ? TryStrToDate(*text, date)
                       : DataType() == ftTime ? TryStrToTime(*text, date)
                                              : TryStrToDateTime(*text, date);
    if (!valid) Refuse(value, "date or time");
    return date;
  }
  const auto* whole = std::get_if<std::int64_t>(&value);
  const double date = whole ? static_cast<double>(*whole) : std::get<double>(value);
  if (!IsValidDateTime(date)) Refuse(value, "date or time");
  if (DataType() == ftDate) return std::trunc(date);
  return DataType() == ftTime ? std::fabs(date - std::trunc(date)) : date;
}

std::string TDateTimeField::ToText(const TFieldValue& value, bool display) const {
  const auto* whole = std::get_if<std::int64_t>(&value);
  const double date = whole ? static_cast<double>(*whole) : std::get<double>(value);
  if (display && !FDisplayFormat.empty()) return FormatDateTime(FDisplayFormat, date);
  if (DataType() == ftDate) return DateToStr(date);
  return DataType() == ftTime ? TimeToStr(date) : DateTimeToStr(date);
}

}  // namespace vcl
