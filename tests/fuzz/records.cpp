// Any text as a file of records.
#include "tests/fuzz/target.h"
#include "vcl/db/memorydataset.h"
#include "vcl/rtl/streams.h"

namespace {

std::string Saved(vcl::TMemoryDataSet& data, vcl::TDataFormat format) {
  vcl::TStringStream stream;
  data.SaveToStream(stream, format);
  return std::string(stream.DataString());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vcl::TMemoryDataSet records(nullptr);
  vcl::TStringStream file{std::string(Text(data, size))};
  try {
    records.LoadFromStream(file);
  } catch (const vcl::EDatabaseError&) {
    Require(!records.Active() && records.FieldDefs()->Count() == 0,
            "what is wrong changes nothing");
    return 0;
  }
  for (const vcl::TDataFormat format : {vcl::dfText, vcl::dfJson}) {
    const std::string once = Saved(records, format);
    vcl::TMemoryDataSet again(nullptr);
    vcl::TStringStream stream(once);
    again.LoadFromStream(stream);
    Require(Saved(again, format) == once, "what is saved comes back");
  }
  return 0;
}
