// TUpDown: the system's arrows, and the text of the control that they count for.
#include "vcl/stdctrls/updown.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {
namespace {

std::string ThousandSeparator() {
  std::array<wchar_t, 8> text{};
  ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, text.data(),
                   static_cast<int>(text.size()));
  return ToUtf8(text.data());
}

std::string WithThousands(int number) {
  std::string text = std::to_string(number);
  const std::string separator = ThousandSeparator();
  const std::size_t first = number < 0 ? 1 : 0;
  for (std::size_t at = text.size(); at > first + 3;) {
    at -= 3;
    text.insert(at, separator);
  }
  return text;
}

std::string WithoutThousands(std::string text) {
  const std::string separator = ThousandSeparator();
  if (separator.empty()) return text;
  for (std::size_t at; (at = text.find(separator)) != std::string::npos;) {
    text.erase(at, separator.size());
  }
  return text;
}

}  // namespace

const TClass& TUpDown::Class() {
  using T = TUpDown;
  static const TClass info = Describe<T, TRangeControl>(
      "vcl::TUpDown", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::AlignButton, &T::SetAlignButton>("AlignButton").Default(udRight),
          Property<&T::ArrowKeys, &T::SetArrowKeys>("ArrowKeys").Default(true),
          Property<&T::Associate, &T::SetAssociate>("Associate"),
          Inherit("Enabled"),
          Property<&T::Increment, &T::SetIncrement>("Increment").Default(1),
          Inherit("Max"),
          Inherit("Min"),
          Property<&T::Orientation, &T::SetOrientation>("Orientation").Default(udVertical),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("Position"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Property<&T::Thousands, &T::SetThousands>("Thousands").Default(true),
          Inherit("Visible"),
          Property<&T::Wrap, &T::SetWrap>("Wrap").Default(false),
          Event<&T::OnChanging>("OnChanging")
              .Type("TUDChangingEvent", "vcl::TObject* sender, bool& allow"),
          Event<&T::OnClick>("OnClick"),
          Inherit(FocusEvents),
          Inherit(MouseEvents),
      });
  return info;
}

TUpDown::TUpDown(TComponent* owner) : TRangeControl(owner, 100) {
  SetControlStyle(ControlStyle() - TControlStyle{csClickEvents, csDoubleClicks});
  SetBounds(0, 0, ::GetSystemMetrics(SM_CXVSCROLL), 24);
}

TUpDown::~TUpDown() { AnnounceEnd(); }

// The associate.

int TUpDown::Position() const {
  int number = 0;
  const bool typed = FAssociate && TryStrToInt(WithoutThousands(FAssociate->Text()), number);
  return typed && number >= Min() && number <= Max() ? number : TRangeControl::Position();
}

void TUpDown::SetAssociate(TWinControl* associate) {
  if (associate == FAssociate) return;
  if (associate && !Loading() && associate->Parent() != Parent()) {
    throw EInvalidOperation(
        Concat(Name(), " and ", associate->Name(), " do not stand in the same control"));
  }
  if (associate) associate->FreeNotification(this);
  FAssociate = associate;
  if (Loading()) return;
  StandBeside();
  ShowText();
  SendAssociate();
}

void TUpDown::SetAlignButton(TUDAlignButton align) {
  if (align == FAlignButton) return;
  FAlignButton = align;
  if (!Loading()) StandBeside();
}

void TUpDown::StandBeside() {
  if (!FAssociate) return;
  const TRect beside = FAssociate->BoundsRect();
  const int left = FAlignButton == udRight ? beside.Right : beside.Left - Width();
  SetBounds(left, beside.Top, Width(), beside.Height());
}

void TUpDown::ShowText() {
  if (!FAssociate || Designing()) return;
  const int position = TRangeControl::Position();
  FAssociate->SetText(FThousands ? WithThousands(position) : std::to_string(position));
}

/// The system's control takes the keys of the other one's window.
void TUpDown::SendAssociate() {
  if (!HandleAllocated()) return;
  HWND window = FAssociate && FArrowKeys && !Designing() ? FAssociate->Handle() : nullptr;
  if (reinterpret_cast<HWND>(Send(*this, UDM_GETBUDDY)) == window) return;
  Send(*this, UDM_SETBUDDY, reinterpret_cast<WPARAM>(window));
}

void TUpDown::Notification(TComponent* component, TOperation operation) {
  TRangeControl::Notification(component, operation);
  if (operation != opRemove || component != FAssociate) return;
  FAssociate = nullptr;
  SendAssociate();
}

void TUpDown::Loaded() {
  TRangeControl::Loaded();
  ShowText();
  SendAssociate();
}

// Look and steps.

void TUpDown::SetArrowKeys(bool arrowKeys) {
  if (arrowKeys == FArrowKeys) return;
  FArrowKeys = arrowKeys;
  RecreateWnd();
}

void TUpDown::SetIncrement(int increment) {
  if (increment < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A click cannot count by ", std::to_string(increment)));
  }
  FIncrement = increment;
}

void TUpDown::SetOrientation(TUDOrientation orientation) {
  if (orientation == FOrientation) return;
  FOrientation = orientation;
  RecreateWnd();
}

void TUpDown::SetThousands(bool thousands) {
  if (thousands == FThousands) return;
  FThousands = thousands;
  if (!Loading()) ShowText();
}

void TUpDown::SendRange() { Send(*this, UDM_SETRANGE32, static_cast<WPARAM>(Min()), Max()); }
void TUpDown::SendPosition() { Send(*this, UDM_SETPOS32, 0, TRangeControl::Position()); }

void TUpDown::Change() {
  TRangeControl::Change();
  ShowText();
}

void TUpDown::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_UPDOWN_CLASS);
  TRangeControl::CreateParams(params);
  params.SubClassOf = UPDOWN_CLASSA;
  // The second of two fast clicks counts, too.
  params.ClassStyle &= ~static_cast<UINT>(CS_DBLCLKS);
  if (FOrientation == udHorizontal) params.Style |= UDS_HORZ;
  if (FArrowKeys) params.Style |= UDS_ARROWKEYS;
}

void TUpDown::CreateWnd() {
  TRangeControl::CreateWnd();
  SendAssociate();
}

// Counting.

int TUpDown::StepFrom(int position, bool up) const {
  const std::int64_t next = std::int64_t{position} + (up ? FIncrement : -FIncrement);
  if (next > Max()) return FWrap && position == Max() ? Min() : Max();
  if (next < Min()) return FWrap && position == Min() ? Max() : Min();
  return static_cast<int>(next);
}

void TUpDown::Count(bool up) {
  const TWatch watch(this);
  bool allow = true;
  OnChanging(this, allow);
  if (watch.Gone() || !allow) return;
  const int typed = Position();
  SetPosition(StepFrom(typed, up));
  if (watch.Gone()) return;
  ShowText();  // Also where the number typed in was its own.
  OnClick(this, up ? btNext : btPrev);
}

void TUpDown::Dispatch(TMessage& message) {
  // A control whose associate's window has gone seems disabled to the system; there may be another.
  const bool looked =
      message.Msg == WM_PAINT || message.Msg == WM_MOUSEMOVE || message.Msg == WM_LBUTTONDOWN;
  if (looked) SendAssociate();
  if (message.Msg != CN_NOTIFY) return TRangeControl::Dispatch(message);
  const auto& told = *reinterpret_cast<const NMUPDOWN*>(message.LParam);
  if (told.hdr.code != static_cast<UINT>(UDN_DELTAPOS)) return TRangeControl::Dispatch(message);
  message.Result = 1;  // The position comes from here, in steps of Increment.
  Count(told.iDelta > 0);
}

void TUpDown::DescribeAccessible(TAccessibleInfo& info) const {
  TRangeControl::DescribeAccessible(info);
  info.Role = arSpinButton;
  info.Value = std::to_string(Position());
}

}  // namespace vcl
