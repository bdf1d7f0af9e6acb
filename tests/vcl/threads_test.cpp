// Threads' calls reach the main thread in every message loop.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>

#include "host/rtl/thread.h"
#include "host/vcl/forms.h"
#include "host/vcl/menus.h"
#include "tests/vcl/testinput.h"

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
    while (Sleep(std::chrono::milliseconds(3))) Synchronize(FCall);
  }

 private:
  std::function<void()> FCall;
};

class ThreadCalls : public ::testing::Test {
 protected:
  ThreadCalls() : Form(nullptr) {
    Form.SetBounds(200, 200, 300, 200);
    Form.Show();
    EXPECT_TRUE(PumpUntil([&] { return Form.Active(); }));
  }

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

  TForm Form;
};

TEST_F(ThreadCalls, ComeWhileAFormIsModal) {
  TForm modal(nullptr);
  EXPECT_GE(CallsInside([&] { modal.ShowModal(); }, [&] { modal.SetModalResult(mrOk); }), 5);
}

TEST_F(ThreadCalls, ComeWhileABoxIsUp) {
  EXPECT_GE(CallsInside([] { Application()->MessageBox("text", "calls", 0); },
                        [] { ::PostMessageW(::FindWindowA("#32770", "calls"), WM_CLOSE, 0, 0); }),
            5);
}

TEST_F(ThreadCalls, ComeWhileAMenuIsOpen) {
  TPopupMenu menu(nullptr);
  auto* item = new TMenuItem(nullptr);
  item->SetCaption("An item");
  menu.Items()->Add(item);
  EXPECT_GE(CallsInside([&] { menu.Popup(220, 220); }, [] { ::EndMenu(); }), 5);
}

TEST_F(ThreadCalls, ComeWhileAWindowIsMoved) {
  bool moving = false;
  const int calls = CallsInside([&] { ::SendMessageW(Form.Handle(), WM_SYSCOMMAND, SC_MOVE, 0); },
                                [&] {
                                  GUITHREADINFO info{};
                                  info.cbSize = sizeof info;
                                  ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
                                  moving = info.flags & GUI_INMOVESIZE;
                                  SendKey(VK_ESCAPE, true);
                                  SendKey(VK_ESCAPE, false);
                                });
  EXPECT_GE(calls, 5);
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
