// TFormLinks: what a form that is designed refers to on the other forms that are open.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "vcl/rtl/component.h"

namespace ide {

/// The name that leads to the component from another form: "Form2.Background1".
std::string FullNameOf(const vcl::TComponent& component);
/// The component of such a name on one of the forms; null when there is none.
vcl::TComponent* FindByFullName(const std::vector<vcl::TComponent*>& forms, std::string_view name);

/// Keeps the names of what is referred to with the form (TKeptData), so that a reference whose form
/// is closed, made anew or changed stays in the file, and holds again when there is such a
/// component.
class TFormLinks {
 public:
  using TForms = std::vector<vcl::TComponent*>;

  /// The root is another one. What its file says of references stands where the writer puts them.
  void Begin(vcl::TComponent& root);
  /// Takes what the root refers to now for what is wanted; called after each change of it. A
  /// reference that is gone while its target is there was taken away by the user.
  void Note(vcl::TComponent& root, const TForms& others);
  /// Has the references hold whose targets are there now. False when there are none to other
  /// forms, fulfilled or not.
  bool Resolve(vcl::TComponent& root, const TForms& others);
  /// The names of the target's components are those that count from now on.
  void TakeNames(vcl::TComponent& root, const vcl::TComponent& target);

 private:
  /// By the keeper, and the property's name there.
  std::map<std::pair<const vcl::TObject*, std::string>, const vcl::TComponent*> FLinked;
};

}  // namespace ide
