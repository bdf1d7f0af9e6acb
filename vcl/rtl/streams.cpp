// TStream and the streams in memory and in files.
#include "vcl/rtl/streams.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TStream::Class() {
  static const TClass info = Describe<TStream, TObject>("vcl::TStream", "vcl/rtl/streams.h", {});
  return info;
}

void TStream::SetSize(std::int64_t) {
  throw EStreamError(Concat("The size of a ", ClassName(), " cannot be changed"));
}

std::int64_t TStream::Position() const { return const_cast<TStream*>(this)->Seek(0, soCurrent); }

void TStream::ReadBuffer(void* buffer, std::int64_t count) {
  auto* next = static_cast<char*>(buffer);
  for (std::int64_t left = count; left > 0;) {
    const std::int64_t done = Read(next, left);
    if (done <= 0) {
      throw EReadError(Concat("The stream ended ", std::to_string(left), " bytes too early"));
    }
    next += done;
    left -= done;
  }
}

void TStream::WriteBuffer(const void* buffer, std::int64_t count) {
  const auto* next = static_cast<const char*>(buffer);
  for (std::int64_t left = count; left > 0;) {
    const std::int64_t done = Write(next, left);
    if (done <= 0) {
      throw EWriteError(Concat(std::to_string(left), " bytes could not be written to the stream"));
    }
    next += done;
    left -= done;
  }
}

void TStream::WriteText(std::string_view bytes) {
  WriteBuffer(bytes.data(), static_cast<std::int64_t>(bytes.size()));
}

std::string TStream::ReadRest() {
  std::string rest(static_cast<std::size_t>(std::max<std::int64_t>(0, Size() - Position())), '\0');
  ReadBuffer(rest.data(), static_cast<std::int64_t>(rest.size()));
  return rest;
}

std::int64_t TStream::CopyFrom(TStream& source, std::int64_t count) {
  if (count == 0) {
    source.SetPosition(0);
    count = source.Size();
  }
  std::array<char, 32768> chunk;
  for (std::int64_t left = count; left > 0;) {
    const auto size = std::min<std::int64_t>(left, chunk.size());
    source.ReadBuffer(chunk.data(), size);
    WriteBuffer(chunk.data(), size);
    left -= size;
  }
  return count;
}

std::int64_t TCustomMemoryStream::Read(void* buffer, std::int64_t count) {
  const std::int64_t done =
      std::clamp<std::int64_t>(count, 0, std::max<std::int64_t>(0, Size() - FPosition));
  if (done == 0) return 0;
  std::memcpy(buffer, Bytes().data() + FPosition, static_cast<std::size_t>(done));
  FPosition += done;
  return done;
}

std::int64_t TCustomMemoryStream::Seek(std::int64_t offset, TSeekOrigin origin) {
  const std::int64_t base = origin == soBeginning ? 0 : origin == soCurrent ? FPosition : Size();
  if (offset < -base) throw EStreamError("A stream's position cannot be before its beginning");
  return FPosition = base + offset;
}

void TCustomMemoryStream::SaveToStream(TStream& stream) const { stream.WriteText(Bytes()); }

void TCustomMemoryStream::SaveToFile(const std::string& fileName) const {
  TFileStream file(fileName, fmCreate);
  SaveToStream(file);
}

const TClass& TMemoryStream::Class() {
  static const TClass info =
      Describe<TMemoryStream, TStream>("vcl::TMemoryStream", "vcl/rtl/streams.h", {});
  return info;
}

std::int64_t TMemoryStream::Write(const void* buffer, std::int64_t count) {
  if (count <= 0) return 0;
  const std::int64_t end = FPosition + count;
  if (end > Size()) FBytes.resize(static_cast<std::size_t>(end));
  std::memcpy(FBytes.data() + FPosition, buffer, static_cast<std::size_t>(count));
  FPosition = end;
  return count;
}

void TMemoryStream::SetSize(std::int64_t size) {
  if (size < 0 || static_cast<std::uint64_t>(size) > FBytes.max_size()) {
    throw EStreamError(Concat("A memory stream cannot have the size ", std::to_string(size)));
  }
  FBytes.resize(static_cast<std::size_t>(size));
  FPosition = std::min(FPosition, size);
}

void TMemoryStream::LoadFromStream(TStream& stream) {
  stream.SetPosition(0);
  FBytes = stream.ReadRest();
  FPosition = 0;
}

void TMemoryStream::LoadFromFile(const std::string& fileName) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  LoadFromStream(file);
}

const TClass& TFileStream::Class() {
  static const TClass info =
      Describe<TFileStream, TStream>("vcl::TFileStream", "vcl/rtl/streams.h", {});
  return info;
}

TFileStream::TFileStream(const std::string& fileName, int mode)
    : FFileName(fileName), FHandle(os::OpenFile(fileName, mode)) {
  if (FHandle != os::NoFile) return;
  if (mode == fmCreate) RaiseLastOSError<EFCreateError>("Cannot create file \"", fileName, "\"");
  RaiseLastOSError<EFOpenError>("Cannot open file \"", fileName, "\"");
}

TFileStream::~TFileStream() { os::CloseFile(FHandle); }

std::int64_t TFileStream::Read(void* buffer, std::int64_t count) {
  const std::int64_t done = os::ReadFile(FHandle, buffer, std::max<std::int64_t>(count, 0));
  if (done >= 0) return done;
  RaiseLastOSError<EReadError>("Cannot read file \"", FFileName, "\"");
}

std::int64_t TFileStream::Write(const void* buffer, std::int64_t count) {
  const std::int64_t done = os::WriteFile(FHandle, buffer, std::max<std::int64_t>(count, 0));
  if (done >= 0) return done;
  RaiseLastOSError<EWriteError>("Cannot write file \"", FFileName, "\"");
}

std::int64_t TFileStream::Seek(std::int64_t offset, TSeekOrigin origin) {
  const std::int64_t position = os::SeekFile(FHandle, offset, origin);
  if (position >= 0) return position;
  RaiseLastOSError<EStreamError>("Cannot move in file \"", FFileName, "\"");
}

std::int64_t TFileStream::Size() const {
  const std::int64_t size = os::SizeOfFile(FHandle);
  if (size >= 0) return size;
  RaiseLastOSError<EStreamError>("Cannot tell the size of \"", FFileName, "\"");
}

void TFileStream::SetSize(std::int64_t size) {
  if (os::SetSizeOfFile(FHandle, size)) {
    if (Position() > size) SetPosition(size);
    return;
  }
  RaiseLastOSError<EStreamError>("Cannot set the size of \"", FFileName, "\"");
}

}  // namespace vcl
