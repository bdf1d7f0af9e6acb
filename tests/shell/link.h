// Links to folders, for tests of what walks through folders.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/vcl/testinput.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

/// What a Unix system calls the file; empty where the disk is Windows's own.
inline std::wstring UnixName(const std::filesystem::path& file) {
  const auto unixName = reinterpret_cast<char*(CDECL*)(const wchar_t*)>(reinterpret_cast<void*>(
      ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
  return unixName ? vcl::ToUtf16(unixName(file.c_str())) : std::wstring();
}

/// A link to a folder, as the disk's own system has them: what removes all below a folder of
/// Windows's would follow another system's.
class TLink {
 public:
  TLink(const std::filesystem::path& link, const std::filesystem::path& folder) : FLink(link) {
    if (!IsUnix()) {
      const std::wstring line = Quoted(link.wstring()) + Quoted(folder.wstring());
      ::_wsystem((L"mklink /J" + line + L" >nul").c_str());
    } else {
      RunUnixProgram(L"ln", L"-s" + Quoted(UnixName(folder)) + UnixLink());
    }
    EXPECT_TRUE(testinput::PumpUntil([&] { return std::filesystem::exists(FLink); }));
  }
  ~TLink() {
    IsUnix() ? RunUnixProgram(L"rm", UnixLink())
             : static_cast<void>(std::filesystem::remove(FLink));
    EXPECT_TRUE(testinput::PumpUntil([&] { return !std::filesystem::exists(FLink); }));
  }
  TLink(const TLink&) = delete;
  TLink& operator=(const TLink&) = delete;

 private:
  static std::wstring Quoted(const std::wstring& name) { return L" \"" + name + L"\""; }
  bool IsUnix() const { return !UnixName(FLink.parent_path()).empty(); }
  /// The link itself: its own name would be asked for where it leads.
  std::wstring UnixLink() const {
    return Quoted(UnixName(FLink.parent_path()) + L"/" + FLink.filename().wstring());
  }
  /// It can't be waited for.
  static void RunUnixProgram(const std::wstring& name, const std::wstring& arguments) {
    std::wstring line = name + L" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    ::CreateProcessW((L"\\\\?\\unix\\bin\\" + name).c_str(), line.data(), nullptr, nullptr, FALSE,
                     0, nullptr, nullptr, &startup, &process);
  }

  std::filesystem::path FLink;
};
