// Asking the system for what it knows of the machine, of the user, and of volumes in drives.
#include <shlobj.h>

#include <cwchar>
#include <iterator>

#include "qel/core/Qelsystemfacts.h"
#include "qel/core/private/machinefacts.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

std::string ProcessorName() {
  wchar_t name[256] = {};
  DWORD size = sizeof name - sizeof *name;
  const LSTATUS answer =
      ::RegGetValueW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0",
                     L"ProcessorNameString", RRF_RT_REG_SZ, nullptr, name, &size);
  return answer == ERROR_SUCCESS ? std::string(vcl::Trim(vcl::ToUtf8(name))) : std::string();
}

std::string Architecture() {
  SYSTEM_INFO info{};
  ::GetNativeSystemInfo(&info);
  switch (info.wProcessorArchitecture) {
    case PROCESSOR_ARCHITECTURE_INTEL: return "x86";
    case PROCESSOR_ARCHITECTURE_AMD64: return "x64";
    case PROCESSOR_ARCHITECTURE_ARM: return "ARM";
    case PROCESSOR_ARCHITECTURE_ARM64: return "ARM64";
    default: return {};
  }
}

std::string LocaleText(LCTYPE what) {
  wchar_t text[256] = {};
  const int size =
      ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, what, text, static_cast<int>(std::size(text)));
  return size > 0 ? vcl::ToUtf8(text) : std::string();
}

/// A folder that a system call writes; the call answers with its length.
template <class Call>
std::string FolderFrom(Call call) {
  wchar_t name[MAX_PATH + 1] = {};
  const UINT length = call(name, static_cast<UINT>(std::size(name)));
  if (length == 0 || length >= std::size(name)) return {};
  return vcl::ExcludeTrailingPathDelimiter(vcl::ToUtf8(name));
}

std::string ShellFolder(int number) {
  return FolderFrom([number](wchar_t* name, UINT) -> UINT {
    const HRESULT answer = ::SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, name);
    return SUCCEEDED(answer) ? static_cast<UINT>(std::wcslen(name)) : 0;
  });
}

}  // namespace

std::string MachineFact(TQELInformationItem item) {
  switch (static_cast<int>(item)) {
    case iiProcessorName: return ProcessorName();
    case iiArchitecture: return Architecture();
    case iiLocale: return LocaleText(LOCALE_SNAME);
    case iiLanguage: return LocaleText(LOCALE_SNATIVELANGUAGENAME);
    case iiCountry: return LocaleText(LOCALE_SLOCALIZEDCOUNTRYNAME);
    case iiSystemFolder: return FolderFrom(&::GetSystemDirectoryW);
    case iiTempFolder:
      return FolderFrom([](wchar_t* name, UINT size) { return ::GetTempPathW(size, name); });
    case iiHomeFolder: return ShellFolder(CSIDL_PROFILE);
    case iiDesktopFolder: return ShellFolder(CSIDL_DESKTOPDIRECTORY);
    case iiDocumentsFolder: return ShellFolder(CSIDL_PERSONAL);
    case iiSettingsFolder: return ShellFolder(CSIDL_APPDATA);
    case iiLocalFolder: return ShellFolder(CSIDL_LOCAL_APPDATA);
    default: return {};
  }
}

// Volumes.

namespace {

TQELDriveKind KindOf(const std::wstring& root) {
  switch (::GetDriveTypeW(root.c_str())) {
    case DRIVE_NO_ROOT_DIR: return dkNone;
    case DRIVE_REMOVABLE: return dkRemovable;
    case DRIVE_FIXED: return dkFixed;
    case DRIVE_REMOTE: return dkRemote;
    case DRIVE_CDROM: return dkCDRom;
    case DRIVE_RAMDISK: return dkRAMDisk;
    default: return dkUnknown;
  }
}

void ReadSizes(const std::wstring& root, TQELVolumeFacts& facts) {
  DWORD sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
  if (::GetDiskFreeSpaceW(root.c_str(), &sectors, &bytes, &freeClusters, &clusters)) {
    facts.SectorSize = static_cast<int>(bytes);
    facts.ClusterSize = static_cast<int>(bytes * sectors);
  }
  facts.Drive = QELDriveFacts(vcl::ToUtf8(root)).value_or(TQELDriveFacts());
}

}  // namespace

TQELVolumeFacts QELVolumeFacts(const std::string& root) {
  DWORD mode = 0;
  ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &mode);
  const vcl::TAtEnd restore([mode] { ::SetThreadErrorMode(mode, nullptr); });
  const std::wstring name = vcl::ToUtf16(root);
  TQELVolumeFacts facts;
  facts.Kind = KindOf(name);
  if (facts.Kind == dkNone) return facts;
  wchar_t label[MAX_PATH + 1] = {}, fileSystem[MAX_PATH + 1] = {};
  DWORD serial = 0, nameLength = 0, flags = 0;
  facts.Ready = ::GetVolumeInformationW(name.c_str(), label, MAX_PATH, &serial, &nameLength, &flags,
                                        fileSystem, MAX_PATH);
  if (!facts.Ready) return facts;
  facts.Name = vcl::ToUtf8(label);
  facts.FileSystem = vcl::ToUtf8(fileSystem);
  facts.SerialNumber = serial;
  facts.Flags = flags;
  facts.NameLength = static_cast<int>(nameLength);
  ReadSizes(name, facts);
  return facts;
}

}  // namespace qel
