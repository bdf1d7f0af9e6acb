// The form files that a form's own stands on: which class it descends from says its unit, and where
// that class's file is says the folder.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/properties.h"

namespace ide {

/// The form file of a class that another one descends from.
struct TAncestorFile {
  std::string ClassName;
  std::string FileName;
  std::string Bytes;
};

/// What the root of a form file descends from.
struct TFormOrigin {
  /// The class of this library: TForm, TFrame or TDataModule.
  const vcl::TClass* Class;
  /// The files to be read before the root's own, the outermost ancestor's first.
  std::vector<TAncestorFile> Files;
  /// Where those and the frames' files are; empty for a form without a file.
  std::string Folder;
};

/// Finds the form file of a class: the one in the folder whose first line names it. Raises
/// EFOpenError when there is none; `user` says who needs it. A file that is damaged is none; the
/// message names those too.
TAncestorFile FindFormFile(const std::string& folder, const std::string& className,
                           const std::string& user);

/// The class that a form file gives its root; empty for what is no form file.
std::string FormClassOf(const std::string& bytes);

/// What the root of those bytes, the form file of that name, descends from. A root that descends
/// from none with a form file is a form unless its unit says otherwise. Raises EFOpenError when the
/// unit beside a file that says `inherited`, or the ancestor's file, is missing; EReadError for
/// classes that descend from themselves; and EUnitError for a header that holds no such class.
TFormOrigin OriginOf(const std::string& fileName, const std::string& bytes);
/// The origin of a class that descends from the one of that form file.
TFormOrigin OriginFrom(const std::string& ancestorFile);

/// Keep the origin beside the copy of a form that has no file yet and so no unit; find it there, or
/// else by the unit as OriginOf does; and end that.
void KeepOrigin(const std::string& copyName, const TFormOrigin& origin);
TFormOrigin KeptOrigin(const std::string& copyName, const std::string& bytes);
void ForgetOrigin(const std::string& copyName);

}  // namespace ide
