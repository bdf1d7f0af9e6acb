// TReader: references between components, fulfilled when all of them are there.
#include "vcl/rtl/collection.h"
#include "vcl/rtl/private/readerimpl.h"
#include "vcl/rtl/text.h"

namespace vcl {

/// The object that a reference is to be put into; null when it is no longer there.
TObject* TReader::TImpl::Holder(const TReaderFixup& fixup) const {
  if (fixup.Part->Watch.Gone()) return nullptr;
  TObject* object = fixup.Part->Component;
  for (const TReaderStep& step : fixup.Steps) {
    if (step.Object) {
      object = step.Object;
    } else if (step.Prop) {
      if (object->ClassType().FindPublished(step.Prop->Name) != step.Prop) return nullptr;
      object = std::get<TObject*>(step.Prop->Get(*object));
    } else {
      const auto* collection = dynamic_cast<TCollection*>(object);
      if (!collection || step.Item >= collection->Count()) return nullptr;
      object = collection->Items(step.Item);
    }
    if (!object) return nullptr;
  }
  return object->ClassType().FindPublished(fixup.Prop->Name) == fixup.Prop ? object : nullptr;
}

void TReader::TImpl::ResolveReferences(bool required) {
  for (const TReaderFixup& fixup : std::exchange(Fixups, {})) {
    TObject* holder = Holder(fixup);
    // A later value of the file took the object's place.
    if (!holder) continue;
    Input.Context = fixup.Context;
    TComponent* target = Find(fixup.Target);
    if (!target && !required) continue;
    try {
      if (!target) Input.FailAt(fixup.At, Concat("there is no component ", fixup.Target));
      Placed(fixup.At, [&] { fixup.Prop->Set(*holder, static_cast<TObject*>(target)); });
    } catch (const EPlacedReadError& error) {
      if (!KeepReference(fixup, error.what())) throw;
    }
  }
  Input.Context.clear();
}

/// The component of a dotted name.
TComponent* TReader::TImpl::Find(std::string_view path) const {
  TComponent* found = FindFirst(path.substr(0, path.find('.')));
  while (found && path.find('.') != std::string_view::npos) {
    path.remove_prefix(path.find('.') + 1);
    found = found->FindComponent(path.substr(0, path.find('.')));
  }
  return found;
}

/// A component of the file or of the root, the root itself, or another form or data module: of the
/// root's owner, or one that the keeper knows.
TComponent* TReader::TImpl::FindFirst(std::string_view name) const {
  if (SameText(name, FormRootReference)) return Root;
  if (const auto named = Named.find(UpperCase(name)); named != Named.end()) {
    return named->second->Watch.Gone() ? nullptr : named->second->Component;
  }
  if (TComponent* owned = Root->FindComponent(name)) return owned;
  if (SameText(name, RootName)) return Root;
  TComponent* beside = Root->Owner() ? Root->Owner()->FindComponent(name) : nullptr;
  return beside || !Keeper ? beside : Keeper->FindForm(name);
}

}  // namespace vcl
