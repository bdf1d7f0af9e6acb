// TThread: work beside the main thread, and how it calls the main thread.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>

#include "vcl/rtl/events.h"
#include "vcl/rtl/object.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// How urgent a thread is, compared with the program's others.
enum TThreadPriority { tpIdle, tpLowest, tpLower, tpNormal, tpHigher, tpHighest, tpTimeCritical };
template <>
inline constexpr TEnumText EnumText<TThreadPriority>{
    "TThreadPriority", "tpIdle tpLowest tpLower tpNormal tpHigher tpHighest tpTimeCritical"};

struct TThreadState;

/// A thread of the program. A descendant says in `Execute` what it does; the thread itself begins
/// when it is started, for a base class's constructor could not reach that method.
///
/// Nothing stops a thread at any point of its work: suspended, it rests when it comes to one of its
/// own waiting points, `Sleep` and `Synchronize`.
///
/// A descendant calls `EndThread` first thing in its destructor, while it is whole. A thread is
/// freed by another one than itself; see SetFreeOnTerminate.
class VCL_API TThread : public TObject {
 public:
  /// Suspended: `Start` or `Resume` begins it.
  TThread();
  ~TThread() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Begins the thread. Raises EThread when it has been started before or the system has none left.
  void Start();
  /// Has the thread rest as soon as it sleeps or calls the main thread: the rest of its sleep, or
  /// its call, waits until `Resume`. Called by the thread itself, it rests at once.
  void Suspend();
  /// Begins the thread, or lets it go on. Raises EThread as Start does when it begins it.
  void Resume();
  bool Suspended() const;
  /// Asks the thread to end: `Execute` looks at `Terminated` now and then. Ends its sleep and its
  /// rest.
  void Terminate();
  bool Terminated() const;
  /// True when `Execute` has ended and OnTerminate has been told.
  bool Finished() const;
  /// Waits until the thread is finished and returns what it left with SetReturnValue. The main
  /// thread runs the threads' calls meanwhile. Raises EThread for a thread that has not been
  /// started, that waits for itself, or that is freed by itself.
  int WaitFor();

  /// As the system has it, once the thread runs.
  TThreadPriority Priority() const;
  /// A wish: the system may refuse a priority above the normal one. The thread then keeps the one
  /// that it has, which `Priority` tells.
  void SetPriority(TThreadPriority priority);
  bool FreeOnTerminate() const;
  /// True: the main thread frees the object when `Execute` has ended and OnTerminate was told.
  void SetFreeOnTerminate(bool freeOnTerminate);
  /// What left `Execute` unhandled; null when nothing did. EAbort ends a thread silently.
  std::exception_ptr FatalException() const;

  /// The thread has ended. Fired in the main thread, but not for one that is freed before. To be
  /// set before the thread is started.
  TNotifyEvent OnTerminate;

 protected:
  /// What the thread does.
  virtual void Execute() = 0;
  /// Ends the thread and waits for it: its calls that wait for the main thread are dropped.
  void EndThread();

  // For the thread itself.
  /// Waits so many milliseconds; the time in which the thread is suspended does not count. False
  /// when the thread is to end.
  bool Sleep(std::int64_t milliseconds);
  /// Has the main thread run the method (see CheckSynchronize) and waits for it. What the method
  /// raises is raised here. Raises EAbort when the thread is freed meanwhile, even by the method
  /// itself, which then must not use what belongs to the thread any more.
  void Synchronize(std::function<void()> method);
  /// Has the main thread run the method some time later, unless the thread has been freed by then.
  /// What the method raises goes to the application.
  void Queue(std::function<void()> method);
  int ReturnValue() const;
  void SetReturnValue(int value);

 private:
  void Run() noexcept;
  void RunGuarded();
  void TellEnd();
  void Begin();

  std::shared_ptr<TThreadState> FState;
};

/// Runs the calls of threads that wait for the main thread, those that wait now; false when there
/// was none. Waits up to `timeout` milliseconds for the first one. The main thread's to call, which
/// the application does in its message loop: only a program without one calls it itself. Raises
/// EThread in another thread.
VCL_API bool CheckSynchronize(int timeout = 0);
/// True in the thread that has loaded the library.
VCL_API bool InMainThread();
/// What is called, in whatever thread, when the first call waits for the main thread, which then is
/// to call CheckSynchronize soon. It must not wait for anything. Null for nothing.
VCL_API void SetWakeMainThread(void (*wake)());

}  // namespace vcl
