// The form files that a form's own stands on: which class it descends from says its unit, and where
// that class's file is says the folder.
#pragma once

#include <string>
#include <vector>

namespace ide {

/// The form file of a class that another one descends from.
struct TAncestorFile {
  std::string ClassName;
  std::string FileName;
  std::string Bytes;
};

/// Finds the form file of a class: the one in the folder whose first line names it. Raises
/// EFOpenError when there is none; `user` says who needs it.
TAncestorFile FindFormFile(const std::string& folder, const std::string& className,
                           const std::string& user);

/// The class that a form file gives its root; empty for what is no form file.
std::string FormClassOf(const std::string& bytes);

/// The files to be read before the form file of those bytes, the outermost ancestor's first; none
/// for a form that descends from TForm itself. Raises EFOpenError when the unit beside a file that
/// says `inherited`, or the ancestor's file, is missing; EReadError for classes that descend from
/// themselves; and EUnitError for a header that holds no such class.
std::vector<TAncestorFile> AncestorFiles(const std::string& fileName, const std::string& bytes);

}  // namespace ide
