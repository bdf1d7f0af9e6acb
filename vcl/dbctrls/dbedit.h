// TDBEdit: the value of a field, edited in one line.
#pragma once

#include <string>

#include "vcl/db/datasource.h"
#include "vcl/stdctrls/edit.h"

namespace vcl {

/// Shows a field of the current record. Typing begins to edit the record, where the data source
/// allows that; what was typed is written into the field when the focus leaves or the record is
/// posted, and Escape takes it back. A text that the field refuses keeps the focus.
class VCL_API TDBEdit : public TCustomEdit {
 public:
  explicit TDBEdit(TComponent* owner);
  ~TDBEdit() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& DataField() const { return FLink.FieldName(); }
  /// The name of the field that is shown.
  void SetDataField(const std::string& name) { FLink.SetFieldName(name); }
  TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set whose field is shown; null for none.
  void SetDataSource(TDataSource* dataSource);
  /// True: the user cannot change the field here.
  bool ReadOnly() const { return FLink.ReadOnly(); }
  void SetReadOnly(bool readOnly) { FLink.SetReadOnly(readOnly); }
  /// Also while typing would begin to edit the record.
  bool CanModify() const override;
  /// Null while the data set is closed or has no such field.
  TField* Field() const { return FLink.Field(); }

 protected:
  void Change() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void Dispatch(TMessage& message) override;
  void DoEnter() override;
  void DoExit() override;

 private:
  void ShowValue();
  void AllowTyping();

  TFieldDataLink FLink;
  bool FShowing = false;
  bool FInside = false;
};

}  // namespace vcl
