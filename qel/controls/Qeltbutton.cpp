// TQELButton: its properties, painting it, and mouse and keyboard.
#include "qel/controls/Qeltbutton.h"

#include "qel/core/private/arithmetic.h"
#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr unsigned OneLine = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr unsigned Wrapped = DT_CENTER | DT_VCENTER | DT_WORDBREAK;

/// Between the button's edge and its contents, and between glyph and caption.
constexpr int FaceMargin = 3;
constexpr int GlyphMargin = 2;

}  // namespace

const vcl::TClass& TQELButton::Class() {
  using T = TQELButton;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELButton", "qel/controls/Qeltbutton.h",
      {
          Inherit("About"),
          Property<&T::Font3D, &T::Set3D>("Font3D"),
          Property<&T::Glyph, &T::SetQELGlyph>("Glyph"),
          Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
          Inherit("ParentShowHint"),
          Inherit("ShowHint"),
          Inherit("Font"),
          Inherit("Visible"),
          Property<&T::getcaption, &T::Setcaption>("Caption").Type("TCaption"),
          Property<&T::WordWrap, &T::Setword>("WordWrap").Default(false),
          Property<&T::ButtonSunk, &T::SetButtonSunk>("ButtonSunk").Default(false),
          Inherit("Background"),
          Inherit("OnClick"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("ParentFont"),
          Inherit("PopupMenu"),
          Inherit("TabOrder"),
          // The constructor sets it: a button in a form file always says that it is a tab stop.
          Inherit("TabStop"),
          Inherit(DragEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(FocusEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELButton::TQELButton(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FGlyph(std::make_unique<TQELGlyph>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)) {
  SetControlStyle({vcl::csCaptureMouse, vcl::csClickEvents, vcl::csSetCaption});
  SetBounds(Left(), Top(), 100, 30);
  SetTabStop(true);
  FGlyph->OnChange = vcl::TNotifyEvent(this, &TQELButton::GlyphChange);
  HearOnlyAsked<TQELButton>();
}

TQELButton::~TQELButton() {
  AnnounceEnd();
  FGlyph->OnChange.Clear();
}

void TQELButton::GlyphChange(vcl::TObject* /*sender*/) { Invalidate(); }

// Properties.

void TQELButton::Set3D(const TQELFont3D* font3D) {
  FFont3D->Assign(font3D);
  Invalidate();
}

void TQELButton::SetQELGlyph(const TQELGlyph* glyph) {
  FGlyph->Assign(glyph);
  Invalidate();
}

void TQELButton::SetEnabled(bool enabled) {
  FEnabled = enabled;
  AccessibleChanged(vcl::acState);
  Invalidate();
}

std::string TQELButton::getcaption() const { return Text(); }

void TQELButton::Setcaption(const std::string& caption) {
  if (caption != getcaption()) SetTextBuf(caption.c_str());
  Invalidate();
}

void TQELButton::Setword(bool wordWrap) {
  if (wordWrap == FWordWrap) return;
  FWordWrap = wordWrap;
  Invalidate();
}

void TQELButton::SetButtonSunk(bool sunk) {
  if (sunk == FButtonSunk) return;
  FButtonSunk = sunk;
  RecreateWnd();
}

void TQELButton::CreateParams(vcl::TCreateParams& params) {
  TQELCustomControl::CreateParams(params);
  if (FButtonSunk) params.ExStyle |= WS_EX_CLIENTEDGE;
}

// Painting.

void TQELButton::Paint() {
  TQELCustomControl::Paint();
  TRect face = ClientRect();
  if (FDown) face.Offset(1, 1);
  face.Inflate(-ScaledPixels(FaceMargin), -ScaledPixels(FaceMargin));
  const std::string caption = getcaption();
  PaintGlyph(face, !caption.empty());
  if (!caption.empty()) PaintCaption(face, caption);
  PaintEdge();
}

void TQELButton::PaintGlyph(const TRect& face, bool beforeText) {
  // Without a caption, a pressed glyph moves down but not to the right.
  const int x = beforeText ? face.Left + 1 : Round((Width() - FGlyph->GetWidth()) / 2.0) + 1;
  const int y = Round((Height() - FGlyph->GetHeight()) / 2.0) + (FDown ? 1 : 0);
  FGlyph->Draw(Canvas(), x + ScaledPixels(GlyphMargin), y, FEnabled, FDown, false);
}

void TQELButton::PaintCaption(TRect face, const std::string& caption) {
  face.Left += FGlyph->GetWidth() + ScaledPixels(GlyphMargin);
  const unsigned format = FWordWrap ? Wrapped : OneLine;
  if (FEnabled) {
    FFont3D->Write(Font(), Canvas()->Handle(), face, caption, format, true);
  } else {
    QELDrawDisabledText(Font(), Canvas(), face, format, caption);
  }
}

void TQELButton::PaintEdge() {
  RECT edge = ClientRect();
  const UINT type = FDown ? EDGE_SUNKEN : EDGE_RAISED;
  ::DrawEdge(Canvas()->Handle(), &edge, type, BF_LEFT | BF_TOP | BF_SOFT);
  ::DrawEdge(Canvas()->Handle(), &edge, type, BF_RIGHT | BF_BOTTOM | BF_SOFT);
}

// Input. The button shows its state at once instead of waiting to be asked to paint.

void TQELButton::SetDown(bool down) {
  FDown = down;
  // One press gives one click, whatever is released first.
  if (!down) ExcludeState(vcl::csClicked);
  AccessibleChanged(vcl::acState);
  PaintNow();
}

void TQELButton::Click() {
  TWatch watch(this);
  if (FDown) SetDown(false);
  if (!watch.Gone()) TQELCustomControl::Click();
}

void TQELButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  SetMouseCapture(true);
  // The window is enabled when the button is not: what it took for the beginning of a click is
  // none.
  if (!FEnabled) ExcludeState(vcl::csClicked);
  TWatch watch(this);
  TQELCustomControl::MouseDown(button, shift, x, y);
  if (watch.Gone()) return;
  if (button != vcl::mbLeft || !FEnabled || FDown) return;
  // A handler that shows a box has let the mouse go: its release comes here no more.
  MouseCapture() ? SetDown(true) : ExcludeState(vcl::csClicked);
}

void TQELButton::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  SetMouseCapture(false);
  TWatch watch(this);
  TQELCustomControl::MouseUp(button, shift, x, y);
  // Wherever the mouse is, and whichever of its buttons was released.
  if (!watch.Gone() && FDown) Click();
}

void TQELButton::KeyDown(std::uint16_t& key, TShiftState shift) {
  TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  // The button's own Enabled is not asked here: the space bar presses a disabled one, too.
  if (!watch.Gone() && key == VK_SPACE && !FDown) SetDown(true);
}

void TQELButton::KeyUp(std::uint16_t& key, TShiftState shift) {
  TWatch watch(this);
  if (key == VK_SPACE && FDown) {
    SetDown(false);
    if (!watch.Gone()) OnClick(this);
  }
  if (!watch.Gone()) TQELCustomControl::KeyUp(key, shift);
}

bool TQELButton::TakesAccel(WPARAM character) const {
  return FEnabled && vcl::IsAccel(character, getcaption()) && CanFocus();
}

void TQELButton::Dispatch(vcl::TMessage& message) {
  if (message.Msg == vcl::CM_DIALOGCHAR && TakesAccel(message.WParam)) {
    message.Result = 1;
    return Click();
  }
  TWatch watch(this);
  DispatchPress(message);
  if (watch.Gone() || !FDown) return;
  const bool ends = message.Msg == WM_CANCELMODE ||
                    (message.Msg == WM_CAPTURECHANGED && !FReleasing) ||
                    (message.Msg == WM_KILLFOCUS && !MouseCapture());
  if (ends) SetDown(false);
}

void TQELButton::DispatchPress(vcl::TMessage& message) {
  const bool release =
      message.Msg == WM_LBUTTONUP || message.Msg == WM_RBUTTONUP || message.Msg == WM_MBUTTONUP;
  if (!release) return TQELCustomControl::Dispatch(message);
  const vcl::TSetFor releasing(FReleasing, true, this);
  TQELCustomControl::Dispatch(message);
}

// Screen readers.

void TQELButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arPushButton;
  info.DefaultAction = "Press";
  if (!FEnabled) info.State.Include(vcl::asDisabled);
  if (FDown) info.State.Include(vcl::asPressed);
}

}  // namespace qel
