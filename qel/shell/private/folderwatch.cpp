// TFolderWatch: a thread that waits for the system's notice.
#include "qel/shell/private/folderwatch.h"

#include <atomic>
#include <utility>

#include "qel/shell/private/folders.h"
#include "vcl/rtl/thread.h"

namespace qel {
namespace {

constexpr DWORD Pause = 200;  // Milliseconds from a call to the next one.

constexpr DWORD Changes = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME |
                          FILE_NOTIFY_CHANGE_ATTRIBUTES | FILE_NOTIFY_CHANGE_SIZE |
                          FILE_NOTIFY_CHANGE_LAST_WRITE;

}  // namespace

class TFolderWatch::TWatcher : public vcl::TThread {
 public:
  TWatcher(const std::string& folder, const std::function<void()>& changed)
      : FChanged(changed),
        FEnd(::CreateEventW(nullptr, TRUE, FALSE, nullptr)),
        FNotice(
            ::FindFirstChangeNotificationW(folders::ForSystem(folder).c_str(), FALSE, Changes)) {
    if (FEnd && FNotice != INVALID_HANDLE_VALUE) Start();
  }
  ~TWatcher() override {
    ::SetEvent(FEnd);
    EndThread();
    if (FNotice != INVALID_HANDLE_VALUE) ::FindCloseChangeNotification(FNotice);
    ::CloseHandle(FEnd);
  }

 protected:
  void Execute() override {
    const HANDLE both[] = {FEnd, FNotice};
    while (::WaitForMultipleObjects(2, both, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
      // Asked for the next one first, so that what changes while this one is told is not missed.
      const bool more = ::FindNextChangeNotification(FNotice);
      Tell();
      if (!more || ::WaitForSingleObject(FEnd, Pause) == WAIT_OBJECT_0) return;
    }
  }

 private:
  /// One call waits for the main thread at most.
  void Tell() {
    if (FTold.exchange(true)) return;
    Queue([this] {
      FTold = false;
      FChanged();
    });
  }

  const std::function<void()>& FChanged;
  HANDLE FEnd;
  HANDLE FNotice;
  std::atomic<bool> FTold = false;
};

TFolderWatch::TFolderWatch(std::function<void()> changed) : FChanged(std::move(changed)) {}
TFolderWatch::~TFolderWatch() = default;

void TFolderWatch::Watch(const std::string& folder) {
  FWatcher.reset();
  if (folder.empty()) return;
  const UINT type = folders::DriveType(folder);
  if (type == DRIVE_REMOVABLE || type == DRIVE_CDROM) return;
  const folders::TNoErrorBoxes quiet;
  FWatcher = std::make_unique<TWatcher>(folder, FChanged);
}

}  // namespace qel
