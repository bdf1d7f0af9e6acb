// The parameters of an SQL text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/db/dbtypes.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/datetime.h"

namespace vcl {

/// A value that takes a parameter's place when the SQL is executed; Null at first.
class VCL_API TParam : public TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& Name() const { return FName; }
  /// The name behind the colon in the SQL.
  void SetName(const std::string& name) { FName = name; }
  TFieldType DataType() const { return FDataType; }
  /// The kind of the value.
  void SetDataType(TFieldType dataType) { FDataType = dataType; }
  const TFieldValue& Value() const { return FValue; }
  bool IsNull() const { return vcl::IsNull(FValue); }
  void Clear() { FValue = {}; }
  /// These set value and kind.
  void SetAsString(const std::string& value) { Set(ftString, value); }
  void SetAsInteger(int value) { Set(ftInteger, std::int64_t{value}); }
  void SetAsLargeInt(std::int64_t value) { Set(ftLargeint, value); }
  void SetAsFloat(double value) { Set(ftFloat, value); }
  void SetAsBoolean(bool value) { Set(ftBoolean, std::int64_t{value}); }
  void SetAsDate(TDateTime value) { Set(ftDate, value); }
  void SetAsTime(TDateTime value) { Set(ftTime, value); }
  void SetAsDateTime(TDateTime value) { Set(ftDateTime, value); }
  void SetAsBlob(const std::string& bytes) { Set(ftBlob, bytes); }
  /// Value and kind of the field.
  void AssignField(const TField& field);
  std::string DisplayName() const override { return FName.empty() ? ClassName() : FName; }
  void Assign(const TPersistent* source) override;

 private:
  void Set(TFieldType dataType, TFieldValue value);

  std::string FName;
  TFieldType FDataType = ftUnknown;
  TFieldValue FValue;
};

/// The parameters of an SQL text.
class VCL_API TParams : public TCollection {
 public:
  TParams() : TCollection(TParam::Class()) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TParam* Items(int index) const { return static_cast<TParam*>(TCollection::Items(index)); }
  /// The parameter of that name, compared without case; null when there is none.
  TParam* FindParam(std::string_view name) const;
  /// The same; raises EDatabaseError with the name.
  TParam* ParamByName(std::string_view name) const;
  /// Makes a parameter for each one in the SQL, those that are there already keeping their values,
  /// and returns the SQL as ODBC takes it. Parameters are ":name", and "?", which is named by its
  /// place, from "1" on. What stands in quotes or comments is none.
  std::string Parse(std::string_view sql);
  /// The parameters in the order of their places in that SQL; one may have several.
  const std::vector<std::string>& Places() const { return FPlaces; }

 private:
  std::vector<std::string> FPlaces;
};

}  // namespace vcl
