// Folders of the file system: their paths, what lies in them, and what the shell shows of them.
// Paths end with a backslash.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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
/// Puts paths in the order of the user's language, without regard to case.
void Sort(std::vector<std::string>& paths);

/// The drives' roots.
std::vector<std::string> Drives();
/// The path of one of the shell's special folders (CSIDL_...); empty when there is none.
std::string Special(int folder);

/// How the shell shows a folder.
struct TAppearance {
  std::string Name;
  int Icon = 0;  ///< In the system's list of small pictures.
};
/// The folder's own name where the shell does not know it.
TAppearance Appearance(const std::string& path);
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
/// Puts the folder into the recycle bin; false when the user stops it. The shell warns before it
/// deletes what the bin cannot hold.
bool Recycle(const std::string& path, HWND owner);

}  // namespace qel::folders
