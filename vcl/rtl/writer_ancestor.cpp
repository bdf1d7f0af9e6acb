// TWriter: what a component descends from, and what differs from that.
#include <algorithm>

#include "vcl/rtl/private/writerimpl.h"
#include "vcl/rtl/text.h"

namespace vcl {

/// What the component is in the ancestor of the root or of the frame around; null for a new one.
TComponent* TWriter::TImpl::AncestorOf(const TComponent& component) const {
  if (&component == Root) return Ancestry.Root;
  if (!AncestorScope || component.Owner() != Scope) return nullptr;
  TComponent* found = AncestorScope->FindComponent(component.Name());
  return found && SameText(found->FileClassName(), component.FileClassName()) ? found : nullptr;
}

/// The frame as its own form file makes it; null when nothing makes one.
std::unique_ptr<TComponent> TWriter::TImpl::MakePristine(const TComponent& frame) const {
  if (Ancestry.MakeFrame) return Ancestry.MakeFrame(frame);
  const auto make = frame.ClassType().Maker().Component;
  return std::unique_ptr<TComponent>(make ? make(nullptr) : nullptr);
}

/// The names of what stands inside the ancestor, in its order, as far as it still stands here.
std::vector<std::string> TWriter::TImpl::OrderOf(TComponent& ancestor,
                                                 const std::vector<TComponent*>& children) {
  std::vector<std::string> order;
  ancestor.GetChildren(
      [&](const TComponent* each) {
        const bool here = std::ranges::any_of(children, [&](const TComponent* child) {
          return SameText(child->Name(), each->Name());
        });
        if (here) order.push_back(each->Name());
      },
      AncestorScope);
  return order;
}

bool TWriter::TImpl::Differs(const TPersistent& object, const TPropInfo& prop,
                             const TPersistent* ancestor) const {
  const TPropInfo* same = ancestor ? ancestor->ClassType().FindPublished(prop.Name) : nullptr;
  if (!same || same->Type != prop.Type) return prop.NeedsWriting(object);
  return !prop.ReadOnly() && prop.IsStored(object) && prop.Get(object) != same->Get(*ancestor);
}

/// The names that lead to the component inside the scope, or outside it, which no name looks like.
std::string TWriter::TImpl::ComparedReference(const TComponent& component) const {
  std::string path;
  const TComponent* each = &component;
  for (; each && each != ComparedScope && each != ComparedRoot; each = each->Owner()) {
    path = Concat(each->Name(), ".", path);
  }
  return each == ComparedScope ? path : Concat(each ? "^" : "^^", path);
}

void TWriter::TImpl::WriteDefined(TPersistent& object, TPersistent* ancestor) {
  TDefined defined;
  if (ancestor) {
    const TSetFor collecting(Collected, &defined);
    ancestor->DefineProperties(Self);
  }
  const TSetFor writing(Collected, nullptr);
  const TSetFor inherited(Inherited, ancestor ? &defined : nullptr);
  object.DefineProperties(Self);
}

}  // namespace vcl
