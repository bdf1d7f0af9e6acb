// Making a data set's fields show a record of its store for a while.
#pragma once

#include "vcl/db/dataset.h"
#include "vcl/rtl/scope.h"

namespace vcl {

template <class Call>
void TDataSet::Look(const TRecord& record, const Call& call) const {
  const TSetFor looking(FLooking, &record, this);
  // What was calculated for this record is none of the current one's.
  const TAtEnd forget([this] { FCalculatedAt = -1; }, this);
  call();
}

}  // namespace vcl
