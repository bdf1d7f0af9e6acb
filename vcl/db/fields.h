// The kinds of fields.
#pragma once

#include "vcl/db/field.h"

namespace vcl {

/// A text of limited length.
class VCL_API TStringField : public TField {
 public:
  explicit TStringField(TComponent* owner) : TStringField(owner, ftString) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  TStringField(TComponent* owner, TFieldType dataType) : TField(owner, dataType) {}
  TFieldValue Accept(const TFieldValue& value) const override;
  std::string ToText(const TFieldValue& value, bool display) const override;
  int DefaultWidth() const override { return Size() ? Size() : 20; }
};

/// Bytes of any number.
class VCL_API TBlobField : public TStringField {
 public:
  explicit TBlobField(TComponent* owner) : TBlobField(owner, ftBlob) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  std::int64_t BlobSize() const { return static_cast<std::int64_t>(AsString().size()); }
  /// Raise EFOpenError, EFCreateError, EReadError and EWriteError as streams do.
  void LoadFromFile(const std::string& fileName);
  void SaveToFile(const std::string& fileName) const;

 protected:
  using TStringField::TStringField;
  int DefaultWidth() const override { return 20; }
};

/// A long text.
class VCL_API TMemoField : public TBlobField {
 public:
  explicit TMemoField(TComponent* owner) : TBlobField(owner, ftMemo) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// What fields of numbers have in common.
class VCL_API TNumericField : public TField {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// FormatFloat's format for DisplayText, with the user's decimal sign; empty for the usual one.
  /// Whole numbers beyond 2^53 lose their last digits in it.
  const std::string& DisplayFormat() const { return FDisplayFormat; }
  void SetDisplayFormat(const std::string& format);

 protected:
  using TField::TField;
  std::string ToText(const TFieldValue& value, bool display) const override;

 private:
  std::string FDisplayFormat;
};

/// Whole numbers; a floating one is rounded.
class VCL_API TIntegerField : public TNumericField {
 public:
  explicit TIntegerField(TComponent* owner) : TIntegerField(owner, ftInteger) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  using TNumericField::TNumericField;
  TFieldValue Accept(const TFieldValue& value) const override;
};

class VCL_API TSmallintField : public TIntegerField {
 public:
  explicit TSmallintField(TComponent* owner) : TIntegerField(owner, ftSmallint) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

class VCL_API TLargeintField : public TIntegerField {
 public:
  explicit TLargeintField(TComponent* owner) : TIntegerField(owner, ftLargeint) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  int DefaultWidth() const override { return 15; }
};

class VCL_API TFloatField : public TNumericField {
 public:
  explicit TFloatField(TComponent* owner) : TFloatField(owner, ftFloat) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  using TNumericField::TNumericField;
  TFieldValue Accept(const TFieldValue& value) const override;
};

/// An amount of money: shown with two decimals unless DisplayFormat says else.
class VCL_API TCurrencyField : public TFloatField {
 public:
  explicit TCurrencyField(TComponent* owner) : TFloatField(owner, ftCurrency) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  std::string ToText(const TFieldValue& value, bool display) const override;
};

class VCL_API TBCDField : public TFloatField {
 public:
  explicit TBCDField(TComponent* owner) : TFloatField(owner, ftBCD) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

/// True or false.
class VCL_API TBooleanField : public TField {
 public:
  explicit TBooleanField(TComponent* owner) : TField(owner, ftBoolean) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The texts for true and false, with a semicolon between them; empty for "True" and "False",
  /// which are understood in any case.
  const std::string& DisplayValues() const { return FDisplayValues; }
  void SetDisplayValues(const std::string& values);

 protected:
  TFieldValue Accept(const TFieldValue& value) const override;
  std::string ToText(const TFieldValue& value, bool display) const override;
  int DefaultWidth() const override { return 5; }

 private:
  std::string Word(bool value) const;
  std::string FDisplayValues;
};

/// A date and a time of day; its texts are in the formats of FormatSettings.
class VCL_API TDateTimeField : public TField {
 public:
  explicit TDateTimeField(TComponent* owner) : TDateTimeField(owner, ftDateTime) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// FormatDateTime's format for DisplayText; empty for the usual one.
  const std::string& DisplayFormat() const { return FDisplayFormat; }
  void SetDisplayFormat(const std::string& format);

 protected:
  TDateTimeField(TComponent* owner, TFieldType dataType) : TField(owner, dataType) {}
  TFieldValue Accept(const TFieldValue& value) const override;
  std::string ToText(const TFieldValue& value, bool display) const override;
  int DefaultWidth() const override { return 18; }
  bool HoldsDates() const override { return true; }

 private:
  std::string FDisplayFormat;
};

class VCL_API TDateField : public TDateTimeField {
 public:
  explicit TDateField(TComponent* owner) : TDateTimeField(owner, ftDate) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  int DefaultWidth() const override { return 10; }
};

class VCL_API TTimeField : public TDateTimeField {
 public:
  explicit TTimeField(TComponent* owner) : TDateTimeField(owner, ftTime) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  int DefaultWidth() const override { return 10; }
};

}  // namespace vcl
