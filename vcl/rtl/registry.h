// The system's registry: TRegistry, which opens keys and reads and writes their values, and
// TRegIniFile, which treats a key as a settings file. Windows only.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/object.h"
#include "vcl/rtl/systemtypes.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

class TStrings;

/// What a value of the registry is.
enum TRegDataType { rdUnknown, rdString, rdExpandString, rdInteger, rdBinary };
template <>
inline constexpr TEnumText EnumText<TRegDataType>{
    "TRegDataType", "rdUnknown rdString rdExpandString rdInteger rdBinary"};

struct TRegKeyInfo {
  int NumSubKeys = 0;
  int NumValues = 0;
};

/// A current key of the registry, and its values.
///
/// A key is named by its path, with "\" between its parts: from the root key when the name begins
/// with "\" or no key is open, else from the current one. Methods that return bool return false
/// when the system refuses. The others raise ERegistryException with the names and the system's
/// reason.
class VCL_API TRegistry : public TObject {
 public:
  /// `access` is the system's mask of the rights that are asked for with every key: all of them
  /// when nothing is said.
  TRegistry() : TRegistry(AllAccess) {}
  explicit TRegistry(std::uint32_t access);
  /// Closes the current key.
  ~TRegistry() override;

  HKEY RootKey() const { return FRootKey; }
  /// At first that of the current user. Another one closes the current key.
  void SetRootKey(HKEY rootKey);
  std::uint32_t Access() const { return FAccess; }
  void SetAccess(std::uint32_t access) { FAccess = access; }
  /// True leaves it to the system when changes reach the disk; false makes CloseKey wait for it.
  bool LazyWrite() const { return FLazyWrite; }
  void SetLazyWrite(bool lazyWrite) { FLazyWrite = lazyWrite; }
  /// Null while none is open.
  HKEY CurrentKey() const { return FCurrentKey; }
  /// The current key's path below the root.
  const std::string& CurrentPath() const { return FCurrentPath; }

  /// Make the key the current one; when they return false, the former one stays. A key that is not
  /// there is made when `canCreate` says so.
  bool OpenKey(const std::string& key, bool canCreate);
  bool OpenKeyReadOnly(const std::string& key);
  void CloseKey();
  bool KeyExists(const std::string& key) const;
  /// Makes the key and those above it, unless they are there.
  bool CreateKey(const std::string& key);
  /// Deletes the key with all keys below it.
  bool DeleteKey(const std::string& key) { return Erase(key) == 0; }
  bool HasSubKeys() const { return KeyInfo().NumSubKeys > 0; }
  /// What the current key holds; nothing while none is open.
  TRegKeyInfo KeyInfo() const;
  /// Replace the list's lines by the names of the keys below the current one resp. of its values.
  void GetKeyNames(TStrings& list) const;
  void GetValueNames(TStrings& list) const;

  /// These are about values of the current key, the default one when the name is empty.
  bool ValueExists(const std::string& name) const;
  /// rdUnknown for one that is missing, too.
  TRegDataType GetDataType(const std::string& name) const;
  /// The size of a value in bytes; -1 for one that is missing.
  int GetDataSize(const std::string& name) const;
  bool DeleteValue(const std::string& name);
  /// Does nothing when there is no value of the former name, or already one of the new name.
  void RenameValue(const std::string& formerName, const std::string& newName);

  /// Reading raises ERegistryException for a value of another type. A text that is missing is read
  /// as an empty one; any other value that is missing raises. Writing raises when the system
  /// refuses.
  std::string ReadString(const std::string& name) const;
  void WriteString(const std::string& name, const std::string& value);
  void WriteExpandString(const std::string& name, const std::string& value);
  int ReadInteger(const std::string& name) const;
  void WriteInteger(const std::string& name, int value);
  bool ReadBool(const std::string& name) const { return ReadInteger(name) != 0; }
  void WriteBool(const std::string& name, bool value) { WriteInteger(name, value ? 1 : 0); }
  /// Floating numbers, dates and times are binary values of eight bytes.
  double ReadFloat(const std::string& name) const;
  void WriteFloat(const std::string& name, double value);
  TDateTime ReadDateTime(const std::string& name) const;
  void WriteDateTime(const std::string& name, TDateTime value);
  /// Reads at most `size` bytes and returns how many the value has. Raises when they are more.
  int ReadBinaryData(const std::string& name, void* buffer, int size) const;
  void WriteBinaryData(const std::string& name, const void* buffer, int size);

 protected:
  static constexpr std::uint32_t AllAccess = 0xF003F;

  /// Opens a key for a moment, without making it the current one; null when the system refuses.
  class TOpened;
  struct TValue {
    std::uint32_t Type = 0;
    std::string Bytes;
  };
  /// A value of a key; false when it is not there. Raises when the system refuses it.
  bool Load(HKEY key, const std::string& name, TValue& value) const;
  void Store(HKEY key, const std::string& name, const TValue& value);
  static TValue TextValue(const std::string& text);
  std::string TextOf(const std::string& name, const TValue& value) const;
  std::vector<std::string> ValueNames(HKEY key) const;
  /// Deletes a key with all that is below it; returns the system's number for what was wrong.
  long Erase(const std::string& key);
  /// The key that a key's name is relative to.
  HKEY Base(const std::string& key) const;
  static void Replace(TStrings& list, const std::vector<std::string>& lines);

 private:
  std::string PathOf(const std::string& key) const;
  bool MakeCurrent(const std::string& key, bool canCreate, std::uint32_t access);
  TValue Existing(const std::string& name, std::uint32_t type) const;

  HKEY FRootKey;
  HKEY FCurrentKey = nullptr;
  std::string FCurrentPath;
  std::uint32_t FAccess;
  bool FLazyWrite = true;
};

/// A key as a settings file: sections are the keys below it, with the values that TCustomIniFile
/// describes, each a text. Reading gives `otherwise` where there is no value, or where it says
/// nothing of that kind; a value that is no text raises ERegistryException.
class VCL_API TRegIniFile : public TRegistry {
 public:
  /// Opens the key of the current user, making it when it is missing. Where it may not be changed
  /// it is opened for reading. Raises ERegistryException when that is refused, too.
  explicit TRegIniFile(const std::string& fileName);
  /// The name as it was given.
  const std::string& FileName() const { return FFileName; }

  std::string ReadString(const std::string& section, const std::string& ident,
                         const std::string& otherwise) const;
  /// Writing makes the section when it is missing, and raises ERegistryException when the system
  /// refuses.
  void WriteString(const std::string& section, const std::string& ident, const std::string& value);
  int ReadInteger(const std::string& section, const std::string& ident, int otherwise) const;
  void WriteInteger(const std::string& section, const std::string& ident, int value);
  /// True for any number but 0.
  bool ReadBool(const std::string& section, const std::string& ident, bool otherwise) const;
  void WriteBool(const std::string& section, const std::string& ident, bool value);

  /// These replace the list's lines: by the names of a section's values, of all sections, and by
  /// the lines "ident=value" of a section.
  void ReadSection(const std::string& section, TStrings& list) const;
  void ReadSections(TStrings& list) const { GetKeyNames(list); }
  void ReadSectionValues(const std::string& section, TStrings& list) const;
  /// Delete the section with all that is below it; one value. What is not there is no error; a
  /// refusal raises ERegistryException.
  void EraseSection(const std::string& section);
  void DeleteKey(const std::string& section, const std::string& ident);

 protected:
  /// For descendants that open their key themselves.
  TRegIniFile(HKEY rootKey, const std::string& fileName);

 private:
  void OpenFile();

  std::string FFileName;
};

}  // namespace vcl
