// TSelection: the components, or items of a collection, that the user of a designer works on.
#pragma once

#include <functional>
#include <vector>

#include "vcl/rtl/component.h"

namespace ide {

/// A component that is freed leaves the selection by itself.
class TSelection : private vcl::TComponent {
 public:
  TSelection() : TComponent(nullptr) {}

  /// In the order in which they were selected; the first is the one that others are aligned with.
  const std::vector<vcl::TPersistent*>& All() const { return FAll; }
  /// Those of them that are components.
  std::vector<vcl::TComponent*> Components() const;
  bool Empty() const { return FAll.empty(); }
  bool Contains(const vcl::TPersistent* object) const;

  /// Each object once.
  void Set(const std::vector<vcl::TPersistent*>& objects);
  void Only(vcl::TPersistent* object) { Set({object}); }
  void Toggle(vcl::TPersistent* object);
  void Clear() { Set({}); }
  /// How often something else has been selected.
  int Changes() const { return FChanges; }

  std::function<void()> OnChange;

 private:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

  std::vector<vcl::TPersistent*> FAll;
  int FChanges = 0;
};

}  // namespace ide
