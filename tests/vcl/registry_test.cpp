// The real registry, under a key of the test's own.
#include <gmock/gmock.h>

#include "tests/support/importpatch.h"
#include "vcl/rtl/registry.h"
#include "vcl/vcl.h"

namespace {

using vcl::ERegistryException;
using vcl::TRegIniFile;
using vcl::TRegistry;

constexpr const char* Key = "Software\\QEL test of the registry";

class Registry : public testing::Test {
 protected:
  Registry() { ::RegDeleteTreeA(HKEY_CURRENT_USER, Key); }
  ~Registry() override { ::RegDeleteTreeA(HKEY_CURRENT_USER, Key); }
};

TEST_F(Registry, KeysAreOpenedRelativeToTheCurrentOne) {
  TRegistry registry;
  EXPECT_FALSE(registry.OpenKey(Key, false));
  EXPECT_EQ(registry.CurrentKey(), nullptr);
  ASSERT_TRUE(registry.OpenKey(Key, true));
  EXPECT_TRUE(registry.CreateKey("Sub\\\xC3\xA4\xE2\x82\xAC"));
  ASSERT_TRUE(registry.OpenKey("Sub", false));
  EXPECT_EQ(registry.CurrentPath(), std::string(Key) + "\\Sub");
  vcl::TStringList list;
  registry.GetKeyNames(list);
  EXPECT_EQ(list.CommaText(), "\xC3\xA4\xE2\x82\xAC");
  EXPECT_FALSE(registry.OpenKey("Missing", false));
  EXPECT_EQ(registry.CurrentPath(), std::string(Key) + "\\Sub");
  ASSERT_TRUE(registry.OpenKeyReadOnly(std::string("\\") + Key));
  EXPECT_TRUE(registry.HasSubKeys());
  EXPECT_THROW(registry.WriteString("a", "b"), ERegistryException);
  EXPECT_TRUE(registry.KeyExists("Sub"));
  EXPECT_TRUE(registry.DeleteKey("Sub"));
  EXPECT_FALSE(registry.DeleteKey(""));
  EXPECT_FALSE(registry.KeyExists("Sub"));
  registry.SetRootKey(HKEY_CURRENT_USER);
  EXPECT_NE(registry.CurrentKey(), nullptr);
  registry.SetRootKey(HKEY_LOCAL_MACHINE);
  EXPECT_EQ(registry.CurrentKey(), nullptr);
  EXPECT_EQ(registry.CurrentPath(), "");
}

TEST_F(Registry, NamesOfValuesReplaceTheLines) {
  TRegistry registry;
  ASSERT_TRUE(registry.OpenKey(Key, true));
  vcl::TStringList list;
  list.SetText("former");
  registry.GetValueNames(list);
  EXPECT_EQ(list.Count(), 0);
  for (const char* name : {"a", "\u65e5\u672c"}) registry.WriteString(name, "value");
  registry.GetValueNames(list);
  list.Sort();
  EXPECT_EQ(list.CommaText(), "a,\u65e5\u672c");
}

TEST_F(Registry, KeysAreOpenedWithTheRightsAskedFor) {
  TRegistry registry;
  ASSERT_TRUE(registry.CreateKey(Key));
  registry.SetAccess(KEY_READ);
  EXPECT_EQ(registry.Access(), static_cast<std::uint32_t>(KEY_READ));
  ASSERT_TRUE(registry.OpenKey(Key, false));
  EXPECT_THROW(registry.WriteString("a", "b"), ERegistryException);
}

TEST_F(Registry, ValuesHaveTypes) {
  TRegistry registry;
  ASSERT_TRUE(registry.OpenKey(Key, true));
  const std::string longText(5000, 'x');
  registry.WriteString("s", longText);
  registry.WriteExpandString("e", "%PATH%");
  registry.WriteInteger("i", -3);
  registry.WriteFloat("f", 0.5);
  registry.WriteBool("b", true);
  EXPECT_EQ(registry.ReadString("s"), longText);
  EXPECT_EQ(registry.ReadString("e"), "%PATH%");
  EXPECT_EQ(registry.ReadString("missing"), "");
  EXPECT_EQ(registry.ReadInteger("i"), -3);
  EXPECT_EQ(registry.ReadFloat("f"), 0.5);
  EXPECT_TRUE(registry.ReadBool("b"));
  const std::tuple<const char*, vcl::TRegDataType, int> types[] = {{"s", vcl::rdString, 10002},
                                                                   {"e", vcl::rdExpandString, 14},
                                                                   {"i", vcl::rdInteger, 4},
                                                                   {"f", vcl::rdBinary, 8},
                                                                   {"missing", vcl::rdUnknown, -1}};
  for (const auto& [name, type, size] : types) {
    EXPECT_EQ(registry.GetDataType(name), type) << name;
    EXPECT_EQ(registry.GetDataSize(name), size) << name;
  }
  char small[4];
  EXPECT_THROW(registry.ReadBinaryData("f", small, sizeof small), ERegistryException);
  EXPECT_THROW(registry.ReadInteger("s"), ERegistryException);
  EXPECT_THROW(registry.ReadInteger("missing"), ERegistryException);
  EXPECT_THROW(registry.ReadString("i"), ERegistryException);
  registry.RenameValue("i", "s");
  EXPECT_EQ(registry.GetDataType("s"), vcl::rdString);
  registry.RenameValue("i", "j");
  EXPECT_FALSE(registry.ValueExists("i"));
  EXPECT_EQ(registry.ReadInteger("j"), -3);
  EXPECT_TRUE(registry.DeleteValue("j"));
  EXPECT_FALSE(registry.DeleteValue("j"));
}

TEST_F(Registry, AsASettingsFileItHoldsAnyName) {
  TRegIniFile file(Key);
  EXPECT_EQ(file.FileName(), Key);
  const char* const names[] = {"a=b", "[c]", "d\r\ne", ";f", " g ", ""};
  for (const std::string name : names) {
    file.WriteString("Sec]tion", name, "v\r\n" + name);
    EXPECT_EQ(file.ReadString("sec]TION", name, "none"), "v\r\n" + name);
  }
  vcl::TStringList list;
  file.ReadSections(list);
  EXPECT_EQ(list.Strings(0), "Sec]tion");
  file.ReadSection("Sec]tion", list);
  EXPECT_EQ(list.Count(), 6);
  file.DeleteKey("Sec]tion", "a=b");
  file.DeleteKey("none", "none");
  file.EraseSection("none");
  EXPECT_EQ(file.ReadString("Sec]tion", "a=b", "none"), "none");
  file.EraseSection("Sec]tion");
  EXPECT_FALSE(file.KeyExists("Sec]tion"));
}

TEST_F(Registry, OtherTypesAndRefusalsRaise) {
  const DWORD number = 5;
  ::RegSetKeyValueA(HKEY_CURRENT_USER, (std::string(Key) + "\\S").c_str(), "n", REG_DWORD, &number,
                    sizeof number);
  TRegIniFile file(Key);
  EXPECT_THROW(file.ReadString("S", "n", ""), ERegistryException);
  EXPECT_THROW(file.ReadInteger("S", "n", 1), ERegistryException);
  vcl::TStringList list;
  list.Add("kept");
  EXPECT_THROW(file.ReadSectionValues("S", list), ERegistryException);
  EXPECT_EQ(list.CommaText(), "kept");
  EXPECT_THROW(file.WriteString("S", std::string(70000, 'n'), "v"), ERegistryException);
  {
    const TImportPatch noWriting(
        "qelhost.dll", "RegCreateKeyExW",
        +[](HKEY, LPCWSTR, DWORD, LPWSTR, DWORD, REGSAM, LPSECURITY_ATTRIBUTES, PHKEY, LPDWORD)
             WINAPI -> LONG { return ERROR_ACCESS_DENIED; });
    TRegIniFile readable(Key);
    EXPECT_TRUE(readable.KeyExists("S"));
    EXPECT_THROW(readable.WriteString("S", "a", "b"), ERegistryException);
    const std::string missing = std::string(Key) + "\\missing";
    EXPECT_THROW(TRegIniFile{missing}, ERegistryException);
  }
}

TEST_F(Registry, AHundredThousandValues) {
  constexpr int count = 100'000;
  {
    TRegistry registry;
    ASSERT_TRUE(registry.OpenKey(std::string(Key) + "\\S", true));
    for (int i = 0; i < count; ++i) registry.WriteString("v" + std::to_string(i), "x");
  }
  const TRegIniFile file(Key);
  vcl::TStringList list;
  file.ReadSectionValues("S", list);
  EXPECT_EQ(list.Count(), count);
  EXPECT_EQ(file.ReadString("S", "v99999", ""), "x");
}

}  // namespace
