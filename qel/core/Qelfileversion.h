// The version information that programs and libraries carry.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
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
/// The same by the entry's key, be it one of the file's own.
QEL_API std::string QELFileVersion(const std::string& fileName, const std::string& key);

/// What the version information has as numbers.
struct TQELVersionNumbers {
  std::array<int, 4> File{};  ///< "1.2.3.4".
  std::array<int, 4> Product{};
  std::uint32_t Flags = 0;  ///< VS_FF_...
  std::uint32_t Kind = 0;   ///< VFT_...
};
/// Of the running program for an empty name; nothing where the file or its information is missing.
QEL_API std::optional<TQELVersionNumbers> QELFileVersionNumbers(const std::string& fileName);
/// The language that the information is written in first, as the system calls it; empty where it
/// says none.
QEL_API std::string QELFileVersionLanguage(const std::string& fileName);

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELVersionItem>{
    "TQELVersionItem",
    "viFileVersion viProductVersion viProductName viFileDescription viCompanyName viLegalCopyright "
    "viLegalTrademarks viInternalName viOriginalFilename viComments viPrivateBuild viSpecialBuild"};

}  // namespace vcl
