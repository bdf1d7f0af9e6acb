// TClipboardMonitor: hears when something else comes on the clipboard.
#pragma once

#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"

namespace vcl {

/// Tells of changes of the clipboard, whichever program makes them. Any number of them may listen.
class VCL_API TClipboardMonitor : public TComponent {
 public:
  explicit TClipboardMonitor(TComponent* owner);
  ~TClipboardMonitor() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Enabled() const { return FEnabled; }
  /// False: OnChange does not come. It never comes while the component is being designed.
  void SetEnabled(bool enabled);

  /// The clipboard has changed. Comes by a message, so that several changes may be told as one.
  TNotifyEvent OnChange;

 protected:
  void Loaded() override;

 private:
  friend struct TClipboardListeners;
  void Listen();

  bool FEnabled = true;
};

}  // namespace vcl
