// TWinControl: the controls inside, bounds, text.
#include "vcl/controls/wincontrol.h"

#include <algorithm>

#include "vcl/controls/controlwatch.h"
#include "vcl/controls/private/painthold.h"
#include "vcl/controls/windowtext.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/brush.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TWinControl::Class() {
  static const TClass info = Describe<TWinControl, TControl>(
      "vcl::TWinControl", "vcl/controls/controls.h",
      {
          Property<&TWinControl::Padding, &TWinControl::SetPadding>("Padding").Unpublished(),
          Property<&TWinControl::AutoSize, &TWinControl::SetAutoSize>("AutoSize")
              .Default(false)
              .Unpublished(),
          Property<&TWinControl::TabOrder, &TWinControl::SetTabOrder>("TabOrder")
              .Default(-1)
              .Unpublished(),
          Property<&TWinControl::TabStop, &TWinControl::SetTabStop>("TabStop")
              .Default(false)
              .Unpublished(),
          Property<&TWinControl::Ctl3D, &TWinControl::SetCtl3D>("Ctl3D")
              .StoredIf<&TWinControl::IsCtl3DStored>()
              .Unpublished(),
          Property<&TWinControl::ParentCtl3D, &TWinControl::SetParentCtl3D>("ParentCtl3D")
              .Default(true)
              .Unpublished(),
          Property<&TWinControl::ImeMode, &TWinControl::SetImeMode>("ImeMode")
              .Default(imDontCare)
              .Unpublished(),
          Property<&TWinControl::ImeName, &TWinControl::SetImeName>("ImeName")
              .Default("")
              .Unpublished(),
          Property<&TWinControl::DoubleBuffered, &TWinControl::SetDoubleBuffered>("DoubleBuffered")
              .Default(false)
              .Unpublished(),
          Event<&TWinControl::OnEnter>("OnEnter").Unpublished(),
          Event<&TWinControl::OnExit>("OnExit").Unpublished(),
          Event<&TWinControl::OnKeyDown>("OnKeyDown").Unpublished(),
          Event<&TWinControl::OnKeyPress>("OnKeyPress").Unpublished(),
          Event<&TWinControl::OnKeyUp>("OnKeyUp").Unpublished(),
          Event<&TWinControl::OnMouseWheel>("OnMouseWheel").Unpublished(),
          Event<&TWinControl::OnMouseWheelDown>("OnMouseWheelDown").Unpublished(),
          Event<&TWinControl::OnMouseWheelUp>("OnMouseWheelUp").Unpublished(),
          Event<&TWinControl::OnResize>("OnResize").Unpublished(),
      });
  return info;
}

TWinControl::TWinControl(TComponent* owner) : TControl(owner), FBrush(std::make_unique<TBrush>()) {
  FBrush->SetColor(Color());
}

TWinControl::~TWinControl() {
  AnnounceEnd();
  DestroyComponents();
  // What stands inside ends with the window, whoever owns it.
  while (!FControls.empty()) delete FControls.back();
  DestroyHandle();
}

// The controls inside.

TControl* TWinControl::Controls(int index) const {
  if (index < 0 || index >= ControlCount()) {
    throw EListError(Concat("Control index ", std::to_string(index), " is out of bounds: ", Name(),
                            " holds ", std::to_string(ControlCount())));
  }
  return FControls[static_cast<std::size_t>(index)];
}

bool TWinControl::ContainsControl(const TControl* control) const {
  while (control && control != this) control = control->Parent();
  return control != nullptr;
}

namespace {

bool HasWindow(const TControl* control) {
  return dynamic_cast<const TWinControl*>(control) != nullptr;
}
bool HasNoWindow(const TControl* control) { return !HasWindow(control); }

}  // namespace

void TWinControl::Insert(TControl* control) {
  // Controls without windows come first: the windows always lie above them.
  const auto place =
      HasWindow(control) ? FControls.end() : std::ranges::partition_point(FControls, HasNoWindow);
  FControls.insert(place, control);
  control->FParent = this;
  if (auto* winControl = dynamic_cast<TWinControl*>(control)) {
    FTabList.push_back(winControl);
    if (!ControlState().Has(csReadingState)) winControl->UpdateControlState();
  } else {
    control->Invalidate();
  }
  const TWatch watch(this);
  Perform(CM_CONTROLLISTCHANGE, 1, reinterpret_cast<LPARAM>(control));
  if (!watch.Gone()) AlignControl(control);
}

void TWinControl::Remove(TControl* control) {
  // A control on its way out is no TWinControl any more when its destructor calls: compare only.
  std::erase_if(FTabList, [&](TWinControl* each) { return each == control; });
  std::erase(FControls, control);
  if (auto* winControl = dynamic_cast<TWinControl*>(control)) {
    winControl->DestroyHandle();
    winControl->FShowing = false;
  } else {
    control->InvalidateArea(control->Visible(), false);
  }
  control->FParent = nullptr;
  if (Destroying()) return;
  Perform(CM_CONTROLLISTCHANGE, 0, reinterpret_cast<LPARAM>(control));
  Realign();
}

void TWinControl::MoveInZOrder(TControl* control, bool topmost) {
  const bool windowed = HasWindow(control);
  std::erase(FControls, control);
  const auto firstWindow = std::ranges::partition_point(FControls, HasNoWindow);
  const auto place = windowed ? (topmost ? FControls.end() : firstWindow)
                              : (topmost ? firstWindow : FControls.begin());
  FControls.insert(place, control);
}

void TWinControl::SetChildOrder(TComponent* child, int order) {
  auto* control = dynamic_cast<TControl*>(child);
  if (!control || control->Parent() != this) return;
  std::erase(FControls, control);
  auto place = FControls.begin();
  for (int before = order; place != FControls.end(); ++place) {
    if ((*place)->Owner() == control->Owner() && before-- <= 0) break;
  }
  const auto firstWindow = std::ranges::partition_point(FControls, HasNoWindow);
  place = HasWindow(control) ? std::max(place, firstWindow) : std::min(place, firstWindow);
  FControls.insert(place, control);
  const auto* window = dynamic_cast<TWinControl*>(control);
  if (!window || !window->HandleAllocated()) return control->Invalidate();
  ::SetWindowPos(window->FHandle, PrecedingWindow(window), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void TWinControl::SetZOrder(bool topmost) {
  if (Parent()) Parent()->MoveInZOrder(this, topmost);
  if (!HandleAllocated()) return;
  ::SetWindowPos(FHandle, topmost ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

TControl* TWinControl::ControlAtPos(TPoint position, bool allowDisabled) const {
  for (auto each = FControls.rbegin(); each != FControls.rend(); ++each) {
    TControl* control = *each;
    if (!control->Seen()) continue;
    if (!control->BoundsRect().Contains(position)) continue;
    if (!allowDisabled && !control->FEnabled && !control->Designing()) continue;
    const TPoint inside{position.X - control->Left(), position.Y - control->Top()};
    if (control->Perform(CM_HITTEST, 0, MAKELPARAM(inside.X, inside.Y))) return control;
  }
  return nullptr;
}

void TWinControl::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  const std::vector<TControl*> controls = FControls;
  for (TControl* control : controls) {
    if (control->Owner() == root) each(control);
  }
}

void TWinControl::ShowControl(TControl* control) {
  if (Parent()) Parent()->ShowControl(control);
}

void TWinControl::ReadState(TReader& reader) {
  {
    const TAlignHold hold(*this);
    TControl::ReadState(reader);
    FixupTabList();
  }
  Realign();
  UpdateControlState();
}

// Bounds.

void TWinControl::SetBounds(int left, int top, int width, int height) {
  if (TRect(left, top, left + width, top + height) == BoundsRect()) return CheckLimits();
  if (HandleAllocated() && !::IsIconic(FHandle)) {
    // The window asks for its limits (WM_WINDOWPOSCHANGING) and tells of its new place
    // (WM_WINDOWPOSCHANGED), which then becomes ours.
    const UINT silent = Parent() && TPaintHold::Covers(*this) ? SWP_NOREDRAW : 0;
    ::SetWindowPos(FHandle, nullptr, left, top, std::max(width, 0), std::max(height, 0),
                   SWP_NOZORDER | SWP_NOACTIVATE | silent);
    return;
  }
  const TWatch watch(this);
  const TSize size = ConstrainedSize(width, height);
  if (watch.Gone()) return;
  const bool resized = size != TSize{FWidth, FHeight};
  FLeft = left;
  FTop = top;
  FWidth = size.cx;
  FHeight = size.cy;
  KeepPlace();
  if (resized) Realign();
  if (!watch.Gone()) RequestAlign();
  if (!watch.Gone() && resized) TellResize();
  if (!watch.Gone()) TControlWatch::Changed(this);
}

/// The limits may have changed around a size that stays outside them.
void TWinControl::CheckLimits() {
  const TWatch watch(this);
  const TSize size = ConstrainedSize(FWidth, FHeight);
  if (watch.Gone() || size == TSize{FWidth, FHeight}) return;
  SetBounds(FLeft, FTop, size.cx, size.cy);
}

void TWinControl::UpdateBounds() {
  if (!HandleAllocated() || ::IsIconic(FHandle)) return;
  RECT rect;
  ::GetWindowRect(FHandle, &rect);
  if (::GetWindowLongW(FHandle, GWL_STYLE) & WS_CHILD) {
    ::MapWindowPoints(nullptr, ::GetParent(FHandle), reinterpret_cast<POINT*>(&rect), 2);
  }
  const TRect former = BoundsRect();
  FLeft = rect.left;
  FTop = rect.top;
  FWidth = rect.right - rect.left;
  FHeight = rect.bottom - rect.top;
  if (former != BoundsRect()) KeepPlace();
}

TRect TWinControl::ClientRect() const {
  if (!HandleAllocated()) return {0, 0, Width(), Height()};
  RECT rect;
  ::GetClientRect(FHandle, &rect);
  return {0, 0, rect.right, rect.bottom};
}

void TWinControl::SetClientSize(int width, int height) {
  HandleNeededForSize();
  TControl::SetClientSize(width, height);
}

void TWinControl::HandleNeededForSize() {
  if (!HandleAllocated() && Parent() && Parent()->HandleAllocated()) HandleNeeded();
}

TPoint TWinControl::ClientOrigin() const {
  POINT origin{0, 0};
  ::ClientToScreen(const_cast<TWinControl*>(this)->Handle(), &origin);
  return {static_cast<int>(origin.x), static_cast<int>(origin.y)};
}

void TWinControl::Resize() { OnResize(this); }

// Text.

int TWinControl::GetTextLen() const {
  if (!HandleAllocated()) return TControl::GetTextLen();
  return static_cast<int>(WindowText(FHandle).size());
}

int TWinControl::GetTextBuf(char* buffer, int size) const {
  if (!HandleAllocated()) return TControl::GetTextBuf(buffer, size);
  if (size <= 0) return 0;
  const std::string text = WindowText(FHandle);
  const std::size_t count = text.copy(buffer, static_cast<std::size_t>(size) - 1);
  buffer[count] = '\0';
  return static_cast<int>(count);
}

void TWinControl::SetTextBuf(const char* text) {
  if (HandleAllocated()) SetWindowTextUtf8(FHandle, text);
  TControl::SetTextBuf(text);
}

}  // namespace vcl
