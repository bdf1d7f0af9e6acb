// A mail library for the tests: it writes down each call with all fields of the records, and
// answers as it is told.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

struct TProvider {
  /// A line a call: the entry point and its arguments in order, records in brackets.
  std::vector<std::string> Calls;
  /// The results of an entry point's next calls; then they succeed.
  std::map<std::string, std::deque<unsigned long>> Results;
  /// What names are resolved to; others to themselves.
  std::map<std::string, std::string> Names;
  /// Runs once, inside the next call of the entry point, as a dialog would.
  std::map<std::string, std::function<void()>> During;
  /// How many blocks of memory are handed out and not freed; and how often what was none was freed.
  int Blocks = 0, WrongFrees = 0;
};

extern "C" TProvider& Provider();
