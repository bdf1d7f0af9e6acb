// TPackage: loading a package's DLL, calling its entry points, and taking back what it registered.
#include "vcl/designintf/package.h"

#include <algorithm>
#include <set>
#include <utility>

#include "vcl/designintf/registered.h"
#include "vcl/forms/application.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/classregistry.h"
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
    ::FreeLibrary(static_cast<HMODULE>(FModule));
    throw EPackageError(Concat("The package ", fileName, " cannot be registered: ", why));
  };
  // What the module has registered in another way is not this package's to take back.
  if (!EntryPoint<TRegisterProc>(FModule, "Register")) {
    refuse("it has no entry point named Register");
  }
  if (!Loaded().insert(FModule).second) refuse("it is loaded already");
  try {
    Register();
  } catch (const std::exception& error) {
    TakeBack();
    throw EPackageError(Concat("The package ", fileName, " cannot be registered: ", error.what()));
  } catch (...) {
    TakeBack();
    throw EPackageError(Concat("The package ", fileName, " cannot be registered"));
  }
}

TPackage::~TPackage() { TakeBack(); }

void TPackage::Register() {
  EntryPoint<TRegisterProc>(FModule, "Register")();
  if (const auto expert = EntryPoint<TRegisterProc>(FModule, "RegisterExpert")) expert();
}

void TPackage::TakeBack() {
  const auto ours = [this](auto* each) { return LiesIn(FModule, each); };
  std::erase_if(detail::Palette(), [&](const TPaletteEntry& entry) {
    return std::ranges::any_of(entry.Classes, ours);
  });
  std::erase_if(detail::NoIcons(), ours);
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
  ::FreeLibrary(static_cast<HMODULE>(std::exchange(FModule, nullptr)));
}

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
