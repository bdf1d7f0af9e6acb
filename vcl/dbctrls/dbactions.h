// The actions of a data set: moving among its records and changing them.
#pragma once

#include "vcl/db/datasource.h"
#include "vcl/stdactions/standardaction.h"

namespace vcl {

/// The base of the actions of data sets: their target is the DataSource's, or, without one, the
/// first data source of the active form. They are disabled while it is closed.
class VCL_API TDataSetAction : public TStandardAction {
 public:
  ~TDataSetAction() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override;
  void ExecuteTarget(TComponent& target) override;

  TDataSource* DataSource() const { return FDataSource; }
  /// The source of the data set that the action works on; null leaves that to the target.
  void SetDataSource(TDataSource* source);

 protected:
  using TStandardAction::TStandardAction;
  TComponent* FixedTarget() const override { return FDataSource; }
  void Notification(TComponent* component, TOperation operation) override;
  /// True when the action has something to do in the data set, which is open.
  virtual bool Can(const TDataSet& data) const = 0;
  virtual void Do(TDataSet& data) = 0;

 private:
  TDataSource* FDataSource = nullptr;
};

/// Goes to the first record.
class VCL_API TDataSetFirst : public TDataSetAction {
 public:
  explicit TDataSetFirst(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Goes to the record before.
class VCL_API TDataSetPrior : public TDataSetAction {
 public:
  explicit TDataSetPrior(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Goes to the next record.
class VCL_API TDataSetNext : public TDataSetAction {
 public:
  explicit TDataSetNext(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Goes to the last record.
class VCL_API TDataSetLast : public TDataSetAction {
 public:
  explicit TDataSetLast(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Begins a new record before the current one.
class VCL_API TDataSetInsert : public TDataSetAction {
 public:
  explicit TDataSetInsert(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Deletes the current record.
class VCL_API TDataSetDelete : public TDataSetAction {
 public:
  explicit TDataSetDelete(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Begins to edit the current record.
class VCL_API TDataSetEdit : public TDataSetAction {
 public:
  explicit TDataSetEdit(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Saves what has been changed in the record.
class VCL_API TDataSetPost : public TDataSetAction {
 public:
  explicit TDataSetPost(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Takes back what has been changed in the record.
class VCL_API TDataSetCancel : public TDataSetAction {
 public:
  explicit TDataSetCancel(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

/// Reads the records again.
class VCL_API TDataSetRefresh : public TDataSetAction {
 public:
  explicit TDataSetRefresh(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  bool Can(const TDataSet& data) const override;
  void Do(TDataSet& data) override;
};

}  // namespace vcl
