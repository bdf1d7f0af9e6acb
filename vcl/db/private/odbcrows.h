// The records of a query: kept once they have been read, or read and forgotten.
#pragma once

#include "vcl/db/private/odbcahead.h"
#include "vcl/db/recordstore.h"

namespace vcl::odbc {

/// Reads records as far as they are asked for, and keeps them.
class TCachedRows : public TRecordList {
 public:
  explicit TCachedRows(TStatement& statement) : FStatement(statement) {}
  const TRecord* At(int index) override;
  /// Reads all of them.
  int Count() override;
  /// The statement has been executed again.
  void Restart();

 private:
  bool FetchOne();

  TStatement& FStatement;
  TRecord FFetched;
  bool FEnd = false;
};

/// Keeps the record that was read last, and in front of it the one that was inserted last: as much
/// as is seen by who only moves forward.
class TForwardRows : public TRecordStore {
 public:
  explicit TForwardRows(TStatement& statement) : FAhead(statement) {}
  const TRecord* At(int index) override;
  int Count() override { return -1; }
  int Insert(int index, const TRecord& record) override;
  int Replace(int index, const TRecord& record) override;
  void Erase(int index) override;
  TBookmark BookmarkOf(int) override { return 0; }
  int IndexOf(TBookmark) override { return -1; }
  /// True while nothing but the first record has been read.
  bool AtBeginning() const { return FRow <= 0 && FShift == 0 && FInsertedAt < 0; }
  /// True when it has been tried to read behind the last record.
  bool AtEnd() const { return FEnd; }
  /// Nothing is read until the next record is asked for, so that the connection is free.
  void Pause() { FAhead.Pause(); }
  /// The statement has been executed again.
  void Restart();

 private:
  TReadAhead FAhead;
  TRecord FCurrent, FInserted;
  int FRow = -1;
  int FInsertedAt = -1;
  /// By how much the indexes of what is still to be read have grown by inserting and erasing.
  int FShift = 0;
  bool FEnd = false;
};

}  // namespace vcl::odbc
