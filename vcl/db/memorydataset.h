// TMemoryDataSet: records in memory.
#pragma once

#include "vcl/db/dataset.h"

namespace vcl {

class TStream;

/// How records are saved: a line for each, with tabs between the values; or JSON.
enum TDataFormat { dfText, dfJson };

/// Records in memory, with the fields that FieldDefs defines. They stay while the data set is
/// closed; when it is opened with other definitions, the values of the fields that are there again
/// under the same name and kind are kept.
class VCL_API TMemoryDataSet : public TDataSet {
 public:
  explicit TMemoryDataSet(TComponent* owner) : TDataSet(owner) {}
  ~TMemoryDataSet() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  using TDataSet::IndexFieldNames;
  /// The fields by which the records are ordered, such as "Name;Born DESC", which is from the
  /// latest to the earliest: Null first, texts by the user's language without case, and what is
  /// equal as it came. A record goes to its place when it is posted.
  void SetIndexFieldNames(const std::string& names) { TDataSet::SetIndexFieldNames(names); }
  using TDataSet::MasterFields;
  /// The fields of MasterSource's data set, with semicolons between them, that the first fields of
  /// IndexFieldNames belong to: the records are shown that have the values of the master's current
  /// record there, and new ones get them. While the master is closed, all are shown.
  void SetMasterFields(const std::string& names) { TDataSet::SetMasterFields(names); }

  /// Forgets all records.
  void EmptyTable();

  /// Save the fields' definitions and all records, whatever is shown of them, in UTF-8. Raise what
  /// the stream raises; EInOutError when the file cannot be replaced, which is as before then; and
  /// EDatabaseError for a value of another kind than its definition says.
  void SaveToStream(TStream& stream, TDataFormat format = dfText);
  void SaveToFile(const std::string& fileName, TDataFormat format = dfText);
  /// Take fields and records from what was saved in either format, in the place of all that there
  /// were, and open the data set. Raise EDatabaseError with the line for anything else, and when a
  /// persistent field is not among the definitions, and EFOpenError; then nothing has changed.
  void LoadFromStream(TStream& stream);
  void LoadFromFile(const std::string& fileName);

 protected:
  TRecordStore& InternalOpen() override;
  void InternalClose() override {}

 private:
  std::string SavedAs(TDataFormat format);
  void Replace(const TFieldDefs& fields, TRecordList records);
  bool Redefined();
  void Rearrange();

  TRecordList FRecords;
  /// What the records were made with.
  TFieldDefs FDefined;
};

}  // namespace vcl
