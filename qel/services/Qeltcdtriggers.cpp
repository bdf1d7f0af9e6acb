// TQELCDTriggers: its table, what the system broadcasts, and the trays.
#include "qel/services/Qeltcdtriggers.h"

#include <cctype>

#include "vcl/controls/messagewindow.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// They need what stands above.
#define far  // A word of older systems that the next header still has.
#include <dbt.h>
#include <winioctl.h>
#undef far

namespace qel {

/// Hears the broadcasts.
class TQELCDTriggers::TWindow {
 public:
  explicit TWindow(TQELCDTriggers& owner)
      : FOwner(owner),
        FWindow(vcl::AllocateHWnd([this](vcl::TMessage& message) { Handle(message); })) {}
  ~TWindow() { vcl::DeallocateHWnd(FWindow); }
  TWindow(const TWindow&) = delete;
  TWindow& operator=(const TWindow&) = delete;

 private:
  void Handle(vcl::TMessage& message) {
    message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
    if (message.Msg != WM_DEVICECHANGE || message.LParam == 0) return;
    const auto* about = reinterpret_cast<const DEV_BROADCAST_HDR*>(message.LParam);
    if (about->dbch_devicetype != DBT_DEVTYP_VOLUME) return;
    const DWORD drives = reinterpret_cast<const DEV_BROADCAST_VOLUME*>(about)->dbcv_unitmask;
    if (message.WParam == DBT_DEVICEARRIVAL) return FOwner.Tell(FOwner.OnInsert, drives);
    if (message.WParam == DBT_DEVICEREMOVECOMPLETE) FOwner.Tell(FOwner.OnRemove, drives);
  }

  TQELCDTriggers& FOwner;
  HWND FWindow;
};

const vcl::TClass& TQELCDTriggers::Class() {
  using T = TQELCDTriggers;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELCDTriggers", "qel/services/Qeltcdtriggers.h",
      {
          Event<&T::OnInsert>("OnInsert")
              .Type("TQELDriveEvent", "vcl::TObject* sender, char drive"),
          Event<&T::OnRemove>("OnRemove")
              .Type("TQELDriveEvent", "vcl::TObject* sender, char drive"),
      });
  return info;
}

TQELCDTriggers::TQELCDTriggers(vcl::TComponent* owner)
    : TQELComponent(owner), FWindow(std::make_unique<TWindow>(*this)) {}

TQELCDTriggers::~TQELCDTriggers() { AnnounceEnd(); }

void TQELCDTriggers::Tell(const TQELDriveEvent& event, unsigned long drives) {
  if (Designing()) return;
  const vcl::TWatch watch(this);
  for (int i = 0; i < 26 && !watch.Gone(); ++i) {
    if (drives >> i & 1) event(this, static_cast<char>('A' + i));
  }
}

bool TQELCDTriggers::Open(char drive) { return Move(drive, IOCTL_STORAGE_EJECT_MEDIA); }
bool TQELCDTriggers::Close(char drive) { return Move(drive, IOCTL_STORAGE_LOAD_MEDIA); }

bool TQELCDTriggers::Move(char drive, unsigned long control) {
  FLastError.clear();
  const auto letter = static_cast<char>(std::toupper(static_cast<unsigned char>(drive)));
  const std::string name = vcl::Concat(std::string(1, letter), ":");
  const auto failed = [&](const std::string& why) {
    FLastError = vcl::Concat("The tray of drive ", name, " cannot be moved: ", why);
    return false;
  };
  if (Designing()) return failed("the designer changes nothing of the system");
  if (letter < 'A' || letter > 'Z') return failed("there is no such drive");
  const std::wstring device = vcl::ToUtf16("\\\\.\\" + name);
  const HANDLE handle =
      ::CreateFileW(device.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return failed(vcl::SysErrorMessage(vcl::LastSystemError()));
  DWORD size = 0;
  const bool done =
      ::DeviceIoControl(handle, control, nullptr, 0, nullptr, 0, &size, nullptr) != FALSE;
  const int error = vcl::LastSystemError();
  ::CloseHandle(handle);
  return done || failed(vcl::SysErrorMessage(error));
}

}  // namespace qel
