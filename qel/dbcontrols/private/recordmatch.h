// TRecordMatch: whether a record is what is looked for.
#pragma once

#include <string>
#include <vector>

#include "qel/dbcontrols/Qeltdbsearchform.h"

namespace qel {

/// Compares what fields show with a text.
class TRecordMatch {
 public:
  TRecordMatch(const std::string& text, TQELDBSearchOptions options);
  /// Whether one of the fields, of the record that they hold now, matches.
  bool operator()(const vcl::TDataSet& data, const std::vector<std::string>& fields) const;

 private:
  std::wstring Folded(const std::string& text) const;
  bool Matches(const vcl::TField* field) const;

  TQELDBSearchOptions FOptions;
  std::wstring FText;
};

}  // namespace qel
