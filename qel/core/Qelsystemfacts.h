// What the system knows of itself and of the machine: the one place where the package asks for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "qel/core/api.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/typeinfo.h"

namespace qel {

/// The version of Windows as it is, whichever one the program says it knows.
struct TQELWindowsVersion {
  unsigned Major = 0;
  unsigned Minor = 0;
  unsigned Build = 0;
  unsigned Platform = 0;  ///< VER_PLATFORM_...
};
/// Nothing where the system has no such call.
QEL_API std::optional<TQELWindowsVersion> QELWindowsVersion();
/// The product's name ("Windows 10 Pro"); "Windows" with the version's number where the system does
/// not tell it.
QEL_API std::string QELWindowsName();

/// In bytes.
struct TQELMemoryFacts {
  std::uint64_t Size = 0;
  std::uint64_t Free = 0;
  int Load = 0;  ///< How much is in use, in percent.
  /// The same with what the page file adds to it.
  std::uint64_t PageSize = 0;
  std::uint64_t PageFree = 0;
};
QEL_API std::optional<TQELMemoryFacts> QELMemoryFacts();

/// In bytes.
struct TQELDriveFacts {
  std::uint64_t Size = 0;
  std::uint64_t Free = 0;
  std::uint64_t Available = 0;  ///< As far as the user may take it.
};
/// Of the drive of a folder, of the current one for an empty name; nothing for one that the system
/// can't tell of.
QEL_API std::optional<TQELDriveFacts> QELDriveFacts(const std::string& folder = {});

/// What a drive is.
enum TQELDriveKind {
  dkUnknown,
  dkNone,  ///< There is no such drive.
  dkRemovable,
  dkFixed,
  dkRemote,
  dkCDRom,
  dkRAMDisk
};
/// The volume in a drive.
struct TQELVolumeFacts {
  TQELDriveKind Kind = dkNone;
  bool Ready = false;  ///< There is one that can be read; what follows is empty otherwise.
  std::string Name;
  std::string FileSystem;
  std::uint32_t SerialNumber = 0;
  std::uint32_t Flags = 0;  ///< FILE_..., as the system tells them.
  int NameLength = 0;       ///< Of files, in characters, at most.
  int SectorSize = 0;       ///< In bytes.
  int ClusterSize = 0;      ///< In bytes.
  TQELDriveFacts Drive;
};
/// `root` is the drive's root folder, "C:\". The system shows no box for a drive that is not ready.
QEL_API TQELVolumeFacts QELVolumeFacts(const std::string& root);

/// How many objects of the system the program uses.
struct TQELHandleFacts {
  int GDI = 0;
  int User = 0;
  int Kernel = 0;
};
QEL_API TQELHandleFacts QELHandleFacts();

/// A number of bytes in whole MB, as far as an int goes.
QEL_API int QELMegabytes(std::uint64_t bytes);

/// How many processors the system runs programs on.
QEL_API int QELProcessorCount();
/// In pixels, of the main monitor.
QEL_API vcl::TSize QELScreenSize();
/// The first address of the machine in a network ("192.168.1.2"), one of version 4 before others;
/// empty without a network. Nobody else is asked for it.
QEL_API std::string QELHostAddress();
/// Since the system was started, in milliseconds.
QEL_API std::uint64_t QELUptime();
/// A span of time in days, hours, minutes and seconds: "2 days 03:04:05", "03:04:05".
QEL_API std::string QELDurationText(std::uint64_t milliseconds);

/// One fact as a text: the names of computer and user, what QELGetInformationNo tells, and more.
enum TQELInformationItem {
  iiComputerName,
  iiUserName,
  iiOrganization,    ///< For which Windows is registered.
  iiOwner,           ///< In whose name it is.
  iiProgramFiles,    ///< The folder of programs.
  iiSystemRoot,      ///< The folder of Windows.
  iiProcessor,       ///< The processor's family.
  iiPlatform,        ///< "Windows NT".
  iiVersion,         ///< Of Windows: "10.0".
  iiMemorySize,      ///< "2097152 KB".
  iiMemoryFree,      ///< "1048576 KB".
  iiMemoryLoad,      ///< "50 Percent".
  iiDiskSize,        ///< Of the current drive: "20480 MB".
  iiDiskFree,        ///< "10240 MB".
  iiDiskLoad,        ///< "50 %".
  iiSystemName,      ///< As QELWindowsName tells it.
  iiSystemBuild,     ///< The number of Windows's build: "19045".
  iiProcessorCount,  ///< "8".
  iiScreenSize,      ///< "1920 x 1080".
  iiHostAddress,     ///< As QELHostAddress tells it.
  iiUptime,          ///< "2 days 03:04:05".
  iiTime,            ///< The time of day, in the format of the program's settings.
  iiProcessorName,   ///< As its maker calls it.
  iiArchitecture,    ///< Of the system: "x86", "x64", "ARM64".
  iiLocale,          ///< The user's: "en-US".
  iiLanguage,        ///< The user's, in that language.
  iiCountry,         ///< The user's, in the user's language.
  iiSystemFolder,    ///< Of Windows's libraries. No folder has a delimiter at its end.
  iiTempFolder,
  iiHomeFolder,       ///< The user's.
  iiDesktopFolder,    ///< The user's.
  iiDocumentsFolder,  ///< The user's.
  iiSettingsFolder,   ///< Of programs' settings that go with the user from machine to machine.
  iiLocalFolder       ///< Of programs' settings that stay on this machine.
};
/// Empty for what the system does not know of itself, and for a number that is none.
QEL_API std::string QELInformation(TQELInformationItem item);

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELInformationItem>{
    "TQELInformationItem",
    "iiComputerName iiUserName iiOrganization iiOwner iiProgramFiles iiSystemRoot iiProcessor "
    "iiPlatform iiVersion iiMemorySize iiMemoryFree iiMemoryLoad iiDiskSize iiDiskFree iiDiskLoad "
    "iiSystemName iiSystemBuild iiProcessorCount iiScreenSize iiHostAddress iiUptime iiTime "
    "iiProcessorName iiArchitecture iiLocale iiLanguage iiCountry iiSystemFolder iiTempFolder "
    "iiHomeFolder iiDesktopFolder iiDocumentsFolder iiSettingsFolder iiLocalFolder"};
template <>
inline constexpr TEnumText EnumText<qel::TQELDriveKind>{
    "TQELDriveKind", "dkUnknown dkNone dkRemovable dkFixed dkRemote dkCDRom dkRAMDisk"};

}  // namespace vcl
