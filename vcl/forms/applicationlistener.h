// TApplicationListener: hearing what happens to the application, beside its events.
#pragma once

#include <algorithm>
#include <exception>
#include <string>
#include <vector>

#include "vcl/rtl/api.h"
#include "vcl/rtl/object.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

struct THintInfo;

/// Hears what the application tells: any number of listeners, in the order in which they were made,
/// each behind the application's own event, whose handler stays the program's. All of them hear,
/// whatever the others say or raise; one may free itself or others meanwhile. The first error that
/// listeners raise is raised, when all have heard, where the event's handler would raise.
class VCL_API TApplicationListener {
 public:
  TApplicationListener();
  virtual ~TApplicationListener();
  TApplicationListener(const TApplicationListener&) = delete;
  TApplicationListener& operator=(const TApplicationListener&) = delete;

  virtual void Activated() {}
  virtual void Deactivated() {}
  virtual void Minimized() {}
  virtual void Restored() {}
  /// The application's Hint is another one.
  virtual void HintChanged() {}
  virtual void ShowHint(std::string& /*text*/, bool& /*canShow*/, THintInfo& /*info*/) {}
  /// `done` set to false has the application come back at once.
  virtual void Idle(bool& /*done*/) {}
  /// A message of the program's queue; `handled` keeps it from its window.
  virtual void Message(MSG& /*message*/, bool& /*handled*/) {}
  /// `handled` keeps it from being shown; it is true already where OnException has a handler.
  virtual void Error(TObject* /*sender*/, const std::exception& /*error*/, bool& /*handled*/) {}
  /// Whether the user's session may end; false by another listener stays false.
  virtual void QueryEndSession(bool& /*canEnd*/) {}
  /// The session ends, as nobody has refused.
  virtual void EndSession() {}
  /// A message that the system sends to every program: WM_SETTINGCHANGE, WM_DISPLAYCHANGE or
  /// WM_POWERBROADCAST.
  virtual void Broadcast(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {}

  /// Calls the call with each listener that is still there.
  template <class Call>
  static void TellAll(Call call) {
    std::exception_ptr raised;
    for (TApplicationListener* each : std::vector(All())) {
      if (std::ranges::find(All(), each) == All().end()) continue;
      try {
        call(*each);
      } catch (...) {
        if (!raised) raised = std::current_exception();
      }
    }
    if (raised) std::rethrow_exception(raised);
  }

 private:
  static std::vector<TApplicationListener*>& All();
};

}  // namespace vcl
