// Copying and moving without an end.
#include "tests/shell/transferprogram.h"

#include <filesystem>
#include <fstream>

#include "qel/shell/Qeltfileoperator.h"
#include "tests/support/importpatch.h"
#include "vcl/rtl/utf16.h"

namespace {

namespace fs = std::filesystem;

/// Only a copy that takes its name stays on its drive.
BOOL WINAPI Move(LPCWSTR source, LPCWSTR target, DWORD flags) {
  const bool takesName = std::wstring(source).find(L".~new") != std::wstring::npos;
  if (!takesName) return ::SetLastError(ERROR_NOT_SAME_DEVICE), FALSE;
  return ::MoveFileExW(source, target, flags);
}

void Run(qel::TQELFileOperatorOperation operation, const std::string& from, const std::string& to) {
  qel::TQELFileOperator mover(nullptr);
  mover.SetOptions({qel::foSilent, qel::foNoConfirmation});
  mover.SetOperation(operation);
  mover.SetDestination(to);
  mover.Source()->Add(from + "\\*.txt");
  mover.Execute();
}

void Begin(const std::string& folder) {
  std::ofstream(fs::path(vcl::ToUtf16(folder)).parent_path() / "begun") << "begun";
}

}  // namespace

void MoveForEver(const std::string& here, const std::string& there) {
  const TImportPatch patch("qel.dll", "MoveFileExW", &Move);
  for (Begin(here);;) {
    Run(qel::foMove, here, there);
    Run(qel::foMove, there, here);
  }
}

void CopyForEver(const std::string& from, const std::string& to) {
  Begin(from);
  for (char letter = 'b';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
    for (const auto& each : fs::directory_iterator(vcl::ToUtf16(from))) {
      std::ofstream(each.path(), std::ios::binary) << std::string(300000, letter);
    }
    Run(qel::foCopy, from, to);
  }
}
