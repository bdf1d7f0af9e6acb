// The actions of a data set: when they can work, and what they do.
#include "vcl/dbctrls/dbactions.h"

#include "vcl/rtl/properties.h"

namespace vcl {

namespace {

bool IsEditing(const TDataSet& data) { return data.State() == dsEdit || data.State() == dsInsert; }

}  // namespace

const TClass& TDataSetAction::Class() {
  using T = TDataSetAction;
  static const TClass info =
      Describe<T, TStandardAction>("vcl::TDataSetAction", "vcl/dbctrls/dbctrls.h",
                                   {
                                       Property<&T::DataSource, &T::SetDataSource>("DataSource"),
                                   });
  return info;
}

TDataSetAction::~TDataSetAction() {
  AnnounceEnd();
  SetDataSource(nullptr);
}

void TDataSetAction::SetDataSource(TDataSource* source) {
  if (FDataSource) FDataSource->RemoveFreeNotification(this);
  FDataSource = source;
  if (source) source->FreeNotification(this);
}

void TDataSetAction::Notification(TComponent* component, TOperation operation) {
  TStandardAction::Notification(component, operation);
  if (operation == opRemove && component == FDataSource) FDataSource = nullptr;
}

bool TDataSetAction::HandlesTarget(const TComponent& target) const {
  const auto* source = dynamic_cast<const TDataSource*>(&target);
  return source && source->State() != dsInactive;
}

void TDataSetAction::UpdateTarget(TComponent* target) {
  SetEnabled(target && Can(*dynamic_cast<TDataSource&>(*target).DataSet()));
}

void TDataSetAction::ExecuteTarget(TComponent& target) {
  Do(*dynamic_cast<TDataSource&>(target).DataSet());
}

const TClass& TDataSetFirst::Class() {
  static const TClass info =
      Describe<TDataSetFirst, TDataSetAction>("vcl::TDataSetFirst", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetFirst::TDataSetFirst(TComponent* owner)
    : TDataSetAction(owner, "&First", "Goes to the first record") {}

bool TDataSetFirst::Can(const TDataSet& data) const { return !data.Bof() || IsEditing(data); }
void TDataSetFirst::Do(TDataSet& data) { data.First(); }

const TClass& TDataSetPrior::Class() {
  static const TClass info =
      Describe<TDataSetPrior, TDataSetAction>("vcl::TDataSetPrior", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetPrior::TDataSetPrior(TComponent* owner)
    : TDataSetAction(owner, "&Prior", "Goes to the record before") {}

bool TDataSetPrior::Can(const TDataSet& data) const { return !data.Bof() || IsEditing(data); }
void TDataSetPrior::Do(TDataSet& data) { data.Prior(); }

const TClass& TDataSetNext::Class() {
  static const TClass info =
      Describe<TDataSetNext, TDataSetAction>("vcl::TDataSetNext", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetNext::TDataSetNext(TComponent* owner)
    : TDataSetAction(owner, "&Next", "Goes to the next record") {}

bool TDataSetNext::Can(const TDataSet& data) const { return !data.Eof() || IsEditing(data); }
void TDataSetNext::Do(TDataSet& data) { data.Next(); }

const TClass& TDataSetLast::Class() {
  static const TClass info =
      Describe<TDataSetLast, TDataSetAction>("vcl::TDataSetLast", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetLast::TDataSetLast(TComponent* owner)
    : TDataSetAction(owner, "&Last", "Goes to the last record") {}

bool TDataSetLast::Can(const TDataSet& data) const { return !data.Eof() || IsEditing(data); }
void TDataSetLast::Do(TDataSet& data) { data.Last(); }

const TClass& TDataSetInsert::Class() {
  static const TClass info =
      Describe<TDataSetInsert, TDataSetAction>("vcl::TDataSetInsert", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetInsert::TDataSetInsert(TComponent* owner)
    : TDataSetAction(owner, "&Insert", "Begins a new record") {}

bool TDataSetInsert::Can(const TDataSet& data) const { return data.CanModify(); }
void TDataSetInsert::Do(TDataSet& data) { data.Insert(); }

const TClass& TDataSetDelete::Class() {
  static const TClass info =
      Describe<TDataSetDelete, TDataSetAction>("vcl::TDataSetDelete", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetDelete::TDataSetDelete(TComponent* owner)
    : TDataSetAction(owner, "&Delete", "Deletes the record") {}

bool TDataSetDelete::Can(const TDataSet& data) const { return data.CanModify() && !data.IsEmpty(); }
void TDataSetDelete::Do(TDataSet& data) { data.Delete(); }

const TClass& TDataSetEdit::Class() {
  static const TClass info =
      Describe<TDataSetEdit, TDataSetAction>("vcl::TDataSetEdit", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetEdit::TDataSetEdit(TComponent* owner)
    : TDataSetAction(owner, "&Edit", "Begins to edit the record") {}

bool TDataSetEdit::Can(const TDataSet& data) const { return data.CanModify() && !IsEditing(data); }
void TDataSetEdit::Do(TDataSet& data) { data.Edit(); }

const TClass& TDataSetPost::Class() {
  static const TClass info =
      Describe<TDataSetPost, TDataSetAction>("vcl::TDataSetPost", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetPost::TDataSetPost(TComponent* owner)
    : TDataSetAction(owner, "P&ost", "Saves the record") {}

bool TDataSetPost::Can(const TDataSet& data) const { return IsEditing(data); }
void TDataSetPost::Do(TDataSet& data) { data.Post(); }

const TClass& TDataSetCancel::Class() {
  static const TClass info =
      Describe<TDataSetCancel, TDataSetAction>("vcl::TDataSetCancel", "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetCancel::TDataSetCancel(TComponent* owner)
    : TDataSetAction(owner, "&Cancel", "Takes the record's changes back") {}

bool TDataSetCancel::Can(const TDataSet& data) const { return IsEditing(data); }
void TDataSetCancel::Do(TDataSet& data) { data.Cancel(); }

const TClass& TDataSetRefresh::Class() {
  static const TClass info = Describe<TDataSetRefresh, TDataSetAction>("vcl::TDataSetRefresh",
                                                                       "vcl/dbctrls/dbctrls.h", {});
  return info;
}

TDataSetRefresh::TDataSetRefresh(TComponent* owner)
    : TDataSetAction(owner, "&Refresh", "Reads the records again") {}

bool TDataSetRefresh::Can(const TDataSet& /*data*/) const { return true; }
void TDataSetRefresh::Do(TDataSet& data) { data.Refresh(); }

}  // namespace vcl
