// TQELAnimator: where its frames come from, which one is shown when, and painting it.
#include "qel/controls/Qeltanimator.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qel/controls/private/avifile.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace qel {

using vcl::TRect;

EQELAnimatorError::~EQELAnimatorError() = default;

const vcl::TClass& TQELAnimator::Class() {
  using T = TQELAnimator;
  using namespace vcl;
  static const TClass info = Describe<T, TQELGraphicControl>(
      "qel::TQELAnimator", "qel/controls/Qeltanimator.h",
      {
          Inherit("Align"),
          Inherit("Color"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("ParentColor"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Images, &T::SetImages>("Images"),
          Property<&T::Strip, &T::SetStrip>("Strip"),
          Property<&T::FrameCount, &T::SetFrameCount>("FrameCount").Default(1),
          Property<&T::Interval, &T::SetInterval>("Interval").Default(100),
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Property<&T::Loop, &T::SetLoop>("Loop").Default(true),
          Property<&T::FirstFrame, &T::SetFirstFrame>("FirstFrame").Default(0),
          Property<&T::LastFrame, &T::SetLastFrame>("LastFrame").Default(-1),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(true),
          Property<&T::Center, &T::SetCenter>("Center").Default(true),
          Property<&T::Stretch, &T::SetStretch>("Stretch").Default(false),
          Event<&T::OnFrame>("OnFrame"),
          Event<&T::OnFinished>("OnFinished"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELAnimator::TQELAnimator(vcl::TComponent* owner)
    : TQELGraphicControl(owner),
      FStrip(std::make_unique<vcl::TBitmap>()),
      FMotion(*this, [this](double passed) { Tick(passed); }) {
  SetBounds(0, 0, 100, 60);
  FMotion.SetPeriod(100);
  FImages.Link.OnChange = {this, &TQELAnimator::SourceChanged};
  FStrip->OnChange = {this, &TQELAnimator::SourceChanged};
  HearOnlyAsked<TQELAnimator>();
}

TQELAnimator::~TQELAnimator() {
  AnnounceEnd();
  FStrip->OnChange.Clear();
}

// Where the frames come from.

void TQELAnimator::SetFilename(const std::string& fileName) {
  if (!Loading()) {
    auto file = fileName.empty() ? nullptr : std::make_unique<TAviFile>(fileName);
    FAvi = std::move(file);
  }
  FFilename = fileName;
  SourceChanged(nullptr);
}

void TQELAnimator::Loaded() {
  TQELGraphicControl::Loaded();
  if (!FFilename.empty()) try {
      FAvi = std::make_unique<TAviFile>(FFilename);
    } catch (const EQELAnimatorError&) {
      // A form opens also where a file of it is missing: there is nothing to play then.
      FAvi.reset();
    }
  ShowFrame(First());
  UpdateMotion();
}

void TQELAnimator::SetImages(vcl::TImageList* images) {
  if (FImages.Take(images, *this)) SourceChanged(nullptr);
}

void TQELAnimator::SetStrip(const vcl::TBitmap* strip) { FStrip->Assign(strip); }

void TQELAnimator::SetFrameCount(int count) {
  if (count < 1) return;
  FFrameCount = count;
  SourceChanged(nullptr);
}

void TQELAnimator::SourceChanged(vcl::TObject* /*sender*/) {
  FLoadedFrame = -1;
  FFrame = std::clamp(FFrame, 0, std::max(Frames() - 1, 0));
  UpdateMotion();
  Invalidate();
}

int TQELAnimator::Frames() const {
  if (FAvi) return FAvi->FrameCount();
  if (FImages.List) return FImages.List->Count();
  return FStrip->Empty() ? 0 : FFrameCount;
}

/// The frame as a picture; false where there is none.
bool TQELAnimator::LoadPicture() {
  if (FFrame >= Frames()) return false;
  if (FLoadedFrame == FFrame) return true;
  // An image list's pictures bring their own shape, which this colour fills up.
  constexpr vcl::TColor around = vcl::clFuchsia;
  FPicture.SetTransparentColor(vcl::clDefault);
  if (FAvi) {
    if (!FAvi->GetFrame(FFrame, FPicture)) return false;
  } else if (FImages.List) {
    FImages.List->ForPPI(CurrentPPI())
        ->GetBitmap(FFrame, &FPicture, FTransparent ? around : Color());
    FPicture.SetTransparentColor(around);
  } else {
    TakeFromStrip();
  }
  FPicture.SetTransparent(FTransparent);
  FLoadedFrame = FFrame;
  return true;
}

void TQELAnimator::TakeFromStrip() {
  const int width = std::max(FStrip->Width() / FFrameCount, 1);
  FPicture.SetSize(width, FStrip->Height());
  const TRect all(0, 0, width, FStrip->Height());
  TRect part = all;
  part.Offset(FFrame * width, 0);
  FPicture.Canvas()->CopyRect(all, FStrip->Canvas(), part);
  FPicture.SetTransparentColor(FStrip->TransparentColor());
}

// Playing.

void TQELAnimator::Change(bool& field, bool value) {
  if (value == field) return;
  field = value;
  FLoadedFrame = -1;
  Invalidate();
}

void TQELAnimator::SetTransparent(bool transparent) { Change(FTransparent, transparent); }
void TQELAnimator::SetCenter(bool center) { Change(FCenter, center); }
void TQELAnimator::SetStretch(bool stretch) { Change(FStretch, stretch); }

void TQELAnimator::SetInterval(int milliseconds) {
  if (milliseconds > 0) FMotion.SetPeriod(milliseconds);
}

void TQELAnimator::SetFirstFrame(int frame) {
  if (frame < 0) return;
  FFirstFrame = frame;
  if (!Loading()) ShowFrame(std::max(FFrame, First()));
}

void TQELAnimator::SetLastFrame(int frame) {
  if (frame < -1) return;
  FLastFrame = frame;
  if (!Loading()) ShowFrame(std::min(FFrame, Last()));
}

void TQELAnimator::SetFrame(int frame) {
  if (frame >= 0 && frame < Frames()) ShowFrame(frame);
}

int TQELAnimator::First() const { return std::clamp(FFirstFrame, 0, std::max(Frames() - 1, 0)); }

int TQELAnimator::Last() const {
  const int last = std::max(Frames() - 1, 0);
  return std::max(FLastFrame < 0 ? last : std::min(FLastFrame, last), First());
}

void TQELAnimator::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  FTime = 0;
  const vcl::TWatch watch(this);
  if (active && !Loading() && FFrame >= Last()) ShowFrame(First());
  if (!watch.Gone()) UpdateMotion();
}

void TQELAnimator::UpdateMotion() { FMotion.SetActive(FActive && Enabled() && Frames() > 0); }

void TQELAnimator::Tick(double milliseconds) {
  FTime += milliseconds;
  const double steps = std::max(std::floor((FTime + 2) / Interval()), 1.0);
  FTime = std::max(FTime - steps * Interval(), 0.0);
  const int first = First();
  const int count = Last() - first + 1;
  const double place = FFrame - first + steps;
  if (FLoop) return ShowFrame(first + static_cast<int>(std::fmod(place, count)));
  const bool ends = place >= count - 1;
  const vcl::TWatch watch(this);
  ShowFrame(ends ? Last() : first + static_cast<int>(place));
  if (watch.Gone() || !ends) return;
  SetActive(false);
  OnFinished(this);
}

void TQELAnimator::ShowFrame(int frame) {
  if (frame == FFrame) return;
  FFrame = frame;
  Invalidate();
  OnFrame(this);
}

void TQELAnimator::Dispatch(vcl::TMessage& message) {
  const vcl::TWatch watch(this);
  TQELGraphicControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_ENABLEDCHANGED) UpdateMotion();
  if (message.Msg == vcl::CM_COLORCHANGED) FLoadedFrame = -1;
}

void TQELAnimator::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELGraphicControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FImages.List) SetImages(nullptr);
}

void TQELAnimator::Paint() {
  FMotion.Wake();
  if (!FTransparent) {
    Canvas()->Brush()->SetStyle(vcl::bsSolid);
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(ClientRect());
  }
  if (LoadPicture()) {
    const int left = FCenter ? (Width() - FPicture.Width()) / 2 : 0;
    const int top = FCenter ? (Height() - FPicture.Height()) / 2 : 0;
    const TRect own = vcl::Bounds(left, top, FPicture.Width(), FPicture.Height());
    FPicture.Draw(Canvas(), FStretch ? ClientRect() : own);
  }
  if (!Designing()) return;
  Canvas()->Pen()->SetStyle(vcl::psDash);
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  Canvas()->Rectangle(ClientRect());
}

void TQELAnimator::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELGraphicControl::DescribeAccessible(info);
  info.Role = vcl::arGraphic;
}

}  // namespace qel
