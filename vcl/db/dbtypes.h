// What data sets, fields and data links have in common: states, kinds of fields, values, the error
// and the types of events.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "vcl/rtl/events.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

class TDataSet;
class TField;

/// A data set, a field or a database refuses something; the message says what, and why.
class VCL_API EDatabaseError : public Exception {
 public:
  using Exception::Exception;
  ~EDatabaseError() override;
};

enum TDataSetState { dsInactive, dsBrowse, dsEdit, dsInsert };

/// What a field holds. ftBCD is a decimal number that is kept as a floating one.
enum TFieldType {
  ftUnknown,
  ftString,
  ftSmallint,
  ftInteger,
  ftLargeint,
  ftBoolean,
  ftFloat,
  ftCurrency,
  ftBCD,
  ftDate,
  ftTime,
  ftDateTime,
  ftMemo,
  ftBlob
};
template <>
inline constexpr TEnumText EnumText<TFieldType>{
    "TFieldType",
    "ftUnknown ftString ftSmallint ftInteger ftLargeint ftBoolean ftFloat ftCurrency ftBCD ftDate "
    "ftTime ftDateTime ftMemo ftBlob"};

/// The value of a field in a record: Null; a whole number, or 0 and 1 for Booleans; a floating
/// number, or a TDateTime; a text in UTF-8, or bytes.
using TFieldValue = std::variant<std::monostate, std::int64_t, double, std::string>;
inline bool IsNull(const TFieldValue& value) { return value.index() == 0; }

/// The values of a record, one for each field definition, in their order.
using TRecord = std::vector<TFieldValue>;

/// What data links hear of a data set.
enum TDataEvent {
  deFieldChange,    ///< A field's value has been changed; its TField goes along.
  deRecordChange,   ///< The values of the current record are others.
  deDataSetChange,  ///< So may all records be, and their order.
  deDataSetScroll,  ///< The current record is another; by how many records goes along.
  deLayoutChange,   ///< The fields are others.
  deUpdateRecord,   ///< What is being typed is to be written into the fields.
  deUpdateState,    ///< The state has changed.
};

/// What becomes of an operation that the database has refused.
enum TDataAction { daFail, daAbort, daRetry };

using TDataSetNotifyEvent = TEvent<TDataSet*>;
using TDataSetErrorEvent = TEvent<TDataSet*, const EDatabaseError&, TDataAction&>;
using TFieldNotifyEvent = TEvent<TField*>;
using TFieldGetTextEvent = TEvent<TField*, std::string&, bool>;
using TFieldSetTextEvent = TEvent<TField*, const std::string&>;
using TDataChangeEvent = TEvent<TObject*, TField*>;

template <>
inline constexpr TEventText EventText<TDataSetNotifyEvent>{"TDataSetNotifyEvent",
                                                           "vcl::TDataSet* dataSet"};
template <>
inline constexpr TEventText EventText<TDataSetErrorEvent>{
    "TDataSetErrorEvent",
    "vcl::TDataSet* dataSet, const vcl::EDatabaseError& error, vcl::TDataAction& action"};
template <>
inline constexpr TEventText EventText<TFieldNotifyEvent>{"TFieldNotifyEvent",
                                                         "vcl::TField* sender"};
template <>
inline constexpr TEventText EventText<TFieldGetTextEvent>{
    "TFieldGetTextEvent", "vcl::TField* sender, std::string& text, bool displayText"};
template <>
inline constexpr TEventText EventText<TFieldSetTextEvent>{
    "TFieldSetTextEvent", "vcl::TField* sender, const std::string& text"};
template <>
inline constexpr TEventText EventText<TDataChangeEvent>{"TDataChangeEvent",
                                                        "vcl::TObject* sender, vcl::TField* field"};

}  // namespace vcl
