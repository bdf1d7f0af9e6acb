// Files and folders as a whole, and what is said when the system refuses them.
#include "vcl/rtl/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#endif

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/systemerrors.h"

namespace vcl {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;
using testing::ThrowsMessage;

class Files : public testing::Test {
 protected:
  Files() { fs::create_directories(Folder); }
  ~Files() override { fs::remove_all(Folder); }

  std::string Name(const std::string& last) const {
    const std::u8string folder = Folder.u8string();
    return IncludeTrailingPathDelimiter(std::string(folder.begin(), folder.end())) + last;
  }
  static fs::path PathOf(const std::string& name) {
    return std::u8string(name.begin(), name.end());
  }
  static void Put(const std::string& name, const std::string& text) {
    std::ofstream(PathOf(name), std::ios::binary) << text;
  }
  /// How many files and folders there are.
  std::ptrdiff_t Count() const { return std::distance(fs::directory_iterator(Folder), {}); }

  const fs::path Folder = fs::temp_directory_path() / u8"qel Dateien ä";
};

TEST_F(Files, AreThereOrNot) {
  const std::string name = Name("Größe");
  EXPECT_FALSE(FileExists(name));
  Put(name, "");
  EXPECT_TRUE(FileExists(name));
  EXPECT_FALSE(DirectoryExists(name));
  EXPECT_FALSE(FileExists(Name("")));
  EXPECT_TRUE(DirectoryExists(Name("")));
  EXPECT_TRUE(DirectoryExists(ExcludeTrailingPathDelimiter(Name(""))));
  EXPECT_FALSE(DirectoryExists(Name("none")));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(DirectoryExists(""));
}

TEST_F(Files, AreRenamedAndDeleted) {
  const std::string from = Name("von"), to = Name("nach ü"), folder = Name("Ordner");
  Put(from, "1");
  Put(to, "2");
  EXPECT_FALSE(RenameFile(from, to)) << "the name is taken";
  EXPECT_EQ(ReadWholeFile(to), "2");
  EXPECT_TRUE(DeleteFile(to));
  EXPECT_TRUE(RenameFile(from, to));
  EXPECT_FALSE(FileExists(from));
  EXPECT_EQ(ReadWholeFile(to), "1");
  EXPECT_FALSE(DeleteFile(from)) << "it is gone";
  ForceDirectories(folder);
  EXPECT_TRUE(RenameFile(folder, folder + " neu"));
  EXPECT_TRUE(DirectoryExists(folder + " neu"));
  EXPECT_FALSE(DeleteFile(folder + " neu")) << "it is a folder";
}

TEST_F(Files, FoldersAreMadeWithThoseAboveThem) {
  for (const char* last : {"a", "a/b.c/ö/d", "a\\/e/", "a", "f/"}) {
    std::string name = Name(last);
    for (char& each : name)
      if (each == '\\') each = PathDelim;
    ForceDirectories(name);
    EXPECT_TRUE(DirectoryExists(name)) << name;
  }
  const fs::path former = fs::current_path();
  fs::current_path(Folder);
  ForceDirectories("g/h");
  fs::current_path(former);
  EXPECT_TRUE(DirectoryExists(Name("g/h")));
  EXPECT_THROW(ForceDirectories(""), EInOutError);
}

TEST_F(Files, AFileInTheWayOfAFolderIsRefused) {
  Put(Name("file"), "kept");
  for (const char* last : {"file", "file/a/b"}) {
    EXPECT_THAT(
        [&] { ForceDirectories(Name(last)); },
        ThrowsMessage<EInOutError>(StartsWith("The folder " + Name(last) + " cannot be made: ")))
        << last;
  }
  EXPECT_EQ(ReadWholeFile(Name("file")), "kept");
}

TEST_F(Files, AreReadWhole) {
  const std::string name = Name("ä.bin");
  EXPECT_EQ(ReadWholeFile(name), std::nullopt);
  EXPECT_EQ(ReadWholeFile(Name("no folder/x")), std::nullopt);
  for (const std::string& bytes :
       {std::string(), std::string("a\0\r\n\xFF", 5), std::string(300000, 'x')}) {
    Put(name, bytes);
    EXPECT_EQ(ReadWholeFile(name), bytes);
  }
  const std::string folder = ExcludeTrailingPathDelimiter(Name(""));
  EXPECT_THAT([&] { ReadWholeFile(folder); },
              ThrowsMessage<EInOutError>(StartsWith("The file " + folder + " cannot be read: ")));
}

TEST_F(Files, AreReplacedWhole) {
  const std::string name = Name("ä.txt");
  for (const std::string& bytes :
       {std::string("new"), std::string("a\0\n", 3), std::string(300000, 'x'), std::string()}) {
    ReplaceWholeFile(name, bytes);
    EXPECT_EQ(ReadWholeFile(name), bytes);
    EXPECT_EQ(Count(), 1) << "nothing is left beside it";
  }
}

TEST_F(Files, AreSeenWholeWhileSeveralReplaceThem) {
  const std::string name = Name("x"), texts[] = {std::string(50000, '1'), std::string(70000, '2')};
  ReplaceWholeFile(name, texts[0]);
  const auto write = [&] {
    for (int i = 0; i < 25; ++i) ReplaceWholeFile(name, texts[i % 2]);
  };
  std::thread writers[] = {std::thread(write), std::thread(write)};
  for (int i = 0; i < 50; ++i) {
    const auto seen = ReadWholeFile(name);
    EXPECT_TRUE(seen == texts[0] || seen == texts[1]);
  }
  for (std::thread& each : writers) each.join();
}

TEST_F(Files, StayAsTheyAreWhenReplacingFails) {
  const auto replacing = [](const std::string& name) {
    return [=] { ReplaceWholeFile(name, "new"); };
  };
  const auto saying = [](const std::string& name) {
    return ThrowsMessage<EInOutError>(StartsWith("The file " + name + " cannot be saved: "));
  };
  const std::string kept = Name("kept");
  EXPECT_THAT(replacing(Name("no folder/x")), saying(Name("no folder/x")));
  Put(kept, "kept");
  // What stands beside it is in the way of the new contents.
  ForceDirectories(kept + ".~new");
  EXPECT_THAT(replacing(kept), saying(kept));
  EXPECT_EQ(ReadWholeFile(kept), "kept");
  fs::remove(PathOf(kept + ".~new"));
  ForceDirectories(Name("folder/full"));
  EXPECT_THROW(ReplaceWholeFile(Name("folder"), "new"), EInOutError);
  EXPECT_EQ(Count(), 2) << "nothing is left behind";
}

TEST_F(Files, ThatMayOnlyBeReadStayAsTheyAre) {
#ifndef _WIN32
  if (::geteuid() == 0) GTEST_SKIP() << "this user may write everything";
#endif
  const std::string name = Name("fest");
  EXPECT_FALSE(FileIsReadOnly(name));
  Put(name, "kept");
  EXPECT_FALSE(FileIsReadOnly(name));
  EXPECT_FALSE(FileIsReadOnly(Name("")));
  const auto write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  fs::permissions(PathOf(name), write, fs::perm_options::remove);
  EXPECT_TRUE(FileIsReadOnly(name));
  EXPECT_THROW(ReplaceWholeFile(name, "new"), EInOutError);
  EXPECT_EQ(ReadWholeFile(name), "kept");
  fs::permissions(PathOf(name), write, fs::perm_options::add);
}

#ifndef _WIN32
/// While it lives, files cannot become longer: the disk is as good as full.
class TFullDisk {
 public:
  explicit TFullDisk(rlim_t size) : FSignal(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &FFormer);
    const rlimit limit{size, FFormer.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~TFullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &FFormer);
    std::signal(SIGXFSZ, FSignal);
  }
  TFullDisk(const TFullDisk&) = delete;
  TFullDisk& operator=(const TFullDisk&) = delete;

 private:
  rlimit FFormer{};
  void (*FSignal)(int);
};

TEST_F(Files, StayWholeWhenTheDiskIsFull) {
  const std::string name = Name("kept");
  Put(name, "kept");
  {
    const TFullDisk full(1000);
    EXPECT_THROW(ReplaceWholeFile(name, std::string(5000, 'x')), EInOutError);
  }
  EXPECT_EQ(ReadWholeFile(name), "kept");
  EXPECT_EQ(Count(), 1) << "nothing is left behind";
}
#endif

TEST_F(Files, RefusalsAreToldInTheSystemsWords) {
  EXPECT_FALSE(DeleteFile(Name("none")));
  const int code = LastSystemError();
  EXPECT_EQ(code, ENOENT);  // Windows has the same number for it.
  const std::string reason = SysErrorMessage(code);
  EXPECT_NE(reason, "");
  EXPECT_EQ(Trim(reason), reason) << "no line end behind it";
  EXPECT_THAT([&] { RaiseOSError<EInOutError>(code, "The file ", "x"); },
              ThrowsMessage<EInOutError>("The file x: " + reason));
  EXPECT_FALSE(DeleteFile(Name("none")));
  EXPECT_THAT([&] { RaiseLastOSError<EConvertError>("y"); },
              ThrowsMessage<EConvertError>("y: " + reason));
  EXPECT_THAT(SysErrorMessage(123456789), HasSubstr("123456789")) << "no words for it";
}

}  // namespace
}  // namespace vcl
