// The C++ unit of a form that is designed, in its two files beside the form file.
#pragma once

#include <string>
#include <vector>

#include "ide/handlers.h"
#include "ide/unitwriter.h"

namespace ide {

/// What a form's class descends from.
struct TUnitAncestor {
  std::string ClassName = "vcl::TForm";
  std::string Loader = "LoadForm";
  /// Of a class with a form file: its unit's header, and the form as that file has it.
  std::string Header;
  const vcl::TComponent* Form = nullptr;
};

/// The name of the header of the unit that belongs to a form file.
std::string HeaderBeside(const std::string& formFile);

/// What of the form its unit shows, without what an ancestor's shows. What C++ can't name is told
/// in `notes`. Raises EUnitError for a component that hides one of the form's own properties, and
/// EFOpenError for a frame whose form file is gone.
TUnitForm UnitFormOf(vcl::TComponent& root, const THandlers& handlers, const std::string& formFile,
                     const TUnitAncestor& ancestor, std::vector<std::string>& notes);

/// Writes or updates NAME.h and NAME.cpp beside the form file NAME.dfm; returns what the programmer
/// should know. Raises EUnitError (see WriteUnit) and EInOutError. A unit that is as it should be
/// is not written; each file is replaced whole.
std::vector<std::string> WriteUnitFiles(vcl::TComponent& root, const THandlers& handlers,
                                        const std::string& formFile,
                                        const TUnitAncestor& ancestor = {});

}  // namespace ide
