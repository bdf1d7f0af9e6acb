// What fields a data set has: TFieldDef and TFieldDefs.
#pragma once

#include <string>
#include <string_view>

#include "vcl/db/dbtypes.h"
#include "vcl/rtl/collection.h"

namespace vcl {

/// A field of the data: its name, kind and limits.
class VCL_API TFieldDef : public TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& Name() const { return FName; }
  /// The field's name.
  void SetName(const std::string& name);
  TFieldType DataType() const { return FDataType; }
  /// The kind of the field's values.
  void SetDataType(TFieldType dataType);
  /// How many characters a text may have; 0 for any number.
  int Size() const { return FSize; }
  void SetSize(int size);
  /// A record without a value in the field cannot be posted.
  bool Required() const { return FRequired; }
  void SetRequired(bool required);
  /// What is computed by the database, and no program can write it.
  bool ReadOnly() const { return FReadOnly; }
  void SetReadOnly(bool readOnly) { FReadOnly = readOnly; }
  std::string DisplayName() const override { return FName.empty() ? ClassName() : FName; }
  void Assign(const TPersistent* source) override;

 private:
  std::string FName;
  TFieldType FDataType = ftUnknown;
  int FSize = 0;
  bool FRequired = false;
  bool FReadOnly = false;
};

/// The fields of the data, in their order.
class VCL_API TFieldDefs : public TCollection {
 public:
  TFieldDefs() : TCollection(TFieldDef::Class()) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TFieldDef* Items(int index) const { return static_cast<TFieldDef*>(TCollection::Items(index)); }
  TFieldDef* Add(const std::string& name, TFieldType dataType, int size = 0, bool required = false);
  /// The place of the definition of that name, compared without case; -1 when there is none.
  int IndexOf(std::string_view name) const;
};

}  // namespace vcl
