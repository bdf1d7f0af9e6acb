// TDBNavigator: buttons that move through the records of a data set and change them.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/db/datasource.h"
#include "vcl/dbctrls/dbactions.h"
#include "vcl/rtl/strings.h"

namespace vcl {

/// The buttons, in their order.
enum TNavigateBtn {
  nbFirst,
  nbPrior,
  nbNext,
  nbLast,
  nbInsert,
  nbDelete,
  nbEdit,
  nbPost,
  nbCancel,
  nbRefresh
};
template <>
inline constexpr TEnumText EnumText<TNavigateBtn>{
    "TNavigateBtn",
    "nbFirst nbPrior nbNext nbLast nbInsert nbDelete nbEdit nbPost nbCancel nbRefresh",
    "TButtonSet"};
using TButtonSet = TSet<TNavigateBtn>;

/// Sender, the button.
using TNavClickEvent = TEvent<TObject*, TNavigateBtn>;
template <>
inline constexpr TEventText EventText<TNavClickEvent>{
    "TNavClickEvent", "vcl::TObject* sender, vcl::TNavigateBtn button"};

class TNavButton;

/// A row of buttons, each for one of the actions of data sets (see dbactions.h), which can be
/// pressed while its action can be done. With the focus, the arrow keys go from button to button,
/// Home and End to the outer ones, and Space presses.
class VCL_API TDBNavigator : public TCustomControl {
 public:
  static constexpr int ButtonCount = nbRefresh + 1;

  explicit TDBNavigator(TComponent* owner);
  ~TDBNavigator() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set that the buttons work on; null for none.
  void SetDataSource(TDataSource* dataSource);
  TButtonSet VisibleButtons() const { return FVisibleButtons; }
  /// Which buttons there are; they share the width.
  void SetVisibleButtons(TButtonSet buttons);
  bool ConfirmDelete() const { return FConfirmDelete; }
  /// True: the user is asked before a record is deleted.
  void SetConfirmDelete(bool confirm) { FConfirmDelete = confirm; }
  bool Flat() const { return FFlat; }
  /// True shows the edge of a button only while the mouse is over it.
  void SetFlat(bool flat);
  TStrings* Hints() const { return FHints.get(); }
  /// What the buttons' hints say, in the buttons' order; a button without one has its action's.
  void SetHints(const TStrings* hints) { FHints->Assign(hints); }

  /// Does what the button is for, as a click on it; nothing while that cannot be done.
  void BtnClick(TNavigateBtn button);
  /// True while the button can be pressed.
  bool ButtonEnabled(TNavigateBtn button) const;
  /// Where the button stands; empty for one that is not visible.
  TRect ButtonRect(TNavigateBtn button) const;
  /// The button that Space presses.
  TNavigateBtn FocusedButton() const { return FFocused; }
  void SetFocusedButton(TNavigateBtn button);

  /// A button has been pressed, before anything is done; raising keeps it from being done.
  TNavClickEvent BeforeAction;
  /// What a button is for has been done.
  TNavClickEvent OnClick;

 protected:
  void Paint() override;
  void Resize() override;
  void Loaded() override;
  void Dispatch(TMessage& message) override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;

 private:
  /// Shows what can be done.
  class TLink : public TDataLink {
   public:
    explicit TLink(TDBNavigator& navigator) : FNavigator(navigator) {}

   protected:
    void ActiveChanged() override { FNavigator.UpdateButtons(); }
    void EditingChanged() override { FNavigator.UpdateButtons(); }
    void RecordChanged(TField*) override { FNavigator.UpdateButtons(); }

   private:
    TDBNavigator& FNavigator;
  };

  void UpdateButtons();
  void UpdateHints();
  void Arrange();
  void MoveFocus(int first, int step);

  TLink FLink;
  std::array<std::unique_ptr<TDataSetAction>, ButtonCount> FActions;
  std::array<TNavButton*, ButtonCount> FButtons{};
  std::unique_ptr<TStringList> FHints;
  TButtonSet FVisibleButtons{nbFirst,  nbPrior, nbNext, nbLast,   nbInsert,
                             nbDelete, nbEdit,  nbPost, nbCancel, nbRefresh};
  TNavigateBtn FFocused = nbFirst;
  bool FConfirmDelete = true;
  bool FFlat = false;
};

}  // namespace vcl
