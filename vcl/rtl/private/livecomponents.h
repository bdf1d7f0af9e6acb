// The components that there are.
#pragma once

#include <functional>

namespace vcl {

class TComponent;

namespace detail {

/// Asks about one component after another, in no order, until the answer is true; false when it is
/// for none. Meanwhile none begins or ends, in other threads either.
bool FindComponent(const std::function<bool(const TComponent&)>& wanted);

}  // namespace detail
}  // namespace vcl
