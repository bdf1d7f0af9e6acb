// TQELMsgSelect: its table, and the options on the dialog.
#include "qel/dialogs/Qeltmsgselect.h"

#include <algorithm>

#include "qel/dialogs/private/dialogform.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/listbox.h"

namespace qel {

namespace {

constexpr int MostButtons = 8;
constexpr int MostLines = 12;
enum { OkResult = 1, CancelResult };

}  // namespace

/// The dialog as it is on the screen.
class TQELMsgSelect::TShown {
 public:
  explicit TShown(TQELMsgSelect& dialog) : FForm(dialog) {
    const vcl::TStrings& options = *dialog.FOptions;
    const int chosen = dialog.FItemIndex < options.Count() ? dialog.FItemIndex : -1;
    FForm.AddText(dialog.FText);
    AddButtons(dialog);
    if (options.Count() > MostButtons) {
      AddList(options, chosen);
    } else {
      AddRadios(options, chosen);
    }
    ChoiceChanged();
  }
  bool Run() { return FForm.Run() == OkResult; }
  int Chosen() const {
    if (FList) return FList->ItemIndex();
    const auto found = std::ranges::find_if(FRadios, &vcl::TRadioButton::Checked);
    return found == FRadios.end() ? -1 : static_cast<int>(found - FRadios.begin());
  }

 private:
  void AddButtons(const TQELMsgSelect& dialog) {
    FOk = FForm.AddButton(*dialog.FOkButton, OkResult);
    if (FOk) FOk->SetDefault(true);
    FOkEnabled = FOk && FOk->Enabled();
    vcl::TBitBtn* const cancel = FForm.AddButton(*dialog.FCancelButton, CancelResult);
    if (cancel) cancel->SetCancel(true);
  }
  void AddRadios(const vcl::TStrings& options, int chosen) {
    for (int i = 0; i < options.Count(); ++i) {
      const vcl::TSize size = FForm.SizeOfChoice(options.Strings(i));
      auto* radio = FForm.AddRow<vcl::TRadioButton>(size.cx, size.cy);
      radio->SetCaption(options.Strings(i));
      // One of them takes Tab; arrows go on.
      radio->SetTabOrder(i);
      FRadios.push_back(radio);
    }
    vcl::TRadioButton* const first = FRadios[static_cast<std::size_t>(std::max(chosen, 0))];
    if (chosen >= 0) first->SetChecked(true);
    for (vcl::TRadioButton* each : FRadios) {
      each->OnClick = [this](vcl::TObject*) { ChoiceChanged(); };
    }
    if (chosen >= 0) FForm.SetActiveControl(first);
  }
  void AddList(const vcl::TStrings& options, int chosen) {
    int width = 0;
    for (int i = 0; i < options.Count(); ++i) {
      width = std::max(width, static_cast<int>(FForm.SizeOfChoice(options.Strings(i)).cx));
    }
    const int lines = std::min(options.Count(), MostLines);
    const int height = (FontHeight(*FForm.Font()) + 1) * lines + FForm.ScaledPixels(6);
    FList = FForm.AddRow<vcl::TListBox>(width, height);
    FList->SetItems(&options);
    FList->SetItemIndex(chosen);
    FList->SetTabOrder(0);
    FList->OnClick = [this](vcl::TObject*) { ChoiceChanged(); };
    FList->OnDblClick = [this](vcl::TObject*) {
      if (FOk && FOk->Enabled()) FForm.Press(*FOk);
    };
    FForm.SetActiveControl(FList);
  }
  void ChoiceChanged() {
    if (FOk) FOk->SetEnabled(FOkEnabled && Chosen() >= 0);
  }

  TDialogForm FForm;
  vcl::TBitBtn* FOk = nullptr;
  bool FOkEnabled = false;
  std::vector<vcl::TRadioButton*> FRadios;
  vcl::TListBox* FList = nullptr;
};

const vcl::TClass& TQELMsgSelect::Class() {
  using T = TQELMsgSelect;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormDialog>(
      "qel::TQELMsgSelect", "qel/dialogs/Qeltmsgselect.h",
      {
          ReadOnly<&T::CancelButton>("CancelButton"),
          Property<&T::ItemIndex, &T::SetItemIndex>("ItemIndex").Default(0),
          ReadOnly<&T::OkButton>("OkButton"),
          Property<&T::Options, &T::SetOptions>("Options"),
          Property<&T::Text, &T::SetText>("Text").Default(""),
      });
  return info;
}

TQELMsgSelect::TQELMsgSelect(vcl::TComponent* owner)
    : TQELFormDialog(owner),
      FOptions(std::make_unique<vcl::TStringList>()),
      FOkButton(std::make_unique<TQELButtonDetails>()),
      FCancelButton(std::make_unique<TQELButtonDetails>()) {
  FOkButton->SetCaption("OK");
  FCancelButton->SetCaption("Cancel");
}

TQELMsgSelect::~TQELMsgSelect() { AnnounceEnd(); }

void TQELMsgSelect::SetItemIndex(int index) {
  if (index >= -1) FItemIndex = index;
}

bool TQELMsgSelect::Execute() {
  FLastError.clear();
  if (FOptions->Count() == 0) {
    FLastError = "There are no options to choose from";
    return false;
  }
  TQELFormDialog::Execute();
  const vcl::TWatch watch(this);
  TShown shown(*this);
  const bool agreed = shown.Run();
  if (watch.Gone() || !agreed) return false;
  FItemIndex = shown.Chosen();
  return true;
}

}  // namespace qel
