// A printer and its settings as the system's dialogs take and give them (DEVMODE, DEVNAMES).
#pragma once

#include "vcl/printing/printer.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// The two blocks, of which the dialog may free one and give another. Raises EPrinter when no
/// printer is installed.
class TDeviceBlocks {
 public:
  explicit TDeviceBlocks(const TPrinter& printer);
  ~TDeviceBlocks();
  TDeviceBlocks(const TDeviceBlocks&) = delete;
  TDeviceBlocks& operator=(const TDeviceBlocks&) = delete;

  /// Gives what the user has chosen to the printer.
  void ApplyTo(TPrinter& printer) const;

  HGLOBAL Mode = nullptr;
  HGLOBAL Names = nullptr;
};

}  // namespace vcl
