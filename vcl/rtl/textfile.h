// TTextFile: a file of lines, read or written from its beginning to its end.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

/// Lines are bytes: nothing is converted. Every failure raises EInOutError with the file's name and
/// the system's reason.
class VCL_API TTextFile {
 public:
  TTextFile() = default;
  /// Closes; what cannot be written any more is lost silently, so call Close.
  ~TTextFile();
  TTextFile(const TTextFile&) = delete;
  TTextFile& operator=(const TTextFile&) = delete;

  /// Makes the file, or empties the one that is there, to be written.
  void Rewrite(const std::string& fileName);
  /// Opens the file to be read, behind the byte-order mark of UTF-8 if it begins with one.
  void Reset(const std::string& fileName);
  void Close();

  /// Writes the line and CR LF.
  void WriteLn(std::string_view line);
  /// True when there is no more line.
  bool Eof();
  /// Reads a line, without the CR LF, LF or CR that ends it.
  void ReadLn(std::string& line);

 private:
  void Open(const std::string& fileName, int mode);
  void Flush();
  bool Fill();
  [[noreturn]] void Fail(const char* what) const;

  std::string FFileName;
  std::intptr_t FHandle = -1;
  std::string FBuffer;
  std::size_t FPosition = 0;
  bool FWriting = false;
};

}  // namespace vcl
