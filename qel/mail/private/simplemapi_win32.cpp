// Whether the system has Simple MAPI, loading its library, and its entry points.
#include "qel/mail/private/simplemapi.h"

#include <cstring>
#include <mutex>

namespace qel {
namespace {

constexpr const wchar_t* SubsystemKey = L"SOFTWARE\\Microsoft\\Windows Messaging Subsystem";

/// From Windows NT 3.51 on the registry says whether there is MAPI; before, the system's settings
/// file did.
bool RegistrySpeaksOfMapi() {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  ::GetVersionExW(&version);
  return version.dwMajorVersion > 3 || (version.dwMajorVersion == 3 && version.dwMinorVersion > 51);
}

bool RegistryHasMapi() {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, SubsystemKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return false;
  }
  wchar_t value[9] = {};
  DWORD size = sizeof value;
  const LSTATUS status =
      ::RegQueryValueExW(key, L"MAPI", nullptr, nullptr, reinterpret_cast<BYTE*>(value), &size);
  ::RegCloseKey(key);
  // The registry ends a text with a zero only when it was written with one.
  return status == ERROR_SUCCESS &&
         std::wstring(value, ::wcsnlen(value, size / sizeof *value)) == L"1";
}

/// While it lives, no box of the system tells the user of files that can't be opened.
class TQuietErrors {
 public:
  TQuietErrors() : FFormer(::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX)) {}
  ~TQuietErrors() { ::SetErrorMode(FFormer); }
  TQuietErrors(const TQuietErrors&) = delete;
  TQuietErrors& operator=(const TQuietErrors&) = delete;

 private:
  UINT FFormer;
};

HMODULE LoadMapi() {
  const TQuietErrors quiet;
  const HMODULE library = ::LoadLibraryW(L"mapi32");
  return library ? library : ::LoadLibraryW(L"mapi32.dll");
}

}  // namespace

bool MapiIsInstalled() {
  return RegistrySpeaksOfMapi() ? RegistryHasMapi() : ::GetProfileIntW(L"Mail", L"MAPI", 0) != 0;
}

std::shared_ptr<const TMapiLibrary> TMapiLibrary::Open() {
  static std::mutex guard;
  static std::weak_ptr<const TMapiLibrary> loaded;
  const std::lock_guard lock(guard);
  if (auto library = loaded.lock()) return library;
  const HMODULE module = LoadMapi();
  if (!module) return nullptr;
  std::shared_ptr<const TMapiLibrary> library(new TMapiLibrary(module));
  loaded = library;
  return library;
}

TMapiLibrary::TMapiLibrary(HMODULE library) : FLibrary(library) {
  Resolve(Logon, "MAPILogon");
  Resolve(Logoff, "MAPILogoff");
  Resolve(SendMail, "MAPISendMail");
  Resolve(ResolveName, "MAPIResolveName");
  Resolve(FreeBuffer, "MAPIFreeBuffer");
  // Nobody calls these, but what lacks one of them is no mail library.
  for (const char* name :
       {"MAPIFindNext", "MAPIReadMail", "MAPIDeleteMail", "MAPIAddress", "MAPISaveMail"}) {
    FARPROC entry = nullptr;
    Resolve(entry, name);
  }
}

TMapiLibrary::~TMapiLibrary() { ::FreeLibrary(FLibrary); }

template <class TheEntry>
void TMapiLibrary::Resolve(TheEntry& entry, const char* name) {
  entry = reinterpret_cast<TheEntry>(reinterpret_cast<void*>(::GetProcAddress(FLibrary, name)));
  FComplete = FComplete && entry;
}

}  // namespace qel
