// A form with a data set for tests of data-aware controls.
#pragma once

#include "qel/qel.h"
#include "tests/vcl/standardform.h"
#include "vcl/db/db.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbctrls.h"

namespace qel {

class TDataForm : public vcl::TStandardForm {
 protected:
  TDataForm() {
    Data.FieldDefs()->Add("Name", vcl::ftString);
    Data.FieldDefs()->Add("Count", vcl::ftInteger);
    Data.FieldDefs()->Add("Weight", vcl::ftFloat);
    Data.FieldDefs()->Add("City", vcl::ftInteger);
    Data.FieldDefs()->Add("Notes", vcl::ftMemo);
    Data.FieldDefs()->Add("Photo", vcl::ftBlob);
    Data.Open();
    Data.AppendRecord({std::string("Ann"), std::int64_t{7}, 1.5, std::int64_t{3},
                       std::string("one"), std::string("\1\2")});
    Data.AppendRecord({std::string("B&b"), std::int64_t{500}, 2.25, std::int64_t{99}});
    Data.AppendRecord({});
    Data.First();
    Source.SetDataSet(&Data);
  }
  ~TDataForm() override { testinput::MoveMouse({0, 0}); }
  template <class T>
  auto* MakeBound(const char* field, int left, int top) {
    auto* control = Make<T>(left, top);
    control->SetDataSource(&Source);
    control->SetDataField(field);
    return control;
  }
  std::string Value(const char* field) const { return Data.FieldByName(field)->AsString(); }
  /// What has been raised out of the input since the last time.
  std::string TakeErrors() { return std::exchange(Errors, std::string()); }

  vcl::TMemoryDataSet Data{nullptr};
  vcl::TDataSource Source{nullptr};
};

}  // namespace qel
