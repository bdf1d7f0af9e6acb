// A program that writes to an INI file, while others do: this test's own executable, started anew.
#pragma once

#include <string>

#include "vcl/rtl/inifile.h"

namespace writer {

inline constexpr int Entries = 60;

/// Writes its entries; without a name of its own it writes one again and again until it is ended.
inline void Run(const std::string& file, const std::string& name) {
  vcl::TIniFile ini(file);
  if (name.empty()) {
    for (int i = 1;; ++i) ini.WriteInteger("S", "last", i);
  }
  for (int i = 0; i < Entries; ++i) {
    ini.WriteInteger("Section " + std::to_string(i % 3), name + std::to_string(i), i);
  }
}

}  // namespace writer
