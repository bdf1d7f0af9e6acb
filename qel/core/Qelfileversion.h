// The version information that programs and libraries carry.
#pragma once

#include <string>

#include "qel/core/api.h"
#include "vcl/rtl/typeinfo.h"

namespace qel {

/// The entries of a file's version information.
enum TQELVersionItem {
  viFileVersion,
  viProductVersion,
  viProductName,
  viFileDescription,
  viCompanyName,
  viLegalCopyright,
  viLegalTrademarks,
  viInternalName,
  viOriginalFilename,
  viComments,
  viPrivateBuild,
  viSpecialBuild
};

/// An entry of the file's version information, in its first language; of the running program for an
/// empty name. Empty where the file, its information or the entry is missing. Of the two versions,
/// the number that the file has stands in for a missing text: "1.2.3.4".
QEL_API std::string QELFileVersion(const std::string& fileName, TQELVersionItem item);

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELVersionItem>{
    "TQELVersionItem",
    "viFileVersion viProductVersion viProductName viFileDescription viCompanyName viLegalCopyright "
    "viLegalTrademarks viInternalName viOriginalFilename viComments viPrivateBuild viSpecialBuild"};

}  // namespace vcl
