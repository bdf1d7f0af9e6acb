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
  iiTime             ///< The time of day, in the format of the program's settings.
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
    "iiSystemName iiSystemBuild iiProcessorCount iiScreenSize iiHostAddress iiUptime iiTime"};

}  // namespace vcl
