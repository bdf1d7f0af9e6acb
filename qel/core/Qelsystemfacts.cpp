// Asking the system for its facts.
#include "qel/core/Qelsystemfacts.h"

#include <winsock2.h>
// The others need what stands above.
#include <iphlpapi.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "qel/core/Qelfunctions.h"
#include "qel/core/private/machinefacts.h"
#include "qel/core/private/registryfacts.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::Concat;
using vcl::IntToStr;

std::optional<TQELWindowsVersion> QELWindowsVersion() {
  // GetVersionEx tells programs an older version that they say they know.
  using TRtlGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
  const HMODULE module = ::GetModuleHandleW(L"ntdll.dll");
  const FARPROC address = module ? ::GetProcAddress(module, "RtlGetVersion") : nullptr;
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (!address || reinterpret_cast<TRtlGetVersion>(reinterpret_cast<void*>(address))(&version) != 0)
    return std::nullopt;
  return TQELWindowsVersion{version.dwMajorVersion, version.dwMinorVersion, version.dwBuildNumber,
                            version.dwPlatformId};
}

std::string QELWindowsName() {
  const std::string name = WindowsRegistryText("ProductName");
  return name.empty() ? Concat("Windows ", QELGetInformationNo(inVersion)) : name;
}

std::optional<TQELMemoryFacts> QELMemoryFacts() {
  MEMORYSTATUSEX memory{};
  memory.dwLength = sizeof memory;
  if (!::GlobalMemoryStatusEx(&memory)) return std::nullopt;
  return TQELMemoryFacts{memory.ullTotalPhys, memory.ullAvailPhys,
                         static_cast<int>(memory.dwMemoryLoad), memory.ullTotalPageFile,
                         memory.ullAvailPageFile};
}

std::optional<TQELDriveFacts> QELDriveFacts(const std::string& folder) {
  ULARGE_INTEGER available{}, size{}, free{};
  const std::wstring name = vcl::ToUtf16(folder);
  if (!::GetDiskFreeSpaceExW(folder.empty() ? nullptr : name.c_str(), &available, &size, &free))
    return std::nullopt;
  return TQELDriveFacts{size.QuadPart, free.QuadPart, available.QuadPart};
}

int QELMegabytes(std::uint64_t bytes) {
  constexpr std::uint64_t most = std::numeric_limits<int>::max();
  return static_cast<int>(std::min(bytes / 1024 / 1024, most));
}

TQELHandleFacts QELHandleFacts() {
  const HANDLE process = ::GetCurrentProcess();
  DWORD kernel = 0;
  ::GetProcessHandleCount(process, &kernel);
  return {static_cast<int>(::GetGuiResources(process, GR_GDIOBJECTS)),
          static_cast<int>(::GetGuiResources(process, GR_USEROBJECTS)), static_cast<int>(kernel)};
}

int QELProcessorCount() {
  SYSTEM_INFO info{};
  ::GetSystemInfo(&info);
  return static_cast<int>(info.dwNumberOfProcessors);
}

vcl::TSize QELScreenSize() {
  return {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

// The machine's own addresses.

namespace {

/// The system's list of what connects the machine to networks; empty where it has none.
std::vector<unsigned char> Adapters(ULONG family) {
  constexpr ULONG flags =
      GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;
  ULONG size = 16 * 1024;
  std::vector<unsigned char> buffer;
  for (int tries = 0; tries < 3; ++tries) {
    buffer.resize(size);
    auto* list = reinterpret_cast<IP_ADAPTER_ADDRESSES*>(buffer.data());
    const ULONG answer = ::GetAdaptersAddresses(family, flags, nullptr, list, &size);
    if (answer == ERROR_SUCCESS) return buffer;
    if (answer != ERROR_BUFFER_OVERFLOW) break;
  }
  return {};
}

/// Without the port that a socket's address may have.
std::string AddressText(const SOCKET_ADDRESS& address) {
  const sockaddr* const place = address.lpSockaddr;
  wchar_t text[INET6_ADDRSTRLEN] = {};
  const void* bytes =
      place->sa_family == AF_INET
          ? static_cast<const void*>(&reinterpret_cast<const sockaddr_in*>(place)->sin_addr)
          : &reinterpret_cast<const sockaddr_in6*>(place)->sin6_addr;
  if (!::InetNtopW(place->sa_family, const_cast<void*>(bytes), text, INET6_ADDRSTRLEN)) return {};
  return vcl::ToUtf8(text);
}

std::string FirstAddress(ULONG family) {
  const std::vector<unsigned char> buffer = Adapters(family);
  if (buffer.empty()) return {};
  const auto* adapter = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(buffer.data());
  for (; adapter; adapter = adapter->Next) {
    if (adapter->IfType == IF_TYPE_SOFTWARE_LOOPBACK || adapter->OperStatus != IfOperStatusUp)
      continue;
    if (adapter->FirstUnicastAddress) return AddressText(adapter->FirstUnicastAddress->Address);
  }
  return {};
}

}  // namespace

std::string QELHostAddress() {
  const std::string address = FirstAddress(AF_INET);
  return address.empty() ? FirstAddress(AF_INET6) : address;
}

std::uint64_t QELUptime() { return ::GetTickCount64(); }

std::string QELDurationText(std::uint64_t milliseconds) {
  const std::uint64_t seconds = milliseconds / 1000;
  const auto two = [](std::uint64_t number) {
    const std::string digits = IntToStr(static_cast<std::int64_t>(number));
    return digits.size() < 2 ? "0" + digits : digits;
  };
  const std::uint64_t days = seconds / 86400;
  std::string time =
      Concat(two(seconds / 3600 % 24), ":", two(seconds / 60 % 60), ":", two(seconds % 60));
  if (days == 0) return time;
  return Concat(IntToStr(static_cast<std::int64_t>(days)), days == 1 ? " day " : " days ", time);
}

namespace {

std::string BuildText() {
  const auto version = QELWindowsVersion();
  return version ? IntToStr(version->Build) : std::string();
}

std::string ScreenText() {
  const vcl::TSize size = QELScreenSize();
  return Concat(IntToStr(size.cx), " x ", IntToStr(size.cy));
}

}  // namespace

std::string QELInformation(TQELInformationItem item) {
  switch (static_cast<int>(item)) {
    case iiComputerName: return QELGetPCName();
    case iiUserName: return QELGetUsrName();
    case iiSystemName: return QELWindowsName();
    case iiSystemBuild: return BuildText();
    case iiProcessorCount: return IntToStr(QELProcessorCount());
    case iiScreenSize: return ScreenText();
    case iiHostAddress: return QELHostAddress();
    case iiUptime: return QELDurationText(QELUptime());
    case iiTime: return vcl::TimeToStr(vcl::Now());
    default: break;
  }
  if (item > iiTime) return MachineFact(item);
  // What lies between has the order of the numbered items.
  return item >= iiOrganization && item <= iiDiskLoad
             ? QELGetInformationNo(item - iiOrganization + inOrganization)
             : std::string();
}

}  // namespace qel
