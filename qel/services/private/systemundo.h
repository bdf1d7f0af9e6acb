// TSystemUndo: what was done to the system is undone, whatever becomes of the program.
#pragma once

#include <functional>

namespace qel {

/// Something that was done to the system beyond the program's own windows, and what undoes it: its
/// end undoes it, and so does the end of the process by `main`'s, by Halt or ExitProcess, and by a
/// fault that nobody handles. A process that another one ends (TerminateProcess) has no last word.
///
/// What the system takes back from a process by itself needs no such object: hot keys, hooks, the
/// area that the mouse is kept in, requests to keep the display on.
class TSystemUndo {
 public:
  /// `undo` is called once, in the thread that ends. It must do with what the system offers while
  /// the process ends: no windows of the program's, and no other threads.
  explicit TSystemUndo(std::function<void()> undo);
  ~TSystemUndo();
  TSystemUndo(const TSystemUndo&) = delete;
  TSystemUndo& operator=(const TSystemUndo&) = delete;

  /// What was done is to stay: nothing is undone any more.
  void Keep() { FUndo = nullptr; }

 private:
  friend struct TUndoList;
  void Undo() noexcept;
  std::function<void()> FUndo;
};

}  // namespace qel
