// TQELScreenSaver: its table, the system's settings, and what keeps the display on.
#include "qel/services/Qeltscreensaver.h"

#include <utility>

#include "vcl/controls/messagewindow.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/timer.h"

namespace qel {
namespace {

constexpr WPARAM Command = 0xFFF0;  // The system keeps the lowest four bits for itself.

/// The value of one of the system's settings.
template <class T>
T Ask(UINT setting) {
  T value{};
  ::SystemParametersInfoW(setting, 0, &value, 0);
  return value;
}

void Change(UINT setting, UINT value, const char* what) {
  constexpr UINT forGood = SPIF_UPDATEINIFILE | SPIF_SENDCHANGE;
  if (::SystemParametersInfoW(setting, value, nullptr, forGood)) return;
  throw EQELSystemError(what, static_cast<int>(::GetLastError()));
}

}  // namespace

/// Keeps the display on, as the documentation of SetThreadExecutionState and PowerSetRequest says;
/// the system takes both back from a process that ends. While the program is the active one, the
/// command that starts the screen saver is kept from its windows, too.
class TQELScreenSaver::TPrevention : public vcl::TApplicationListener {
 public:
  TPrevention() {
    if (Count++ == 0) ::SetThreadExecutionState(ES_CONTINUOUS | ES_DISPLAY_REQUIRED);
    REASON_CONTEXT reason{};
    reason.Version = POWER_REQUEST_CONTEXT_VERSION;
    reason.Flags = POWER_REQUEST_CONTEXT_SIMPLE_STRING;
    wchar_t text[] = L"The program keeps the display on";
    reason.Reason.SimpleReasonString = text;
    FRequest = ::PowerCreateRequest(&reason);
    if (Requested()) ::PowerSetRequest(FRequest, PowerRequestDisplayRequired);
  }
  ~TPrevention() override {
    if (Requested()) ::CloseHandle(FRequest);  // Which takes the request back.
    if (--Count == 0) ::SetThreadExecutionState(ES_CONTINUOUS);
  }
  void Message(MSG& message, bool& handled) override {
    const WPARAM command = message.wParam & Command;
    const bool dark = command == SC_SCREENSAVE || command == SC_MONITORPOWER;
    if (message.message == WM_SYSCOMMAND && dark) handled = true;
  }

 private:
  bool Requested() const { return FRequest && FRequest != INVALID_HANDLE_VALUE; }
  /// How many keep the display on in the main thread, which the system counts as one.
  static inline int Count = 0;
  HANDLE FRequest = nullptr;
};

/// Looks once in a second, as the system tells nobody.
class TQELScreenSaver::TWatcher {
 public:
  explicit TWatcher(TQELScreenSaver& owner) : FTimer(nullptr) {
    FTimer.OnTimer = [&owner](vcl::TObject*) { owner.Look(); };
  }

 private:
  vcl::TTimer FTimer;
};

const vcl::TClass& TQELScreenSaver::Class() {
  using T = TQELScreenSaver;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELScreenSaver", "qel/services/Qeltscreensaver.h",
      {
          Property<&T::Prevent, &T::SetPrevent>("Prevent").Default(false),
          Event<&T::OnStart>("OnStart"),
          Event<&T::OnStop>("OnStop"),
      });
  return info;
}

TQELScreenSaver::TQELScreenSaver(vcl::TComponent* owner) : TQELActionComponent(owner) {
  if (!Designing()) FWatcher = std::make_unique<TWatcher>(*this);
}

TQELScreenSaver::~TQELScreenSaver() { AnnounceEnd(); }

void TQELScreenSaver::Loaded() {
  TQELActionComponent::Loaded();
  if (Designing()) FWatcher.reset();
  Apply();
}

bool TQELScreenSaver::Enabled() const { return Ask<BOOL>(SPI_GETSCREENSAVEACTIVE) != FALSE; }
int TQELScreenSaver::Timeout() const { return Ask<int>(SPI_GETSCREENSAVETIMEOUT); }
bool TQELScreenSaver::Running() const { return Ask<BOOL>(SPI_GETSCREENSAVERRUNNING) != FALSE; }

void TQELScreenSaver::SetEnabled(bool enabled) {
  if (Designing()) return;
  Change(SPI_SETSCREENSAVEACTIVE, enabled, "The screen saver cannot be switched");
}

void TQELScreenSaver::SetTimeout(int seconds) {
  if (Designing() || seconds < 1) return;
  Change(SPI_SETSCREENSAVETIMEOUT, static_cast<UINT>(seconds),
         "The screen saver's waiting time cannot be set");
}

void TQELScreenSaver::SetPrevent(bool prevent) {
  FPrevent = prevent;
  Apply();
}

void TQELScreenSaver::Apply() {
  const bool wanted = FPrevent && !Designing() && !Loading();
  if (wanted == (FPrevention != nullptr)) return;
  FPrevention = wanted ? std::make_unique<TPrevention>() : nullptr;
}

void TQELScreenSaver::Look() {
  const bool running = Running();
  if (running == std::exchange(FRunning, running)) return;
  (running ? OnStart : OnStop)(this);
}

std::string TQELScreenSaver::DesignText() const {
  return "At run time it would start the screen saver.";
}

/// Any window may ask for it.
bool TQELScreenSaver::DoExecute() {
  const HWND window = vcl::AllocateHWnd([&window](vcl::TMessage& message) {
    message.Result = ::DefWindowProcW(window, message.Msg, message.WParam, message.LParam);
  });
  const vcl::TAtEnd free([window] { vcl::DeallocateHWnd(window); });
  ::SendMessageW(window, WM_SYSCOMMAND, SC_SCREENSAVE, 0);
  return true;
}

}  // namespace qel
