// That work done again and again keeps none of the system's objects.
#pragma once

#include <gmock/gmock.h>

#include <utility>

#include "tests/support/handles.h"
#include "vcl/graphics/canvas.h"

namespace handles {

/// Calls `work` with the number of the round. The first `warmUp` rounds may fill caches.
template <class Work>
void ExpectNoneKept(int rounds, int warmUp, const Work& work) {
  const auto count = [&](int times) {
    for (int i = 0; i < times; ++i) work(i);
    vcl::FreeDeviceContexts();
    return std::pair(GdiObjects(), UserObjects());
  };
  const auto before = count(warmUp);
  EXPECT_EQ(count(rounds), before) << "GDI and user objects";
}

}  // namespace handles
