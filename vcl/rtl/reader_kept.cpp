// TReader: keeping what it can't use (keptdata.h).
#include <algorithm>

#include "vcl/rtl/collection.h"
#include "vcl/rtl/private/readerimpl.h"
#include "vcl/rtl/text.h"

namespace vcl {

TReaderKeeper::~TReaderKeeper() = default;

TComponent* TReaderKeeper::MakeFrame(const std::string&, TComponent*) { return nullptr; }

TComponent* TReaderKeeper::FindForm(std::string_view) const { return nullptr; }

void TReader::SetKeeper(TReaderKeeper* keeper) { FImpl->Keeper = keeper; }

/// What the object keeps; null for an object that can keep nothing.
TKeptData* TReader::TImpl::KeptOf(TObject* object) {
  if (auto* component = dynamic_cast<TComponent*>(object)) return &component->Keep();
  if (auto* item = dynamic_cast<TCollectionItem*>(object)) return &item->Keep();
  return nullptr;
}

/// Keeps the property whose value begins at `value`, and goes on behind it; false when it can't.
bool TReader::TImpl::KeepProperty(TObject& object, const std::string& name, std::size_t value,
                                  const std::string& after, const std::string& error) {
  TKeptData* kept = Keeper ? KeptOf(&object) : nullptr;
  if (!kept || (Part && Part->Watch.Gone())) return false;
  Input.SetPosition(value);
  Input.SkipValue();
  // A descendant's file gives what its ancestor's has given.
  std::erase_if(kept->Properties, [&](const auto& each) { return SameText(each.Name, name); });
  kept->Properties.push_back({name, Input.Slice(value, Input.Position()), after});
  // What the component stands in for has been reported.
  if (kept->ClassName.empty() || &object == Root) Keeper->Report(error);
  return true;
}

/// Keeps a reference to what isn't there.
bool TReader::TImpl::KeepReference(const TReaderFixup& fixup, const std::string& error) {
  if (!Keeper) return false;
  TObject* keeper = fixup.Part->Component;
  TObject* object = keeper;
  std::string name;
  for (const TReaderStep& step : fixup.Steps) {
    if (step.Prop) {
      name += step.Prop->Name + ".";
      object = std::get<TObject*>(step.Prop->Get(*object));
    } else {
      object = step.Object ? step.Object : dynamic_cast<TCollection&>(*object).Items(step.Item);
    }
    if (!dynamic_cast<TCollectionItem*>(object)) continue;
    keeper = object;
    name.clear();
  }
  const std::size_t end = Input.Position();
  const bool kept = KeepProperty(*keeper, name + fixup.Prop->Name, fixup.At, fixup.After, error);
  Input.SetPosition(end);
  return kept;
}

/// Whether the properties that come next give a width.
bool TReader::TImpl::HasWidth() {
  const std::size_t start = Input.Position();
  bool found = false;
  while (!found && !Input.EndOfList()) {
    found = SameText(Input.ReadName(), "Width");
    Input.SkipValue();
  }
  Input.SetPosition(start);
  return found;
}

/// Makes the component, or what stands in for it.
TComponent* TReader::TImpl::MakeOrStandIn(const TFormHeading& heading, TComponent* owner) {
  if (!Keeper) return Make(heading, owner);
  const std::size_t at = Input.Mark();
  try {
    TComponent* frame = heading.Inline ? Keeper->MakeFrame(heading.ClassName, owner) : nullptr;
    if (!frame) return Make(heading, owner);
    frame->Keep().ClassName = heading.ClassName;
    return frame;
  } catch (const EAbort&) {
    throw;
  } catch (const EClassNotFound& error) {
    Keeper->Report(error.what());
  } catch (const EPlacedReadError& error) {
    Keeper->Report(error.what());
  } catch (const std::exception& error) {
    Keeper->Report(
        Concat(Input.Place(at), "no ", heading.ClassName, " can be made: ", error.what()));
  }
  TComponent* standIn = Keeper->MakeStandIn(owner, HasWidth());
  standIn->Keep().ClassName = heading.ClassName;
  return standIn;
}

void TReader::TImpl::SkipComponent(TKeptData& kept) {
  const TFormInput::TLevel level(Input);
  kept.ChildNames.push_back(Input.ReadHeading().Name);
  while (!Input.EndOfList()) {
    Input.ReadName();
    Input.SkipValue();
  }
  Input.Take(TValueType::vaNull);
  while (!Input.EndOfList()) SkipComponent(kept);
  Input.Take(TValueType::vaNull);
}

/// Keeps the component that begins at `whole` with the one around it, when that does not take what
/// stands in for it, as a data set takes nothing but fields; the stand-in is gone then.
bool TReader::TImpl::KeepInside(TComponent* standIn, std::size_t whole) {
  if (!Keeper || !standIn->Kept() || standIn->Kept()->ClassName.empty()) return false;
  standIn->SetParentComponent(Parent);
  if (standIn->GetParentComponent() == Parent) return false;
  delete standIn;
  Input.SetPosition(whole);
  TKeptData& kept = Parent->Keep();
  SkipComponent(kept);
  kept.Children += Input.Slice(whole, Input.Position());
  return true;
}

/// Keeps what the file changes of a component that its ancestor has no longer, with the one around.
bool TReader::TImpl::KeepLost(const TFormHeading& heading, std::size_t whole) {
  if (!Keeper || !Parent || Scope->FindComponent(heading.Name)) return false;
  Keeper->Report(
      Concat(Input.Place(Input.Mark()), "there is no inherited component ", heading.Name));
  Input.SetPosition(whole);
  TKeptData& kept = Parent->Keep();
  SkipComponent(kept);
  kept.Children += Input.Slice(whole, Input.Position());
  return true;
}

/// Keeps the components inside a stand-in, which only the class that is missing could hold.
void TReader::TImpl::KeepChildren(TKeptData& kept) {
  const std::size_t start = Input.Position();
  while (!Input.EndOfList()) SkipComponent(kept);
  kept.Children += Input.Slice(start, Input.Position());
  Input.Take(TValueType::vaNull);
}

}  // namespace vcl
