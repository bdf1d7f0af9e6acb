// Components and items that events may delete while something is done with them.
#pragma once

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

/// An item that events may delete while it is worked on.
template <class T>
class TLiving {
 public:
  explicit TLiving(T& item) : FItem(&item), FWatch(&item) {}
  /// Null when it has been deleted.
  T* Get() const { return FWatch.Gone() ? nullptr : FItem; }
  /// The item. Raises EInvalidOperation when it has been deleted.
  T& operator*() const {
    if (T* const item = Get()) return *item;
    throw vcl::EInvalidOperation("The mail was deleted while it was being sent or received");
  }
  T* operator->() const { return &**this; }

 private:
  T* FItem;
  vcl::TWatch FWatch;
};

}  // namespace qel
