// TOutbox: copying the files into one folder, and removing it.
#include "demos/mailer/outbox.h"

#include "demos/mailer/draft.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace mailer {

namespace fs = std::filesystem;

TOutbox::TOutbox(const std::vector<std::string>& files)
    : FFormer(fs::current_path()),
      FFolder(fs::temp_directory_path() /
              vcl::ToUtf16("mailer-" + std::to_string(::GetCurrentProcessId()))) {
  const vcl::TOnFailure clear([this] { Clear(); });
  try {
    fs::create_directories(FFolder);
    for (const std::string& file : files) CopyHere(file);
    fs::current_path(FFolder);
  } catch (const fs::filesystem_error& error) {
    throw vcl::EInOutError(error.what());
  }
}

TOutbox::~TOutbox() { Clear(); }

void TOutbox::CopyHere(const std::string& file) const {
  std::error_code error;
  const fs::path copy = FFolder / vcl::ToUtf16(NamePart(file));
  fs::copy_file(vcl::ToUtf16(file), copy, error);
  if (error) {
    throw vcl::EInOutError(
        vcl::Concat("The file ", file, " cannot be attached: ", error.message()));
  }
}

void TOutbox::Clear() const {
  std::error_code ignored;
  fs::current_path(FFormer, ignored);
  fs::remove_all(FFolder, ignored);
}

}  // namespace mailer
