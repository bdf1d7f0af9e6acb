// TKeptValues: what a component keeps in its store from one start to the next.
#pragma once

#include <string>

#include "qel/core/Qeltstoredata.h"

namespace qel {

/// Values of a component in its store, named after its owner and itself ("Form1.Tips_Next"), so
/// that two of a kind never share one. Only while the store is enabled, and never in the designer.
/// What the store refuses tells its OnError, whose handler may free the component; nothing is read
/// or kept then.
class TKeptValues {
 public:
  TKeptValues(TQELDataStore& store, vcl::TComponent& component)
      : FStore(store), FComponent(component) {}

  bool Used() const { return FStore.Enabled() && !FComponent.Designing(); }
  /// Empty for what is not kept.
  std::string Read(const char* value) const;
  void Write(const char* value, const std::string& text) const;
  /// Raises ERegistryException or EIniFileException for a store that refuses.
  void Forget(const char* value) const;
  /// What the value is called in the store.
  std::string NameOf(const char* value) const;

 private:
  template <class Call>
  void Guarded(Call call) const;

  TQELDataStore& FStore;
  vcl::TComponent& FComponent;
};

}  // namespace qel
