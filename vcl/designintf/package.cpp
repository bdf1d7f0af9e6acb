// TPackage: loading a package's DLL, calling its entry points, and taking back what it registered.
#include "vcl/designintf/package.h"

#include <algorithm>
#include <set>
#include <utility>

#include "vcl/designintf/registered.h"
#include "vcl/forms/application.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/private/livecomponents.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

template <class Proc>
Proc EntryPoint(void* module, const char* name) {
  const FARPROC found = ::GetProcAddress(static_cast<HMODULE>(module), name);
  return reinterpret_cast<Proc>(reinterpret_cast<void*>(found));
}

/// A class lies in the module that describes it, an editor in the one that makes it.
template <class T>
bool LiesIn(const void* module, T* address) {
  return ModuleOf(reinterpret_cast<const void*>(address)) == module;
}

/// The modules of all packages.
std::set<void*>& Loaded() {
  static std::set<void*> modules;
  return modules;
}

/// Hints are shown in a window of the library's own class from now on.
void UsePlainHints() {
  SetHintWindowClass(THintWindow::Class());
  if (!HasApplication()) return;
  Application()->SetShowHint(!Application()->ShowHint());
  Application()->SetShowHint(!Application()->ShowHint());
}

}  // namespace

EPackageError::~EPackageError() = default;

TPackage::TPackage(const std::string& fileName) : FFileName(fileName) {
  // Its own folder is searched for the DLLs that it needs.
  FModule = ::LoadLibraryExW(
      ToUtf16(fileName).c_str(), nullptr,
      fileName.find_first_of("/\\") == std::string::npos ? 0 : LOAD_WITH_ALTERED_SEARCH_PATH);
  if (!FModule) {
    RaiseLastOSError<EPackageError>("The package ", fileName, " cannot be loaded");
  }
  const auto refuse = [&](const char* why) {
    Release();
    throw EPackageError(Concat("The package ", fileName, " cannot be registered: ", why));
  };
  // What the module has registered in another way is not this package's to take back.
  if (!EntryPoint<TRegisterProc>(FModule, "Register")) {
    refuse("it has no entry point named Register");
  }
  if (!Loaded().insert(FModule).second) refuse("it is loaded already");
  if (const auto problem = Register()) {
    TakeBack();
    Release();
    throw EPackageError(Concat("The package ", fileName, " cannot be registered", *problem));
  }
}

TPackage::~TPackage() {
  if (!FModule) return;
  TakeBack();
  if (LiveComponent().empty()) Release();
}

void TPackage::Unload() {
  const std::string live = LiveComponent();
  if (!live.empty()) {
    throw EPackageError(
        Concat("The package ", FFileName, " cannot be unloaded: there is still ", live));
  }
  TakeBack();
  Release();
}

/// What the package raises is code and data of its DLL: it has ended when this returns, and only
/// what it says is left.
std::optional<std::string> TPackage::Register() const {
  try {
    EntryPoint<TRegisterProc>(FModule, "Register")();
    if (const auto expert = EntryPoint<TRegisterProc>(FModule, "RegisterExpert")) expert();
    return {};
  } catch (const std::exception& error) {
    return Concat(": ", error.what());
  } catch (...) {
    return "";
  }
}

/// A component of one of the package's classes; empty for none.
std::string TPackage::LiveComponent() const {
  std::string found;
  detail::FindComponent([&](const TComponent& component) {
    const bool ours = LiesIn(FModule, &component.ClassType());
    if (ours)
      found =
          Concat(component.Name(), component.Name().empty() ? "a " : ", a ", component.ClassName());
    return ours;
  });
  return found;
}

void TPackage::TakeBack() {
  const auto ours = [this](auto* each) { return LiesIn(FModule, each); };
  std::erase_if(detail::Palette(), [&](const TPaletteEntry& entry) {
    return std::ranges::any_of(entry.Classes, ours);
  });
  std::erase_if(detail::NoIcons(), ours);
  std::erase_if(detail::Actions(), [&](const TActionEntry& entry) {
    return std::ranges::any_of(entry.Classes, ours);
  });
  std::erase_if(detail::PropertyEditorEntries(), [&](const TPropertyEditorEntry& entry) {
    return ours(entry.Editor.Make) || ours(entry.Class);
  });
  std::erase_if(detail::ComponentEditorEntries(), [&](const TComponentEditorEntry& entry) {
    return ours(entry.Editor.Make) || ours(entry.Class);
  });
  std::erase_if(detail::Experts(), [&](const TExpertClass& each) { return ours(each.Make); });
  for (const TClass* each : RegisteredClasses()) {
    if (ours(each)) UnRegisterClass(*each);
  }
  if (ours(&HintWindowClass())) UsePlainHints();
  Loaded().erase(FModule);
}

void TPackage::Release() { ::FreeLibrary(static_cast<HMODULE>(std::exchange(FModule, nullptr))); }

std::vector<const TClass*> TPackage::Classes() const {
  std::vector<const TClass*> classes;
  const auto list = EntryPoint<TListClassesProc>(FModule, "ListClasses");
  if (!list) return classes;
  list([](const TClass& aClass,
          void* context) { static_cast<std::vector<const TClass*>*>(context)->push_back(&aClass); },
       &classes);
  return classes;
}

}  // namespace vcl
