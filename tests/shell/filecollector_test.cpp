// The file collector, and the properties of a file, on real files.
#include "qel/shell/Qeltfilecollector.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "qel/shell/Qeltfileproperties.h"
#include "tests/shell/link.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class FileCollector : public testing::Test {
 protected:
  FileCollector() {
    for (const char* name : {"b.txt", "A.TXT", "c.md", "in/d.txt", "in/deep/e.txt", "zz/f.txt"}) {
      Write(name, std::string(10, 'x'));
    }
    Collector.SetFolder(Folder.Path.string());
  }
  void Write(const std::string& name, const std::string& text) const {
    fs::create_directories((Folder.Path / name).parent_path());
    std::ofstream(Folder.Path / name, std::ios::binary) << text;
  }
  std::vector<std::string> Found() const {
    std::vector<std::string> names;
    for (int i = 0; i < Collector.Files()->Count(); ++i) {
      names.push_back(Collector.Files()->Strings(i).substr(Folder.Path.string().size() + 1));
    }
    return names;
  }
  /// What is found with the settings as they are.
  std::vector<std::string> Collect() {
    EXPECT_TRUE(Collector.Execute()) << Collector.LastError();
    return Found();
  }

  testing_support::TFolder Folder;
  TQELFileCollector Collector{nullptr};
};

TEST_F(FileCollector, FindsWhatFits) {
  EXPECT_THAT(Collect(),
              ElementsAre("A.TXT", "b.txt", "c.md", "in\\d.txt", "in\\deep\\e.txt", "zz\\f.txt"));
  Collector.SetMasks("*.txt");
  Collector.SetRecursive(false);
  EXPECT_THAT(Collect(), ElementsAre("A.TXT", "b.txt"));
  ::SetFileAttributesW((Folder.Path / "b.txt").c_str(), FILE_ATTRIBUTE_HIDDEN);
  Collector.SetAttributes({faArchive, faReadOnly});
  EXPECT_THAT(Collect(), ElementsAre("A.TXT"));
  Collector.SetAttributes({faArchive, faReadOnly, faHidden});
  Write("large.txt", std::string(5000, 'x'));
  Collector.SetMinSize(11);
  EXPECT_THAT(Collect(), ElementsAre("large.txt"));
  Collector.SetMinSize(0);
  Collector.SetMaxSize(10);
  EXPECT_THAT(Collect(), ElementsAre("A.TXT", "b.txt"));
  TQELFileProperties file(nullptr);
  file.SetFilename((Folder.Path / "A.TXT").string());
  const vcl::TDateTime noon = vcl::EncodeDate(2020, 2, 29) + 0.5;
  EXPECT_TRUE(file.ChangeModified(noon)) << file.LastError();
  Collector.SetOlderThan(noon);
  EXPECT_THAT(Collect(), ElementsAre());
  Collector.SetOlderThan(noon + 1);
  Collector.SetNewerThan(noon);
  EXPECT_THAT(Collect(), ElementsAre("A.TXT"));
}

TEST_F(FileCollector, HandlersRefuseAndEnd) {
  Collector.OnFile = [](vcl::TObject*, const std::string& path, bool& take) {
    take = !path.ends_with("d.txt");
  };
  Collector.SetMasks("*.txt");
  EXPECT_THAT(Collect(), ElementsAre("A.TXT", "b.txt", "in\\deep\\e.txt", "zz\\f.txt"));
  std::vector<int> counts;
  Collector.OnProgress = [&](vcl::TObject*, const std::string&, int found, bool& abort) {
    counts.push_back(found);
    abort = counts.size() == 3;
  };
  EXPECT_FALSE(Collector.Execute());
  EXPECT_TRUE(Collector.Aborted());
  EXPECT_THAT(counts, ElementsAre(0, 2, 2));
  EXPECT_THAT(Found(), ElementsAre("A.TXT", "b.txt")) << "what was found until then";
  EXPECT_EQ(Collector.LastError(), "");
  Collector.SetFolder((Folder.Path / "none").string());
  EXPECT_FALSE(Collector.Execute());
  EXPECT_THAT(Collector.LastError(), HasSubstr("none"));
  TQELFileCollector raising(nullptr);
  raising.SetFolder(Folder.Path.string());
  raising.OnFile = [](vcl::TObject*, const std::string&, bool&) {
    throw vcl::EInOutError("the handler's own");
  };
  EXPECT_FALSE(raising.Execute());
  EXPECT_EQ(raising.LastError(), "the handler's own") << "no folder that cannot be read";
  auto* other = new TQELFileCollector(nullptr);
  other->SetFolder(Folder.Path.string());
  other->OnFile = [&](vcl::TObject*, const std::string&, bool&) {
    delete std::exchange(other, nullptr);
  };
  EXPECT_FALSE(other->Execute());
}

TEST_F(FileCollector, LinksAreFollowedWhereThatIsWantedAndLoopsNever) {
  const TLink loop(Folder.Path / "in" / "loop", Folder.Path);
  const TLink aside(Folder.Path / "zz" / "aside", Folder.Path / "in" / "deep");
  Collector.SetMasks("*.txt");
  EXPECT_EQ(Collect().size(), 5u);
  Collector.SetFollowLinks(true);
  EXPECT_EQ(Collect().size(), 6u) << "one leads to what holds it, the other aside";
}

std::wstring shown;
BOOL WINAPI Show(SHELLEXECUTEINFOW* info) {
  shown = std::wstring(info->lpVerb) + L" " + fs::path(info->lpFile).filename().wstring();
  return TRUE;
}

TEST(FileProperties, AreToldAndChanged) {
  const testing_support::TFolder folder;
  const fs::path path = folder.Path / "a.txt";
  std::ofstream(path, std::ios::binary) << "twelve bytes";
  TQELFileProperties file(nullptr);
  EXPECT_FALSE(file.Exists());
  EXPECT_EQ(file.Modified(), 0);
  file.SetFilename(path.string());
  EXPECT_TRUE(file.Exists());
  EXPECT_EQ(file.Size(), 12);
  EXPECT_NE(file.FileType(), "");
  EXPECT_NEAR(file.Modified(), vcl::Now(), 0.01);
  const vcl::TDateTime time = vcl::EncodeDate(1999, 12, 31) + vcl::EncodeTime(23, 59, 58, 0);
  EXPECT_TRUE(file.ChangeModified(time)) << file.LastError();
  EXPECT_NEAR(file.Modified(), time, 1e-6);
  EXPECT_TRUE(file.ChangeAttributes({faReadOnly, faHidden}));
  // Not every system can do without faArchive.
  const auto told = [&] { return file.Attributes() - TQELFileAttributes{faArchive}; };
  EXPECT_EQ(told(), (TQELFileAttributes{faReadOnly, faHidden}));
  EXPECT_TRUE(file.ChangeAttributes({}));
  EXPECT_EQ(told(), TQELFileAttributes{});
  const TImportPatch sheet("qel.dll", "ShellExecuteExW", &Show);
  EXPECT_TRUE(file.Execute());
  EXPECT_EQ(shown, L"properties a.txt");
  file.SetFilename((folder.Path / "none").string());
  EXPECT_FALSE(file.Execute());
  EXPECT_EQ(file.LastErrorCode(), ERROR_FILE_NOT_FOUND);
  EXPECT_FALSE(file.ChangeModified(time));
  EXPECT_THAT(file.LastError(), HasSubstr("none"));
  EXPECT_FALSE(file.ChangeAttributes({faHidden}));
}

}  // namespace
}  // namespace qel
