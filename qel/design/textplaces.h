// The texts of a form's components, found and replaced.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "vcl/rtl/component.h"

namespace qel {

/// A published text or list of texts, of a component or of an object inside it.
struct TQELTextPlace {
  vcl::TComponent* Component;
  /// The component's name and the property's: "Memo1.Lines".
  std::string Path;
  std::function<std::string()> Get;
  std::function<void(const std::string&)> Set;
};

/// What is looked for, and what is to stand in its place.
struct TQELReplacement {
  std::string Search;
  std::string Text;
  bool MatchCase = false;
};

/// Those of the root and its components that hold what is looked for. What a form
/// file does not hold as a property, such as names, is no text.
std::vector<TQELTextPlace> PlacesOf(vcl::TComponent& root, const TQELReplacement& replacement);
/// Replaces it in all of them. When one refuses, the others get back what they had and the error
/// leaves.
void ReplaceIn(const std::vector<TQELTextPlace>& places, const TQELReplacement& replacement);

}  // namespace qel
