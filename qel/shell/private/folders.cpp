// Folders as the disk and the shell have them: paths, what lies inside, pictures; making, renaming
// and deleting.
// The wide entry points of the system are called, because names may be longer in UTF-8 than the
// narrow ones have room for.
#include "qel/shell/private/folders.h"

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <algorithm>
#include <numeric>
#include <utility>

#include "vcl/controls/scaling.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace qel::folders {

using vcl::ToUtf16;
using vcl::ToUtf8;

// ---- Paths ----

std::string Normalized(const std::string& text) {
  const std::string_view name = vcl::Trim(text);
  if (name.empty()) return {};
  // A drive alone would mean its current folder.
  return vcl::ExpandFileName(vcl::IncludeTrailingPathDelimiter(name));
}

std::string UpperCased(const std::string& path) {
  std::wstring wide = ToUtf16(path);
  ::CharUpperBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  return ToUtf8(wide);
}

std::size_t RootSize(const std::string& path) {
  const std::size_t drive = vcl::ExtractFileDrive(path).size();
  return drive == 0 || drive == path.size() ? 0 : drive + 1;
}

std::string ParentOf(const std::string& path) {
  if (path.size() <= RootSize(path)) return {};
  return path.substr(0, path.find_last_of('\\', path.size() - 2) + 1);
}

std::string NameOf(const std::string& path) {
  const std::string parent = ParentOf(path);
  return path.empty() ? path : path.substr(parent.size(), path.size() - parent.size() - 1);
}

std::wstring ForSystem(const std::string& path) {
  const bool root = path.size() <= RootSize(path);
  return vcl::SystemFileName(root ? path : vcl::ExcludeTrailingPathDelimiter(path));
}

bool Exists(const std::string& path) {
  const TNoErrorBoxes quiet;
  return vcl::DirectoryExists(path);
}

std::optional<std::pair<std::uint32_t, std::uint64_t>> IdOf(const std::string& path) {
  const TNoErrorBoxes quiet;
  constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE folder = ::CreateFileW(ForSystem(path).c_str(), 0, everybody, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (folder == INVALID_HANDLE_VALUE) return {};
  BY_HANDLE_FILE_INFORMATION info{};
  const BOOL known = ::GetFileInformationByHandle(folder, &info);
  ::CloseHandle(folder);
  const std::uint64_t number = std::uint64_t{info.nFileIndexHigh} << 32 | info.nFileIndexLow;
  if (!known || number == 0) return {};
  return std::pair(std::uint32_t{info.dwVolumeSerialNumber}, number);
}

UINT DriveType(const std::string& path) {
  return ::GetDriveTypeA(path.substr(0, RootSize(path)).c_str());
}

// ---- What is there ----

namespace {

/// The system's search, as long as there is more to find.
class TSearch {
 public:
  explicit TSearch(const std::string& path) {
    std::wstring pattern = ForSystem(path);
    if (!pattern.ends_with(L'\\')) pattern += L'\\';
    pattern += L"*.*";
    FSearch = ::FindFirstFileW(pattern.c_str(), &FFound);
    if (FSearch == INVALID_HANDLE_VALUE) FError = ::GetLastError();
  }
  ~TSearch() {
    if (FSearch != INVALID_HANDLE_VALUE) ::FindClose(FSearch);
  }
  TSearch(const TSearch&) = delete;
  TSearch& operator=(const TSearch&) = delete;

  /// What it has found; null at the end.
  const WIN32_FIND_DATAW* Next() {
    while (FError == 0) {
      if (std::exchange(FBegun, true) && !::FindNextFileW(FSearch, &FFound))
        FError = ::GetLastError();
      const std::wstring_view name = FFound.cFileName;
      if (FError == 0 && name != L"." && name != L"..") return &FFound;
    }
    return nullptr;
  }
  /// Why there is no more; 0 at the end of the folder.
  DWORD Error() const {
    const bool end = FError == ERROR_NO_MORE_FILES || FError == ERROR_FILE_NOT_FOUND;
    return end ? 0 : FError;
  }

 private:
  WIN32_FIND_DATAW FFound{};
  HANDLE FSearch = INVALID_HANDLE_VALUE;
  DWORD FError = 0;
  bool FBegun = false;
};

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

}  // namespace

void Scan(const std::string& path, const std::function<bool(const std::string& name)>& each) {
  TSearch search(path);
  while (const WIN32_FIND_DATAW* found = search.Next()) {
    const bool folder = (found->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (folder && !each(ToUtf8(found->cFileName))) return;
  }
}

void ScanEntries(const std::string& path, const std::function<bool(const TEntry& entry)>& each) {
  const TNoErrorBoxes quiet;
  TSearch search(path);
  while (const WIN32_FIND_DATAW* found = search.Next()) {
    const TEntry entry{
        ToUtf8(found->cFileName), std::uint32_t{found->dwFileAttributes},
        Joined(found->nFileSizeHigh, found->nFileSizeLow),
        Joined(found->ftLastWriteTime.dwHighDateTime, found->ftLastWriteTime.dwLowDateTime)};
    if (!each(entry)) return;
  }
  if (search.Error() == 0) return;
  vcl::RaiseOSError<vcl::EInOutError>(static_cast<int>(search.Error()), "Cannot read the folder '",
                                      path, "'");
}

std::optional<TEntry> EntryOf(const std::string& path) {
  const TNoErrorBoxes quiet;
  WIN32_FILE_ATTRIBUTE_DATA found{};
  if (!::GetFileAttributesExW(ForSystem(path).c_str(), GetFileExInfoStandard, &found)) return {};
  return TEntry{NameOf(vcl::IncludeTrailingPathDelimiter(path)),
                std::uint32_t{found.dwFileAttributes},
                Joined(found.nFileSizeHigh, found.nFileSizeLow),
                Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)};
}

std::string SizeText(std::uint64_t size) {
  wchar_t text[32] = L"";
  ::StrFormatKBSizeW(static_cast<LONGLONG>(size), text, 32);
  return ToUtf8(text);
}

std::string SortKey(const std::string& text) {
  const std::wstring wide = ToUtf16(text);
  const auto map = [&wide](std::string* key) {
    return ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, wide.data(),
                          static_cast<int>(wide.size()),
                          key ? reinterpret_cast<wchar_t*>(key->data()) : nullptr,
                          key ? static_cast<int>(key->size()) : 0);
  };
  std::string key(static_cast<std::size_t>(map(nullptr)), '\0');
  map(&key);
  return key;
}

void Sort(std::vector<std::string>& paths) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(paths.size());
  for (std::string& path : paths) keyed.emplace_back(SortKey(NameOf(path)), std::move(path));
  std::ranges::stable_sort(keyed);
  std::ranges::transform(keyed, paths.begin(), [](auto& each) { return std::move(each.second); });
}

std::vector<std::string> Drives() {
  std::vector<std::string> roots;
  const DWORD drives = ::GetLogicalDrives();
  for (int i = 0; i < 26; ++i) {
    if (drives & (1u << i)) roots.push_back(std::string(1, static_cast<char>('A' + i)) + ":\\");
  }
  return roots;
}

std::string Special(int folder) {
  LPITEMIDLIST list = nullptr;
  if (::SHGetSpecialFolderLocation(nullptr, folder, &list) != S_OK) return {};
  wchar_t path[MAX_PATH] = L"";
  const BOOL found = ::SHGetPathFromIDListW(list, path);
  ::CoTaskMemFree(list);
  return found ? Normalized(ToUtf8(path)) : std::string();
}

namespace {

constexpr UINT NameAndIcon = SHGFI_SYSICONINDEX | SHGFI_DISPLAYNAME;

constexpr int SmallIcon = 16;  // Pixels at 96 dots per inch.

/// What the shell says of any folder of that name, without looking at the disk. Returns its list of
/// pictures of that size.
HIMAGELIST AskOfAnyFolder(const std::string& name, SHFILEINFOW& info, UINT size = SHGFI_SMALLICON) {
  return reinterpret_cast<HIMAGELIST>(
      ::SHGetFileInfoW(ToUtf16(name).c_str(), FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                       NameAndIcon | size | SHGFI_USEFILEATTRIBUTES));
}

/// Whether the folder may have a name or picture of its own. The shell looks for one only where a
/// folder has one of two attributes (PathMakeSystemFolder), and looking takes long where many
/// folders are.
bool MayBeSpecial(const std::string& path) {
  if (path.size() == RootSize(path)) return true;
  const DWORD attributes = ::GetFileAttributesW(ForSystem(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES &&
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

}  // namespace

TAppearance Appearance(const std::string& path) {
  const TNoErrorBoxes quiet;
  SHFILEINFOW info{};
  const bool asked =
      MayBeSpecial(path) &&
      ::SHGetFileInfoW(ToUtf16(path).c_str(), 0, &info, sizeof info, NameAndIcon | SHGFI_SMALLICON);
  if (!asked || !info.szDisplayName[0]) AskOfAnyFolder(NameOf(path), info);
  return {info.szDisplayName[0] ? ToUtf8(info.szDisplayName) : NameOf(path), info.iIcon};
}

HIMAGELIST SystemImages(int pixelsPerInch) {
  // The small ones are for more dots per inch already where the system is set to them.
  const bool tooSmall = ::MulDiv(SmallIcon, pixelsPerInch, vcl::DefaultPixelsPerInch) >=
                        2 * ::GetSystemMetrics(SM_CXSMICON);
  SHFILEINFOW info{};
  return AskOfAnyFolder("folder", info, tooSmall ? SHGFI_LARGEICON : SHGFI_SMALLICON);
}

namespace {

/// What the shell says of any file with that extension.
SHFILEINFOW AskOfFiles(const std::string& extension, UINT what) {
  SHFILEINFOW info{};
  ::SHGetFileInfoW(ToUtf16("file" + extension).c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                   what | SHGFI_USEFILEATTRIBUTES);
  return info;
}

}  // namespace

std::string TypeOfFiles(const std::string& extension) {
  return ToUtf8(AskOfFiles(extension, SHGFI_TYPENAME).szTypeName);
}

std::string TypeOfFolders() {
  SHFILEINFOW info{};
  ::SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                   SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
  return ToUtf8(info.szTypeName);
}

int PictureOfFiles(const std::string& extension) {
  return AskOfFiles(extension, SHGFI_SYSICONINDEX | SHGFI_SMALLICON).iIcon;
}

int PictureOf(const std::string& file) {
  const TNoErrorBoxes quiet;
  SHFILEINFOW info{};
  const auto asked = ::SHGetFileInfoW(ToUtf16(file).c_str(), 0, &info, sizeof info,
                                      SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
  return asked ? info.iIcon : PictureOfFiles(vcl::ExtractFileExt(file));
}

bool HasOwnPicture(const std::string& extension) {
  static constexpr const char* own[] = {".exe", ".lnk", ".ico", ".cur", ".ani", ".url", ".scr"};
  return std::ranges::any_of(own, [&](const char* each) { return vcl::SameText(each, extension); });
}

HIMAGELIST LargeSystemImages() {
  SHFILEINFOW info{};
  return AskOfAnyFolder("folder", info, SHGFI_LARGEICON);
}

vcl::TDateTime LocalTime(std::uint64_t written) {
  const FILETIME time{static_cast<DWORD>(written), static_cast<DWORD>(written >> 32)};
  SYSTEMTIME utc{}, local{};
  if (!::FileTimeToSystemTime(&time, &utc)) return 0;
  if (!::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) local = utc;
  return vcl::EncodeDate(local.wYear, local.wMonth, local.wDay) +
         vcl::EncodeTime(local.wHour, local.wMinute, local.wSecond, local.wMilliseconds);
}

// ---- Changes ----

void Make(const std::string& path) {
  const TNoErrorBoxes quiet;
  vcl::ForceDirectories(path);
}

void Rename(const std::string& path, const std::string& newPath) {
  const auto plain = vcl::ExcludeTrailingPathDelimiter;
  if (vcl::RenameFile(plain(path), plain(newPath))) return;
  vcl::RaiseLastOSError<vcl::EInOutError>("Cannot rename the folder '", path, "'");
}

void CheckName(const std::string& name, std::string_view what) {
  const bool dots = name.find_first_not_of(". ") == std::string::npos;
  if (!dots && name.find_first_of("\\/:*?\"<>|") == std::string::npos) return;
  throw vcl::EInOutError(vcl::Concat("'", name, "' cannot be the name of ", what));
}

namespace {

/// Has the shell do something with files; false when the user stops it.
bool Operate(UINT what, const std::vector<std::string>& paths, const std::string& target,
             FILEOP_FLAGS flags, HWND owner, const char* failed) {
  std::wstring from;
  for (const std::string& path : paths) {
    from += ToUtf16(vcl::ExcludeTrailingPathDelimiter(path));
    from += L'\0';  // Another one ends the list.
  }
  const std::wstring to = ToUtf16(target) + L'\0';
  SHFILEOPSTRUCTW operation{};
  operation.hwnd = owner;
  operation.wFunc = what;
  operation.pFrom = from.c_str();
  operation.pTo = target.empty() ? nullptr : to.c_str();
  operation.fFlags = flags;
  const int error = ::SHFileOperationW(&operation);
  if (error != 0 && !operation.fAnyOperationsAborted) {
    vcl::RaiseOSError<vcl::EInOutError>(error, failed, " '", paths.front(), "'");
  }
  return !operation.fAnyOperationsAborted;
}

}  // namespace

bool Recycle(const std::vector<std::string>& paths, HWND owner) {
  constexpr FILEOP_FLAGS flags =
      FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_WANTNUKEWARNING | FOF_SILENT;
  return Operate(FO_DELETE, paths, {}, flags, owner, "Cannot delete");
}

bool ShellRename(const std::string& path, const std::string& newPath, HWND owner) {
  if (UpperCased(path) != UpperCased(newPath) &&
      ::GetFileAttributesW(ForSystem(newPath).c_str()) != INVALID_FILE_ATTRIBUTES) {
    vcl::RaiseOSError<vcl::EInOutError>(ERROR_ALREADY_EXISTS, "Cannot rename '", path, "' to '",
                                        newPath, "'");
  }
  return Operate(FO_RENAME, {path}, newPath, FOF_ALLOWUNDO | FOF_NOCONFIRMATION, owner,
                 "Cannot rename");
}

}  // namespace qel::folders
