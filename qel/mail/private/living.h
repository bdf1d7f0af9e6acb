// Components and items that events may delete while something is done with them.
#pragma once

#include <memory>

#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

/// Makes a call that may free the component. Raises EAbort when it has.
template <class Call>
void Guarded(vcl::TComponent* component, const Call& call) {
  vcl::TWatch watch(component);
  call();
  if (watch.Gone()) throw vcl::EAbort("The component was freed by one of its events");
}

/// A pointer that owns nothing and only says how long the object lives.
template <class T>
std::shared_ptr<T> LifeOf(T* object) {
  return {object, [](T*) {}};
}

/// The item. Raises EInvalidOperation when it has been deleted.
template <class T>
T& Living(const std::weak_ptr<T>& life) {
  const std::shared_ptr<T> item = life.lock();
  if (item) return *item;
  throw vcl::EInvalidOperation("The mail was deleted while it was being sent or received");
}

}  // namespace qel
