// The application: running and ending, errors, boxes, its window; the screen.
#include <gmock/gmock.h>

#include <atomic>
#include <cstdio>
#include <thread>

#include "tests/vcl/testinput.h"
#include "vcl/controls/windowtext.h"
#include "vcl/rtl/text.h"

#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using namespace testinput;
using TLog = std::vector<std::string>;

TEST(Application, RunShowsTheMainFormAndFreesTheFormsWhole) {
  TLog log;
  for (int code : {3, 4}) {  // Run again, it begins anew.
    log.clear();
    auto* main = Application()->CreateForm<TForm>();
    auto* other = Application()->CreateForm<TForm>();
    ASSERT_EQ(Application()->MainForm(), main);
    main->OnDestroy = [&](TObject*) { log.push_back("main"); };
    other->OnDestroy = [&](TObject*) { log.push_back("other"); };
    main->OnActivate = [&, code](TObject*) {
      log.push_back("shown");
      Application()->SetExitCode(code);
      ::PostMessageW(main->Handle(), WM_CLOSE, 0, 0);
    };
    EXPECT_EQ(Application()->Run(), code);
    EXPECT_EQ(log, (TLog{"shown", "other", "main"}));
    EXPECT_EQ(Application()->MainForm(), nullptr);
    EXPECT_TRUE(Application()->Terminated());
  }
}

TEST(Application, AMainFormThatRefusesToCloseKeepsTheProgram) {
  auto* main = Application()->CreateForm<TForm>();
  int closes = 0;
  main->OnClose = [&](TObject*, TCloseAction& action) {
    if (++closes == 1) action = caNone;
    ::PostMessageW(main->Handle(), WM_CLOSE, 0, 0);
  };
  main->OnActivate = [&](TObject*) { ::PostMessageW(main->Handle(), WM_CLOSE, 0, 0); };
  Application()->Run();
  EXPECT_EQ(closes, 2);
}

TEST(Application, TheEndOfTheSessionClosesTheMainFormAndFreesWhatNobodyUses) {
  const HWND application = Application()->Handle();
  for (const bool underway : {false, true}) {
    TLog log;
    auto* main = Application()->CreateForm<TForm>();
    main->OnClose = [&](TObject*, TCloseAction& action) {
      EXPECT_TRUE(Application()->SessionEnding());
      log.push_back("close");
      action = caNone;  // Nobody asks any more.
    };
    main->OnDestroy = [&](TObject*) { log.push_back("freed"); };
    const auto end = [&] {
      ::SendMessageW(application, WM_ENDSESSION, TRUE, 0);
      log.push_back("ended");
    };
    std::thread system;
    Application()->OnIdle = [&](TObject*, bool&) {
      if (underway) {
        end();
      } else if (!system.joinable()) {
        system = std::thread(end);
      }
    };
    Application()->Run();
    if (system.joinable()) system.join();
    EXPECT_EQ(log,
              underway ? (TLog{"close", "ended", "freed"}) : (TLog{"close", "freed", "ended"}));
    Application()->OnIdle = nullptr;
    ::SendMessageW(application, WM_ENDSESSION, FALSE, 0);
    EXPECT_FALSE(Application()->SessionEnding());
  }
}

TEST(Application, ErrorsGoToTheHandlerAndItsOwnToABox) {
  std::string error;
  Application()->OnException = [&](TObject*, const std::exception& e) { error = e.what(); };
  Application()->HandleException(nullptr, Exception("first"));
  EXPECT_EQ(error, "first");
  Application()->HandleException(nullptr, EAbort("silent"));
  EXPECT_EQ(error, "first");
  try {
    throw 5;
  } catch (...) {
    Application()->HandleCurrentException(nullptr);
  }
  EXPECT_NE(error, "first");
  TForm form(nullptr);
  form.OnClick = [](TObject*) { throw Exception("from a click"); };
  Application()->OnException = [&](TObject* sender, const std::exception& e) {
    EXPECT_EQ(sender, &form);
    error = e.what();
  };
  for (UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) ::SendMessageW(form.Handle(), message, 0, 0);
  EXPECT_EQ(error, "from a click");
  Application()->OnException = [](TObject*, const std::exception&) { throw Exception("worse"); };
  TBoxAnswer box(IDOK);
  Application()->HandleException(nullptr, Exception("bad"));
  Application()->OnException = nullptr;
  EXPECT_TRUE(box.Wait());
  EXPECT_EQ(box.Text(), "worse.");
}

TEST(Application, AnErrorIsShownInABoxAndTheProgramGoesOn) {
  Application()->SetTitle("Τίτλος 日本");
  EXPECT_EQ(WindowText(Application()->Handle()), "Τίτλος 日本");
  TForm form(nullptr);
  form.OnClick = [](TObject*) { throw Exception("Grüße"); };
  form.SetBounds(200, 200, 200, 200);
  form.Show();
  ASSERT_TRUE(PumpUntil([&] { return form.Active(); }));
  TBoxAnswer box(IDOK);
  Click(&form);
  EXPECT_TRUE(box.Wait());
  EXPECT_EQ(box.Caption(), "Τίτλος 日本");
  EXPECT_EQ(box.Text(), "Grüße.");
  EXPECT_TRUE(::IsWindowEnabled(form.Handle()));
  EXPECT_TRUE(PumpUntil([&] { return form.Active(); }));
  TBoxAnswer message(IDOK);
  ShowMessage("Grüße");
  EXPECT_TRUE(message.Wait());
  EXPECT_EQ(message.Caption() + message.Text(), "Τίτλος 日本Grüße");
}

std::atomic<int> raised = 0;
void CALLBACK Raise(HWND, UINT, UINT_PTR id, DWORD) {
  if (++raised == 3) ::KillTimer(nullptr, id);
  Application()->ShowException(Exception("from the timer"));
}

TEST(Application, ErrorsWhileABoxIsUpWaitAndAreShownOnce) {
  raised = 0;
  ::SetTimer(nullptr, 0, 10, &Raise);
  TBoxAnswer boxes(IDOK, 2, [] { return raised == 3; });
  Application()->ShowException(Exception("from here!"));
  boxes.Wait();
  EXPECT_EQ(boxes.Texts(), (TLog{"from here!", "from the timer."}));
}

TEST(Application, MessagesAndIdleTimeReachTheHandlers) {
  constexpr UINT message = WM_APP + 7;
  int seen = 0;
  Application()->OnMessage = [&](MSG& each, bool& handled) {
    if (each.message == message) ++seen, handled = true;
  };
  int idle = 0;
  Application()->OnIdle = [&](TObject*, bool& done) { done = ++idle == 3; };
  ::PostMessageW(Application()->Handle(), message, 0, 0);
  while (seen == 0) Application()->HandleMessage();
  while (idle < 2) Application()->HandleMessage();
  Application()->OnIdle = nullptr;
  Application()->OnMessage = nullptr;
  EXPECT_EQ(seen, 1);
}

TEST(Screen, EveryPointerHasAHandle) {
  for (int number = crSize; number < crDefault; ++number) {
    const auto cursor = static_cast<TCursor>(number);
    if (!CursorToIdent(number) || cursor == crNone) continue;
    EXPECT_NE(Screen()->Cursors(cursor), nullptr) << number;
    EXPECT_EQ(IdentToCursor(*CursorToIdent(number)), number);
  }
  EXPECT_EQ(Screen()->Cursors(crNone), nullptr);
  EXPECT_THROW(Screen()->SetCursors(crArrow, nullptr), EArgumentOutOfRangeException);
  const auto own = static_cast<TCursor>(5);
  Screen()->SetCursors(own, ::CopyIcon(::LoadCursorA(nullptr, IDC_CROSS)));
  EXPECT_NE(Screen()->Cursors(own), Screen()->Cursors(crArrow));
  Screen()->SetCursors(own, nullptr);
}

/// What the handler's fault is told as.
template <class Handler>
std::string ToldOf(Handler handler) {
  std::string told;
  Application()->Initialize();
  Application()->OnException = [&](TObject*, const std::exception& error) {
    told = Concat(typeid(error) == typeid(EDivByZero) ? "EDivByZero: " : "", error.what());
  };
  TForm form(nullptr);
  form.OnClick = [&](TObject*) { handler(); };
  for (UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP}) ::SendMessageW(form.Handle(), message, 0, 0);
  Application()->OnException = nullptr;
  return told;
}

TEST(Faults, OfHandlersAreToldWithTheirPlace) {
  const std::string here = "test_vcl.exe+";
  int* volatile nowhere = nullptr;
  EXPECT_THAT(ToldOf([&] { *nowhere = 1; }),
              testing::AllOf(testing::HasSubstr("Access violation at "), testing::HasSubstr(here),
                             testing::HasSubstr("write to address 0000000")));
  volatile int zero = 0;
  volatile int sink = 0;
  EXPECT_THAT(ToldOf([&] { sink = 7 / zero; }),
              testing::AllOf(testing::StartsWith("EDivByZero: Division by zero at "),
                             testing::HasSubstr(here)));
  void (*volatile nobody)() = nullptr;
  EXPECT_THAT(ToldOf([&] { nobody(); }), testing::HasSubstr("run code at address 0000000"));
  const TEdit* volatile edit = nullptr;
  EXPECT_THAT(ToldOf([&] { sink = edit->Left(); }), testing::HasSubstr("Access violation at "));
}

void FaultInsideTheSystem() {
  Application()->Initialize();
  TBoxAnswer box(IDOK, 1, [&box] {
    std::fprintf(stderr, "told: %s", box.Text().c_str());
    return true;
  });
  const auto length = reinterpret_cast<std::size_t(__cdecl*)(const char*)>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("msvcrt"), "strlen")));
  length(nullptr);
}

TEST(FaultsDeathTest, OfTheSystemAreToldBeforeTheEnd) {
  EXPECT_EXIT(FaultInsideTheSystem(),
              ::testing::ExitedWithCode(static_cast<int>(EXCEPTION_ACCESS_VIOLATION)),
              "told: Access violation at .*msvcrt.dll.*read address 0000000");
}

TEST(Timers, TellFaultsOfTheProgramOnceAndErrorsAtEveryTick) {
  int told = 0;
  Application()->OnException = [&](TObject*, const std::exception&) { ++told; };
  TTimer timer(nullptr);
  int ticks = 0;
  bool known = false;
  timer.OnTimer = [&](TObject*) {
    ++ticks;
    if (known) throw Exception("known");
    throw 5;
  };
  timer.SetInterval(10);
  EXPECT_TRUE(PumpUntil([&] { return ticks >= 4; }));
  EXPECT_EQ(told, 1);
  known = true;
  EXPECT_TRUE(PumpUntil([&] { return told >= 3; }));
  Application()->OnException = nullptr;
}

TEST(ApplicationDeathTest, AnErrorThatNobodyCatchesIsToldAndEndsTheProgram) {
  const auto fail = []() noexcept {
    Application()->Initialize();
    Application()->OnException = [](TObject*, const std::exception& told) {
      std::fprintf(stderr, "told: %s", told.what());
    };
    FindClass("TNoClass");
  };
  EXPECT_EXIT(fail(), ::testing::ExitedWithCode(1), "told: Class TNoClass not found");
}

}  // namespace
}  // namespace vcl
