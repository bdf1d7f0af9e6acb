// The data store: what its operations do in the real registry and in real INI files.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "qel/qel.h"
#include "tests/support/texts.h"
#include "vcl/rtl/win32.h"

namespace {

using qel::TQELDataStore;
using testing::UnorderedElementsAre;

constexpr const char* TestKey = "Software\\QEL test of the data store";
constexpr const char* OtherRootSection = "QEL test of another root";
const std::string FileName =
    (std::filesystem::temp_directory_path() / "qel storedata.ini").string();

bool KeyExists(HKEY root, const std::string& path) {
  HKEY key = nullptr;
  if (::RegOpenKeyExA(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  ::RegCloseKey(key);
  return true;
}

/// A store of each kind, at a place that is empty before and after.
class DataStore : public testing::TestWithParam<qel::TQELDatatype> {
 protected:
  DataStore() {
    Clean();
    Store.Registry()->SetPath(std::string(TestKey) + "\\Path");
    Store.Inifile()->SetFilename(FileName);
    Store.SetDatatype(GetParam());
    Store.OnError = [this](vcl::TObject* sender) {
      EXPECT_EQ(sender, &Store);
      ++Errors;
    };
  }
  ~DataStore() override { Clean(); }
  static void Clean() {
    ::RegDeleteTreeA(HKEY_CURRENT_USER, TestKey);
    std::filesystem::remove(FileName);
  }
  int TakeErrors() { return std::exchange(Errors, 0); }
  bool SetSection(const std::string& section) {
    Store.Registry()->SetSection(section);
    Store.Inifile()->SetSection(section);
    return true;
  }
  /// Every operation but Erase, on a store that does nothing.
  std::vector<std::function<void()>> Operations() {
    return {[this] { EXPECT_EQ(Store.ReadStr("a"), "Error"); },
            [this] { EXPECT_EQ(Store.ReadInt("b"), 0); },
            [this] { EXPECT_FALSE(Store.ReadBool("c")); },
            [this] { Store.WriteStr("a", "x"); },
            [this] { Store.WriteInt("b", 1); },
            [this] { Store.WriteBool("c", true); },
            [this] { Store.DeleteKey("a"); },
            [this] {
              vcl::TStringList list;
              list.Add("kept");
              Store.ReadStrs(list);
              EXPECT_EQ(list.Count(), 1);
            }};
  }
  void ExpectNothingThere() {
    EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, TestKey));
    EXPECT_FALSE(std::filesystem::exists(FileName));
  }

  TQELDataStore Store;
  int Errors = 0;
};

INSTANTIATE_TEST_SUITE_P(Kinds, DataStore, testing::Values(qel::sRegistry, qel::sIniFile),
                         [](const auto& each) { return each.param ? "IniFile" : "Registry"; });

TEST_P(DataStore, WhatIsWrittenIsRead) {
  Store.WriteStr("Name", "\xC3\xA4\xE2\x82\xAC; = text");
  Store.WriteInt("Number", -7);
  Store.WriteBool("Yes", true);
  Store.WriteBool("No", false);
  Store.WriteStr("Gone", "x");
  Store.DeleteKey("Gone");
  EXPECT_EQ(Store.ReadStr("name"), "\xC3\xA4\xE2\x82\xAC; = text");
  EXPECT_EQ(Store.ReadInt("NUMBER"), -7);
  EXPECT_TRUE(Store.ReadBool("Yes"));
  EXPECT_TRUE(Store.ReadBool("Number"));
  EXPECT_FALSE(Store.ReadBool("No"));
  vcl::TStringList list;
  list.Add("former");
  Store.ReadStrs(list);
  EXPECT_THAT(Lines(list), UnorderedElementsAre("Name=\xC3\xA4\xE2\x82\xAC; = text", "Number=-7",
                                                "Yes=1", "No=0"));
  EXPECT_EQ(TakeErrors(), 0);
  Store.Erase();
  Store.ReadStrs(list);
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(TakeErrors(), 0);
}

TEST_P(DataStore, ValuesEqualToTheErrorValueAreErrorsLikeMissingOnes) {
  EXPECT_EQ(Store.ReadStr("s"), "Error");
  EXPECT_EQ(Store.ReadInt("i"), 0);
  EXPECT_EQ(TakeErrors(), 2);
  Store.WriteStr("s", "Error");
  Store.WriteStr("i", "no number");
  EXPECT_EQ(Store.ReadStr("s"), "Error");
  EXPECT_EQ(Store.ReadInt("i"), 0);
  EXPECT_EQ(TakeErrors(), 2);
  Store.WriteStr("s", "error");
  Store.SetErrorInt(5);
  Store.WriteInt("i", 0);
  EXPECT_EQ(Store.ReadStr("s"), "error");
  EXPECT_EQ(Store.ReadInt("i"), 0);
  Store.SetErrorBool(true);
  EXPECT_TRUE(Store.ReadBool("missing"));
  EXPECT_TRUE(Store.ReadBool("s"));
  EXPECT_EQ(TakeErrors(), 0);
}

TEST_P(DataStore, NothingIsDoneWhileDisabledOrWithoutAPlace) {
  const auto expectNothing = [&](int errors, const char* when) {
    SCOPED_TRACE(when);
    Store.Erase();
    for (const auto& operation : Operations()) operation();
    EXPECT_EQ(TakeErrors(), 9 * errors);
    ExpectNothingThere();
  };
  Store.SetEnabled(false);
  expectNothing(0, "disabled");
  Store.SetEnabled(true);
  SetSection("");
  expectNothing(1, "without section");
  SetSection("Section");
  Store.Registry()->SetPath("");
  Store.Inifile()->SetFilename("");
  expectNothing(0, "without path or file name");
}

TEST_P(DataStore, EveryOperationButEraseCorrectsThePath) {
  const std::string wrong = "Software/QEL test of the data store/x";
  const std::string right = std::string(TestKey) + "\\x";
  Store.SetEnabled(false);  // Even then.
  for (const auto& operation : Operations()) {
    Store.Registry()->SetPath(wrong);
    operation();
    EXPECT_EQ(Store.Registry()->Path(), right);
  }
  Store.Registry()->SetPath(wrong);
  Store.Erase();
  EXPECT_EQ(Store.Registry()->Path(), wrong);
}

TEST_P(DataStore, TheHandlerMayFreeItsStore) {
  for (const bool section : {true, false}) {
    auto* store = new TQELDataStore;
    store->Registry()->SetPath(std::string(TestKey) + "\\Path");
    store->Inifile()->SetFilename(FileName);
    store->SetDatatype(GetParam());
    if (!section) store->Registry()->SetSection(""), store->Inifile()->SetSection("");
    store->OnError = [](vcl::TObject* sender) { delete sender; };
    EXPECT_EQ(store->ReadStr("missing"), "Error");
  }
}

TEST(DataStoreRegistry, AnotherRootHasTheSectionDirectlyBelowIt) {
  // The classes of a prefix of one's own; the path is left made, and unused, under the user.
  TQELDataStore store;
  store.Registry()->SetPath(TestKey);
  store.Registry()->SetSection(OtherRootSection);
  store.Registry()->SetRootkey(qel::hkeyClassesRoot);
  store.WriteStr("a", "1");
  EXPECT_EQ(store.ReadStr("a"), "1");
  EXPECT_TRUE(KeyExists(HKEY_CLASSES_ROOT, OtherRootSection));
  EXPECT_TRUE(KeyExists(HKEY_CURRENT_USER, TestKey));
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, std::string(TestKey) + "\\" + OtherRootSection));
  store.Erase();
  EXPECT_FALSE(KeyExists(HKEY_CLASSES_ROOT, OtherRootSection));
  {
    qel::TQELRegIniFile file(std::string("\\") + OtherRootSection + "\\Path", HKEY_CLASSES_ROOT);
    file.WriteInteger("Section", "a", 3);
    EXPECT_EQ(file.RootKey(), HKEY_CLASSES_ROOT);
    EXPECT_TRUE(file.LazyWrite());
  }
  EXPECT_TRUE(KeyExists(HKEY_CLASSES_ROOT, std::string(OtherRootSection) + "\\Path\\Section"));
  ::RegDeleteTreeA(HKEY_CLASSES_ROOT, OtherRootSection);
  ::RegDeleteTreeA(HKEY_CURRENT_USER, TestKey);
}

TEST(StoreData, TakesOverAnotherPlace) {
  qel::TQELStoreData data(nullptr);
  auto* other = new qel::TQELRegistry;
  data.DataStore()->SetRegistry(other);
  EXPECT_EQ(data.DataStore()->Registry(), other);
}

}  // namespace
