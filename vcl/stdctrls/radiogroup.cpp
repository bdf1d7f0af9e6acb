// TCustomRadioGroup: its buttons, where they stand, and which of them is chosen.
#include "vcl/stdctrls/radiogroup.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TCustomRadioGroup::Class() {
  using T = TCustomRadioGroup;
  static const TClass info = Describe<T, TCustomGroupBox>(
      "vcl::TCustomRadioGroup", "vcl/stdctrls/extctrls.h",
      {
          Property<&T::Columns, &T::SetColumns>("Columns").Default(1).Unpublished(),
          Property<&T::ItemIndex, &T::SetItemIndex>("ItemIndex").Default(-1).Unpublished(),
          Property<&T::Items, &T::SetItems>("Items").Unpublished(),
      });
  return info;
}

const TClass& TRadioGroup::Class() {
  static const TClass info =
      Describe<TRadioGroup, TCustomRadioGroup>("vcl::TRadioGroup", "vcl/stdctrls/extctrls.h",
                                               {
                                                   Inherit("Align"),
                                                   Inherit("Caption"),
                                                   Inherit("Color"),
                                                   Inherit("Columns"),
                                                   Inherit("ItemIndex"),
                                                   Inherit("Items"),
                                                   Inherit(ContainerProperties),
                                                   Inherit(ContainerEvents),
                                               });
  return info;
}

TCustomRadioGroup::TCustomRadioGroup(TComponent* owner)
    : TCustomGroupBox(owner), FItems(std::make_unique<TStringList>()) {
  SetControlStyle({csSetCaption, csDoubleClicks, csCaptureMouse, csClickEvents, csReplicatable});
  FItems->OnChange = {this, &TCustomRadioGroup::ItemsChanged};
}

TCustomRadioGroup::~TCustomRadioGroup() { AnnounceEnd(); }

void TCustomRadioGroup::SetColumns(int columns) {
  constexpr int most = 16;
  if (columns < 1 || columns > most) {
    throw EArgumentOutOfRangeException(
        Concat("Radio buttons cannot stand in ", std::to_string(columns), " columns"));
  }
  if (columns == FColumns) return;
  FColumns = columns;
  Realign();
}

TRadioButton* TCustomRadioGroup::Buttons(int index) const {
  if (index < 0 || index >= static_cast<int>(FButtons.size())) {
    throw EListError(Concat("Item index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FButtons.size()), " items"));
  }
  return FButtons[static_cast<std::size_t>(index)];
}

// The buttons.

void TCustomRadioGroup::AddButton() {
  auto* const button = new TRadioButton(this);
  FButtons.push_back(button);
  button->SetParent(this);
  button->OnClick = {this, &TCustomRadioGroup::ButtonClicked};
}

void TCustomRadioGroup::ItemsChanged(TObject*) {
  const TSetFor showing(FShowing, true, this);
  const auto count = static_cast<std::size_t>(FItems->Count());
  while (FButtons.size() > count) delete FButtons.back();
  while (FButtons.size() < count) AddButton();
  for (std::size_t i = 0; i < count; ++i) {
    FButtons[i]->SetCaption(FItems->Strings(static_cast<int>(i)));
    FButtons[i]->SetEnabled(Enabled());
  }
  if (!Loading() && FItemIndex >= FItems->Count()) FItemIndex = FItems->Count() - 1;
  ShowChoice();
  Realign();
}

/// Tab goes to the chosen one or, without a choice, to the first.
void TCustomRadioGroup::ShowChoice() {
  const TSetFor showing(FShowing, true, this);
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    const bool chosen = static_cast<int>(i) == FItemIndex;
    FButtons[i]->SetChecked(chosen);
    FButtons[i]->SetTabStop(chosen || (FItemIndex < 0 && i == 0));
  }
}

void TCustomRadioGroup::AlignControls(TControl*, TRect& rect) {
  if (FButtons.empty()) return;
  const int columns = FColumns;
  const int count = static_cast<int>(FButtons.size());
  const int rows = (count + columns - 1) / columns;
  const int inset = ScaledPixels(8);
  const int width = std::max((rect.Width() - 2 * inset) / columns, 0);
  const TWatch watch(this);
  for (int i = 0; !watch.Gone() && i < static_cast<int>(FButtons.size()); ++i) {
    const int top = rect.Top + rect.Height() * (i % rows) / rows;
    const int bottom = rect.Top + rect.Height() * (i % rows + 1) / rows;
    FButtons[static_cast<std::size_t>(i)]->SetBounds(rect.Left + inset + i / rows * width, top,
                                                     width, bottom - top);
  }
}

// The choice.

void TCustomRadioGroup::SetItemIndex(int index) {
  if (Loading()) {
    FItemIndex = index;
    return;
  }
  if (index != -1) Buttons(index);  // Refuses what is none.
  if (index == FItemIndex) return;
  FItemIndex = index;
  ShowChoice();
  Click();
}

void TCustomRadioGroup::ButtonClicked(TObject* sender) {
  if (FShowing) return;
  const auto found = std::ranges::find(FButtons, sender);
  if (found != FButtons.end()) SetItemIndex(static_cast<int>(found - FButtons.begin()));
}

void TCustomRadioGroup::Loaded() {
  TCustomGroupBox::Loaded();
  FItemIndex = std::clamp(FItemIndex, -1, FItems->Count() - 1);
  ShowChoice();
}

void TCustomRadioGroup::Notification(TComponent* component, TOperation operation) {
  TCustomGroupBox::Notification(component, operation);
  if (operation == opRemove) std::erase(FButtons, component);
}

void TCustomRadioGroup::Dispatch(TMessage& message) {
  const TWatch watch(this);
  TCustomGroupBox::Dispatch(message);
  if (watch.Gone() || message.Msg != CM_ENABLEDCHANGED) return;
  for (TRadioButton* each : FButtons) each->SetEnabled(Enabled());
}

}  // namespace vcl
