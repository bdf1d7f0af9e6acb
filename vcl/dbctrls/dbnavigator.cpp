// TDBNavigator: its buttons, what they do, and when.
#include "vcl/dbctrls/dbnavigator.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/dbctrls/private/navbutton.h"
#include "vcl/dialogs/messagedialog.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr TButtonSet AllButtons{nbFirst,  nbPrior, nbNext, nbLast,   nbInsert,
                                nbDelete, nbEdit,  nbPost, nbCancel, nbRefresh};

template <class T>
std::unique_ptr<TDataSetAction> Make() {
  return std::make_unique<T>(nullptr);
}

constexpr std::unique_ptr<TDataSetAction> (*Makers[])() = {
    &Make<TDataSetFirst>,  &Make<TDataSetPrior>,  &Make<TDataSetNext>, &Make<TDataSetLast>,
    &Make<TDataSetInsert>, &Make<TDataSetDelete>, &Make<TDataSetEdit>, &Make<TDataSetPost>,
    &Make<TDataSetCancel>, &Make<TDataSetRefresh>};

constexpr TNavigateBtn ButtonAt(std::size_t place) { return static_cast<TNavigateBtn>(place); }

}  // namespace

const TClass& TDBNavigator::Class() {
  using T = TDBNavigator;
  static const TClass info = Describe<T, TCustomControl>(
      "vcl::TDBNavigator", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Property<&T::ConfirmDelete, &T::SetConfirmDelete>("ConfirmDelete").Default(true),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::Flat, &T::SetFlat>("Flat").Default(false),
          Property<&T::Hints, &T::SetHints>("Hints"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Property<&T::VisibleButtons, &T::SetVisibleButtons>("VisibleButtons").Default(AllButtons),
          Event<&T::BeforeAction>("BeforeAction"),
          Event<&T::OnClick>("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit("OnKeyDown"),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TDBNavigator::TDBNavigator(TComponent* owner)
    : TCustomControl(owner), FLink(*this), FHints(std::make_unique<TStringList>()) {
  SetControlStyle(ControlStyle() - TControlStyle{csSetCaption, csAcceptsControls});
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    FActions[i] = Makers[i]();
    FButtons[i] = new TNavButton(*this, ButtonAt(i));
    FButtons[i]->SetParent(this);
  }
  FHints->OnChange = [this](TObject*) { UpdateHints(); };
  UpdateHints();
  UpdateButtons();
  SetBounds(0, 0, 241, 25);
}

TDBNavigator::~TDBNavigator() {
  AnnounceEnd();
  FHints->OnChange = nullptr;
  FLink.SetDataSource(nullptr);
}

void TDBNavigator::SetDataSource(TDataSource* dataSource) {
  FLink.SetDataSource(dataSource);
  if (dataSource) dataSource->FreeNotification(this);
  UpdateButtons();
}

void TDBNavigator::SetVisibleButtons(TButtonSet buttons) {
  if (buttons == FVisibleButtons) return;
  FVisibleButtons = buttons;
  Arrange();
}

void TDBNavigator::SetFlat(bool flat) {
  FFlat = flat;
  for (TNavButton* each : FButtons) each->SetFlat(flat);
}

void TDBNavigator::UpdateHints() {
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    const int place = static_cast<int>(i);
    const std::string own = place < FHints->Count() ? FHints->Strings(place) : std::string();
    const std::string hint = own.empty() ? FActions[i]->Values()->Hint : own;
    FButtons[i]->SetHint(hint);
    FButtons[i]->SetAccessibleName(hint);
  }
}

/// What can be done, the actions know. Without a source they would look for one on the form.
void TDBNavigator::UpdateButtons() {
  if (Destroying()) return;
  const TWatch watch(this);
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    // One that ends tells of it while it still has its links.
    const bool lives = FLink.DataSource() && !FLink.DataSource()->Destroying();
    TDataSource* const source = lives ? FLink.DataSource() : nullptr;
    FActions[i]->SetDataSource(source);
    if (source) FActions[i]->Update();
    if (watch.Gone()) return;
    FButtons[i]->SetEnabled(source && FLink.Active() && Enabled() && FActions[i]->Enabled());
  }
}

bool TDBNavigator::ButtonEnabled(TNavigateBtn button) const {
  return FButtons[static_cast<std::size_t>(button)]->Enabled();
}

TRect TDBNavigator::ButtonRect(TNavigateBtn button) const {
  if (!FVisibleButtons.Has(button)) return {};
  return FButtons[static_cast<std::size_t>(button)]->BoundsRect();
}

/// The visible ones share the width without a rest.
void TDBNavigator::Arrange() {
  int count = 0;
  for (std::size_t i = 0; i < FButtons.size(); ++i) count += FVisibleButtons.Has(ButtonAt(i));
  int place = 0;
  for (std::size_t i = 0; i < FButtons.size(); ++i) {
    const bool visible = FVisibleButtons.Has(ButtonAt(i));
    FButtons[i]->SetVisible(visible);
    if (!visible) continue;
    const int left = ClientWidth() * place / count;
    const int right = ClientWidth() * ++place / count;
    FButtons[i]->SetBounds(left, 0, right - left, ClientHeight());
  }
  if (count > 0 && !FVisibleButtons.Has(FFocused)) MoveFocus(0, 1);
}

void TDBNavigator::Resize() {
  const TWatch watch(this);
  TCustomControl::Resize();
  if (!watch.Gone()) Arrange();
}

void TDBNavigator::Loaded() {
  TCustomControl::Loaded();
  UpdateButtons();
}

void TDBNavigator::BtnClick(TNavigateBtn button) {
  if (!ButtonEnabled(button) || Designing()) return;
  const TWatch watch(this);
  BeforeAction(this, button);
  if (watch.Gone()) return;
  if (button == nbDelete && FConfirmDelete &&
      MessageDlg("Delete record?", mtConfirmation, {mbOK, mbCancel}) != mrOk) {
    return;
  }
  if (watch.Gone() || !FLink.Active()) return;
  FActions[static_cast<std::size_t>(button)]->Execute();
  if (!watch.Gone()) OnClick(this, button);
}

// The keyboard.

void TDBNavigator::SetFocusedButton(TNavigateBtn button) {
  if (!FVisibleButtons.Has(button)) return;
  FFocused = button;
  Invalidate();
  AccessibleChanged(acName);
}

/// To the first visible button from that place on.
void TDBNavigator::MoveFocus(int first, int step) {
  for (int i = first; i >= 0 && i < ButtonCount; i += step) {
    const TNavigateBtn button = ButtonAt(static_cast<std::size_t>(i));
    if (FVisibleButtons.Has(button)) return SetFocusedButton(button);
  }
}

void TDBNavigator::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TCustomControl::KeyDown(key, shift);
  if (watch.Gone() || !shift.Empty()) return;
  switch (key) {
    case VK_LEFT: return MoveFocus(FFocused - 1, -1);
    case VK_RIGHT: return MoveFocus(FFocused + 1, 1);
    case VK_HOME: return MoveFocus(0, 1);
    case VK_END: return MoveFocus(ButtonCount - 1, -1);
    case VK_SPACE: return BtnClick(FFocused);
    default: return;
  }
}

void TDBNavigator::Dispatch(TMessage& message) {
  const bool arrow = message.WParam == VK_LEFT || message.WParam == VK_RIGHT;
  if (message.Msg == CM_WANTSPECIALKEY && arrow) {
    message.Result = 1;
    return;
  }
  const TWatch watch(this);
  TCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == WM_SETFOCUS || message.Msg == WM_KILLFOCUS) Invalidate();
  if (message.Msg == CM_ENABLEDCHANGED) UpdateButtons();
}

void TDBNavigator::Paint() {
  Canvas()->Brush()->SetColor(Color());
  Canvas()->FillRect(ClientRect());
}

void TDBNavigator::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arToolBar;
  if (Focused()) info.Value = FButtons[static_cast<std::size_t>(FFocused)]->Hint();
}

}  // namespace vcl
