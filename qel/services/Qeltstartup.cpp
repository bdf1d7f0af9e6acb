// TQELStartup: its table, and its entry.
#include "qel/services/Qeltstartup.h"

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// The system's list of what is started, once or always.
class TRunList {
 public:
  TRunList(TQELStartupScope scope, bool once, REGSAM access)
      : FKey(std::string("\\Software\\Microsoft\\Windows\\CurrentVersion\\Run") +
             (once ? "Once" : "")),
        FRegistry(access) {
    FRegistry.SetRootKey(scope == ssUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE);
  }
  /// False when the list is not there, or not for this program to open.
  bool Open(bool canCreate) { return FRegistry.OpenKey(FKey, canCreate); }
  const std::string& Key() const { return FKey; }
  vcl::TRegistry* operator->() { return &FRegistry; }

 private:
  std::string FKey;
  vcl::TRegistry FRegistry;
};

[[noreturn]] void Refuse(const TRunList& list) {
  throw vcl::ERegistryException(
      vcl::Concat("The registry's key ", list.Key(), " is not to be changed"));
}

}  // namespace

const vcl::TClass& TQELStartup::Class() {
  using T = TQELStartup;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELStartup", "qel/services/Qeltstartup.h",
      {
          Property<&T::Command, &T::SetCommand>("Command").Default(""),
          Property<&T::EntryName, &T::SetEntryName>("EntryName").Default(""),
          Property<&T::Once, &T::SetOnce>("Once").Default(false),
          Property<&T::Scope, &T::SetScope>("Scope").Default(ssUser),
      });
  return info;
}

TQELStartup::TQELStartup(vcl::TComponent* owner) : TQELComponent(owner) {}

TQELStartup::~TQELStartup() { AnnounceEnd(); }

std::string TQELStartup::Entry() const {
  if (!FEntryName.empty()) return FEntryName;
  return vcl::ChangeFileExt(vcl::ExtractFileName(vcl::BaseApplication().ExeName()), {});
}

std::string TQELStartup::Line() const {
  return FCommand.empty() ? vcl::Concat("\"", vcl::BaseApplication().ExeName(), "\"") : FCommand;
}

// What can't be read, or is no text, does not start the command.
bool TQELStartup::Active() const try {
  TRunList list(FScope, FOnce, KEY_QUERY_VALUE);
  return list.Open(false) && vcl::AnsiSameText(list->ReadString(Entry()), Line());
} catch (const vcl::ERegistryException&) {
  return false;
}

void TQELStartup::SetActive(bool active) {
  if (active) {
    Install();
  } else {
    Remove();
  }
}

/// Does so; false, with the reason kept, when the registry refuses.
template <class Change>
bool TQELStartup::Try(Change change) try {
  FLastError.clear();
  if (Designing()) throw vcl::ERegistryException("The designer changes nothing of the system");
  change();
  return true;
} catch (const vcl::ERegistryException& error) {
  FLastError = error.what();
  return false;
}

// The new entry comes first: when it is refused, the former one is still there.
bool TQELStartup::Install() {
  return Try([this] {
    TRunList list(FScope, FOnce, KEY_QUERY_VALUE | KEY_SET_VALUE);
    if (!list.Open(true)) Refuse(list);
    list->WriteString(Entry(), Line());
    Erase(!FOnce);
  });
}

bool TQELStartup::Remove() {
  return Try([this] {
    Erase(false);
    Erase(true);
  });
}

void TQELStartup::Erase(bool once) const {
  TRunList reading(FScope, once, KEY_QUERY_VALUE);
  if (!reading.Open(false) || !reading->ValueExists(Entry())) return;
  TRunList list(FScope, once, KEY_QUERY_VALUE | KEY_SET_VALUE);
  if (!list.Open(false) || !list->DeleteValue(Entry())) Refuse(list);
}

}  // namespace qel
