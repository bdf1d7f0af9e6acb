// TRegIniFile: a key of the registry treated as a settings file.
#include "vcl/rtl/convert.h"
#include "vcl/rtl/private/registrykey_win32.h"

namespace vcl {

TRegIniFile::TRegIniFile(const std::string& fileName) : TRegIniFile(HKEY_CURRENT_USER, fileName) {}

TRegIniFile::TRegIniFile(HKEY rootKey, const std::string& fileName) : FFileName(fileName) {
  SetRootKey(rootKey);
  SetLazyWrite(true);
  OpenFile();
}

void TRegIniFile::OpenFile() {
  if (OpenKey(FFileName, true) || OpenKeyReadOnly(FFileName)) return;
  const TOpened refused(RootKey(), FFileName, Access(), true);
  TOpened::Refuse("open key", FFileName, refused.Status());
}

std::string TRegIniFile::ReadString(const std::string& section, const std::string& ident,
                                    const std::string& otherwise) const {
  const TOpened key(Base(section), section, TOpened::Reading(Access()), false);
  TValue value;
  return key.Key() && Load(key.Key(), ident, value) ? TextOf(ident, value) : otherwise;
}

void TRegIniFile::WriteString(const std::string& section, const std::string& ident,
                              const std::string& value) {
  const TOpened key(Base(section), section, KEY_WRITE, true);
  if (!key.Key()) TOpened::Refuse("open key", section, key.Status());
  Store(key.Key(), ident, TextValue(value));
}

int TRegIniFile::ReadInteger(const std::string& section, const std::string& ident,
                             int otherwise) const {
  return StrToIntDef(ReadString(section, ident, {}), otherwise);
}

void TRegIniFile::WriteInteger(const std::string& section, const std::string& ident, int value) {
  WriteString(section, ident, IntToStr(value));
}

bool TRegIniFile::ReadBool(const std::string& section, const std::string& ident,
                           bool otherwise) const {
  return ReadInteger(section, ident, otherwise) != 0;
}

void TRegIniFile::WriteBool(const std::string& section, const std::string& ident, bool value) {
  WriteString(section, ident, value ? "1" : "0");
}

void TRegIniFile::ReadSection(const std::string& section, TStrings& list) const {
  const TOpened key(Base(section), section, TOpened::Reading(Access()), false);
  Replace(list, key.Key() ? ValueNames(key.Key()) : std::vector<std::string>());
}

void TRegIniFile::ReadSectionValues(const std::string& section, TStrings& list) const {
  const TOpened key(Base(section), section, TOpened::Reading(Access()), false);
  std::vector<std::string> lines;
  if (key.Key()) {
    for (const std::string& name : ValueNames(key.Key())) {
      TValue value;
      if (Load(key.Key(), name, value)) lines.push_back(Concat(name, "=", TextOf(name, value)));
    }
  }
  Replace(list, lines);
}

void TRegIniFile::EraseSection(const std::string& section) {
  const LSTATUS status = TRegistry::Erase(section);
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) {
    TOpened::Refuse("delete key", section, status);
  }
}

void TRegIniFile::DeleteKey(const std::string& section, const std::string& ident) {
  const TOpened key(Base(section), section, KEY_SET_VALUE, false);
  LSTATUS status = key.Status();
  if (key.Key()) status = ::RegDeleteValueW(key.Key(), ToUtf16(ident).c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) {
    TOpened::Refuse("delete value", ident, status);
  }
}

}  // namespace vcl
