// What the fuzzed programs share.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "qel/mail/Qeltiemails_pop.h"

/// Ends the program, which libFuzzer takes for a finding.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "It does not hold that %s\n", what);
  std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline std::string Contents(qel::TQELAttachment& attachment) {
  attachment.Data()->SetPosition(0);
  return attachment.Data()->ReadRest();
}
