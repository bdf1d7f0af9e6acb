// Settings that components keep between runs: TQELDataStore, which reads and writes them in the
// registry or in an INI file, and TQELStoreData, which puts one on a form.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Where a data store keeps its values.
enum TQELDatatype { sRegistry, sIniFile };
/// The root keys of the registry; that of performance data is none of them.
enum TQELRootKey {
  hkeyClassesRoot,
  hkeyCurrentUser,
  hkeyLocalMachine,
  hkeyUsers,
  hkeyCurrentConfig,
  hkeyDynData
};

/// Where in the registry values are: in the key Path\Section below the root key.
class QEL_API TQELRegistry : public vcl::TPersistent {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELRootKey Rootkey() const { return FRootkey; }
  /// The root key below which Path stands.
  void SetRootkey(TQELRootKey rootkey) { FRootkey = rootkey; }
  /// The key below the root key, without the section.
  const std::string& Path() const { return FPath; }
  /// A "/" in it becomes a "\" when the store is used next.
  void SetPath(const std::string& path) { FPath = path; }
  const std::string& Section() const { return FSection; }
  /// The key below Path that holds the values.
  void SetSection(const std::string& section) { FSection = section; }

 private:
  TQELRootKey FRootkey = hkeyCurrentUser;
  std::string FSection = "MySection";
  std::string FPath = "Software\\Company\\Product";
};

/// Where in an INI file values are.
class QEL_API TQELIniFile : public vcl::TPersistent {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const std::string& Filename() const { return FFilename; }
  /// A name without a folder is a file in the Windows folder.
  void SetFilename(const std::string& filename) { FFilename = filename; }
  const std::string& Section() const { return FSection; }
  /// The section of the file that holds the values.
  void SetSection(const std::string& section) { FSection = section; }

 private:
  std::string FFilename = "MyFile.ini";
  std::string FSection = "MySection";
};

/// Reads and writes named values in one section. Nothing is kept open or in memory between calls:
/// two stores of the same place see each other's values at once.
///
/// With an empty section each call does nothing but raise OnError; with an empty path or file name,
/// and while the store is not enabled, it does nothing. A read that does nothing gives the error
/// value. What the registry or the file refuses raises ERegistryException or EIniFileException.
class QEL_API TQELDataStore : public vcl::TPersistent {
 public:
  TQELDataStore();
  ~TQELDataStore() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  bool Enabled() const { return FEnabled; }
  /// False: nothing is written, and reads give the error values.
  void SetEnabled(bool enabled) { FEnabled = enabled; }
  /// Sets Enabled as the owner gives it to its store when it makes it. Where that is false, form
  /// files always hold it.
  void SetInitialEnabled(bool enabled) { FEnabled = FInitialEnabled = enabled; }
  bool EnabledHasDefault() const { return FInitialEnabled; }
  TQELDatatype Datatype() const { return FDatatype; }
  /// Whether the values are kept in the registry or in an INI file.
  void SetDatatype(TQELDatatype datatype) { FDatatype = datatype; }
  /// The place in the registry, for sRegistry.
  TQELRegistry* Registry() const { return FRegistry.get(); }
  /// The place in an INI file, for sIniFile.
  TQELIniFile* Inifile() const { return FInifile.get(); }
  /// These take the object itself, which the store owns from then on, and free the former one; they
  /// copy nothing. Null is refused with EConvertError.
  void SetRegistry(TQELRegistry* registry);
  void SetInifile(TQELIniFile* inifile);
  int ErrorInt() const { return FErrorInt; }
  /// What ReadInt gives where there is no such value.
  void SetErrorInt(int value) { FErrorInt = value; }
  const std::string& ErrorStr() const { return FErrorStr; }
  /// What ReadStr gives where there is no such value.
  void SetErrorStr(const std::string& value) { FErrorStr = value; }
  bool ErrorBool() const { return FErrorBool; }
  /// What ReadBool gives where there is no such value.
  void SetErrorBool(bool value) { FErrorBool = value; }

  /// ReadStr gives ErrorStr and ReadInt ErrorInt where there is no such value, and raise OnError;
  /// they do so, too, for a value that is equal to the error value. ReadBool gives ErrorBool and
  /// raises nothing.
  std::string ReadStr(const std::string& ident);
  int ReadInt(const std::string& ident);
  bool ReadBool(const std::string& ident);
  /// Replaces the list's lines by one "ident=value" for each value of the section.
  void ReadStrs(vcl::TStringList& list);
  void WriteStr(const std::string& ident, const std::string& value);
  void WriteInt(const std::string& ident, int value);
  void WriteBool(const std::string& ident, bool value);
  /// Deletes the whole section.
  void Erase();
  /// Deletes one value.
  void DeleteKey(const std::string& ident);

  /// While it lives, a read of an INI file that is there and can't be read raises
  /// EIniFileException, so that its values are not taken for missing ones, nor waited for one by
  /// one. Where handlers may free the store, `holder` is freed with it.
  class TStrictReading {
   public:
    explicit TStrictReading(TQELDataStore& store, const vcl::TWatched* holder = nullptr)
        : FStrict(store.FStrict, true, holder) {}

   private:
    vcl::TSetFor<bool> FStrict;
  };

  /// A value is not there or equals its error value, or Section is empty; the sender is the store.
  vcl::TNotifyEvent OnError;

 private:
  const std::string& GetSection() const;
  void DoFix();
  bool Ready();
  template <class Operation>
  void Perform(Operation operation);
  template <class Operation>
  void Run(Operation operation) const;

  bool FEnabled = true;
  bool FInitialEnabled = true;
  bool FStrict = false;
  TQELDatatype FDatatype = sRegistry;
  std::unique_ptr<TQELRegistry> FRegistry;
  std::unique_ptr<TQELIniFile> FInifile;
  int FErrorInt = 0;
  std::string FErrorStr = "Error";
  bool FErrorBool = false;
};

/// A data store for a form; its methods are those of DataStore.
class QEL_API TQELStoreData : public TQELComponent {
 public:
  explicit TQELStoreData(vcl::TComponent* owner);
  ~TQELStoreData() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The store, which says where the values are and reads and writes them.
  TQELDataStore* DataStore() const { return FDataStore.get(); }
  /// Takes the store itself, as its setters take their objects.
  void SetDataStore(TQELDataStore* dataStore);

  std::string ReadStr(const std::string& ident) { return FDataStore->ReadStr(ident); }
  int ReadInt(const std::string& ident) { return FDataStore->ReadInt(ident); }
  bool ReadBool(const std::string& ident) { return FDataStore->ReadBool(ident); }
  void ReadStrs(vcl::TStringList& list) { FDataStore->ReadStrs(list); }
  void WriteStr(const std::string& ident, const std::string& value) {
    FDataStore->WriteStr(ident, value);
  }
  void WriteInt(const std::string& ident, int value) { FDataStore->WriteInt(ident, value); }
  void WriteBool(const std::string& ident, bool value) { FDataStore->WriteBool(ident, value); }
  void Erase() { FDataStore->Erase(); }
  void DeleteKey(const std::string& ident) { FDataStore->DeleteKey(ident); }

  /// Never raised: errors are told by DataStore's own event. Form files that assign it are still
  /// read.
  vcl::TNotifyEvent OnError;

 private:
  std::unique_ptr<TQELDataStore> FDataStore;
};

/// A key of any root key as a settings file.
class QEL_API TQELRegIniFile : public vcl::TRegIniFile {
 public:
  /// Opens the key below the root key, making it when it is missing, or for reading where it may
  /// not be changed. Raises ERegistryException when that is refused, too.
  TQELRegIniFile(const std::string& fileName, HKEY rootKey) : TRegIniFile(rootKey, fileName) {}
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELDatatype>{"TQELDatatype", "sRegistry sIniFile"};
template <>
inline constexpr TEnumText EnumText<qel::TQELRootKey>{
    "TQELRootKey",
    "hkeyClassesRoot hkeyCurrentUser hkeyLocalMachine hkeyUsers hkeyCurrentConfig hkeyDynData"};

}  // namespace vcl
