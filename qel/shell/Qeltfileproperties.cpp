// TQELFileProperties: its table, and what it asks the system.
#include "qel/shell/Qeltfileproperties.h"

#include <utility>

#include "qel/shell/private/folders.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {
namespace {

constexpr std::pair<DWORD, TQELFileAttribute> AttributeBits[] = {
    {FILE_ATTRIBUTE_READONLY, faReadOnly},
    {FILE_ATTRIBUTE_HIDDEN, faHidden},
    {FILE_ATTRIBUTE_SYSTEM, faSystem},
    {FILE_ATTRIBUTE_ARCHIVE, faArchive}};

/// All zero for a file that is not there.
WIN32_FILE_ATTRIBUTE_DATA DataOf(const std::string& fileName) {
  const folders::TNoErrorBoxes quiet;
  WIN32_FILE_ATTRIBUTE_DATA data{};
  const std::wstring name = vcl::SystemFileName(fileName);
  if (fileName.empty() || !::GetFileAttributesExW(name.c_str(), GetFileExInfoStandard, &data)) {
    return {};
  }
  return data;
}

[[noreturn]] void Refused(const char* what, const std::string& fileName) {
  throw EQELSystemError(vcl::Concat(what, " '", fileName, "'"), static_cast<int>(::GetLastError()));
}

FILETIME FileTimeOf(vcl::TDateTime time) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, millisecond = 0;
  vcl::DecodeDate(time, year, month, day);
  vcl::DecodeTime(time, hour, minute, second, millisecond);
  const auto word = [](int number) { return static_cast<WORD>(number); };
  const SYSTEMTIME local = {word(year),   word(month),      0, word(day), word(hour), word(minute),
                            word(second), word(millisecond)};
  SYSTEMTIME utc{};
  FILETIME result{};
  const bool known = ::TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc) &&
                     ::SystemTimeToFileTime(&utc, &result);
  if (!known) throw vcl::EConvertError("That is no time of a file's");
  return result;
}

}  // namespace

const vcl::TClass& TQELFileProperties::Class() {
  using T = TQELFileProperties;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELFileProperties", "qel/shell/Qeltfileproperties.h",
      {
          ReadOnly<&T::Attributes>("Attributes"),
          ReadOnly<&T::Created>("Created").Type("TDateTime"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          ReadOnly<&T::FileType>("FileType"),
          ReadOnly<&T::LastAccess>("LastAccess").Type("TDateTime"),
          ReadOnly<&T::Modified>("Modified").Type("TDateTime"),
          ReadOnly<&T::Size>("Size"),
      });
  return info;
}

TQELFileProperties::TQELFileProperties(vcl::TComponent* owner) : TQELActionComponent(owner) {}
TQELFileProperties::~TQELFileProperties() { AnnounceEnd(); }

bool TQELFileProperties::Exists() const { return DataOf(FFilename).dwFileAttributes != 0; }

TQELFileAttributes TQELFileProperties::Attributes() const {
  const DWORD bits = DataOf(FFilename).dwFileAttributes;
  TQELFileAttributes attributes;
  for (const auto& [bit, attribute] : AttributeBits) {
    if (bits & bit) attributes = attributes + TQELFileAttributes{attribute};
  }
  return attributes;
}

std::int64_t TQELFileProperties::Size() const {
  const WIN32_FILE_ATTRIBUTE_DATA data = DataOf(FFilename);
  return static_cast<std::int64_t>(std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow);
}

std::string TQELFileProperties::FileType() const {
  const DWORD bits = DataOf(FFilename).dwFileAttributes;
  if (bits == 0) return {};
  return bits & FILE_ATTRIBUTE_DIRECTORY ? folders::TypeOfFolders()
                                         : folders::TypeOfFiles(vcl::ExtractFileExt(FFilename));
}

vcl::TDateTime TQELFileProperties::TimeOf(TTime which) const {
  const WIN32_FILE_ATTRIBUTE_DATA data = DataOf(FFilename);
  const FILETIME time = which == TTime::Created      ? data.ftCreationTime
                        : which == TTime::LastAccess ? data.ftLastAccessTime
                                                     : data.ftLastWriteTime;
  const std::uint64_t count = std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
  return count == 0 ? 0 : folders::LocalTime(count);
}

vcl::TDateTime TQELFileProperties::Created() const { return TimeOf(TTime::Created); }
vcl::TDateTime TQELFileProperties::LastAccess() const { return TimeOf(TTime::LastAccess); }
vcl::TDateTime TQELFileProperties::Modified() const { return TimeOf(TTime::Modified); }

bool TQELFileProperties::ChangeTime(TTime which, vcl::TDateTime time) {
  if (Designing()) return false;
  return Try([&] {
    const FILETIME wanted = FileTimeOf(time);
    constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        ::CreateFileW(vcl::SystemFileName(FFilename).c_str(), FILE_WRITE_ATTRIBUTES, everybody,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) Refused("Cannot set a time of", FFilename);
    const vcl::TAtEnd close([file] { ::CloseHandle(file); });
    if (!::SetFileTime(file, which == TTime::Created ? &wanted : nullptr,
                       which == TTime::LastAccess ? &wanted : nullptr,
                       which == TTime::Modified ? &wanted : nullptr)) {
      Refused("Cannot set a time of", FFilename);
    }
    return true;
  });
}

bool TQELFileProperties::ChangeCreated(vcl::TDateTime time) {
  return ChangeTime(TTime::Created, time);
}
bool TQELFileProperties::ChangeLastAccess(vcl::TDateTime time) {
  return ChangeTime(TTime::LastAccess, time);
}
bool TQELFileProperties::ChangeModified(vcl::TDateTime time) {
  return ChangeTime(TTime::Modified, time);
}

bool TQELFileProperties::ChangeAttributes(TQELFileAttributes attributes) {
  if (Designing()) return false;
  return Try([&] {
    DWORD bits = DataOf(FFilename).dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL);
    for (const auto& [bit, attribute] : AttributeBits) {
      bits = attributes.Has(attribute) ? bits | bit : bits & ~bit;
    }
    if (bits == 0) bits = FILE_ATTRIBUTE_NORMAL;
    if (!::SetFileAttributesW(vcl::SystemFileName(FFilename).c_str(), bits)) {
      Refused("Cannot set the attributes of", FFilename);
    }
    return true;
  });
}

std::string TQELFileProperties::DesignText() const {
  return vcl::Concat("At run time it would show the properties of '", FFilename, "'.");
}

bool TQELFileProperties::DoExecute() {
  const std::wstring name = vcl::ToUtf16(vcl::ExpandFileName(FFilename));
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_INVOKEIDLIST | SEE_MASK_FLAG_NO_UI;
  info.hwnd = vcl::Application()->Handle();
  info.lpVerb = L"properties";
  info.lpFile = name.c_str();
  info.nShow = SW_SHOWNORMAL;
  if (!Exists()) {
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    Refused("There is no", FFilename);
  }
  if (!::ShellExecuteExW(&info)) Refused("Cannot show the properties of", FFilename);
  return true;
}

}  // namespace qel
