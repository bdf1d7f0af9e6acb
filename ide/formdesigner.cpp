// TFormDesigner: names, handlers and selection, as editors ask for them, and what happens to the
// form.
#include "ide/formdesigner.h"

#include <algorithm>

#include "ide/cppkeywords.h"
#include "ide/standins.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

TFormDesigner::TFormDesigner(TWinControl& host) : FSurface(host, FSelection), FDocument(FSurface) {
  FSelection.OnChange = [this] { SelectionChanged(); };
  FDocument.OnRootGoing = [this] { RootGoing(); };
  FDocument.OnRootMade = [this] { RootMade(); };
  FDocument.OnProblem = [this](const std::string& message) { Report(message); };
  FDocument.OnChange = [this] {
    if (Events.Changed) Events.Changed();
  };
  FSurface.Events.Changed = [this](const std::string& key) { Changed(key); };
  FSurface.Events.Drop = [this](const TClass& aClass, TWinControl& container, const TRect& place) {
    Drop(aClass, container, place);
    if (Events.Placed) Events.Placed();
  };
  FHandlers.IsOfFrame = [this](const TComponent& component, const std::string& name) {
    const auto* pristine = dynamic_cast<const TComponent*>(FDocument.AncestorOf(component));
    bool same = false;
    if (pristine) {
      EachEvent(const_cast<TComponent&>(*pristine),
                [&](const TPropInfo&, TEventBase& event) { same |= event.HandlerName() == name; });
    }
    return same;
  };
  FSurface.Events.DoubleClick = [this](TComponent& component) { EditComponent(component); };
}

TFormDesigner::~TFormDesigner() {
  // The document ends after what hears of it.
  FDocument.OnRootGoing = nullptr;
  FSelection.OnChange = nullptr;
  FSurface.SetStage(nullptr);
}

// What happens to the form.

void TFormDesigner::Changed(const std::string& key) {
  FSurface.Refresh();
  FDocument.Changed(key);
}

void TFormDesigner::Modified() { Changed(Events.ChangeKey ? Events.ChangeKey() : std::string()); }

void TFormDesigner::Report(const std::string& message) const {
  if (Events.Problem) Events.Problem(message);
}

void TFormDesigner::Try(const std::function<void()>& change) {
  try {
    change();
  } catch (const EAbort&) {
  } catch (const std::exception& error) {
    Report(error.what());
  }
  FSurface.Refresh();
}

void TFormDesigner::RootGoing() {
  FSelectedNames.clear();
  for (const TComponent* each : FSelection.Components()) FSelectedNames.push_back(NameOf(*each));
  FBusy = true;
  if (Events.RootGoing) Events.RootGoing();
  FSelection.Clear();
  FSurface.SetStage(nullptr);
}

void TFormDesigner::RootMade() {
  std::vector<TPersistent*> selected;
  for (const std::string& name : FSelectedNames) selected.push_back(FindComponent(name));
  std::erase(selected, nullptr);
  if (selected.empty()) selected.push_back(&Root());
  TComponent* ancestor = FDocument.Ancestor();
  FHandlers.SetInherited(ancestor ? THandlers().All(*ancestor)
                                  : std::map<std::string, const TPropInfo*>());
  FSurface.SetStage(&FDocument.Stage());
  FSelection.Set(selected);
  FBusy = false;
  SelectionChanged();
}

void TFormDesigner::SelectionChanged() {
  if (FBusy) return;
  FSurface.Refresh();
  if (Events.SelectionChanged) Events.SelectionChanged();
}

// Names.

bool TFormDesigner::IsNameTaken(const std::string& name) const {
  if (SameText(name, Root().Name()) || Root().FindComponent(name)) return true;
  // Those inside what stands in for another have their names too.
  for (int i = 0; i < Root().ComponentCount(); ++i) {
    const TKeptData* kept = Root().Components(i)->Kept();
    const auto same = [&](const std::string& each) { return SameText(each, name); };
    if (kept && std::ranges::any_of(kept->ChildNames, same)) return true;
  }
  return false;
}

std::string TFormDesigner::UniqueName(const std::string& className) const {
  const std::string stem = className.starts_with('T') ? className.substr(1) : className;
  for (int i = 1;; ++i) {
    std::string name = stem + IntToStr(i);
    if (!IsNameTaken(name)) return name;
  }
}

namespace {

/// Why a form file can't hold the name; empty when it can.
std::string FileProblem(const std::string& name) {
  constexpr std::size_t longest = 255;
  if (IsFormWord(name)) return Concat(name, " is a word of form files themselves");
  if (name.size() > longest) return Concat(name, " is longer than 255 characters");
  return {};
}

/// What the form's unit declares, calls or derives from itself, whatever stands on the form.
bool IsOfEveryUnit(const std::string& name) {
  constexpr std::string_view names[] = {"Class",      "ClassType", "LoadForm", "LoadFrame",
                                        "LoadModule", "TForm",     "TFrame",   "TDataModule"};
  return std::ranges::any_of(names, [&](std::string_view each) { return SameText(each, name); });
}

}  // namespace

/// Why no member of the form's class can be called so; empty when one can.
std::string TFormDesigner::MemberProblem(const std::string& name) const {
  if (std::string problem = FileProblem(name); !problem.empty()) return problem;
  if (IsCppKeyword(name)) return Concat(name, " is a word of C++ itself");
  const TAncestorFile* base = FDocument.Base();
  if (IsOfEveryUnit(name) || SameText(name, Root().FileClassName()) ||
      (base && SameText(name, base->ClassName))) {
    return Concat(name, " has a meaning of its own in the form's unit");
  }
  if (Root().ClassType().FindPublished(name)) {
    return Concat(name, " would hide the form's property of that name");
  }
  return {};
}

bool TFormDesigner::IsInherited(const TComponent& component) const {
  const TComponent* ancestor = FDocument.Ancestor();
  if (&component == &Root()) return false;
  return component.Owner() != &Root() || (ancestor && ancestor->FindComponent(component.Name()));
}

/// Where it is inherited from.
std::string TFormDesigner::OriginOf(const TComponent& component) const {
  const TComponent& owner = *component.Owner();
  return &owner == &Root() ? FDocument.Base()->ClassName : owner.FileClassName();
}

/// The form's class is called after it.
std::string TFormDesigner::RootNameProblem(const std::string& name) const {
  const std::string className = "T" + name;
  if (std::string problem = FileProblem(className); !problem.empty()) return problem;
  if (IsOfEveryUnit(className) || Root().FindComponent(className) || MethodExists(className)) {
    return Concat("The form's class could not be called ", className, ": the name is taken");
  }
  return FileProblem(name);
}

std::string TFormDesigner::NameProblem(const TComponent& component, const std::string& name) const {
  if (name.empty()) return "It has no name, so that no handler can reach it";
  if (&component == &Root()) return RootNameProblem(name);
  if (IsInherited(component) && name != component.Name()) {
    return Concat(component.Name(), " is inherited and keeps its name");
  }
  if (MethodExists(name)) return Concat(name, " is the name of a handler, too");
  return MemberProblem(name);
}

std::vector<std::string> TFormDesigner::ComponentNames(const TClass& aClass) const {
  std::vector<std::string> names;
  if (Root().InheritsFrom(aClass)) names.push_back(Root().Name());
  for (int i = 0; i < Root().ComponentCount(); ++i) {
    const TComponent* each = Root().Components(i);
    if (each->InheritsFrom(aClass) && !each->Name().empty()) names.push_back(each->Name());
  }
  std::ranges::sort(names);
  for (const TComponent* form : FDocument.Others()) {
    if (form->InheritsFrom(aClass)) names.push_back(form->Name());
    for (int i = 0; i < form->ComponentCount(); ++i) {
      const TComponent* each = form->Components(i);
      if (each->InheritsFrom(aClass) && !each->Name().empty()) names.push_back(FullNameOf(*each));
    }
  }
  return names;
}

namespace {

/// The component of a name such as "Sender.Street" inside the owner; null when there is none.
TComponent* FindInside(const TComponent& owner, const std::string& name) {
  const std::size_t dot = name.find('.');
  TComponent* found = owner.FindComponent(name.substr(0, dot));
  return found && dot != std::string::npos ? FindInside(*found, name.substr(dot + 1)) : found;
}

}  // namespace

TComponent* TFormDesigner::FindComponent(const std::string& name) const {
  if (SameText(name, Root().Name())) return &Root();
  TComponent* own = FindInside(Root(), name);
  return own ? own : FindByFullName(FDocument.Others(), name);
}

std::string TFormDesigner::NameOf(const TComponent& component) const {
  if (&component == &Root() || component.Owner() == &Root()) return component.Name();
  const std::string name = FullNameOf(component);
  const std::string own = Root().Name() + ".";
  const bool inFrame =
      FindInside(Root(), name.substr(std::min(own.size(), name.size()))) == &component;
  return inFrame ? name.substr(own.size()) : name;
}

// Handlers.

std::vector<std::string> TFormDesigner::MethodNames(const TPropInfo& event) const {
  std::vector<std::string> names;
  for (const auto& [name, of] : FHandlers.All(Root())) {
    if (*of->Signature == *event.Signature) names.push_back(name);
  }
  return names;
}

bool TFormDesigner::MethodExists(const std::string& name) const {
  return FHandlers.Find(Root(), name) != nullptr;
}

void TFormDesigner::CheckMethodName(const std::string& name) const {
  if (!IsValidIdent(name))
    throw EComponentError(Concat("'", Shown(name), "' is no name for a handler"));
  if (MethodExists(name) || IsNameTaken(name)) {
    throw EComponentError(Concat("The name ", name, " is taken"));
  }
  if (const std::string problem = MemberProblem(name); !problem.empty()) {
    throw EComponentError(problem);
  }
}

void TFormDesigner::CreateMethod(const std::string& name, const TPropInfo& event) {
  CheckMethodName(name);
  FHandlers.Add(name, event);
}

void TFormDesigner::RenameMethod(const std::string& name, const std::string& newName) {
  if (!SameText(name, newName)) CheckMethodName(newName);
  FHandlers.Rename(Root(), name, newName);
  Modified();
}

void TFormDesigner::ShowMethod(const std::string& name) {
  if (Events.ShowMethod) Events.ShowMethod(name);
}

// What is selected.

std::vector<TPersistent*> TFormDesigner::Selection() const {
  if (FSelection.Empty()) return {&Root()};
  return FSelection.All();
}

void TFormDesigner::SetSelection(const std::vector<TPersistent*>& selection) {
  FSelection.Set(selection);
}

void TFormDesigner::ShowCollection(TPersistent& owner, TCollection& collection,
                                   const std::string& property) {
  if (Events.ShowCollection) Events.ShowCollection(owner, collection, property);
}

void TFormDesigner::EditComponent(TComponent& component) {
  if (IsStandIn(component)) return;
  Try([&] { MakeComponentEditor(*this, component)->Edit(); });
}

}  // namespace ide
