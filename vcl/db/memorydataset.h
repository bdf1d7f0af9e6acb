// TMemoryDataSet: records in memory.
#pragma once

#include "vcl/db/dataset.h"

namespace vcl {

/// Records in memory, with the fields that FieldDefs defines. They stay while the data set is
/// closed; when it is opened with other definitions, the values of the fields that are there again
/// under the same name and kind are kept.
class VCL_API TMemoryDataSet : public TDataSet {
 public:
  explicit TMemoryDataSet(TComponent* owner) : TDataSet(owner) {}
  ~TMemoryDataSet() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Forgets all records.
  void EmptyTable();

 protected:
  TRecordStore& InternalOpen() override;
  void InternalClose() override {}

 private:
  bool Redefined();
  void Rearrange();

  TRecordList FRecords;
  /// What the records were made with.
  TFieldDefs FDefined;
};

}  // namespace vcl
