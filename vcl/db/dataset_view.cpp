// Which records are shown, and in what order: the filter, the fields of the order, and the master's
// current record.
#include <algorithm>
#include <utility>

#include "vcl/db/dataset.h"
#include "vcl/db/private/filterexpression.h"
#include "vcl/db/private/looking.h"
#include "vcl/db/private/masterlink.h"
#include "vcl/db/private/recordview.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr std::string_view DescendingMark = " DESC";

/// Takes the mark off the end.
bool TakeDescending(std::string& name) {
  const std::size_t length = DescendingMark.size();
  if (name.size() <= length) return false;
  if (!SameText(std::string_view(name).substr(name.size() - length), DescendingMark)) return false;
  name.resize(name.size() - length);
  return true;
}

}  // namespace

/// Gives a property that the view is made by another value; what cannot be carried out leaves it as
/// it was. The current record stays, or else the first one is it.
template <class T>
void TDataSet::ChangeView(T& property, const T& value) {
  if (property == value) return;
  if (!Active()) {
    property = value;
    return;
  }
  CheckBrowseMode();
  Fire(BeforeScroll);
  CheckActive();
  std::unique_ptr<TRecordView> view;
  {
    const TOnFailure restore([&, before = std::exchange(property, value)] { property = before; },
                             this);
    view = MakeView();
  }
  if (!view && !FView) return;
  const TBookmark current = IsEmpty() ? 0 : FStore->BookmarkOf(FIndex);
  UseView(std::move(view));
  FIndex = std::max(0, FStore->IndexOf(current));
  Resync();
  Fire(AfterScroll);
}

void TDataSet::SetFilter(const std::string& filter) { ChangeView(FFilter, filter); }
void TDataSet::SetFiltered(bool filtered) { ChangeView(FFiltered, filtered); }
void TDataSet::SetFilterOptions(TFilterOptions options) { ChangeView(FFilterOptions, options); }
void TDataSet::SetIndexFieldNames(const std::string& names) { ChangeView(FIndexFieldNames, names); }
void TDataSet::SetMasterFields(const std::string& names) { ChangeView(FMasterFields, names); }

void TDataSet::UseView(std::unique_ptr<TRecordView> view) {
  FView = std::move(view);
  FStore = FView ? FView.get() : FRecords;
}

/// Null where all records are shown as they are.
std::unique_ptr<TRecordView> TDataSet::MakeView() {
  TRecordOrder order;
  std::vector<TField*> fields;
  for (std::string_view rest = FIndexFieldNames; !rest.empty();) {
    const std::size_t end = std::min(rest.find(';'), rest.size());
    std::string name(Trim(rest.substr(0, end)));
    const bool descending = TakeDescending(name);
    fields.push_back(FieldByName(Trim(name)));
    if (fields.back()->FieldKind() != fkData) {
      Refuse(Concat("Records cannot be ordered by field '", name, "', which is in none"));
    }
    order.push_back({fields.back()->FieldNo(), descending});
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  std::vector<TFixed> range = MasterRange(fields);
  if (!FFiltered && order.empty()) return FFixed.clear(), nullptr;
  if (IsUniDirectional()) Refuse("A unidirectional dataset cannot be filtered or ordered");
  std::function<bool(const TRecord&)> accepts = MakeFilter();
  if (!range.empty() || !accepts) {
    accepts = [filter = std::move(accepts), range](const TRecord& record) {
      for (const auto& [place, value] : range) {
        if (IsNull(value) || record[place] != value) return false;
      }
      return !filter || filter(record);
    };
  }
  auto view = std::make_unique<TRecordView>(*FRecords, std::move(accepts), std::move(order));
  FFixed = std::move(range);
  return view;
}

/// Empty while records are not filtered.
std::function<bool(const TRecord&)> TDataSet::MakeFilter() const {
  if (!FFiltered) return {};
  const auto find = [this](std::string_view name) -> std::optional<filter::TFieldPlace> {
    const TField* field = FindField(name);
    if (!field) return {};
    return filter::TFieldPlace{field->FieldNo(), field->DataType()};
  };
  const std::shared_ptr<const filter::TNode> condition =
      filter::Compile(FFilter, find,
                      {.IgnoreCase = FFilterOptions.Has(foCaseInsensitive),
                       .PartialCompare = !FFilterOptions.Has(foNoPartialCompare)});
  const std::function<const TFieldValue&(const TRecord&, int)> behind =
      [this](const TRecord& record, int fieldNo) -> const TFieldValue& {
    return CalculatedIn(record, fieldNo);
  };
  return [this, condition, behind](const TRecord& record) {
    return (!condition || filter::Holds(*condition, {record, behind})) &&
           (!OnFilterRecord || AcceptedByHandler(record));
  };
}

bool TDataSet::AcceptedByHandler(const TRecord& record) const {
  bool accept = true;
  Look(record, [&] {
    const TSetFor busy(FBusy, dsFilter, this);
    const TWatch watch(this);
    OnFilterRecord(const_cast<TDataSet*>(this), accept);
    if (watch.Gone()) throw EAbort("The data set was freed by a handler");
  });
  return accept;
}

}  // namespace vcl
