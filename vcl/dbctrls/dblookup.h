// TDBLookupListBox and TDBLookupComboBox: a field whose value is the key of a record in another
// data set, chosen by the texts of that record.
#pragma once

#include <string>

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/dbctrls/lookuplist.h"
#include "vcl/stdctrls/combobox.h"

namespace vcl {

/// What both publish of the records that they offer, over a control that has them as Rows.
template <class TControlBase>
class TLookupEditor : public TFieldEditor<TControlBase> {
 public:
  TDataSource* ListSource() const { return this->LookupRows().DataSource(); }
  /// The source of the data set whose records are offered; null for none.
  void SetListSource(TDataSource* source) {
    this->LookupRows().SetDataSource(source);
    if (source) source->FreeNotification(this);
    this->ShowNow();
  }
  const std::string& KeyField() const { return this->LookupRows().KeyField(); }
  /// The field of the offered records whose value the field gets.
  void SetKeyField(const std::string& name) {
    this->LookupRows().SetKeyField(name);
    this->ShowNow();
  }
  const std::string& ListField() const { return this->LookupRows().ListField(); }
  /// The fields whose texts stand for a record, with semicolons between them; the key field without
  /// any.
  void SetListField(const std::string& names) {
    this->LookupRows().SetListField(names);
    this->ShowNow();
  }
  int ListFieldIndex() const { return this->LookupRows().ListFieldIndex(); }
  /// Which of them, from 0, is searched by typing. Raises EArgumentOutOfRangeException for a
  /// negative place.
  void SetListFieldIndex(int index) {
    this->LookupRows().SetListFieldIndex(index);
    this->ShowNow();
  }

  /// The key of what is shown, which may not have been written yet.
  const TFieldValue& KeyValue() const { return FKey; }

 protected:
  explicit TLookupEditor(TComponent* owner) : TFieldEditor<TControlBase>(owner) {}
  /// Shows the row with the key, or none.
  virtual void ShowKey() = 0;
  void ShowField() override {
    const TField* const field = this->Field();
    FKey = field ? field->Value() : TFieldValue();
    ShowKey();
  }
  void WriteField() override { this->Field()->SetValue(FKey); }
  /// The user has chosen a key; false when that cannot be.
  bool ChooseKey(const TFieldValue& key) {
    const TWatch watch(this);
    FKey = key;
    ShowKey();
    return !watch.Gone() && this->TakeChange();
  }
  /// The rows may be others: what the user has chosen stays.
  void RowsMoved() {
    if (!this->Destroying()) ShowKey();
  }

 private:
  TFieldValue FKey;
};

namespace detail {

/// A list that is chosen from where it stands.
class VCL_API TLookupListBase : public TCustomLookupList {
 public:
  using TCustomLookupList::TCustomLookupList;
  TLookupRows& LookupRows() { return Rows(); }
  const TLookupRows& LookupRows() const { return Rows(); }
};

/// A list that drops down from a control, in a window of its own above all others, which never
/// takes the keyboard.
class VCL_API TPopupLookupList : public TCustomLookupList {
 public:
  explicit TPopupLookupList(TComponent* owner);

  /// Shows so many rows, as far as there are some, below the rectangle of the screen, or above it
  /// where there is no room, with one of them chosen.
  void DropDown(const TRect& below, int rows, int chosen);
  void CloseUp();
  bool DroppedDown() const { return FDown; }

  /// A row has been clicked on.
  TNotifyEvent OnPicked;
  /// The rows may be others.
  TNotifyEvent OnRowsChanged;

 protected:
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  void RowsChanged() override;

 private:
  bool DispatchOwn(TMessage& message);
  bool FDown = false;
};

/// A combo box without items, whose list is one of records.
class VCL_API TLookupComboBase : public TCustomComboBox {
 public:
  explicit TLookupComboBase(TComponent* owner);
  ~TLookupComboBase() override;
  TLookupRows& LookupRows() { return List().Rows(); }
  const TLookupRows& LookupRows() const { return List().Rows(); }

 protected:
  /// The list is the combo box's own.
  TPopupLookupList& List() const { return *FList; }
  /// Shows a text as the only item.
  void ShowOne(const std::string& text);

 private:
  TPopupLookupList* FList;
};

}  // namespace detail

/// A list of the offered records, of which that with the field's value is chosen. Typing goes to
/// the record that begins so. Only the rows that are seen are read.
class VCL_API TDBLookupListBox : public TLookupEditor<detail::TLookupListBase> {
 public:
  explicit TDBLookupListBox(TComponent* owner) : TLookupEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  int RowCount() const;
  /// How many rows are seen: the height follows. Raises EArgumentOutOfRangeException outside 1 to
  /// 1000.
  void SetRowCount(int count);

 protected:
  void ShowKey() override;
  void RowChosen() override;
  void RowsChanged() override;
  void CreateWnd() override;
};

/// A combo box that shows the text of the record with the field's value and, dropped down, a list
/// of all. The arrow keys and typing choose without the list, too; Delete makes the field Null.
/// However many records there are, only those that are seen are read.
class VCL_API TDBLookupComboBox : public TLookupEditor<detail::TLookupComboBase> {
 public:
  explicit TDBLookupComboBox(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  void DoAccessibleAction() override { ListDropped() ? CloseList() : DropList(); }

  int DropDownRows() const { return FDropDownRows; }
  /// How many rows are seen at most when the list is down. Raises EArgumentOutOfRangeException
  /// outside 1 to 1000.
  void SetDropDownRows(int rows);
  int DropDownWidth() const { return FDropDownWidth; }
  /// How wide the list is at least, in pixels; as wide as the combo box for less. Raises
  /// EArgumentOutOfRangeException for a negative width.
  void SetDropDownWidth(int width);
  bool ListDropped() const { return List().DroppedDown(); }
  void DropList();
  /// Closes the list without a choice.
  void CloseList();
  /// The row that is marked in the list; -1 for none.
  int MarkedRow() const { return List().ChosenRow(); }

 protected:
  void ShowKey() override;
  void PutBack() override;
  void ChangeScale(int m, int d) override;
  void Dispatch(TMessage& message) override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DoExit() override;

 private:
  void Pick();
  void TakeMarked();
  bool ListKey(std::uint16_t key, TShiftState shift);
  bool DispatchMouse(TMessage& message);

  int FDropDownRows = 7;
  int FDropDownWidth = 0;
};

}  // namespace vcl
