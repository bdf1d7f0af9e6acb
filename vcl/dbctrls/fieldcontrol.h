// What all controls that show a field of the current record have: the field they are bound to, and
// how the user changes it. Each is a layer over any control.
#pragma once

#include <cstdint>
#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/db/datasource.h"
#include "vcl/rtl/scope.h"

namespace vcl {

namespace detail {

inline constexpr char32_t EnterCharacter = 13;
inline constexpr char32_t EscapeCharacter = 27;

/// The sound for what the user cannot do now.
VCL_API void RefuseInput();
/// True for a character that goes into a text or takes one away.
VCL_API bool ChangesText(char32_t character);
/// True for a key that changes a text without a character.
VCL_API bool ChangesText(std::uint16_t key, TShiftState shift);
/// True for a message that cuts, pastes or deletes.
VCL_API bool ChangesText(const TMessage& message);

}  // namespace detail

/// A control that shows a field of a data source's current record. While the data set is closed, or
/// has no such field, it shows nothing.
template <class TControlBase>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its base's is virtual.
class TFieldControl : public TControlBase {
 public:
  ~TFieldControl() override {
    this->AnnounceEnd();
    FLink.SetDataSource(nullptr);
  }

  const std::string& DataField() const { return FLink.FieldName(); }
  /// The name of the field that is shown.
  void SetDataField(const std::string& name) {
    FLink.SetFieldName(name);
    if (!FLink.Active()) ShowNow();
  }
  TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set whose field is shown; null for none.
  void SetDataSource(TDataSource* dataSource) {
    FLink.SetDataSource(dataSource);
    if (dataSource) dataSource->FreeNotification(this);
  }
  /// Null while the data set is closed or has no such field.
  TField* Field() const { return FLink.Field(); }

 protected:
  explicit TFieldControl(TComponent* owner) : TControlBase(owner) {
    FLink.OnDataChange = [this](TObject*) { ShowNow(); };
    FLink.OnActiveChange = FLink.OnDataChange;
  }
  /// Shows the field's value, or nothing without a field.
  virtual void ShowField() = 0;
  /// True while that is going on, so that it is no change by the user.
  bool ShowingField() const { return FShowing; }
  void ShowNow() {
    if (this->Destroying() || FHolding) return;
    const TSetFor showing(FShowing, true, this);
    ShowField();
  }
  /// While it is held, what the control shows stays.
  bool& Holding() { return FHolding; }
  TFieldDataLink& Link() { return FLink; }
  const TFieldDataLink& Link() const { return FLink; }

 private:
  TFieldDataLink FLink;
  bool FShowing = false;
  bool FHolding = false;
};

/// A control by which the user changes a field, too. To change it begins to edit the record, where
/// the data source allows that; the change is written into the field by Enter, when the focus
/// leaves and when the record is posted, and Escape takes it back. A value that the field refuses
/// keeps the focus.
template <class TControlBase>
class TFieldEditor : public TFieldControl<TControlBase> {
 public:
  bool ReadOnly() const { return this->Link().ReadOnly(); }
  /// True: the user cannot change the field here.
  void SetReadOnly(bool readOnly) { this->Link().SetReadOnly(readOnly); }
  /// True while the user may change the field: the record is being edited, or that may begin.
  bool MayEditField() const {
    const TDataSource* const source = this->DataSource();
    return this->Link().CanModify() && (this->Link().Editing() || (source && source->AutoEdit()));
  }

 protected:
  explicit TFieldEditor(TComponent* owner) : TFieldControl<TControlBase>(owner) {
    this->Link().OnUpdateData = [this](TObject*) { WriteField(); };
    this->Link().OnEditingChange = [this](TObject*) {
      if (!this->Destroying()) EditingChanged();
    };
  }
  /// Writes into the field what the user has made of it.
  virtual void WriteField() = 0;
  /// The record has begun to be edited, or is no longer.
  virtual void EditingChanged() {}
  /// True for a control in which Enter is a character like others.
  virtual bool KeepsEnter() const { return false; }
  /// What has been changed is taken back.
  virtual void PutBack() { this->Link().Reset(); }
  /// The field refuses what it was to be given: the focus comes back.
  virtual void KeepFocus() { this->SetFocus(); }

  /// Begins to edit the record; false, with a sound, where that is not possible.
  bool EditField() {
    const TWatch watch(this);
    const bool edits = this->Link().Edit();
    if (watch.Gone()) return false;
    if (!edits) detail::RefuseInput();
    return edits;
  }
  /// The user has changed what the control shows. Where the record cannot be edited, the field's
  /// value is shown again.
  bool TakeChange() {
    const TWatch watch(this);
    const TOnFailure back([this] { this->ShowNow(); }, this);
    bool edits;
    {
      const TSetFor holding(this->Holding(), true, this);
      edits = EditField();
    }
    if (watch.Gone()) return false;
    if (edits) {
      this->Link().Modified();
    } else {
      this->ShowNow();
    }
    return edits && !watch.Gone();
  }
  void KeyPress(char32_t& key) override {
    const TWatch watch(this);
    TControlBase::KeyPress(key);
    if (watch.Gone()) return;
    if (key == detail::EscapeCharacter) {
      key = 0;
      PutBack();
    } else if (key == detail::EnterCharacter && !KeepsEnter()) {
      key = 0;
      this->Link().UpdateRecord();
    }
  }
  void DoExit() override {
    const TWatch watch(this);
    {
      const TOnFailure refused([this] { KeepFocus(); }, this);
      this->Link().UpdateRecord();
    }
    if (!watch.Gone()) TControlBase::DoExit();
  }
};

/// One in which the user types a text, which is that of the field as it begins to be edited while
/// the focus is there.
template <class TControlBase>
class TFieldTextEditor : public TFieldEditor<TControlBase> {
 public:
  /// Also while typing would begin to edit the record.
  bool CanModify() const override { return this->MayEditField(); }

 protected:
  explicit TFieldTextEditor(TComponent* owner) : TFieldEditor<TControlBase>(owner) {
    AllowTyping();
  }
  bool Inside() const { return FInside; }
  virtual void AllowTyping() { TControlBase::SetReadOnly(!this->Link().Editing()); }
  void ShowTheText(const std::string& text) {
    if (text != this->Text()) this->SetText(text);
  }
  void ShowField() override {
    AllowTyping();
    const TField* const field = this->Field();
    ShowTheText(!field ? std::string() : FInside ? field->Text() : field->DisplayText());
  }
  void WriteField() override { this->Field()->SetText(this->Text()); }
  void EditingChanged() override { AllowTyping(); }
  void PutBack() override {
    const TWatch watch(this);
    this->Link().Reset();
    if (!watch.Gone()) this->SelectAll();
  }
  void KeepFocus() override {
    this->SelectAll();
    this->SetFocus();
  }

  void Change() override {
    if (!this->ShowingField()) this->Link().Modified();
    TControlBase::Change();
  }
  void KeyDown(std::uint16_t& key, TShiftState shift) override {
    const TWatch watch(this);
    TControlBase::KeyDown(key, shift);
    if (!watch.Gone() && detail::ChangesText(key, shift)) this->Link().Edit();
  }
  void KeyPress(char32_t& key) override {
    const TWatch watch(this);
    TFieldEditor<TControlBase>::KeyPress(key);
    if (watch.Gone()) return;
    const bool changes =
        detail::ChangesText(key) || (key == detail::EnterCharacter && this->KeepsEnter());
    if (changes && !this->EditField()) key = 0;
  }
  void Dispatch(TMessage& message) override {
    // The menu of the system's edit sends these too.
    const TWatch watch(this);
    if (detail::ChangesText(message)) this->Link().Edit();
    if (!watch.Gone()) TControlBase::Dispatch(message);
  }
  void DoEnter() override {
    const TWatch watch(this);
    FInside = true;
    if (this->Link().CanModify() && !this->Link().HasChange()) this->ShowNow();
    if (!watch.Gone()) TControlBase::DoEnter();
  }
  void DoExit() override {
    const TWatch watch(this);
    {
      const TOnFailure refused([this] { KeepFocus(); }, this);
      this->Link().UpdateRecord();
    }
    if (watch.Gone()) return;
    FInside = false;
    this->ShowNow();
    // What the field is given has been written above.
    if (!watch.Gone()) TControlBase::DoExit();  // NOLINT(bugprone-parent-virtual-call)
  }

 private:
  bool FInside = false;
};

}  // namespace vcl
