// TQELAnimator: pictures played one after the other.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelclock.h"
#include "qel/core/Qelcontrols.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/stdctrls/linkedimages.h"

namespace qel {

class TAviFile;

/// A file that the system cannot play; says which and why.
class QEL_API EQELAnimatorError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~EQELAnimatorError() override;
};

/// Plays pictures: those of an AVI file, else those of an image list, else those that stand side by
/// side in a bitmap. For a user who wants no animation, and in the designer, it shows the frame
/// where it is.
class QEL_API TQELAnimator : public TQELGraphicControl {
 public:
  explicit TQELAnimator(vcl::TComponent* owner);
  ~TQELAnimator() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  const std::string& Filename() const { return FFilename; }
  /// An AVI file, whose sound is not played. Raises EQELAnimatorError, and keeps the file that it
  /// had, for one that the system cannot play. A name in a form file whose file cannot be played
  /// shows nothing.
  void SetFilename(const std::string& fileName);
  vcl::TImageList* Images() const { return FImages.List; }
  /// The pictures where there is no AVI file; not owned, null for none.
  void SetImages(vcl::TImageList* images);
  /// The pictures where there is neither, side by side.
  vcl::TBitmap* Strip() const { return FStrip.get(); }
  /// Copies the bitmap; null for none.
  void SetStrip(const vcl::TBitmap* strip);
  int FrameCount() const { return FFrameCount; }
  /// How many pictures the strip has. Takes only values above 0.
  void SetFrameCount(int count);
  int Interval() const { return FMotion.Period(); }
  /// How long each frame is shown, in milliseconds. Takes only values above 0.
  void SetInterval(int milliseconds);
  bool Active() const { return FActive; }
  /// True plays; from the first frame, when the last one has been reached.
  void SetActive(bool active);
  bool Loop() const { return FLoop; }
  /// True: the first frame follows the last one, for ever.
  void SetLoop(bool loop) { FLoop = loop; }
  int FirstFrame() const { return FFirstFrame; }
  /// The frame that it begins with. Takes only values from 0.
  void SetFirstFrame(int frame);
  int LastFrame() const { return FLastFrame; }
  /// The frame that it ends with; -1 is the last one that there is. Takes only values from -1.
  void SetLastFrame(int frame);
  bool Transparent() const { return FTransparent; }
  /// True: what is behind shows through what the pictures leave out; of an AVI file and of a strip
  /// that is the colour of their lower left pixel, or what the strip says. False: over Color.
  void SetTransparent(bool transparent);
  bool Center() const { return FCenter; }
  /// The frame stands in the middle instead of at the top left.
  void SetCenter(bool center);
  bool Stretch() const { return FStretch; }
  /// The frame is stretched to the control's size.
  void SetStretch(bool stretch);

  /// How many frames there are in all.
  int Frames() const;
  /// The frame that is shown, from 0.
  int Frame() const { return FFrame; }
  /// Takes only frames that there are.
  void SetFrame(int frame);

  /// Another frame is shown.
  vcl::TNotifyEvent OnFrame;
  /// The last frame has been reached, without Loop.
  vcl::TNotifyEvent OnFinished;

 protected:
  void Paint() override;
  void Loaded() override;
  void Dispatch(vcl::TMessage& message) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  void SourceChanged(vcl::TObject* sender);
  void Change(bool& field, bool value);
  void UpdateMotion();
  int First() const;
  int Last() const;
  void Tick(double milliseconds);
  void ShowFrame(int frame);
  bool LoadPicture();
  void TakeFromStrip();

  std::string FFilename;
  std::unique_ptr<TAviFile> FAvi;
  vcl::TLinkedImages FImages;
  std::unique_ptr<vcl::TBitmap> FStrip;
  int FFrameCount = 1;
  bool FActive = false;
  bool FLoop = true;
  int FFirstFrame = 0;
  int FLastFrame = -1;
  bool FTransparent = true;
  bool FCenter = true;
  bool FStretch = false;
  int FFrame = 0;
  int FLoadedFrame = -1;  // The one in FPicture; -1 for none.
  vcl::TBitmap FPicture;
  double FTime = 0;  // How long the frame has been shown.
  TQELMotion FMotion;
};

}  // namespace qel
