// What the system knows of itself.
#include <cstdint>

#include "qel/core/Qelfunctions.h"
#include "qel/core/Qeltstoredata.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

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

/// Empty where the registry does not tell, for whatever reason.
std::string RegistryText(const char* path, const char* value) try {
  const TQELRegIniFile registry(path, HKEY_LOCAL_MACHINE);
  return registry.ReadString("CurrentVersion", value, {});
} catch (const vcl::ERegistryException&) {
  return {};
}

/// The family that Windows comes of keeps some of the values under a key of its own.
std::string WindowsText(const char* value) {
  const std::string text = RegistryText("\\SOFTWARE\\Microsoft\\Windows", value);
  return text.empty() ? RegistryText("\\SOFTWARE\\Microsoft\\Windows NT", value) : text;
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

/// The version as it is: GetVersionEx tells programs an older one that they say they know. False
/// where the system has no such call.
bool Version(OSVERSIONINFOW& version) {
  using TRtlGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
  const HMODULE module = ::GetModuleHandleW(L"ntdll.dll");
  const FARPROC address = module ? ::GetProcAddress(module, "RtlGetVersion") : nullptr;
  version.dwOSVersionInfoSize = sizeof version;
  return address &&
         reinterpret_cast<TRtlGetVersion>(reinterpret_cast<void*>(address))(&version) == 0;
}

std::string Platform() {
  constexpr TNumberName known[] = {{VER_PLATFORM_WIN32s, "Windows 3.1"},
                                   {VER_PLATFORM_WIN32_WINDOWS, "Windows 95"},
                                   {VER_PLATFORM_WIN32_NT, "Windows NT"}};
  OSVERSIONINFOW version{};
  return Version(version) ? NameOf(version.dwPlatformId, known) : std::string();
}

std::string VersionText() {
  OSVERSIONINFOW version{};
  if (!Version(version)) return {};
  return Concat(vcl::IntToStr(version.dwMajorVersion), ".", vcl::IntToStr(version.dwMinorVersion));
}

std::string Amount(std::uint64_t bytes, std::uint64_t unit, const char* unitName) {
  return Concat(vcl::IntToStr(static_cast<std::int64_t>(bytes / unit)), unitName);
}

std::string MemoryText(int item) {
  MEMORYSTATUSEX memory{};
  memory.dwLength = sizeof memory;
  if (!::GlobalMemoryStatusEx(&memory)) return {};
  if (item == inMemoryLoad) return Amount(memory.dwMemoryLoad, 1, " Percent");
  return Amount(item == inMemorySize ? memory.ullTotalPhys : memory.ullAvailPhys, 1024, " KB");
}

std::string DiskText(int item) {
  ULARGE_INTEGER available{}, size{}, free{};
  if (!::GetDiskFreeSpaceExW(nullptr, &available, &size, &free)) return {};
  constexpr std::uint64_t MB = std::uint64_t{1024} * 1024;
  if (item == inDiskSize) return Amount(size.QuadPart, MB, " MB");
  if (item == inDiskFree) return Amount(available.QuadPart, MB, " MB");
  if (size.QuadPart == 0) return {};
  const double used = static_cast<double>(size.QuadPart - free.QuadPart);
  return Amount(static_cast<std::uint64_t>(used / static_cast<double>(size.QuadPart) * 100), 1,
                " %");
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
    case inOrganization: return WindowsText("RegisteredOrganization");
    case inOwner: return WindowsText("RegisteredOwner");
    case inProgramFiles: return WindowsText("ProgramFilesDir");
    case inSystemRoot: return WindowsText("SystemRoot");
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
