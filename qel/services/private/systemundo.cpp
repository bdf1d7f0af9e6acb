// TSystemUndo: all that is to be undone, the latest first.
#include "qel/services/private/systemundo.h"

#include <utility>
#include <vector>

#include "vcl/rtl/win32.h"

namespace qel {

/// Ends with the process.
struct TUndoList {
  TUndoList() : Former(::SetUnhandledExceptionFilter(&Fault)) {}
  ~TUndoList() { UndoAll(); }

  void UndoAll() noexcept {
    while (!Open.empty()) {
      TSystemUndo* const last = Open.back();
      Open.pop_back();
      last->Undo();
    }
  }
  static TUndoList& Get() {
    static TUndoList list;
    return list;
  }
  /// A fault that nobody handles: the process has nothing else to say.
  static LONG WINAPI Fault(EXCEPTION_POINTERS* fault) {
    Get().UndoAll();
    return Get().Former ? Get().Former(fault) : EXCEPTION_CONTINUE_SEARCH;
  }

  std::vector<TSystemUndo*> Open;
  LPTOP_LEVEL_EXCEPTION_FILTER Former;
};

TSystemUndo::TSystemUndo(std::function<void()> undo) : FUndo(std::move(undo)) {
  TUndoList::Get().Open.push_back(this);
}

TSystemUndo::~TSystemUndo() {
  std::erase(TUndoList::Get().Open, this);
  Undo();
}

void TSystemUndo::Undo() noexcept {
  if (const auto undo = std::exchange(FUndo, nullptr)) undo();
}

}  // namespace qel
