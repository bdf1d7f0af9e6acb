// TField: a column of a data set, through which the values of the current record are read and
// written, and TFields, all of them. The kinds of fields are in fields.h.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/db/dbtypes.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/datetime.h"

namespace vcl {

/// A field of a data set.
///
/// A data set makes its fields when it is opened, from their definitions. Fields that are there
/// already, made by code or with a form file (persistent ones), are taken instead, and are then all
/// that it has.
///
/// Reading converts the value, or raises EDatabaseError where it is none of that sort; Null reads
/// as 0, False or an empty text. Writing needs a data set in dsEdit or dsInsert and raises
/// EDatabaseError for a value that the field cannot hold; then the former one stays. An empty text
/// makes all fields but those of texts Null.
class VCL_API TField : public TComponent {
 public:
  ~TField() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& FieldName() const { return FFieldName; }
  /// The name of the field in the data.
  void SetFieldName(const std::string& fieldName);
  TFieldType DataType() const { return FDataType; }
  /// What users see in front of the value or above the column: FieldName unless it is set.
  const std::string& DisplayLabel() const { return FLabel.empty() ? FFieldName : FLabel; }
  void SetDisplayLabel(const std::string& label);
  TFieldKind FieldKind() const { return FFieldKind; }
  /// Where the values are. Fields that are calculated or looked up are in no record: they are not
  /// among the definitions, and nothing but OnCalcFields writes them. Raises EDatabaseError while
  /// the data set is open.
  void SetFieldKind(TFieldKind kind);
  const std::string& KeyFields() const { return FKeyFields; }
  /// fkLookup: the fields of this data set whose values are sought, with semicolons between them.
  void SetKeyFields(const std::string& names);
  TDataSet* LookupDataSet() const { return FLookupDataSet; }
  /// fkLookup: the data set in which the value is found; Null while it is closed.
  void SetLookupDataSet(TDataSet* dataSet);
  const std::string& LookupKeyFields() const { return FLookupKeyFields; }
  /// fkLookup: the fields of that data set which have the values of KeyFields.
  void SetLookupKeyFields(const std::string& names);
  const std::string& LookupResultField() const { return FLookupResultField; }
  /// fkLookup: the field of that data set whose value this one has.
  void SetLookupResultField(const std::string& name);
  bool LookupCache() const { return FLookupCache; }
  /// fkLookup: what was found is kept until the data set is closed or RefreshLookupList is called.
  void SetLookupCache(bool cache);
  void RefreshLookupList() { FFound.clear(); }
  TDataSet* DataSet() const { return FDataSet; }
  /// Raises EDatabaseError while the data set, the former or the new one, is open.
  void SetDataSet(TDataSet* dataSet);
  /// The place among the data set's fields, from 0; -1 without one.
  int Index() const;
  /// Another place among the data set's fields, which those between give way to; brought to where
  /// there are some. Without effect for a field of no data set.
  void SetIndex(int index);
  /// The place of its value in the records, from 0; -1 while the data set is closed.
  int FieldNo() const { return FFieldNo; }
  /// How many characters a text may have; 0 for any number. Looked at when the record is posted.
  int Size() const { return FSize; }
  void SetSize(int size) { FSize = size; }
  bool Required() const { return FRequired; }
  /// A record without a value in the field cannot be posted.
  void SetRequired(bool required) { FRequired = required; }
  bool ReadOnly() const { return FReadOnly; }
  /// True: the field's value cannot be changed, by code neither.
  void SetReadOnly(bool readOnly) { FReadOnly = readOnly; }
  bool Visible() const { return FVisible; }
  /// False: grids show no column of the field.
  void SetVisible(bool visible);
  /// How many characters wide a column is.
  int DisplayWidth() const { return FDisplayWidth ? FDisplayWidth : DefaultWidth(); }
  void SetDisplayWidth(int width);
  const std::string& EditMask() const { return FEditMask; }
  /// What may be typed for the value in edits and grids, in TMaskText's language; texts are shown
  /// in it, too, but for those that do not fit it. Empty for anything. Raises EMaskError for a
  /// malformed mask, and then the old one stays.
  void SetEditMask(const std::string& mask);
  /// True when data-aware controls may write it.
  bool CanModify() const;

  TFieldValue Value() const;
  void SetValue(const TFieldValue& value);
  /// The value before the record was edited.
  TFieldValue OldValue() const;
  bool IsNull() const;
  void Clear() { SetValue({}); }
  std::string AsString() const;
  void SetAsString(const std::string& text) { SetValue(text); }
  int AsInteger() const;
  void SetAsInteger(int value) { SetValue(std::int64_t{value}); }
  std::int64_t AsLargeInt() const;
  void SetAsLargeInt(std::int64_t value) { SetValue(value); }
  double AsFloat() const;
  void SetAsFloat(double value) { SetValue(value); }
  double AsCurrency() const { return AsFloat(); }
  void SetAsCurrency(double value) { SetValue(value); }
  bool AsBoolean() const;
  void SetAsBoolean(bool value);
  TDateTime AsDateTime() const;
  void SetAsDateTime(TDateTime value);

  /// The value as a control shows it, resp. as it begins to edit it: by OnGetText or the field's
  /// format.
  std::string DisplayText() const { return ShownText(true); }
  std::string Text() const { return ShownText(false); }
  /// What a user has typed: to OnSetText, else the same as SetAsString.
  void SetText(const std::string& text);

  void Assign(const TPersistent* source) override;
  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return true; }
  void SetParentComponent(TComponent* parent) override;

  /// A value has been written.
  TFieldNotifyEvent OnChange;
  /// Before a value is written, which the field reads as already. Raising refuses it.
  TFieldNotifyEvent OnValidate;
  /// The field is shown or begins to be edited: the handler gives the text for its value.
  TFieldGetTextEvent OnGetText;
  /// A text has been typed: the handler writes the value that it says.
  TFieldSetTextEvent OnSetText;

 protected:
  TField(TComponent* owner, TFieldType dataType) : TComponent(owner), FDataType(dataType) {}
  /// What the field keeps for a value that is not Null. Raises EDatabaseError.
  virtual TFieldValue Accept(const TFieldValue& value) const = 0;
  /// The text of a value that is not Null and no text; `display` where it is only shown.
  virtual std::string ToText(const TFieldValue& value, bool display) const = 0;
  virtual int DefaultWidth() const { return 10; }
  /// True when a TDateTime is meant by a floating number.
  virtual bool HoldsDates() const { return false; }
  /// EDatabaseError: 'value' is not a valid `kind` value for field 'X'.
  [[noreturn]] void Refuse(const TFieldValue& value, const char* kind) const;
  void LayoutChanged();
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TDataSet;
  friend class TFields;
  [[noreturn]] void NoSuchAccess(const char* kind) const;
  const TFieldValue& Raw() const;
  std::string TextOf(const TFieldValue& value, bool display) const;
  std::string Masked(const std::string& text) const;
  std::string ShownText(bool display) const;
  void CheckPosted() const;
  void Write(const TFieldValue& value);
  TFieldValue Convert(const TFieldValue& value) const {
    return vcl::IsNull(value) ? value : Accept(value);
  }
  TFieldValue LookUp();
  template <class T>
  void SetForLookup(T& property, const T& value);

  TFieldType FDataType;
  std::string FFieldName, FLabel, FEditMask;
  TFieldKind FFieldKind = fkData;
  std::string FKeyFields, FLookupKeyFields, FLookupResultField;
  TDataSet* FLookupDataSet = nullptr;
  bool FLookupCache = false;
  std::map<TRecord, TFieldValue> FFound;
  TDataSet* FDataSet = nullptr;
  int FFieldNo = -1;
  int FSize = 0;
  int FDisplayWidth = 0;
  bool FRequired = false;
  bool FReadOnly = false;
  bool FVisible = true;
  const TFieldValue* FValidating = nullptr;
};

/// The fields of a data set, in their order.
class VCL_API TFields {
 public:
  int Count() const { return static_cast<int>(FFields.size()); }
  /// Raises EListError outside 0 to Count - 1.
  TField* Fields(int index) const;
  TField* operator[](int index) const { return Fields(index); }
  /// The field of that name, compared without case; null when there is none.
  TField* FindField(std::string_view name) const;
  auto begin() const { return FFields.begin(); }
  auto end() const { return FFields.end(); }

 private:
  friend class TField;
  std::vector<TField*> FFields;
};

/// A field for the kind of data; null for ftUnknown.
VCL_API TField* NewField(TFieldType dataType, TComponent* owner);

}  // namespace vcl
