// TQELDataStore: reading and writing values in the registry or an INI file; TQELStoreData.
#include "qel/core/Qeltstoredata.h"

#include <algorithm>
#include <cstdint>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/inifile.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

/// The root keys in the order of TQELRootKey. The handle that is left out is that of performance
/// data.
constexpr std::uint32_t RootKeys[] = {0x80000000, 0x80000001, 0x80000002,
                                      0x80000003, 0x80000005, 0x80000006};

/// The system extends the handles' sign where they are wider.
HKEY HandleOf(TQELRootKey rootKey) {
  const auto handle = static_cast<std::int32_t>(RootKeys[rootKey]);
  return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(handle));
}

template <class T>
void Adopt(std::unique_ptr<T>& member, T* object) {
  if (!object) return member->Assign(nullptr);  // Refuses it.
  if (object != member.get()) member.reset(object);
}

}  // namespace

const vcl::TClass& TQELRegistry::Class() {
  using T = TQELRegistry;
  using namespace vcl;
  static const TClass info = Describe<T, TPersistent>(
      "qel::TQELRegistry", "qel/core/Qeltstoredata.h",
      {
          Property<&T::Rootkey, &T::SetRootkey>("Rootkey").Default(hkeyCurrentUser),
          Property<&T::Path, &T::SetPath>("Path"),
          Property<&T::Section, &T::SetSection>("Section"),
      });
  return info;
}

const vcl::TClass& TQELIniFile::Class() {
  using T = TQELIniFile;
  using namespace vcl;
  static const TClass info =
      Describe<T, TPersistent>("qel::TQELIniFile", "qel/core/Qeltstoredata.h",
                               {
                                   Property<&T::Filename, &T::SetFilename>("Filename"),
                                   Property<&T::Section, &T::SetSection>("Section"),
                               });
  return info;
}

const vcl::TClass& TQELDataStore::Class() {
  using T = TQELDataStore;
  using namespace vcl;
  static const TClass info = Describe<T, TPersistent>(
      "qel::TQELDataStore", "qel/core/Qeltstoredata.h",
      {
          Property<&T::ErrorInt, &T::SetErrorInt>("ErrorInt").Default(0),
          Property<&T::ErrorStr, &T::SetErrorStr>("ErrorStr"),
          Property<&T::ErrorBool, &T::SetErrorBool>("ErrorBool").Default(false),
          Event<&T::OnError>("OnError"),
          Property<&T::Enabled, &T::SetEnabled>("Enabled")
              .Default(true)
              .DefaultIf<&T::EnabledHasDefault>(),
          Property<&T::Datatype, &T::SetDatatype>("Datatype").Default(sRegistry),
          Property<&T::Registry, &T::SetRegistry>("Registry"),
          Property<&T::Inifile, &T::SetInifile>("Inifile"),
      });
  return info;
}

TQELDataStore::TQELDataStore()
    : FRegistry(std::make_unique<TQELRegistry>()), FInifile(std::make_unique<TQELIniFile>()) {}

TQELDataStore::~TQELDataStore() = default;

void TQELDataStore::SetRegistry(TQELRegistry* registry) { Adopt(FRegistry, registry); }

void TQELDataStore::SetInifile(TQELIniFile* inifile) { Adopt(FInifile, inifile); }

const std::string& TQELDataStore::GetSection() const {
  return FDatatype == sIniFile ? FInifile->Section() : FRegistry->Section();
}

// The property itself is changed, whichever kind of store is used: a form that is saved afterwards
// has the path as the registry wants it.
void TQELDataStore::DoFix() {
  std::string path = FRegistry->Path();
  std::ranges::replace(path, '/', '\\');
  FRegistry->SetPath(path);
}

/// False when there is nothing to do. The event may free the store: with false, it is not touched
/// any more.
bool TQELDataStore::Ready() {
  if (!FEnabled) return false;
  if (!GetSection().empty()) return true;
  OnError(this);
  return false;
}

/// Calls the operation with the opened registry or file and the section.
template <class Operation>
void TQELDataStore::Run(Operation operation) const {
  if (FDatatype == sIniFile) {
    if (FInifile->Filename().empty()) return;
    vcl::TIniFile file(FInifile->Filename());
    file.SetMustRead(FStrict);
    operation(file, FInifile->Section());
  } else {
    if (FRegistry->Path().empty()) return;
    // The path is opened, and made, under the current user before the root key is set. Another root
    // closes it again, so that the section is a key directly below that root. This is kept: it is
    // where programs have their values.
    vcl::TRegIniFile file(FRegistry->Path());
    file.SetRootKey(HandleOf(FRegistry->Rootkey()));
    operation(file, FRegistry->Section());
  }
}

template <class Operation>
void TQELDataStore::Perform(Operation operation) {
  DoFix();
  if (Ready()) Run(operation);
}

// That a stored value which is equal to the error value is told as an error is kept: handlers may
// count on it, and who wants to tell them apart chooses an error value that is never stored.
std::string TQELDataStore::ReadStr(const std::string& ident) {
  DoFix();
  std::string error = FErrorStr;
  if (!Ready()) return error;
  std::string value = error;
  bool read = false;
  Run([&](auto& file, const std::string& section) {
    value = file.ReadString(section, ident, error);
    read = true;
  });
  if (read && value == error) OnError(this);
  return value;
}

int TQELDataStore::ReadInt(const std::string& ident) {
  DoFix();
  const int error = FErrorInt;
  if (!Ready()) return error;
  int value = error;
  bool read = false;
  Run([&](auto& file, const std::string& section) {
    value = file.ReadInteger(section, ident, error);
    read = true;
  });
  if (read && value == error) OnError(this);
  return value;
}

bool TQELDataStore::ReadBool(const std::string& ident) {
  bool value = FErrorBool;
  Perform([&](auto& file, const std::string& section) {
    value = file.ReadBool(section, ident, value);
  });
  return value;
}

void TQELDataStore::ReadStrs(vcl::TStringList& list) {
  Perform([&](auto& file, const std::string& section) { file.ReadSectionValues(section, list); });
}

void TQELDataStore::WriteStr(const std::string& ident, const std::string& value) {
  Perform([&](auto& file, const std::string& section) { file.WriteString(section, ident, value); });
}

void TQELDataStore::WriteInt(const std::string& ident, int value) {
  Perform(
      [&](auto& file, const std::string& section) { file.WriteInteger(section, ident, value); });
}

void TQELDataStore::WriteBool(const std::string& ident, bool value) {
  Perform([&](auto& file, const std::string& section) { file.WriteBool(section, ident, value); });
}

// Alone among the operations it leaves the path as it is: a path with "/" is one key's name then,
// which has no such section, so that nothing is deleted before the store has been used.
void TQELDataStore::Erase() {
  if (!Ready()) return;
  Run([](auto& file, const std::string& section) { file.EraseSection(section); });
}

void TQELDataStore::DeleteKey(const std::string& ident) {
  Perform([&](auto& file, const std::string& section) { file.DeleteKey(section, ident); });
}

const vcl::TClass& TQELStoreData::Class() {
  using T = TQELStoreData;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELStoreData", "qel/core/Qeltstoredata.h",
                                 {
                                     Event<&T::OnError>("OnError"),
                                     Property<&T::DataStore, &T::SetDataStore>("DataStore"),
                                 });
  return info;
}

TQELStoreData::TQELStoreData(vcl::TComponent* owner)
    : TQELComponent(owner), FDataStore(std::make_unique<TQELDataStore>()) {}

TQELStoreData::~TQELStoreData() { AnnounceEnd(); }

void TQELStoreData::SetDataStore(TQELDataStore* dataStore) { Adopt(FDataStore, dataStore); }

}  // namespace qel
