// TDataSet: records of which one is the current one, read and changed through fields.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/db/field.h"
#include "vcl/db/fielddefs.h"
#include "vcl/db/recordstore.h"
#include "vcl/rtl/component.h"

namespace vcl {

class TDataLink;
class TDataSource;
class TMasterLink;
class TRecordView;

/// Base of the data sets.
///
/// An operation that the state does not allow raises EDatabaseError; what the database refuses does
/// too, after OnEditError, OnPostError or OnDeleteError could answer, and then the data set is in
/// the state it was in before. A handler that frees the data set ends the operation it was called
/// from with EAbort.
class VCL_API TDataSet : public TComponent {
 public:
  explicit TDataSet(TComponent* owner);
  /// A class that descends from this one closes in its own destructor, where its records still are.
  ~TDataSet() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Active() const { return FState != dsInactive; }
  /// Opens or closes; while a form file is being read, once that is complete.
  void SetActive(bool active);
  void Open() { SetActive(true); }
  /// Gives up what is being edited.
  void Close() { SetActive(false); }
  TDataSetState State() const { return FBusy == dsInactive ? FState : FBusy; }

  const TFields& Fields() const { return FFields; }
  int FieldCount() const { return FFields.Count(); }
  /// The field of that name, compared without case; null when there is none.
  TField* FindField(std::string_view name) const { return FFields.FindField(name); }
  /// The same; raises EDatabaseError with the name.
  TField* FieldByName(std::string_view name) const;
  TFieldValue FieldValues(std::string_view name) const { return FieldByName(name)->Value(); }
  void SetFieldValues(std::string_view name, const TFieldValue& value);
  TFieldDefs* FieldDefs() const { return FFieldDefs.get(); }
  /// The fields of the data: their names, kinds and limits.
  void SetFieldDefs(const TFieldDefs* definitions) { FFieldDefs->Assign(definitions); }
  /// The names of the fields; without any, of those that FieldDefs defines.
  std::vector<std::string> FieldNames() const;
  /// Defines FieldDefs by the data, where nothing is defined yet, without opening the data set.
  /// Raises what opening the data raises.
  void UpdateFieldDefs();

  /// These post what has been changed before they move.
  void First();
  void Last();
  void Next() { MoveBy(1); }
  void Prior() { MoveBy(-1); }
  /// Returns by how many records it has moved: fewer when there are no more.
  int MoveBy(int distance);
  /// True once it has been tried to move before the first record or behind the last, after First
  /// resp. Last, and while there are no records.
  bool Bof() const { return FBof; }
  bool Eof() const { return FEof; }
  bool IsEmpty() const;
  /// -1 when they cannot be counted.
  int RecordCount() const;
  /// The current record's number, from 1; 0 without one.
  int RecNo() const;
  void SetRecNo(int number);
  /// True when it can only move forward; First begins anew.
  virtual bool IsUniDirectional() const { return false; }

  /// Names the current record, until the data set is closed. Raises EDatabaseError while there is
  /// none, and for a unidirectional data set.
  TBookmark Bookmark() const;
  /// Raises EDatabaseError when the record has gone.
  void GotoBookmark(TBookmark bookmark);
  bool BookmarkValid(TBookmark bookmark) const;
  /// Negative, zero or positive as the first one's record stands before the other's, is the same or
  /// stands behind it. Raises EDatabaseError when one of them has gone.
  int CompareBookmarks(TBookmark a, TBookmark b) const;

  const std::string& Filter() const { return FFilter; }
  /// The condition that the records shown fulfil, such as "Age >= 18 AND City LIKE 'B%'".
  ///
  /// Fields, in brackets where their names are no words, are compared with =, <>, <, >, <= and >=,
  /// LIKE (in which % stands for any characters and _ for one), IN (..., ...) and IS NULL; NOT,
  /// AND, OR, parentheses, + - * and / join what is a condition or a value. Values are numbers,
  /// TRUE, FALSE and texts in quotes: 'O''Brien', 'A*' for what begins so, and dates and times as
  /// '2024-02-28' and '2024-02-28 12:30'. What Null is compared with is not fulfilled.
  ///
  /// Raises EDatabaseError with the place of what is wrong while records are being filtered, and
  /// changes nothing; else that is found when Filtered is set or the data set is opened.
  void SetFilter(const std::string& filter);
  bool Filtered() const { return FFiltered; }
  /// True: only the records that Filter and OnFilterRecord accept are shown. The current record
  /// stays if it is one of them. Unidirectional data sets cannot be filtered.
  void SetFiltered(bool filtered);
  TFilterOptions FilterOptions() const { return FFilterOptions; }
  /// How Filter compares texts.
  void SetFilterOptions(TFilterOptions options);

  /// Makes the first record the current one whose fields, named with semicolons between them, have
  /// these values; false when there is none, and then the current record stays. Looks for the
  /// record by the order of the records where they are ordered by these fields. Raises
  /// EDatabaseError for values that the fields cannot hold.
  bool Locate(std::string_view keyFields, const TRecord& values, TLocateOptions options = {});
  /// The values of the result fields in the record that Locate would find; nothing without one. The
  /// current record stays, and may be being edited.
  TRecord Lookup(std::string_view keyFields, const TRecord& values, std::string_view resultFields);

  bool AutoCalcFields() const { return FAutoCalcFields; }
  /// False: fields are not calculated anew each time when a field of the record is changed, but
  /// only when the record is posted.
  void SetAutoCalcFields(bool autoCalcFields) { FAutoCalcFields = autoCalcFields; }

  TDataSource* MasterSource() const;
  /// The source of the data set whose current record says which records are shown here. Raises
  /// EDatabaseError for one of this data set itself.
  void SetMasterSource(TDataSource* source);

  /// In an empty data set the same as Insert.
  void Edit();
  /// A new record before the current one resp. behind the last. A unidirectional data set inserts
  /// for both where it stands.
  void Insert();
  void Append();
  /// One with these values, in the order of the fields; posted.
  void InsertRecord(const TRecord& values);
  void AppendRecord(const TRecord& values);
  void Post();
  void Cancel();
  void Delete();
  /// Makes all fields Null.
  void ClearFields();
  /// Reads the records again.
  void Refresh();
  bool Modified() const { return FModified; }
  virtual bool CanModify() const { return true; }
  /// Posts what has been changed, or cancels where nothing has.
  void CheckBrowseMode();
  /// Lets the controls write what is being typed into the fields.
  void UpdateRecord();

  /// Between the two, which nest, controls do not follow.
  void DisableControls();
  void EnableControls();
  bool ControlsDisabled() const { return FDisableCount > 0; }

  /// Before the data set is opened.
  TDataSetNotifyEvent BeforeOpen;
  /// The data set has been opened.
  TDataSetNotifyEvent AfterOpen;
  /// Before the data set is closed.
  TDataSetNotifyEvent BeforeClose;
  /// The data set has been closed.
  TDataSetNotifyEvent AfterClose;
  /// Before a record is inserted.
  TDataSetNotifyEvent BeforeInsert;
  /// A record has been inserted, which is not posted yet.
  TDataSetNotifyEvent AfterInsert;
  /// Before the current record is edited.
  TDataSetNotifyEvent BeforeEdit;
  /// The current record is being edited.
  TDataSetNotifyEvent AfterEdit;
  /// Before the record is posted.
  TDataSetNotifyEvent BeforePost;
  /// The record has been posted.
  TDataSetNotifyEvent AfterPost;
  /// Before the changes of the record are given up.
  TDataSetNotifyEvent BeforeCancel;
  /// The changes of the record have been given up.
  TDataSetNotifyEvent AfterCancel;
  /// Before the current record is deleted.
  TDataSetNotifyEvent BeforeDelete;
  /// The record has been deleted.
  TDataSetNotifyEvent AfterDelete;
  /// Before another record becomes the current one.
  TDataSetNotifyEvent BeforeScroll;
  /// Another record has become the current one.
  TDataSetNotifyEvent AfterScroll;
  /// Before the records are read again.
  TDataSetNotifyEvent BeforeRefresh;
  /// The records have been read again.
  TDataSetNotifyEvent AfterRefresh;
  /// A record is shown: the handler gives the calculated fields their values by the other fields.
  TDataSetNotifyEvent OnCalcFields;
  /// A record is looked at while Filtered is set: the handler says whether it is shown. After
  /// another handler has been bound, Refresh filters anew.
  TFilterRecordEvent OnFilterRecord;
  /// A record is being inserted: the handler may set its fields, which does not count as a change.
  TDataSetNotifyEvent OnNewRecord;
  /// Deleting a record has failed: the handler chooses what is done.
  TDataSetErrorEvent OnDeleteError;
  /// Beginning to edit a record has failed: the handler chooses what is done.
  TDataSetErrorEvent OnEditError;
  /// Posting a record has failed: the handler chooses what is done.
  TDataSetErrorEvent OnPostError;

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;

 protected:
  /// Opens the data and defines FieldDefs. The records stay valid until InternalClose.
  virtual TRecordStore& InternalOpen() = 0;
  virtual void InternalClose() = 0;
  /// Go back to the first record where moving back is not possible, resp. read anew.
  virtual void InternalFirst() {}
  virtual void InternalRefresh() {}
  /// Change the database before the records here follow. What they write into the new record is
  /// kept. Raise EDatabaseError.
  virtual void InternalInsert(TRecord& /*record*/) {}
  virtual void InternalUpdate(const TRecord& /*before*/, TRecord& /*record*/) {}
  virtual void InternalDelete(const TRecord& /*record*/) {}
  /// The values of the master that choose the details.
  virtual TRecord MasterValues();
  /// These have changed; the details are chosen anew.
  virtual void InternalFollow() {}
  /// The master that is open; null without one.
  TDataSet* Master() const;
  const std::string& IndexFieldNames() const { return FIndexFieldNames; }
  /// The fields by which the records are ordered, "Name;Born DESC".
  void SetIndexFieldNames(const std::string& names);
  const std::string& MasterFields() const { return FMasterFields; }
  /// The fields of the master that have the values of the first ones of IndexFieldNames.
  void SetMasterFields(const std::string& names);
  void CheckInactive() const;
  /// Raises EDatabaseError when a field that stays while the data set is closed is not defined
  /// there.
  void CheckPersistentFields(const TFieldDefs& definitions) const;
  /// Closes without a word, for destructors.
  void Shut() noexcept;
  void Loaded() override;
  /// EDatabaseError with the data set's name in front.
  [[noreturn]] void Refuse(std::string_view message) const;

 private:
  friend class TField;
  friend class TDataLink;
  friend class TDataSource;

  /// The place of a field, and the value that the records shown have in it.
  struct TFixed {
    std::size_t Place;
    TFieldValue Value;
  };

  void DoOpen();
  void DoClose();
  void MakeFields();
  void FreeMadeFields();
  void CheckActive() const;
  void CheckCanModify() const;
  void DataEvent(TDataEvent event, TField* field = nullptr, int distance = 0);
  void Fire(const TDataSetNotifyEvent& event);
  bool Editing() const { return FState == dsEdit || FState == dsInsert; }
  bool GoTo(int index);
  int Walk(int distance);
  void Jump(const std::function<void()>& move);
  const TRecord* ViewAt(int index) const;
  /// The record that the fields show: the current one, save while a grid looks at others.
  const TRecord* Shown() const { return FLooking ? FLooking : Active() ? ViewAt(FShown) : nullptr; }
  /// Shows a record to the fields; false when there is none.
  bool Show(int index);
  void ShowCurrent() { FShown = FIndex; }
  void BeginInsert(bool atEnd);
  void SetRecord(const TRecord& values);
  void Resync();
  void Attempt(const TDataSetErrorEvent& onError, const std::function<void()>& operation);
  void Write(TField& field, const TFieldValue& value);

  std::vector<TField*> FieldList(std::string_view names) const;
  int FindRecord(std::string_view keyFields, const TRecord& values, TLocateOptions options);

  std::unique_ptr<TRecordView> MakeView();
  void UseView(std::unique_ptr<TRecordView> view);
  template <class T>
  void ChangeView(T& property, const T& value);
  std::function<bool(const TRecord&)> MakeFilter() const;
  bool AcceptedByHandler(const TRecord& record) const;
  std::vector<TFixed> MasterRange(const std::vector<TField*>& fields);
  void FollowMaster();
  void ChooseDetails();
  void PostForMaster();
  void FillFixed();

  template <class Call>
  void Look(const TRecord& record, const Call& call) const;
  const TFieldValue& Calculated(int fieldNo) const;
  const TFieldValue& CalculatedIn(const TRecord& record, int fieldNo) const;
  void Calculate() const;
  void WriteCalculated(const TField& field, const TFieldValue& value);
  bool Calculates() const { return !FCalculated.empty(); }

  TFields FFields;
  std::unique_ptr<TFieldDefs> FFieldDefs;
  std::vector<TDataSource*> FSources;
  /// All records, and those that are shown, which are all where there is no view.
  TRecordStore* FRecords = nullptr;
  TRecordStore* FStore = nullptr;
  std::unique_ptr<TRecordView> FView;
  std::string FFilter, FIndexFieldNames, FMasterFields;
  bool FFiltered = false;
  TFilterOptions FFilterOptions;
  std::unique_ptr<TMasterLink> FMasterLink;
  std::vector<TFixed> FFixed;
  TRecord FMasterValues;
  bool FFollowing = false;
  TDataSetState FState = dsInactive;
  TDataSetState FStateBefore = dsInactive;
  int FIndex = 0;
  int FShown = 0;
  TRecord FEdited, FBefore;
  bool FBof = true;
  bool FEof = true;
  bool FModified = false;
  bool FOpenWhenLoaded = false;
  bool FFieldsMade = false;
  bool FAutoCalcFields = true;
  /// What a handler is being asked for; a record that fields show for it; the values of the
  /// calculated fields and the index of the record that they are those of.
  mutable TDataSetState FBusy = dsInactive;
  mutable const TRecord* FLooking = nullptr;
  mutable TRecord FCalculated;
  mutable int FCalculatedAt = -1;
  int FDisableCount = 0;
};

}  // namespace vcl
