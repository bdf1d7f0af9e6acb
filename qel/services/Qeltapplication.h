// TQELApplication: the application's events, for any number of components.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/forms/application.h"

namespace qel {

/// What has become of the computer's power.
enum TQELPowerChange {
  pcStatus,   ///< The battery is low, or the mains have come or gone.
  pcSuspend,  ///< The computer is about to sleep.
  pcResume    ///< It has slept.
};

using TQELPowerChangeEvent = vcl::TEvent<vcl::TObject*, TQELPowerChange>;
using TQELExceptionEvent = vcl::TEvent<vcl::TObject*, const std::exception&, bool&>;
using TQELSettingsChangeEvent = vcl::TEvent<vcl::TObject*, const std::string&>;

/// Tells what happens to the application. Any number of these components hear, in the order in
/// which they were made, behind the application's own events; none takes anything from another, nor
/// from those. In the designer they hear nothing and set nothing.
class QEL_API TQELApplication : public TQELComponent {
 public:
  explicit TQELApplication(vcl::TComponent* owner);
  ~TQELApplication() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  vcl::TColor HintColor() const { return FHintColor; }
  /// The colour behind the application's hints; clDefault leaves it alone. The former one is back
  /// when the component goes.
  void SetHintColor(vcl::TColor color);
  int HintPause() const { return FHintPause; }
  /// How many milliseconds the mouse rests before a hint appears; -1 leaves it alone. The former
  /// pause is back when the component goes.
  void SetHintPause(int milliseconds);

  /// The application has become the active one.
  vcl::TNotifyEvent OnActivate;
  /// Another program has become the active one.
  vcl::TNotifyEvent OnDeactivate;
  /// The colours, the number or the place of the screens have changed.
  vcl::TNotifyEvent OnDisplayChange;
  /// The user's session ends.
  vcl::TNotifyEvent OnEndSession;
  /// An error that nobody has dealt with; a handler that sets the last argument to true has.
  TQELExceptionEvent OnException;
  /// The application's hint, as a status bar shows it, is another one.
  vcl::TNotifyEvent OnHint;
  /// No message waits; a handler that sets the last argument to false is called again at once.
  vcl::TEvent<vcl::TObject*, bool&> OnIdle;
  /// A message of the program's queue, before its window has it.
  vcl::TMessageEvent OnMessage;
  /// The application has been minimised.
  vcl::TNotifyEvent OnMinimize;
  /// What has become of the computer's power.
  TQELPowerChangeEvent OnPowerChange;
  /// The user's session is to end; a handler that sets the last argument to false refuses.
  vcl::TEvent<vcl::TObject*, bool&> OnQueryEndSession;
  /// The application is back on the screen.
  vcl::TNotifyEvent OnRestore;
  /// The user has changed settings of the system: which ones, as the system calls them; empty when
  /// it does not say.
  TQELSettingsChangeEvent OnSettingsChange;
  /// The application is about to show a hint.
  vcl::TShowHintEvent OnShowHint;

 protected:
  void Loaded() override;

 private:
  class TListener;
  void Apply();

  std::unique_ptr<TListener> FListener;
  vcl::TColor FHintColor = vcl::clDefault;
  int FHintPause = -1;
  std::optional<vcl::TColor> FFormerColor;
  std::optional<int> FFormerPause;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELPowerChange>{"TQELPowerChange",
                                                                    "pcStatus pcSuspend pcResume"};
