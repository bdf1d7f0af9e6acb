// TWriter: which properties are written and how, references and collections, and what was kept of a
// file.
#include <algorithm>
#include <tuple>
#include <utility>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/writerimpl.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

/// True when the object writes a value of its own for the property that a name with dots says.
bool WritesOwn(const TObject* object, std::string_view name) {
  const auto dot = name.find('.');
  const TPropInfo* prop = object->ClassType().FindPublished(name.substr(0, dot));
  if (!prop) return false;
  if (prop->IsEvent()) {
    return !prop->EventOf(const_cast<TObject&>(*object)).HandlerName().empty();
  }
  if (!prop->Type->ClassOf) return dot == std::string_view::npos && prop->NeedsWriting(*object);
  const TObject* inner = std::get<TObject*>(prop->Get(*object));
  return inner && (dot == std::string_view::npos || WritesOwn(inner, name.substr(dot + 1)));
}

}  // namespace

namespace {

/// True when the ancestor's file says the same of the property.
bool KeptBefore(const TKeptData* before, const TKeptProperty& kept) {
  return before && std::ranges::any_of(before->Properties, [&](const TKeptProperty& each) {
           return SameText(each.Name, kept.Name) && each.Value == kept.Value;
         });
}

}  // namespace

/// Writes what the object publishes and defines, and what is kept of it at its place in between, as
/// far as that differs from the ancestor.
void TWriter::TImpl::WriteAllProperties(TPersistent& object, const TKeptData* kept,
                                        TPersistent* ancestor, const TKeptData* keptBefore) {
  std::vector<const TKeptProperty*> way;
  if (kept) {
    for (const TKeptProperty& each : kept->Properties) {
      if (!WritesOwn(&object, each.Name) && !KeptBefore(keptBefore, each)) way.push_back(&each);
    }
  }
  const auto outer = std::pair(std::exchange(KeptLeft, std::move(way)), std::exchange(Last, {}));
  WriteProperties(object, ancestor);
  WriteKept(Last);
  // What stood behind a property that is no longer written.
  while (!KeptLeft.empty()) WriteKept(KeptLeft.front()->After);
  std::tie(KeptLeft, Last) = outer;
}

/// Writes what is kept behind the property `after`.
void TWriter::TImpl::WriteKept(const std::string& after) {
  std::string last = after;
  const auto next = [&] {
    return std::ranges::find_if(
        KeptLeft, [&](const TKeptProperty* each) { return SameText(each->After, last); });
  };
  for (auto each = next(); each != KeptLeft.end(); each = next()) {
    Output.WriteName((*each)->Name);
    Output.WriteRaw((*each)->Value);
    last = (*each)->Name;
    KeptLeft.erase(each);
  }
}

/// Writes what is kept of a reference that is not fulfilled where it stands when it is; false when
/// nothing is.
bool TWriter::TImpl::WriteKeptReference(const std::string& name) {
  const auto kept = std::ranges::find_if(
      KeptLeft, [&](const TKeptProperty* each) { return SameText(each->Name, name); });
  if (kept == KeptLeft.end()) return false;
  const TKeptProperty* reference = *kept;
  WriteKept(Last);
  if (std::ranges::count(KeptLeft, reference) > 0) WriteKept(reference->After);
  return true;
}

void TWriter::TImpl::WriteName(const std::string& name) {
  if (!KeptLeft.empty()) WriteKept(Last);
  Last = Prefix + name;
  Output.WriteName(Last);
}

void TWriter::TImpl::WriteProperties(TPersistent& object, TPersistent* ancestor) {
  for (const TPropInfo* prop : object.ClassType().Published()) {
    WriteProperty(object, *prop, ancestor);
  }
  WriteDefined(object, ancestor);
}

void TWriter::TImpl::WriteProperty(TPersistent& object, const TPropInfo& prop,
                                   TPersistent* ancestor) {
  if (prop.IsEvent()) return WriteEvent(object, prop, ancestor);
  if (prop.Type->ClassOf) return WriteObject(object, prop, ancestor);
  if (!Differs(object, prop, ancestor)) return;
  WriteName(prop.Name);
  WriteValue(prop, prop.Get(object));
}

void TWriter::TImpl::WriteEvent(TPersistent& object, const TPropInfo& prop, TPersistent* ancestor) {
  const TPropInfo* same = ancestor ? ancestor->ClassType().FindPublished(prop.Name) : nullptr;
  const std::string before =
      same && same->IsEvent() ? same->EventOf(*ancestor).HandlerName() : std::string();
  const std::string& handler = prop.EventOf(object).HandlerName();
  if (SameText(handler, before) || !prop.IsStored(object)) return;
  WriteName(prop.Name);
  handler.empty() ? Output.WriteSort(TValueType::vaNil) : Output.WriteIdent(handler);
}

namespace {

/// The object that the ancestor has in the property; null for none.
TPersistent* ObjectBefore(const TPersistent* ancestor, const TPropInfo& prop) {
  const TPropInfo* same = ancestor ? ancestor->ClassType().FindPublished(prop.Name) : nullptr;
  if (!same || same->IsEvent() || !same->Type->ClassOf) return nullptr;
  return dynamic_cast<TPersistent*>(std::get<TObject*>(same->Get(*ancestor)));
}

}  // namespace

void TWriter::TImpl::WriteObject(TPersistent& object, const TPropInfo& prop,
                                 TPersistent* ancestor) {
  if (!prop.IsStored(object)) return;
  auto* inner = dynamic_cast<TPersistent*>(std::get<TObject*>(prop.Get(object)));
  TPersistent* before = ObjectBefore(ancestor, prop);
  if (!inner) return WriteNothing(prop, before);
  if (auto* collection = dynamic_cast<TCollection*>(inner)) {
    return WriteOwnCollection(*collection, prop, before);
  }
  if (const auto* component = dynamic_cast<TComponent*>(inner)) {
    if (!prop.ReadOnly()) return WriteReference(*component, prop, before);
    // What can't be set is either a part of the object or none of its business.
    if (component->Owner() != &object) return;
  }
  WriteInner(*inner, prop.Name, before);
}

/// Writes that the property refers to nothing, where the ancestor's does to something.
void TWriter::TImpl::WriteNothing(const TPropInfo& prop, const TPersistent* before) {
  if (WriteKeptReference(Prefix + prop.Name) || !before || prop.ReadOnly()) return;
  WriteName(prop.Name);
  Output.WriteSort(TValueType::vaNil);
}

void TWriter::TImpl::WriteOwnCollection(TCollection& collection, const TPropInfo& prop,
                                        TPersistent* before) {
  auto* inherited = dynamic_cast<TCollection*>(before);
  if (!inherited && collection.Count() == 0) return;
  const auto bytes = [&](TCollection& each, bool ofAncestor) {
    return Compared(ofAncestor, [&] { WriteCollection(each); });
  };
  if (inherited && bytes(collection, false) == bytes(*inherited, true)) return;
  WriteName(prop.Name);
  WriteCollection(collection);
}

void TWriter::TImpl::WriteInner(TPersistent& inner, const std::string& name, TPersistent* before) {
  const TDepth depth(*this);
  const std::string outer = std::exchange(Prefix, Concat(Prefix, name, "."));
  WriteProperties(inner, before);
  Prefix = outer;
}

void TWriter::TImpl::WriteReference(const TComponent& component, const TPropInfo& prop,
                                    const TPersistent* before) {
  const auto* inherited = dynamic_cast<const TComponent*>(before);
  const auto reference = [this](const TComponent& each, bool ofAncestor) {
    return Compared(ofAncestor, [&] { Output.WriteRaw(ComparedReference(each)); });
  };
  if (inherited && reference(component, false) == reference(*inherited, true)) return;
  const std::string name = ReferenceTo(component);
  if (name.empty()) return;
  WriteName(prop.Name);
  Output.WriteIdent(name);
}

/// The names that lead to the component from the root, or from another form beside it; empty when a
/// name is missing on the way.
std::string TWriter::TImpl::ReferenceTo(const TComponent& component) const {
  if (ComparedScope) return ComparedReference(component);
  if (&component == Root) return std::string(FormRootReference);
  std::string path;
  for (const TComponent* each = &component; each != Root; each = each->Owner()) {
    if (each->Name().empty()) return {};
    path = path.empty() ? each->Name() : Concat(each->Name(), ".", path);
    if (!each->Owner() || each->Owner() == Root->Owner()) break;
  }
  return path;
}

void TWriter::TImpl::WriteCollection(TCollection& collection) {
  const TDepth depth(*this);
  const std::string outer = std::exchange(Prefix, {});
  Output.WriteSort(TValueType::vaCollection);
  for (int i = 0; i < collection.Count(); ++i) {
    Output.WriteSort(TValueType::vaList);
    WriteAllProperties(*collection.Items(i), collection.Items(i)->Kept());
    Output.WriteEnd();
  }
  Output.WriteEnd();
  Prefix = outer;
}

void TWriter::TImpl::WriteValue(const TPropInfo& prop, const TValue& value) {
  switch (prop.Kind()) {
    case TTypeKind::Float: return Output.WriteFloat(std::get<double>(value));
    case TTypeKind::String: return Output.WriteString(std::get<std::string>(value));
    case TTypeKind::Char:
      return Self.WriteChar(static_cast<char32_t>(std::get<std::int64_t>(value)));
    case TTypeKind::Boolean: return Output.WriteBoolean(std::get<std::int64_t>(value) != 0);
    case TTypeKind::Set: return WriteSet(prop, std::get<std::int64_t>(value));
    case TTypeKind::Enumeration:
      return Output.WriteIdent(EnumName(prop, std::get<std::int64_t>(value)));
    case TTypeKind::Integer:
    case TTypeKind::Color:
    case TTypeKind::Class:
    case TTypeKind::Component:
    case TTypeKind::Collection:
    case TTypeKind::Event:
    default: return WriteOrdinal(prop, std::get<std::int64_t>(value));
  }
}

void TWriter::TImpl::WriteOrdinal(const TPropInfo& prop, std::int64_t value) {
  const auto toIdent = prop.Type->Integer.ToIdent;
  const auto ident = toIdent ? toIdent(value) : std::nullopt;
  ident ? Output.WriteIdent(*ident) : Output.WriteInteger(value);
}

void TWriter::TImpl::WriteSet(const TPropInfo& prop, std::int64_t bits) {
  std::vector<std::string> idents;
  for (std::int64_t i = 0; bits >> i != 0; ++i) {
    if ((bits >> i & 1) != 0) idents.push_back(EnumName(prop, i));
  }
  Output.WriteSet(idents);
}

std::string TWriter::TImpl::EnumName(const TPropInfo& prop, std::int64_t value) const {
  if (const auto name = prop.Type->EnumName(value)) return std::string(*name);
  throw EWriteError(Concat(Prefix, prop.Name, " has the value ", std::to_string(value),
                           ", which is none of ", prop.TypeName()));
}

void TWriter::DefineProperty(const std::string& name, const TReaderProc&, const TWriterProc& write,
                             bool hasData) {
  if (write) FImpl->Define(name, hasData, [&] { write(*this); });
}

void TWriter::DefineBinaryProperty(const std::string& name, const TStreamProc&,
                                   const TStreamProc& write, bool hasData) {
  if (!write) return;
  FImpl->Define(name, hasData, [&] {
    TStringStream bytes;
    write(bytes);
    FImpl->Output.WriteBinary(bytes.DataString());
  });
}

}  // namespace vcl
