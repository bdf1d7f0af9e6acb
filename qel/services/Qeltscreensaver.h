// TQELScreenSaver: the system's screen saver.
#pragma once

#include <memory>

#include "qel/core/Qelactioncomponent.h"
#include "vcl/rtl/events.h"

namespace qel {

/// Starts the screen saver, tells when it comes and goes, and keeps it and the display's sleep
/// away.
class QEL_API TQELScreenSaver : public TQELActionComponent {
 public:
  explicit TQELScreenSaver(vcl::TComponent* owner);
  ~TQELScreenSaver() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Whether the user wants a screen saver; read from the system, or set there for good. Raises
  /// EQELSystemError. In the designer nothing is set.
  bool Enabled() const;
  void SetEnabled(bool enabled);
  /// After how many seconds without input it starts; the same goes for it.
  int Timeout() const;
  void SetTimeout(int seconds);
  /// Whether it is on the screen.
  bool Running() const;

  bool Prevent() const { return FPrevent; }
  /// True: neither does the screen saver come nor the display sleep, until it is false or the
  /// component or the program ends.
  void SetPrevent(bool prevent);

  /// The screen saver has come, within the last second.
  vcl::TNotifyEvent OnStart;
  /// The screen saver has gone, within the last second.
  vcl::TNotifyEvent OnStop;

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;
  void Loaded() override;

 private:
  class TWatcher;
  class TPrevention;
  void Apply();
  void Look();

  bool FPrevent = false;
  bool FRunning = false;
  std::unique_ptr<TWatcher> FWatcher;
  std::unique_ptr<TPrevention> FPrevention;
};

}  // namespace qel
