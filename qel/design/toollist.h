// The form of the tools that show a list and the details of what is chosen in it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qel {

struct TQELToolList {
  std::string Caption;
  std::vector<std::string> Lines;
  /// What is shown beside the list for the line of the index from 0.
  std::function<std::string(int)> Details;
  /// The caption of a button that acts on the chosen line and closes the form; none when empty.
  std::string Action = {};
  std::function<void(int)> Act = {};
  /// The line that is chosen first.
  int Chosen = 0;
  /// The caption of a check box, its state, and what is told of the user's changes; none when
  /// empty.
  std::string Switch = {};
  bool Switched = false;
  std::function<void(bool)> OnSwitch = {};
};

/// Shows the form and waits until it is closed.
void ShowToolList(const TQELToolList& list);

}  // namespace qel
