// What units without a window need of the application they run in.
#pragma once

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// The application, as far as it needs no window: a console program or a test has one of these, a
/// program with forms a TApplication.
class VCL_API TCustomApplication : public TComponent {
 public:
  /// Becomes what `BaseApplication` returns until it is destroyed, unless there is one already.
  explicit TCustomApplication(TComponent* owner);
  ~TCustomApplication() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The application's name as the user sees it; the executable's name until it is set.
  virtual std::string Title() const;
  virtual void SetTitle(const std::string& title) { FTitle = title; }
  /// The full name of the executable.
  std::string ExeName() const;
  /// Handles the waiting messages of the calling thread's queue: all of them, unless threads call
  /// the main thread without end. Here: nothing waits.
  virtual void ProcessMessages() {}
  /// Shows the error to the user; shows nothing for EAbort. Here: one line on standard error. Never
  /// raises.
  virtual void HandleException(TObject* sender, const std::exception& error);
  /// Like HandleException, for the exception being handled in a catch block, whatever its type.
  void HandleCurrentException(TObject* sender);
  /// The same for what a timer's handler raised, which it may raise at every tick: errors that are
  /// no Exception, faults of the program itself, are told once for each sender and text.
  void HandleTimerException(TObject* sender);
  /// Shows a text in a box and returns the button's number as the system's MessageBox does. Here:
  /// the text goes to standard error and the answer is 1 (OK).
  virtual int MessageBox(const std::string& text, const std::string& caption, int flags);
  /// True when the program has been asked to end.
  bool Terminated() const { return FTerminated; }
  virtual void Terminate() { FTerminated = true; }

 protected:
  /// For a program that runs anew.
  void SetTerminated(bool terminated) { FTerminated = terminated; }

 private:
  bool IsNewTimerError(const TObject* sender, const std::string& text);

  std::string FTitle;
  std::vector<std::pair<const TObject*, std::string>> FTimerErrors;
  bool FTerminated = false;
};

/// The application. While the program has made none, one that stands in for it.
VCL_API TCustomApplication& BaseApplication();

/// Ends the process here and now with the exit code, as the end of `main` would: files are flushed
/// and static objects destroyed, but forms are neither asked nor told, and no object on the stack
/// or the heap is destroyed. Other threads end wherever they are.
[[noreturn]] VCL_API void Halt(int exitCode = 0);

}  // namespace vcl
