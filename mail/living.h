// Items that events may delete while something is done with them.
#pragma once

#include <memory>

#include "host/rtl/exceptions.h"

namespace qel {

/// The item. Raises EInvalidOperation when it has been deleted.
template <class T>
T& Living(const std::weak_ptr<T>& life) {
  const std::shared_ptr<T> item = life.lock();
  if (item) return *item;
  throw vcl::EInvalidOperation("The mail was deleted while it was being sent or received");
}

}  // namespace qel
