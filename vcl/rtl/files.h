// Files and folders as a whole: whether they are there, making, renaming and deleting them, and
// contents that are read at once and replaced at once. Names are UTF-8.
#pragma once

#include <optional>
#include <string>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// True when there is a file of that name; a folder is none.
VCL_API bool FileExists(const std::string& fileName);
VCL_API bool DirectoryExists(const std::string& folder);
/// True for a file that is there and may not be written.
VCL_API bool FileIsReadOnly(const std::string& fileName);

/// Makes the folder and those above it, as far as they are not there. Raises EInOutError: the
/// folder and the system's reason, such as a file in the way.
VCL_API void ForceDirectories(const std::string& folder);
/// These return false when the system refuses; LastSystemError says why. A folder is renamed too. A
/// name that is taken is refused.
VCL_API bool RenameFile(const std::string& oldName, const std::string& newName);
VCL_API bool DeleteFile(const std::string& fileName);

/// The file's bytes; nothing when there is no such file. Raises EInOutError when it cannot be read.
VCL_API std::optional<std::string> ReadWholeFile(const std::string& fileName);
/// Replaces the file's contents, or makes it: whoever reads it, and whenever the program or the
/// computer ends, it holds the former contents or the new ones, and these are on the disk when the
/// function returns. They are written to a file beside it, "NAME.~new", which then takes its place
/// and its attributes; programs that are just reading are waited for, up to two seconds, and those
/// that replace it too, up to ten. Raises EInOutError, for a file that may only be read, too; the
/// file is as before then.
VCL_API void ReplaceWholeFile(const std::string& fileName, const std::string& contents);

}  // namespace vcl
