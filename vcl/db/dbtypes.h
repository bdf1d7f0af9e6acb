// What data sets, fields and data links have in common: states, kinds of fields, values, the error
// and the types of events.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "vcl/rtl/events.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/sets.h"
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

/// In the last two, which handlers of OnCalcFields and OnFilterRecord find, the data set is read,
/// and nothing else can be done with it.
enum TDataSetState { dsInactive, dsBrowse, dsEdit, dsInsert, dsCalcFields, dsFilter };

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

/// Where a field's values are: in the records; calculated by OnCalcFields; or in another data set.
enum TFieldKind { fkData, fkCalculated, fkLookup };
template <>
inline constexpr TEnumText EnumText<TFieldKind>{"TFieldKind", "fkData fkCalculated fkLookup"};

/// How a filter compares texts: without case, by the user's language; a star at the end as any
/// other character.
enum TFilterOption { foCaseInsensitive, foNoPartialCompare };
template <>
inline constexpr TEnumText EnumText<TFilterOption>{
    "TFilterOption", "foCaseInsensitive foNoPartialCompare", "TFilterOptions"};
using TFilterOptions = TSet<TFilterOption>;

/// How texts are sought: without case; by what they begin with.
enum TLocateOption { loCaseInsensitive, loPartialKey };
using TLocateOptions = TSet<TLocateOption>;

/// The value of a field in a record: Null; a whole number, or 0 and 1 for Booleans; a floating
/// number, or a TDateTime; a text in UTF-8, or bytes.
using TFieldValue = std::variant<std::monostate, std::int64_t, double, std::string>;
inline bool IsNull(const TFieldValue& value) { return value.index() == 0; }

/// The values of a record, one for each field definition, in their order.
using TRecord = std::vector<TFieldValue>;

/// What data links hear of a data set.
enum TDataEvent {
  deFieldChange,      ///< A field's value has been changed; its TField goes along.
  deRecordChange,     ///< The values of the current record are others.
  deDataSetChange,    ///< So may all records be, and their order.
  deDataSetScroll,    ///< The current record is another; by how many records goes along.
  deLayoutChange,     ///< The fields are others.
  deUpdateRecord,     ///< What is being typed is to be written into the fields.
  deUpdateState,      ///< The state has changed.
  deCheckBrowseMode,  ///< What details are being edited is to be posted.
};

/// What becomes of an operation that the database has refused.
enum TDataAction { daFail, daAbort, daRetry };

using TDataSetNotifyEvent = TEvent<TDataSet*>;
using TDataSetErrorEvent = TEvent<TDataSet*, const EDatabaseError&, TDataAction&>;
using TFilterRecordEvent = TEvent<TDataSet*, bool&>;
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
inline constexpr TEventText EventText<TFilterRecordEvent>{"TFilterRecordEvent",
                                                          "vcl::TDataSet* dataSet, bool& accept"};
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
