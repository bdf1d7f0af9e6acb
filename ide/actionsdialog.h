// The dialog in which a ready-made action is chosen.
#pragma once

#include <optional>
#include <string>

#include "vcl/rtl/object.h"

namespace ide {

/// A class of actions, and the category that it is registered in.
struct TStandardChoice {
  const vcl::TClass* Class;
  std::string Category;
};

/// Shows the registered actions by category; nothing when the user takes none.
std::optional<TStandardChoice> ChooseStandardAction();

}  // namespace ide
