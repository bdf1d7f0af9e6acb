// TQELIllegalAbort: whether the program was ended properly the last time.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qeltstoredata.h"
#include "vcl/controls/messages.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/systemtypes.h"

namespace qel {

/// Sender, when the program was started that has not ended, the number of its process.
using TQELIllegalAbortEvent = vcl::TEvent<vcl::TObject*, vcl::TDateTime, int>;

/// Notes in AbortStore that the program runs, from the reading of its form until the component is
/// freed or the system ends the session. A note whose program runs no more tells, at the next
/// start, that it was killed or has crashed. Programs that run at the same time have a note each,
/// "Form1.IllegalAbort1_Run1234", of the owner's and the component's own name and the process.
///
/// Nothing is noted in the designer, nor while the store is not enabled. What the store refuses
/// tells its OnError.
class QEL_API TQELIllegalAbort : public TQELComponent {
 public:
  explicit TQELIllegalAbort(vcl::TComponent* owner);
  ~TQELIllegalAbort() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Where it is noted that the program runs; not enabled at first.
  TQELDataStore* AbortStore() const { return FAbortStore.get(); }

  /// The program was not ended properly. Fired when the form has been read, once for each start
  /// that ended so.
  TQELIllegalAbortEvent OnIllegalAbort;

 protected:
  void Loaded() override;

 private:
  struct TNote;
  std::vector<TNote> TakeAborted(const std::string& prefix);
  void Withdraw();
  void Heard(vcl::TMessage& message);

  std::unique_ptr<TQELDataStore> FAbortStore;
  std::string FNote;  // The name of this program's; empty while there is none.
  HWND FWindow = nullptr;
};

}  // namespace qel

template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELIllegalAbortEvent>{
    "TQELIllegalAbortEvent", "vcl::TObject* sender, double startTime, int processId"};
