// Measuring filters and Locate against loops that are written for the same records.
#include "bench/views.h"

#include <string>
#include <vector>

#include "bench/timing.h"
#include "vcl/db/memorydataset.h"

namespace bench {

namespace {

constexpr int Count = 100'000;

/// The records of a data set, and the same in a vector.
struct TBoth {
  TBoth() {
    Data.FieldDefs()->Add("Id", vcl::ftInteger);
    Data.FieldDefs()->Add("City", vcl::ftString);
    Data.FieldDefs()->Add("Balance", vcl::ftFloat);
    Data.Open();
    for (int i = 0; i < Count; ++i) {
      Plain.push_back({std::int64_t{i}, "City number " + std::to_string(i % 1000), i * 1.25});
      Data.AppendRecord(Plain.back());
    }
    Data.First();
  }
  vcl::TMemoryDataSet Data{nullptr};
  std::vector<vcl::TRecord> Plain;
};

/// How many records of the vector fulfil it.
template <class Holds>
int Filter(const std::vector<vcl::TRecord>& records, const Holds& holds) {
  std::vector<int> shown;
  for (int i = 0; i < Count; ++i) {
    if (holds(records[static_cast<std::size_t>(i)])) shown.push_back(i);
  }
  return static_cast<int>(shown.size());
}

std::int64_t Id(const vcl::TRecord& record) { return std::get<std::int64_t>(record[0]); }
const std::string& City(const vcl::TRecord& record) { return std::get<std::string>(record[1]); }
double Balance(const vcl::TRecord& record) { return std::get<double>(record[2]); }

template <class Holds>
TPair CompareFilter(TBoth& both, const std::string& filter, const Holds& holds) {
  both.Data.SetFiltered(false);
  both.Data.SetFilter(filter);
  volatile int sum = 0;
  return Compare(
      [&] {
        both.Data.SetFiltered(true);
        sum = sum + both.Data.RecordCount();
        both.Data.SetFiltered(false);
      },
      [&] { sum = sum + Filter(both.Plain, holds); });
}

template <class Holds>
TPair CompareLocate(TBoth& both, const char* fields, const vcl::TRecord& key, const Holds& holds) {
  volatile int sum = 0;
  return Compare([&] { sum = sum + both.Data.Locate(fields, key); },
                 [&] {
                   for (const vcl::TRecord& record : both.Plain) {
                     if (!holds(record)) continue;
                     sum = sum + 1;
                     return;
                   }
                 });
}

}  // namespace

void Views() {
  TBoth both;
  const std::string city = "City number 999";
  TTable table(
      "Filtering 100,000 records and finding one, against plain loops over a vector of them",
      "Aim: at most 2.", {"100,000"});
  table.Add(
      "Filter, a number",
      {CompareFilter(both, "Id >= 50000", [](const auto& record) { return Id(record) >= 50000; })});
  table.Add("Filter, a text",
            {CompareFilter(both, "City = 'City number 999'",
                           [&](const auto& record) { return City(record) == city; })});
  table.Add("Filter, three conditions",
            {CompareFilter(both, "Id > 100 AND City = 'City number 999' OR Balance < 50",
                           [&](const auto& record) {
                             return (Id(record) > 100 && City(record) == city) ||
                                    Balance(record) < 50;
                           })});
  const vcl::TRecord last{std::int64_t{Count - 1}};
  const auto isLast = [](const auto& record) { return Id(record) == Count - 1; };
  table.Add("Locate, the last record", {CompareLocate(both, "Id", last, isLast)});
  both.Data.SetIndexFieldNames("Id");
  table.Add("Locate, by the order", {CompareLocate(both, "Id", last, isLast)});
}

}  // namespace bench
