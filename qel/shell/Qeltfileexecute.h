// TQELFileExecute: starts a program, or opens a file with its program.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelactioncomponent.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/strings.h"
#include "vcl/system/process.h"

namespace qel {

/// What Execute does until the program has ended: it comes back at once; it handles messages
/// meanwhile; it handles none.
enum TQELExecuteWait { wmNone, wmPumping, wmBlocking };
/// How the program is to show its first window.
enum TQELExecuteShowMode { smNormal, smMinimized, smMaximized, smHidden };
/// The character set of what the program writes: each line that is UTF-8 is read so, others by the
/// console's code page; UTF-8; the console's code page; the system's; UTF-16.
enum TQELOutputEncoding { oeAuto, oeUtf8, oeConsole, oeSystem, oeUtf16 };

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELExecuteWait>{"qel::TQELExecuteWait",
                                                          "wmNone wmPumping wmBlocking"};
template <>
inline constexpr TEnumText EnumText<qel::TQELExecuteShowMode>{
    "qel::TQELExecuteShowMode", "smNormal smMinimized smMaximized smHidden"};
template <>
inline constexpr TEnumText EnumText<qel::TQELOutputEncoding>{
    "qel::TQELOutputEncoding", "oeAuto oeUtf8 oeConsole oeSystem oeUtf16"};

}  // namespace vcl

namespace qel {

class TOutputLines;
class TProcessEnd;

/// Starts a program, or opens a document or an address with the program that is there for it, waits
/// for its end where that is wanted, and hears what it writes. Freed while the program runs, the
/// component leaves it running.
class QEL_API TQELFileExecute : public TQELActionComponent {
 public:
  explicit TQELFileExecute(vcl::TComponent* owner);
  ~TQELFileExecute() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// From Execute until OnFinished. False where the system tells nothing of the program, as for a
  /// document that goes to a program which runs already.
  bool Running() const { return FRunning; }
  /// What the last program that has ended said with its end; 0 before that.
  int ExitCode() const { return FExitCode; }
  /// The lines that the program has written since Execute. Needs CaptureOutput.
  vcl::TStrings* Output() const { return FOutput.get(); }
  /// Ends the program with that exit code; with CaptureOutput those that it has started, too. Does
  /// nothing when none runs.
  void Terminate(int exitCode = 1);

  bool CaptureOutput() const { return FCaptureOutput; }
  /// True starts the program directly, without Verb, and hears what it writes, as errors too. A
  /// document cannot be started so, nor can a batch file.
  void SetCaptureOutput(bool capture) { FCaptureOutput = capture; }
  const std::string& Filename() const { return FFilename; }
  /// The program, document or address. A name without a folder is looked for in the system's folder
  /// and along PATH, not in the current folder.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }
  const std::string& Folder() const { return FFolder; }
  /// The program's current folder; empty for this program's.
  void SetFolder(const std::string& folder) { FFolder = folder; }
  TQELOutputEncoding OutputEncoding() const { return FOutputEncoding; }
  /// The character set that the program writes in.
  void SetOutputEncoding(TQELOutputEncoding encoding) { FOutputEncoding = encoding; }
  vcl::TStrings* Parameters() const { return FParameters.get(); }
  /// The program's arguments, one a line; quotes are put around them as they need.
  void SetParameters(const vcl::TStrings* parameters) { FParameters->Assign(parameters); }
  const std::string& RawParameters() const { return FRawParameters; }
  /// What stands behind the Parameters on the command line, unchanged.
  void SetRawParameters(const std::string& text) { FRawParameters = text; }
  TQELExecuteShowMode ShowMode() const { return FShowMode; }
  /// How the program is to show its first window. With CaptureOutput, smHidden counts only, which
  /// hides a console, too.
  void SetShowMode(TQELExecuteShowMode mode) { FShowMode = mode; }
  int Timeout() const { return FTimeout; }
  /// The milliseconds that Execute waits at most; 0 for no limit. It is False then, and the program
  /// goes on. A negative value is not taken.
  void SetTimeout(int milliseconds);
  const std::string& Verb() const { return FVerb; }
  /// What is done with the file: "open", "edit", "print", "runas" and what else the system knows of
  /// files of its kind; empty for what a double click does.
  void SetVerb(const std::string& verb) { FVerb = verb; }
  TQELExecuteWait Wait() const { return FWait; }
  /// Whether Execute waits for the program's end, and how.
  void SetWait(TQELExecuteWait wait) { FWait = wait; }

  /// The program has ended, and all that it has written has been told.
  vcl::TNotifyEvent OnFinished;
  /// The program has written a line, which comes in UTF-8. Needs CaptureOutput.
  vcl::TProcessOutputEvent OnOutput;

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  void StartDirectly();
  bool StartByShell();
  std::string FileToOpen() const;
  std::string CommandLine() const;
  void Heard(const std::string& bytes);
  bool Tell(const std::string& line);
  void Ended(int exitCode);
  bool WaitForEnd();

  std::string FFilename;
  std::string FFolder;
  std::string FRawParameters;
  std::string FVerb = "open";
  std::unique_ptr<vcl::TStringList> FParameters;
  std::unique_ptr<vcl::TStringList> FOutput;
  TQELExecuteShowMode FShowMode = smNormal;
  TQELExecuteWait FWait = wmNone;
  TQELOutputEncoding FOutputEncoding = oeAuto;
  int FTimeout = 0;
  int FExitCode = 0;
  bool FCaptureOutput = false;
  bool FRunning = false;
  std::shared_ptr<TOutputLines> FLines;
  std::unique_ptr<vcl::TProcess> FProcess;  // What was started directly.
  std::unique_ptr<TProcessEnd> FEnd;        // Of what the shell has started.
};

}  // namespace qel
