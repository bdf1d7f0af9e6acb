// TQELDBNavigator: buttons that move through the records of a data set and change them.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "qel/core/Qelbuttondetails.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelenumerations.h"
#include "qel/dbcontrols/Qeltdbsearchform.h"
#include "vcl/dbctrls/dbactions.h"

namespace qel {

/// The buttons, in their order.
enum TQELNavigatorButton {
  nbFirst,
  nbPrior,
  nbNext,
  nbLast,
  nbInsert,
  nbDelete,
  nbEdit,
  nbPost,
  nbCancel,
  nbRefresh,
  nbFind
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELNavigatorButton>{
    "TQELNavigatorButton",
    "nbFirst nbPrior nbNext nbLast nbInsert nbDelete nbEdit nbPost nbCancel nbRefresh nbFind",
    "TQELNavigatorButtons"};

}  // namespace vcl

namespace qel {

using TQELNavigatorButtons = vcl::TSet<TQELNavigatorButton>;
/// Sender, the button, and whether it may do what it is for, which the handler may refuse.
using TQELNavigatorBeforeAction = vcl::TEvent<vcl::TObject*, TQELNavigatorButton, bool&>;
/// Sender, the button.
using TQELNavigatorClick = vcl::TEvent<vcl::TObject*, TQELNavigatorButton>;

class TQELNavigatorPress;

/// A row or a column of buttons, each for one of the actions of data sets, which can be pressed
/// while its action can be done. With the focus, the arrow keys go from button to button, Home and
/// End to the outer ones, and Space presses. nbFind is hidden as long as there is nothing to search
/// with.
class QEL_API TQELDBNavigator : public TQELCustomControl {
 public:
  static constexpr int ButtonCount = nbFind + 1;

  explicit TQELDBNavigator(vcl::TComponent* owner);
  ~TQELDBNavigator() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  vcl::TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set that the buttons work on; null for none.
  void SetDataSource(vcl::TDataSource* dataSource);
  TQELKind Direction() const { return FDirection; }
  /// Whether the buttons stand side by side or one below the other.
  void SetDirection(TQELKind direction);
  TQELNavigatorButtons VisibleButtons() const { return FVisibleButtons; }
  /// Which buttons there are; they share the room. One whose details hide it is not there either.
  void SetVisibleButtons(TQELNavigatorButtons buttons);
  bool ConfirmDelete() const { return FConfirmDelete; }
  /// True: the user is asked before a record is deleted.
  void SetConfirmDelete(bool confirm) { FConfirmDelete = confirm; }
  bool Flat() const { return FFlat; }
  /// True shows the edge of a button only while the mouse is over it, and the background through
  /// the others.
  void SetFlat(bool flat);
  bool Repeating() const { return FRepeating; }
  /// True: nbPrior and nbNext, held down, go on from record to record.
  void SetRepeating(bool repeating) { FRepeating = repeating; }

  TQELDBSearchForm* SearchForm() const { return FSearchForm; }
  /// What nbFind shows, which is not owned; without it there is no nbFind. One that has no
  /// DataSource searches the navigator's.
  void SetSearchForm(TQELDBSearchForm* form);

  /// What is set of a button, whose ConfirmOnPress has the user asked first.
  TQELButtonDetails* Details(TQELNavigatorButton button) const { return FDetails[button].get(); }
  /// What is set of the button that goes to the first record.
  TQELButtonDetails* FirstButton() const { return Details(nbFirst); }
  /// What is set of the button that goes to the record before.
  TQELButtonDetails* PriorButton() const { return Details(nbPrior); }
  /// What is set of the button that goes to the next record.
  TQELButtonDetails* NextButton() const { return Details(nbNext); }
  /// What is set of the button that goes to the last record.
  TQELButtonDetails* LastButton() const { return Details(nbLast); }
  /// What is set of the button that begins a new record.
  TQELButtonDetails* InsertButton() const { return Details(nbInsert); }
  /// What is set of the button that deletes the record.
  TQELButtonDetails* DeleteButton() const { return Details(nbDelete); }
  /// What is set of the button that begins to edit the record.
  TQELButtonDetails* EditButton() const { return Details(nbEdit); }
  /// What is set of the button that saves the record.
  TQELButtonDetails* PostButton() const { return Details(nbPost); }
  /// What is set of the button that takes the changes back.
  TQELButtonDetails* CancelButton() const { return Details(nbCancel); }
  /// What is set of the button that reads the records again.
  TQELButtonDetails* RefreshButton() const { return Details(nbRefresh); }
  /// What is set of the button that searches.
  TQELButtonDetails* FindButton() const { return Details(nbFind); }

  /// Does what the button is for, as a click on it; nothing while that cannot be done.
  void PressButton(TQELNavigatorButton button);
  /// True while the button can be pressed.
  bool ButtonEnabled(TQELNavigatorButton button) const;
  /// Where the button stands; empty for one that is not there.
  vcl::TRect ButtonRect(TQELNavigatorButton button) const;
  /// What a screen reader calls the button: its hint, else its caption, else what it is for.
  std::string ButtonName(TQELNavigatorButton button) const;
  /// The button that Space presses.
  TQELNavigatorButton FocusedButton() const { return FFocused; }

  /// A button has been pressed, before the user is asked and anything is done; the handler may
  /// refuse.
  TQELNavigatorBeforeAction BeforeAction;
  /// What a button is for has been done.
  TQELNavigatorClick OnClick;

 protected:
  void Resize() override;
  void Loaded() override;
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  friend class TQELNavigatorPress;

  /// Shows what can be done.
  class TLink : public vcl::TDataLink {
   public:
    explicit TLink(TQELDBNavigator& navigator) : FNavigator(navigator) {}

   protected:
    void ActiveChanged() override { FNavigator.UpdateButtons(); }
    void EditingChanged() override { FNavigator.UpdateButtons(); }
    void RecordChanged(vcl::TField*) override { FNavigator.UpdateButtons(); }

   private:
    TQELDBNavigator& FNavigator;
  };

  bool Shows(TQELNavigatorButton button) const;
  bool CanDo(TQELNavigatorButton button);
  bool CanFind() const;
  void Do(TQELNavigatorButton button);
  bool Confirmed(TQELNavigatorButton button) const;
  void UpdateHints();
  void UpdateButtons();
  void Arrange();
  void FocusButton(TQELNavigatorButton button);
  void MoveFocus(int first, int step);
  void DetailsChanged();

  TLink FLink;
  std::array<std::unique_ptr<vcl::TDataSetAction>, nbFind> FActions;  // Of all but nbFind.
  std::array<TQELNavigatorPress*, ButtonCount> FButtons{};
  std::array<std::unique_ptr<TQELButtonDetails>, ButtonCount> FDetails;
  TQELNavigatorButtons FVisibleButtons{nbFirst, nbPrior, nbNext,   nbLast,    nbInsert, nbDelete,
                                       nbEdit,  nbPost,  nbCancel, nbRefresh, nbFind};
  TQELKind FDirection = kHorizontal;
  TQELNavigatorButton FFocused = nbFirst;
  TQELDBSearchForm* FSearchForm = nullptr;
  bool FConfirmDelete = true;
  bool FFlat = false;
  bool FRepeating = false;
  bool FUpdating = false;  // The buttons are being brought to what the details and the set say.
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEventText EventText<qel::TQELNavigatorBeforeAction>{
    "TQELNavigatorBeforeAction",
    "vcl::TObject* sender, qel::TQELNavigatorButton button, bool& allow"};
template <>
inline constexpr TEventText EventText<qel::TQELNavigatorClick>{
    "TQELNavigatorClick", "vcl::TObject* sender, qel::TQELNavigatorButton button"};

}  // namespace vcl
