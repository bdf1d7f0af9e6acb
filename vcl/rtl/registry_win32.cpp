// TRegistry: opening keys, reading and writing their values, and what lies in them.
#include "vcl/rtl/registry.h"
#include "vcl/rtl/scope.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "vcl/rtl/private/registrykey_win32.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// Values are mostly short: this many bytes are read at the first try.
constexpr DWORD UsualSize = 1024;

/// A text as the registry holds it.
std::string WideBytes(const std::string& text) {
  const std::wstring wide = ToUtf16(text);
  return {reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * sizeof(wchar_t)};
}

/// The names that the system lists by number; `next` writes one into a buffer of the given size.
template <class Next>
std::vector<std::string> Names(Next next) {
  std::vector<std::string> names;
  std::wstring name(256, L'\0');
  for (DWORD i = 0;;) {
    auto size = static_cast<DWORD>(name.size());
    const LSTATUS status = next(i, name.data(), &size);
    if (status == ERROR_MORE_DATA && name.size() < 65536) {
      name.resize(name.size() * 2);
      continue;
    }
    if (status != ERROR_SUCCESS) return names;
    names.push_back(ToUtf8({name.data(), size}));
    ++i;
  }
}

}  // namespace

TRegistry::TRegistry(std::uint32_t access) : FRootKey(HKEY_CURRENT_USER), FAccess(access) {}

TRegistry::~TRegistry() { CloseKey(); }

void TRegistry::SetRootKey(HKEY rootKey) {
  if (rootKey == FRootKey) return;
  CloseKey();
  FRootKey = rootKey;
}

void TRegistry::CloseKey() {
  if (!FCurrentKey) return;
  if (!FLazyWrite) ::RegFlushKey(FCurrentKey);
  ::RegCloseKey(FCurrentKey);
  FCurrentKey = nullptr;
  FCurrentPath.clear();
}

HKEY TRegistry::Base(const std::string& key) const {
  return FCurrentKey && !key.starts_with('\\') ? FCurrentKey : FRootKey;
}

std::string TRegistry::PathOf(const std::string& key) const {
  if (key.starts_with('\\')) return key.substr(1);
  return FCurrentPath.empty() || key.empty() ? FCurrentPath + key : Concat(FCurrentPath, "\\", key);
}

bool TRegistry::MakeCurrent(const std::string& key, bool canCreate, std::uint32_t access) {
  const std::string path = PathOf(key);
  TOpened opened(Base(key), key, access, canCreate);
  if (!opened.Key()) return false;
  CloseKey();
  FCurrentKey = opened.Take();
  FCurrentPath = path;
  return true;
}

bool TRegistry::OpenKey(const std::string& key, bool canCreate) {
  return MakeCurrent(key, canCreate, FAccess);
}

bool TRegistry::OpenKeyReadOnly(const std::string& key) {
  return MakeCurrent(key, false, TOpened::Reading(FAccess));
}

bool TRegistry::KeyExists(const std::string& key) const {
  return TOpened(Base(key), key, TOpened::Reading(FAccess), false).Key() != nullptr;
}

bool TRegistry::CreateKey(const std::string& key) {
  return TOpened(Base(key), key, FAccess, true).Key() != nullptr;
}

long TRegistry::Erase(const std::string& key) {
  const std::wstring name = ToUtf16(TOpened::WithoutRoot(key));
  // Without a name it would be all that is below the current key.
  return name.empty() ? ERROR_INVALID_NAME : ::RegDeleteTreeW(Base(key), name.c_str());
}

TRegKeyInfo TRegistry::KeyInfo() const {
  DWORD keys = 0, values = 0;
  if (FCurrentKey) {
    ::RegQueryInfoKeyW(FCurrentKey, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                       nullptr, nullptr, nullptr, nullptr);
  }
  return {static_cast<int>(keys), static_cast<int>(values)};
}

void TRegistry::GetKeyNames(TStrings& list) const {
  Replace(list, Names([&](DWORD i, wchar_t* name, DWORD* size) {
            return ::RegEnumKeyExW(FCurrentKey, i, name, size, nullptr, nullptr, nullptr, nullptr);
          }));
}

void TRegistry::GetValueNames(TStrings& list) const { Replace(list, ValueNames(FCurrentKey)); }

std::vector<std::string> TRegistry::ValueNames(HKEY key) const {
  return Names([&](DWORD i, wchar_t* name, DWORD* size) {
    return ::RegEnumValueW(key, i, name, size, nullptr, nullptr, nullptr, nullptr);
  });
}

void TRegistry::Replace(TStrings& list, const std::vector<std::string>& lines) {
  const TUpdating updating(list);
  list.Clear();
  for (const std::string& line : lines) list.Add(line);
}

bool TRegistry::Load(HKEY key, const std::string& name, TValue& value) const {
  const std::wstring wide = ToUtf16(name);
  DWORD type = 0, size = UsualSize;
  LSTATUS status = ERROR_MORE_DATA;
  // The value may grow between two tries.
  while (status == ERROR_MORE_DATA) {
    value.Bytes.resize(size);
    status = ::RegQueryValueExW(key, wide.c_str(), nullptr, &type,
                                reinterpret_cast<BYTE*>(value.Bytes.data()), &size);
  }
  if (status == ERROR_FILE_NOT_FOUND) return false;
  if (status != ERROR_SUCCESS) TOpened::Refuse("read value", name, status);
  value.Bytes.resize(size);
  value.Type = type;
  return true;
}

void TRegistry::Store(HKEY key, const std::string& name, const TValue& value) {
  const LSTATUS status = ::RegSetValueExW(key, ToUtf16(name).c_str(), 0, value.Type,
                                          reinterpret_cast<const BYTE*>(value.Bytes.data()),
                                          static_cast<DWORD>(value.Bytes.size()));
  if (status != ERROR_SUCCESS) TOpened::Refuse("write value", name, status);
}

std::string TRegistry::TextOf(const std::string& name, const TValue& value) const {
  if (value.Type != REG_SZ && value.Type != REG_EXPAND_SZ) {
    throw ERegistryException(Concat("The registry's value \"", name, "\" is no text"));
  }
  std::wstring text(value.Bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), value.Bytes.data(), text.size() * sizeof(wchar_t));
  return ToUtf8(text.substr(0, text.find(L'\0')));
}

bool TRegistry::ValueExists(const std::string& name) const { return GetDataSize(name) >= 0; }

int TRegistry::GetDataSize(const std::string& name) const {
  DWORD size = 0;
  const LSTATUS status =
      ::RegQueryValueExW(FCurrentKey, ToUtf16(name).c_str(), nullptr, nullptr, nullptr, &size);
  return status == ERROR_SUCCESS ? static_cast<int>(size) : -1;
}

TRegDataType TRegistry::GetDataType(const std::string& name) const {
  constexpr TRegDataType types[] = {rdUnknown, rdString, rdExpandString, rdBinary, rdInteger};
  DWORD type = REG_NONE;
  ::RegQueryValueExW(FCurrentKey, ToUtf16(name).c_str(), nullptr, &type, nullptr, nullptr);
  return type < std::size(types) ? types[type] : rdUnknown;
}

bool TRegistry::DeleteValue(const std::string& name) {
  return TOpened::Done(::RegDeleteValueW(FCurrentKey, ToUtf16(name).c_str()));
}

void TRegistry::RenameValue(const std::string& formerName, const std::string& newName) {
  TValue value;
  if (ValueExists(newName) || !Load(FCurrentKey, formerName, value)) return;
  Store(FCurrentKey, newName, value);
  DeleteValue(formerName);
}

std::string TRegistry::ReadString(const std::string& name) const {
  TValue value;
  return Load(FCurrentKey, name, value) ? TextOf(name, value) : std::string();
}

TRegistry::TValue TRegistry::TextValue(const std::string& text) {
  return {REG_SZ, WideBytes(text)};
}

void TRegistry::WriteString(const std::string& name, const std::string& value) {
  Store(FCurrentKey, name, TextValue(value));
}

void TRegistry::WriteExpandString(const std::string& name, const std::string& value) {
  Store(FCurrentKey, name, {REG_EXPAND_SZ, WideBytes(value)});
}

TRegistry::TValue TRegistry::Existing(const std::string& name, std::uint32_t type) const {
  TValue value;
  if (!Load(FCurrentKey, name, value)) TOpened::Refuse("read value", name, ERROR_FILE_NOT_FOUND);
  if (value.Type != type) {
    throw ERegistryException(Concat("The registry's value \"", name, "\" is of another type"));
  }
  return value;
}

int TRegistry::ReadInteger(const std::string& name) const {
  const TValue value = Existing(name, REG_DWORD);
  int number = 0;
  std::memcpy(&number, value.Bytes.data(), std::min(value.Bytes.size(), sizeof number));
  return number;
}

void TRegistry::WriteInteger(const std::string& name, int value) {
  Store(FCurrentKey, name, {REG_DWORD, {reinterpret_cast<const char*>(&value), sizeof value}});
}

double TRegistry::ReadFloat(const std::string& name) const {
  double value = 0;
  if (ReadBinaryData(name, &value, sizeof value) != sizeof value) {
    throw ERegistryException(Concat("The registry's value \"", name, "\" is no floating number"));
  }
  return value;
}

void TRegistry::WriteFloat(const std::string& name, double value) {
  WriteBinaryData(name, &value, sizeof value);
}

TDateTime TRegistry::ReadDateTime(const std::string& name) const {
  return TDateTime(ReadFloat(name));
}

void TRegistry::WriteDateTime(const std::string& name, TDateTime value) { WriteFloat(name, value); }

int TRegistry::ReadBinaryData(const std::string& name, void* buffer, int size) const {
  const TValue value = Existing(name, REG_BINARY);
  const int found = static_cast<int>(value.Bytes.size());
  if (found > size) {
    throw ERegistryException(Concat("The registry's value \"", name, "\" has ",
                                    std::to_string(found), " bytes, more than ",
                                    std::to_string(size)));
  }
  std::memcpy(buffer, value.Bytes.data(), value.Bytes.size());
  return found;
}

void TRegistry::WriteBinaryData(const std::string& name, const void* buffer, int size) {
  Store(
      FCurrentKey, name,
      {REG_BINARY, std::string(static_cast<const char*>(buffer), static_cast<std::size_t>(size))});
}

}  // namespace vcl
