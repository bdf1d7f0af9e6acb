// What tells of the system: TQELSystemDetails, TQELVersionDetails, TQELDriveVolume and
// TQELResourceInfo.
#include <gmock/gmock.h>

#include <filesystem>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/valuetext.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::HasSubstr;

TEST(SystemDetails, TellWhatTheSystemKnows) {
  const TQELSystemDetails details(nullptr);
  const std::string all = details.AsText();
  EXPECT_THAT(all, HasSubstr("ComputerName: " + QELGetPCName() + "\r\n"));
  EXPECT_THAT(all, HasSubstr("ProcessorCount: " + std::to_string(QELProcessorCount()) + "\r\n"));
  EXPECT_EQ(details.ScreenWidth(), ::GetSystemMetrics(SM_CXSCREEN));
  EXPECT_EQ(details.PixelsPerInch(), vcl::Screen()->PixelsPerInch());
  EXPECT_GT(details.MemorySize(), details.MemoryFree());
  EXPECT_GE(details.ColorDepth(), 16);
  EXPECT_GE(details.MonitorCount(), 1);
  EXPECT_EQ(details.Locale().find("en"), 0u) << details.Locale();
  for (const std::string& text : {details.SystemName(), details.Architecture(), details.Language(),
                                  details.Country(), details.UserName(), details.Uptime()}) {
    EXPECT_NE(text, "") << all;
  }
}

TEST(SystemDetails, FoldersAreThereAndHaveNoDelimiterAtTheirEnd) {
  const TQELSystemDetails details(nullptr);
  for (const std::string& folder :
       {details.WindowsFolder(), details.SystemFolder(), details.TempFolder(), details.HomeFolder(),
        details.DesktopFolder(), details.DocumentsFolder(), details.SettingsFolder(),
        details.LocalFolder(), details.ApplicationFolder()}) {
    EXPECT_TRUE(vcl::DirectoryExists(folder)) << folder << "\n" << details.AsText();
    EXPECT_NE(folder.back(), '\\') << folder;
  }
}

TEST(VersionDetails, TellWhatAFileSaysOfItself) {
  TQELVersionDetails details(nullptr);
  details.SetFilename("kernel32.dll");
  ASSERT_TRUE(details.HasVersion());
  EXPECT_EQ(details.FileVersion(), QELFileVersion("kernel32.dll", viFileVersion));
  EXPECT_EQ(details.Value("FileVersion"), details.FileVersion());
  EXPECT_EQ(details.Value("InternalName"), details.InternalName());
  EXPECT_NE(details.ProductName(), "");
  EXPECT_NE(details.Language(), "");
  EXPECT_GE(details.FileMajor(), 5);
  const std::string numbers = vcl::Concat(
      std::to_string(details.FileMajor()), ".", std::to_string(details.FileMinor()), ".",
      std::to_string(details.FileRelease()), ".", std::to_string(details.FileBuild()));
  EXPECT_THAT(details.FileVersion(), HasSubstr(numbers));
  EXPECT_EQ(details.Value(""), "");
  EXPECT_EQ(details.Value("Nobody's key"), "");
}

TEST(VersionDetails, AreEmptyWithoutAFile) {
  TQELVersionDetails details(nullptr);
  details.SetFilename("C:\\no\\such.dll");
  EXPECT_FALSE(details.HasVersion());
  for (const vcl::TPropInfo& each : details.ClassType().Own()) {
    const std::string text = vcl::ValueToText(*each.Type, each.Get(details));
    if (each.Name == "Filename") continue;
    EXPECT_THAT(text, testing::AnyOf("", "0", "False")) << each.Name;
  }
}

TEST(DriveVolume, TellsOfTheDriveAndItsVolume) {
  TQELDriveVolume volume(nullptr);
  EXPECT_EQ(volume.Root(), "C:\\");
  ASSERT_TRUE(volume.Ready());
  EXPECT_EQ(volume.Kind(), dkFixed);
  EXPECT_NE(volume.FileSystem(), "");
  EXPECT_EQ(volume.SerialNumber().find('-'), 4u);
  EXPECT_EQ(volume.SerialNumber().size(), 9u);
  EXPECT_GT(volume.SectorSize(), 0);
  EXPECT_EQ(volume.ClusterSize() % volume.SectorSize(), 0);
  EXPECT_GT(volume.TotalBytes(), volume.FreeBytes());
  EXPECT_EQ(volume.TotalSize(), static_cast<int>(volume.TotalBytes() >> 20));
  EXPECT_EQ(volume.UsedSize(), static_cast<int>((volume.TotalBytes() - volume.FreeBytes()) >> 20));
}

TEST(DriveVolume, OneThatIsNotThereIsNotReady) {
  TQELDriveVolume volume(nullptr);
  volume.SetDrive(dQ);
  EXPECT_EQ(volume.Root(), "Q:\\");
  EXPECT_FALSE(volume.Ready());
  EXPECT_EQ(volume.Kind(), dkNone);
  EXPECT_EQ(volume.SerialNumber() + volume.VolumeName() + volume.FileSystem(), "");
  EXPECT_EQ(volume.TotalSize(), 0);
  EXPECT_FALSE(volume.SupportsCompression());
  volume.SetDrive(static_cast<TQELVolumeDrive>(26));
  EXPECT_EQ(volume.Drive(), dQ);
  volume.SetDrive(dC);
  EXPECT_TRUE(volume.Ready());
}

TEST(DriveVolume, WritesNothingButItsDriveToForms) {
  TQELDriveVolume volume(nullptr);
  EXPECT_THAT(FormText(&volume), testing::Not(HasSubstr("=")));
  volume.SetDrive(dD);
  EXPECT_THAT(FormText(&volume), HasSubstr("Drive = dD"));
}

/// Free bytes of the drive and the memory, in a test's hands.
struct TSystem {
  static inline std::uint64_t FreeMB = 0;
  static BOOL WINAPI Disk(LPCWSTR, PULARGE_INTEGER available, PULARGE_INTEGER size,
                          PULARGE_INTEGER free) {
    available->QuadPart = free->QuadPart = FreeMB << 20;
    size->QuadPart = std::uint64_t{9000000} << 20;
    return TRUE;
  }
  TImportPatch Patch{"qel.dll", "GetDiskFreeSpaceExW", &Disk};
};

TEST(ResourceInfo, TellsOfProgramAndMachine) {
  const TSystem system;
  TSystem::FreeMB = 5'000'000'000'000;
  const TQELResourceInfo info(nullptr);
  EXPECT_EQ(info.DriveFree(), 2147483647) << "as far as an int goes";
  EXPECT_EQ(info.DriveSize(), 9000000);
  EXPECT_GE(info.PageFileSize(), info.PageFileFree());
  EXPECT_GT(info.MemoryLoad(), 0);
  const TImportPatch kernel(
      "qel.dll", "GetProcessHandleCount", +[](HANDLE, PDWORD count) WINAPI -> BOOL {
        *count = 3;
        return TRUE;
      });
  EXPECT_EQ(info.KernelHandles(), 3);
}

TEST(ResourceInfo, SaysOnceWhenOneGetsLow) {
  const TSystem system;
  TQELResourceInfo info(nullptr);
  std::string told;
  info.OnLow = [&](vcl::TObject*, TQELResource resource, int value) {
    told += std::to_string(resource) + ":" + std::to_string(value) + " ";
  };
  const auto look = [&](std::uint64_t free) {
    TSystem::FreeMB = free;
    info.Check();
  };
  look(0);
  info.Limits()->SetDrive(100);
  info.Limits()->SetDrive(-1);
  for (const int free : {100, 99, 98, 100, 97}) look(static_cast<std::uint64_t>(free));
  EXPECT_EQ(told, "2:99 2:97 ");
  told.clear();
  info.Limits()->SetDrive(0);
  info.Limits()->SetMemory(1 << 30);
  info.SetInterval(20);
  EXPECT_TRUE(testinput::PumpUntil([&] { return !told.empty(); }));
  EXPECT_EQ(told.find("0:"), 0u) << told;
}

TEST(ResourceInfo, MayBeFreedByItsEvent) {
  auto info = std::make_unique<TQELResourceInfo>(nullptr);
  info->Limits()->SetMemory(1 << 30);
  info->Limits()->SetPageFile(1 << 30);
  int told = 0;
  info->OnLow = [&](vcl::TObject*, TQELResource, int) {
    ++told;
    info.reset();
  };
  info->SetInterval(10);
  EXPECT_TRUE(testinput::PumpUntil([&] { return !info; }));
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace qel
