// Finding records by the values of some fields.
#include <algorithm>

#include "vcl/db/dataset.h"
#include "vcl/db/private/looking.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/db/private/textmatch.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

struct TKey {
  int FieldNo;
  TFieldValue Value;
};

bool SameText(const std::string& text, const std::string& wanted, TLocateOptions options) {
  const bool ignoreCase = options.Has(loCaseInsensitive);
  if (options.Has(loPartialKey)) return BeginsWith(text, wanted, ignoreCase);
  return text == wanted || (ignoreCase && AnsiSameText(text, wanted));
}

bool Matches(const TFieldValue& value, const TFieldValue& wanted, TLocateOptions options) {
  if (value.index() != wanted.index()) return false;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    return *whole == *std::get_if<std::int64_t>(&wanted);
  }
  const auto* text = std::get_if<std::string>(&value);
  return text ? SameText(*text, *std::get_if<std::string>(&wanted), options) : value == wanted;
}

/// True when the records are ordered by these fields before all others.
bool OrderedBy(const TRecordView* view, const std::vector<TKey>& keys) {
  if (!view || view->Order().size() < keys.size()) return false;
  return std::ranges::equal(keys.begin(), keys.end(), view->Order().begin(),
                            view->Order().begin() + static_cast<std::ptrdiff_t>(keys.size()), {},
                            &TKey::FieldNo, &TOrderField::FieldNo);
}

/// How a record stands to the keys in the order of the view.
int Compare(const TRecord& record, const std::vector<TKey>& keys, const TRecordOrder& order) {
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const auto place = static_cast<std::size_t>(keys[i].FieldNo);
    const int sign = CompareValues(record[place], keys[i].Value);
    if (sign != 0) return order[i].Descending ? -sign : sign;
  }
  return 0;
}

/// True when the records that begin so stand behind all that come before the beginning itself: the
/// order is that of texts without case.
bool BeginsInOrder(const TRecordOrder& order, const std::vector<TKey>& keys,
                   TLocateOptions options) {
  return keys.size() == 1 && !order.front().Descending && options.Has(loPartialKey) &&
         std::holds_alternative<std::string>(keys.front().Value);
}

}  // namespace

std::vector<TField*> TDataSet::FieldList(std::string_view names) const {
  std::vector<TField*> fields;
  for (std::size_t begin = 0; begin <= names.size();) {
    const std::size_t end = std::min(names.find(';', begin), names.size());
    fields.push_back(FieldByName(Trim(names.substr(begin, end - begin))));
    begin = end + 1;
  }
  return fields;
}

/// The index of the first record with these values; -1 when there is none.
int TDataSet::FindRecord(std::string_view keyFields, const TRecord& values,
                         TLocateOptions options) {
  if (IsUniDirectional()) Refuse("A unidirectional dataset cannot be searched");
  const std::vector<TField*> fields = FieldList(keyFields);
  if (fields.size() != values.size()) {
    Refuse(Concat("There are ", std::to_string(values.size()), " values for the fields '",
                  keyFields, "'"));
  }
  std::vector<TKey> keys;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    keys.push_back({fields[i]->FieldNo(), fields[i]->Convert(values[i])});
  }
  const auto matches = [&](const TRecord& record) {
    return std::ranges::all_of(keys, [&](const TKey& key) {
      const auto place = static_cast<std::size_t>(key.FieldNo);
      return Matches(place < record.size() ? record[place] : CalculatedIn(record, key.FieldNo),
                     key.Value, options);
    });
  };
  const bool ordered = OrderedBy(FView.get(), keys);
  const bool byOrder = ordered && !options.Has(loPartialKey);
  const bool fromOrder = ordered && BeginsInOrder(FView->Order(), keys, options);
  const auto compare = [&](const TRecord& record) { return Compare(record, keys, FView->Order()); };
  const int first = byOrder || fromOrder ? FView->LowerBound(compare) : 0;
  int index = first;
  int found = -1;
  FStore->Visit(first, [&](const TRecord& record) {
    if (matches(record)) {
      found = index;
      return false;
    }
    ++index;
    return !byOrder || compare(record) == 0;
  });
  return found;
}

bool TDataSet::Locate(std::string_view keyFields, const TRecord& values, TLocateOptions options) {
  CheckBrowseMode();
  const int found = FindRecord(keyFields, values, options);
  if (found < 0) return false;
  Jump([this, found] {
    GoTo(found);
    FBof = FEof = IsEmpty();
  });
  return true;
}

TRecord TDataSet::Lookup(std::string_view keyFields, const TRecord& values,
                         std::string_view resultFields) {
  CheckActive();
  const std::vector<TField*> results = FieldList(resultFields);
  const int found = FindRecord(keyFields, values, {});
  TRecord row;
  if (found < 0) return row;
  Look(TRecord(*FStore->At(found)), [&] {
    for (const TField* field : results) row.push_back(field->Value());
  });
  return row;
}

}  // namespace vcl
