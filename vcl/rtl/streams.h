// Streams: bytes that are read and written in order, in memory or in files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/object.h"

namespace vcl {

enum TSeekOrigin { soBeginning, soCurrent, soEnd };

/// Bytes in order, with a position.
class VCL_API TStream : public TObject {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Reads up to `count` bytes from the position on and returns how many there were.
  virtual std::int64_t Read(void* buffer, std::int64_t count) = 0;
  /// Writes up to `count` bytes at the position and returns how many could be written.
  virtual std::int64_t Write(const void* buffer, std::int64_t count) = 0;
  /// Moves the position and returns it. It may stand behind the end, never before the beginning:
  /// that raises EStreamError.
  virtual std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) = 0;
  virtual std::int64_t Size() const = 0;
  /// Cuts off, the position too, or appends zeros. Raises EStreamError where the stream's size is
  /// fixed.
  virtual void SetSize(std::int64_t size);

  std::int64_t Position() const;
  void SetPosition(std::int64_t position) { Seek(position, soBeginning); }
  /// Reads exactly `count` bytes. Raises EReadError when there are fewer.
  void ReadBuffer(void* buffer, std::int64_t count);
  /// Writes exactly `count` bytes. Raises EWriteError when that many can't be written.
  void WriteBuffer(const void* buffer, std::int64_t count);
  void WriteText(std::string_view bytes);
  /// Reads everything from the position to the end.
  std::string ReadRest();
  /// Copies `count` bytes from the source's position on; with a count of 0 the whole source, from
  /// its beginning. Returns how many were copied. Raises EReadError when the source ends before.
  std::int64_t CopyFrom(TStream& source, std::int64_t count);
};

/// Bytes in memory that something else holds.
class VCL_API TCustomMemoryStream : public TStream {
 public:
  std::int64_t Read(void* buffer, std::int64_t count) override;
  std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) override;
  std::int64_t Size() const override { return static_cast<std::int64_t>(Bytes().size()); }
  /// The first byte; valid until the stream changes.
  const void* Memory() const { return Bytes().data(); }
  void SaveToStream(TStream& stream) const;
  /// Raises EFCreateError or EWriteError.
  void SaveToFile(const std::string& fileName) const;

 protected:
  virtual std::string_view Bytes() const = 0;
  std::int64_t FPosition = 0;
};

/// Bytes in memory.
class VCL_API TMemoryStream : public TCustomMemoryStream {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  std::int64_t Write(const void* buffer, std::int64_t count) override;
  void SetSize(std::int64_t size) override;
  using TCustomMemoryStream::Memory;
  void* Memory() { return FBytes.data(); }
  void Clear() { SetSize(0); }
  /// Makes room for so many bytes, so that writing up to there moves nothing.
  void Reserve(std::int64_t size) { FBytes.reserve(static_cast<std::size_t>(size)); }
  /// Replaces the contents by the whole other stream's resp. a file's, and goes to the beginning.
  /// When that can't be read (EReadError, EFOpenError), the contents stay.
  void LoadFromStream(TStream& stream);
  void LoadFromFile(const std::string& fileName);

 protected:
  std::string_view Bytes() const override { return FBytes; }
  std::string FBytes;
};

/// A stream over a text.
class VCL_API TStringStream : public TMemoryStream {
 public:
  explicit TStringStream(std::string text = {}) { FBytes = std::move(text); }
  const std::string& DataString() const { return FBytes; }
};

/// How a TFileStream opens its file: fmCreate, or an access and what others may do meanwhile.
/// Sharing is enforced where the system knows it; without a sharing value others may do nothing.
inline constexpr int fmOpenRead = 0x00;
inline constexpr int fmOpenWrite = 0x01;
inline constexpr int fmOpenReadWrite = 0x02;
inline constexpr int fmShareExclusive = 0x10;
inline constexpr int fmShareDenyWrite = 0x20;
inline constexpr int fmShareDenyRead = 0x30;
inline constexpr int fmShareDenyNone = 0x40;
inline constexpr int fmCreate = 0xFF00;

/// The bytes of a file.
class VCL_API TFileStream : public TStream {
 public:
  /// Opens the file, or makes it anew with fmCreate. Raises EFOpenError resp. EFCreateError with
  /// the name and the system's reason.
  TFileStream(const std::string& fileName, int mode);
  ~TFileStream() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& FileName() const { return FFileName; }
  /// Reading and writing raise EReadError and EWriteError when the system refuses.
  std::int64_t Read(void* buffer, std::int64_t count) override;
  std::int64_t Write(const void* buffer, std::int64_t count) override;
  std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) override;
  std::int64_t Size() const override;
  void SetSize(std::int64_t size) override;

 private:
  std::string FFileName;
  std::intptr_t FHandle;
};

}  // namespace vcl
