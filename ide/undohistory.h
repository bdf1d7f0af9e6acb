// TUndoHistory: the states of a document that its user can go back to and forth again.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ide {

/// States are bytes; two states are the same when their bytes are.
class TUndoHistory {
 public:
  /// At most so many bytes are kept of states other than the present one; the oldest go first.
  explicit TUndoHistory(std::size_t limit) : FLimit(limit) {}

  /// Begins anew with a state, which is clean.
  void Reset(std::string state);
  /// The document has come into a state. Nothing happens when it is the present one. Changes with
  /// the same key, which is not empty, one directly behind another are undone together; when they
  /// end where they began there is nothing to undo.
  void Add(std::string state, const std::string& key = {});

  /// The present state has become another one that is no step of its own.
  void Replace(std::string state) { FPresent = std::move(state); }

  bool CanUndo() const { return !FUndo.empty(); }
  bool CanRedo() const { return !FRedo.empty(); }
  /// Goes back, and forth again; returns the state to be restored, which is the present one.
  const std::string& Undo();
  const std::string& Redo();
  const std::string& Present() const { return FPresent; }

  /// True when the present state is the one that was marked last, however it was come to.
  bool Clean() const { return FHasClean && FPresent == FClean; }
  void MarkClean();
  /// No state is clean from now on.
  void ForgetClean() { FHasClean = false; }

 private:
  void Trim();
  const std::string& Go(std::vector<std::string>& from, std::vector<std::string>& to);

  std::size_t FLimit;
  std::string FPresent;
  std::string FClean;
  bool FHasClean = false;
  std::string FKey;
  std::vector<std::string> FUndo;  // The newest last.
  std::vector<std::string> FRedo;
};

}  // namespace ide
