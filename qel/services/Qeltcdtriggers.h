// TQELCDTriggers: media and drives that come and go.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/events.h"

namespace qel {

/// Sender, the drive's letter.
using TQELDriveEvent = vcl::TEvent<vcl::TObject*, char>;

/// Tells that a medium has been put into a drive or taken out, or that a drive has come or gone,
/// and opens and closes the drives' trays. In the designer it does nothing.
class QEL_API TQELCDTriggers : public TQELComponent {
 public:
  explicit TQELCDTriggers(vcl::TComponent* owner);
  ~TQELCDTriggers() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Opens resp. closes the tray of the drive. False when it has none, or is in use, as LastError
  /// then says.
  bool Open(char drive);
  bool Close(char drive);
  /// Why the last one failed: the drive, and the system's words; empty when it did not.
  const std::string& LastError() const { return FLastError; }

  /// A medium has come, or a drive.
  TQELDriveEvent OnInsert;
  /// A medium has gone, or a drive.
  TQELDriveEvent OnRemove;

 private:
  class TWindow;
  bool Move(char drive, unsigned long control);
  void Tell(const TQELDriveEvent& event, unsigned long drives);

  std::unique_ptr<TWindow> FWindow;
  std::string FLastError;
};

}  // namespace qel
