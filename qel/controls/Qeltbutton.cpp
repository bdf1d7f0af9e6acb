// TQELButton: its properties, painting it, and mouse and keyboard.
#include "qel/controls/Qeltbutton.h"

#include "qel/core/private/arithmetic.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TRect;
using vcl::TShiftState;

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
  static const TClass info = Describe<T, TQELCustomButton>(
      "qel::TQELButton", "qel/controls/Qeltbutton.h",
      {
          Inherit("About"),
          Inherit("Font3D"),
          Inherit("Glyph"),
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
    : TQELCustomButton(owner, TQELPress::TRelease::Anywhere) {
  SetBounds(Left(), Top(), 100, 30);
  HearOnlyAsked<TQELButton>();
}

TQELButton::~TQELButton() { AnnounceEnd(); }

// Properties.

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
  TQELCustomButton::CreateParams(params);
  if (FButtonSunk) params.ExStyle |= WS_EX_CLIENTEDGE;
}

// Painting.

void TQELButton::Paint() {
  TQELCustomButton::Paint();
  TRect face = ClientRect();
  if (Down()) face.Offset(1, 1);
  face.Inflate(-ScaledPixels(FaceMargin), -ScaledPixels(FaceMargin));
  const std::string caption = getcaption();
  PaintGlyph(face, !caption.empty());
  if (!caption.empty()) PaintCaption(face, caption);
  PaintEdge();
}

void TQELButton::PaintGlyph(const TRect& face, bool beforeText) {
  // Without a caption, a pressed glyph moves down but not to the right.
  const int x = beforeText ? face.Left + 1 : Round((Width() - Glyph()->GetWidth()) / 2.0) + 1;
  const int y = Round((Height() - Glyph()->GetHeight()) / 2.0) + (Down() ? 1 : 0);
  Glyph()->Draw(Canvas(), x + ScaledPixels(GlyphMargin), y, FEnabled, Down(), false);
}

void TQELButton::PaintCaption(TRect face, const std::string& caption) {
  face.Left += Glyph()->GetWidth() + ScaledPixels(GlyphMargin);
  const unsigned format = FWordWrap ? Wrapped : OneLine;
  if (FEnabled) {
    Font3D()->Write(Font(), Canvas()->Handle(), face, caption, format, true);
  } else {
    QELDrawDisabledText(Font(), Canvas(), face, format, caption);
  }
}

void TQELButton::PaintEdge() {
  RECT edge = ClientRect();
  const UINT type = Down() ? EDGE_SUNKEN : EDGE_RAISED;
  ::DrawEdge(Canvas()->Handle(), &edge, type, BF_LEFT | BF_TOP | BF_SOFT);
  ::DrawEdge(Canvas()->Handle(), &edge, type, BF_RIGHT | BF_BOTTOM | BF_SOFT);
}

// Input. The button shows its state at once instead of waiting to be asked to paint.

void TQELButton::ShowPress() {
  AccessibleChanged(vcl::acState);
  PaintNow();
}

void TQELButton::PressClicks(bool byKey) { byKey ? OnClick(this) : Click(); }

void TQELButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  SetMouseCapture(true);
  TQELCustomButton::MouseDown(button, shift, x, y);
}

void TQELButton::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  SetMouseCapture(false);
  TQELCustomButton::MouseUp(button, shift, x, y);
}

// Screen readers.

void TQELButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomButton::DescribeAccessible(info);
  if (!FEnabled) info.State.Include(vcl::asDisabled);
}

}  // namespace qel
