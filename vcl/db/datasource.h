// What connects a data set with the controls that show it: TDataSource, TDataLink and
// TFieldDataLink.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/db/dataset.h"

namespace vcl {

class TDataLink;

/// Stands between a data set and any number of controls.
class VCL_API TDataSource : public TComponent {
 public:
  explicit TDataSource(TComponent* owner);
  /// Its links are without a source from then on.
  ~TDataSource() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The data set's; dsInactive without one and while the source is not enabled.
  TDataSetState State() const;
  TDataSet* DataSet() const { return FDataSet; }
  /// The data set whose records the controls show; null for none.
  void SetDataSet(TDataSet* dataSet);
  bool Enabled() const { return FEnabled; }
  /// False: the controls show nothing of the data set.
  void SetEnabled(bool enabled);
  /// Typing into a control begins to edit the record.
  bool AutoEdit() const { return FAutoEdit; }
  void SetAutoEdit(bool autoEdit) { FAutoEdit = autoEdit; }
  /// Edits the data set's record if AutoEdit is set.
  void Edit();

  /// State is another one.
  TNotifyEvent OnStateChange;
  /// The current record or its values have changed; with the field when it is one only.
  TDataChangeEvent OnDataChange;
  /// Before the record is posted: what is not in the fields yet is to be written there.
  TNotifyEvent OnUpdateData;

 protected:
  void Notification(TComponent* component, TOperation operation) override;

 private:
  friend class TDataSet;
  friend class TDataLink;
  void DataEvent(TDataEvent event, TField* field, int distance);
  void UpdateState();
  void FireEvent(TDataEvent event, TField* field);
  template <class Call>
  void ForLinks(const Call& call);

  TDataSet* FDataSet = nullptr;
  std::vector<TDataLink*> FLinks;
  TDataSetState FState = dsInactive;
  bool FEnabled = true;
  bool FAutoEdit = true;
};

/// What a control has to hear of a data set and to see of its records.
class VCL_API TDataLink : public TPersistent {
 public:
  TDataLink() = default;
  ~TDataLink() override;

  TDataSource* DataSource() const { return FDataSource; }
  void SetDataSource(TDataSource* dataSource);
  /// Null without a source.
  TDataSet* DataSet() const { return FDataSource ? FDataSource->DataSet() : nullptr; }
  /// True while the data set is open and the source enabled.
  bool Active() const { return FActive; }
  bool Editing() const { return FEditing; }
  bool ReadOnly() const { return FReadOnly; }
  void SetReadOnly(bool readOnly);
  /// Begins to edit where the source's AutoEdit allows it; true when the record is being edited.
  bool Edit();
  /// Writes what is being typed into the field, if the record is being edited.
  void UpdateRecord() {
    if (FEditing) UpdateData();
  }

  /// How many records the control shows at once, 1 at first.
  int BufferCount() const { return FBufferCount; }
  void SetBufferCount(int count);
  /// How many of them there are, and which of them is the current one, from 0.
  int RecordCount() const;
  int ActiveRecord() const;
  /// Makes the fields show another of these records until it is set back. It is no move: nobody
  /// hears of it.
  void SetActiveRecord(int index);
  /// Calls with the fields holding any record of the data set, by its number from 0, whichever the
  /// control shows; nothing for one that is not there. It is no move either.
  void WithRecord(int number, const std::function<void()>& call) const;
  /// The number, from 0, of the first record whose fields have these values; -1 for none. As
  /// TDataSet::Locate, but that the current record stays.
  int FindRecord(std::string_view keyFields, const TRecord& values,
                 TLocateOptions options = {}) const;

 protected:
  virtual void ActiveChanged() {}
  virtual void EditingChanged() {}
  /// All may be different.
  virtual void DataSetChanged() { RecordChanged(nullptr); }
  virtual void DataSetScrolled(int /*distance*/) { DataSetChanged(); }
  virtual void LayoutChanged() { DataSetChanged(); }
  /// The field has changed, or all of the record's have when null.
  virtual void RecordChanged(TField* /*field*/) {}
  /// What is being typed is to be written into the field.
  virtual void UpdateData() {}
  /// The data set is about to leave its current record.
  virtual void CheckBrowseMode() {}

 private:
  friend class TDataSource;
  void DataEvent(TDataEvent event, TField* field, int distance);
  void UpdateState();
  void KeepCurrentInside();

  TDataSource* FDataSource = nullptr;
  bool FActive = false;
  bool FEditing = false;
  bool FReadOnly = false;
  int FBufferCount = 1;
  int FFirst = 0;
};

/// The link of a control that shows one field.
class VCL_API TFieldDataLink : public TDataLink {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& FieldName() const { return FFieldName; }
  void SetFieldName(const std::string& fieldName);
  /// Null while the link is not active, and when the data set has no field of that name.
  TField* Field() const;
  bool CanModify() const { return !ReadOnly() && Field() && Field()->CanModify(); }
  /// Begins to edit, where the field allows it.
  bool Edit() { return CanModify() && TDataLink::Edit(); }
  /// The user is changing the value: OnUpdateData is to be fired before the record is posted.
  void Modified() { FModified = true; }
  /// True while what he has made of it is not in the field yet.
  bool HasChange() const { return FModified; }
  /// Shows the field's value again.
  void Reset();

  TNotifyEvent OnActiveChange, OnDataChange, OnEditingChange, OnUpdateData;

 protected:
  void ActiveChanged() override;
  void EditingChanged() override { OnEditingChange(this); }
  void RecordChanged(TField* field) override;
  void UpdateData() override;

 private:
  std::string FFieldName;
  bool FModified = false;
};

}  // namespace vcl
