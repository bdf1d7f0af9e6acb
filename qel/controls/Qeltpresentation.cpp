// TQELPresentation: which slide is shown, for how long, and painting it and the effects.
#include "qel/controls/Qeltpresentation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "qel/controls/private/focusmark.h"
#include "qel/controls/private/slideeffects.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TWatch;

// Slides.

const vcl::TClass& TQELSlide::Class() {
  using T = TQELSlide;
  using namespace vcl;
  static const TClass info = Describe<T, TCollectionItem>(
      "qel::TQELSlide", "qel/controls/Qeltpresentation.h",
      {
          Property<&T::Picture, &T::SetPicture>("Picture"),
          Property<&T::Title, &T::SetTitle>("Title").Default(""),
          Property<&T::Duration, &T::SetDuration>("Duration").Default(3000),
          Property<&T::Effect, &T::SetEffect>("Effect").Default(seNone),
      });
  return info;
}

TQELSlide::TQELSlide(vcl::TCollection* collection)
    : TCollectionItem(collection), FPicture(std::make_unique<vcl::TPicture>()) {
  FPicture->OnChange = {this, &TQELSlide::PictureChanged};
}

TQELSlide::~TQELSlide() { FPicture->OnChange.Clear(); }

void TQELSlide::PictureChanged(vcl::TObject* /*sender*/) { Changed(false); }

void TQELSlide::SetTitle(const std::string& title) {
  FTitle = title;
  Changed(false);
}

void TQELSlide::SetDuration(int milliseconds) {
  if (milliseconds > 0) FDuration = milliseconds;
}

void TQELSlide::Assign(const vcl::TPersistent* source) {
  const auto* slide = dynamic_cast<const TQELSlide*>(source);
  if (!slide) return TCollectionItem::Assign(source);
  SetPicture(slide->Picture());
  FDuration = slide->FDuration;
  FEffect = slide->FEffect;
  SetTitle(slide->FTitle);
}

std::string TQELSlide::DisplayName() const {
  return FTitle.empty() ? TCollectionItem::DisplayName() : FTitle;
}

const vcl::TClass& TQELSlides::Class() {
  static const vcl::TClass info = vcl::Describe<TQELSlides, TCollection>(
      "qel::TQELSlides", "qel/controls/Qeltpresentation.h", {});
  return info;
}

TQELSlides::TQELSlides(TQELPresentation* owner) : TCollection(TQELSlide::Class()), FOwner(owner) {}

TQELSlide* TQELSlides::Add() { return static_cast<TQELSlide*>(TCollection::Add()); }
TQELSlide* TQELSlides::Slides(int index) const { return static_cast<TQELSlide*>(Items(index)); }

void TQELSlides::Update(vcl::TCollectionItem* item) {
  TCollection::Update(item);
  if (FOwner) FOwner->SlidesChanged();
}

// The presentation.

const vcl::TClass& TQELPresentation::Class() {
  using T = TQELPresentation;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELPresentation", "qel/controls/Qeltpresentation.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Background"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Font3D, &T::SetFont3D>("Font3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Property<&T::Slides, &T::SetSlides>("Slides"),
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Property<&T::Loop, &T::SetLoop>("Loop").Default(true),
          Property<&T::Stretch, &T::SetStretch>("Stretch").Default(false),
          Property<&T::Proportional, &T::SetProportional>("Proportional").Default(true),
          Property<&T::Center, &T::SetCenter>("Center").Default(true),
          Property<&T::EffectTime, &T::SetEffectTime>("EffectTime").Default(500),
          Property<&T::ShowTitle, &T::SetShowTitle>("ShowTitle").Default(false),
          Property<&T::SlideIndex, &T::SetSlideIndex>("SlideIndex").Default(0),
          Event<&T::OnSlide>("OnSlide"),
          Event<&T::OnEnd>("OnEnd"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELPresentation::TQELPresentation(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FSlides(std::make_unique<TQELSlides>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FMotion(
          *this, [this](double passed) { Tick(passed); }, TQELMotionKind::Content) {
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetDoubleBuffered(true);
  SetTabStop(true);
  SetBounds(0, 0, 200, 150);
  HearOnlyAsked<TQELPresentation>();
}

TQELPresentation::~TQELPresentation() { AnnounceEnd(); }

void TQELPresentation::Change(bool& field, bool value) {
  if (value == field) return;
  field = value;
  Invalidate();
}

void TQELPresentation::SetStretch(bool stretch) { Change(FStretch, stretch); }
void TQELPresentation::SetProportional(bool proportional) { Change(FProportional, proportional); }
void TQELPresentation::SetCenter(bool center) { Change(FCenter, center); }
void TQELPresentation::SetShowTitle(bool show) { Change(FShowTitle, show); }
void TQELPresentation::SetFont3D(const TQELFont3D* font3D) { FFont3D->Assign(font3D); }

void TQELPresentation::SetEffectTime(int milliseconds) {
  if (milliseconds >= 0) FEffectTime = milliseconds;
}

void TQELPresentation::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  FShown = 0;
  UpdateMotion();
}

void TQELPresentation::SlidesChanged() {
  FProgress = -1;
  UpdateMotion();
  Invalidate();
}

void TQELPresentation::Loaded() {
  TQELCustomControl::Loaded();
  SlidesChanged();
}

// Which slide is shown.

/// A form file may give the index before the slides, and slides may have gone since.
int TQELPresentation::SlideIndex() const {
  return Loading() ? FSlideIndex : std::clamp(FSlideIndex, 0, std::max(FSlides->Count() - 1, 0));
}

TQELSlide* TQELPresentation::Slide() const {
  return FSlides->Count() > 0 ? FSlides->Slides(std::clamp(FSlideIndex, 0, FSlides->Count() - 1))
                              : nullptr;
}

void TQELPresentation::SetSlideIndex(int index) {
  if (Loading()) {
    FSlideIndex = std::max(index, 0);
    return;
  }
  if (index < 0 || index >= FSlides->Count() || index == SlideIndex()) return;
  const TQELSlideEffect effect = FSlides->Slides(index)->Effect();
  const bool shown = effect != seNone && FEffectTime > 0 && !Designing() && HandleAllocated() &&
                     Showing() && QELAnimationWanted();
  if (shown) {
    FOld.SetSize(ClientWidth(), ClientHeight());
    DrawSlide(*FOld.Canvas());
  }
  FSlideIndex = index;
  FShown = 0;
  FProgress = -1;
  if (shown) BeginEffect(effect);
  UpdateMotion();
  Invalidate();
  AccessibleChanged(vcl::acName);
  OnSlide(this);
}

void TQELPresentation::Step(int by) {
  const int count = FSlides->Count();
  if (count == 0) return;
  const int wanted = SlideIndex() + by;
  SetSlideIndex(FLoop ? (wanted % count + count) % count : std::clamp(wanted, 0, count - 1));
}

void TQELPresentation::BeginEffect(TQELSlideEffect effect) {
  FEffect = effect;
  FNew.SetSize(ClientWidth(), ClientHeight());
  DrawSlide(*FNew.Canvas());
  FProgress = 0;
}

/// The clock comes often during an effect, and else when the slide's time is up.
void TQELPresentation::UpdateMotion() {
  constexpr int smooth = 16;
  const TQELSlide* const slide = Slide();
  const double left = slide ? slide->Duration() - FShown : 1;
  FMotion.SetPeriod(InEffect() ? smooth : static_cast<int>(std::ceil(left)));
  FMotion.SetActive(Enabled() && (InEffect() || (FActive && slide)));
}

void TQELPresentation::Tick(double milliseconds) {
  if (InEffect()) {
    FProgress += milliseconds / std::max(FEffectTime, 1);
    if (FProgress >= 1) FProgress = -1;
    Invalidate();
    return UpdateMotion();
  }
  FShown += milliseconds;
  // The system's timers may come a moment too soon.
  constexpr double early = 2;
  const TQELSlide* const slide = Slide();
  if (FActive && slide && FShown + early >= slide->Duration()) return TimeIsUp();
  UpdateMotion();
}

void TQELPresentation::TimeIsUp() {
  const bool last = SlideIndex() == FSlides->Count() - 1;
  FShown = 0;
  if (last && !FLoop) {
    SetActive(false);
    return OnEnd(this);
  }
  const TWatch watch(this);
  Step(1);
  if (!watch.Gone()) UpdateMotion();
}

// Painting.

TRect TQELPresentation::PlaceOf(const vcl::TGraphic& picture) const {
  const TRect client = ClientRect();
  double width = picture.Width(), height = picture.Height();
  const double across = client.Width() / width, down = client.Height() / height;
  if (FProportional) {
    const double fit = std::min(across, down);
    const double ratio = FStretch ? fit : std::min(fit, 1.0);
    width *= ratio, height *= ratio;
  } else if (FStretch) {
    return client;
  }
  const int w = std::max(static_cast<int>(std::lround(width)), 1);
  const int h = std::max(static_cast<int>(std::lround(height)), 1);
  return FCenter ? vcl::Bounds((client.Width() - w) / 2, (client.Height() - h) / 2, w, h)
                 : TRect(0, 0, w, h);
}

void TQELPresentation::DrawSlide(vcl::TCanvas& canvas) {
  const HDC dc = canvas.Handle();
  if (Background()) {
    Background()->Draw(dc, ClientWidth(), ClientHeight(), true);
  } else {
    canvas.Brush()->SetStyle(vcl::bsSolid);
    canvas.Brush()->SetColor(vcl::clBtnFace);
    canvas.FillRect(ClientRect());
  }
  const TQELSlide* const slide = Slide();
  if (!slide) return;
  vcl::TGraphic* const picture = slide->Picture()->Graphic();
  if (picture && picture->Width() > 0 && picture->Height() > 0)
    picture->Draw(&canvas, PlaceOf(*picture));
  if (FShowTitle && !slide->Title().empty()) DrawTitle(canvas, slide->Title());
}

void TQELPresentation::DrawTitle(vcl::TCanvas& canvas, const std::string& title) {
  constexpr unsigned flags = DT_CENTER | DT_SINGLELINE | DT_NOPREFIX | DT_BOTTOM | DT_END_ELLIPSIS;
  const int margin = ScaledPixels(6);
  TRect rect = ClientRect();
  rect.Inflate(-margin, -margin);
  canvas.Brush()->SetStyle(vcl::bsClear);
  FFont3D->Write(Font(), canvas.Handle(), rect, title, flags, Enabled());
}

void TQELPresentation::DrawEffect() {
  const HDC dc = Canvas()->Handle();
  const HDC from = FOld.Canvas()->Handle();
  const HDC to = FNew.Canvas()->Handle();
  const vcl::TSize size{FNew.Width(), FNew.Height()};
  const TSlideMix mix = MixSlides(FEffect, size, FProgress);
  ::BitBlt(dc, mix.Old.X, mix.Old.Y, size.cx, size.cy, from, 0, 0, SRCCOPY);
  if (mix.Opacity < 255) {
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, static_cast<BYTE>(mix.Opacity), 0};
    ::AlphaBlend(dc, 0, 0, size.cx, size.cy, to, 0, 0, size.cx, size.cy, blend);
    return;
  }
  for (const TRect& part : mix.Shown) {
    ::BitBlt(dc, part.Left, part.Top, part.Width(), part.Height(), to, part.Left - mix.New.X,
             part.Top - mix.New.Y, SRCCOPY);
  }
}

void TQELPresentation::Paint() {
  FMotion.Wake();
  const bool fits = FNew.Width() == ClientWidth() && FNew.Height() == ClientHeight() &&
                    FOld.Width() == FNew.Width() && FOld.Height() == FNew.Height();
  InEffect() && fits ? DrawEffect() : DrawSlide(*Canvas());
  DrawFocusMark(*this, *Canvas());
}

// Input.

void TQELPresentation::Dispatch(vcl::TMessage& message) {
  if (message.Msg == vcl::CM_WANTSPECIALKEY && message.WParam >= VK_LEFT &&
      message.WParam <= VK_DOWN) {
    message.Result = 1;
    return;
  }
  const TWatch watch(this);
  TQELCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_ENABLEDCHANGED) UpdateMotion();
  const bool looks = ChangesFocusMark(message.Msg) || message.Msg == vcl::CM_FONTCHANGED ||
                     message.Msg == vcl::CM_ENABLEDCHANGED;
  if (looks) Invalidate();
}

void TQELPresentation::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (button == vcl::mbLeft && TabStop() && CanFocus()) SetFocus();
  if (!watch.Gone()) TQELCustomControl::MouseDown(button, shift, x, y);
}

void TQELPresentation::Click() {
  const TWatch watch(this);
  Step(1);
  if (!watch.Gone()) TQELCustomControl::Click();
}

void TQELPresentation::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone()) return;
  switch (key) {
    case VK_RIGHT:
    case VK_DOWN:
    case VK_NEXT:
    case VK_SPACE: return Step(1);
    case VK_LEFT:
    case VK_UP:
    case VK_PRIOR: return Step(-1);
    case VK_HOME: return SetSlideIndex(0);
    case VK_END: return SetSlideIndex(FSlides->Count() - 1);
    default: return;
  }
}

bool TQELPresentation::DoMouseWheel(vcl::TShiftState shift, int wheelDelta, TPoint mousePos) {
  const TWatch watch(this);
  if (TQELCustomControl::DoMouseWheel(shift, wheelDelta, mousePos)) return true;
  FWheelRest += wheelDelta;
  while (!watch.Gone() && std::abs(FWheelRest) >= WHEEL_DELTA) {
    const int by = FWheelRest > 0 ? -1 : 1;
    FWheelRest += by * WHEEL_DELTA;
    Step(by);
  }
  return true;
}

// Screen readers.

void TQELPresentation::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arGraphic;
  info.DefaultAction = "Next";
  const TQELSlide* const slide = Slide();
  if (!slide) return;
  info.Name = slide->Title();
  info.Value =
      vcl::Concat(std::to_string(SlideIndex() + 1), " / ", std::to_string(FSlides->Count()));
}

}  // namespace qel
