// TQELPresentation: slides shown one after the other; TQELSlides and TQELSlide.
#pragma once

#include <memory>
#include <string>

#include "qel/controls/slideeffect.h"
#include "qel/core/Qelclock.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelfont3d.h"
#include "vcl/graphics/picture.h"
#include "vcl/rtl/collection.h"

namespace qel {

class TQELPresentation;

/// A slide of a presentation.
class QEL_API TQELSlide : public vcl::TCollectionItem {
 public:
  explicit TQELSlide(vcl::TCollection* collection);
  ~TQELSlide() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;
  std::string DisplayName() const override;

  vcl::TPicture* Picture() const { return FPicture.get(); }
  /// What the slide shows; without a picture that is the ground.
  void SetPicture(const vcl::TPicture* picture) { FPicture->Assign(picture); }
  const std::string& Title() const { return FTitle; }
  /// The text at the slide's lower edge (ShowTitle), and what a screen reader calls it.
  void SetTitle(const std::string& title);
  int Duration() const { return FDuration; }
  /// How long the slide stands while the presentation is active, in milliseconds. Takes only values
  /// above 0.
  void SetDuration(int milliseconds);
  TQELSlideEffect Effect() const { return FEffect; }
  /// How the slide takes the place of the one before.
  void SetEffect(TQELSlideEffect effect) { FEffect = effect; }

 private:
  void PictureChanged(vcl::TObject* sender);

  std::unique_ptr<vcl::TPicture> FPicture;
  std::string FTitle;
  int FDuration = 3000;
  TQELSlideEffect FEffect = seNone;
};

/// The slides of a presentation.
class QEL_API TQELSlides : public vcl::TCollection {
 public:
  /// `owner` is painted again after changes; null for none.
  explicit TQELSlides(TQELPresentation* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELSlide* Add();
  /// Raises EListError outside 0 to Count - 1.
  TQELSlide* Slides(int index) const;

 protected:
  void Update(vcl::TCollectionItem* item) override;

 private:
  TQELPresentation* FOwner;
};

/// Shows slides, by itself while it is active, and by the user's steps: a click, the wheel, and the
/// keys (arrows, Page Up and Down, the space bar, Home and End). A user who wants no animation sees
/// one slide after the other without effects; in the designer nothing moves.
class QEL_API TQELPresentation : public TQELCustomControl {
 public:
  explicit TQELPresentation(vcl::TComponent* owner);
  ~TQELPresentation() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override { Step(1); }

  TQELSlides* Slides() const { return FSlides.get(); }
  /// The slides, in their order.
  void SetSlides(const TQELSlides* slides) { FSlides->Assign(slides); }
  bool Active() const { return FActive; }
  /// True shows one slide after the other.
  void SetActive(bool active);
  bool Loop() const { return FLoop; }
  /// True: the first slide follows the last one, and goes before it.
  void SetLoop(bool loop) { FLoop = loop; }
  bool Stretch() const { return FStretch; }
  /// Pictures are made as large as the window. Those that are larger than it are made smaller in
  /// any case, if Proportional.
  void SetStretch(bool stretch);
  bool Proportional() const { return FProportional; }
  /// Pictures keep the ratio of their sides.
  void SetProportional(bool proportional);
  bool Center() const { return FCenter; }
  /// Pictures stand in the middle instead of at the top left.
  void SetCenter(bool center);
  int EffectTime() const { return FEffectTime; }
  /// How long the effects take, in milliseconds; 0 leaves them out. Takes only values from 0.
  void SetEffectTime(int milliseconds);
  bool ShowTitle() const { return FShowTitle; }
  /// True: each slide's title stands at its lower edge.
  void SetShowTitle(bool show);
  /// How the titles are written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void SetFont3D(const TQELFont3D* font3D);
  int SlideIndex() const;
  /// The slide that is shown, from 0; with its effect. Takes only slides that there are.
  void SetSlideIndex(int index);

  /// The slide that is shown; null without slides.
  TQELSlide* Slide() const;
  /// Shows the slide so many further, or before; at the ends as Loop says.
  void Step(int by);

  /// Another slide is shown.
  vcl::TNotifyEvent OnSlide;
  /// The last slide has stood its time, without Loop; the presentation is active no more.
  vcl::TNotifyEvent OnEnd;

 protected:
  void Paint() override;
  void WMEraseBkgnd(vcl::TMessage& message) override { message.Result = 1; }
  void Dispatch(vcl::TMessage& message) override;
  void Loaded() override;
  void Click() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  bool DoMouseWheel(vcl::TShiftState shift, int wheelDelta, vcl::TPoint mousePos) override;

 private:
  friend class TQELSlides;
  void SlidesChanged();
  void Change(bool& field, bool value);
  void UpdateMotion();
  void Tick(double milliseconds);
  void TimeIsUp();
  void BeginEffect(TQELSlideEffect effect);
  bool InEffect() const { return FProgress >= 0; }
  vcl::TRect PlaceOf(const vcl::TGraphic& picture) const;
  void DrawSlide(vcl::TCanvas& canvas);
  void DrawTitle(vcl::TCanvas& canvas, const std::string& title);
  void DrawEffect();

  std::unique_ptr<TQELSlides> FSlides;
  std::unique_ptr<TQELFont3D> FFont3D;
  bool FActive = false;
  bool FLoop = true;
  bool FStretch = false;
  bool FProportional = true;
  bool FCenter = true;
  int FEffectTime = 500;
  bool FShowTitle = false;
  int FSlideIndex = 0;
  double FShown = 0;      // How long the slide has stood, in milliseconds.
  double FProgress = -1;  // Of the effect, from 0 to 1; below 0 there is none.
  int FWheelRest = 0;
  TQELSlideEffect FEffect = seNone;
  vcl::TBitmap FOld, FNew;  // What an effect mixes.
  TQELMotion FMotion;
};

}  // namespace qel
