// TDriveWatch: hearing that drives and media come and go.
#pragma once

#include <functional>

#include "vcl/controls/messagewindow.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// Calls its call, while it lives, when a drive or a medium has come or gone.
class TDriveWatch {
 public:
  /// Raises EOutOfResources.
  explicit TDriveWatch(std::function<void()> changed)
      : FChanged(std::move(changed)),
        FWindow(vcl::AllocateHWnd([this](vcl::TMessage& message) { Take(message); })) {}
  ~TDriveWatch() { vcl::DeallocateHWnd(FWindow); }
  TDriveWatch(const TDriveWatch&) = delete;
  TDriveWatch& operator=(const TDriveWatch&) = delete;

 private:
  void Take(vcl::TMessage& message) {
    message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
    // DBT_DEVICEARRIVAL and DBT_DEVICEREMOVECOMPLETE.
    const bool change = message.WParam == 0x8000 || message.WParam == 0x8004;
    if (message.Msg == WM_DEVICECHANGE && change) FChanged();
  }

  std::function<void()> FChanged;
  HWND FWindow;
};

}  // namespace qel
