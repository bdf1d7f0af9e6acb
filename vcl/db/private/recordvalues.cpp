// The values of records in files: as texts, and read from them.
#include "vcl/db/private/recordvalues.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vcl/db/private/isodates.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// How the values of a kind are saved.
enum class TForm { Text, Bytes, Whole, Truth, Number, Moment };

TForm FormOf(TFieldType dataType) {
  switch (dataType) {
    case ftSmallint:
    case ftInteger:
    case ftLargeint: return TForm::Whole;
    case ftBoolean: return TForm::Truth;
    case ftFloat:
    case ftCurrency:
    case ftBCD: return TForm::Number;
    case ftDate:
    case ftTime:
    case ftDateTime: return TForm::Moment;
    case ftBlob: return TForm::Bytes;
    case ftUnknown:
    case ftString:
    case ftMemo: break;
  }
  return TForm::Text;
}

std::string HexOf(std::string_view bytes) {
  constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

bool TryReadHex(std::string_view text, std::string& bytes) {
  if (text.size() % 2 != 0) return false;
  for (; !text.empty(); text.remove_prefix(2)) {
    const int high = HexDigit(text[0]), low = HexDigit(text[1]);
    if (high < 0 || low < 0) return false;
    bytes += static_cast<char>(high * 16 + low);
  }
  return true;
}

/// Where the text, which is to the millisecond, is not the same moment to the bit, its number is.
std::string MomentText(double value, TFieldType dataType) {
  const TIsoParts parts = dataType == ftDate   ? TIsoParts::Date
                          : dataType == ftTime ? TIsoParts::Time
                                               : TIsoParts::Both;
  std::string text = IsValidDateTime(value) ? IsoText(value, parts) : std::string();
  double back = 0;
  return TryReadIso(text, back) && back == value ? text : FloatToStr(value);
}

bool Fits(std::int64_t number, TFieldType dataType) {
  if (dataType == ftSmallint) return number == static_cast<std::int16_t>(number);
  return dataType != ftInteger || number == static_cast<std::int32_t>(number);
}

bool TryReadWhole(std::string_view text, TFieldType dataType, TFieldValue& value) {
  std::int64_t number = 0;
  if (!TryStrToInt64(text, number) || !Fits(number, dataType)) return false;
  value = number;
  return true;
}

bool TryReadTruth(std::string_view text, TFieldValue& value) {
  if (text != "True" && text != "False") return false;
  value = std::int64_t{text == "True"};
  return true;
}

bool TryReadNumber(std::string_view text, TFieldType dataType, TFieldValue& value) {
  double number = 0;
  const bool moment = FormOf(dataType) == TForm::Moment;
  if (!(moment && TryReadIso(text, number)) && !TryStrToFloat(text, number)) return false;
  value = number;
  return moment ? IsValidDateTime(number) : std::isfinite(number);
}

bool TryRead(std::string_view text, TFieldType dataType, TFieldValue& value) {
  std::string bytes;
  switch (FormOf(dataType)) {
    case TForm::Whole: return TryReadWhole(text, dataType, value);
    case TForm::Truth: return TryReadTruth(text, value);
    case TForm::Number:
    case TForm::Moment: return TryReadNumber(text, dataType, value);
    case TForm::Bytes:
      if (!TryReadHex(text, bytes)) return false;
      value = std::move(bytes);
      return true;
    case TForm::Text: break;
  }
  value = std::string(text);
  return true;
}

}  // namespace

std::string FieldTypeText(TFieldType dataType) {
  return std::string(TypeInfoOf<TFieldType>().EnumName(dataType).value_or("?"));
}

bool SavedInQuotes(const TFieldValue& value, const TSavedField& field) {
  const TForm form = FormOf(field.DataType);
  if (form != TForm::Moment) return form == TForm::Text || form == TForm::Bytes;
  double number = 0;
  return !TryStrToFloat(SavedText(value, field), number);
}

std::string SavedText(const TFieldValue& value, const TSavedField& field) {
  const auto* text = std::get_if<std::string>(&value);
  const auto* whole = std::get_if<std::int64_t>(&value);
  const auto* number = std::get_if<double>(&value);
  const TForm form = FormOf(field.DataType);
  if (text && form == TForm::Text) return *text;
  if (text && form == TForm::Bytes) return HexOf(*text);
  if (whole && form == TForm::Whole) return IntToStr(*whole);
  if (whole && form == TForm::Truth) return BoolToStr(*whole != 0);
  if (number && form == TForm::Number) return FloatToStr(*number);
  if (number && form == TForm::Moment) return MomentText(*number, field.DataType);
  throw EDatabaseError(Concat("Field '", field.Name, "' has a value that is none of its kind, ",
                              FieldTypeText(field.DataType)));
}

void TRecordReader::Fail(std::string_view what) const {
  throw EDatabaseError(Concat("Line ", IntToStr(FLine), ": ", what));
}

TFieldValue TRecordReader::ValueOf(std::string_view text, const TSavedField& field) const {
  TFieldValue value;
  if (TryRead(text, field.DataType, value)) return value;
  Fail(Concat("'", Shown(text), "' is no ", FieldTypeText(field.DataType), " value for field '",
              Shown(field.Name), "'"));
}

TFieldType TRecordReader::TypeOf(std::string_view name) const {
  const auto type = TypeInfoOf<TFieldType>().EnumOrdinal(name);
  if (type && *type != ftUnknown) return static_cast<TFieldType>(*type);
  Fail(Concat("'", Shown(name), "' is no kind of field"));
}

void TRecordReader::AddField(TSavedField field) {
  constexpr std::size_t most = 1000;
  if (field.Name.empty()) Fail("a field has no name");
  if (FRead.Fields.size() == most)
    Fail(Concat("there are more than ", std::to_string(most), " fields"));
  for (const TSavedField& each : FRead.Fields) {
    if (SameText(each.Name, field.Name))
      Fail(Concat("there are two fields '", Shown(field.Name), "'"));
  }
  FRead.Fields.push_back(std::move(field));
}

TSavedRecords ReadRecordFile(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  return Trim(text).starts_with('{') ? ReadRecordJson(text) : ReadRecordText(text);
}

}  // namespace vcl
