// TMovingPage: the page of labels with a text from elsewhere, and of what moves.
#pragma once

#include <string>

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/stdctrls/animate.h"

namespace gallery {

/// The frame of movingpage.dfm.
class TMovingPage : public vcl::TFrame {
 public:
  explicit TMovingPage(vcl::TComponent* owner);
  ~TMovingPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELAnimator* SampleAnimator = nullptr;
  vcl::TCheckBox* AnimatorCheck = nullptr;
  vcl::TAnimate* SampleClip = nullptr;
  qel::TQELImageScroller* SampleScroller = nullptr;
  qel::TQELPresentation* SampleSlides = nullptr;
  vcl::TComboBox* EffectBox = nullptr;

  void AnimatorClick(vcl::TObject*);
  void EffectChange(vcl::TObject*);
  void LinkCommand(vcl::TObject*, std::string& target, bool& allow);
  void DrawPictures();
  void PlayClip(const vcl::TBitmap& strip);

  std::string FClipFile;  // It is there while the page is.
};

}  // namespace gallery
