// TQELDBLookupedit: a field whose value is the key of a record in another data set, typed as text.
#pragma once

#include <string>
#include <vector>

#include "qel/controls/Qeltlookupedit.h"
#include "qel/dbcontrols/Qelfieldedit.h"
#include "vcl/dbctrls/lookuplist.h"

namespace qel {

/// Edits a field by the texts of another data set's records: what is typed is looked up among them,
/// and the key of the one that is meant becomes the field's value. A key that no record has is
/// shown itself. With LimitToList, a text of no record is refused as it is written, and stays to be
/// corrected; without, it is written itself.
class QEL_API TQELDBLookupedit : public TQELFieldEdit<TQELLookupEdit> {
 public:
  explicit TQELDBLookupedit(vcl::TComponent* owner);
  ~TQELDBLookupedit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  vcl::TDataSource* ListSource() const { return FRows.DataSource(); }
  /// The source of the data set whose records are offered, which is not owned; null for none.
  void SetListSource(vcl::TDataSource* source);
  const std::string& ListField() const { return FRows.ListField(); }
  /// The field whose texts stand for the records; the key field without one.
  void SetListField(const std::string& name);
  const std::string& KeyField() const { return FRows.KeyField(); }
  /// The field of the offered records whose value the field gets.
  void SetKeyField(const std::string& name);

 protected:
  std::string ShownText(const vcl::TField& field) const override;
  void ShowField() override;
  void WriteField() override;
  void Change() override;
  bool FillItems(const std::string& text) override;
  void Choose(int index) override;
  /// What is no item is refused as it is written instead.
  void KeepToList() override {}

 private:
  void RowsChanged();

  vcl::TLookupRows FRows;
  std::vector<vcl::TFieldValue> FKeys;  // Of the items.
  bool FItemsKnown = false;
  bool FChanged = false;  // By the user, and not written yet.
};

}  // namespace qel
