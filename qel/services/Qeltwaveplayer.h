// TQELWavePlayer: plays a sound.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/events.h"

namespace qel {

/// Plays a sound from a WAVE file or from a resource of the program, beside the program's other
/// work. The system plays one of these at a time: another one ends the first.
class QEL_API TQELWavePlayer : public TQELExecComponent {
 public:
  explicit TQELWavePlayer(vcl::TComponent* owner);
  ~TQELWavePlayer() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays the sound from its beginning. False when there is none, or the system can't play it, as
  /// LastError then says; without Wait, that is so only for what is no sound.
  bool Execute() override;
  /// Ends the sound; OnFinished is not fired then.
  void Stop();
  /// From Execute until Stop or OnFinished.
  bool Playing() const;
  /// Why the last sound was not played; empty when it was.
  const std::string& LastError() const { return FLastError; }

  bool Loop() const { return FLoop; }
  /// True plays the sound again and again until Stop. Seen when it is over.
  void SetLoop(bool loop);
  const std::string& Resource() const { return FResource; }
  /// The name of a resource of the program, of the type WAVE; WaveFile goes before it.
  void SetResource(const std::string& name) { FResource = name; }
  bool Wait() const { return FWait; }
  /// True has Execute come back when the sound is over, and handle messages meanwhile. With Loop
  /// that is when another one calls Stop.
  void SetWait(bool wait) { FWait = wait; }
  const std::string& WaveFile() const { return FWaveFile; }
  /// The file with the sound.
  void SetWaveFile(const std::string& fileName) { FWaveFile = fileName; }

  /// The sound has come to its end.
  vcl::TNotifyEvent OnFinished;

 private:
  class TPlay;
  std::string Sound();
  void Finished();
  bool WaitForEnd();

  bool FLoop = false;
  std::string FResource;
  bool FWait = false;
  std::string FWaveFile;
  std::string FLastError;
  bool FFinished = false;  // The sound of FPlay, and OnFinished has been told.
  std::unique_ptr<TPlay> FPlay;
};

}  // namespace qel
