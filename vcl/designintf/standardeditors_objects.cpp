// The editors of objects, references and events.
#include <algorithm>

#include "vcl/designintf/standardeditors.h"
#include "vcl/designintf/textdialog.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// The object behind the property; null when there is none.
template <class T>
T* Behind(const TEditedProperty& edited) {
  return dynamic_cast<T*>(std::get<TObject*>(edited.Property->Get(*edited.Object)));
}

/// By way of the setter where there is one, so that the owner hears of it.
void AssignOne(const TEditedProperty& edited, const TPersistent& source) {
  if (edited.Property->ReadOnly()) return Behind<TPersistent>(edited)->Assign(&source);
  edited.Property->Set(*edited.Object, const_cast<TPersistent*>(&source));
}

}  // namespace

// Objects with properties of their own.

TPropertyAttributes TClassProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paReadOnly, paRevertable};
}

TPropertyEditors TClassProperty::GetProperties() const {
  std::vector<TObject*> objects;
  for (int i = 0; i < PropCount(); ++i) {
    if (TObject* object = ObjectValue(i)) objects.push_back(object);
  }
  if (static_cast<int>(objects.size()) < PropCount()) return {};
  return PropertiesOf(Designer(), objects,
                      [](const TPropInfo& property) { return !property.IsEvent(); });
}

bool TClassProperty::AllEqual() const {
  if (PropCount() == 1) return true;
  const auto inside = GetProperties();
  return std::ranges::all_of(inside, [](const auto& each) { return each->AllEqual(); });
}

bool TClassProperty::IsDefault() const {
  const auto inside = GetProperties();
  return std::ranges::all_of(inside, [](const auto& each) { return each->IsDefault(); });
}

bool TClassProperty::CanRevert() const {
  const auto inside = GetProperties();
  return std::ranges::any_of(inside, [](const auto& each) { return each->CanRevert(); });
}

void TClassProperty::Revert() {
  for (const auto& each : GetProperties()) {
    if (each->CanRevert() && !each->IsDefault()) each->Revert();
  }
}

void TClassProperty::AssignAll(const TPersistent& source) {
  const auto keep = [this](const TEditedProperty& edited) {
    std::shared_ptr<TPersistent> copy = NewValue();
    copy->Assign(Behind<TPersistent>(edited));
    return [edited, copy] { AssignOne(edited, *copy); };
  };
  ChangeAll(keep, [&](const TEditedProperty& edited) { AssignOne(edited, source); });
}

std::unique_ptr<TPersistent> TClassProperty::NewValue() const {
  const TClass& aClass = ObjectValue() ? ObjectValue()->ClassType() : PropInfo().Type->ClassOf();
  std::unique_ptr<TObject> made(aClass.Maker().Plain ? aClass.Maker().Plain() : nullptr);
  auto* persistent = dynamic_cast<TPersistent*>(made.get());
  if (!persistent) throw EPropertyError(Concat("A ", aClass.Name(), " cannot be copied here"));
  static_cast<void>(made.release());
  return std::unique_ptr<TPersistent>(persistent);
}

// Lists of texts.

TPropertyAttributes TStringsProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paReadOnly, paRevertable};
}

void TStringsProperty::Edit() {
  TStringList lines;
  lines.Assign(Behind<TStrings>(Edited().front()));
  if (EditLines(GetName(), lines)) AssignAll(lines);
}

bool TStringsProperty::AllEqual() const {
  const auto* first = Behind<TStrings>(Edited().front());
  return std::ranges::all_of(Edited(), [&](const TEditedProperty& each) {
    const auto* lines = Behind<TStrings>(each);
    return lines && first && lines->Equals(*first);
  });
}

bool TStringsProperty::IsDefault() const {
  return std::ranges::all_of(Edited(), [](const TEditedProperty& each) {
    const auto* lines = Behind<TStrings>(each);
    return !lines || lines->Count() == 0;
  });
}

void TStringsProperty::Revert() { AssignAll(TStringList()); }

std::unique_ptr<TPersistent> TStringsProperty::NewValue() const {
  return std::make_unique<TStringList>();
}

// Collections.

TPropertyAttributes TCollectionProperty::GetAttributes() const { return {paDialog, paReadOnly}; }

void TCollectionProperty::Edit() {
  auto* owner = dynamic_cast<TPersistent*>(Edited().front().Object);
  auto* collection = Behind<TCollection>(Edited().front());
  if (owner && collection) Designer().ShowCollection(*owner, *collection, GetName());
}

bool TCollectionProperty::IsDefault() const {
  const auto* collection = Behind<TCollection>(Edited().front());
  return !collection || collection->Count() == 0;
}

// References.

TPropertyAttributes TChosenProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList, paRevertable};
}

std::string TComponentProperty::GetValue() const {
  const auto* component = Behind<TComponent>(Edited().front());
  return component ? Designer().NameOf(*component) : std::string();
}

void TComponentProperty::SetValue(const std::string& text) {
  const std::string name(Trim(text));
  if (name.empty()) return Revert();
  TComponent* component = Designer().FindComponent(name);
  if (!component || !component->InheritsFrom(PropInfo().Type->ClassOf())) {
    throw EConvertError(
        Concat("There is no ", PropInfo().Type->Name(), " with the name '", name, "'"));
  }
  SetAll(static_cast<TObject*>(component));
}

void TComponentProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  for (const std::string& name : Designer().ComponentNames(PropInfo().Type->ClassOf())) each(name);
}

void TComponentProperty::Revert() { SetAll(static_cast<TObject*>(nullptr)); }

// Events.

std::string TMethodProperty::HandlerOf(const TEditedProperty& edited) const {
  return edited.Property->EventOf(*edited.Object).HandlerName();
}

std::string TMethodProperty::GetValue() const { return HandlerOf(Edited().front()); }

void TMethodProperty::SetValue(const std::string& text) {
  const std::string name(Trim(text));
  if (name.empty() || Designer().MethodExists(name)) return SetHandlers(name);
  const std::string former = ShownValue();
  if (former.empty()) {
    Designer().CreateMethod(name, PropInfo());
  } else {
    Designer().RenameMethod(former, name);
  }
  SetHandlers(name);
}

void TMethodProperty::SetHandlers(const std::string& name) {
  const auto names = Designer().MethodNames(PropInfo());
  if (!name.empty() && std::ranges::find(names, name) == names.end()) {
    throw EPropertyError(Concat(name, " cannot handle ", GetName(), ": it takes other parameters"));
  }
  const auto keep = [this](const TEditedProperty& edited) {
    return [edited, former = HandlerOf(edited)] {
      edited.Property->EventOf(*edited.Object).SetHandlerName(former);
    };
  };
  ChangeAll(keep, [&](const TEditedProperty& edited) {
    edited.Property->EventOf(*edited.Object).SetHandlerName(name);
  });
}

void TMethodProperty::GetValues(const std::function<void(const std::string&)>& each) const {
  for (const std::string& name : Designer().MethodNames(PropInfo())) each(name);
}

void TMethodProperty::Edit() {
  if (ShownValue().empty()) SetValue(NewHandlerName());
  Designer().ShowMethod(GetValue());
}

bool TMethodProperty::AllEqual() const {
  return std::ranges::all_of(
      Edited(), [this](const TEditedProperty& each) { return HandlerOf(each) == GetValue(); });
}

namespace {

/// The handler that the object inherits; empty for none.
std::string InheritedHandler(const TEditedProperty& edited, const TDesigner& designer) {
  const TObject* ancestor = designer.AncestorOf(*edited.Object);
  if (!ancestor) return {};
  return edited.Property->EventOf(const_cast<TObject&>(*ancestor)).HandlerName();
}

}  // namespace

bool TMethodProperty::IsDefault() const {
  return std::ranges::all_of(Edited(), [this](const TEditedProperty& each) {
    return SameText(HandlerOf(each), InheritedHandler(each, Designer()));
  });
}

void TMethodProperty::Revert() { SetHandlers(InheritedHandler(Edited().front(), Designer())); }

namespace {

/// What a handler is named after: the form, frame or data module as such, the component, behind the
/// frames that it is in, or the class of another object.
std::string SubjectOf(const TObject& object, const TDesigner& designer) {
  if (&object == &designer.Root()) {
    for (const char* each : {"Frame", "DataModule"}) {
      if (object.ClassName() == std::string("T") + each) return each;
    }
    return "Form";
  }
  if (const auto* component = dynamic_cast<const TComponent*>(&object)) {
    const TComponent* owner = component->Owner();
    const bool inFrame = owner && owner->Inline() && owner != &designer.Root();
    return (inFrame ? SubjectOf(*owner, designer) : std::string()) + component->Name();
  }
  return object.ClassName().substr(object.ClassName().starts_with('T') ? 1 : 0);
}

}  // namespace

std::string TMethodProperty::NewHandlerName() const {
  const std::string event = GetName().starts_with("On") ? GetName().substr(2) : GetName();
  const std::string wanted = SubjectOf(*Edited().front().Object, Designer()) + event;
  const auto fitting = Designer().MethodNames(PropInfo());
  const auto taken = [&](const std::string& name) {
    return Designer().MethodExists(name) && std::ranges::find(fitting, name) == fitting.end();
  };
  std::string name = wanted;
  for (int number = 2; taken(name); ++number) name = wanted + IntToStr(number);
  return name;
}

}  // namespace vcl
