// TProcess: another program, its input, output and end.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"

namespace vcl {

/// A program that cannot be started, or does not take what is written to it.
class VCL_API EProcessError : public Exception {
 public:
  using Exception::Exception;
  ~EProcessError() override;
};

enum TProcessOption {
  poCaptureOutput,   ///< What the program writes comes to Output and OnOutput.
  poErrorsToOutput,  ///< What it writes as errors stands among its output.
  poNoWindow,        ///< Neither a console nor its first window is shown.
  poEndWithThisOne,  ///< The program ends when this component or this program ends.
};
using TProcessOptions = TSet<TProcessOption>;
template <>
inline constexpr TEnumText EnumText<TProcessOption>{
    "TProcessOption", "poCaptureOutput poErrorsToOutput poNoWindow poEndWithThisOne",
    "TProcessOptions"};

/// Sender, what the program has written meanwhile: bytes, which need not end with a line.
using TProcessOutputEvent = TEvent<TObject*, const std::string&>;
template <>
inline constexpr TEventText EventText<TProcessOutputEvent>{
    "TProcessOutputEvent", "vcl::TObject* sender, const std::string& text"};

/// The file of that name in the system's folder or along PATH, with its folder; the current folder
/// is none of them. A name without an ending means the one with ".exe". Empty when there is none.
VCL_API std::string FileAlongPath(const std::string& name);

/// Starts another program, hears what it writes, writes to it, waits for it and ends it. Events are
/// fired in the main thread. Freed while the program runs, the component leaves it running, unless
/// poEndWithThisOne says otherwise.
class VCL_API TProcess : public TComponent {
 public:
  explicit TProcess(TComponent* owner);
  ~TProcess() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& FileName() const { return FFileName; }
  /// The program. A name without a folder is looked for in the system's folder and along PATH, not
  /// in the current folder; without an ending it ends with ".exe".
  void SetFileName(const std::string& fileName) { FFileName = fileName; }
  TStrings* Arguments() const { return FArguments.get(); }
  /// The program's arguments, one a line; quotes are put around them as they need.
  void SetArguments(const TStrings* arguments) { FArguments->Assign(arguments); }
  const std::string& RawArguments() const { return FRawArguments; }
  /// What stands behind the arguments on the command line just as it is given here, for programs
  /// that read their command line in a way of their own.
  void SetRawArguments(const std::string& text) { FRawArguments = text; }
  TStrings* Environment() const { return FEnvironment.get(); }
  /// Lines NAME=value that the program's environment has besides this program's, or instead of it;
  /// NAME= takes one away.
  void SetEnvironment(const TStrings* environment) { FEnvironment->Assign(environment); }
  const std::string& Folder() const { return FFolder; }
  /// The program's current folder; empty for this one's.
  void SetFolder(const std::string& folder) { FFolder = folder; }
  TProcessOptions Options() const { return FOptions; }
  /// What becomes of the program's windows, output and end.
  void SetOptions(TProcessOptions options) { FOptions = options; }
  int TimeLimit() const { return FTimeLimit; }
  /// The milliseconds after which the program is ended; 0 for no limit. Raises
  /// EArgumentOutOfRangeException for a negative one.
  void SetTimeLimit(int milliseconds);
  int MemoryLimit() const { return FMemoryLimit; }
  /// The megabytes that the program may use, with the programs that it starts; 0 for no limit.
  /// Raises EArgumentOutOfRangeException for a negative one. The system ends what asks for more.
  void SetMemoryLimit(int megabytes);

  /// Starts the program. Raises EProcessError, with the name and the system's words, when it cannot
  /// be started, for batch files, whose interpreter reads arguments in ways of its own, and for
  /// what no command line or environment can hold; EInvalidOperation while one runs.
  void Execute();
  /// True from Execute on until OnFinished has been told.
  bool Running() const { return FWorker != nullptr; }
  /// The system's number of the running program; 0 without one.
  unsigned ProcessId() const;
  /// What the program said with its end. Raises EInvalidOperation before that.
  int ExitCode() const;
  /// True when the program was ended by TimeLimit.
  bool TimedOut() const { return FTimedOut; }
  /// Waits until the program has ended and has been heard to the end, and fires the events of that;
  /// the main thread's to call. False when it has not within the milliseconds; -1 waits for ever.
  bool WaitFor(int milliseconds = -1);
  /// Ends the program, with the programs that it has started, with that code. Does nothing when
  /// none runs.
  void Terminate(int exitCode = 1);

  /// What the program has written, as it came: bytes in a character set of its own choice.
  const std::string& Output() const { return FOutput; }
  const std::string& Errors() const { return FErrors; }
  /// Gives the program bytes to read, in the background. Needs poCaptureOutput. Raises
  /// EInvalidOperation when none runs, or after EndInput.
  void WriteInput(std::string_view bytes);
  /// Tells the program that no more comes, when it has read what has been written.
  void EndInput();

  /// The program has written something. Needs poCaptureOutput.
  TProcessOutputEvent OnOutput;
  /// The program has written something as an error. Needs poCaptureOutput.
  TProcessOutputEvent OnErrorOutput;
  /// The program has ended, and all that it has written has been told.
  TNotifyEvent OnFinished;

 private:
  class TWorker;
  void Heard(std::string& all, const TProcessOutputEvent& event, const std::string& text);
  void Finish(int exitCode, bool timedOut);

  std::string FFileName;
  std::string FFolder;
  std::unique_ptr<TStringList> FArguments;
  std::string FRawArguments;
  std::unique_ptr<TStringList> FEnvironment;
  TProcessOptions FOptions{poCaptureOutput};
  int FTimeLimit = 0;
  int FMemoryLimit = 0;
  std::unique_ptr<TWorker> FWorker;
  std::string FOutput;
  std::string FErrors;
  int FExitCode = 0;
  bool FEnded = false;  // One has been run to its end.
  bool FTimedOut = false;
};

}  // namespace vcl
