// TQELFaceLayout and TQELToolFace: arranging glyph and caption, groups, and the menu.
#include "qel/controls/Qeltoolface.h"

#include <algorithm>

#include "qel/core/private/Qelownedsettings.h"
#include "qel/core/private/triangles.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TWatch;

namespace {

/// At 96 dots per inch.
constexpr int ArrowWidth = 12;
constexpr int ArrowSize = 3;

vcl::TSize ExtentOf(HDC dc, const vcl::TFont& font, const std::string& text) {
  if (text.empty()) return {0, 0};
  const vcl::TSelection selection(dc, font.Handle());
  RECT needed{};
  ::DrawTextW(dc, vcl::ToUtf16(text).c_str(), -1, &needed, DT_CALCRECT | DT_SINGLELINE);
  return {needed.right, needed.bottom};
}

/// Something of the size, in the middle of the area.
TRect Middle(const TRect& area, vcl::TSize size) {
  return vcl::Bounds(area.Left + (area.Width() - size.cx) / 2,
                     area.Top + (area.Height() - size.cy) / 2, size.cx, size.cy);
}

}  // namespace

TQELFaceLayout::TPlaces TQELFaceLayout::Arrange(const TRect& area, vcl::TSize image,
                                                vcl::TSize text) const {
  const bool across = Side == pLeft || Side == pRight;
  const int gap = image.cx > 0 && text.cx > 0 ? Spacing : 0;
  const int room = std::max(area.Width() - (across ? image.cx + gap : 0), 0);
  text.cx = std::min<int>(text.cx, room);
  // Along the line on which the two follow each other.
  const int imageLength = across ? image.cx : image.cy;
  const int textLength = across ? text.cx : text.cy;
  const int spare = (across ? area.Width() : area.Height()) - imageLength - gap - textLength;
  const int margin = Margin < 0 ? spare / 2 : std::min(Margin, std::max(spare, 0));
  const bool imageFirst = Side == pLeft || Side == pTop;
  const int begin = (across ? area.Left : area.Top) + (imageFirst ? margin : spare - margin);
  const int imageAt = imageFirst ? begin : begin + textLength + gap;
  const int textAt = imageFirst ? begin + imageLength + gap : begin;
  TPlaces places{Middle(area, image), Middle(area, text)};
  const auto move = [across](TRect& rect, int to) {
    across ? rect.Offset(to - rect.Left, 0) : rect.Offset(0, to - rect.Top);
  };
  move(places.Image, imageAt);
  move(places.Text, textAt);
  return places;
}

void TQELFaceLayout::Draw(vcl::TCanvas* canvas, const TRect& area,
                          const TContents& contents) const {
  const TQELGlyph& glyph = *contents.Glyph;
  const bool images = glyph.Visible() && glyph.GetWidth() > 0;
  const vcl::TSize image{images ? glyph.GetWidth() : 0, images ? glyph.GetHeight() : 0};
  const vcl::TSize text = ExtentOf(canvas->Handle(), *contents.Font, contents.Caption);
  const TPlaces places = Arrange(area, image, text);
  glyph.DrawImage(canvas, places.Image.Left, places.Image.Top, contents.Image,
                  !contents.Enabled && !glyph.HasImage(contents.Image));
  if (contents.Caption.empty()) return;
  constexpr unsigned flags = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
  canvas->Brush()->SetStyle(vcl::bsClear);
  if (contents.Enabled) {
    contents.Font3D->Write(contents.Font, canvas->Handle(), places.Text, contents.Caption, flags,
                           true);
  } else {
    QELDrawDisabledText(contents.Font, canvas, places.Text, flags, contents.Caption);
  }
}

TQELToolFace::TQELToolFace(vcl::TControl& control, const TQELGlyph& glyph, const TQELFont3D& font3D)
    : FControl(control), FGlyph(glyph), FFont3D(font3D), FHotFont(std::make_unique<vcl::TFont>()) {
  FHotFont->OnChange = vcl::TNotifyEvent(this, &TQELToolFace::HotFontChanged);
}

TQELToolFace::~TQELToolFace() { FHotFont->OnChange.Clear(); }

void TQELToolFace::HotFontChanged(vcl::TObject* /*sender*/) {
  if (!FFollowing) FOwnHotFont = true;
  FControl.Invalidate();
}

void TQELToolFace::FontChanged() {
  if (FOwnHotFont) return;
  const TQuietly following(FFollowing);
  FHotFont->AssignPixels(FControl.Font());
}

void TQELToolFace::SetLayout(TQELPosition layout) {
  if (Store(FLayout.Side, layout)) FControl.Invalidate();
}

void TQELToolFace::SetSpacing(int spacing) {
  if (spacing >= 0 && Store(FLayout.Spacing, spacing)) FControl.Invalidate();
}

void TQELToolFace::SetMargin(int margin) {
  if (margin >= -1 && Store(FLayout.Margin, margin)) FControl.Invalidate();
}

// The group.

void TQELToolFace::Show() {
  const TWatch watch(&FControl);
  FControl.AccessibleChanged(vcl::acState);
  if (!watch.Gone()) FControl.Invalidate();
}

void TQELToolFace::SetDown(bool down) {
  if (FGroupIndex == 0) down = false;
  if (down == FDown || (FDown && !FAllowAllUp && FGroupIndex != 0)) return;
  FDown = down;
  const TWatch watch(&FControl);
  Show();
  if (down && !watch.Gone()) TellGroup();
}

void TQELToolFace::SetGroupIndex(int group) {
  if (group == FGroupIndex) return;
  FGroupIndex = group;
  if (group == 0) SetDown(false);
  TellGroup();
}

void TQELToolFace::SetAllowAllUp(bool allow) {
  if (Store(FAllowAllUp, allow)) TellGroup();
}

void TQELToolFace::TellGroup() {
  const vcl::TWinControl* parent = FControl.Parent();
  for (int i = 0; FGroupIndex != 0 && parent && i < parent->ControlCount(); ++i) {
    auto* other = dynamic_cast<TQELTool*>(parent->Controls(i));
    if (!other || &other->Face() == this || other->Face().FGroupIndex != FGroupIndex) continue;
    other->Face().Follow(*this);
  }
}

void TQELToolFace::Follow(const TQELToolFace& other) {
  FAllowAllUp = other.FAllowAllUp;
  if (!other.FDown || !FDown) return;
  FDown = false;
  Show();
}

void TQELToolFace::Clicked() {
  if (FGroupIndex != 0) SetDown(!FDown);
}

// The menu.

void TQELToolFace::SetDropDownMenu(vcl::TPopupMenu* menu) {
  FMenu = menu;
  if (menu) menu->FreeNotification(&FControl);
  FControl.Invalidate();
}

void TQELToolFace::Forget(const vcl::TComponent* component) {
  if (component == FMenu) FMenu = nullptr;
}

void TQELToolFace::DropDown() {
  if (!FMenu || FControl.Designing() || !FControl.Parent()) return;
  const TPoint below = FControl.ClientToScreen({0, FControl.Height()});
  FMenu->SetPopupComponent(&FControl);
  FMenu->Popup(below.X, below.Y);
}

// Painting.

TRect TQELToolFace::ArrowArea() const {
  const TRect client = FControl.ClientRect();
  const int width = FMenu ? std::min(FControl.ScaledPixels(ArrowWidth), client.Width()) : 0;
  return {client.Right - width, client.Top, client.Right, client.Bottom};
}

void TQELToolFace::DrawArrow(vcl::TCanvas* canvas) const {
  if (!FMenu) return;
  const TRect area = ArrowArea();
  const int size = FControl.ScaledPixels(ArrowSize);
  const TPoint tip{(area.Left + area.Right) / 2, (area.Top + area.Bottom) / 2 + size / 2};
  const vcl::TColor color = FControl.Enabled() ? vcl::clBtnText : vcl::clGrayText;
  DrawTriangle(canvas, tip, TPointing::Down, color, size);
}

void TQELToolFace::Draw(vcl::TCanvas* canvas, TRect area, bool pressed, bool hot) {
  area.Right = std::min(area.Right, ArrowArea().Left);
  if (pressed) area.Offset(1, 1);
  const bool enabled = FControl.Enabled();
  const int image = !enabled ? fiDisabled : pressed || FDown ? fiPressed : hot ? fiHot : fiNormal;
  const vcl::TFont* font = hot && enabled && FOwnHotFont ? FHotFont.get() : FControl.Font();
  TQELFaceLayout scaled = FLayout;
  scaled.Spacing = FControl.ScaledPixels(FLayout.Spacing);
  if (FLayout.Margin > 0) scaled.Margin = FControl.ScaledPixels(FLayout.Margin);
  scaled.Draw(canvas, area, {&FGlyph, image, &FFont3D, font, FControl.Caption(), enabled});
  DrawArrow(canvas);
}

}  // namespace qel
