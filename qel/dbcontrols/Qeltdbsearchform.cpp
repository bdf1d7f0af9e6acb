// TQELDBSearchForm: its table, searching and filtering.
#include "qel/dbcontrols/Qeltdbsearchform.h"

#include <algorithm>

#include "qel/dbcontrols/private/recordmatch.h"
#include "qel/dbcontrols/private/searchwindow.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr ULONGLONG ProgressTime = 100;  // Milliseconds.

std::unique_ptr<TQELButtonDetails> MakeButton(const char* caption) {
  auto details = std::make_unique<TQELButtonDetails>();
  details->SetCaption(caption);
  return details;
}

}  // namespace

/// Goes through the records and moves nothing, unless somebody gives up or frees what is needed.
class TQELDBSearchForm::TScan {
 public:
  explicit TScan(TQELDBSearchForm& search)
      : FSearch(search),
        FWatch(&search),
        FData(search.FLink.DataSet()),
        FFields(search.Searched()),
        FMatch(search.FSearchText, search.FOptions) {}
  /// False when it was given up; the component may be gone then.
  bool Next(int& row, bool& hit) {
    for (;; ++row) {
      bool there = false;
      FSearch.FLink.WithRecord(row, [&] {
        there = true;
        hit = FMatch(*FData, FFields);
      });
      if (FWatch.Gone() || !Same() || !GoOn(row)) return false;
      if (hit || !there) return true;
    }
  }

 private:
  bool Same() const { return FSearch.FLink.Active() && FSearch.FLink.DataSet() == FData; }
  bool GoOn(int row) {
    const ULONGLONG now = ::GetTickCount64();
    if (now - FLast < ProgressTime) return true;
    FLast = now;
    bool giveUp = false;
    FSearch.OnProgress(&FSearch, row + 1, giveUp);
    if (FWatch.Gone() || giveUp) return false;
    if (FSearch.FWindow && !FSearch.FWindow->Progress(row + 1)) return false;
    return !FWatch.Gone() && Same();
  }

  TQELDBSearchForm& FSearch;
  TWatch FWatch;
  vcl::TDataSet* FData;
  std::vector<std::string> FFields;
  TRecordMatch FMatch;
  ULONGLONG FLast = ::GetTickCount64();
};

const vcl::TClass& TQELDBSearchForm::Class() {
  using T = TQELDBSearchForm;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormDialog>(
      "qel::TQELDBSearchForm", "qel/dbcontrols/Qeltdbsearchform.h",
      {
          Property<&T::AllFieldsText, &T::SetAllFieldsText>("AllFieldsText")
              .Default("(all fields)"),
          ReadOnly<&T::CloseButton>("CloseButton"),
          ReadOnly<&T::CountButton>("CountButton"),
          Property<&T::CountText, &T::SetCountText>("CountText").Default("Records found: %s"),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Property<&T::DefaultField, &T::SetDefaultField>("DefaultField").Default(""),
          Property<&T::FieldLabel, &T::SetFieldLabel>("FieldLabel").Default("F&ield:"),
          Property<&T::Fields, &T::SetFields>("Fields"),
          ReadOnly<&T::FilterButton>("FilterButton"),
          ReadOnly<&T::FindButton>("FindButton"),
          ReadOnly<&T::FindNextButton>("FindNextButton"),
          Property<&T::NotFoundText, &T::SetNotFoundText>("NotFoundText")
              .Default("There is no further \"%s\""),
          Property<&T::OptionTexts, &T::SetOptionTexts>("OptionTexts"),
          Property<&T::Options, &T::SetOptions>("Options").Default(TQELDBSearchOptions()),
          Property<&T::ProgressText, &T::SetProgressText>("ProgressText")
              .Default("Records searched: %s"),
          Property<&T::SearchText, &T::SetSearchText>("SearchText").Default(""),
          ReadOnly<&T::ShowAllButton>("ShowAllButton"),
          Property<&T::StayOpen, &T::SetStayOpen>("StayOpen").Default(false),
          Property<&T::TextLabel, &T::SetTextLabel>("TextLabel").Default("&Text:"),
          Event<&T::OnFound>("OnFound"),
          Event<&T::OnNotFound>("OnNotFound"),
          Event<&T::OnProgress>("OnProgress")
              .Type("TQELDBSearchProgress", "vcl::TObject* sender, int records, bool& giveUp"),
      });
  return info;
}

TQELDBSearchForm::TQELDBSearchForm(vcl::TComponent* owner)
    : TQELFormDialog(owner),
      FLink(*this),
      FFields(std::make_unique<vcl::TStringList>()),
      FOptionTexts(std::make_unique<vcl::TStringList>()),
      FFindButton(MakeButton("&Find")),
      FFindNextButton(MakeButton("Find &next")),
      FCountButton(MakeButton("C&ount")),
      FFilterButton(MakeButton("Fi&lter")),
      FShowAllButton(MakeButton("Show &all")),
      FCloseButton(MakeButton("Close")) {
  for (const char* text :
       {"Match &case", "&Whole field", "Field be&gins with it", "From the current &record on"}) {
    FOptionTexts->Add(text);
  }
}

/// What cannot be posted now stays as it is being edited.
TQELDBSearchForm::~TQELDBSearchForm() {
  AnnounceEnd();
  try {
    ShowAll();
  } catch (...) {
    vcl::Application()->HandleCurrentException(nullptr);
  }
  FLink.SetDataSource(nullptr);
}

void TQELDBSearchForm::SetDataSource(vcl::TDataSource* source) {
  if (source == DataSource()) return;
  ShowAll();
  FLink.SetDataSource(source);
  if (source) source->FreeNotification(this);
  FieldsChanged();
}

void TQELDBSearchForm::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELFormDialog::Notification(component, operation);
  if (operation == vcl::opRemove && FKept && component == FKept->Data) FKept.reset();
}

void TQELDBSearchForm::FieldsChanged() {
  if (FWindow) FWindow->FieldsChanged();
}

// What can be searched.

bool TQELDBSearchForm::Refuse(const std::string& reason) {
  FLastError = reason;
  return false;
}

bool TQELDBSearchForm::HasRecords() {
  FLastError.clear();
  if (!FLink.Active()) return Refuse("There are no records to search");
  if (!FLink.DataSet()->IsUniDirectional()) return true;
  return Refuse("A data set that moves only forwards cannot be searched");
}

bool TQELDBSearchForm::Ready() {
  if (FSearching) return Refuse("A search is under way");
  if (!HasRecords()) return false;
  if (FSearchText.empty()) return Refuse("There is nothing to search for");
  if (!Searched().empty()) return true;
  return Refuse(vcl::Concat("There is no field \"", FSearchField, "\" that can be searched"));
}

std::vector<std::string> TQELDBSearchForm::Offered() const {
  std::vector<std::string> names;
  if (!FLink.Active()) return names;
  const vcl::TDataSet& data = *FLink.DataSet();
  const auto add = [&](const vcl::TField* field) {
    if (field && field->DataType() != vcl::ftBlob) names.push_back(field->FieldName());
  };
  for (int i = 0; i < FFields->Count(); ++i) add(data.FindField(FFields->Strings(i)));
  if (FFields->Count() == 0) std::ranges::for_each(data.Fields(), add);
  return names;
}

std::vector<std::string> TQELDBSearchForm::Searched() const {
  if (FSearchField.empty()) return Offered();
  const vcl::TField* const field =
      FLink.Active() ? FLink.DataSet()->FindField(FSearchField) : nullptr;
  if (!field || field->DataType() == vcl::ftBlob) return {};
  return {FSearchField};
}

// Searching.

bool TQELDBSearchForm::GoTo(bool next) {
  if (!Ready()) return false;
  const TWatch watch(this);
  vcl::TDataSet* const data = FLink.DataSet();
  data->CheckBrowseMode();
  if (watch.Gone() || !FLink.Active() || FLink.DataSet() != data) return false;
  int row = std::max(data->RecNo() - 1, 0);
  if (next) {
    row = data->RecNo();
  } else if (!FOptions.Has(soFromCurrent)) {
    row = 0;
  }
  const vcl::TSetFor searching(FSearching, true, this);
  bool hit = false;
  if (!TScan(*this).Next(row, hit)) return false;
  if (!hit) {
    OnNotFound(this);
    return false;
  }
  data->SetRecNo(row + 1);
  if (watch.Gone()) return false;
  FFound = true;
  OnFound(this);
  return true;
}

bool TQELDBSearchForm::Find() { return GoTo(false); }
bool TQELDBSearchForm::FindNext() { return GoTo(true); }

int TQELDBSearchForm::Count() {
  if (!Ready()) return -1;
  const vcl::TSetFor searching(FSearching, true, this);
  TScan scan(*this);
  int count = 0;
  for (int row = 0;; ++row) {
    bool hit = false;
    if (!scan.Next(row, hit)) return -1;
    if (!hit) return count;
    ++count;
  }
}

// Filtering.

bool TQELDBSearchForm::FilterToHits() {
  if (!Ready()) return false;
  if (Designing()) return Refuse("Records are not filtered while the form is designed");
  const TWatch watch(this);
  vcl::TDataSet* const data = FLink.DataSet();
  ShowAll();
  if (watch.Gone() || !FLink.Active() || FLink.DataSet() != data) return false;
  const TKept kept{data, data->Filtered(), data->Filter(), data->OnFilterRecord};
  // The handler outlives neither the data set nor needs the component.
  const TRecordMatch match(FSearchText, FOptions);
  const auto accepts = [match, fields = Searched(), kept](vcl::TDataSet* set, bool& accept) {
    if (kept.Filtered) kept.Handler(set, accept);
    accept = accept && match(*set, fields);
  };
  {
    const vcl::TOnFailure back([&] { Restore(kept); }, data);
    data->SetFiltered(false);
    if (!kept.Filtered) data->SetFilter("");
    data->OnFilterRecord = accepts;
    data->SetFiltered(true);
  }
  if (watch.Gone()) return false;
  FKept = kept;
  data->FreeNotification(this);
  FieldsChanged();
  return true;
}

/// A filter that somebody has set meanwhile stays.
void TQELDBSearchForm::Restore(const TKept& kept) {
  vcl::TDataSet& data = *kept.Data;
  data.SetFiltered(false);
  data.OnFilterRecord = kept.Handler;
  if (data.Filter().empty()) data.SetFilter(kept.Filter);
  data.SetFiltered(kept.Filtered);
}

void TQELDBSearchForm::ShowAll() {
  if (!FKept) return;
  const TWatch watch(this);
  Restore(TKept(*FKept));
  if (watch.Gone()) return;
  FKept.reset();
  FieldsChanged();
}

// The window.

bool TQELDBSearchForm::Execute() {
  if (!HasRecords()) return false;
  if (FWindow) {
    FWindow->BringToFront();
    FWindow->SetFocus();
    return true;
  }
  TQELFormDialog::Execute();
  if (FStayOpen && !Designing()) {
    (new TWindow(*this))->StayOpen();
    return true;
  }
  const TWatch watch(this);
  FFound = false;
  TWindow window(*this);
  window.Run();
  return !watch.Gone() && FFound;
}

}  // namespace qel
