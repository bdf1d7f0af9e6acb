// TQELSplashScreen: a picture while the program starts.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "qel/core/Qelclasses.h"
#include "vcl/graphics/font.h"
#include "vcl/graphics/picture.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

/// Shows a picture in the middle of the screen while the program starts, with a message and a bar
/// on it. On a form that is read from a form file before there is a main form to be seen, it comes
/// up of its own accord when it has been read. It goes, in the program's message loop, once the
/// main form has painted itself and MinTime has passed; and at once when a message box or another
/// modal window comes up. Where the picture does not cover, what is behind shows through and takes
/// the clicks.
class QEL_API TQELSplashScreen : public TQELCustomDialog {
 public:
  explicit TQELSplashScreen(vcl::TComponent* owner);
  ~TQELSplashScreen() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and shows the picture, and MinTime begins; true when it has. False, as LastError
  /// then says, when there is neither picture, message nor bar. Does not wait.
  bool Execute() override;
  /// Takes the picture away at once.
  void Close();
  /// True while the picture is to be seen.
  bool Shown() const { return FWindow != nullptr; }
  /// Why the last Execute has shown nothing; empty when it has.
  const std::string& LastError() const { return FLastError; }

  vcl::TPicture* Picture() const { return FPicture.get(); }
  /// What is shown, at 96 dots per inch; without one there is a plain plate.
  void SetPicture(const vcl::TPicture* picture) { FPicture->Assign(picture); }
  int MinTime() const { return FMinTime; }
  /// How long the picture stays at least, in milliseconds. Takes only values from 0.
  void SetMinTime(int milliseconds);
  const std::string& Message() const { return FMessage; }
  /// The text at the picture's lower edge, which is shown at once.
  void SetMessage(const std::string& message);
  int Percentage() const { return FPercentage; }
  /// How far the bar below the message has come; -1 for no bar. Takes only values from -1 to 100.
  void SetPercentage(int percentage);
  int FadeTime() const { return FFadeTime; }
  /// How long the picture fades when it goes, in milliseconds; not at all where the user wants no
  /// animations. Takes only values from 0.
  void SetFadeTime(int milliseconds);
  bool ClickCloses() const { return FClickCloses; }
  /// True: a click on the picture takes it away.
  void SetClickCloses(bool closes) { FClickCloses = closes; }
  vcl::TFont* Font() const { return FFont.get(); }
  /// The font of the message.
  void SetFont(const vcl::TFont* font) { FFont->Assign(font); }

 protected:
  void Loaded() override;

 private:
  class TWindow;
  void Tick();
  void Changed();
  bool MayGo() const;

  std::unique_ptr<vcl::TPicture> FPicture;
  std::unique_ptr<vcl::TFont> FFont;
  std::unique_ptr<TWindow> FWindow;
  vcl::TTimer FTimer{nullptr};
  std::uint64_t FSince = 0;  // The system's milliseconds at which it came up,
  std::uint64_t FGoing = 0;  // and at which it began to go; 0 while it stays.
  int FMinTime = 1500;
  int FPercentage = -1;
  int FFadeTime = 200;
  bool FClickCloses = true;
  std::string FMessage;
  std::string FLastError;
};

}  // namespace qel
