// A statement over ODBC: its parameters, its columns, and how their values travel both ways.
#include "vcl/db/private/odbcstatement.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl::odbc {
namespace {

/// What of a long value is fetched with the record; the rest of it takes a call of its own.
constexpr SQLULEN LongestFetched = 256;

struct TTypeName {
  int Sql;
  TFieldType DataType;
};
constexpr TTypeName Types[] = {
    {SQL_CHAR, ftString},        {SQL_VARCHAR, ftString},    {SQL_WCHAR, ftString},
    {SQL_WVARCHAR, ftString},    {SQL_LONGVARCHAR, ftMemo},  {SQL_WLONGVARCHAR, ftMemo},
    {SQL_TINYINT, ftSmallint},   {SQL_SMALLINT, ftSmallint}, {SQL_INTEGER, ftInteger},
    {SQL_BIGINT, ftLargeint},    {SQL_BIT, ftBoolean},       {SQL_REAL, ftFloat},
    {SQL_FLOAT, ftFloat},        {SQL_DOUBLE, ftFloat},      {SQL_DECIMAL, ftBCD},
    {SQL_NUMERIC, ftBCD},        {SQL_TYPE_DATE, ftDate},    {SQL_DATE, ftDate},
    {SQL_TYPE_TIME, ftTime},     {SQL_TIME, ftTime},         {SQL_TYPE_TIMESTAMP, ftDateTime},
    {SQL_TIMESTAMP, ftDateTime}, {SQL_BINARY, ftBlob},       {SQL_VARBINARY, ftBlob},
    {SQL_LONGVARBINARY, ftBlob},
};

TFieldType FieldTypeOf(int sqlType) {
  const auto* found = std::ranges::find(Types, sqlType, &TTypeName::Sql);
  // What is unknown, such as a GUID, has a text.
  return found == std::end(Types) ? ftString : found->DataType;
}

/// How values of a kind travel: as which type of C's, and to which of SQL's.
struct TTransport {
  SQLSMALLINT CType, SqlType;
};
TTransport TransportOf(TFieldType dataType) {
  switch (dataType) {
    case ftSmallint:
    case ftInteger:
    case ftLargeint: return {SQL_C_SBIGINT, SQL_BIGINT};
    case ftBoolean: return {SQL_C_SBIGINT, SQL_BIT};
    case ftFloat:
    case ftCurrency:
    case ftBCD: return {SQL_C_DOUBLE, SQL_DOUBLE};
    case ftDate: return {SQL_C_TYPE_DATE, SQL_TYPE_DATE};
    case ftTime: return {SQL_C_TYPE_TIME, SQL_TYPE_TIME};
    case ftDateTime: return {SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP};
    case ftBlob: return {SQL_C_BINARY, SQL_LONGVARBINARY};
    case ftUnknown:
    case ftString:
    case ftMemo:
    default: return {SQL_C_WCHAR, SQL_WVARCHAR};
  }
}

/// How many bytes a value of that type takes; 0 for texts and bytes, whose number varies.
std::size_t FixedSize(SQLSMALLINT cType) {
  switch (cType) {
    case SQL_C_SBIGINT:
    case SQL_C_DOUBLE: return 8;
    case SQL_C_TYPE_DATE: return sizeof(SQL_DATE_STRUCT);
    case SQL_C_TYPE_TIME: return sizeof(SQL_TIME_STRUCT);
    case SQL_C_TYPE_TIMESTAMP: return sizeof(SQL_TIMESTAMP_STRUCT);
    default: return 0;
  }
}

template <class T>
T Peek(const std::vector<char>& bytes) {
  T value;
  std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

SQL_TIMESTAMP_STRUCT TimestampOf(TDateTime value) {
  int year, month, day, hour, minute, second, millisecond;
  DecodeDate(value, year, month, day);
  DecodeTime(value, hour, minute, second, millisecond);
  const auto small = [](int number) { return static_cast<SQLUSMALLINT>(number); };
  return {static_cast<SQLSMALLINT>(year),
          small(month),
          small(day),
          small(hour),
          small(minute),
          small(second),
          static_cast<SQLUINTEGER>(millisecond) * 1000000u};
}

/// A date and time; what is none in any calendar is kept as the text of its numbers.
TFieldValue DateTimeOf(const SQL_TIMESTAMP_STRUCT& stamp, bool date, bool time) {
  TDateTime day = 0, part = 0;
  const auto fraction = static_cast<int>(stamp.fraction / 1000000u);
  if ((!date || TryEncodeDate(stamp.year, stamp.month, stamp.day, day)) &&
      (!time || TryEncodeTime(stamp.hour, stamp.minute, stamp.second, fraction, part))) {
    return day < 0 ? day - part : day + part;
  }
  std::string text;
  if (date)
    text = Concat(IntToStr(stamp.year), "-", IntToStr(stamp.month), "-", IntToStr(stamp.day));
  if (date && time) text += " ";
  if (time)
    text += Concat(IntToStr(stamp.hour), ":", IntToStr(stamp.minute), ":", IntToStr(stamp.second));
  return text;
}

}  // namespace

/// What a parameter is read from while the statement is executed.
struct TStatement::TBound {
  std::int64_t Whole = 0;
  double Number = 0;
  TWideText Wide;
  SQL_DATE_STRUCT Date{};
  SQL_TIME_STRUCT Time{};
  SQL_TIMESTAMP_STRUCT Stamp{};
  SQLLEN Length = 0;
};

TStatement::TStatement(const TConnection& connection, const std::string& sql)
    : FConnection(connection), FSql(sql) {
  Prepare();
}

void TStatement::Prepare() {
  FStatement.emplace(SQL_HANDLE_DBC, FConnection.Handle());
  FStatement->Check(SQLSetStmtAttrW(*FStatement, SQL_ATTR_CURSOR_TYPE,
                                    reinterpret_cast<SQLPOINTER>(SQL_CURSOR_FORWARD_ONLY),
                                    SQL_IS_UINTEGER));
  const TWideText text = ToWide(FSql);
  Noting([&] {
    FStatement->Check(
        SQLPrepareW(*FStatement, Argument(text), static_cast<SQLINTEGER>(text.size())));
  });
}

void TStatement::Bind(SQLUSMALLINT number, const TArgument& argument, TBound& bound) {
  auto [cType, sqlType] = TransportOf(argument.DataType);
  const TFieldValue& value = argument.Value;
  SQLPOINTER data = nullptr;
  SQLULEN size = 0;
  SQLSMALLINT digits = 0;
  const auto* text = std::get_if<std::string>(&value);
  if (IsNull(value)) {
    bound.Length = SQL_NULL_DATA;
  } else if (text && cType == SQL_C_BINARY) {
    data = const_cast<char*>(text->data());
    size = text->size();
    bound.Length = static_cast<SQLLEN>(size);
  } else if (text) {
    bound.Wide = ToWide(*text);
    data = bound.Wide.data();
    size = bound.Wide.size();
    bound.Length = static_cast<SQLLEN>(size * sizeof(char16_t));
    cType = SQL_C_WCHAR, sqlType = SQL_WVARCHAR;
  } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    data = &(bound.Whole = *whole);
    cType = SQL_C_SBIGINT;
    if (sqlType != SQL_BIT) sqlType = SQL_BIGINT;
  } else {
    bound.Number = std::get<double>(value);
    bound.Stamp = cType == SQL_C_DOUBLE || !IsValidDateTime(bound.Number)
                      ? SQL_TIMESTAMP_STRUCT{}
                      : TimestampOf(bound.Number);
    const auto& stamp = bound.Stamp;
    bound.Date = {stamp.year, stamp.month, stamp.day};
    bound.Time = {stamp.hour, stamp.minute, stamp.second};
    switch (cType) {
      case SQL_C_TYPE_DATE: data = &bound.Date, size = 10; break;
      case SQL_C_TYPE_TIME: data = &bound.Time, size = 8; break;
      case SQL_C_TYPE_TIMESTAMP: data = &bound.Stamp, size = 23, digits = 3; break;
      default: data = &bound.Number, cType = SQL_C_DOUBLE, sqlType = SQL_DOUBLE;
    }
  }
  FStatement->Check(SQLBindParameter(*FStatement, number, SQL_PARAM_INPUT, cType, sqlType,
                                     std::max<SQLULEN>(size, 1), digits, data,
                                     std::max<SQLLEN>(bound.Length, 0), &bound.Length));
}

void TStatement::Execute(const std::vector<TArgument>& arguments) {
  // Closed and executed again, a query goes on behind the last record with some drivers, so it is
  // made anew.
  FColumns.empty() ? Close() : Prepare();
  std::vector<TBound> bound(arguments.size());
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    Bind(static_cast<SQLUSMALLINT>(i + 1), arguments[i], bound[i]);
  }
  Noting([&] { FStatement->Check(SQLExecute(*FStatement)); });
  SQLFreeStmt(*FStatement, SQL_RESET_PARAMS);
  Describe();
}

void TStatement::Close() { SQLFreeStmt(*FStatement, SQL_CLOSE); }

int TStatement::RowsAffected() const {
  SQLLEN rows = 0;
  FStatement->Check(SQLRowCount(*FStatement, &rows));
  return static_cast<int>(rows);
}

std::string TStatement::Attribute(SQLUSMALLINT number, SQLUSMALLINT attribute) const {
  TWideText text(256, u'\0');
  SQLSMALLINT bytes = 0;
  const SQLRETURN result =
      SQLColAttributeW(*FStatement, number, attribute, text.data(),
                       static_cast<SQLSMALLINT>(text.size() * sizeof(char16_t)), &bytes, nullptr);
  // Not every driver knows where a column comes from.
  return SQL_SUCCEEDED(result) ? ToUtf8(TWideText(text.c_str())) : std::string();
}

TColumn TStatement::DescribeColumn(SQLUSMALLINT number) {
  TWideText name(256, u'\0');
  SQLSMALLINT length = 0, type = 0, digits = 0, nullable = 0;
  SQLULEN size = 0;
  FStatement->Check(SQLDescribeColW(*FStatement, number, Argument(name),
                                    static_cast<SQLSMALLINT>(name.size()), &length, &type, &size,
                                    &digits, &nullable));
  TColumn column{ToUtf8(TWideText(name.c_str())), Attribute(number, SQL_DESC_BASE_TABLE_NAME),
                 Attribute(number, SQL_DESC_BASE_COLUMN_NAME), FieldTypeOf(type)};
  // A text of so many characters is none that was declared with a limit.
  constexpr SQLULEN greatestSize = 65535;
  if (column.DataType == ftString && size < greatestSize) column.Size = static_cast<int>(size);
  return column;
}

void TStatement::Describe() {
  SQLSMALLINT count = 0;
  FStatement->Check(SQLNumResultCols(*FStatement, &count));
  FColumns.clear();
  for (SQLSMALLINT i = 1; i <= count; ++i) {
    FColumns.push_back(DescribeColumn(static_cast<SQLUSMALLINT>(i)));
  }
  BindColumns();
}

void TStatement::BindColumns() {
  FBuffers.resize(FColumns.size());
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    TBuffer& buffer = FBuffers[i];
    buffer.Type = TransportOf(FColumns[i].DataType).CType;
    const std::size_t fixed = FixedSize(buffer.Type);
    buffer.Bytes.resize(fixed ? fixed : (LongestFetched + 1) * sizeof(char16_t));
    FStatement->Check(SQLBindCol(*FStatement, static_cast<SQLUSMALLINT>(i + 1), buffer.Type,
                                 buffer.Bytes.data(), static_cast<SQLLEN>(buffer.Bytes.size()),
                                 &buffer.Length));
  }
}

bool TStatement::Fetch(TRecord& record) {
  const SQLRETURN result = SQLFetch(*FStatement);
  if (!SQL_SUCCEEDED(result)) Noting([&] { FStatement->Check(result); });
  if (result == SQL_NO_DATA) return false;
  record.resize(FColumns.size());
  for (std::size_t i = 0; i < FColumns.size(); ++i) Read(i, record[i]);
  return true;
}

void TStatement::Read(std::size_t column, TFieldValue& value) {
  const auto& [type, bytes, length] = FBuffers[column];
  if (length == SQL_NULL_DATA) {
    value = std::monostate();
    return;
  }
  switch (type) {
    case SQL_C_SBIGINT: value = Peek<std::int64_t>(bytes); return;
    case SQL_C_DOUBLE: value = Peek<double>(bytes); return;
    case SQL_C_TYPE_DATE: {
      const auto date = Peek<SQL_DATE_STRUCT>(bytes);
      value = DateTimeOf({date.year, date.month, date.day, 0, 0, 0, 0}, true, false);
      return;
    }
    case SQL_C_TYPE_TIME: {
      const auto time = Peek<SQL_TIME_STRUCT>(bytes);
      value = DateTimeOf({0, 0, 0, time.hour, time.minute, time.second, 0}, false, true);
      return;
    }
    case SQL_C_TYPE_TIMESTAMP:
      value = DateTimeOf(Peek<SQL_TIMESTAMP_STRUCT>(bytes), true, true);
      return;
    default: break;
  }
  // The text's own memory is used again from record to record.
  if (!std::holds_alternative<std::string>(value)) value = std::string();
  auto& text = std::get<std::string>(value);
  const std::size_t unit = type == SQL_C_WCHAR ? sizeof(char16_t) : 1;
  if (length < 0 ||
      static_cast<std::size_t>(length) > bytes.size() - (type == SQL_C_WCHAR ? unit : 0)) {
    text = ReadLong(column);
  } else if (type == SQL_C_WCHAR) {
    AssignUtf8(text, {reinterpret_cast<const char16_t*>(bytes.data()),
                      static_cast<std::size_t>(length) / unit});
  } else {
    text.assign(bytes.data(), static_cast<std::size_t>(length));
  }
}

/// The whole of a value that has not fitted, in pieces.
std::string TStatement::ReadLong(std::size_t column) {
  const SQLSMALLINT type = FBuffers[column].Type;
  const std::size_t end = type == SQL_C_WCHAR ? sizeof(char16_t) : 0;
  std::string whole;
  std::vector<char> piece(65536 + end);
  for (;;) {
    SQLLEN left = 0;
    const SQLRETURN result = SQLGetData(*FStatement, static_cast<SQLUSMALLINT>(column + 1), type,
                                        piece.data(), static_cast<SQLLEN>(piece.size()), &left);
    FStatement->Check(result);
    if (result == SQL_NO_DATA || left == SQL_NULL_DATA) break;
    const std::size_t room = piece.size() - end;
    const bool cut = left == SQL_NO_TOTAL || static_cast<std::size_t>(left) > room;
    whole.append(piece.data(), cut ? room : static_cast<std::size_t>(left));
    if (result == SQL_SUCCESS) break;
  }
  if (type != SQL_C_WCHAR) return whole;
  TWideText wide(whole.size() / sizeof(char16_t), u'\0');
  std::memcpy(wide.data(), whole.data(), wide.size() * sizeof(char16_t));
  return ToUtf8(wide);
}

}  // namespace vcl::odbc
