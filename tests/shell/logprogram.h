// A program that writes to a log, which is this test's own, started anew.
#pragma once

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "qel/shell/Qeltlogfile.h"
#include "tests/support/program.h"

/// What a thread of a program writes, and how that ends.
struct TLogPlan {
  std::string File;
  int Threads = 1;
  int Entries = 1;
  int MaxSize = 0;         ///< In kilobytes.
  char End = 'e';          ///< 'e': by the component's end; 'k': killed behind Flush, 'x' behind an
                           ///< entry of the level llError.
  std::string Name = "A";  ///< Its threads are "A0", "A1" and so on.

  /// The texts have all sorts of lengths.
  static std::string Text(const std::string& thread, int number) {
    return thread + " " + std::to_string(number) + " " +
           std::string(static_cast<std::size_t>(number * 7 % 90), 'x');
  }
};

inline std::wstring CommandLine(const TLogPlan& plan) {
  const std::string numbers = std::to_string(plan.Threads) + " " + std::to_string(plan.Entries) +
                              " " + std::to_string(plan.MaxSize);
  return L"--log " +
         vcl::ToUtf16("\"" + plan.File + "\" " + numbers + " " + plan.End + " " + plan.Name);
}

/// Does as planned; 0 when every entry was taken.
inline int RunLogProgram(const TLogPlan& plan) {
  auto log = std::make_unique<qel::TQELLogFile>(nullptr);
  log->SetMaxSize(plan.MaxSize);
  log->SetLogFile(plan.File);
  std::vector<std::thread> threads;
  std::atomic<int> refused = 0;
  for (int i = 0; i < plan.Threads; ++i) {
    threads.emplace_back([&, thread = plan.Name + std::to_string(i)] {
      for (int number = 0; number < plan.Entries; ++number)
        refused += !log->Add(qel::llInfo, plan.Text(thread, number));
    });
  }
  for (std::thread& each : threads) each.join();
  if (plan.End == 'k') log->Flush();
  if (plan.End == 'x') log->Add(qel::llError, "last");
  if (plan.End != 'e') ::TerminateProcess(::GetCurrentProcess(), 7);
  log.reset();
  return refused == 0 ? 0 : 1;
}
