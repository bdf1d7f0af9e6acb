// Names of files: their folder, their last part, its extension. Names are UTF-8. They are written
// as Windows has them wherever the program runs, because they come with mails and settings from
// other systems too: "\", "/" and the ":" of a drive all delimit.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

/// What stands between folders in the names of the system that the program runs under.
#ifdef _WIN32
inline constexpr char PathDelim = '\\';
#else
inline constexpr char PathDelim = '/';
#endif

/// The name behind its last folder or drive.
VCL_API std::string ExtractFileName(std::string_view fileName);
/// All before that, with the delimiter: ExtractFilePath and ExtractFileName joined are the name.
VCL_API std::string ExtractFilePath(std::string_view fileName);
/// The same without the delimiter at its end, as long as it names no root: "C:\a", but "C:\".
VCL_API std::string ExtractFileDir(std::string_view fileName);
/// The drive, "C:", or the server and its share, "\\server\share"; empty without either.
VCL_API std::string ExtractFileDrive(std::string_view fileName);
/// The last part from its last dot on; empty without one.
VCL_API std::string ExtractFileExt(std::string_view fileName);
/// The name with another extension, which is given with its dot; without any for an empty one.
VCL_API std::string ChangeFileExt(std::string_view fileName, std::string_view extension);

/// The name with one "\" or "/" at its end. An empty name gets one too, and is a root then.
VCL_API std::string IncludeTrailingPathDelimiter(std::string_view name);
/// The name without the one at its end.
VCL_API std::string ExcludeTrailingPathDelimiter(std::string_view name);

/// The name that means the same wherever the current folder is later. Windows resolves "." and
/// ".." in it.
VCL_API std::string ExpandFileName(const std::string& fileName);

#ifdef _WIN32
/// The name as wide entry points of the system take it, in the form that may be long when it is.
VCL_API std::wstring SystemFileName(const std::string& name);
#endif

}  // namespace vcl
