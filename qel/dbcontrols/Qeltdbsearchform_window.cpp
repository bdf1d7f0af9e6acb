// The window of a TQELDBSearchForm: its parts, and what they do.
#include <utility>

#include "qel/dbcontrols/private/searchwindow.h"
#include "vcl/controls/accelerators.h"
#include "vcl/forms/application.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/scope.h"

namespace qel {

using vcl::TWatch;

namespace {

enum { FindResult = 1, NextResult, CountResult, FilterResult, ShowAllResult, CloseResult };
constexpr int InputWidth = 320;  // At 96 dots per inch.

}  // namespace

TQELDBSearchForm::TWindow::TWindow(TQELDBSearchForm& search)
    : TDialogForm(search), FSearch(search) {
  AddInput();
  AddOptions();
  FSaid = AddLabel("");
  FSaid->SetShowAccelChar(false);
  AddButtons();
  FSearch.FWindow = this;
  FieldsChanged();
  SetActiveControl(FText);
}

TQELDBSearchForm::TWindow::~TWindow() {
  AnnounceEnd();
  if (Alive() && FSearch.FWindow == this) FSearch.FWindow = nullptr;
}

// Its parts.

vcl::TLabel* TQELDBSearchForm::TWindow::AddLabel(const std::string& caption) {
  auto* label = AddRow<vcl::TLabel>(ScaledPixels(InputWidth), FontHeight(*Font()));
  label->SetAutoSize(false);
  label->SetTransparent(true);
  label->SetCaption(caption);
  return label;
}

void TQELDBSearchForm::TWindow::AddInput() {
  const int width = ScaledPixels(InputWidth);
  const int height = FontHeight(*Font()) + ScaledPixels(8);
  vcl::TLabel* const above = AddLabel(FSearch.FTextLabel);
  FText = AddRow<vcl::TEdit>(width, height);
  FText->SetText(FSearch.FSearchText);
  FText->OnChange = [this](vcl::TObject*) {
    if (!Alive()) return;
    FSearch.FSearchText = FText->Text();
    UpdateButtons();
  };
  above->SetFocusControl(FText);
  FText->SetAccessibleName(vcl::WithoutAccel(FSearch.FTextLabel));
  vcl::TLabel* const aboveField = AddLabel(FSearch.FFieldLabel);
  FField = AddRow<vcl::TComboBox>(width, height);
  FField->SetStyle(vcl::csDropDownList);
  FField->OnClick = [this](vcl::TObject*) { FieldChosen(); };
  aboveField->SetFocusControl(FField);
  FField->SetAccessibleName(vcl::WithoutAccel(FSearch.FFieldLabel));
}

void TQELDBSearchForm::TWindow::AddOptions() {
  for (int i = soCase; i <= soFromCurrent && i < FSearch.FOptionTexts->Count(); ++i) {
    const std::string caption = FSearch.FOptionTexts->Strings(i);
    if (caption.empty()) continue;
    const auto option = static_cast<TQELDBSearchOption>(i);
    const vcl::TSize size = SizeOfChoice(caption);
    auto* box = AddRow<vcl::TCheckBox>(size.cx, size.cy);
    box->SetCaption(caption);
    box->SetChecked(FSearch.FOptions.Has(option));
    box->OnClick = [this](vcl::TObject*) { OptionChosen(); };
    FBoxes.emplace_back(option, box);
  }
}

void TQELDBSearchForm::TWindow::AddAct(const TQELButtonDetails& details, int result,
                                       std::function<void()> act) {
  if (vcl::TBitBtn* const button = AddButton(details, result)) {
    SetAct(*button, [this, act = std::move(act)] { Act(act); });
  }
}

void TQELDBSearchForm::TWindow::AddButtons() {
  AddAct(*FSearch.FFindButton, FindResult, [this] { Search(false); });
  AddAct(*FSearch.FFindNextButton, NextResult, [this] { Search(true); });
  AddAct(*FSearch.FCountButton, CountResult, [this] {
    const TWatch watch(&FSearch);
    const int count = FSearch.Count();
    if (!watch.Gone() && count >= 0) Say(FSearch.FCountText, std::to_string(count));
  });
  AddAct(*FSearch.FFilterButton, FilterResult, [this] { FSearch.FilterToHits(); });
  AddAct(*FSearch.FShowAllButton, ShowAllResult, [this] { FSearch.ShowAll(); });
  vcl::TBitBtn* const close = AddButton(*FSearch.FCloseButton, CloseResult);
  if (!close) return;
  close->SetCancel(true);
  SetAct(*close, [this] { FBusy ? static_cast<void>(FStop = true) : Close(); });
}

// What is chosen.

void TQELDBSearchForm::TWindow::FieldsChanged() {
  if (!Alive()) return;
  FNames = FSearch.Offered();
  if (FNames.size() != 1) FNames.insert(FNames.begin(), std::string());
  FField->Items()->Clear();
  int chosen = 0;
  for (const std::string& name : FNames) {
    const vcl::TField* const field =
        name.empty() ? nullptr : FSearch.FLink.DataSet()->FindField(name);
    const int place = FField->Items()->Add(field ? field->DisplayLabel() : FSearch.FAllFieldsText);
    if (field && field == FSearch.FLink.DataSet()->FindField(FSearch.FSearchField)) chosen = place;
  }
  FField->SetItemIndex(chosen);
  UpdateButtons();
}

void TQELDBSearchForm::TWindow::FieldChosen() {
  const int index = FField->ItemIndex();
  if (!Alive() || index < 0) return;
  FSearch.FSearchField = FNames[static_cast<std::size_t>(index)];
  UpdateButtons();
}

void TQELDBSearchForm::TWindow::OptionChosen() {
  if (!Alive()) return;
  for (const auto& [option, box] : FBoxes) {
    const TQELDBSearchOptions each{option};
    FSearch.FOptions = box->Checked() ? FSearch.FOptions + each : FSearch.FOptions - each;
  }
  UpdateButtons();
}

void TQELDBSearchForm::TWindow::Enable(int result, bool can) {
  const TQELButtonDetails* const details[] = {
      FSearch.FFindButton.get(),   FSearch.FFindNextButton.get(), FSearch.FCountButton.get(),
      FSearch.FFilterButton.get(), FSearch.FShowAllButton.get(),
  };
  vcl::TBitBtn* const button = ButtonWith(result);
  if (button) button->SetEnabled(can && details[result - 1]->Enabled());
}

/// Which of the two Enter presses.
void TQELDBSearchForm::TWindow::SetEnter(int result) {
  for (const int each : {FindResult, NextResult}) {
    if (vcl::TBitBtn* const button = ButtonWith(each)) button->SetDefault(each == result);
  }
}

/// What is new is searched from its beginning; Enter then goes on from hit to hit.
void TQELDBSearchForm::TWindow::UpdateButtons() {
  Say("", "");
  const bool can = FSearch.FLink.Active() && !FSearch.FSearchText.empty();
  for (int result = FindResult; result <= FilterResult; ++result) Enable(result, can);
  Enable(ShowAllResult, FSearch.Filtered());
  SetEnter(FindResult);
}

// What is done.

void TQELDBSearchForm::TWindow::Say(const std::string& text, const std::string& value) {
  std::string said = text;
  if (const std::size_t place = said.find("%s"); place != std::string::npos) {
    said.replace(place, 2, value);
  }
  FSaid->SetCaption(said);
}

/// The window stays during the act, whatever that does with the component.
void TQELDBSearchForm::TWindow::Act(const std::function<void()>& act) {
  if (FBusy || !Alive()) return;
  FStop = false;
  {
    const vcl::TSetFor busy(FBusy, true);
    const TWatch watch(&FSearch);
    const vcl::TAtEnd tell([&] {
      if (!watch.Gone() && !FSearch.FLastError.empty()) Say(FSearch.FLastError, "");
    });
    act();
  }
  if (!Alive()) Close();
}

void TQELDBSearchForm::TWindow::Search(bool next) {
  Say("", "");
  const TWatch watch(&FSearch);
  const bool found = next ? FSearch.FindNext() : FSearch.Find();
  if (watch.Gone() || FStop) return;
  if (!found) return Say(FSearch.FNotFoundText, FSearch.FSearchText);
  SetEnter(NextResult);
}

bool TQELDBSearchForm::TWindow::Progress(int records) {
  Say(FSearch.FProgressText, std::to_string(records));
  vcl::Application()->ProcessMessages();
  return Alive() && !FStop && Visible() && ModalResult() == vcl::mrNone;
}

/// It is not freed while a search of its own goes on, but stops that first.
bool TQELDBSearchForm::TWindow::CloseQuery() {
  FStop = true;
  return !FBusy && TDialogForm::CloseQuery();
}

/// A window that stays open frees itself later; the component shows a new one then.
void TQELDBSearchForm::TWindow::DoClose(vcl::TCloseAction& action) {
  if (!Modal() && Alive()) FSearch.FWindow = nullptr;
  TDialogForm::DoClose(action);
}

}  // namespace qel
