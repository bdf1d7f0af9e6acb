// A statement executed for many rows of arguments: as arrays where the driver takes them, else one
// by one.
#include <algorithm>
#include <cstring>

#include "vcl/db/private/odbcstatement.h"
#include "vcl/rtl/text.h"

namespace vcl::odbc {
namespace {

using TRows = std::vector<std::vector<TArgument>>;

constexpr std::size_t MostRows = 1000;   // In one round trip.
constexpr std::size_t MostBytes = 1024;  // Of a value in an array.

/// The alternative of TFieldValue that the values of a column are of, Null for none of them; -1 for
/// several, and for what takes a conversion of its own.
int KindOf(const TRows& rows, std::size_t column) {
  std::size_t kind = 0;
  for (const std::vector<TArgument>& row : rows) {
    const TArgument& each = row[column];
    if (IsNull(each.Value)) continue;
    const bool plain = each.DataType != ftDate && each.DataType != ftTime &&
                       each.DataType != ftDateTime && each.DataType != ftBlob &&
                       each.DataType != ftBoolean;
    if (!plain || (kind != 0 && kind != each.Value.index())) return -1;
    kind = each.Value.index();
  }
  return static_cast<int>(kind);
}

}  // namespace

/// The values of a parameter for all rows of a block, one behind the other.
struct TStatement::TColumnArray {
  SQLSMALLINT CType = SQL_C_WCHAR;
  SQLSMALLINT SqlType = SQL_WVARCHAR;
  std::size_t Width = sizeof(char16_t);
  std::vector<char> Bytes;
  std::vector<SQLLEN> Lengths;

  void Add(const void* value, std::size_t size) {
    const std::size_t at = Lengths.size() * Width;
    std::memcpy(Bytes.data() + at, value, size);
    Lengths.push_back(static_cast<SQLLEN>(size));
  }
};

void TStatement::BindArray(SQLUSMALLINT number, const TColumnArray& column) {
  const bool text = column.CType == SQL_C_WCHAR;
  FStatement->Check(
      SQLBindParameter(*FStatement, number, SQL_PARAM_INPUT, column.CType, column.SqlType,
                       text ? std::max<SQLULEN>(column.Width / sizeof(char16_t), 1) : 1, 0,
                       const_cast<char*>(column.Bytes.data()), static_cast<SQLLEN>(column.Width),
                       const_cast<SQLLEN*>(column.Lengths.data())));
}

/// A driver that does not know arrays refuses the number, or takes another one.
bool TStatement::AcceptsBlocks(std::size_t count) {
  SQLULEN taken = 0;
  const auto wanted = static_cast<std::uintptr_t>(count);
  const bool set =
      SQL_SUCCEEDED(SQLSetStmtAttrW(*FStatement, SQL_ATTR_PARAMSET_SIZE,
                                    reinterpret_cast<SQLPOINTER>(wanted), 0)) &&
      SQL_SUCCEEDED(SQLGetStmtAttrW(*FStatement, SQL_ATTR_PARAMSET_SIZE, &taken, 0, nullptr));
  return set && taken == count;
}

int TStatement::ExecuteBlock(const TRows& rows, std::size_t first, std::size_t count) {
  std::vector<TColumnArray> columns(rows[first].size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    TColumnArray& column = columns[i];
    const int kind = KindOf(rows, i);
    std::vector<TWideText> texts;
    if (kind == 1) column = {SQL_C_SBIGINT, SQL_BIGINT, sizeof(std::int64_t), {}, {}};
    if (kind == 2) column = {SQL_C_DOUBLE, SQL_DOUBLE, sizeof(double), {}, {}};
    for (std::size_t row = first; row < first + count; ++row) {
      const auto* text = std::get_if<std::string>(&rows[row][i].Value);
      texts.push_back(text ? ToWide(*text) : TWideText());
      if (text) column.Width = std::max(column.Width, texts.back().size() * sizeof(char16_t));
    }
    column.Bytes.resize(column.Width * count);
    for (std::size_t row = 0; row < count; ++row) {
      const TFieldValue& value = rows[first + row][i].Value;
      if (IsNull(value)) {
        column.Lengths.push_back(SQL_NULL_DATA);
      } else if (kind == 1) {
        column.Add(std::get_if<std::int64_t>(&value), sizeof(std::int64_t));
      } else if (kind == 2) {
        column.Add(std::get_if<double>(&value), sizeof(double));
      } else {
        column.Add(texts[row].data(), texts[row].size() * sizeof(char16_t));
      }
    }
    BindArray(static_cast<SQLUSMALLINT>(i + 1), column);
  }
  std::vector<SQLUSMALLINT> states(count, SQL_PARAM_UNUSED);
  SQLSetStmtAttrW(*FStatement, SQL_ATTR_PARAM_STATUS_PTR, states.data(), 0);
  try {
    Noting([&] { FStatement->Check(SQLExecute(*FStatement)); });
  } catch (const EOdbcError& error) {
    const auto bad = std::ranges::find(states, SQLUSMALLINT{SQL_PARAM_ERROR});
    const auto row = static_cast<std::size_t>(bad - states.begin());
    // Not every driver says which row it was.
    const std::string which = bad == states.end() ? Concat("Rows ", std::to_string(first + 1),
                                                           " to ", std::to_string(first + count))
                                                  : Concat("Row ", std::to_string(first + row + 1));
    throw EOdbcError(Concat(which, ": ", error.Message()), error.SqlState(), error.NativeError());
  }
  return RowsAffected();
}

int TStatement::ExecuteOneByOne(const TRows& rows) {
  int affected = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    try {
      Execute(rows[i]);
    } catch (const EOdbcError& error) {
      throw EOdbcError(Concat("Row ", std::to_string(i + 1), ": ", error.Message()),
                       error.SqlState(), error.NativeError());
    }
    affected += RowsAffected();
    Close();
  }
  return affected;
}

int TStatement::ExecuteMany(const TRows& rows) {
  const auto small = [](const TArgument& each) {
    const auto* text = std::get_if<std::string>(&each.Value);
    return !text || text->size() <= MostBytes;
  };
  bool fits = rows.size() > 1 && !rows[0].empty();
  for (std::size_t i = 0; fits && i < rows[0].size(); ++i) fits = KindOf(rows, i) >= 0;
  for (std::size_t i = 0; fits && i < rows.size(); ++i) fits = std::ranges::all_of(rows[i], small);
  if (!fits || !AcceptsBlocks(std::min(rows.size(), MostRows))) {
    AcceptsBlocks(1);
    return ExecuteOneByOne(rows);
  }
  int affected = 0;
  for (std::size_t first = 0; first < rows.size(); first += MostRows) {
    const std::size_t count = std::min(MostRows, rows.size() - first);
    if (!AcceptsBlocks(count)) throw EDatabaseError("The driver takes no block of that size");
    affected += ExecuteBlock(rows, first, count);
    Close();
  }
  return affected;
}

}  // namespace vcl::odbc
