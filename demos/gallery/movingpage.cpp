// The page of what moves: its pictures are drawn when it is made.
#include "demos/gallery/movingpage.h"

#include <cmath>

#include "demos/gallery/clip.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

constexpr double Turn = 6.283185307179586;

int Wave(int height, double part, double turns) {
  return static_cast<int>(std::lround(height * (0.5 + 0.3 * std::sin(Turn * part * turns))));
}

/// A dot that runs round, frame by frame.
void DrawFrames(TBitmap& strip, int frames) {
  constexpr int side = 48;
  strip.Canvas()->Brush()->SetColor(clFuchsia);
  strip.SetSize(side * frames, side);
  for (int i = 0; i < frames; ++i) {
    const double angle = Turn * i / frames;
    const int x = side * i + side / 2 + static_cast<int>(16 * std::sin(angle));
    const int y = side / 2 - static_cast<int>(16 * std::cos(angle));
    strip.Canvas()->Brush()->SetColor(clNavy);
    strip.Canvas()->Ellipse(x - 6, y - 6, x + 6, y + 6);
  }
}

/// Hills whose right end goes on at the left one.
void DrawHills(TBitmap& hills) {
  constexpr int width = 900;
  constexpr int height = 78;
  hills.Canvas()->Brush()->SetColor(clAqua);
  hills.SetSize(width, height);
  const auto row = [&](TColor color, int turns, int down) {
    hills.Canvas()->Pen()->SetColor(color);
    for (int x = 0; x < width; ++x) {
      hills.Canvas()->MoveTo(x, Wave(height, 1.0 * x / width, turns) / 2 + down);
      hills.Canvas()->LineTo(x, height);
    }
  };
  row(clTeal, 3, 24);
  row(clGreen, 5, 40);
}

void DrawSlide(TPicture& picture, TColor ground, const std::string& text) {
  TBitmap bitmap;
  bitmap.Canvas()->Brush()->SetColor(ground);
  bitmap.SetSize(400, 280);
  bitmap.Canvas()->Font()->SetSize(28);
  bitmap.Canvas()->Font()->SetColor(clWhite);
  bitmap.Canvas()->TextOut(40, 110, text);
  picture.Assign(&bitmap);
}

}  // namespace

const TClass& TMovingPage::Class() {
  using T = TMovingPage;
  static const TClass info =
      Describe<T, TFrame>("gallery::TMovingPage", "demos/gallery/movingpage.h",
                          {
                              Field<&T::SampleAnimator>("SampleAnimator"),
                              Field<&T::AnimatorCheck>("AnimatorCheck"),
                              Field<&T::SampleClip>("SampleClip"),
                              Field<&T::SampleScroller>("SampleScroller"),
                              Field<&T::SampleSlides>("SampleSlides"),
                              Field<&T::EffectBox>("EffectBox"),
                              Method<&T::AnimatorClick>("AnimatorClick"),
                              Method<&T::EffectChange>("EffectChange"),
                              Method<&T::LinkCommand>("LinkCommand"),
                          });
  return info;
}

TMovingPage::TMovingPage(TComponent* owner) : TFrame(owner) {
  RegisterClasses({&TQELAnimator::Class(), &TQELCommandLabel::Class(), &TQELICQMarquee::Class(),
                   &TQELImageScroller::Class(), &TQELInformationLabel::Class(),
                   &TQELPresentation::Class(), &TQELStickyLabel::Class(),
                   &TQELVersionLabel::Class()});
  LoadFrame();
  for (const char* effect :
       {"None", "Fade", "Wipe to the left", "Wipe to the right", "Wipe up", "Wipe down",
        "Push to the left", "Push to the right", "Blinds", "Chequers", "Dissolve", "Box"}) {
    EffectBox->Items()->Add(effect);
  }
  EffectBox->SetItemIndex(seFade);
  DrawPictures();
}

TMovingPage::~TMovingPage() {
  AnnounceEnd();
  SampleClip->SetFileName("");
  DeleteFile(FClipFile);
}

void TMovingPage::DrawPictures() {
  TBitmap strip;
  DrawFrames(strip, SampleAnimator->FrameCount());
  SampleAnimator->SetStrip(&strip);
  PlayClip(strip);
  TBitmap hills;
  DrawHills(hills);
  TPicture picture;
  picture.Assign(&hills);
  SampleScroller->SetPicture(&picture);
  constexpr std::pair<TColor, const char*> slides[] = {
      {clNavy, "Slides"}, {clTeal, "come and go"}, {clPurple, "by the clock"}};
  for (const auto& [ground, text] : slides) {
    TQELSlide* slide = SampleSlides->Slides()->Add();
    DrawSlide(*slide->Picture(), ground, text);
    slide->SetTitle(text);
    slide->SetEffect(seFade);
  }
}

/// The system's control plays files.
void TMovingPage::PlayClip(const TBitmap& strip) {
  FClipFile = Concat(IncludeTrailingPathDelimiter(QELInformation(iiTempFolder)), "gallery-",
                     std::to_string(::GetCurrentProcessId()), ".avi");
  TFileStream(FClipFile, fmCreate).WriteText(ClipOf(strip, SampleAnimator->FrameCount()));
  SampleClip->SetFileName(FClipFile);
}

void TMovingPage::AnimatorClick(TObject*) {
  SampleAnimator->SetActive(AnimatorCheck->Checked());
  SampleClip->SetActive(AnimatorCheck->Checked());
}

void TMovingPage::EffectChange(TObject*) {
  for (int i = 0; i < SampleSlides->Slides()->Count(); ++i) {
    SampleSlides->Slides()->Slides(i)->SetEffect(
        static_cast<TQELSlideEffect>(EffectBox->ItemIndex()));
  }
}

/// Nothing is opened without a word.
void TMovingPage::LinkCommand(TObject*, std::string& target, bool& allow) {
  allow = MessageDlg(Concat("Open ", target, "?"), mtConfirmation, {mbYes, mbNo}, mbNo) == mrYes;
}

}  // namespace gallery
