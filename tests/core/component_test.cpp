// The base classes without a window: about box, actions, sounds.
#include <gmock/gmock.h>

#include <regex>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "vcl/rtl/utf16.h"
#include "vcl/vcl.h"

namespace {

using testing::ElementsAre;

struct TAction : qel::TQELExecComponent {
  using TQELExecComponent::TQELExecComponent;
  bool Execute() override {
    ++Runs;
    if (Fails) throw vcl::EInvalidOperation("refused");
    return true;
  }
  int Runs = 0;
  bool Fails = false;
};

TEST(ExecComponent, RunsWhenToldThatItIsBusy) {
  TAction action(nullptr);
  const vcl::TPropInfo& execute = *action.ClassType().FindPublished("DesignExecute");
  for (const char* text : {"", "(Execute)", "(busy...)", "(Busy...) ", "anything"}) {
    execute.Set(action, std::string(text));
    EXPECT_EQ(action.Runs, 0) << text;
    EXPECT_EQ(action.DesignExecute(), "(Execute)");
  }
  execute.Set(action, std::string("(Busy...)"));
  EXPECT_EQ(action.Runs, 1);
  EXPECT_EQ(action.DesignExecute(), "(Execute)");
  EXPECT_FALSE(execute.NeedsWriting(action));
  action.Fails = true;
  EXPECT_THROW(action.DoExec("(Busy...)"), vcl::EInvalidOperation);
  EXPECT_EQ(action.DesignExecute(), "(Execute)");
  EXPECT_FALSE(qel::TQELExecComponent(nullptr).Execute()) << "it does nothing by itself";
}

std::vector<UINT> Beeps;

TEST(CustomDialog, PlaysItsSoundFirst) {
  const TImportPatch patch(
      "qel.dll", "MessageBeep", +[](UINT type) WINAPI -> BOOL {
        Beeps.push_back(type);
        return TRUE;
      });
  qel::TQELCustomDialog dialog(nullptr);
  for (int sound = qel::bNone; sound <= qel::bCriticalStop; ++sound) {
    dialog.SetSound(qel::TQELBeeptype(sound));
    EXPECT_FALSE(dialog.Execute());
  }
  EXPECT_THAT(Beeps, ElementsAre(0u, 0x40u, 0x30u, 0x20u, 0x10u));
}

std::string BoxText, BoxCaption;
UINT BoxFlags = 99;

TEST(About, NamesItsComponent) {
  const TImportPatch patch(
      "qelhost.dll", "MessageBoxW",
      +[](HWND, const wchar_t* text, const wchar_t* caption, UINT flags) WINAPI -> int {
        BoxText = vcl::ToUtf8(text);
        BoxCaption = vcl::ToUtf8(caption);
        BoxFlags = flags;
        return IDOK;
      });
  vcl::Application();
  qel::TQELCustomDialog dialog(nullptr);
  dialog.SetName("Dialog1");
  dialog.About()->Showabout();
  EXPECT_EQ(BoxCaption.find("(Dialog1) - TQELCustomDialog"), 0u) << BoxCaption;
  // Four lines, three and two, with an empty one in between.
  const std::regex lines("([^\r]+\r){4}\r([^\r]+\r){3}\r[^\r]+\r[^\r]+");
  EXPECT_TRUE(std::regex_match(BoxText, lines)) << BoxText;
  EXPECT_EQ(BoxFlags & ~(MB_TASKMODAL | MB_TOPMOST | MB_SETFOREGROUND), 0u);
}

}  // namespace
