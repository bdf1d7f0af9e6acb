// Folders as the disk and the shell have them: paths, what lies inside, pictures; making, renaming
// and deleting.
// The wide entry points of the system are called, because names may be longer in UTF-8 than the
// narrow ones have room for.
#include "qel/shell/private/folders.h"

#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

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

void Scan(const std::string& path, const std::function<bool(const std::string& name)>& each) {
  std::wstring pattern = ForSystem(path);
  if (!pattern.ends_with(L'\\')) pattern += L'\\';
  pattern += L"*.*";
  WIN32_FIND_DATAW found;
  const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  const struct TClose {
    HANDLE Search;
    ~TClose() { ::FindClose(Search); }
  } close{search};
  do {
    const std::wstring_view name = found.cFileName;
    if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || name == L"." || name == L"..") {
      continue;
    }
    if (!each(ToUtf8(name))) return;
  } while (::FindNextFileW(search, &found));
}

namespace {

/// Texts compare byte by byte by their keys as they do by the user's language.
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

}  // namespace

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

bool Recycle(const std::string& path, HWND owner) {
  std::wstring from = ToUtf16(path.substr(0, path.size() - 1));
  from += L'\0';  // The end of the list.
  SHFILEOPSTRUCTW operation{};
  operation.hwnd = owner;
  operation.wFunc = FO_DELETE;
  operation.pFrom = from.c_str();
  operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_WANTNUKEWARNING | FOF_SILENT;
  const int error = ::SHFileOperationW(&operation);
  if (error != 0 && !operation.fAnyOperationsAborted) {
    vcl::RaiseOSError<vcl::EInOutError>(error, "Cannot delete the folder '", path, "'");
  }
  return !operation.fAnyOperationsAborted;
}

}  // namespace qel::folders
