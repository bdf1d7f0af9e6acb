// TOutbox: copying the files into one folder, and removing it.
#include "demos/mailer/outbox.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace mailer {

namespace fs = std::filesystem;

TOutbox::TOutbox(const std::vector<std::string>& files)
    : FFormer(fs::current_path()),
      FFolder(fs::temp_directory_path() /
              vcl::ToUtf16("mailer-" + std::to_string(::GetCurrentProcessId()))) {
  const vcl::TOnFailure clear([this] { Clear(); });
  vcl::ForceDirectories(vcl::ToUtf8(FFolder.wstring()));
  for (const std::string& file : files) CopyHere(file);
  Enter();
}

TOutbox::~TOutbox() { Clear(); }

void TOutbox::CopyHere(const std::string& file) const {
  std::error_code error;
  const fs::path copy = FFolder / vcl::ToUtf16(vcl::ExtractFileName(file));
  fs::copy_file(vcl::ToUtf16(file), copy, error);
  if (error) {
    vcl::RaiseOSError<vcl::EInOutError>(error.value(), "The file ", file, " cannot be attached");
  }
}

void TOutbox::Enter() const {
  std::error_code error;
  fs::current_path(FFolder, error);
  if (error) {
    vcl::RaiseOSError<vcl::EInOutError>(error.value(), "The folder of the files cannot be used");
  }
}

void TOutbox::Clear() const {
  std::error_code ignored;
  fs::current_path(FFormer, ignored);
  fs::remove_all(FFolder, ignored);
}

}  // namespace mailer
