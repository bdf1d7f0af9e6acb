// TAnimate: a clip without sound, played by the system's animation control.
#pragma once

#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/exceptions.h"

namespace vcl {

/// A clip that is not there, or that the system cannot play; names it.
class VCL_API EAnimateError : public Exception {
 public:
  using Exception::Exception;
  ~EAnimateError() override;
};

/// Plays a clip again and again, as one that says that something is going on. The system plays AVI
/// files without sound that are not compressed, or by run lengths.
class VCL_API TAnimate : public TWinControl {
 public:
  explicit TAnimate(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  const std::string& FileName() const { return FFileName; }
  /// The clip's file; empty for none. Taken instead of a resource. Raises EAnimateError for one
  /// that cannot be opened or played, and then the clip from before stays; while a form is being
  /// read, the application's handler is told instead, and the form goes on.
  void SetFileName(const std::string& fileName);
  const std::string& ResName() const { return FResName; }
  /// The name of a resource of type AVI in the program; otherwise as FileName.
  void SetResName(const std::string& name);
  int ResId() const { return FResId; }
  /// The number of such a resource; 0 for none.
  void SetResId(int id);
  bool AutoSize() const { return FAutoSize; }
  /// True: the control is as large as the clip.
  void SetAutoSize(bool autoSize);
  bool Center() const { return FCenter; }
  /// True: the clip stands in the middle; false: at the upper left.
  void SetCenter(bool center);
  bool Transparent() const { return FTransparent; }
  /// True: what has the colour of the clip's first pixel shows what is behind.
  void SetTransparent(bool transparent);
  int Repetitions() const { return FRepetitions; }
  /// How often the clip is played; 0 for ever. Raises EArgumentOutOfRangeException for less.
  void SetRepetitions(int repetitions);
  int StartFrame() const { return FStartFrame; }
  /// The first frame that is played, from 1. Raises EArgumentOutOfRangeException for less.
  void SetStartFrame(int frame);
  int StopFrame() const { return FStopFrame; }
  /// The last frame that is played; 0 for the clip's last one. Raises EArgumentOutOfRangeException
  /// for less.
  void SetStopFrame(int frame);
  bool Active() const { return FActive; }
  /// Plays, or stops. Without a clip it waits for one.
  void SetActive(bool active);
  /// True while a clip is open.
  bool Open() const { return FClip.Frames > 0; }
  /// Of the open clip; 0 without one.
  int FrameCount() const { return FClip.Frames; }
  int FrameWidth() const { return FClip.Width; }
  int FrameHeight() const { return FClip.Height; }
  /// Shows the frame, from 1, and stops. Raises EArgumentOutOfRangeException for one that the clip
  /// does not have.
  void Seek(int frame);

  /// A clip has been opened.
  TNotifyEvent OnOpen;
  /// The clip has been closed.
  TNotifyEvent OnClose;
  /// The clip begins to be played.
  TNotifyEvent OnStart;
  /// The clip has ended, or was stopped.
  TNotifyEvent OnStop;

 protected:
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  struct TClip {
    int Frames = 0;
    int Width = 0;
    int Height = 0;
  };
  struct TSource {
    std::string FileName;
    std::string ResName;
    int ResId = 0;
    bool Empty() const { return FileName.empty() && ResName.empty() && ResId == 0; }
    std::string Shown() const;
  };
  static TClip ReadClip(const TSource& source);
  void SetSource(const TSource& source);
  TSource Source() const { return {FFileName, FResName, FResId}; }
  void OpenInWindow();
  void PlayInWindow();
  void FitToClip();
  void CheckFrame(int frame, int least) const;
  template <class T>
  void ChangeStyle(T& field, T value);

  std::string FFileName;
  std::string FResName;
  int FResId = 0;
  int FRepetitions = 0;
  int FStartFrame = 1;
  int FStopFrame = 0;
  bool FActive = false;
  bool FAutoSize = true;
  bool FCenter = true;
  bool FTransparent = true;
  TClip FClip;
};

}  // namespace vcl
