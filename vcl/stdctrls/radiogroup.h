// TCustomRadioGroup and TRadioGroup: a group box of radio buttons, made from a list of texts.
#pragma once

#include <memory>
#include <vector>

#include "vcl/rtl/strings.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/groupbox.h"

namespace vcl {

/// A radio button for each item, in columns. OnClick tells that another one is chosen, by the user
/// or by code; reading a form is no choice.
class VCL_API TCustomRadioGroup : public TCustomGroupBox {
 public:
  explicit TCustomRadioGroup(TComponent* owner);
  ~TCustomRadioGroup() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  int Columns() const { return FColumns; }
  /// In how many columns the buttons stand. Raises EArgumentOutOfRangeException for less than 1 or
  /// more than 16.
  void SetColumns(int columns);
  TStrings* Items() const { return FItems.get(); }
  /// The buttons' captions, from top to bottom and then in the next column.
  void SetItems(const TStrings* items) { FItems->Assign(items); }
  int ItemIndex() const { return FItemIndex; }
  /// The chosen button; -1 for none. Raises EListError for what is neither an item's index nor -1;
  /// while a form is being read, the index waits for the items.
  void SetItemIndex(int index);
  /// The button of the item. Raises EListError outside.
  TRadioButton* Buttons(int index) const;

 protected:
  void AlignControls(TControl* control, TRect& rect) override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;
  void Notification(TComponent* component, TOperation operation) override;

 private:
  void ItemsChanged(TObject* sender);
  void ButtonClicked(TObject* sender);
  void AddButton();
  void ShowChoice();

  std::unique_ptr<TStringList> FItems;
  std::vector<TRadioButton*> FButtons;
  int FColumns = 1;
  int FItemIndex = -1;
  bool FShowing = false;  // The buttons are being brought to the items: none of it is a click.
};

/// A group of radio buttons for forms.
class VCL_API TRadioGroup : public TCustomRadioGroup {
 public:
  explicit TRadioGroup(TComponent* owner) : TCustomRadioGroup(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
