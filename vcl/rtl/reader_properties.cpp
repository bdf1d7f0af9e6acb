// TReader: reading properties, events, collections and the values that objects define themselves.
#include <algorithm>
#include <utility>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/colors.h"
#include "vcl/rtl/private/readerimpl.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

void TReader::TImpl::ReadProperties(TPersistent& object) {
  std::string after;
  while (!Input.EndOfList()) {
    ReadProperty(object, after);
    if (Part && Part->Watch.Gone()) Input.Fail("the component was freed while it was read");
  }
  Input.Take(TValueType::vaNull);
}

/// Reads a property, or keeps it; `after` is the name of the one in front.
void TReader::TImpl::ReadProperty(TPersistent& object, std::string& after) {
  const std::string path = Input.ReadName();
  const std::size_t start = Input.Mark();
  const std::size_t outerContext = Input.Context.size();
  const std::size_t outerSteps = Steps.size();
  if (!Input.Context.empty()) Input.Context += '.';
  Input.Context += path;

  const std::size_t value = Input.Position();
  const std::string* outerDefined = Defined;
  const auto keep = [&](const Exception& error) {
    Defined = outerDefined;
    return KeepProperty(object, path, value, after, error.what());
  };
  After = after;
  try {
    Placed(start, [&] { ReadPath(object, path); });
  } catch (const EPlacedReadError& error) {
    if (!keep(error)) throw;
  } catch (const EClassNotFound& error) {
    if (!keep(error)) throw;
  }

  after = path;
  Steps.resize(outerSteps);
  Input.Context.resize(outerContext);
}

void TReader::TImpl::ReadPath(TPersistent& object, const std::string& path) {
  TObject* holder = &object;
  std::string_view rest = path;
  for (auto dot = rest.find('.'); dot != std::string_view::npos; dot = rest.find('.')) {
    holder = StepInto(holder, rest.substr(0, dot));
    rest.remove_prefix(dot + 1);
  }
  ReadInto(*holder, std::string(rest));
}

/// The object behind a property, whose own properties the file sets one by one.
TObject* TReader::TImpl::StepInto(TObject* object, std::string_view name) {
  const TPropInfo* prop = object->ClassType().FindPublished(name);
  if (!prop) Input.Fail(Concat("property ", name, " does not exist"));
  if (prop->IsEvent() || !prop->Type->ClassOf) {
    Input.Fail(Concat("property ", name, " has no properties of its own"));
  }
  TObject* inner = std::get<TObject*>(prop->Get(*object));
  if (!inner) Input.Fail(Concat("property ", name, " is nil"));
  // A component that is only referred to has a place of its own in a form file.
  const auto* component = dynamic_cast<TComponent*>(inner);
  if (component && component->Owner() != object) {
    Input.Fail(Concat("property ", name, " is a reference"));
  }
  Steps.push_back({prop, -1, nullptr});
  return inner;
}

void TReader::TImpl::ReadInto(TObject& object, const std::string& name) {
  const TPropInfo* prop = object.ClassType().FindPublished(name);
  if (!prop) return ReadDefined(object, name);
  if (prop->IsEvent()) return ReadEvent(prop->EventOf(object), *prop);
  if (prop->Type->ClassOf) return ReadObject(object, *prop);
  prop->Set(object, ReadValue(*prop));
}

void TReader::TImpl::ReadDefined(TObject& object, const std::string& name) {
  const std::string* outer = std::exchange(Defined, &name);
  if (auto* persistent = dynamic_cast<TPersistent*>(&object)) persistent->DefineProperties(Self);
  if (std::exchange(Defined, outer)) Input.Fail("property does not exist");
}

template <class Read>
void TReader::TImpl::Define(const std::string& name, bool wanted, const Read& read) {
  if (!wanted || !Defined || !SameText(name, *Defined)) return;
  Defined = nullptr;
  const std::size_t start = Input.Position();
  Input.SkipValue();
  const std::size_t end = Input.Position();
  Input.SetPosition(start);
  read();
  if (Input.Position() != end) Input.Fail("the property did not read its value as it stands here");
}

void TReader::DefineProperty(const std::string& name, const TReaderProc& read, const TWriterProc&,
                             bool) {
  FImpl->Define(name, read != nullptr, [&] { read(*this); });
}

void TReader::DefineBinaryProperty(const std::string& name, const TStreamProc& read,
                                   const TStreamProc&, bool) {
  FImpl->Define(name, read != nullptr, [&] {
    TStringStream bytes{std::string(FImpl->Input.ReadBinary())};
    read(bytes);
  });
}

void TReader::TImpl::ReadEvent(TEventBase& event, const TPropInfo& prop) {
  if (Input.NextValue() == TValueType::vaNil) {
    Input.SkipValue();
    return event.Clear();
  }
  const std::string handler = Input.ReadIdent();
  if (!Root->Designing()) {
    const TMethodInfo* method = Root->ClassType().FindMethod(handler);
    if (!method) Input.Fail(Concat(Root->ClassName(), " has no method ", handler));
    if (*method->Signature != *prop.Signature) {
      Input.Fail(Concat("the parameters of ", handler, " are not those of ", prop.TypeName()));
    }
    method->Bind(*Root, event);
  }
  event.SetHandlerName(handler);
}

/// Reads a reference, which waits until the root is complete, or a collection's items.
void TReader::TImpl::ReadObject(TObject& object, const TPropInfo& prop) {
  const TValueType sort = Input.NextValue();
  if (sort == TValueType::vaCollection) {
    TObject* inner = std::get<TObject*>(prop.Get(object));
    auto* collection = dynamic_cast<TCollection*>(inner);
    if (!collection) Input.Fail(Concat("property ", prop.Name, " is no collection"));
    Steps.push_back({&prop, -1, nullptr});
    return ReadCollection(*collection);
  }
  if (prop.ReadOnly()) Input.Fail("the property is read-only");
  if (sort == TValueType::vaNil) {
    Input.SkipValue();
    return prop.Set(object, static_cast<TObject*>(nullptr));
  }
  std::string target = Input.ReadIdent();
  Fixups.push_back({Part, Steps, &prop, std::move(target), Input.Context, Input.Mark(), After});
}

/// Reads a collection that no published property leads to.
void TReader::TImpl::ReadOwnCollection(TCollection& collection) {
  // What waits for items that are replaced now has no holder any more.
  std::erase_if(Fixups, [&](const TReaderFixup& fixup) {
    return std::ranges::count(fixup.Steps, &collection, &TReaderStep::Object) > 0;
  });
  Steps.push_back({nullptr, -1, &collection});
  ReadCollection(collection);
  Steps.pop_back();
}

void TReader::TImpl::ReadCollection(TCollection& collection) {
  const TFormInput::TLevel level(Input);
  Input.Take(TValueType::vaCollection);
  const TUpdating updating(collection);
  collection.Clear();
  while (!Input.EndOfList()) ReadItem(collection);
  Input.Take(TValueType::vaNull);
}

void TReader::TImpl::ReadItem(TCollection& collection) {
  Input.Take(TValueType::vaList);
  TCollectionItem* item = collection.Add();
  const int index = item->Index();
  const std::size_t outerContext = Input.Context.size();
  Input.Context += Concat("[", std::to_string(index), "]");
  Steps.push_back({nullptr, index, nullptr});
  ReadProperties(*item);
  Steps.pop_back();
  Input.Context.resize(outerContext);
}

TValue TReader::TImpl::ReadValue(const TPropInfo& prop) {
  switch (prop.Kind()) {
    case TTypeKind::Float: return Input.ReadFloat();
    case TTypeKind::String: return Input.ReadString();
    case TTypeKind::Char: return static_cast<std::int64_t>(Self.ReadChar());
    case TTypeKind::Boolean: return static_cast<std::int64_t>(Input.ReadBoolean());
    case TTypeKind::Set: return ReadSet(prop);
    case TTypeKind::Enumeration: return Ordinal(prop, Input.ReadIdent());
    case TTypeKind::Integer:
    case TTypeKind::Color:
    case TTypeKind::Class:
    case TTypeKind::Component:
    case TTypeKind::Collection:
    case TTypeKind::Event:
    default: return ReadOrdinal(prop);
  }
}

std::int64_t TReader::TImpl::ReadOrdinal(const TPropInfo& prop) {
  if (Input.NextValue() == TValueType::vaIdent) return Ordinal(prop, Input.ReadIdent());
  const std::int64_t value = Input.ReadInteger();
  // A colour's 32 bits may be written without a sign.
  const bool color =
      prop.Kind() == TTypeKind::Color && value >= prop.Type->Min && value <= 0xFFFFFFFF;
  return color ? std::int64_t{ColorOfNumber(static_cast<std::int32_t>(value))} : value;
}

std::int64_t TReader::TImpl::ReadSet(const TPropInfo& prop) {
  std::int64_t bits = 0;
  for (const std::string& ident : Input.ReadSet()) bits |= std::int64_t{1} << Ordinal(prop, ident);
  return bits;
}

std::int64_t TReader::TImpl::Ordinal(const TPropInfo& prop, const std::string& ident) {
  const TTypeInfo& type = *prop.Type;
  const auto value =
      type.Integer.FromIdent ? type.Integer.FromIdent(ident) : type.EnumOrdinal(ident);
  if (!value) Input.Fail(Concat(ident, " is not a value of ", prop.Name, ": ", prop.TypeName()));
  return *value;
}

}  // namespace vcl
