// What a form consists of, as lines: its components, those inside them, and the items of their
// collections.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/component.h"

namespace ide {

struct TStructureLine {
  int Depth = 0;
  std::string Text;
  /// The component or item; of a collection's line, the object whose property it is.
  vcl::TPersistent* Object = nullptr;
  vcl::TCollection* Collection = nullptr;  ///< Of a collection's line.
  std::string Property;                    ///< The collection's.
  /// What the line is found by when the form has been made anew: "StatusBar1.Panels[0]".
  std::string Path;
};

/// The root and all below it, as its form file would hold them: what a component holds stands below
/// it, what is no control below the root.
std::vector<TStructureLine> StructureOf(vcl::TComponent& root);

}  // namespace ide
