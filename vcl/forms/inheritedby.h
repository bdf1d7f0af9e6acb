// How a constructor says that the form it makes is of a descendant's class, whose own form file is
// still to come.
#pragma once

#include "vcl/rtl/api.h"
#include "vcl/rtl/object.h"

namespace vcl {

/// The class that a form, frame or data module under construction is of in the end.
class VCL_API TWholeClass {
 public:
  /// Takes what the constructor of a descendant has said last.
  TWholeClass();
  /// True when the class is the one, or when nobody has said another that descends from it.
  bool Is(const TClass& aClass) const;
  static void Say(const TClass& aClass);

 private:
  const TClass* FClass;
};

/// For the constructor of a class that loads a form file of its own beside its ancestor's: hands
/// the owner on to the ancestor's constructor, whose file is then not the last one.
///
///     TOrderForm(TComponent* owner) : TBaseForm(InheritedBy<TOrderForm>(owner)) { LoadForm(); }
template <class Descendant>
TComponent* InheritedBy(TComponent* owner) {
  TWholeClass::Say(Descendant::Class());
  return owner;
}

}  // namespace vcl
