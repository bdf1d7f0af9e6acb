// TReader: making components, their names, parents and fields.
#include <tuple>
#include <utility>

#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/private/readerimpl.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// The first of "Name1", "Name2", ... that no component of the owner has.
std::string FreeName(const TComponent& owner, const std::string& name) {
  for (int i = 1;; ++i) {
    std::string candidate = name + std::to_string(i);
    if (!owner.FindComponent(candidate)) return candidate;
  }
}

/// What a pasted component's number stands behind: its class name without the T.
std::string NameStem(const TComponent& component) {
  const std::string& className = component.FileClassName();
  return className.starts_with('T') ? className.substr(1) : className;
}

}  // namespace

TComponent* TReader::TImpl::Make(const TFormHeading& heading, TComponent* owner) {
  const TClass* found = Root ? Root->ClassType().FindFieldClass(heading.ClassName) : nullptr;
  if (!found) found = GetClass(heading.ClassName);
  if (!found) {
    throw EClassNotFound(Concat(Input.Place(Input.Mark()), "Class ", heading.ClassName,
                                " not found: no field of the form is of this class, and it is not "
                                "registered (RegisterClass)"));
  }
  if (!found->Maker().Component) {
    Input.Fail(Concat("no component of the class ", heading.ClassName, " can be made"));
  }
  return found->Maker().Component(owner);
}

TComponent* TReader::TImpl::Existing(const TFormHeading& heading) {
  TComponent* found = Scope->FindComponent(heading.Name);
  if (!found) Input.Fail(Concat("there is no inherited component ", heading.Name));
  Reparent(found);
  return found;
}

/// A descendant may have moved what it inherits.
void TReader::TImpl::Reparent(TComponent* component) {
  if (Parent && component->HasParent() && component->GetParentComponent() != Parent) {
    component->SetParentComponent(Parent);
  }
}

TComponent* TReader::TImpl::MakeFrame(const TFormHeading& heading, TComponent* owner) {
  TComponent* made = MakeOrStandIn(heading, owner);
  if (made->Inline()) return made;
  if (!Keeper) {
    const std::unique_ptr<TComponent> refused(made);
    Input.Fail(Concat(heading.ClassName, " is no frame"));
  }
  made->Keep().Inline = true;
  return made;
}

void TReader::TImpl::Enter(TComponent* component, bool made) {
  Part = &Parts.emplace_back(component, made);
  component->Include(csLoading);
  component->Include(csReading);
}

void TReader::TImpl::NameRoot(TComponent* root, const std::string& name) {
  const TComponent* owner = root->Owner();
  const TComponent* holder = owner ? owner->FindComponent(name) : nullptr;
  // An application may show the same form twice.
  const bool taken = holder && holder != root;
  Placed(Input.Mark(), [&] { root->SetName(taken ? FreeName(*owner, name + "_") : name); });
}

/// Gives a component that has just been made its name, its parent and its field.
void TReader::TImpl::Place(TComponent* component, const TFormHeading& heading) {
  const TComponent* holder = component->Owner()->FindComponent(heading.Name);
  // A frame has the name that its own file gives it.
  const bool taken = holder && holder != component;
  const bool renamed = taken && (Pasting || Keeper);
  component->SetName(renamed ? FreeName(*component->Owner(), NameStem(*component)) : heading.Name);
  if (renamed && !Pasting) {
    Keeper->Report(Concat(Input.Place(Input.Mark()), "the name ", heading.Name,
                          " is taken; the component is ", component->Name(), " now"));
  }
  if (Parent) component->SetParentComponent(Parent);
  if (Keeper && Parent && Parent != Root && !component->HasParent()) PlaceOnRoot(component);
  if (component->Owner() == Root) FillField(component, heading.Name);
}

/// A control in what holds none stands on the form; what needs no parent stays without.
void TReader::TImpl::PlaceOnRoot(TComponent* component) {
  component->SetParentComponent(Root);
  if (!component->HasParent()) return;
  Keeper->Report(Concat(Input.Place(Input.Mark()), component->Name(), " cannot stand inside ",
                        Parent->Name(), "; it stands on the form now"));
}

void TReader::TImpl::FillField(TComponent* component, const std::string& name) {
  const TFieldInfo* field = Root->ClassType().FindField(name);
  if (!field || Pasting) return;
  if (!field->Assign(*Root, component)) {
    Input.Fail(Concat("the field ", field->Name, " of ", Root->ClassName(), " takes no ",
                      component->ClassName()));
  }
  Fields.push_back(field);
}

/// Reads a component that stands inside another, from its heading to its end; null when the one
/// around it keeps it as it is.
TComponent* TReader::TImpl::ReadComponent() {
  const TFormInput::TLevel level(Input);
  const std::size_t whole = Input.Position();
  const TFormHeading heading = Input.ReadHeading();
  const std::size_t start = Input.Mark();
  const bool inside = Part && Parent && Parent != Root;
  const auto outer = std::pair(Part, std::exchange(Steps, {}));
  const std::string outerContext =
      std::exchange(Input.Context, heading.Name.empty() ? heading.ClassName : heading.Name);

  TComponent* component = nullptr;
  Placed(start, [&] {
    if (heading.Inherited && KeepLost(heading, whole)) return;
    component = heading.Inherited ? Existing(heading)
                : heading.Inline  ? MakeFrame(heading, Owner)
                                  : MakeOrStandIn(heading, Owner);
    if (inside && KeepInside(component, whole)) return void(component = nullptr);
    Enter(component, !heading.Inherited);
    if (!heading.Name.empty() && component->Owner() == Root) {
      Named.insert_or_assign(UpperCase(heading.Name), Part);
    }
    if (!heading.Inherited) Place(component, heading);
    ReadBody(component);
    if (heading.Position && Parent) Parent->SetChildOrder(component, *heading.Position);
  });

  std::tie(Part, Steps) = outer;
  Input.Context = outerContext;
  return component;
}

void TReader::TImpl::ReadBody(TComponent* component) {
  TReaderPart& part = *Part;
  component->ReadState(Self);
  if (part.Watch.Gone()) Input.Fail("the component was freed while it was read");
  component->Exclude(csReading);
}

void TReader::TImpl::ReadChildren(TComponent* component) {
  const bool standsIn = Keeper && component != Root && component->Kept() && !component->Inline();
  if (standsIn && !component->Kept()->ClassName.empty()) return KeepChildren(component->Keep());
  TComponent* childOwner = component->GetChildOwner();
  const auto outer = std::tuple(Scope, Owner, Parent);
  if (component->Inline()) Scope = component;
  Owner = childOwner ? childOwner : Scope;
  Parent = component->GetChildParent();
  while (!Input.EndOfList()) ReadComponent();
  Input.Take(TValueType::vaNull);
  std::tie(Scope, Owner, Parent) = outer;
}

}  // namespace vcl
