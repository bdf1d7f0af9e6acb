// TRecordMatch: folding and comparing.
#include "qel/dbcontrols/private/recordmatch.h"

#include <algorithm>

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"

namespace qel {

TRecordMatch::TRecordMatch(const std::string& text, TQELDBSearchOptions options)
    : FOptions(options), FText(Folded(text)) {}

std::wstring TRecordMatch::Folded(const std::string& text) const {
  std::wstring wide = vcl::ToUtf16(text);
  if (!FOptions.Has(soCase)) ::CharUpperBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  return wide;
}

bool TRecordMatch::Matches(const vcl::TField* field) const {
  if (!field || field->IsNull()) return false;
  const std::wstring text = Folded(field->DisplayText());
  if (FOptions.Has(soWholeField)) return text == FText;
  return FOptions.Has(soFromStart) ? text.starts_with(FText) : text.find(FText) != text.npos;
}

bool TRecordMatch::operator()(const vcl::TDataSet& data,
                              const std::vector<std::string>& fields) const {
  // A field's OnGetText may free the data set.
  const vcl::TWatch watch(&data);
  return std::ranges::any_of(fields, [&](const std::string& name) {
    return !watch.Gone() && Matches(data.FindField(name));
  });
}

}  // namespace qel
