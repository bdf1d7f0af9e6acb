// The dialog of the ready-made actions.
#include "ide/actionsdialog.h"

#include <vector>

#include "vcl/designintf/registration.h"
#include "vcl/rtl/text.h"
#include "vcl/vcl.h"

namespace ide {

using namespace vcl;

namespace {

/// A list with a line for each category and, below it, its classes.
class TStandardActionsForm : public TForm {
 public:
  TStandardActionsForm() : TForm(nullptr), FList(new TListBox(this)) {
    constexpr int width = 320;
    constexpr int height = 320;
    SetCaption("Standard actions");
    SetBorderStyle(bsDialog);
    SetPosition(poScreenCenter);
    SetClientWidth(width);
    SetClientHeight(height);
    FList->SetParent(this);
    FList->SetBounds(8, 8, width - 104, height - 16);
    FOk = AddButton("OK", mrOk, 8);
    FOk->SetDefault(true);
    AddButton("Cancel", mrCancel, 40)->SetCancel(true);
    for (const TActionEntry& entry : RegisteredActions()) ListEntry(entry);
    FList->OnClick = TNotifyEvent([this](TObject*) { FOk->SetEnabled(Chosen().has_value()); });
    FList->OnDblClick = TNotifyEvent([this](TObject*) {
      if (Chosen()) SetModalResult(mrOk);
    });
    FList->SetItemIndex(FList->Items()->Count() > 1 ? 1 : -1);
    FOk->SetEnabled(Chosen().has_value());
  }

  std::optional<TStandardChoice> Chosen() const {
    const int line = FList->ItemIndex();
    if (line < 0 || !FChoices[static_cast<std::size_t>(line)].Class) return std::nullopt;
    return FChoices[static_cast<std::size_t>(line)];
  }

 private:
  TButton* AddButton(const char* caption, TModalResult result, int top) {
    auto* button = new TButton(this);
    button->SetParent(this);
    button->SetCaption(caption);
    button->SetModalResult(result);
    button->SetBounds(ClientWidth() - 88, top, 80, 25);
    return button;
  }
  void ListEntry(const TActionEntry& entry) {
    FList->Items()->Add(entry.Category);
    FChoices.push_back({nullptr, entry.Category});
    for (const TClass* each : entry.Classes) {
      FList->Items()->Add(Concat("    ", each->Name()));
      FChoices.push_back({each, entry.Category});
    }
  }

  TListBox* FList;
  TButton* FOk = nullptr;
  std::vector<TStandardChoice> FChoices;  // One for each line.
};

}  // namespace

std::optional<TStandardChoice> ChooseStandardAction() {
  TStandardActionsForm form;
  return form.ShowModal() == mrOk ? form.Chosen() : std::nullopt;
}

}  // namespace ide
