// Making folders, and reading and replacing files whole.
#include "vcl/rtl/files.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/private/sharedfile.h"
#include "vcl/rtl/systemerrors.h"

namespace vcl {
namespace {

/// What a folder lies in; empty for a drive, which nothing is above.
std::string FolderAbove(const std::string& folder) {
  const std::string name = ExcludeTrailingPathDelimiter(folder);
  return name == ExtractFileDrive(name) ? std::string() : ExtractFileDir(name);
}

bool MakeWithThoseAbove(const std::string& folder) {
  if (DirectoryExists(folder)) return true;
  const std::string above = FolderAbove(folder);
  const bool ready = above.size() >= folder.size() || above.empty() || MakeWithThoseAbove(above);
  return ready && os::MakeFolder(folder);
}

}  // namespace

void ForceDirectories(const std::string& folder) {
  if (folder.empty()) throw EInOutError("A folder must have a name");
  if (MakeWithThoseAbove(folder)) return;
  RaiseLastOSError<EInOutError>("The folder ", folder, " cannot be made");
}

std::optional<std::string> ReadWholeFile(const std::string& fileName) {
  std::string contents;
  switch (os::ReadWholeFile(fileName, contents)) {
    case os::TReading::Done: return contents;
    case os::TReading::Missing: return {};
    case os::TReading::Refused: break;
  }
  RaiseLastOSError<EInOutError>("The file ", fileName, " cannot be read");
}

void ReplaceWholeFile(const std::string& fileName, const std::string& contents) {
  const os::TFileTurn turn(fileName);
  if (turn.Held() && os::ReplaceWholeFile(fileName, contents, os::TWritten::OnDisk)) return;
  RaiseLastOSError<EInOutError>("The file ", fileName, " cannot be saved");
}

}  // namespace vcl
