// The handlers of a form that is designed: its components' events know them by name.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/properties.h"

namespace ide {

/// Calls `each` for every event of the object and of what is inside it; of a component that it owns
/// only when that is a part of it.
void EachEvent(vcl::TObject& object,
               const std::function<void(const vcl::TPropInfo&, vcl::TEventBase&)>& each);
/// Calls `each` for the form, its components and those of the frames on it.
void EachOfForm(vcl::TComponent& root, const std::function<void(vcl::TComponent&)>& each);
/// The same for the events of all of these.
void EachEventOfForm(vcl::TComponent& root,
                     const std::function<void(const vcl::TPropInfo&, vcl::TEventBase&)>& each);

/// The handlers by name, each with one of the events that it is for.
class THandlers {
 public:
  /// Adds one that no event names yet.
  void Add(const std::string& name, const vcl::TPropInfo& event) { FAdded[name] = &event; }
  void Rename(vcl::TComponent& root, const std::string& name, const std::string& newName);
  void Clear() { FAdded.clear(); }
  /// Those of the form that this one descends from: its class has them, whatever names them.
  void SetInherited(std::map<std::string, const vcl::TPropInfo*> inherited) {
    FInherited = std::move(inherited);
  }
  const std::map<std::string, const vcl::TPropInfo*>& Inherited() const { return FInherited; }
  /// True when the frame that the component is in gives it a handler of that name itself.
  std::function<bool(const vcl::TComponent& component, const std::string& name)> IsOfFrame;

  /// All handlers that the form's events name, the inherited and the added ones.
  std::map<std::string, const vcl::TPropInfo*> All(vcl::TComponent& root) const;
  /// The one of that name, compared without case; null when there is none.
  const vcl::TPropInfo* Find(vcl::TComponent& root, const std::string& name) const;

 private:
  std::map<std::string, const vcl::TPropInfo*> FAdded;
  std::map<std::string, const vcl::TPropInfo*> FInherited;
};

}  // namespace ide
