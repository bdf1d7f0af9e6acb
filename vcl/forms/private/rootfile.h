// What forms, frames and data modules have in common: they are the roots of form files that are
// resources of the program.
#pragma once

#include <functional>

#include "vcl/rtl/component.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// Reads the root from the RCDATA resource that is named after its class, and fills the fields of
/// the class and its ancestors; see TCustomForm::LoadForm.
void LoadRootFile(TComponent& root, HINSTANCE module);

/// Raises the EInvalidOperation that an ancestor's constructor took the root for complete.
[[noreturn]] void RaiseCreatedBefore(const TComponent& root);

/// Calls `each` for the root's components that stand inside no other.
void EachWithoutParent(const TComponent& root, const std::function<void(TComponent*)>& each);
/// Puts such a component at a place among its siblings, from 0.
void OrderWithoutParent(TComponent& root, TComponent& child, int order);

}  // namespace vcl
