// TQELDBNavigator: its buttons, what they do, and when.
#include "qel/dbcontrols/Qeltdbnavigator.h"

#include "qel/dbcontrols/private/Qelnavigatorpress.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr TQELNavigatorButtons AllButtons{nbFirst, nbPrior, nbNext,   nbLast,    nbInsert, nbDelete,
                                          nbEdit,  nbPost,  nbCancel, nbRefresh, nbFind};

template <class T>
std::unique_ptr<vcl::TDataSetAction> Make() {
  return std::make_unique<T>(nullptr);
}

constexpr std::unique_ptr<vcl::TDataSetAction> (*Makers[])() = {
    &Make<vcl::TDataSetFirst>,  &Make<vcl::TDataSetPrior>,  &Make<vcl::TDataSetNext>,
    &Make<vcl::TDataSetLast>,   &Make<vcl::TDataSetInsert>, &Make<vcl::TDataSetDelete>,
    &Make<vcl::TDataSetEdit>,   &Make<vcl::TDataSetPost>,   &Make<vcl::TDataSetCancel>,
    &Make<vcl::TDataSetRefresh>};

constexpr TQELNavigatorButton ButtonAt(int place) {
  return static_cast<TQELNavigatorButton>(place);
}

}  // namespace

const vcl::TClass& TQELDBNavigator::Class() {
  using T = TQELDBNavigator;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELDBNavigator", "qel/dbcontrols/Qeltdbnavigator.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Background"),
          ReadOnly<&T::CancelButton>("CancelButton"),
          Property<&T::ConfirmDelete, &T::SetConfirmDelete>("ConfirmDelete").Default(true),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          ReadOnly<&T::DeleteButton>("DeleteButton"),
          Property<&T::Direction, &T::SetDirection>("Direction").Default(kHorizontal),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          ReadOnly<&T::EditButton>("EditButton"),
          Inherit("Enabled"),
          ReadOnly<&T::FindButton>("FindButton"),
          ReadOnly<&T::FirstButton>("FirstButton"),
          Property<&T::Flat, &T::SetFlat>("Flat").Default(false),
          Inherit("Font"),
          ReadOnly<&T::InsertButton>("InsertButton"),
          ReadOnly<&T::LastButton>("LastButton"),
          ReadOnly<&T::NextButton>("NextButton"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          ReadOnly<&T::PostButton>("PostButton"),
          ReadOnly<&T::PriorButton>("PriorButton"),
          ReadOnly<&T::RefreshButton>("RefreshButton"),
          Property<&T::Repeating, &T::SetRepeating>("Repeating").Default(false),
          Property<&T::SearchForm, &T::SetSearchForm>("SearchForm"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Property<&T::VisibleButtons, &T::SetVisibleButtons>("VisibleButtons").Default(AllButtons),
          Event<&T::BeforeAction>("BeforeAction"),
          Event<&T::OnClick>("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELDBNavigator::TQELDBNavigator(vcl::TComponent* owner) : TQELCustomControl(owner), FLink(*this) {
  SetControlStyle(ControlStyle() - vcl::TControlStyle{vcl::csSetCaption, vcl::csAcceptsControls});
  for (std::size_t i = 0; i < FActions.size(); ++i) FActions[i] = Makers[i]();
  for (int i = 0; i < ButtonCount; ++i) {
    const TQELNavigatorButton button = ButtonAt(i);
    FButtons[button] = new TQELNavigatorPress(*this, button);
    FButtons[button]->SetParent(this);
    FDetails[button] = std::make_unique<TQELButtonDetails>(FButtons[button]);
  }
  SetTabStop(true);
  SetBounds(0, 0, 241, 25);
  DetailsChanged();
  HearOnlyAsked<TQELDBNavigator>();
}

TQELDBNavigator::~TQELDBNavigator() {
  AnnounceEnd();
  FLink.SetDataSource(nullptr);
}

void TQELDBNavigator::Loaded() {
  TQELCustomControl::Loaded();
  DetailsChanged();
}

void TQELDBNavigator::SetDataSource(vcl::TDataSource* dataSource) {
  FLink.SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
  UpdateButtons();
}

void TQELDBNavigator::SetDirection(TQELKind direction) {
  FDirection = direction;
  Arrange();
}

void TQELDBNavigator::SetVisibleButtons(TQELNavigatorButtons buttons) {
  FVisibleButtons = buttons;
  Arrange();
}

void TQELDBNavigator::SetFlat(bool flat) {
  FFlat = flat;
  for (TQELNavigatorPress* each : FButtons) {
    each->SetFlat(flat);
    each->SetTransparent(flat);
  }
}

void TQELDBNavigator::SetSearchForm(TQELDBSearchForm* form) {
  FSearchForm = form;
  if (form) form->FreeNotification(this);
  DetailsChanged();
}

void TQELDBNavigator::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FSearchForm) SetSearchForm(nullptr);
}

std::string TQELDBNavigator::ButtonName(TQELNavigatorButton button) const {
  const TQELButtonDetails* const details = Details(button);
  if (details && !details->Hint().empty()) return details->Hint();
  if (details && !details->Caption().empty()) return details->Caption();
  return button == nbFind ? "Find" : FActions[button]->Values()->Hint;
}

// Which buttons there are, and what can be done.

void TQELDBNavigator::DetailsChanged() {
  if (FUpdating || Destroying() || !Details(nbFind)) return;
  const TWatch watch(this);
  UpdateHints();
  Arrange();
  if (!watch.Gone()) UpdateButtons();
}

/// As in all details, hints are shown where these say so; a form file brings empty ones.
void TQELDBNavigator::UpdateHints() {
  for (int i = 0; i < ButtonCount; ++i) {
    const TQELButtonDetails& details = *Details(ButtonAt(i));
    TQELNavigatorPress& button = *FButtons[ButtonAt(i)];
    if (details.Hint().empty()) button.SetHint(ButtonName(ButtonAt(i)));
    button.SetShowHint(details.ShowHint());
  }
}

bool TQELDBNavigator::Shows(TQELNavigatorButton button) const {
  if (button == nbFind && !FSearchForm) return false;
  return FVisibleButtons.Has(button) && Details(button)->Visible();
}

bool TQELDBNavigator::CanFind() const {
  return FSearchForm && FLink.Active() && !FLink.DataSet()->IsUniDirectional();
}

/// What can be done, the actions know. Without a source they would look for one on the form.
bool TQELDBNavigator::CanDo(TQELNavigatorButton button) {
  if (button == nbFind) return CanFind();
  // One that ends tells of it while it still has its links.
  const bool lives = FLink.DataSource() && !FLink.DataSource()->Destroying();
  vcl::TDataSetAction& action = *FActions[button];
  action.SetDataSource(lives ? FLink.DataSource() : nullptr);
  if (!lives) return false;
  const TWatch watch(this);
  action.Update();
  return !watch.Gone() && FLink.Active() && action.Enabled();
}

void TQELDBNavigator::UpdateButtons() {
  if (Destroying() || !Details(nbFind)) return;
  const TWatch watch(this);
  const vcl::TSetFor updating(FUpdating, true, this);
  for (int i = 0; i < ButtonCount; ++i) {
    const TQELNavigatorButton button = ButtonAt(i);
    const bool can = CanDo(button);
    if (watch.Gone()) return;
    FButtons[button]->SetEnabled(can && Enabled() && Details(button)->Enabled());
  }
}

bool TQELDBNavigator::ButtonEnabled(TQELNavigatorButton button) const {
  return Shows(button) && FButtons[button]->Enabled();
}

vcl::TRect TQELDBNavigator::ButtonRect(TQELNavigatorButton button) const {
  return Shows(button) ? FButtons[button]->BoundsRect() : vcl::TRect();
}

/// Those that are there share the room without a rest.
void TQELDBNavigator::Arrange() {
  if (!Details(nbFind)) return;
  const vcl::TSetFor updating(FUpdating, true, this);
  int count = 0;
  for (int i = 0; i < ButtonCount; ++i) count += Shows(ButtonAt(i));
  const bool across = FDirection == kHorizontal;
  const int room = across ? ClientWidth() : ClientHeight();
  int place = 0;
  for (int i = 0; i < ButtonCount; ++i) {
    TQELNavigatorPress& button = *FButtons[ButtonAt(i)];
    const bool shown = Shows(ButtonAt(i));
    button.SetVisible(shown);
    if (!shown) continue;
    const int begin = room * place / count;
    const int end = room * ++place / count;
    across ? button.SetBounds(begin, 0, end - begin, ClientHeight())
           : button.SetBounds(0, begin, ClientWidth(), end - begin);
  }
  if (count > 0 && !Shows(FFocused)) MoveFocus(0, 1);
}

void TQELDBNavigator::Resize() {
  const TWatch watch(this);
  TQELCustomControl::Resize();
  if (!watch.Gone()) Arrange();
}

// A press.

bool TQELDBNavigator::Confirmed(TQELNavigatorButton button) const {
  const TQELButtonDetails& details = *Details(button);
  std::string question = "Delete record?";
  if (details.ConfirmOnPress()) {
    const std::string& own = details.ConfirmMessage();
    question = own.empty() ? vcl::Concat(ButtonName(button), "?") : own;
  } else if (button != nbDelete || !FConfirmDelete) {
    return true;
  }
  return vcl::MessageDlg(question, vcl::mtConfirmation, {vcl::mbOK, vcl::mbCancel}) == vcl::mrOk;
}

void TQELDBNavigator::Do(TQELNavigatorButton button) {
  if (button != nbFind) {
    FActions[button]->Execute();
    return;
  }
  if (!FSearchForm->DataSource()) FSearchForm->SetDataSource(DataSource());
  FSearchForm->Execute();
}

void TQELDBNavigator::PressButton(TQELNavigatorButton button) {
  if (!ButtonEnabled(button) || Designing()) return;
  const TWatch watch(this);
  bool allow = true;
  BeforeAction(this, button, allow);
  if (watch.Gone() || !allow || !Confirmed(button)) return;
  if (watch.Gone() || !CanDo(button)) return;
  Do(button);
  if (!watch.Gone()) OnClick(this, button);
}

// The keyboard.

void TQELDBNavigator::FocusButton(TQELNavigatorButton button) {
  FFocused = button;
  Invalidate();
  AccessibleChanged(vcl::acName);
}

/// To the first button that is there from that place on.
void TQELDBNavigator::MoveFocus(int first, int step) {
  for (int i = first; i >= 0 && i < ButtonCount; i += step) {
    if (Shows(ButtonAt(i))) return FocusButton(ButtonAt(i));
  }
}

void TQELDBNavigator::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone() || !shift.Empty()) return;
  switch (key) {
    case VK_LEFT:
    case VK_UP: return MoveFocus(FFocused - 1, -1);
    case VK_RIGHT:
    case VK_DOWN: return MoveFocus(FFocused + 1, 1);
    case VK_HOME: return MoveFocus(0, 1);
    case VK_END: return MoveFocus(ButtonCount - 1, -1);
    case VK_SPACE: return PressButton(FFocused);
    default: return;
  }
}

void TQELDBNavigator::Dispatch(vcl::TMessage& message) {
  const bool arrow = message.WParam >= VK_LEFT && message.WParam <= VK_DOWN;
  if (message.Msg == vcl::CM_WANTSPECIALKEY && arrow) {
    message.Result = 1;
    return;
  }
  const TWatch watch(this);
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE: return Invalidate();
    case vcl::CM_ENABLEDCHANGED: return UpdateButtons();
    default: return;
  }
}

void TQELDBNavigator::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arToolBar;
  if (Focused()) info.Value = ButtonName(FFocused);
}

}  // namespace qel
