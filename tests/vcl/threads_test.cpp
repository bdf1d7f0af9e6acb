// Threads' calls reach the main thread in every message loop.
#include <atomic>

#include "tests/vcl/standardform.h"

#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using namespace testinput;

/// Calls the main thread every few milliseconds.
class TCaller : public TThread {
 public:
  explicit TCaller(std::function<void()> call) : FCall(std::move(call)) {}
  ~TCaller() override { EndThread(); }

 protected:
  void Execute() override {
    while (Sleep(3)) Synchronize(FCall);
  }

 private:
  std::function<void()> FCall;
};

class ThreadCalls : public TStandardForm {
 protected:
  ThreadCalls() { ShowForm(); }

  /// Runs a loop of the system or of ours, which `end` ends when threads' calls have come inside
  /// it.
  int CallsInside(const std::function<void()>& loop, const std::function<void()>& end) {
    int calls = 0;
    bool inside = false;
    TCaller caller([&] {
      if (inside && ++calls == 5) end();
    });
    caller.Start();
    inside = true;
    loop();
    inside = false;
    return calls;
  }
};

TEST_F(ThreadCalls, ComeInsideEveryMessageLoop) {
  TForm modal(nullptr);
  TPopupMenu menu(nullptr);
  auto* item = new TMenuItem(nullptr);
  item->SetCaption("An item");
  menu.Items()->Add(item);
  bool moving = false;
  const std::tuple<const char*, std::function<void()>, std::function<void()>> loops[] = {
      {"a modal form", [&] { modal.ShowModal(); }, [&] { modal.SetModalResult(mrOk); }},
      {"a box", [] { Application()->MessageBox("text", "calls", 0); },
       [] { ::PostMessageW(::FindWindowA("#32770", "calls"), WM_CLOSE, 0, 0); }},
      {"a menu", [&] { menu.Popup(220, 220); }, [] { ::EndMenu(); }},
      {"a window that is moved", [&] { ::SendMessageW(Form.Handle(), WM_SYSCOMMAND, SC_MOVE, 0); },
       [&] {
         GUITHREADINFO info{};
         info.cbSize = sizeof info;
         ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
         moving = info.flags & GUI_INMOVESIZE;
         SendKey(VK_ESCAPE, true);
         SendKey(VK_ESCAPE, false);
       }},
  };
  for (const auto& [name, loop, end] : loops) EXPECT_GE(CallsInside(loop, end), 5) << name;
  EXPECT_TRUE(moving);
}

TEST_F(ThreadCalls, AnswersToWindowsAreGivenWhileAThreadIsAwaited) {
  class TSender : public TThread {
   public:
    explicit TSender(HWND window) : FWindow(window) {}
    ~TSender() override { EndThread(); }

   protected:
    void Execute() override {
      SetReturnValue(static_cast<int>(::SendMessageW(FWindow, WM_GETTEXTLENGTH, 0, 0)));
    }

   private:
    HWND FWindow;
  };
  Form.SetCaption("four");
  TSender sender(Form.Handle());
  sender.Start();
  EXPECT_EQ(sender.WaitFor(), 4);
}

}  // namespace
}  // namespace vcl
