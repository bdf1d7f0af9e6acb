// TQELLogFile: a file with what the program tells of itself.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/controls/messages.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/systemtypes.h"

namespace qel {

/// How much an entry matters.
enum TQELLogLevel { llDebug, llInfo, llWarning, llError };

/// Sender, why an entry was not written.
using TQELLogErrorEvent = vcl::TEvent<vcl::TObject*, const std::string&>;

/// Writes entries, a line each, to the end of a file, which may be that of several of these in any
/// number of processes: no entry is lost, none is torn, and each thread's keep their order. The
/// text is UTF-8. An entry may be added by any thread, all else is the main thread's. In the
/// designer nothing is written.
class QEL_API TQELLogFile : public TQELComponent {
 public:
  explicit TQELLogFile(vcl::TComponent* owner);
  ~TQELLogFile() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Writes the time, the level and the text. Line breaks in it become "\r" and "\n", other
  /// characters below the blank "\x01" and the like. An entry of the level llError is on the disk
  /// when this returns, with all before it; the others are soon. False when the entry's level is
  /// below Level, there is no file, or it can't be written, as LastError says: it is kept then, and
  /// tried again with the next entries, until a megabyte waits. For any thread.
  bool Add(TQELLogLevel level, const std::string& text);
  /// Returns when all entries are on the disk; false when that can't be done. For any thread.
  bool Flush();
  /// Why the last entry was not written; empty when it was. For any thread.
  std::string LastError() const;

  TQELLogLevel Level() const;
  /// The least that is written.
  void SetLevel(TQELLogLevel level);
  const std::string& LogFile() const { return FLogFile; }
  /// The file's name; nothing is written while it is empty. File and folder are made by the first
  /// entry.
  void SetLogFile(const std::string& fileName);
  bool LogExceptions() const { return FLogExceptions; }
  /// True writes the errors that the application is told of, too, with the level llError.
  void SetLogExceptions(bool log) { FLogExceptions = log; }
  int MaxFiles() const { return FMaxFiles; }
  /// How many files there are at most, with the one that is written to; 0 for any number. Less is
  /// ignored.
  void SetMaxFiles(int count);
  int MaxSize() const { return FMaxSize; }
  /// How large a file becomes, in kilobytes; 0 for any size, and less is ignored. A full file
  /// "a.log" becomes "a.1.log", the next one "a.2.log".
  void SetMaxSize(int kilobytes);
  const std::string& TimeFormat() const;
  /// How an entry's time is written, in the specifiers of FormatDateTime; empty for without it.
  void SetTimeFormat(const std::string& format);

  /// An entry could not be written. Fired in the main thread, once until one can.
  TQELLogErrorEvent OnError;

 private:
  class THearer;
  struct TState;
  std::string Line(TQELLogLevel level, const std::string& text) const;
  void Heard(vcl::TMessage& message);

  std::string FLogFile;
  bool FLogExceptions = false;
  int FMaxFiles = 0;
  int FMaxSize = 0;
  HWND FWindow = nullptr;            // By which other threads call the main one.
  std::unique_ptr<TState> FState;    // What other threads use, too.
  std::unique_ptr<THearer> FHearer;  // None in the designer, as is the window.
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELLogLevel>{
    "TQELLogLevel", "llDebug llInfo llWarning llError"};
