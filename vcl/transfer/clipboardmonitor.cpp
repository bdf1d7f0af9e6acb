// TClipboardMonitor: the one window that the system tells of changes, and who wants to hear.
#include "vcl/transfer/clipboardmonitor.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "vcl/controls/messagewindow.h"
#include "vcl/forms/application.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// The monitors that listen; the window is there as long as one does.
struct TClipboardListeners {
  std::vector<TClipboardMonitor*> List;
  HWND Window = nullptr;

  static TClipboardListeners& Instance() {
    static TClipboardListeners listeners;
    return listeners;
  }

  void Add(TClipboardMonitor* monitor) {
    if (std::ranges::find(List, monitor) != List.end()) return;
    if (!Window) {
      Window = AllocateHWnd([this](TMessage& message) { Handle(message); });
      if (!::AddClipboardFormatListener(Window)) {
        DeallocateHWnd(std::exchange(Window, nullptr));
        RaiseOutOfResources("Listening to the clipboard");
      }
    }
    List.push_back(monitor);
  }

  void Remove(TClipboardMonitor* monitor) {
    if (std::erase(List, monitor) == 0 || !List.empty()) return;
    ::RemoveClipboardFormatListener(Window);
    DeallocateHWnd(std::exchange(Window, nullptr));
  }

  void Handle(TMessage& message) {
    if (message.Msg == WM_CLIPBOARDUPDATE) return TellAll();
    message.Result = ::DefWindowProcW(Window, message.Msg, message.WParam, message.LParam);
  }

  // A handler may free any of them, and one that raises keeps no other from hearing.
  void TellAll() {
    const std::vector<TClipboardMonitor*> present = List;
    for (TClipboardMonitor* each : present) {
      if (std::ranges::find(List, each) == List.end() || each->Designing()) continue;
      try {
        each->OnChange(each);
      } catch (...) {
        Application()->HandleCurrentException(nullptr);
      }
    }
  }
};

const TClass& TClipboardMonitor::Class() {
  using T = TClipboardMonitor;
  static const TClass info =
      Describe<T, TComponent>("vcl::TClipboardMonitor", "vcl/transfer/transfer.h",
                              {
                                  Property<&T::Enabled, &T::SetEnabled>("Enabled").Default(true),
                                  Event<&T::OnChange>("OnChange"),
                              });
  return info;
}

TClipboardMonitor::TClipboardMonitor(TComponent* owner) : TComponent(owner) {
  HearOnlyAsked<TClipboardMonitor>();
  Listen();
}

TClipboardMonitor::~TClipboardMonitor() {
  AnnounceEnd();
  TClipboardListeners::Instance().Remove(this);
}

void TClipboardMonitor::SetEnabled(bool enabled) {
  if (enabled == FEnabled) return;
  FEnabled = enabled;
  Listen();
}

void TClipboardMonitor::Loaded() {
  TComponent::Loaded();
  Listen();
}

void TClipboardMonitor::Listen() {
  auto& listeners = TClipboardListeners::Instance();
  FEnabled && !Designing() ? listeners.Add(this) : listeners.Remove(this);
}

}  // namespace vcl
