// Where a data set's records are while it is open.
#pragma once

#include <functional>
#include <optional>

#include "vcl/db/dbtypes.h"

namespace vcl {

/// Names a record for as long as its data set keeps it; see TDataSet::Bookmark.
using TBookmark = std::int64_t;

/// Records by index, from 0.
class VCL_API TRecordStore {
 public:
  virtual ~TRecordStore() = default;
  /// Null behind the last record. The pointer is valid until the next call; where the store keeps
  /// its records and all have been counted, until one of them changes.
  virtual const TRecord* At(int index) = 0;
  virtual int Count() = 0;
  /// Hands the records from the index on to `each`, one after another, until that returns false;
  /// true when all have been seen. `each` may change the store.
  using TVisitor = std::function<bool(const TRecord&)>;
  virtual bool Visit(int from, const TVisitor& each);
  /// These return the index that the record has then; -1 when it is not among them, as one that a
  /// filter hides.
  virtual int Insert(int index, const TRecord& record) = 0;
  virtual int Replace(int index, const TRecord& record) = 0;
  virtual void Erase(int index) = 0;
  virtual TBookmark BookmarkOf(int index) = 0;
  /// The index of the record; -1 when it has gone.
  virtual int IndexOf(TBookmark bookmark) = 0;
};

/// Keeps records in memory. Inserting and erasing cost little where the last of either was.
class VCL_API TRecordList : public TRecordStore {
 public:
  const TRecord* At(int index) override;
  int Count() override { return Size(); }
  bool Visit(int from, const TVisitor& each) override;
  int Insert(int index, const TRecord& record) override;
  int Replace(int index, const TRecord& record) override;
  void Erase(int index) override;
  TBookmark BookmarkOf(int index) override;
  int IndexOf(TBookmark bookmark) override;
  void Clear();

 protected:
  /// How many are in memory.
  int Size() const { return static_cast<int>(FBefore.size() + FBehind.size()); }

 private:
  struct TEntry {
    TBookmark Bookmark;
    TRecord Record;
  };
  TEntry* Entry(int index);
  void MoveGap(std::size_t index);

  // The gap between the two, of which the second is in reverse order, moves to where the list
  // changes.
  std::vector<TEntry> FBefore, FBehind;
  TBookmark FLastBookmark = 0;
};

}  // namespace vcl
