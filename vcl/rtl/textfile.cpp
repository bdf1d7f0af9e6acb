// TTextFile: writing and reading lines through a buffer.
#include "vcl/rtl/textfile.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/systemerrors.h"

namespace vcl {
namespace {

constexpr std::size_t BufferSize = 65536;

}  // namespace

TTextFile::~TTextFile() {
  try {
    Close();
  } catch (const EInOutError&) {
  }
}

void TTextFile::Fail(const char* what) const {
  RaiseLastOSError<EInOutError>("Cannot ", what, " \"", FFileName, "\"");
}

void TTextFile::Open(const std::string& fileName, int mode) {
  Close();
  FFileName = fileName;
  FWriting = mode == fmCreate;
  FBuffer.clear();
  FPosition = 0;
  FHandle = os::OpenFile(fileName, mode);
  if (FHandle == os::NoFile) Fail(FWriting ? "create" : "open");
}

void TTextFile::Rewrite(const std::string& fileName) { Open(fileName, fmCreate); }
void TTextFile::Reset(const std::string& fileName) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  Open(fileName, fmOpenRead | fmShareDenyWrite);
  if (Fill() && FBuffer.starts_with(mark)) FPosition = mark.size();
}

void TTextFile::Close() {
  if (FHandle == os::NoFile) return;
  struct TCloser {
    std::intptr_t& Handle;
    ~TCloser() {
      os::CloseFile(Handle);
      Handle = os::NoFile;
    }
  } closer{FHandle};
  if (FWriting) Flush();
}

void TTextFile::Flush() {
  const std::string bytes = std::move(FBuffer);
  FBuffer.clear();
  if (!os::WriteAll(FHandle, bytes)) Fail("write");
}

void TTextFile::WriteLn(std::string_view line) {
  if (FBuffer.capacity() < BufferSize) FBuffer.reserve(BufferSize);
  FBuffer.append(line).append("\r\n");
  if (FBuffer.size() >= BufferSize) Flush();
}

/// Reads on; false at the end of the file.
bool TTextFile::Fill() {
  FBuffer.erase(0, FPosition);
  FPosition = 0;
  const std::size_t size = FBuffer.size();
  FBuffer.resize(size + BufferSize);
  const std::int64_t read =
      os::ReadFile(FHandle, FBuffer.data() + size, static_cast<std::int64_t>(BufferSize));
  FBuffer.resize(size + static_cast<std::size_t>(std::max<std::int64_t>(read, 0)));
  if (read < 0) Fail("read");
  return read > 0;
}

bool TTextFile::Eof() { return FPosition == FBuffer.size() && !Fill(); }

void TTextFile::ReadLn(std::string& line) {
  // A search goes on where the one before has ended, so that long lines are looked at once.
  std::size_t searched = 0;
  std::size_t end;
  do {
    end = std::min(FBuffer.find_first_of("\r\n", FPosition + searched), FBuffer.size());
    searched = end - FPosition;
    // Behind a CR another byte is needed to know whether LF follows.
  } while (end + 1 >= FBuffer.size() && !(end < FBuffer.size() && FBuffer[end] == '\n') && Fill());
  line.assign(FBuffer, FPosition, searched);
  end = FPosition + searched;
  if (FBuffer.compare(end, 2, "\r\n") == 0) ++end;
  FPosition = std::min(end + 1, FBuffer.size());
}

}  // namespace vcl
