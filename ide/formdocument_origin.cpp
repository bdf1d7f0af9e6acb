// TFormDocument: what it inherits: from its ancestor, and in its frames.
#include <algorithm>
#include <utility>

#include "ide/formdocument.h"
#include "ide/handlers.h"
#include "vcl/forms/frames.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// What stands in `there` for the object wanted, which is `here` or a part of it.
const TObject* Counterpart(const TObject& here, const TObject& there, const TObject& wanted) {
  if (&here.ClassType() != &there.ClassType()) return nullptr;
  if (&here == &wanted) return &there;
  for (const TPropInfo* prop : here.ClassType().Published()) {
    if (prop->IsEvent() || !prop->Type->ClassOf) continue;
    const TObject* inner = std::get<TObject*>(prop->Get(here));
    const TObject* other = std::get<TObject*>(prop->Get(there));
    if (!inner || !other || dynamic_cast<const TComponent*>(inner)) continue;
    if (const TObject* found = Counterpart(*inner, *other, wanted)) return found;
  }
  return nullptr;
}

}  // namespace

/// A frame of the form as its own file has it; null when that is gone.
const TComponent* TFormDocument::PristineOf(const TComponent& frame) const {
  const auto [found, made] = FPristine.try_emplace(frame.FileClassName());
  if (made) found->second = FKeeper.Pristine(frame);
  return found->second.get();
}

/// A component's: a frame that the ancestor has stands there as that has it.
const TComponent* TFormDocument::AncestorOfComponent(const TComponent& component) const {
  if (&component == FRoot.get()) return FAncestor.get();
  const TComponent* owner = component.Owner();
  if (!owner) return nullptr;
  const bool outer = owner == FRoot.get();
  const TComponent* there = AncestorOfComponent(*owner);
  if (there) there = there->FindComponent(component.Name());
  if (there || (outer && !component.Inline())) return there;
  if (component.Inline()) return PristineOf(component);
  const TComponent* frame = PristineOf(*owner);
  return frame ? frame->FindComponent(component.Name()) : nullptr;
}

const TObject* TFormDocument::AncestorOf(const TObject& object) const {
  const auto in = [&](const TComponent& here) -> const TObject* {
    const TComponent* there = AncestorOfComponent(here);
    return there ? Counterpart(here, *there, object) : nullptr;
  };
  if (const auto* component = dynamic_cast<const TComponent*>(&object)) return in(*component);
  const TObject* found = nullptr;
  EachOfForm(*FRoot, [&](const TComponent& each) {
    if (!found) found = in(each);
  });
  return found;
}

bool TFormDocument::StandsOn(const std::string& className) const {
  if (!FRoot) return false;
  bool found = std::ranges::any_of(FOrigin.Files, [&](const TAncestorFile& each) {
    return SameText(each.ClassName, className);
  });
  EachOfForm(*FRoot, [&](const TComponent& each) {
    found |= each.Inline() && SameText(each.FileClassName(), className);
  });
  return found;
}

void TFormDocument::Rebase() {
  // What the form itself changes was noted when it still stood on the former files.
  const std::string state = FHistory.Present();
  const bool clean = FHistory.Clean();
  TFormOrigin origin = Base() ? OriginFrom(Base()->FileName) : FOrigin;
  TRoot ancestor = ReadAncestor(origin);
  std::swap(FOrigin, origin);
  std::swap(FAncestor, ancestor);
  try {
    Restore(state, false);
  } catch (const Exception&) {
    FOrigin = std::move(origin);
    FAncestor = std::move(ancestor);
    Restore(state, true);
    throw;
  }
  FHistory.Replace(State());
  if (clean) FHistory.MarkClean();
  Tell(OnChange);
}

std::string TFormDocument::FrameText(const std::string& fileName, const std::string& name) {
  const TFormOrigin origin = OriginFrom(fileName);
  const std::string& className = origin.Files.back().ClassName;
  if (origin.Class != &TFrame::Class()) {
    throw EReadError(Concat(fileName, ": ", className, " is no frame"));
  }
  const std::string folder = ExtractFileDir(fileName);
  if (FKeeper.Folder.empty()) FKeeper.Folder = folder;
  if (!SameText(FKeeper.Folder, folder)) {
    throw EReadError(Concat(fileName, " stands in another folder than the form: ", FKeeper.Folder));
  }
  return Concat("inline ", name, ": ", className, "\nend\n");
}

void TFormDocument::CheckFolder() {
  const std::string folder = ExtractFileDir(FFileName);
  if (FKeeper.Folder.empty()) FKeeper.Folder = folder;
  if (SameText(FKeeper.Folder, folder)) return;
  bool needs = Base() != nullptr;
  for (int i = 0; i < FRoot->ComponentCount(); ++i) needs |= FRoot->Components(i)->Inline();
  if (needs && OnProblem) {
    OnProblem(Concat(FFileName,
                     " needs the files of its ancestors and frames beside it; they are in ",
                     FKeeper.Folder));
  }
  if (!needs) FKeeper.Folder = folder;
}

}  // namespace ide
