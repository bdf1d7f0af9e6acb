// Folders of the file system: their paths, what lies in them, and what the shell shows of them.
// Paths end with a backslash.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/win32.h"

namespace qel::folders {

/// The absolute path that the text means: "C:" is the drive's root, and "/" is as good as "\".
/// Empty for a text without anything.
std::string Normalized(const std::string& text);
std::string UpperCased(const std::string& path);
/// How much of the path names its drive, or the server and its share; 0 for neither.
std::size_t RootSize(const std::string& path);
/// The path as it is without the last folder; empty for a root.
std::string ParentOf(const std::string& path);
/// The last folder's name; of a root the whole path without the backslash.
std::string NameOf(const std::string& path);
/// The path as the system's functions take it: without the backslash at its end, and in the form
/// that may be long when it is.
std::wstring ForSystem(const std::string& path);
bool Exists(const std::string& path);
/// The folder's volume and its number there, which all paths and links to it have in common;
/// nothing where the disk has no such number.
std::optional<std::pair<std::uint32_t, std::uint64_t>> IdOf(const std::string& path);
/// DRIVE_REMOTE and the like, of the drive that the path is on.
UINT DriveType(const std::string& path);

/// Calls `each` with the name of every folder in the folder, until it answers false. A folder that
/// cannot be read has none.
void Scan(const std::string& path, const std::function<bool(const std::string& name)>& each);
/// A file or a folder in a folder.
struct TEntry {
  std::string Name;
  std::uint32_t Attributes = 0;  ///< FILE_ATTRIBUTE_...
  std::uint64_t Size = 0;        ///< In bytes; 0 for a folder.
  std::uint64_t Written = 0;     ///< When it was last written to, as a FILETIME counts.

  bool IsFolder() const { return (Attributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
  /// Leads elsewhere: what walks through folders for good does not follow it.
  bool IsLink() const { return (Attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0; }
};
/// Calls `each` with every file and folder in the folder, but for "." and "..", in the disk's
/// order, until it answers false. Raises EInOutError for a folder that cannot be read.
void ScanEntries(const std::string& path, const std::function<bool(const TEntry& entry)>& each);
/// What the path names, a folder too; nothing where there is no such file.
std::optional<TEntry> EntryOf(const std::string& path);
/// A size in bytes as lists show it, in kilobytes.
std::string SizeText(std::uint64_t size);
/// A text that compares byte by byte with others of its kind as the texts do by the user's
/// language, without regard to case.
std::string SortKey(const std::string& text);
/// Puts paths in the order of the user's language, without regard to case.
void Sort(std::vector<std::string>& paths);

/// The drives' roots.
std::vector<std::string> Drives();
/// The path of one of the shell's special folders (CSIDL_...); empty when there is none.
std::string Special(int folder);

/// The local time of what an entry's Written counts.
vcl::TDateTime LocalTime(std::uint64_t written);

/// How the shell shows a folder.
struct TAppearance {
  std::string Name;
  int Icon = 0;  ///< In the system's list of small pictures.
};
/// The folder's own name where the shell does not know it.
TAppearance Appearance(const std::string& path);
/// What the shell calls files of that extension, with its dot, or folders.
std::string TypeOfFiles(const std::string& extension);
std::string TypeOfFolders();
/// The number of a file's picture in the system's lists: of all with that extension, without
/// looking at the disk; or the file's own, where `HasOwnPicture` says that it may have one.
int PictureOfFiles(const std::string& extension);
int PictureOf(const std::string& file);
bool HasOwnPicture(const std::string& extension);
/// The system's list of pictures of that size; it stays the system's.
HIMAGELIST LargeSystemImages();
/// The system's list of small pictures, or of those twice as large where so many dots per inch ask
/// for them; it stays the system's.
HIMAGELIST SystemImages(int pixelsPerInch);

/// While it lives, a drive without a medium gives no box of the system's.
class TNoErrorBoxes {
 public:
  TNoErrorBoxes() : FFormer(::SetErrorMode(SEM_FAILCRITICALERRORS)) {}
  ~TNoErrorBoxes() { ::SetErrorMode(FFormer); }
  TNoErrorBoxes(const TNoErrorBoxes&) = delete;
  TNoErrorBoxes& operator=(const TNoErrorBoxes&) = delete;

 private:
  UINT FFormer;
};

/// Raise EInOutError. Making a folder makes those above it too.
void Make(const std::string& path);
void Rename(const std::string& path, const std::string& newPath);
/// Raises EInOutError for what cannot be the name of `what`, "a file" or "a folder".
void CheckName(const std::string& name, std::string_view what);
/// Puts files and folders into the recycle bin; false when the user stops it. The shell warns
/// before it deletes what the bin cannot hold.
bool Recycle(const std::vector<std::string>& paths, HWND owner);

/// Has the shell give a file or folder another name, which its undoing takes back; false when the
/// user stops it. Raises EInOutError; a name that is taken is refused.
bool ShellRename(const std::string& path, const std::string& newPath, HWND owner);

}  // namespace qel::folders
