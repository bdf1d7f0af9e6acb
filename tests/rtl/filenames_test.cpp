// Names of files taken apart and put together. They mean the same on every system.
#include "vcl/rtl/filenames.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vcl {
namespace {

TEST(FileNames, AreTakenApart) {
  const struct {
    const char *Name, *Path, *Dir, *Last, *Extension, *Drive;
  } cases[] = {
      {"", "", "", "", "", ""},
      {"a.txt", "", "", "a.txt", ".txt", ""},
      {"Größe.Übersicht.txt", "", "", "Größe.Übersicht.txt", ".txt", ""},
      {"C:\\Büro\\Brief.doc", "C:\\Büro\\", "C:\\Büro", "Brief.doc", ".doc", "C:"},
      {"C:\\a.txt", "C:\\", "C:\\", "a.txt", ".txt", "C:"},
      {"C:a.txt", "C:", "C:", "a.txt", ".txt", "C:"},
      {"C:\\a\\b\\", "C:\\a\\b\\", "C:\\a\\b", "", "", "C:"},
      {"/etc/x.d/passwd", "/etc/x.d/", "/etc/x.d", "passwd", "", ""},
      {"/a", "/", "/", "a", "", ""},
      {"a/b\\c.d", "a/b\\", "a/b", "c.d", ".d", ""},
      {".profile", "", "", ".profile", ".profile", ""},
      {"a.", "", "", "a.", ".", ""},
      {"a.b\\", "a.b\\", "a.b", "", "", ""},
      {"\\\\server\\share\\a.b\\c", "\\\\server\\share\\a.b\\", "\\\\server\\share\\a.b", "c", "",
       "\\\\server\\share"},
      {"\\\\server\\share", "\\\\server\\", "\\\\server", "share", "", "\\\\server\\share"},
      {"\\\\server", "\\\\", "\\\\", "server", "", ""},
      {"\\\\server\\\\x", "\\\\server\\\\", "\\\\server\\\\", "x", "", ""},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(ExtractFilePath(each.Name), each.Path) << each.Name;
    EXPECT_EQ(ExtractFileDir(each.Name), each.Dir) << each.Name;
    EXPECT_EQ(ExtractFileName(each.Name), each.Last) << each.Name;
    EXPECT_EQ(ExtractFileExt(each.Name), each.Extension) << each.Name;
    EXPECT_EQ(ExtractFileDrive(each.Name), each.Drive) << each.Name;
  }
}

TEST(FileNames, GetAnotherExtension) {
  EXPECT_EQ(ChangeFileExt("C:\\x.d\\Größe.dfm", ".cpp"), "C:\\x.d\\Größe.cpp");
  EXPECT_EQ(ChangeFileExt("C:\\x.d\\main", ".cpp"), "C:\\x.d\\main.cpp");
  EXPECT_EQ(ChangeFileExt("a.tar.gz", ""), "a.tar");
  EXPECT_EQ(ChangeFileExt("a.b/", ".c"), "a.b/.c");
}

TEST(FileNames, EndWithADelimiterOrWithout) {
  EXPECT_EQ(IncludeTrailingPathDelimiter("C:"), std::string("C:") + PathDelim);
  EXPECT_EQ(IncludeTrailingPathDelimiter("ä"), std::string("ä") + PathDelim);
  EXPECT_EQ(IncludeTrailingPathDelimiter("a/"), "a/");
  EXPECT_EQ(IncludeTrailingPathDelimiter(""), std::string(1, PathDelim));
  EXPECT_EQ(ExcludeTrailingPathDelimiter("a\\"), "a");
  EXPECT_EQ(ExcludeTrailingPathDelimiter("a/"), "a");
  EXPECT_EQ(ExcludeTrailingPathDelimiter("a"), "a");
  EXPECT_EQ(ExcludeTrailingPathDelimiter(""), "");
}

TEST(FileNames, AreExpandedByTheCurrentFolder) {
  const std::u8string folder = std::filesystem::current_path().u8string();
  EXPECT_EQ(ExpandFileName("Größe.txt"),
            IncludeTrailingPathDelimiter(std::string(folder.begin(), folder.end())) + "Größe.txt");
  const std::string full = ExpandFileName("x");
  EXPECT_EQ(ExpandFileName(full), full);
}

#ifdef _WIN32
TEST(FileNames, OfTheSystemMayBeLong) {
  EXPECT_EQ(SystemFileName("C:/ä"), L"C:/ä");
  const std::string part(250, 'x');
  const std::wstring wide(250, L'x');
  EXPECT_EQ(SystemFileName("C:/a/" + part), L"\\\\?\\C:\\a\\" + wide);
  EXPECT_EQ(SystemFileName("\\\\server\\share\\" + part), L"\\\\?\\UNC\\server\\share\\" + wide);
  EXPECT_EQ(SystemFileName("\\\\?\\C:\\" + part), L"\\\\?\\C:\\" + wide);
  EXPECT_EQ(ExpandFileName("C:\\a\\.\\b\\..\\c"), "C:\\a\\c");
}
#endif

}  // namespace
}  // namespace vcl
