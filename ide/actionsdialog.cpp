// The dialog of the ready-made actions.
#include "ide/actionsdialog.h"

#include <vector>

#include "ide/listwindow.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/text.h"
#include "vcl/vcl.h"

namespace ide {

using namespace vcl;

namespace {

/// A list with a line for each category and, below it, its classes.
class TStandardActionsForm : public TListWindow {
 public:
  TStandardActionsForm() : TListWindow(nullptr) {
    SetCaption("Standard actions");
    SetPosition(poScreenCenter);
    SetClientWidth(320);
    SetClientHeight(320);
    FOk = AddButton("OK", [this] { SetModalResult(mrOk); });
    FOk->SetDefault(true);
    AddButton("Cancel", [this] { SetModalResult(mrCancel); })->SetCancel(true);
    for (const TActionEntry& entry : RegisteredActions()) ListEntry(entry);
    List().OnClick = TNotifyEvent([this](TObject*) { FOk->SetEnabled(Chosen().has_value()); });
    List().OnDblClick = TNotifyEvent([this](TObject*) {
      if (Chosen()) SetModalResult(mrOk);
    });
    List().SetItemIndex(List().Items()->Count() > 1 ? 1 : -1);
    FOk->SetEnabled(Chosen().has_value());
  }

  std::optional<TStandardChoice> Chosen() const {
    const int line = List().ItemIndex();
    if (line < 0 || !FChoices[static_cast<std::size_t>(line)].Class) return std::nullopt;
    return FChoices[static_cast<std::size_t>(line)];
  }

 private:
  void ListEntry(const TActionEntry& entry) {
    List().Items()->Add(entry.Category);
    FChoices.push_back({nullptr, entry.Category});
    for (const TClass* each : entry.Classes) {
      List().Items()->Add(Concat("    ", each->Name()));
      FChoices.push_back({each, entry.Category});
    }
  }

  TButton* FOk = nullptr;
  std::vector<TStandardChoice> FChoices;  // One for each line.
};

}  // namespace

std::optional<TStandardChoice> ChooseStandardAction() {
  TStandardActionsForm form;
  return form.ShowModal() == mrOk ? form.Chosen() : std::nullopt;
}

}  // namespace ide
