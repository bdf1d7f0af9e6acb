// Any text as a filter of records.
#include "tests/fuzz/target.h"
#include "vcl/db/memorydataset.h"

namespace {

/// A record of Nulls and one of values.
struct TRecords : vcl::TMemoryDataSet {
  TRecords() : TMemoryDataSet(nullptr) {
    FieldDefs()->Add("A", vcl::ftString);
    FieldDefs()->Add("N", vcl::ftLargeint);
    FieldDefs()->Add("F", vcl::ftFloat);
    FieldDefs()->Add("D", vcl::ftDateTime);
    FieldDefs()->Add("B", vcl::ftBoolean);
    Open();
    AppendRecord({});
    AppendRecord({std::string("Ann"), std::int64_t{3}, 0.5, 45000.5, std::int64_t{1}});
    SetFiltered(true);
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static TRecords records;
  const std::string before = records.Filter();
  const std::string filter(Text(data, size));
  try {
    records.SetFilter(filter);
    Require(records.Filter() == filter, "a filter that is right is taken");
    const int shown = records.RecordCount();
    records.SetFiltered(false);
    records.SetFiltered(true);
    Require(shown == records.RecordCount(), "a filter shows the same records each time");
  } catch (const vcl::EDatabaseError&) {
    Require(records.Filter() == before && records.Filtered(), "what is wrong changes nothing");
  }
  return 0;
}
