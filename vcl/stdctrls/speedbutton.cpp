// TSpeedButton: its group, its look in each state, and the mouse.
#include "vcl/stdctrls/speedbutton.h"

#include "vcl/actions/actionlink.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TSpeedButton::Class() {
  using T = TSpeedButton;
  // GroupIndex stands before Down, which only a button of a group can be.
  static const TClass info = Describe<T, TGraphicControl>(
      "vcl::TSpeedButton", "vcl/stdctrls/buttons.h",
      {
          Inherit("Action"),
          Property<&T::AllowAllUp, &T::SetAllowAllUp>("AllowAllUp").Default(false),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex")
              .Default(0)
              .StoredIf<&T::IsGroupIndexStored>(),
          Property<&T::Down, &T::SetDown>("Down").Default(false).StoredIf<&T::IsDownStored>(),
          Inherit("Caption"),
          Inherit("Enabled"),
          Property<&T::Flat, &T::SetFlat>("Flat").Default(false),
          Inherit("Font"),
          Property<&T::Glyph, &T::SetGlyph>("Glyph").StoredIf<&T::IsGlyphStored>(),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(blGlyphLeft),
          Property<&T::Margin, &T::SetMargin>("Margin").Default(-1),
          Property<&T::NumGlyphs, &T::SetNumGlyphs>("NumGlyphs").Default(1),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::Spacing, &T::SetSpacing>("Spacing").Default(4),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(true),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
      });
  return info;
}

TSpeedButton::TSpeedButton(TComponent* owner)
    : TPressable(owner), FFace(TNotifyEvent(this, &TSpeedButton::Changed)) {
  // It clicks by itself, when it comes up again.
  SetControlStyle({csCaptureMouse, csDoubleClicks});
  SetBounds(0, 0, 23, 22);
  HearOnlyAsked<TSpeedButton>();
}

TSpeedButton::~TSpeedButton() { AnnounceEnd(); }

void TSpeedButton::Changed(TObject* /*sender*/) { Invalidate(); }

// The group.

void TSpeedButton::SetDown(bool down) {
  if (FGroupIndex == 0) down = false;
  if (down == FDown || (FDown && !FAllowAllUp && FGroupIndex != 0)) return;
  FDown = down;
  AccessibleChanged(acState);
  Invalidate();
  if (down) TellGroup();
}

void TSpeedButton::SetGroupIndex(int group) {
  if (group == FGroupIndex) return;
  FGroupIndex = group;
  if (group == 0) SetDown(false);
  TellGroup();
}

void TSpeedButton::SetAllowAllUp(bool allow) {
  if (allow == FAllowAllUp) return;
  FAllowAllUp = allow;
  TellGroup();
}

void TSpeedButton::TellGroup() {
  for (int i = 0; FGroupIndex != 0 && Parent() && i < Parent()->ControlCount(); ++i) {
    auto* other = dynamic_cast<TSpeedButton*>(Parent()->Controls(i));
    if (other && other != this && other->FGroupIndex == FGroupIndex) other->Follow(*this);
  }
}

void TSpeedButton::Follow(const TSpeedButton& pressed) {
  if (pressed.FDown && FDown) {
    FDown = false;
    AccessibleChanged(acState);
    Invalidate();
  }
  FAllowAllUp = pressed.FAllowAllUp;
}

// The action.

// A button that already stands in a group keeps it when it gets an action.
void TSpeedButton::FollowAction(const TActionChange& change) {
  using T = TSpeedButton;
  using V = TActionValues;
  const TWatch watch(this);
  TGraphicControl::FollowAction(change);
  if (watch.Gone()) return;
  if (!change.All() || FGroupIndex == 0) {
    change.Pass(*this, &V::GroupIndex, &T::GroupIndex, &T::SetGroupIndex);
  }
  change.Pass(*this, &V::Checked, &T::Down, &T::SetDown);
  FFace.FollowAction(change);
}

bool TSpeedButton::IsDownStored() const {
  return !ActionValues() || FDown != ActionValues()->Checked;
}

bool TSpeedButton::IsGroupIndexStored() const {
  return !ActionValues() || FGroupIndex != ActionValues()->GroupIndex;
}

// Look.

void TSpeedButton::SetFlat(bool flat) {
  if (flat == FFlat) return;
  FFlat = flat;
  Invalidate();
}

void TSpeedButton::SetTransparent(bool transparent) {
  if (transparent == Transparent()) return;
  const TControlStyle opaque{csOpaque};
  SetControlStyle(transparent ? ControlStyle() - opaque : ControlStyle() + opaque);
  Invalidate();
}

TFaceState TSpeedButton::FaceState() const {
  if (!Enabled()) return TFaceState::Disabled;
  if (FDown) return TFaceState::Exclusive;
  return Pressed() ? TFaceState::Down : TFaceState::Up;
}

bool TSpeedButton::ShowsEdge() const {
  return !FFlat || FDown || Pressed() || Designing() || (Hot() && Enabled());
}

void TSpeedButton::ChangeScale(int m, int d) {
  TGraphicControl::ChangeScale(m, d);
  // -1 is no distance.
  if (Margin() > 0) SetMargin(ScaleMeasure(Margin(), m, d));
  if (Spacing() > 0) SetSpacing(ScaleMeasure(Spacing(), m, d));
}

void TSpeedButton::Paint() {
  const bool down = FDown || Pressed();
  TRect rect =
      DrawFaceEdge(Canvas(), ClientRect(),
                   {.Flat = FFlat, .Shown = ShowsEdge(), .Down = down, .Filled = !Transparent()});
  const TFaceState state = FaceState();
  // One that stays down is lighter than its surroundings, save a flat one under the mouse.
  if (state == TFaceState::Exclusive && !(FFlat && Hot())) {
    Canvas()->Brush()->SetColor(cl3DLight);
    Canvas()->FillRect(rect);
  }
  Canvas()->SetFont(Font());
  if (down) rect.Offset(1, 1);
  FFace.Draw(Canvas(), rect, Caption(), state, CurrentPPI());
}

// Input.

void TSpeedButton::HotChanged() {
  if (FFlat) Invalidate();
}

void TSpeedButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TPressable::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || !Enabled()) return;
  if (FDown && shift.Has(ssDouble)) DblClick();
}

void TSpeedButton::Click() { TGraphicControl::Click(); }

void TSpeedButton::Dispatch(TMessage& message) {
  if (!IsAccelerated(message)) return TPressable::Dispatch(message);
  message.Result = 1;
  Click();
}

// Screen readers.

void TSpeedButton::DescribeAccessible(TAccessibleInfo& info) const {
  TGraphicControl::DescribeAccessible(info);
  info.Role = arPushButton;
  info.DefaultAction = "Press";
  if (FDown || Pressed()) info.State.Include(asPressed);
}

void TSpeedButton::DoAccessibleAction() {
  TWatch watch(this);
  if (FGroupIndex != 0) SetDown(!FDown);
  if (!watch.Gone()) Click();
}

}  // namespace vcl
