// TUndoHistory: going back and forth between states, within a limit of memory.
#include "ide/undohistory.h"

#include <numeric>
#include <utility>

namespace ide {

void TUndoHistory::Reset(std::string state) {
  FUndo.clear();
  FRedo.clear();
  FKey.clear();
  FPresent = std::move(state);
  MarkClean();
}

void TUndoHistory::Add(std::string state, const std::string& key) {
  if (state == FPresent) return;
  const bool together = !key.empty() && key == FKey && FRedo.empty() && CanUndo();
  std::string former = std::exchange(FPresent, std::move(state));
  FRedo.clear();
  FKey = key;
  if (!together) {
    FUndo.push_back(std::move(former));
    Trim();
  } else if (FUndo.back() == FPresent) {
    FUndo.pop_back();
    FKey.clear();
  }
}

void TUndoHistory::Trim() {
  const auto add = [](std::size_t sum, const std::string& each) { return sum + each.size(); };
  std::size_t size = std::accumulate(FUndo.begin(), FUndo.end(), std::size_t{0}, add);
  // The last step can always be undone.
  while (size > FLimit && FUndo.size() > 1) {
    size -= FUndo.front().size();
    FUndo.erase(FUndo.begin());
  }
}

const std::string& TUndoHistory::Go(std::vector<std::string>& from, std::vector<std::string>& to) {
  if (from.empty()) return FPresent;
  to.push_back(std::exchange(FPresent, std::move(from.back())));
  from.pop_back();
  FKey.clear();
  return FPresent;
}

const std::string& TUndoHistory::Undo() { return Go(FUndo, FRedo); }

const std::string& TUndoHistory::Redo() { return Go(FRedo, FUndo); }

void TUndoHistory::MarkClean() {
  FClean = FPresent;
  FHasClean = true;
  FKey.clear();
}

}  // namespace ide
