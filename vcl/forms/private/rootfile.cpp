// Reading the form file of a form, frame or data module from the program's resources.
#include "vcl/forms/private/rootfile.h"

#include <utility>
#include <vector>

#include "vcl/forms/inheritedby.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/private/cppname.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/resources.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// A class without a table would load its ancestor's file. In its constructor a root is of the
/// class that loads it.
void CheckHasTable(const TComponent& root) {
  const TClass& known = root.ClassType();
  if (known.CppType() == typeid(root)) return;
  throw EInvalidOperation(Concat("The form class ", CppNameOf(typeid(root)),
                                 " has no ClassType of its own: it would load the form file of ",
                                 known.CppName()));
}

/// Code takes it for granted that each field leads to its component. A descendant may list a field
/// for what its ancestor's file holds.
void FillFields(TComponent& root) {
  for (const TClass* each = &root.ClassType(); each; each = each->Parent()) {
    for (const TFieldInfo& field : each->OwnFields()) {
      TComponent* const component = root.FindComponent(field.Name);
      if (component && field.Assign(root, component)) continue;
      throw EReadError(Concat("The form file of ", each->CppName(),
                              " holds no component for the field ", field.Name, ": ",
                              field.ClassOf().CppName()));
    }
  }
}

}  // namespace

void LoadRootFile(TComponent& root, HINSTANCE module) {
  RegisterStandardClasses();
  CheckHasTable(root);
  TResourceStream stream(module, UpperCase(root.ClassName()), MAKEINTRESOURCEA(10));  // RT_RCDATA
  ReadComponentFile(stream, &root, root.ClassName());
  FillFields(root);
}

void RaiseCreatedBefore(const TComponent& root) {
  throw EInvalidOperation(Concat("An ancestor of ", root.ClassName(), " took it for complete: the ",
                                 "constructor must give it InheritedBy<", root.ClassName(),
                                 ">(owner)"));
}

void EachWithoutParent(const TComponent& root, const std::function<void(TComponent*)>& each) {
  for (int i = 0; i < root.ComponentCount(); ++i) {
    if (!root.Components(i)->HasParent()) each(root.Components(i));
  }
}

void OrderWithoutParent(TComponent& root, TComponent& child, int order) {
  std::vector<TComponent*> others;
  EachWithoutParent(root, [&](TComponent* each) {
    if (each != &child) others.push_back(each);
  });
  const bool last = order < 0 || std::cmp_greater_equal(order, others.size());
  child.SetComponentIndex(root.ComponentCount());
  if (!last) child.SetComponentIndex(others[static_cast<std::size_t>(order)]->ComponentIndex());
}

// The class of what is being made.

namespace {

/// What the outermost constructor has said and nothing has taken yet.
thread_local const TClass* Said = nullptr;

}  // namespace

TWholeClass::TWholeClass() : FClass(std::exchange(Said, nullptr)) {}

// The outermost constructor speaks first. What was left by one whose parameters raised afterwards
// is of another line.
void TWholeClass::Say(const TClass& aClass) {
  if (!Said || !Said->InheritsFrom(aClass)) Said = &aClass;
}

bool TWholeClass::Is(const TClass& aClass) const {
  return !FClass || FClass == &aClass || !FClass->InheritsFrom(aClass);
}

}  // namespace vcl
