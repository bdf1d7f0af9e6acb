// What a data set shows of its records: those that it accepts, in an order.
#pragma once

#include <functional>
#include <vector>

#include "vcl/db/private/recordorder.h"
#include "vcl/db/recordstore.h"

namespace vcl {

/// Stands between a data set and the store of its records. Without an order, records are looked at
/// as they are asked for; with one, all at once.
class TRecordView : public TRecordStore {
 public:
  using TAccepts = std::function<bool(const TRecord&)>;
  /// The store, which must outlive the view, keeps all of its records.
  TRecordView(TRecordStore& records, TAccepts accepts, TRecordOrder order)
      : FRecords(records), FAccepts(std::move(accepts)), FOrder(std::move(order)) {}

  const TRecord* At(int index) override;
  int Count() override;
  /// In an order, the record goes to its place, whatever the index.
  int Insert(int index, const TRecord& record) override;
  int Replace(int index, const TRecord& record) override;
  void Erase(int index) override;
  TBookmark BookmarkOf(int index) override;
  int IndexOf(TBookmark bookmark) override;

  bool Accepts(const TRecord& record) const { return FAccepts(record); }
  const TRecordOrder& Order() const { return FOrder; }
  /// The store's records are others.
  void Reset();
  /// The first record that is not before what is sought; `compare` says how a record stands to it.
  int LowerBound(const std::function<int(const TRecord&)>& compare);

 private:
  bool LookUntil(int size);
  void LookAtAll();
  int PlaceOf(const TRecord& record);
  void Shift(int from, int by);
  bool Ordered() const { return !FOrder.empty(); }
  int Size() const { return static_cast<int>(FShown.size()); }
  int& Shown(int index) { return FShown[static_cast<std::size_t>(index)]; }

  TRecordStore& FRecords;
  TAccepts FAccepts;
  TRecordOrder FOrder;
  /// The indexes of the records that are shown, of all before FLooked.
  std::vector<int> FShown;
  int FLooked = 0;
  bool FComplete = false;
};

}  // namespace vcl
