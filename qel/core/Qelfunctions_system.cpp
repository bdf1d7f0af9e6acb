// What the system knows of itself, as numbered texts.
#include <cstdint>

#include "qel/core/Qelfunctions.h"
#include "qel/core/Qelsystemfacts.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/core/private/registryfacts.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// Empty where the registry does not tell, for whatever reason.
std::string RegistryText(const char* path, const char* value) try {
  const TQELRegIniFile registry(path, HKEY_LOCAL_MACHINE);
  return registry.ReadString("CurrentVersion", value, {});
} catch (const vcl::ERegistryException&) {
  return {};
}

}  // namespace

/// The family that Windows comes of keeps some of the values under a key of its own.
std::string WindowsRegistryText(const char* value) {
  const std::string text = RegistryText("\\SOFTWARE\\Microsoft\\Windows", value);
  return text.empty() ? RegistryText("\\SOFTWARE\\Microsoft\\Windows NT", value) : text;
}

namespace {

using vcl::Concat;

constexpr std::size_t MaxName = 1024;

/// A name that a system call writes; the call answers with 0 when it has none.
template <class Call>
std::string NameFrom(Call call) {
  wchar_t name[MaxName] = {};
  DWORD size = MaxName;
  return call(name, &size) ? vcl::ToUtf8(name) : std::string();
}

template <class Known>
std::string NameOf(DWORD number, const Known& known) {
  for (const auto& each : known) {
    if (each.Number == number) return each.Name;
  }
  return {};
}

struct TNumberName {
  DWORD Number;
  const char* Name;
};

std::string Processor() {
  constexpr TNumberName known[] = {{PROCESSOR_INTEL_386, "Intel 386"},
                                   {PROCESSOR_INTEL_486, "Intel 486"},
                                   {PROCESSOR_INTEL_PENTIUM, "Intel Pentium"},
                                   {PROCESSOR_AMD_X8664, "Intel Pentium"}};
  SYSTEM_INFO info{};
  ::GetSystemInfo(&info);
  return NameOf(info.dwProcessorType, known);
}

std::string Platform() {
  constexpr TNumberName known[] = {{VER_PLATFORM_WIN32s, "Windows 3.1"},
                                   {VER_PLATFORM_WIN32_WINDOWS, "Windows 95"},
                                   {VER_PLATFORM_WIN32_NT, "Windows NT"}};
  const auto version = QELWindowsVersion();
  return version ? NameOf(version->Platform, known) : std::string();
}

std::string VersionText() {
  const auto version = QELWindowsVersion();
  if (!version) return {};
  return Concat(vcl::IntToStr(version->Major), ".", vcl::IntToStr(version->Minor));
}

std::string Amount(std::uint64_t bytes, std::uint64_t unit, const char* unitName) {
  return Concat(vcl::IntToStr(static_cast<std::int64_t>(bytes / unit)), unitName);
}

std::string MemoryText(int item) {
  const auto memory = QELMemoryFacts();
  if (!memory) return {};
  if (item == inMemoryLoad) return Amount(static_cast<std::uint64_t>(memory->Load), 1, " Percent");
  return Amount(item == inMemorySize ? memory->Size : memory->Free, 1024, " KB");
}

std::string DiskText(int item) {
  const auto drive = QELDriveFacts();
  if (!drive) return {};
  constexpr std::uint64_t MB = std::uint64_t{1024} * 1024;
  if (item == inDiskSize) return Amount(drive->Size, MB, " MB");
  if (item == inDiskFree) return Amount(drive->Available, MB, " MB");
  if (drive->Size == 0) return {};
  const auto used = static_cast<double>(drive->Size - drive->Free);
  return Amount(static_cast<std::uint64_t>(used / static_cast<double>(drive->Size) * 100), 1, " %");
}

}  // namespace

std::string QELGetUsrName() {
  return NameFrom([](wchar_t* name, DWORD* size) { return ::GetUserNameW(name, size); });
}

std::string QELGetPCName() {
  return NameFrom([](wchar_t* name, DWORD* size) { return ::GetComputerNameW(name, size); });
}

std::string QELGetInformationNo(int item) {
  switch (item) {
    case inOrganization: return WindowsRegistryText("RegisteredOrganization");
    case inOwner: return WindowsRegistryText("RegisteredOwner");
    case inProgramFiles: return WindowsRegistryText("ProgramFilesDir");
    case inSystemRoot: return WindowsRegistryText("SystemRoot");
    case inProcessor: return Processor();
    case inPlatform: return Platform();
    case inVersion: return VersionText();
    case inMemorySize:
    case inMemoryFree:
    case inMemoryLoad: return MemoryText(item);
    case inDiskSize:
    case inDiskFree:
    case inDiskLoad: return DiskText(item);
    default: return {};
  }
}

}  // namespace qel
