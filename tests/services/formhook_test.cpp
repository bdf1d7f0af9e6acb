// TQELFormHook, and what all components that hear their form's window have in common.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/vcl/testinput.h"

namespace qel {
namespace {

using testing::ElementsAre;
using TLog = std::vector<std::string>;

constexpr UINT Asked = WM_APP + 7;

/// Logs what its window gets, and answers 5.
class TLoggingForm : public vcl::TForm {
 public:
  explicit TLoggingForm(TLog& log) : TForm(nullptr), FLog(log) {}
  void Remake() { RecreateWnd(); }

 protected:
  void WndProc(vcl::TMessage& message) override {
    if (message.Msg != Asked) return TForm::WndProc(message);
    FLog.push_back("form");
    message.Result = 5;
  }

 private:
  TLog& FLog;
};

class FormHook : public testing::Test {
 protected:
  FormHook() { Form->Show(); }

  TQELFormHook* NewHook(const std::string& name, const std::string& messages = "WM_APP+7") {
    auto* hook = new TQELFormHook(Form.get());
    hook->Messages()->SetText(messages);
    hook->OnMessage = [this, name](vcl::TObject*, vcl::TMessage&, bool&) { Log.push_back(name); };
    hook->OnAfterMessage = [this, name](vcl::TObject*, vcl::TMessage&) {
      Log.push_back("after " + name);
    };
    return hook;
  }
  /// The log of a message, and its result.
  TLog Ask(UINT message = Asked) {
    Log.clear();
    Result = ::SendMessageW(Form->Handle(), message, 0, 0);
    return Log;
  }

  TLog Log;
  LRESULT Result = 0;
  std::unique_ptr<TLoggingForm> Form = std::make_unique<TLoggingForm>(Log);
};

TEST_F(FormHook, HearsBeforeAndAfterTheFormAlsoInANewWindow) {
  TQELFormHook* first = NewHook("first");
  NewHook("second");
  const TLog both{"second", "first", "form", "after first", "after second"};
  EXPECT_EQ(Ask(), both);
  EXPECT_EQ(Result, 5);
  const HWND former = Form->Handle();
  Form->Remake();
  ASSERT_NE(Form->Handle(), former);
  EXPECT_EQ(Ask(), both);
  first->SetActive(false);
  EXPECT_THAT(Ask(), ElementsAre("second", "form", "after second"));
  delete first;
  first = NewHook("third");
  EXPECT_THAT(Ask(), ElementsAre("third", "second", "form", "after second", "after third"));
}

TEST_F(FormHook, AHandledMessageGoesNoFurtherButAWindowIsMadeAllTheSame) {
  TQELFormHook* hook = NewHook("first", "");
  NewHook("second");
  hook->OnMessage = [](vcl::TObject*, vcl::TMessage& message, bool& handled) {
    message.Result = message.Msg == Asked ? 9 : 0;
    handled = message.Msg == Asked || message.Msg == WM_NCCREATE || message.Msg == WM_NCDESTROY;
  };
  hook->OnAfterMessage = nullptr;
  EXPECT_THAT(Ask(), ElementsAre("second"));
  EXPECT_EQ(Result, 9);
  Form->Remake();
  EXPECT_TRUE(::IsWindow(Form->Handle()));
}

TEST_F(FormHook, HandlersMayFreeAnyHookAndTheForm) {
  TQELFormHook* first = NewHook("first");
  TQELFormHook* second = NewHook("second");
  TQELFormHook* third = NewHook("third");
  third->OnMessage = [&](vcl::TObject*, vcl::TMessage&, bool&) {
    delete first;
    delete third;
  };
  EXPECT_THAT(Ask(), ElementsAre("second", "form", "after second"));
  second->OnAfterMessage = [&](vcl::TObject*, vcl::TMessage&) { delete second; };
  EXPECT_THAT(Ask(), ElementsAre("second", "form"));
  EXPECT_THAT(Ask(), ElementsAre("form"));
  NewHook("under it");
  NewHook("last")->OnMessage = [&](vcl::TObject*, vcl::TMessage&, bool&) { Form.reset(); };
  EXPECT_THAT(Ask(), ElementsAre());
}

TEST_F(FormHook, TakesNamesNumbersAndSums) {
  TQELFormHook* hook = NewHook("it", "wm_size\n 0x0003\n33\nWM_USER + 0x10\nno such\n-1");
  for (const UINT each : {WM_SIZE, WM_MOVE, WM_MOUSEACTIVATE, WM_USER + 16}) {
    EXPECT_TRUE(hook->Wants(each)) << each;
  }
  EXPECT_FALSE(hook->Wants(WM_NULL));
  hook->Messages()->SetText("no such");
  EXPECT_FALSE(hook->Wants(WM_SIZE));
  hook->Messages()->Clear();
  EXPECT_TRUE(hook->Wants(WM_SIZE));
}

TEST_F(FormHook, HearsTheFormAroundItsFrameAndNothingInTheDesigner) {
  auto* panel = new vcl::TPanel(Form.get());
  EXPECT_EQ((new TQELFormHook(panel))->Form(), Form.get());
  EXPECT_EQ(TQELFormHook(nullptr).Form(), nullptr);
  vcl::TForm designed(nullptr);
  designed.SetDesigning(true);
  TQELFormHook hook(&designed);
  hook.OnMessage = [this](vcl::TObject*, vcl::TMessage&, bool&) { Log.push_back("heard"); };
  ::SendMessageW(designed.Handle(), Asked, 0, 0);
  EXPECT_THAT(Log, ElementsAre());
}

}  // namespace
}  // namespace qel
